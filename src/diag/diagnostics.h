// The one message layout of the system: the preprocessor's routine (printed at
// once) and the compiler's routine (held, sorted by line, then printed), the
// run's counters, and the fatal and internal-check reports.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "common/options.h"

namespace ycc {

// Ends the preprocessing of the current file with an exception code
// (1 #error, 2 error limit, 3 illegal character, 4 other early ends).
struct PpStop {
  int code;
};

// The compiler's error limit was reached: the compile pass abandons the file.
struct CompileHalt {};

// A condition after which the run cannot go on; `report` is the complete text
// for the standard error stream. The run ends with status 1, without totals.
struct FatalError {
  std::string report;
};

// Memory ran out in the driver or the preprocessor.
struct MemoryExhausted {};

// Formats and throws the internal-check report.
[[noreturn]] void internal_check_failed(const char* condition, const char* source, int line);

#define YCC_CHECK(cond, source) \
  ((cond) ? (void)0 : ::ycc::internal_check_failed(#cond, source, __LINE__))

// Throws the fatal error of the compiler proper.
[[noreturn]] void fatal(std::string_view text);

// The names that line codes refer to: index 0 is "unknown". Lives for the run,
// so a header included by several sources keeps one index.
class FileTable {
 public:
  FileTable();
  int intern(std::string_view name);
  const std::string& name(int index) const;
  int size() const { return static_cast<int>(names_.size()); }

 private:
  std::vector<std::string> names_;
  std::unordered_map<std::string, int> index_;
};

// Where a preprocessor message stands: one entry of the preprocessor's file stack.
struct PpPlace {
  const std::string* name;
  int line;
  bool* heading_printed;
};

class Diagnostics {
 public:
  static constexpr int held_capacity = 100;

  Diagnostics(std::ostream& err, const Options& options);

  // The preprocessor's routine; `place` is null on the command line.
  // Throws PpStop{2} when a file's count reaches the error limit.
  void pp_error(std::string_view text, const PpPlace* place);

  // The compiler's routine. Throws CompileHalt at the error limit.
  void error(int line_code, std::string_view text);
  void warning(int line_code, std::string_view text, int level);
  void flush();

  // The compile pass's per-file reset: counts to 0, no heading printed yet.
  void begin_compile();
  // Adds the file's compiler counts to the run totals.
  void end_compile();

  void set_holding(bool on) { holding_ = on; }
  int width() const { return width_fallback_ ? 72 : options_.width; }
  FileTable& files() { return files_; }
  std::ostream& err() { return err_; }

  // Lays one message out: the prefix on the first line, P blanks on the others.
  std::string layout(std::string_view prefix, std::string_view text);

  int run_errors = 0;
  int run_warnings = 0;
  int pp_errors = 0;        // preprocessor errors of the current file
  int errors = 0;           // compiler errors of the current file
  int warnings = 0;         // compiler warnings of the current file

 private:
  struct Held {
    int key;
    std::string text;
  };
  void compiler_message(char type, int line_code, std::string_view text);

  std::ostream& err_;
  const Options& options_;
  bool width_fallback_ = false;  // a prefix left too little room: 72 for the rest of the run
  bool holding_ = true;
  int last_heading_ = -1;
  std::vector<Held> held_;
  FileTable files_;
};

// Sorts held messages by line key with the comb sort whose gap rules decide
// the order of messages on one line (the sort is not stable).
template <typename T, typename Key>
void comb_sort(std::vector<T>& v, Key key) {
  int n = static_cast<int>(v.size());
  int gap = n;
  bool swapped = true;
  while (gap > 1 || swapped) {
    gap = static_cast<int>(gap / 1.3);
    if (gap == 0) gap = 1;
    if (gap == 9 || gap == 10) gap = 11;
    swapped = false;
    for (int i = 0; i + gap < n; ++i) {
      if (key(v[i + gap]) < key(v[i])) {
        std::swap(v[i], v[i + gap]);
        swapped = true;
      }
    }
  }
}

}  // namespace ycc
