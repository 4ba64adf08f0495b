// Runs the preprocessor over a text held in memory, for the unit tests.
#pragma once

#include <sstream>
#include <string>

#include "diag/diagnostics.h"
#include "preprocessor/preprocessor.h"

namespace ycc::test {

struct PpRun {
  std::string text;      // the intermediate text
  std::string messages;  // the standard error stream
  int errors = 0;
  int stop = 0;          // PpStop code, 0 when the file ran to its end
  char compile_flag = 'y';
};

inline PpRun run_pp(const std::string& source, const Options& options = Options{},
                    const std::string& name = "a.yc", char flag = 'y',
                    std::int64_t output_time = 0) {
  std::ostringstream err;
  Diagnostics diag(err, options);
  PpJob job;
  job.source_name = name;
  job.source_text = source;
  job.compile_flag = flag;
  job.output_time = output_time;
  PpRun r;
  try {
    preprocess(options, diag, job);
  } catch (const PpStop& s) {
    r.stop = s.code;
  }
  r.text = job.intermediate_text;
  r.messages = err.str();
  r.errors = diag.pp_errors;
  r.compile_flag = job.compile_flag;
  return r;
}

// The intermediate text after the opening line marker of a.yc.
inline std::string body(const PpRun& r) {
  const std::string head = "\n#line 1 \"a.yc\"\n";
  return r.text.compare(0, head.size(), head) == 0 ? r.text.substr(head.size()) : r.text;
}

}  // namespace ycc::test
