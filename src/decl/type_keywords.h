// The basic type keywords: their bits and which combinations they allow.
#pragma once

#include <string>

namespace ycc {

enum TypeBits : int {
  TB_CHAR = 1,
  TB_SHORT = 2,
  TB_INT = 4,
  TB_LONG = 8,
  TB_FLOAT = 16,
  TB_DOUBLE = 32,
  TB_SIGNED = 64,
  TB_UNSIGNED = 128,
};

// Whether the keyword `bit` may join the bits already present. long double
// is accepted while double long is not: the rule is one-way on purpose.
bool type_keyword_allowed(int bit, int present);

// The words of a set of bits in their fixed order ("unsigned long int").
std::string type_words(int bits);

// The keyword of one bit ("char").
const char* type_keyword(int bit);

// The bit of a type keyword token, 0 for any other token.
int keyword_bit(int tok);

}  // namespace ycc
