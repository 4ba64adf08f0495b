// The functions of the YARL C run-time library and the properties that change
// how their declarations and calls are translated.
#pragma once

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

}  // namespace ycc
