// The code workspace: the only way generated C text is produced. Text goes,
// in source order, to the work text; text that must stand earlier than
// where it becomes known (globals, a function's locals and init code,
// resize-function locals) is collected in numbered merge slots, and the work
// text carries "#merge N" marker lines where it belongs. At the end of a
// file without errors the output C file is assembled from both.
#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/names.h"
#include "common/options.h"
#include "diag/diagnostics.h"

namespace ycc {

// A failed write ends the run: to the output file `output_name`, or with
// an empty name to the temporary work file.
[[noreturn]] void write_failed(const std::string& output_name);

// A merge slot: its text is one of the workspace's slot buffers while that is
// still being filled, later a heap copy of its own.
struct MergeSlot {
  const std::string* data = nullptr;
  std::unique_ptr<std::string> own;
  size_t length() const { return data ? data->size() : 0; }
};

class Workspace {
 public:
  static constexpr int output_width = 72;
  static constexpr int indent_step = 3;
  static constexpr int indent_limit = 60;
  static constexpr int fragment_growth = 20;
  static constexpr int merge_growth = 1000;

  // Set up once per run; /H is checked but reserves nothing: texts grow as needed.
  Workspace(const Options& options, Diagnostics& diag);

  // Per file: the anonymous temporary work file, where the work text goes
  // once more than `work_memory` bytes of it are held in memory.
  void attach_work_file(std::FILE* f, size_t work_memory = default_work_memory) {
    work_file_ = f;
    work_memory_ = work_memory;
  }
  static constexpr size_t default_work_memory = size_t{16} << 20;
  // The work text written so far (what put_text wrote outside the other
  // destinations), for tests, and its length.
  std::string work_text();
  size_t work_size() const;
  // After each file: every text emptied, counts 0, flags 'n'.
  void reset();
  // The file's generated-names prefix, used in the meta record type names.
  void set_prefix(const std::string& prefix) { names_ = Names(prefix); }

  // Writes generated text (Algorithms of the writer): nothing once the file
  // has an error; newline_bgn 'y' starts a new line at the indentation.
  void put_text(char newline_bgn, std::string_view text);
  void indent_in();
  void indent_out();
  int indentation() const { return indent_; }
  int column() const { return column_; }

  // Destinations of put_text, tried in this order before the work text:
  // the deferred-functions text, the function-exit text, and, inside a
  // function body, the code of the statement being translated (what
  // `fragment_sink` gives; null there means the work text).
  bool to_deferred = false;
  bool to_function_exit = false;
  bool to_fragment = false;
  std::function<std::string*()> fragment_sink;

  // Merge slots.
  int new_merge_slot(const std::string* data);
  const MergeSlot& merge(int n) const { return merge_[static_cast<size_t>(n)]; }
  int merge_count() const { return static_cast<int>(merge_.size()); }
  // The first declaration of a file: globals slot and its marker.
  void start_output();
  bool output_started() const { return output_started_ == 'y'; }
  int globals_slot() const { return globals_slot_; }
  // After a function definition's header: the two slots of the function.
  void start_function();
  // At the opening of the function body: the markers of both slots.
  void open_function_body();
  int curr_wd_locals() const { return curr_wd_locals_; }
  int curr_wd_init_code() const { return curr_wd_init_code_; }
  // A generated resize function, opened in the deferred-functions text.
  void start_resize_function(std::string_view header);

  // Nested blocks: the brace is written with the first declaration inside.
  void push_block(int first_symbol);
  void open_block_brace();
  // Returns whether the closed block's brace had been written.
  bool pop_block();
  int block_depth() const { return static_cast<int>(blocks_.size()); }
  int block_first_symbol() const { return blocks_.empty() ? 0 : blocks_.back().first_symbol; }

  // Per-file facts the assembly and the compile pass read.
  void note_emitted() { ++emitted_; }
  bool nothing_emitted() const { return output_started_ == 'n' && emitted_ == 0; }
  void note_dimensions(int d) { max_dimensions_ = std::max(max_dimensions_, d); }

  // Generators of the support functions; they append to the deferred text.
  std::function<void(Workspace&)> generate_out_of_memory;
  std::function<void(Workspace&)> generate_bounds_exceeded;

  // Assembles the output C file; with errors it holds a single newline.
  void assemble(const std::string& output_name);

