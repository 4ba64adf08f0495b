// Matching of functions: a definition against its prototype, a parameter
// against its counterpart, and the equivalence of fun types.
#pragma once

#include <string>
#include <vector>

#include "decl/symbol_table.h"

namespace ycc {

// The parameters and the returns of a function, prototype or fun type.
struct FunctionLists {
  std::vector<int> params;
  std::vector<int> returns;
};
FunctionLists function_lists(const SymbolTable& symbols, int f);

// The aspect in which two parameters (or returns) differ ("type", "space
// information", "[size] information", "resize information"), or nullptr.
const char* parameter_mismatch(const SymbolTable& symbols, int a, int b, bool with_resize);

// The entry whose lists give a function's type: a definition's lists close
// with its body, so its prototype stands for it.
int function_signature(const SymbolTable& symbols, int f);

// Why two function types (fun types, functions or prototypes) differ
// ("mismatch ellipsis use", ...), or "" when they are the same: the one rule
// for assigning, comparing, initializing and calling through pointers.
std::string fun_type_mismatch(const SymbolTable& symbols, int fa, int fb);

// The messages of a definition compared with its prototype, in order.
std::vector<std::string> compare_with_prototype(const SymbolTable& symbols, int definition, int prototype);

}  // namespace ycc
