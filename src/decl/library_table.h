// The functions of the YARL C run-time library and the properties that change
// how their declarations and calls are translated.
#pragma once

#include <string>
#include <string_view>

namespace ycc {

struct LibraryFunction {
  char raises;          // 'y': a call may end with an exception code
  int checked_target;   // argument (from 1) the function writes characters into, or 0
  char printf_like;     // arguments checked against a printf format
  char scanf_like;      // arguments checked against a scanf format
  const char* name;
};

constexpr int library_function_count = 118;

// The row of a library function, or -1 (case-sensitive: Strcpy is no library name).
int find_library_function(std::string_view name);
const LibraryFunction& library_function(int row);

// A math function that is the C library's function of the same name with the
// same types: double, or float and long double for the f and l forms.
struct CMathForm {
  int type_bits;  // TB_DOUBLE, TB_FLOAT or TB_LONG | TB_DOUBLE
  int params;     // 1 or 2
};

// The C form of a library function, or params 0 when it has none (abs and
// div differ from C's in their undefined cases, merr has no C twin).
CMathForm c_math_form(std::string_view name);

// The C declaration of a C math form, as "double sqrt(double);".
std::string c_math_declaration(std::string_view name);

}  // namespace ycc
