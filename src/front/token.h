// Token numbers and the token record shared by the lexer and the parser.
#pragma once

#include <string_view>

namespace ycc {

enum Tok : int {
#define TOKEN(number, name, spelling) T_##name = number,
#include "front/tokens.def"
#undef TOKEN
};

// The table name of a token number ("SEMICOLON"), or "" for an unknown one.
std::string_view token_name(int tok);
// The fixed spelling of a punctuator or keyword ("" for the others).
std::string_view token_spelling(int tok);

// One token: number, text exactly as matched, and line code
// (file index * 1000000 + line).
struct Token {
  std::string_view text;
  int tok;
  int line;
};

}  // namespace ycc
