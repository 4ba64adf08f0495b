// The preprocessor's state for one source file: the file stack, the
// conditional stacks, the macro table and the intermediate text.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "preprocessor/include_search.h"
#include "preprocessor/macros.h"
#include "preprocessor/preprocessor.h"
#include "preprocessor/reader.h"

namespace ycc::pp {

// One open #if, #ifdef or #ifndef.
struct Cond {
  char kind;          // 'i', 'd' or 'n'
  bool else_seen;
  bool taken;         // one of its groups was selected
  bool selected;      // its current group is selected
  bool outer_active;  // every enclosing group is selected
  int line;
};

struct FileEntry {
  FileEntry(std::string n, std::string t, bool ext, Reader::Report report)
      : name(std::move(n)), text(std::move(t)), reader(text, std::move(report)), is_extern(ext) {}
  std::string name;
  std::string text;
  Reader reader;
  bool heading = false;
  bool is_extern;
  bool first_token = true;
  int errors_at_open = 0;
  // An invocation ran to the end of this file: later function-like names are
  // copied, so that a file of open invocations is not read to its end again and again.
  bool no_calls = false;
  std::vector<Cond> conds;

  bool active() const {
    return conds.empty() || (conds.back().outer_active && conds.back().selected);
  }
};

// The intermediate text, built in one buffer. Line ends are written lazily,
// before the next token, so that the ones at the end of a file can be dropped.
class Writer {
 public:
  std::string out;
  int pending_newlines = 0;

  // One token with its blanks. A string literal right after another (only
  // blanks and line ends between) is joined to it; the blanks and line ends
  // between them follow the joined literal.
  void token(std::string_view text, int blanks, bool is_string);
  // An expansion result: its string literals take part in joining.
  void expansion(std::string_view text, int blanks);
  // A #line or #pragma line, at the place of its directive.
  void directive_line(std::string_view text);
  // Text outside the token stream (line markers, file ends).
  // Ordinary tokens with their blanks, copied as they stand.
  void plain(std::string_view text);
  void raw(std::string_view text);

 private:
  void flush_held();
  std::string held_;  // blanks and line ends after an open string literal
  bool string_open_ = false;
};

class Preprocessor {
 public:
  Preprocessor(const Options& options, Diagnostics& diag, PpJob& job);
  void run();

  MacroTable& macros() { return table_; }
  Writer& writer() { return writer_; }

 private:
  FileEntry& top() { return *files_.back(); }
  void report(int line, const std::string& text);
  void push_file(std::string name, std::string text, bool is_extern);
  void end_of_file();
  void write_intermediate();
  void ordinary_token(const Token& tok);
  void invocation(Macro& m, const Token& name_tok);

  // Directives (directives.cpp).
  void directive(const Token& hash);
  std::string rest_of_line(bool checked);
  void conditional(const std::string& name, const std::string& rest, int line);
  bool evaluate(const char* directive, const std::string& rest);
  void define(const std::string& rest);
  void undef(const std::string& rest);
  void include(const std::string& rest);
  void line_directive(const std::string& rest);
  void error_directive(const std::string& rest);
  void extra_text(std::string_view rest);

  const Options& options_;
  Diagnostics& diag_;
  PpJob& job_;
  MacroTable table_;
  Expander expander_;
  Writer writer_;
  SearchPath search_;
  std::vector<std::unique_ptr<FileEntry>> files_;
  int extern_depth_ = 0;
  int cur_line_ = 1;
  std::unordered_set<std::string> includes_seen_;
};

// The first token of a text (a name, number, quoted item or one character).
std::string_view first_token(std::string_view text);

}  // namespace ycc::pp
