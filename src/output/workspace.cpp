#include "output/workspace.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <cstring>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "common/text.h"

namespace ycc {

namespace {

const char source_name[] = "yc";

// Newlines and quotes among the sixteen bytes at `d` (or the `count` < 16
// there), as a bit per byte.
std::uint32_t breaks_in(const char* d, size_t count) {
#if defined(__SSE2__)
  if (count == 16) {
    __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d));
    __m128i hits = _mm_or_si128(_mm_cmpeq_epi8(x, _mm_set1_epi8('\n')),
                                _mm_or_si128(_mm_cmpeq_epi8(x, _mm_set1_epi8('\'')), _mm_cmpeq_epi8(x, _mm_set1_epi8('"'))));
    return static_cast<std::uint32_t>(_mm_movemask_epi8(hits));
  }
#endif
  std::uint32_t mask = 0;
  for (size_t k = 0; k < count; ++k)
    if (d[k] == '\n' || d[k] == '\'' || d[k] == '"') mask |= std::uint32_t{1} << k;
  return mask;
}

// Outside literals, a line goes out unchanged while it fits the width: the
// end of the plain stretch that begins at `i`, which is a quote, the place
// where a line reaches the width (the caller breaks it there), or the end.
// A newline exactly at the width still ends its line. `column` follows.
size_t plain_stretch(std::string_view text, size_t i, int& column, int width) {
  const char* d = text.data();
  const size_t n = text.size();
  size_t line = i;  // where the part of the current line begins
  size_t room = column < width ? static_cast<size_t>(width - column) : 0;
  auto full = [&] {
    column += static_cast<int>(room);
    return line + room;
  };
  for (size_t block = i; block < n;) {
    size_t count = std::min<size_t>(16, n - block);
    for (std::uint32_t mask = breaks_in(d + block, count); mask != 0; mask &= mask - 1) {
      size_t at = block + static_cast<size_t>(std::countr_zero(mask));
      size_t length = at - line;
      if (d[at] != '\n') {  // a quote
        if (length > room) return full();
        column += static_cast<int>(length);
        return at;
      }
      if (length > room) return full();
      column = 0;
      line = at + 1;
      room = static_cast<size_t>(width);
    }
    block += count;
    if (block - line > room) return full();
  }
  if (n - line > room) return full();
  column += static_cast<int>(n - line);
  return n;
}

}  // namespace

void write_failed(const std::string& output_name) {
  std::string why = system_error_text(errno);
  if (output_name.empty()) fatal(strf("error writing to temporary file: %s", why.c_str()));
  fatal(strf("error writing to file '%s': %s", output_name.c_str(), why.c_str()));
}

Workspace::Workspace(const Options& options, Diagnostics& diag) : options_(options), diag_(diag) {
  int code_workspace_halfmegs = options.halfmegs;
  YCC_CHECK(code_workspace_halfmegs > 0, source_name);
  merge_.reserve(merge_growth);
}

void Workspace::reset() {
  for (std::string* t : {&globals, &wd_locals, &resize_locals, &wd_init_code, &function_exit, &deferred})
    t->clear();
  to_deferred = to_function_exit = to_fragment = false;
  merge_.clear();
  blocks_.clear();
  work_.clear();
  work_held_ = work_spilled_ = 0;
  work_file_ = nullptr;
  work_memory_ = default_work_memory;
  output_name_.clear();
  output_ = nullptr;
  indent_ = column_ = 0;
  quote_ = 0;
  backslashes_ = 0;
  output_started_ = 'n';
  globals_slot_ = curr_wd_locals_ = curr_wd_init_code_ = resize_slot_ = -1;
  emitted_ = 0;
  max_dimensions_ = 0;
  output_lines_ = 0;
}

void Workspace::put_text(char newline_bgn, std::string_view text) {
  if (!(newline_bgn == 'y' || newline_bgn == 'n'))
    internal_check_failed("newline_bgn == 'y' || newline_bgn == 'n'", source_name, __LINE__);
  if (diag_.errors > 0) return;
  std::string prefix;
  if (newline_bgn == 'y') {
    prefix.assign(1, '\n');
    prefix.append(static_cast<size_t>(indent_), ' ');
    column_ = indent_;
  }
  if (to_deferred) {
    deferred += prefix;
    deferred += text;
  } else if (to_function_exit) {
    function_exit += prefix;
    function_exit += text;
  } else if (std::string* fragment = to_fragment && fragment_sink ? fragment_sink() : nullptr) {
    *fragment += prefix;
    *fragment += text;
  } else {
    write_file(prefix, text);
  }
}

