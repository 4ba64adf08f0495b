// The text of --report-checks: per function, the checks the generated C holds.
#pragma once

#include <string>
#include <vector>

#include "diag/diagnostics.h"
#include "output/workspace.h"

namespace ycc {

std::string format_check_report(const std::string& source, const std::vector<Workspace::FunctionChecks>& functions,
                                const FileTable& files);

}  // namespace ycc
