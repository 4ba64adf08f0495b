// The compile pass: one intermediate file becomes one output C file.
#pragma once

#include <memory>
#include <string>

#include "common/options.h"
#include "diag/diagnostics.h"
#include "output/workspace.h"

namespace ycc {

// The parser's resource limits end the process with exit status 255 after
// printing `report` on the standard error stream.
struct ParserResourceExit {
  std::string report;
};

// Run-level state of the compile pass: the code workspace, set up on the
// first compiled file and reused, and the count of compiled files.
// Everything per file is made per call.
class CompileSession {
 public:
  // An empty `prefix` keeps the generated-names prefix "zz". Memory
  // exhaustion is the fatal "insufficient memory"; the token buffers and the
  // parser's nesting limit throw ParserResourceExit.
  // `text`, when given, is the intermediate file's text, taken over instead
  // of reading the file back.
  void compile_one_file(const Options& options, Diagnostics& diag, const std::string& intermediate,
                        const std::string& output, const std::string& source,
                        const std::string& prefix, std::string* text = nullptr);

  int files_compiled() const { return files_compiled_; }
  // The run's workspace (null before the first compiled file).
  Workspace* workspace() { return workspace_.get(); }

 private:
  void compile(const Options& options, Diagnostics& diag, const std::string& intermediate,
               const std::string& output, const std::string& source, const std::string& prefix,
               std::string* text);

  std::unique_ptr<Workspace> workspace_;
  int files_compiled_ = 0;
};

}  // namespace ycc
