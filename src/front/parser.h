// The parser of YARL C: recursive descent over the token buffer of one file
// (unlimited lookahead by index), calling the grammar actions.
#pragma once

#include <string>
#include <vector>

#include "front/actions.h"
#include "front/syntax_errors.h"
#include "front/token.h"

namespace ycc {

// Nesting deeper than the parser's limit (blocks, statements, parentheses,
// unary operators, initializer braces, structure bodies). `report` is the
// complete text for the standard error stream; the run ends with status 255.
struct ParserOverflow {
  std::string report;
};

// Deepest nesting the parser accepts before ParserOverflow.
inline constexpr int parser_depth_limit = 2000;

// Parses a whole file: `tokens` ends with Eof. Syntax errors go to `syntax`
// (CompileHalt propagates at the error limit); everything else to `actions`.
void parse_translation_unit(const std::vector<Token>& tokens, Actions& actions,
                            SyntaxErrors& syntax);

}  // namespace ycc
