#include "diag/diagnostics.h"

#include "common/text.h"

namespace ycc {

void internal_check_failed(const char* condition, const char* source, int line) {
  throw FatalError{strf("Assertion failed: %s, file %s, line %d\n", condition, source, line)};
}

void fatal(std::string_view text) {
  std::string t(text);
  throw FatalError{strf("\n ** fatal error:\n %s\n YARL C compiler terminated\n\n", t.c_str())};
}

FileTable::FileTable() { intern("unknown"); }

int FileTable::intern(std::string_view name) {
  auto it = index_.find(std::string(name));
  if (it != index_.end()) return it->second;
  int i = static_cast<int>(names_.size());
  names_.emplace_back(name);
  index_.emplace(names_.back(), i);
  return i;
}

const std::string& FileTable::name(int index) const {
  static const std::string none;
  return index >= 0 && index < size() ? names_[static_cast<size_t>(index)] : none;
}

Diagnostics::Diagnostics(std::ostream& err, const Options& options)
    : err_(err), options_(options) {}

std::string Diagnostics::layout(std::string_view prefix, std::string_view text) {
  int p = static_cast<int>(prefix.size());
  if (width() - p < 20) width_fallback_ = true;
  // A: characters of text per line; B: how far back a line may end at a blank.
  int a = width() - p - 1;
  if (a < 1) a = 1;  // only for prefixes wider than the fallback width
  int b = static_cast<int>(a * 0.4);
  std::string out;
  std::string blanks(static_cast<size_t>(p), ' ');
  size_t pos = 0;
  bool first = true;
  do {
    out += first ? prefix : std::string_view(blanks);
    first = false;
    size_t take = std::min(static_cast<size_t>(a), text.size() - pos);
    size_t next = pos + take;
    if (next < text.size()) {
      for (int back = 0; back < b; ++back) {
        size_t j = take - 1 - static_cast<size_t>(back);
        if (j == 0) break;
        if (text[pos + j] == ' ') {
          take = j;
          next = pos + j + 1;
          break;
        }
      }
    }
    out.append(text.substr(pos, take));
    out += '\n';
    pos = next;
  } while (pos < text.size());
  return out;
}

void Diagnostics::pp_error(std::string_view text, const PpPlace* place) {
  if (options_.gcc_diagnostics) {
    err_ << (place ? strf("%s:%d: error: ", place->name->c_str(), place->line) : std::string("ycc: error: ")) << text
         << '\n';
  } else if (!place) {
    if (pp_errors == 0) err_ << '\n';
    err_ << layout(" command line: ", text);
  } else {
    if (!*place->heading_printed) {
      err_ << "\n (line) in '" << *place->name << "'\n";
      *place->heading_printed = true;
    }
    err_ << layout(strf(" (%d) **error: ", place->line), text);
  }
  ++pp_errors;
  ++run_errors;
  if (place && pp_errors >= options_.error_limit) throw PpStop{2};
}

void Diagnostics::error(int line_code, std::string_view text) { compiler_message('e', line_code, text); }

void Diagnostics::warning(int line_code, std::string_view text, int level) {
  if (options_.warning_level >= level) compiler_message('w', line_code, text);
}

void Diagnostics::compiler_message(char type, int line_code, std::string_view text) {
  YCC_CHECK(type == 'e' || type == 'w', "yc");
  if (type == 'e')
    ++errors;
  else
    ++warnings;
  if (static_cast<int>(held_.size()) >= held_capacity) return;
  if (options_.gcc_diagnostics) {
    // One line that editors parse: the file's name instead of a heading, no wrapping.
    std::string line = strf("%s:%d: %s: ", files_.name(line_code / 1000000).c_str(), line_code % 1000000,
                            type == 'e' ? "error" : "warning");
    line.append(text);
    line += '\n';
    held_.push_back({line_code, std::move(line)});
  } else {
    std::string prefix = strf(" (%d) %s: ", line_code % 1000000, type == 'e' ? "**error" : "warning");
    held_.push_back({line_code, layout(prefix, text)});
  }
  if (!holding_) flush();
  if (errors >= options_.error_limit) throw CompileHalt{};
}

void Diagnostics::flush() {
  comb_sort(held_, [](const Held& h) { return h.key; });
  for (const Held& h : held_) {
    int file = h.key / 1000000;
    if (file != last_heading_ && !options_.gcc_diagnostics) {
      err_ << "\n (line) in '" << files_.name(file) << "'\n";
      last_heading_ = file;
    }
    err_ << h.text;
  }
  held_.clear();
  err_.flush();
}

void Diagnostics::begin_compile() {
  errors = 0;
  warnings = 0;
  last_heading_ = -1;
  held_.clear();
}

void Diagnostics::end_compile() {
  run_errors += errors;
  run_warnings += warnings;
}

}  // namespace ycc
