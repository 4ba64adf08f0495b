// Reading the command line into the options record and the source list.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "common/options.h"
#include "diag/diagnostics.h"

namespace ycc {

struct SourceFile {
  std::string source_name;
  std::string output_name;
  std::string intermediate_name;
  char compile_flag = 'y';
  std::int64_t output_time = 0;
};

extern const char* const usage_text;

// Reads the words after the program name. Errors are reported through the
// preprocessor routine (" command line: "); returns false when any was.
bool read_command_line(const std::vector<std::string>& words, const std::string& program,
                       Options& options, std::vector<std::string>& sources, Diagnostics& diag);

// Appends a directory list to the ";"-separated include-directory string.
void append_include_dirs(std::string& dirs, const std::string& more);

// Fills in the output and intermediate names and the /T compile flag.
SourceFile name_source(const std::string& source, const Options& options);

}  // namespace ycc
