// The preprocessor: one source file and its includes become the intermediate file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "common/options.h"
#include "diag/diagnostics.h"

namespace ycc {

// One source file's preprocessing, as the driver hands it over.
struct PpJob {
  std::string source_name;
  std::string source_text;        // read by the driver
  std::string intermediate_name;
  char compile_flag = 'y';        // /T may turn 'n' into 'y'
  std::int64_t output_time = 0;   // modification time of the existing output, or 0
  bool intermediate_written = false;
  // With no intermediate name the text stays here instead of in a file.
  std::string intermediate_text;
  // Every include file opened, once each, in the order first read (paths as
  // opened): the prerequisites of a dependency rule.
  std::vector<std::string> includes_read;
};

// Runs the preprocessor over one file. Messages go through `diag`; an early
// end throws PpStop with its exception code, memory failure MemoryExhausted.
void preprocess(const Options& options, Diagnostics& diag, PpJob& job);

}  // namespace ycc
