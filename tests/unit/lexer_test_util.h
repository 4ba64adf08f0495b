// What lexer tests compare: a token list as one line of text.
#pragma once

#include <string>

#include "front/lexer.h"

namespace ycc {

// "NAME:text" for each token before Eof, with "@line" after each when
// `lines` is set.
inline std::string describe(const TokenBuffer& b, bool lines = false) {
  std::string out;
  for (const Token& t : b.tokens) {
    if (t.tok == T_Eof) break;
    if (!out.empty()) out += ' ';
    out += std::string(token_name(t.tok)) + ":" + std::string(t.text());
    if (lines) out += "@" + std::to_string(t.line);
  }
  return out;
}

}  // namespace ycc
