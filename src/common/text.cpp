#include "common/text.h"

#include <charconv>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

namespace ycc {

namespace {

// Formats `fmt` when every conversion in it is one of %s %d %u %c %%, which
// is how generated text is composed: without the C library's general
// machinery, and with one pass over the format and no library call per
// piece. False, with `out` as it was, at any other conversion.
bool append_plain(std::string& out, const char* fmt, va_list ap) {
  const size_t start = out.size();
  char digits[24];
  for (const char* p = fmt;;) {
    const char* q = p;
    while (*q != '\0' && *q != '%') ++q;
    out.append(p, static_cast<size_t>(q - p));
    if (*q == '\0') return true;
    switch (q[1]) {
      case 's': out.append(va_arg(ap, const char*)); break;
      case 'c': out.push_back(static_cast<char>(va_arg(ap, int))); break;
      case '%': out.push_back('%'); break;
      case 'd': {
        auto r = std::to_chars(digits, digits + sizeof digits, va_arg(ap, int));
        out.append(digits, r.ptr);
        break;
      }
      case 'u': {
        auto r = std::to_chars(digits, digits + sizeof digits, va_arg(ap, unsigned));
        out.append(digits, r.ptr);
        break;
      }
      default:
        out.resize(start);
        return false;
    }
    p = q + 2;
  }
}

}  // namespace

void vappendf(std::string& out, const char* fmt, va_list ap) {
  va_list plain;
  va_copy(plain, ap);
  bool done = append_plain(out, fmt, plain);
  va_end(plain);
  if (done) return;
  va_list ap2;
  va_copy(ap2, ap);
  int n = std::vsnprintf(nullptr, 0, fmt, ap);
  if (n > 0) {
    size_t at = out.size();
    out.resize(at + static_cast<size_t>(n));
    std::vsnprintf(out.data() + at, static_cast<size_t>(n) + 1, fmt, ap2);
  }
  va_end(ap2);
}

void appendf(std::string& out, const char* fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  vappendf(out, fmt, ap);
  va_end(ap);
}

std::string concat(std::initializer_list<std::string_view> pieces) {
  size_t size = 0;
  for (std::string_view p : pieces) size += p.size();
  std::string out;
  out.reserve(size);
  for (std::string_view p : pieces) out.append(p);
  return out;
}

std::string strf(const char* fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  std::string out;
  vappendf(out, fmt, ap);
  va_end(ap);
  return out;
}

std::string system_error_text(int err) { return std::strerror(err); }

bool read_file(const std::string& name, std::string& text, int& err) {
  struct stat st;
  bool known = stat(name.c_str(), &st) == 0;
  if (known && S_ISDIR(st.st_mode)) {
    err = EISDIR;
    return false;
  }
  std::FILE* f = std::fopen(name.c_str(), "rb");
  if (!f) {
    err = errno;
    return false;
  }
  text.clear();
  // The size is a hint only: what is read counts.
  if (known && S_ISREG(st.st_mode) && st.st_size > 0) text.reserve(static_cast<size_t>(st.st_size) + 1);
  char buf[65536];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) text.append(buf, n);
  bool failed = std::ferror(f);
  err = failed ? errno : 0;
  std::fclose(f);
  return !failed;
}

}  // namespace ycc

namespace ycc {

std::string c_string_text(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  for (char c : s) {
    if (c == '\n') {
      out += "\\n";
      continue;
    }
    if (c == '\\' || c == '"') out += '\\';
    out += c;
  }
  return out;
}

}  // namespace ycc
