// The two syntax error messages, each given at most once per line. Recovery
// (skipping to a follow token) belongs to the parser.
#pragma once

#include <climits>
#include <string>

#include "diag/diagnostics.h"
#include "front/token.h"

namespace ycc {

class SyntaxErrors {
 public:
  // The longest token text a message quotes.
  static constexpr size_t quoted_limit = 40;

  explicit SyntaxErrors(Diagnostics& diag) : diag_(diag) {}

  // "syntax error at or before '%s'"; suppressed when `current` stands on the
  // line of the previous such message. Held messages are printed at once.
  // May throw CompileHalt (the error limit).
  void at_or_before(const Token& current);

  // "syntax error: expecting a type or typedef name, but found '%s'", with
  // its own previous-line memory.
  void expecting_type(const Token& current);

  // The text a message quotes for a token: cut to 40 characters, or
  // "end of file" for Eof.
  static std::string quoted(const Token& t);

 private:
  void report(int& last_line, const Token& current, const char* format);

  Diagnostics& diag_;
  int last_line_ = INT_MIN;
  int last_type_line_ = INT_MIN;
};

}  // namespace ycc
