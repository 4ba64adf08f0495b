#include "decl/type_keywords.h"

#include "front/token.h"

namespace ycc {

namespace {

struct KeywordRule {
  int bit;
  const char* word;
  int may_join;  // the bits this keyword may be added to
};

const KeywordRule rules[] = {
    {TB_CHAR, "char", TB_SIGNED | TB_UNSIGNED},
    {TB_SHORT, "short", TB_INT | TB_SIGNED | TB_UNSIGNED},
    {TB_INT, "int", TB_SHORT | TB_LONG | TB_SIGNED | TB_UNSIGNED},
    {TB_LONG, "long", TB_INT | TB_SIGNED | TB_UNSIGNED},
    {TB_FLOAT, "float", 0},
    {TB_DOUBLE, "double", TB_LONG},
    {TB_SIGNED, "signed", TB_CHAR | TB_SHORT | TB_INT | TB_LONG},
    {TB_UNSIGNED, "unsigned", TB_CHAR | TB_SHORT | TB_INT | TB_LONG},
};

// The order in which messages show the words of a set of bits.
const int word_order[] = {TB_SIGNED, TB_UNSIGNED, TB_SHORT, TB_LONG,
                          TB_CHAR,   TB_INT,      TB_FLOAT, TB_DOUBLE};

}  // namespace

bool type_keyword_allowed(int bit, int present) {
  for (const KeywordRule& r : rules)
    if (r.bit == bit) return (present & ~r.may_join) == 0;
  return false;
}

const char* type_keyword(int bit) {
  for (const KeywordRule& r : rules)
    if (r.bit == bit) return r.word;
  return "";
}

std::string type_words(int bits) {
  std::string out;
  for (int bit : word_order) {
    if (!(bits & bit)) continue;
    out += type_keyword(bit);
    out += ' ';
  }
  if (!out.empty()) out.pop_back();
  return out;
}

int keyword_bit(int tok) {
  switch (tok) {
    case T_CHAR: return TB_CHAR;
    case T_SHORT: return TB_SHORT;
    case T_INT: return TB_INT;
    case T_LONG: return TB_LONG;
    case T_FLOAT: return TB_FLOAT;
    case T_DOUBLE: return TB_DOUBLE;
    case T_SIGNED: return TB_SIGNED;
    case T_UNSIGNED: return TB_UNSIGNED;
  }
  return 0;
}

}  // namespace ycc
