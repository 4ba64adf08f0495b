// The start rule of the grammar for the compile pass: the parser over the
// file's tokens, with the grammar actions of the compiler.
#include "compile/parse_seam.h"

#include "compile/file_actions.h"
#include "front/parser.h"

namespace ycc {

void run_start_rule(ParseContext& ctx) {
  FileActions actions(ctx.options, ctx.diag, ctx.tokens, ctx.workspace, ctx.prefix);
  struct DumpAtEnd {
    ParseContext& ctx;
    FileActions& actions;
    ~DumpAtEnd() {
      if (!ctx.options.dump_symbols) return;
      ctx.diag.flush();  // the messages of the file first, then what the table holds
      actions.declarations().symbols().dump(ctx.diag.err());
    }
  } dump{ctx, actions};
  parse_translation_unit(ctx.tokens.tokens, actions, ctx.syntax);
  actions.translator().finish_file(ctx.tokens.tokens.back().line);
  if (actions.declarations().declared_anything()) ctx.workspace.note_emitted();
}

}  // namespace ycc
