// The compile pass: one intermediate file becomes one output C file.
#pragma once

#include <string>

#include "common/options.h"
#include "diag/diagnostics.h"

namespace ycc {

// Run-level state of the compile pass (the code workspace is set up on the
// first compiled file and reused); everything per file is made per call.
class CompileSession {
 public:
  void compile_one_file(const Options& options, Diagnostics& diag, const std::string& intermediate,
                        const std::string& output, const std::string& source);
};

}  // namespace ycc
