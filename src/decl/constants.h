// Literal constants: character and string checks with YARL C's escapes (a
// three-digit escape is decimal and is rewritten to C's octal form), and the
// compile-time arithmetic of constant expressions.
#pragma once

#include <string>
#include <string_view>

#include "diag/diagnostics.h"

namespace ycc {

struct CharacterConstant {
  bool error = false;
  int value = -1;       // the character as a signed char; -1 when invalid
  std::string c_text;   // the constant as C text (decimal escapes made octal)
};

struct StringConstant {
  bool error = false;
  std::string c_text;   // quotes included, decimal escapes made octal
  int length = 0;       // characters between the quotes, an escape counting one
};

// Both take the token text with its quotes and report at `line`.
CharacterConstant check_character_constant(std::string_view text, Diagnostics& diag, int line);
StringConstant check_string_constant(std::string_view text, Diagnostics& diag, int line);

// A constant of a constant expression: its text as written until an operation
// converts it to a value.
struct Folded {
  char kind = 'd';         // 'd' decimal, 'x' hexadecimal, 'f' floating
  bool converted = false;
  bool negative = false;   // a pending sign while not converted
  std::string text;        // the digits as written
  double value = 0;

  static Folded literal(char kind, std::string_view text);
};

// Unary minus.
Folded fold_negate(Folded a);
// One of * / + - | on two constants; faults report at `line` and give 1.
Folded fold_binary(char op, Folded a, Folded b, Diagnostics& diag, int line);
// The constant as C text; an integral value beyond the largest type is reported.
std::string format_constant(const Folded& c, Diagnostics& diag, int line);
// The value of a dimension size ("dimension size", positive) or resize number
// or percent ("resize number"/"resize percent", nonnegative); `bad` is set
// when the constant is hexadecimal, floating or negative (the value is still used).
// A value beyond long and unsigned long is reported and becomes 1.
long long checked_size(const Folded& c, const char* subject, bool positive, Diagnostics& diag,
                       int line, bool& bad);

}  // namespace ycc
