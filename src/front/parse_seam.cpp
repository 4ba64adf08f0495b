// Stand-in start rule until the grammar lands: a file must be empty of
// tokens; the first token of any other file is a syntax error.
#include "front/parse_seam.h"

namespace ycc {

void run_start_rule(ParseContext& ctx) {
  const Token& first = ctx.tokens.tokens.front();
  if (first.tok != T_Eof) ctx.syntax.at_or_before(first);
}

}  // namespace ycc
