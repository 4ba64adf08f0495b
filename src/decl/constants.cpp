#include "decl/constants.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>

#include "common/text.h"

namespace ycc {

namespace {

// Decodes the escape after a backslash at text[i]. Returns the character
// value, -1 for an unrecognized escape, 256+ for a decimal escape too large.
// `used` receives the number of characters after the backslash.
int decode_escape(std::string_view text, size_t i, size_t& used) {
  char c = i < text.size() ? text[i] : '\0';
  used = 1;
  switch (c) {
    case 'a': return 7;
    case 'b': return 8;
    case 'f': return 12;
    case 'n': return 10;
    case 'r': return 13;
    case 't': return 9;
    case 'v': return 11;
    case '\\': case '\'': case '"': return static_cast<unsigned char>(c);
  }
  if (i + 2 < text.size() && is_digit(text[i]) && is_digit(text[i + 1]) && is_digit(text[i + 2])) {
    used = 3;
    return (text[i] - '0') * 100 + (text[i + 1] - '0') * 10 + (text[i + 2] - '0');
  }
  return -1;
}

std::string octal3(int v) { return strf("%03o", v); }

bool closed(std::string_view text, char quote) {
  if (text.size() < 2 || text.back() != quote) return false;
  // The closing quote must not itself be escaped.
  size_t backslashes = 0;
  for (size_t i = text.size() - 1; i > 1 && text[i - 1] == '\\'; --i) ++backslashes;
  return backslashes % 2 == 0;
}

}  // namespace

CharacterConstant check_character_constant(std::string_view text, Diagnostics& diag, int line) {
  CharacterConstant r;
  r.c_text = std::string(text);
  auto fail = [&](const std::string& message) {
    diag.error(line, message);
    r.error = true;
    r.value = -1;
    return r;
  };
  if (text == "''") return fail("character constant is empty: ''");
  if (!closed(text, '\'')) return fail("character constant is missing a closing quote: '");
  std::string_view body = text.substr(1, text.size() - 2);
  if (body.empty()) return fail("character constant is empty: ''");
  if (body[0] == '\\') {
    size_t used;
    int v = decode_escape(body, 1, used);
    if (v < 0)
      return fail(strf("character constant has an unrecognized escape character: '%c'",
                       body.size() > 1 ? body[1] : '\\'));
    if (v > 255) return fail("character constant has a decimal escape whose value exceeds 255");
    if (1 + used != body.size()) return fail("character constant has too many characters");
    if (used == 3) r.c_text = "'\\" + octal3(v) + "'";
    r.value = static_cast<signed char>(v);
    return r;
  }
  if (body.size() > 1) return fail("character constant has too many characters");
  r.value = static_cast<signed char>(body[0]);
  return r;
}

StringConstant check_string_constant(std::string_view text, Diagnostics& diag, int line) {
  StringConstant r;
  if (text.size() >= 20003) {
    diag.error(line, strf("string constant has more than %d characters", 20000));
    r.error = true;
    r.c_text = std::string(text);
    return r;
  }
  if (!closed(text, '"')) {
    diag.error(line, "string constant is missing a closing quote: \"");
    r.error = true;
    r.c_text = std::string(text);
    return r;
  }
  std::string out = "\"";
  std::string_view body = text.substr(1, text.size() - 2);
  for (size_t i = 0; i < body.size(); ++i) {
    ++r.length;
    if (body[i] != '\\') {
      out += body[i];
      continue;
    }
    size_t used;
    int v = decode_escape(body, i + 1, used);
    if (v < 0 || v > 255) {
      if (!r.error)
        diag.error(line, v < 0 ? strf("string constant has an unrecognized escape character: '%c'",
                                      i + 1 < body.size() ? body[i + 1] : '\\')
                               : std::string("string constant has a decimal escape whose value "
                                             "exceeds 255"));
      r.error = true;
    }
    if (used == 3 && v >= 0 && v <= 255)
      out += "\\" + octal3(v);
    else
      out.append(body.substr(i, 1 + used));
    i += used;
  }
  out += '"';
  r.c_text = std::move(out);
  return r;
}

Folded Folded::literal(char kind, std::string_view text) {
  Folded f;
  f.kind = kind;
  f.text = std::string(text);
  return f;
}

Folded fold_negate(Folded a) {
  if (a.converted)
    a.value = -a.value;
  else
    a.negative = !a.negative;
  return a;
}

namespace {

Folded decimal_one() {
  Folded one = Folded::literal('d', "1");
  one.converted = true;
  one.value = 1;
  return one;
}

// Whether a value lies within long and unsigned long, the widest integral
// types (false for NaN); only such values may become integers.
bool fits_integral(double value) { return value >= -2147483648.0 && value <= 4294967295.0; }

void report_beyond_integral(double value, Diagnostics& diag, int line) {
  diag.error(line, strf("the computed integral constant '%.*g' exceeds the representation "
                        "limits of type '%s', which is the largest integral type",
                        15, value, value < 0 ? "long" : "unsigned long"));
}

// Converts an operand's text; false on overflow.
bool convert(Folded& f) {
  if (f.converted) return true;
  errno = 0;
  double v;
  if (f.kind == 'f') {
    v = std::strtod(f.text.c_str(), nullptr);
    if (errno == ERANGE && std::isinf(v)) return false;
  } else {
    unsigned long long u = std::strtoull(f.text.c_str(), nullptr, f.kind == 'x' ? 16 : 10);
    if (errno == ERANGE || u > 4294967295ULL) return false;  // unsigned long is 32 bits here
    v = static_cast<double>(u);
  }
  f.value = f.negative ? -v : v;
  f.converted = true;
  return true;
}

}  // namespace

Folded fold_binary(char op, Folded a, Folded b, Diagnostics& diag, int line) {
  for (Folded* f : {&a, &b}) {
    if (!convert(*f)) {
      diag.error(line, strf("'%c' : operand '%s' exceeds the limits of internal representation",
                            op, f->text.c_str()));
      return decimal_one();
    }
  }
  Folded r;
  r.converted = true;
  r.kind = a.kind == 'f' || b.kind == 'f' ? 'f' : (a.kind == 'x' || b.kind == 'x' ? 'x' : 'd');
  switch (op) {
    case '*': r.value = a.value * b.value; break;
    case '+': r.value = a.value + b.value; break;
    case '-': r.value = a.value - b.value; break;
    case '/':
      if (b.value == 0) {
        diag.error(line, strf("'%c' : division by zero is undefined", op));
        return decimal_one();
      }
      r.value = a.value / b.value;
      break;
    case '|': {
      double ta = std::trunc(a.value), tb = std::trunc(b.value);
      for (double t : {ta, tb}) {
        if (!fits_integral(t)) {
          report_beyond_integral(t, diag, line);
          return decimal_one();
        }
      }
      r.value = static_cast<double>(static_cast<long long>(ta) | static_cast<long long>(tb));
      break;
    }
  }
  // An integral value past the double range would become NaN in later
  // operations, which no range check catches.
  if (r.kind != 'f' && !std::isfinite(r.value)) {
    report_beyond_integral(r.value, diag, line);
    return decimal_one();
  }
  return r;
}

std::string format_constant(const Folded& c, Diagnostics& diag, int line) {
  if (!c.converted) return (c.negative ? "-" : "") + c.text;
  bool negative = c.value < 0;
  double magnitude = negative ? -c.value : c.value;
  std::string sign = negative ? "-" : "";
  if (c.kind == 'f') {
    std::string t = strf("%.*g", 15, magnitude);
    if (t.find_first_of(".eE") == std::string::npos) t += ".0";
    return sign + t;
  }
  if (!fits_integral(c.value)) {
    report_beyond_integral(c.value, diag, line);
    return "1";
  }
  unsigned long v = static_cast<unsigned long>(std::trunc(magnitude));
  return sign + (c.kind == 'x' ? strf("%#lx", v) : strf("%lu", v));
}

long long checked_size(const Folded& c, const char* subject, bool positive, Diagnostics& diag,
                       int line, bool& bad) {
  std::string text = format_constant(c, diag, line);
  bool negative = c.converted ? c.value < 0 : c.negative;
  bad = c.kind != 'd' || negative;
  if (bad) {
    std::string digits = negative ? text.substr(1) : text;
    diag.error(line, strf("the %s must be a %s decimal integer value, not %s%s", subject,
                          positive ? "positive" : "nonnegative", negative ? "-" : "",
                          digits.c_str()));
  }
  double value;
  if (c.converted) {
    value = c.value;
  } else {
    value = c.kind == 'f' ? std::strtod(c.text.c_str(), nullptr)
                          : static_cast<double>(std::strtoull(c.text.c_str(), nullptr, c.kind == 'x' ? 16 : 10));
    if (c.negative) value = -value;
  }
  double truncated = std::trunc(value);
  if (!fits_integral(truncated)) {
    // Formatting has already reported a converted integral value.
    if (!c.converted || c.kind == 'f') report_beyond_integral(truncated, diag, line);
    return 1;
  }
  return static_cast<long long>(truncated);
}

}  // namespace ycc
