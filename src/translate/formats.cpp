// The format strings of the printf and scanf families, checked against the
// arguments of the call: the format must be a string constant, its
// conversions valid, their number that of the arguments (counted up to 20),
// and each argument of a type its conversion reads. Floating values are
// passed with explicit casts; scanf's targets by address.
#include "common/text.h"
#include "translate/call_site.h"
#include "translate/translator.h"

namespace ycc {

namespace {

constexpr int counted_arguments = 20;

struct Conversion {
  std::string text;   // as written, from the "%"
  char letter = 0;
  char length = 0;    // 'l', 'L' or 0
  int stars = 0;      // "*" widths and precisions: each takes an int
  bool suppressed = false;  // scanf's "%*d" reads and stores nothing
  bool valid = true;
};

// The conversion specifications of a format's text (C escapes left as written).
std::vector<Conversion> conversions(const std::string& text, bool scanf) {
  std::vector<Conversion> out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\') {
      ++i;
      continue;
    }
    if (text[i] != '%') continue;
    size_t start = i++;
    if (i < text.size() && text[i] == '%') continue;
    Conversion c;
    auto digits = [&]() {
      while (i < text.size() && is_digit(text[i])) ++i;
    };
    if (scanf) {
      if (i < text.size() && text[i] == '*') {
        c.suppressed = true;
        ++i;
      }
      digits();
    } else {
      while (i < text.size() && std::string_view("-+ #0").find(text[i]) != std::string_view::npos) ++i;
      if (i < text.size() && text[i] == '*') {
        ++c.stars;
        ++i;
      } else {
        digits();
      }
      if (i < text.size() && text[i] == '.') {
        ++i;
        if (i < text.size() && text[i] == '*') {
          ++c.stars;
          ++i;
        } else {
          digits();
        }
      }
    }
    if (i < text.size() && (text[i] == 'l' || text[i] == 'L')) c.length = text[i++];
    if (i < text.size() && std::string_view("diuxXfeEgGcs").find(text[i]) != std::string_view::npos) {
      c.letter = text[i];
    } else {
      c.valid = false;
    }
    c.text = text.substr(start, i < text.size() ? i - start + 1 : i - start);
    out.push_back(c);
    if (!c.valid) break;
  }
  return out;
}

bool integral(const Operand& a) { return a.type_bits != 0 && (a.type_bits & 48) == 0; }

// The size group of an integral type code: 1 char, 2 short, 4 int, 8 long.
int integral_size(int bits) {
  if (bits & 1) return 1;
  if (bits & 2) return 2;
  if (bits & 8) return 8;
  return 4;
}

}  // namespace

bool Translator::check_format(const CallSite& site, int args_at, int count, bool scanf) {
  int at = (site.name == "printf" || site.name == "scanf") ? 0 : 1;
  if (count <= at) return true;
  const char* head = site.head.c_str();
  std::string which = ordinal(at + 1);
  auto fail = [&](const std::string& text) {
    diag_.error(site.line, text);
    return false;
  };
  Operand& f = operand(args_at + at);
  if (!f.string_literal)
    return fail(strf("%s : this call's %s parameter must be a \"string constant\", and not a variable or expression, "
                     "so that the format string can be checked for consistency with the arguments",
                     head, which.c_str()));
  std::vector<Conversion> list = conversions(f.format, scanf);
  for (const Conversion& c : list)
    if (!c.valid)
      return fail(strf("%s : this call's %s parameter, a format string, contains an invalid conversion "
                       "specification: '%s'",
                       head, which.c_str(), c_string_text(c.text).c_str()));
  // What each argument must be, in order: 'w' an int for a "*", else the conversion.
  std::vector<const Conversion*> wants;
  for (const Conversion& c : list) {
    for (int k = 0; k < c.stars; ++k) wants.push_back(nullptr);
    if (!c.suppressed) wants.push_back(&c);
  }
  int needed = static_cast<int>(wants.size());
  bool capped = needed > counted_arguments;
  if (capped) needed = counted_arguments;
  int given = count - at - 1;
  if (capped || needed != given)
    return fail(strf("%s : this call's %s parameter, a format string, specifies%s %d argument%s, but the number of "
                     "arguments is %d",
                     head, which.c_str(), capped ? " at least (compiler limits exceeded)" : "", needed,
                     needed == 1 ? "" : "s", given));
  for (int k = 0; k < given; ++k) {
    Operand& a = operand(args_at + at + 1 + k);
    const Conversion* c = wants[static_cast<size_t>(k)];
    std::string which_arg = ordinal(k + 1);
    auto incompatible = [&]() {
      return fail(strf("%s : compared with the format string, this call's %s argument has an incompatible type", head,
                       which_arg.c_str()));
    };
    bool enumeration = a.kind == 'e' || a.kind == 'c';
    bool character_space = a.dims == 1 && (a.type_bits & 1) && a.kind == 0 && !a.casted;
    if (!c) {
      if (!(integral(a) && integral_size(a.type_bits) <= 4) && !enumeration) return incompatible();
      continue;
    }
    char letter = c->letter;
    if (scanf) {
      if (letter == 's') {
        if (!character_space) return incompatible();
        bool var = a.ref && !a.partial && symbols_[a.ref.sym()].is_var == 'y';
        if (!var)
          return fail(strf("%s : this call's %s argument must be a varspace, not a fixed-space", head,
                           which_arg.c_str()));
        a.code.rewrite_written();
        continue;
      }
      if (!a.lvalue || a.dims > 0)
        return fail(strf("%s : this call's %s argument must be an l-value (but not an occurs number)", head,
                         which_arg.c_str()));
      bool ok;
      if (letter == 'c')
        ok = integral(a) && integral_size(a.type_bits) == 1;
      else if (letter == 'f' || letter == 'e' || letter == 'E' || letter == 'g' || letter == 'G')
        ok = a.type_bits == (c->length == 'L' ? 40 : c->length == 'l' ? 32 : 16);
      else
        ok = integral(a) && integral_size(a.type_bits) == (c->length ? 8 : 4);
      if (!ok) return incompatible();
      // The library stores through the address: the target is written.
      a.code.rewrite_written();
      a.value = "&(" + a.value + ")";
      continue;
    }
    if (letter == 's') {
      if (!character_space) return incompatible();
      continue;
    }
    if (a.dims > 0 || a.kind == 's' || a.kind == 'n' || a.kind == 'd' || a.casted) return incompatible();
    if (letter == 'f' || letter == 'e' || letter == 'E' || letter == 'g' || letter == 'G') {
      bool floating = a.type_bits != 0 && (a.type_bits & 48) != 0;
      if (!floating || (c->length == 'L') != (a.type_bits == 40)) return incompatible();
      a.value = (c->length == 'L' ? "(long double)(" : "(double)(") + a.value + ")";
      continue;
    }
    bool long_value = integral(a) && integral_size(a.type_bits) == 8;
    if (!(integral(a) || enumeration) || (c->length != 0) != long_value) return incompatible();
  }
  return true;
}

}  // namespace ycc