  // --report-checks: what the assembly counted per function, from the
  // "#check" marker lines that reached the output (line codes).
  struct FunctionChecks {
    std::string name;
    int line = 0;
    std::vector<int> subscripts, growths, exceptions;
  };
  const std::vector<FunctionChecks>& check_report() const { return checks_; }
  // The marker line of one check ('s' subscript, 'g' growth, 'e' exception
  // test) or, with kind 'f' and a name, of a function's start; empty
  // without --report-checks.
  std::string check_marker(char kind, int line_code, std::string_view function = {}) const;

  // The texts; slot texts are read through the merge table.
  std::string globals;
  std::string wd_locals;
  std::string resize_locals;
  std::string wd_init_code;
  std::string function_exit;
  std::string deferred;

  const Options& options() const { return options_; }
  Diagnostics& diag() { return diag_; }

 private:
  struct Block {
    int first_symbol;
    char opened;
  };
  // Writes to the work text, or while the header is written to the
  // output, with the 72-column breaking.
  void write_file(std::string_view prefix, std::string_view text);
  // Starts a new piece of the work text with the last piece's text from
  // `cut` on; past the memory bound the finished pieces go to the work file.
  void next_work_piece(size_t cut);
  // Hands each block of whole lines of the work file's text to `take`.
  template <class Take>
  void read_spilled(Take take);
  void write_marker(int slot);
  // Walks the work text, handing `take` each text that reaches the output in
  // order: runs of kept lines, and the texts of merge slots in place of
  // their markers ("##" regions resolved).
  template <class Take>
  void resolve_work_text(Take take);
  void copy_work_text(std::FILE* out, const std::string& output_name);
  // The copy for --line-directives and --report-checks: also numbers the
  // output lines, maps the lines outside statements back to the C file and
  // counts and drops "#check" lines.
  void copy_work_text_marked(std::FILE* out, const std::string& output_name);
  void move_to_own(int slot);
  // The text of the slot a "#merge N" line names; null when it has none.
  const std::string* merge_text(std::string_view marker) const;
  void count_check(std::string_view marker);

  const Options& options_;
  Diagnostics& diag_;
  // The work text: whole lines in pieces of about `work_piece` bytes, so
  // that it grows without copying what it holds.
  static constexpr size_t work_piece = 1 << 18;
  std::vector<std::string> work_;
  size_t work_held_ = 0;     // bytes of the finished pieces in memory
  std::FILE* work_file_ = nullptr;
  size_t work_memory_ = default_work_memory;
  size_t work_spilled_ = 0;  // bytes of work text in the work file, which come first
  std::FILE* output_ = nullptr;  // set while the header goes straight to the output
  std::string output_name_;    // set while the output file is written
  Names names_{"zz"};
  int indent_ = 0;
  int column_ = 0;
  char quote_ = 0;  // open quote character, 0 outside literals
  std::string line_buffer_;  // what one write composes
  int backslashes_ = 0;
  std::vector<MergeSlot> merge_;
  char output_started_ = 'n';
  int globals_slot_ = -1;
  int curr_wd_locals_ = -1;
  int curr_wd_init_code_ = -1;
  int resize_slot_ = -1;
  std::vector<Block> blocks_;
  int emitted_ = 0;
  int max_dimensions_ = 0;
  int output_lines_ = 0;  // newlines written to the output before the work text
  std::vector<FunctionChecks> checks_;
};

// The conditional-region filter of the assembly: decides line by line which
// lines of the work text reach the output. Control lines start with "##".
// One region is open at a time, except that the read checks inside a
// bounds region may hold a third-kind region of their own (the limit and
// occurs tests of a one-subscript reference): its lines are kept only when
// both regions keep them, and its control lines are never written.
class RegionFilter {
 public:
  explicit RegionFilter(bool bounds_checks) : bounds_checks_(bounds_checks) {}
  // Whether the line (without its newline) is written.
  bool keep(std::string_view line);
  // No region is open: every line but a control line is written.
  bool idle() const { return outer_.kind == Kind::none; }

 private:
  enum class Kind { none, bounds, occurs, third };
  struct Region {
    Kind kind = Kind::none;
    bool part2 = false;
    bool keep_part1 = false;  // bounds and third kinds: which part is kept
    bool keep_lines = false;  // occurs kind
  };
  // Opens a region for the letter; false when the letter opens none.
  static bool open(Region& r, char letter);
  // Whether a text line inside an open region is kept.
  static bool keeps(const Region& r) {
    return r.kind == Kind::occurs ? r.keep_lines : r.part2 != r.keep_part1;
  }
  Region outer_;
  Region inner_;  // a third-kind region inside a bounds region
  bool bounds_checks_;
};

}  // namespace ycc
