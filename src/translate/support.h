// The support functions every output file carries: out_of_memory reports a
// failed memory request, bounds_exceeded reports a violated bound and ends
// the program. Both name the place by a source-position code, the index of
// the source file in this output file's own file table times 1000000 plus
// the line; the table lists the files that contributed code, in order of
// first appearance, and is complete only at the end of the file.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "common/names.h"
#include "common/options.h"
#include "diag/diagnostics.h"
#include "output/workspace.h"

namespace ycc {

class SupportFunctions {
 public:
  SupportFunctions(const FileTable& files, const Names& names) : files_(files), names_(names) {}

  // The source-position code of a compiler line code (file index of the
  // compiler's file-name table times 1000000 plus the line).
  int position(int line_code);

  std::string out_of_memory() const { return names_.generated("out_of_memory"); }
  std::string bounds_exceeded() const { return names_.generated("bounds_exceeded"); }

  // A C math function called by its C name (--direct-calls): its C
  // declaration goes into the globals slot with the support functions'.
  void use_c_math(const std::string& name) {
    if (std::find(c_math_.begin(), c_math_.end(), name) == c_math_.end()) c_math_.push_back(name);
  }

  // At the end of a file without errors: the prototypes into the globals
  // slot and the functions into the deferred-functions text, unless /M (no
  // out_of_memory) or /B (no bounds_exceeded). `source` is the compiled
  // source file, the table's one entry when no code recorded a position.
  void generate(Workspace& ws, const Options& options, int source_line_code);

 private:
  std::string files_table() const;

  const FileTable& files_;
  const Names& names_;
  std::vector<int> table_;  // compiler file indexes, in order of first appearance
  std::vector<std::string> c_math_;  // in order of first call
};

}  // namespace ycc