void Workspace::write_file(std::string_view prefix, std::string_view text) {
  // Work text is composed in its last piece; output text in a buffer
  // written with one call: the breaking looks at every byte, the stream
  // need not.
  if (!output_ && work_.empty()) {
    work_.emplace_back();
    work_.back().reserve(work_piece + work_piece / 4);
  }
  std::string& out = output_ ? line_buffer_ : work_.back();
  if (output_) out.clear();
  const size_t written_from = out.size();
  out.reserve(out.size() + prefix.size() + text.size() + text.size() / 32 + 8);
  out.append(prefix);
  int column = column_, backslashes = backslashes_;
  char quote = quote_;
  for (size_t i = 0; i < text.size();) {
    if (quote == 0) {
      // Outside literals, whole lines that fit the width go with one append.
      size_t end = plain_stretch(text, i, column, output_width);
      if (end > i) {
        out.append(text.data() + i, end - i);
        backslashes = 0;
        i = end;
      }
      if (i == text.size()) break;
    }
    char c = text[i++];
    out.push_back(c);
    column = c == '\n' ? 0 : column + 1;
    // A literal closes at its own quote preceded by an even run of backslashes.
    bool was_open = quote != 0;
    if (!was_open) {
      if (c == '\'' || c == '"') quote = c;
    } else if (c == quote && backslashes % 2 == 0) {
      quote = 0;
    }
    backslashes = (was_open && c == '\\') ? backslashes + 1 : 0;
    // Under --line-directives a line is never broken: each C line of a
    // statement has its own directive before it.
    if (column > output_width && (c == ' ' || c == ',') && quote == 0 && !options_.line_directives) {
      out.append("\n ");
      column = 1;
    }
  }
  column_ = column;
  backslashes_ = backslashes;
  quote_ = quote;
  if (output_) {
    output_lines_ += static_cast<int>(std::count(out.begin(), out.end(), '\n'));
    if (!out.empty() && std::fwrite(out.data(), 1, out.size(), output_) != out.size()) write_failed(output_name_);
  } else if (out.size() >= work_piece) {
    // Pieces hold whole lines: a full piece is cut after the last newline
    // this call wrote (looking no further back keeps a long line linear),
    // and its unfinished last line moves on.
    size_t nl = std::string_view(out).substr(written_from).rfind('\n');
    if (nl != std::string_view::npos) next_work_piece(written_from + nl + 1);
  }
}

void Workspace::next_work_piece(size_t cut) {
  std::string& full = work_.back();
  std::string next;
  next.reserve(std::max(work_piece + work_piece / 4, full.size() - cut));
  next.append(full, cut);
  full.resize(cut);
  work_held_ += full.size();
  if (work_file_ && work_held_ >= work_memory_) {
    // Memory stays bounded: the finished pieces, in order, go to the work
    // file, whose text comes before what memory still holds.
    for (std::string& piece : work_) {
      if (!piece.empty() && std::fwrite(piece.data(), 1, piece.size(), work_file_) != piece.size())
        write_failed(std::string());
      work_spilled_ += piece.size();
    }
    work_.clear();
    work_held_ = 0;
  }
  work_.push_back(std::move(next));
}

size_t Workspace::work_size() const {
  size_t n = work_spilled_;
  for (const std::string& piece : work_) n += piece.size();
  return n;
}

void Workspace::indent_in() {
  indent_ += indent_step;
  if (indent_ > indent_limit || indent_ > output_width / 2) indent_ = 0;
}

void Workspace::indent_out() {
  indent_ -= indent_step;
  if (indent_ < 0) indent_ = 0;
}

int Workspace::new_merge_slot(const std::string* data) {
  if (merge_.size() == merge_.capacity()) merge_.reserve(merge_.size() + merge_growth);
  merge_.push_back({data, nullptr});
  return merge_count() - 1;
}

void Workspace::move_to_own(int slot) {
  MergeSlot& m = merge_[static_cast<size_t>(slot)];
  m.own = std::make_unique<std::string>(*m.data);
  m.data = m.own.get();
}

void Workspace::write_marker(int slot) {
  if (diag_.errors > 0) return;
  std::FILE* saved = output_;
  output_ = nullptr;
  write_file("", strf("\n#merge %d\n", slot));
  output_ = saved;
}

