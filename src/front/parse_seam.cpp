// The start rule of the grammar for the compile pass: the parser over the
// file's tokens, with the grammar actions of the compiler.
#include "front/parse_seam.h"

#include "front/parser.h"

namespace ycc {

void run_start_rule(ParseContext& ctx) {
  // The declaration and translation actions plug in here; until then the
  // grammar is checked with actions that do nothing.
  Actions actions;
  parse_translation_unit(ctx.tokens.tokens, actions, ctx.syntax);
}

}  // namespace ycc
