// The meeting point of the compile pass and the grammar: everything the start
// rule needs for one file.
#pragma once

#include <string>

#include "common/options.h"
#include "diag/diagnostics.h"
#include "front/lexer.h"
#include "front/syntax_errors.h"
#include "output/workspace.h"

namespace ycc {

struct ParseContext {
  const Options& options;
  Diagnostics& diag;
  const TokenBuffer& tokens;
  SyntaxErrors& syntax;
  Workspace& workspace;
  const std::string& prefix;  // generated-names prefix of this file
};

// Runs the start rule of the grammar over every token of the file. May throw
// CompileHalt when the error limit is reached.
void run_start_rule(ParseContext& ctx);

}  // namespace ycc
