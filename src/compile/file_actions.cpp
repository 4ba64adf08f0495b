#include "compile/file_actions.h"

namespace ycc {

FileActions::FileActions(const Options& options, Diagnostics& diag, const TokenBuffer& tokens, Workspace& ws,
                         const std::string& prefix)
    : names_(prefix), decl_(options, diag, tokens, ws, names_), tr_(options, diag, ws, decl_, names_) {}

}  // namespace ycc
