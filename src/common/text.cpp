#include "common/text.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

namespace ycc {

std::string strf(const char* fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  va_list ap2;
  va_copy(ap2, ap);
  int n = std::vsnprintf(nullptr, 0, fmt, ap);
  va_end(ap);
  std::string out;
  if (n > 0) {
    out.resize(static_cast<size_t>(n));
    std::vsnprintf(out.data(), out.size() + 1, fmt, ap2);
  }
  va_end(ap2);
  return out;
}

std::string system_error_text(int err) { return std::strerror(err); }

bool read_file(const std::string& name, std::string& text, int& err) {
  struct stat st;
  if (stat(name.c_str(), &st) == 0 && S_ISDIR(st.st_mode)) {
    err = EISDIR;
    return false;
  }
  std::FILE* f = std::fopen(name.c_str(), "rb");
  if (!f) {
    err = errno;
    return false;
  }
  text.clear();
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
