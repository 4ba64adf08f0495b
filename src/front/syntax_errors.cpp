#include "front/syntax_errors.h"

#include "common/text.h"

namespace ycc {

std::string SyntaxErrors::quoted(const Token& t) {
  if (t.tok == T_Eof) return "end of file";
  return std::string(t.text().substr(0, quoted_limit));
}

void SyntaxErrors::report(int& last_line, const Token& current, const char* format) {
  if (current.line == last_line) return;
  last_line = current.line;
  std::string text = quoted(current);
  diag_.error(current.line, strf(format, text.c_str()));
  diag_.flush();
}

void SyntaxErrors::at_or_before(const Token& current) {
  report(last_line_, current, "syntax error at or before '%s'");
}

void SyntaxErrors::expecting_type(const Token& current) {
  report(last_type_line_, current, "syntax error: expecting a type or typedef name, but found '%s'");
}

}  // namespace ycc
