// Initializers: the items of "= ..." are checked against the shape and type
// of their target (dimensions, structure members, element type) before they
// are copied into the C definition.
#pragma once

#include <string>
#include <vector>

#include "decl/symbol_table.h"
#include "diag/diagnostics.h"

namespace ycc {

struct InitItem {
  char kind;          // '{' '}' 's' string 'c' character 'd' 'x' 'f' numbers 'i' identifier
  std::string text;   // as written (the sign included), for messages
  std::string c_text; // as C text (decimal escapes made octal)
  double value = 0;
  bool overflow = false;   // the number exceeds the internal representation
  char sign = 0;           // '+' or '-' written before the item
  int length = 0;          // characters of a string, an escape counting one
  int line = 0;
};

class Emitter;

// Walks the items against variable `sub`; reports through `diag`, fills in
// empty dimension sizes and the initial occurs, and returns the C text of
// the initializer (without " = ").
std::string check_initializer(SymbolTable& symbols, Diagnostics& diag, const Emitter& emit, int sub,
                              const std::vector<InitItem>& items);

}  // namespace ycc
