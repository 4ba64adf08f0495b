#include "decl/type_keywords.h"

#include <gtest/gtest.h>

#include <vector>

namespace ycc {
namespace {

// Adds keywords in order; true when every one was allowed.
bool accepted(const std::vector<int>& words) {
  int present = 0;
  for (int w : words) {
    if (present && !type_keyword_allowed(w, present)) return false;
    present |= w;
  }
  return true;
}

TEST(TypeKeywords, Combinations) {
  const int U = TB_UNSIGNED, S = TB_SIGNED, L = TB_LONG, I = TB_INT, C = TB_CHAR, Sh = TB_SHORT,
            D = TB_DOUBLE, F = TB_FLOAT;
  struct Case {
    std::vector<int> words;
    bool ok;
  } cases[] = {
      {{U, L, I}, true}, {{U, I, L}, true}, {{L, U, I}, true}, {{L, I, U}, true},
      {{I, U, L}, true}, {{I, L, U}, true}, {{L, D}, true},    {{D, L}, false},
      {{I, I}, false},   {{S, U, C}, false}, {{Sh, L}, false}, {{L, L}, false},
      {{S, C}, true},    {{C, U}, true},     {{F, D}, false},  {{D, F}, false},
      {{Sh, I, S}, true}, {{F, U}, false},   {{U, D}, false},
  };
  for (const Case& c : cases) EXPECT_EQ(accepted(c.words), c.ok) << type_words([&] {
      int b = 0;
      for (int w : c.words) b |= w;
      return b;
    }());
}

TEST(TypeKeywords, WordsInTheirFixedOrder) {
  EXPECT_EQ(type_words(TB_INT | TB_LONG | TB_UNSIGNED), "unsigned long int");
  EXPECT_EQ(type_words(TB_CHAR | TB_SIGNED), "signed char");
  EXPECT_EQ(type_words(TB_DOUBLE | TB_LONG), "long double");
  EXPECT_EQ(type_words(TB_SHORT | TB_INT), "short int");
  EXPECT_EQ(type_words(0), "");
}

}  // namespace
}  // namespace ycc
