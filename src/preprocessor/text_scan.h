// Small scanners over finished text (directive operands, replacement lists,
// expansion results), shared by the macro, directive and #if code.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "common/text.h"

namespace ycc::pp {

inline bool is_blank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v';
}

// End of the quoted item that starts at `pos` (a quote mark preceded by an odd
// number of backslashes does not end it); the text's end when it never closes.
inline size_t skip_quoted(std::string_view s, size_t pos) {
  char q = s[pos];
  size_t i = pos + 1;
  while (i < s.size()) {
    if (s[i] == '\\') {
      i += 2;
      continue;
    }
    if (s[i] == q) return i + 1;
    ++i;
  }
  return s.size();
}

inline size_t skip_ident(std::string_view s, size_t pos) {
  while (pos < s.size() && is_ident_char(s[pos])) ++pos;
  return pos;
}

// A number with its letters, digits, points and exponent signs, so that the
// letters of 0x1F or 1e5 are never taken for names.
inline size_t skip_number(std::string_view s, size_t pos) {
  // Letters, digits and points, looked up rather than compared.
  static constexpr std::array<bool, 256> number_bytes = [] {
    std::array<bool, 256> t{};
    for (int i = 0; i < 256; ++i) t[static_cast<size_t>(i)] = is_ident_char(static_cast<char>(i)) || i == '.';
    return t;
  }();
  while (pos < s.size()) {
    char c = s[pos];
    if (number_bytes[static_cast<unsigned char>(c)]) {
      ++pos;
    } else if ((c == '+' || c == '-') && (s[pos - 1] == 'e' || s[pos - 1] == 'E')) {
      ++pos;
    } else {
      break;
    }
  }
  return pos;
}

inline size_t skip_blanks(std::string_view s, size_t pos) {
  while (pos < s.size() && is_blank(s[pos])) ++pos;
  return pos;
}

inline std::string_view trim(std::string_view s) {
  size_t b = 0, e = s.size();
  while (b < e && is_blank(s[b])) ++b;
  while (e > b && is_blank(s[e - 1])) --e;
  return s.substr(b, e - b);
}

// "1st", "2nd", "3rd", "4th", ..., "11th", "21st".
inline const char* ordinal_suffix(int n) {
  int t = n % 100;
  if (t >= 11 && t <= 13) return "th";
  switch (n % 10) {
    case 1: return "st";
    case 2: return "nd";
    case 3: return "rd";
    default: return "th";
  }
}

}  // namespace ycc::pp
