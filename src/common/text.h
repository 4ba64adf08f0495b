// Small text helpers shared by every stage.
#pragma once

#include <array>
#include <bit>
#include <cstdarg>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>

namespace ycc {

// printf-style formatting into a std::string; message texts keep their C formats.
std::string strf(const char* fmt, ...) __attribute__((format(printf, 1, 2)));
// The same, appended to `out`: no string of its own.
void appendf(std::string& out, const char* fmt, ...) __attribute__((format(printf, 2, 3)));
// The pieces joined, in a block taken once: generated statements join whole
// bodies, which a chain of + would copy again at each growth.
std::string concat(std::initializer_list<std::string_view> pieces);
void vappendf(std::string& out, const char* fmt, va_list ap);

// A text as the body of a C string literal: backslashes, quotes and
// newlines escaped.
std::string c_string_text(std::string_view s);

// The system's text for an errno value.
std::string system_error_text(int err);

inline bool ends_with(std::string_view s, std::string_view tail) {
  return s.size() >= tail.size() && s.substr(s.size() - tail.size()) == tail;
}

constexpr bool is_ident_start(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}
constexpr bool is_ident_char(char c) { return is_ident_start(c) || (c >= '0' && c <= '9'); }
constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }
constexpr bool is_alpha(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
// is_ident_char as a table, for scans that pass many bytes.
inline constexpr std::array<bool, 256> ident_chars = [] {
  std::array<bool, 256> t{};
  for (int i = 0; i < 256; ++i) t[static_cast<size_t>(i)] = is_ident_char(static_cast<char>(i));
  return t;
}();

// The first byte from `p` on (before `end`) that is no space. Indentation is
// long: eight bytes at a time where the byte order allows.
inline const char* skip_spaces(const char* p, const char* end) {
  if constexpr (std::endian::native == std::endian::little) {
    while (end - p >= 8) {
      std::uint64_t w;
      std::memcpy(&w, p, 8);
      std::uint64_t x = w ^ 0x2020202020202020u;
      if (x != 0) return p + (std::countr_zero(x) >> 3);
      p += 8;
    }
  }
  while (p < end && *p == ' ') ++p;
  return p;
}

// "\" and "/" both separate directories; files are opened with "/".
inline std::string host_path(std::string name) {
  for (char& c : name)
    if (c == '\\') c = '/';
  return name;
}

// Reads a whole file; false (with errno set) when it cannot be opened or read.
bool read_file(const std::string& name, std::string& text, int& err);

}  // namespace ycc
