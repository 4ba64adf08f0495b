// Assembly of the output C file: header, meta record types, then the work
// text with merge markers replaced by their slots and "##" regions resolved.
#include <cerrno>
#include <cstdlib>

#include "common/output_file.h"
#include "common/text.h"
#include "output/workspace.h"

namespace ycc {

namespace {

const char header_text[] =
    "\n#define FALSE 0\n#define TRUE 1\n#include <stdio.h>\n#include <stdlib.h>\n#include <string.h>";

[[noreturn]] void output_open_failed(const std::string& name) {
  fatal(strf("unable to open file '%s' for output: %s", name.c_str(), system_error_text(errno).c_str()));
}

void write_all(std::FILE* out, std::string_view text, const std::string& name) {
  if (!text.empty() && std::fwrite(text.data(), 1, text.size(), out) != text.size())
    write_failed(name);
}

// The first line at or after `pos` (a line start) that begins with '#', or
// the end of the text.
size_t next_hash_line(std::string_view text, size_t pos) {
  for (;;) {
    if (pos >= text.size() || text[pos] == '#') return pos;
    size_t hash = text.find('#', pos + 1);
    if (hash == std::string_view::npos) return text.size();
    if (text[hash - 1] == '\n') return hash;
    pos = hash + 1;
    // Back to a line start: the rest of this line cannot matter.
    size_t nl = text.find('\n', pos);
    if (nl == std::string_view::npos) return text.size();
    pos = nl + 1;
  }
}

}  // namespace

const std::string* Workspace::merge_text(std::string_view marker) const {
  std::string number(marker.substr(7));
  char* end = nullptr;
  long n = std::strtol(number.c_str(), &end, 10);
  if (end == number.c_str() || n < 0 || n >= merge_count()) return nullptr;
  const MergeSlot& slot = merge(static_cast<int>(n));
  return slot.length() >= 1 ? slot.data : nullptr;
}

template <class Take>
void Workspace::read_spilled(Take take) {
  if (work_spilled_ == 0) return;
  if (std::fflush(work_file_) != 0) write_failed(std::string());
  std::rewind(work_file_);
  // Read in pieces; each block handed over ends at the last newline read.
  constexpr size_t chunk = 1 << 18;
  std::string buffer;
  for (size_t left = work_spilled_; left > 0;) {
    size_t kept = buffer.size();
    size_t want = std::min(chunk, left);
    buffer.resize(kept + want);
    size_t got = std::fread(buffer.data() + kept, 1, want, work_file_);
    if (got < want) fatal(strf("error reading temporary file: %s", system_error_text(errno).c_str()));
    left -= got;
    buffer.resize(kept + got);
    size_t end = buffer.size();
    if (left > 0) {
      // Only the part just read is searched: a long line stays linear.
      size_t nl = std::string_view(buffer).substr(kept).rfind('\n');
      end = nl == std::string_view::npos ? 0 : kept + nl + 1;
    }
    if (end > 0) {
      take(std::string_view(buffer).substr(0, end));
      buffer.erase(0, end);
    }
  }
  // Later writes, if any, go after the text read.
  std::fseek(work_file_, 0, SEEK_END);
}

std::string Workspace::work_text() {
  std::string all;
  read_spilled([&](std::string_view block) { all += block; });
  for (const std::string& piece : work_) all += piece;
  return all;
}

template <class Take>
void Workspace::resolve_work_text(Take take) {
  RegionFilter filter(options_.bounds_checks);
  auto resolve = [&](std::string_view block) {
    for (size_t pos = 0; pos < block.size();) {
      if (filter.idle()) {
        // Outside regions only lines that begin with '#' can be markers:
        // the lines before the next one go out as they stand.
        size_t hash = next_hash_line(block, pos);
        if (hash > pos) take(block.substr(pos, hash - pos));
        pos = hash;
        if (pos == block.size()) break;
      }
      size_t nl = block.find('\n', pos);
      size_t end = nl == std::string_view::npos ? block.size() : nl + 1;
      std::string_view line = block.substr(pos, end - pos), body = line;
      pos = end;
      if (body.ends_with('\n')) body.remove_suffix(1);
      // Merge markers come first, so one inside a dropped part is still replaced.
      if (body.starts_with("#merge ")) {
        if (const std::string* slot = merge_text(body)) take(*slot);
      } else if (filter.keep(body)) {
        take(line);
      }
    }
  };
  // The work file's text comes first; every block holds whole lines.
  read_spilled(resolve);
  for (std::string_view block : work_) resolve(block);
}

void Workspace::copy_work_text(std::FILE* out, const std::string& output_name) {
  std::string kept;  // short pieces gathered, written out in large ones
  resolve_work_text([&](std::string_view piece) {
    if (piece.size() >= (1u << 12)) {
      write_all(out, kept, output_name);
      kept.clear();
      write_all(out, piece, output_name);
      return;
    }
    kept += piece;
    if (kept.size() >= (1u << 16)) {
      write_all(out, kept, output_name);
      kept.clear();
    }
  });
  write_all(out, kept, output_name);
}

void Workspace::copy_work_text_marked(std::FILE* out, const std::string& output_name) {
  std::string kept;
  int line = output_lines_;  // lines written so far
  bool directed = false;     // the last line written was a statement's "#line"
  bool mapped = false;       // the C compiler counts lines of a YARL C file
  const std::string c_name = c_string_text(output_name);
  auto emit = [&](std::string_view body, bool newline) {
    if (body.starts_with("#check ")) {
      count_check(body.substr(7));
      return;
    }
    if (body.starts_with("#line ")) {
      directed = mapped = true;
    } else if (!directed && mapped) {
      // A line outside every statement: numbered again as a line of the C file.
      ++line;
      appendf(kept, "#line %d \"%s\"\n", line + 1, c_name.c_str());
      mapped = false;
    } else {
      directed = false;
    }
    kept += body;
    if (newline) kept += '\n';
    ++line;
  };
  // Slot texts need not end a line, so the kept text is cut into lines afresh.
  std::string partial;
  auto feed = [&](std::string_view text) {
    for (size_t pos = 0;;) {
      size_t nl = text.find('\n', pos);
      if (nl == std::string_view::npos) {
        partial.append(text.substr(pos));
        return;
      }
      if (partial.empty()) {
        emit(text.substr(pos, nl - pos), true);
      } else {
        partial.append(text.substr(pos, nl - pos));
        emit(partial, true);
        partial.clear();
      }
      pos = nl + 1;
    }
  };
  resolve_work_text([&](std::string_view piece) {
    feed(piece);
    if (kept.size() >= (1u << 16)) {
      write_all(out, kept, output_name);
      kept.clear();
    }
  });
  if (!partial.empty()) emit(partial, false);
  write_all(out, kept, output_name);
}

std::string Workspace::check_marker(char kind, int line_code, std::string_view function) const {
  if (!options_.report_checks) return std::string();
  std::string marker = strf("\n#check %c %d", kind, line_code);
  if (kind == 'f') (marker += ' ').append(function);
  return marker;
}

void Workspace::count_check(std::string_view marker) {
  // "f LINE NAME" opens a function; "s|g|e LINE" is one check in it.
  char kind = marker.empty() ? ' ' : marker[0];
  std::string_view rest = marker.size() > 2 ? marker.substr(2) : std::string_view();
  size_t blank = rest.find(' ');
  int line = std::atoi(std::string(rest.substr(0, blank)).c_str());
  if (kind == 'f') {
    std::string name = blank == std::string_view::npos ? std::string() : std::string(rest.substr(blank + 1));
    checks_.push_back({std::move(name), line, {}, {}, {}});
    return;
  }
  if (checks_.empty()) checks_.push_back({});
  FunctionChecks& f = checks_.back();
  if (kind == 's') f.subscripts.push_back(line);
  if (kind == 'g') f.growths.push_back(line);
  if (kind == 'e') f.exceptions.push_back(line);
}

void Workspace::assemble(const std::string& output_name) {
  // The file is written under a temporary name that a fatal error removes;
  // only a complete file takes the output's name.
  OutputFile file(output_name);
  if (!file.open()) output_open_failed(output_name);
  std::FILE* out = file.stream();
  output_name_ = output_name;
  checks_.clear();  // kept after the file's reset, for the driver's report
  if (diag_.errors == 0) {
    if (options_.memory_locations && generate_out_of_memory) generate_out_of_memory(*this);
    if (options_.bounds_checks && generate_bounds_exceeded) generate_bounds_exceeded(*this);
    to_deferred = to_function_exit = to_fragment = false;
    std::string functions;
    functions.swap(deferred);
    put_text('y', functions);

    output_ = out;
    put_text('n', header_text);
    for (int d = 1; d <= max_dimensions_; ++d) {
      put_text('n', strf("\nstruct %s {", names_.meta_type(d).c_str()));
      indent_in();
      put_text('y', "void *ptr;");
      if (d == 1) put_text('y', strf("%s occurs;", "unsigned"));
      for (int i = 1; i <= d; ++i) put_text('y', strf("%s limit%d;", "unsigned", i));
      indent_out();
      put_text('y', "};\n");
    }
    output_ = nullptr;
    if (options_.line_directives || options_.report_checks)
      copy_work_text_marked(out, output_name);
    else
      copy_work_text(out, output_name);
  }
  if (std::fputc('\n', out) == EOF) write_failed(output_name);
  if (!file.close()) write_failed(output_name);
  // Putting the file in place fails as its opening would, e.g. on a directory.
  if (!file.commit()) output_open_failed(output_name);
  output_name_.clear();
}

}  // namespace ycc
