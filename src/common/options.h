// The options record: set once by the command line, read by every stage.
#pragma once

#include <string>
#include <vector>

namespace ycc {

struct Options {
  bool bounds_checks = true;          // /B turns off
  std::vector<std::string> defines;   // /D names, accumulated
  int error_limit = 50;               // /E
  std::string prefix = "zz";          // /F
  int halfmegs = 2;                   // /H
  std::string include_dirs;           // /I, then YCINC; ";"-separated
  int warning_level = 3;              // /L
  bool memory_locations = true;       // /M turns off
  std::string output_dir;             // /O
  bool keep_intermediate = false;     // /P
  bool timestamps = false;            // /T
  bool unaligned = false;             // /U
  int width = 72;                     // /W

  // Debugging options beyond the described ones (words beginning with "--").
  bool dump_symbols = false;          // --dump-symbols
  bool dump_tokens = false;           // --dump-tokens
  // Faster forms of the generated C, beyond the described text.
  bool noreturn_reports = false;      // --noreturn: the bounds report never returns
  bool wide_subscripts = false;       // --wide-subscripts: element offsets in size_t
  bool direct_calls = false;          // --direct-calls: returns by argument, exception as value
  bool versioned_loops = false;       // --versioned-loops: simple loops also without checks
  // For editors, debuggers and users who weigh the checks.
  bool gcc_diagnostics = false;       // --diagnostics=gcc: one "file:line: error: text" line each
  bool line_directives = false;       // --line-directives: #line before each statement's C lines
  bool report_checks = false;         // --report-checks: inserted checks per function on stdout
  // Build-tool options.
  bool depfile = false;               // --depfile: a make rule in name.d beside each name.c
  std::string depfile_path;           // --depfile=PATH: the rules of all sources in PATH
  bool run = false;                   // --run: build the translated program and run it
  bool quiet = false;                 // --quiet: no banner, no preprocess and compile lines
};

}  // namespace ycc