void Workspace::start_output() {
  if (output_started_ == 'y') return;
  globals.clear();
  globals_slot_ = new_merge_slot(&globals);
  output_started_ = 'y';
  write_marker(globals_slot_);
}

void Workspace::start_function() {
  if (curr_wd_locals_ >= 0) {
    bool ok = merge_[static_cast<size_t>(curr_wd_locals_)].data == &wd_locals &&
              merge_[static_cast<size_t>(curr_wd_init_code_)].data == &wd_init_code;
    if (!ok)
      internal_check_failed(
          "merge[curr_wd_locals].data == wd_locals && merge[curr_wd_init_code].data == wd_init_code",
          source_name, __LINE__);
    move_to_own(curr_wd_locals_);
    move_to_own(curr_wd_init_code_);
  }
  wd_locals.clear();
  wd_init_code.clear();
  curr_wd_locals_ = new_merge_slot(&wd_locals);
  curr_wd_init_code_ = new_merge_slot(&wd_init_code);
}

void Workspace::open_function_body() {
  YCC_CHECK(curr_wd_locals_ >= 0, source_name);
  write_marker(curr_wd_locals_);
  write_marker(curr_wd_init_code_);
}

void Workspace::start_resize_function(std::string_view header) {
  // The previous resize function's locals keep their text; the buffer is reused.
  if (resize_slot_ >= 0 && merge_[static_cast<size_t>(resize_slot_)].data == &resize_locals)
    move_to_own(resize_slot_);
  resize_locals.clear();
  resize_slot_ = new_merge_slot(&resize_locals);
  if (diag_.errors > 0) return;
  appendf(deferred, "\n\n%.*s\n{\n#merge %d\n", static_cast<int>(header.size()), header.data(),
                   resize_slot_);
}

void Workspace::push_block(int first_symbol) { blocks_.push_back({first_symbol, 'n'}); }

void Workspace::open_block_brace() {
  if (blocks_.empty() || blocks_.back().opened == 'y') return;
  blocks_.back().opened = 'y';
  put_text('n', "\n{");
}

bool Workspace::pop_block() {
  YCC_CHECK(!blocks_.empty(), source_name);
  bool opened = blocks_.back().opened == 'y';
  blocks_.pop_back();
  return opened;
}

bool RegionFilter::open(Region& r, char letter) {
  r = Region{};
  if (letter == 'a' || letter == 'm' || letter == 'd') {
    r.kind = Kind::bounds;
    r.keep_part1 = letter == 'd';
  } else if (letter == 'e' || letter == 'n' || letter == 'g') {
    r.kind = Kind::occurs;
    r.keep_lines = letter == 'g';
  } else if (letter == 'h' || letter == 'o' || letter == 'k') {
    r.kind = Kind::third;
    r.keep_part1 = letter == 'k';
  }
  return r.kind != Kind::none;
}

bool RegionFilter::keep(std::string_view line) {
  bool control = line.starts_with("##");
  char letter = line.size() > 2 ? line[2] : '\0';
  switch (outer_.kind) {
    case Kind::none:
      if (!control) return true;
      open(outer_, letter);
      return false;
    case Kind::bounds:
      if (inner_.kind == Kind::third) {
        if (control && letter == 'i') {
          inner_.part2 = true;
          return false;
        }
        if (control && letter == 'j') {
          inner_.kind = Kind::none;
          return false;
        }
        return keeps(outer_) && keeps(inner_);
      }
      if (control && letter == 'b') {
        // Without bounds checks the rest is ordinary text and "##c" unknown.
        if (bounds_checks_)
          outer_.part2 = true;
        else
          outer_.kind = Kind::none;
        return false;
      }
      if (control && letter == 'c') {
        outer_.kind = Kind::none;
        return false;
      }
      if (control && (letter == 'h' || letter == 'o' || letter == 'k')) {
        open(inner_, letter);
        return false;
      }
      return keeps(outer_);
    case Kind::occurs:
      if (control && letter == 'f') {
        outer_.kind = Kind::none;
        return false;
      }
      return keeps(outer_);
    case Kind::third:
      if (control && letter == 'i') {
        outer_.part2 = true;
        return false;
      }
      if (control && letter == 'j') {
        outer_.kind = Kind::none;
        return false;
      }
      return keeps(outer_);
  }
  return true;
}

}  // namespace ycc
