// What the checks and the text of one call know about it.
#pragma once

#include <string>

namespace ycc {

struct CallSite {
  std::string head;        // "call 'f'" or "call using '(*x)' notation"
  std::string reference;   // "the prototype" or "the function-pointer type"
  std::string possessive;  // "prototype's" or "function pointer's"
  int signature = 0;       // the prototype or fun type whose lists apply
  int library = -1;        // the library row, or -1
  std::string name;        // the callee's name as written
  int line = 0;
};

// "1st", "2nd", "3rd", "4th", "11th", "21st".
std::string ordinal(int n);

}  // namespace ycc
