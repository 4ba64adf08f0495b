#include "decl/library_table.h"

#include <algorithm>
#include <array>

#include "decl/type_keywords.h"

namespace ycc {

namespace {

// The functions of the run-time library, in strictly ascending byte order:
// raises, checked target, printf-like, scanf-like, name.
const LibraryFunction table[library_function_count] = {
    {'n', 0, 'n', 'n', "abs"},
    {'n', 0, 'n', 'n', "acos"},
    {'n', 0, 'n', 'n', "acosf"},
    {'n', 0, 'n', 'n', "acosl"},
    {'n', 0, 'n', 'n', "asin"},
    {'n', 0, 'n', 'n', "asinf"},
    {'n', 0, 'n', 'n', "asinl"},
    {'n', 0, 'n', 'n', "atan"},
    {'n', 0, 'n', 'n', "atan2"},
    {'n', 0, 'n', 'n', "atan2f"},
    {'n', 0, 'n', 'n', "atan2l"},
    {'n', 0, 'n', 'n', "atanf"},
    {'n', 0, 'n', 'n', "atanl"},
    {'n', 0, 'n', 'n', "bsearch"},
    {'n', 0, 'n', 'n', "ceil"},
    {'n', 0, 'n', 'n', "ceilf"},
    {'n', 0, 'n', 'n', "ceill"},
    {'n', 0, 'n', 'n', "clock"},
    {'n', 0, 'n', 'n', "cos"},
    {'n', 0, 'n', 'n', "cosf"},
    {'n', 0, 'n', 'n', "cosl"},
    {'y', 0, 'n', 'n', "ctime"},
    {'n', 0, 'n', 'n', "difftime"},
    {'n', 0, 'n', 'n', "div"},
    {'n', 0, 'n', 'n', "exit"},
    {'n', 0, 'n', 'n', "exp"},
    {'n', 0, 'n', 'n', "expf"},
    {'n', 0, 'n', 'n', "expl"},
    {'n', 0, 'n', 'n', "fabs"},
    {'n', 0, 'n', 'n', "fabsf"},
    {'n', 0, 'n', 'n', "fabsl"},
    {'n', 0, 'n', 'n', "fclose"},
    {'y', 0, 'n', 'n', "fgetall"},
    {'n', 0, 'n', 'n', "fgetc"},
    {'y', 1, 'n', 'n', "fgets"},
    {'n', 0, 'n', 'n', "floor"},
    {'n', 0, 'n', 'n', "floorf"},
    {'n', 0, 'n', 'n', "floorl"},
    {'n', 0, 'n', 'n', "fmod"},
    {'n', 0, 'n', 'n', "fmodf"},
    {'n', 0, 'n', 'n', "fmodl"},
    {'y', 0, 'n', 'n', "fopen"},
    {'y', 0, 'y', 'n', "fprintf"},
    {'n', 0, 'n', 'n', "fputall"},
    {'n', 0, 'n', 'n', "fputc"},
    {'n', 0, 'n', 'n', "fputs"},
    {'y', 1, 'n', 'n', "fread"},
    {'y', 0, 'n', 'y', "fscanf"},
    {'n', 0, 'n', 'n', "fseek"},
    {'n', 0, 'n', 'n', "ftell"},
    {'n', 0, 'n', 'n', "fwrite"},
    {'y', 0, 'n', 'n', "getenv"},
    {'n', 0, 'n', 'n', "gmtime"},
    {'n', 0, 'n', 'n', "isalnum"},
    {'n', 0, 'n', 'n', "isalpha"},
    {'n', 0, 'n', 'n', "isdigit"},
    {'n', 0, 'n', 'n', "islower"},
    {'n', 0, 'n', 'n', "isspace"},
    {'n', 0, 'n', 'n', "isupper"},
    {'n', 0, 'n', 'n', "labs"},
    {'n', 0, 'n', 'n', "ldiv"},
    {'n', 0, 'n', 'n', "localtime"},
    {'n', 0, 'n', 'n', "log"},
    {'n', 0, 'n', 'n', "log10"},
    {'n', 0, 'n', 'n', "log10f"},
    {'n', 0, 'n', 'n', "log10l"},
    {'n', 0, 'n', 'n', "logf"},
    {'n', 0, 'n', 'n', "logl"},
    {'n', 0, 'n', 'n', "main"},
    {'n', 0, 'n', 'n', "merr"},
    {'n', 0, 'n', 'n', "merrf"},
    {'n', 0, 'n', 'n', "merrl"},
    {'n', 0, 'n', 'n', "mktime"},
    {'n', 0, 'n', 'n', "pow"},
    {'n', 0, 'n', 'n', "powf"},
    {'n', 0, 'n', 'n', "powl"},
    {'y', 0, 'y', 'n', "printf"},
    {'y', 0, 'n', 'n', "qsort"},
    {'n', 0, 'n', 'n', "rand"},
    {'y', 0, 'n', 'n', "remove"},
    {'y', 0, 'n', 'n', "rename"},
    {'y', 0, 'n', 'y', "scanf"},
    {'n', 0, 'n', 'n', "sin"},
    {'n', 0, 'n', 'n', "sinf"},
    {'n', 0, 'n', 'n', "sinl"},
    {'y', 1, 'y', 'n', "sprintf"},
    {'n', 0, 'n', 'n', "sqrt"},
    {'n', 0, 'n', 'n', "sqrtf"},
    {'n', 0, 'n', 'n', "sqrtl"},
    {'y', 0, 'n', 'y', "sscanf"},
    {'y', 1, 'n', 'n', "strcat"},
    {'n', 0, 'n', 'n', "strcmp"},
    {'y', 1, 'n', 'n', "strcpy"},
    {'y', 0, 'n', 'n', "strerror"},
    {'y', 0, 'n', 'n', "stresc"},
    {'n', 0, 'n', 'n', "strfnd"},
    {'n', 0, 'n', 'n', "strfndr"},
    {'y', 0, 'n', 'n', "strftime"},
    {'y', 0, 'n', 'n', "strkey"},
    {'n', 0, 'n', 'n', "strkfnd"},
    {'y', 0, 'n', 'n', "strkmap"},
    {'n', 0, 'n', 'n', "strknew"},
    {'n', 0, 'n', 'n', "strncmp"},
    {'y', 0, 'n', 'n', "strpart"},
    {'y', 0, 'n', 'n', "strreg"},
    {'y', 1, 'n', 'n', "strrpl"},
    {'y', 0, 'n', 'n', "strtod"},
    {'y', 0, 'n', 'n', "strtol"},
    {'y', 0, 'n', 'n', "strtoul"},
    {'y', 0, 'n', 'n', "system"},
    {'n', 0, 'n', 'n', "tan"},
    {'n', 0, 'n', 'n', "tanf"},
    {'n', 0, 'n', 'n', "tanl"},
    {'n', 0, 'n', 'n', "time"},
    {'n', 0, 'n', 'n', "tmpfile"},
    {'y', 0, 'n', 'n', "tmpnam"},
    {'n', 0, 'n', 'n', "tolower"},
    {'n', 0, 'n', 'n', "toupper"},
};

// Byte comparison with characters taken as signed, as the table was sorted.
int compare(std::string_view a, const char* b) {
  size_t i = 0;
  for (;; ++i) {
    signed char x = i < a.size() ? static_cast<signed char>(a[i]) : 0;
    signed char y = static_cast<signed char>(b[i]);
    if (x != y) return x < y ? -1 : 1;
    if (x == 0) return i < a.size() ? 1 : 0;  // an embedded NUL sorts after the row's end
  }
}

}  // namespace

int find_library_function(std::string_view name) {
  int lower = 0, upper = library_function_count - 1, row = 58;
  for (;;) {
    int c = compare(name, table[row].name);
    if (c == 0) return row;
    if (c < 0) {  // the row's name is greater
      if (row == lower) return -1;
      upper = row - 1;
      row = upper - (upper - lower) / 2;
    } else {
      if (row == upper) return -1;
      lower = row + 1;
      row = lower + (upper - lower) / 2;
    }
  }
}

const LibraryFunction& library_function(int row) { return table[row]; }

CMathForm c_math_form(std::string_view name) {
  static constexpr std::array<std::string_view, 13> one{"acos", "asin", "atan",  "ceil", "cos", "exp", "fabs",
                                                         "floor", "log", "log10", "sin",  "sqrt", "tan"};
  static constexpr std::array<std::string_view, 3> two{"atan2", "fmod", "pow"};
  auto form = [&](std::string_view base, int bits) -> CMathForm {
    if (std::find(one.begin(), one.end(), base) != one.end()) return {bits, 1};
    if (std::find(two.begin(), two.end(), base) != two.end()) return {bits, 2};
    return {0, 0};
  };
  CMathForm f = form(name, TB_DOUBLE);
  if (f.params || name.empty()) return f;
  std::string_view base = name.substr(0, name.size() - 1);
  if (name.back() == 'f') return form(base, TB_FLOAT);
  if (name.back() == 'l') return form(base, TB_LONG | TB_DOUBLE);
  return f;
}

std::string c_math_declaration(std::string_view name) {
  CMathForm f = c_math_form(name);
  if (!f.params) return {};
  std::string type = f.type_bits == TB_FLOAT ? "float" : f.type_bits == TB_DOUBLE ? "double" : "long double";
  std::string d = type + " " + std::string(name) + "(" + type;
  if (f.params == 2) d += ", " + type;
  return d + ");";
}

}  // namespace ycc
