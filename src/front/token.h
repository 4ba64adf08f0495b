// Token numbers and the token record shared by the lexer and the parser.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
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
// (file index * 1000000 + line). Sixteen bytes, since a file's tokens are
// all held at once: the text's length shares a word with the number, so a
// text longer than `max_text` bytes (no name, number or literal the
// language accepts comes near it) is seen cut at that length.
struct Token {
  static constexpr std::size_t max_text = (std::size_t{1} << 25) - 1;

  Token() : size_(0), tok(0) {}
  Token(std::string_view text, int number, int line_code)
      : data_(text.data()),
        size_(static_cast<std::uint32_t>(std::min(text.size(), max_text))),
        tok(static_cast<std::uint32_t>(number)),
        line(line_code) {}

  std::string_view text() const { return {data_, size_}; }

 private:
  const char* data_ = nullptr;
  std::uint32_t size_ : 25;

 public:
  std::uint32_t tok : 7;  // every token number is below 128
  int line = 0;
};
static_assert(sizeof(Token) == 16);

}  // namespace ycc
