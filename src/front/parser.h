// The parser of YARL C: recursive descent over the token buffer of one file
// (unlimited lookahead by index), calling the grammar actions.
//
// Every choice the grammar leaves to lookahead is made by looking at tokens
// only, never by undoing a parse:
// - [static] IDENTIFIER "(" at file level starts a function header; anything
//   else that starts with specifiers is a declaration.
// - A header is a definition when the first "{" after its "(" (not one that
//   opens a structure or enumeration body or an initializer) comes before any
//   ";"; the answer is known before the name is entered.
// - A typedef name is a type where no type was given yet, or where a
//   declarator or another specifier follows it; otherwise it is a name.
// - "(" followed by a type starts a cast (and selects sizeof of a type).
// - An IDENTIFIER starts a call with return variables when space references
//   separated by "," are followed by "=" and a callee with its "(".
// - The labels and exception handlers of a function body are gathered from
//   its tokens before the body is parsed.
//
// Syntax errors are reported through SyntaxErrors and recovered by skipping
// to a follow set of the rule; a nesting counter turns absurdly deep input
// into ParserOverflow instead of a stack overflow.
#pragma once

#include <string>
#include <vector>

#include "front/actions.h"
#include "front/syntax_errors.h"
#include "front/token.h"
#include "front/token_list.h"

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
void parse_translation_unit(const TokenList& tokens, Actions& actions,
                            SyntaxErrors& syntax);

}  // namespace ycc
