// The driver: banner, command line, the per-file loop, totals and exit status.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace ycc {

// Runs the compiler over the command-line words (args[0] is the program name
// as invoked) and returns the exit status.
int run_compiler(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace ycc
