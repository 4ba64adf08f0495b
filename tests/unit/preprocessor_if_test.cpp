#include <gtest/gtest.h>

#include <set>

#include "preprocessor/if_expr.h"

namespace ycc::pp {
namespace {

using S = IfResult::Status;

struct ValueCase {
  const char* text;
  double value;
};

TEST(IfEvaluator, Values) {
  const ValueCase cases[] = {
      {"1", 1},
      {"0", 0},
      {"1 ? 2 : 3", 2},
      {"0 ? 2 : 3", 3},
      {"1 ? 0 ? 5 : 6 : 7", 6},
      {"0x10", 16},
      {"0XfF", 255},
      {"4294967295", 4294967295.0},
      {"2 + 3 * 4", 14},
      {"(2 + 3) * 4", 20},
      {"((((7))))", 7},
      {"10 - 2 - 3", 5},
      {"7 / 2", 3},
      {"0 - 7 / 2", -3},
      {"7 % 3", 1},
      {"0 - 7 % 3", -1},
      {"1 << 4", 16},
      {"256 >> 4", 16},
      {"0 - 1", -1},
      {"-1 < 0", 1},
      {"- - 3", 3},
      {"-2147483647 - 1", -2147483648.0},
      {"~0", 4294967295.0},
      {"~4294967295", 0},
      {"~-1", 0},
      {"!0", 1},
      {"!7", 0},
      {"!!7", 1},
      {"~!0", 4294967294.0},
      {"+5", 5},
      {"3 < 4", 1},
      {"3 > 4", 0},
      {"4 <= 4", 1},
      {"4 >= 5", 0},
      {"2 == 2", 1},
      {"2 != 2", 0},
      {"6 & 3", 2},
      {"6 ^ 3", 5},
      {"6 | 3", 7},
      {"0 - 1 & 255", 255},
      {"1 && 0", 0},
      {"2 && 3", 1},
      {"0 || 0", 0},
      {"0 || 9", 1},
      {"1 || 1 / 1", 1},
      {"1 + 2 == 3 && 4 > 3 ? 10 : 20", 10},
      {"10UL + 1u", 11},
      {"  5  ", 5},
  };
  for (const ValueCase& c : cases) {
    IfResult r = evaluate_if(c.text);
    EXPECT_EQ(r.status, S::ok) << c.text;
    EXPECT_EQ(r.value, c.value) << c.text;
  }
}

struct FaultCase {
  const char* text;
  S status;
  const char* reason;  // fault reason, or the invalid character as a string
};

TEST(IfEvaluator, Faults) {
  using namespace if_reason;
  const FaultCase cases[] = {
      {"FOO", S::alphabetic, nullptr},
      {"1 + x", S::alphabetic, nullptr},
      {"'a'", S::invalid_char, "'"},
      {"1 ; 2", S::invalid_char, ";"},
      {"[1]", S::invalid_char, "["},
      {"1.5", S::invalid_char, "."},
      {"4294967295 + 1", S::fault, positive_overflow},
      {"65536 * 65536", S::fault, positive_overflow},
      {"1 << 32", S::fault, positive_overflow},
      {"0 - 2147483647 - 2", S::fault, negative_overflow},
      {"-2147483647 - 2", S::fault, negative_overflow},
      {"1 / 0", S::fault, divide_by_zero},
      {"1 % (2 - 2)", S::fault, divide_by_zero},
      {"0 && 1 / 0", S::fault, divide_by_zero},
      {"4294967296", S::fault, number_too_big},
      {"0x100000000", S::fault, number_too_big},
      {"99999999999999999999999", S::fault, number_too_big},
      {"(1", S::fault, missing_right},
      {"((1) + 2", S::fault, missing_right},
      {"1)", S::fault, missing_left},
      {")(", S::fault, missing_left},
      {"1 = 2", S::fault, invalid_operator},
      {"1 +", S::fault, missing_operand},
      {"* 2", S::fault, missing_operand},
      {"1 * * 2", S::fault, missing_operand},
      {"-", S::fault, missing_operand},
      {"1 2", S::fault, malformed},
      {"", S::fault, malformed},
      {"()", S::fault, malformed},
      {"1 ? 2", S::fault, malformed},
      {"1 : 2", S::fault, malformed},
      {"1 ! 2", S::fault, malformed},
      {"0x", S::fault, malformed},
  };
  for (const FaultCase& c : cases) {
    IfResult r = evaluate_if(c.text);
    EXPECT_EQ(r.status, c.status) << c.text;
    if (c.status == S::fault) {
      EXPECT_STREQ(r.reason, c.reason) << c.text;
    } else if (c.status == S::invalid_char) {
      EXPECT_EQ(r.bad_char, c.reason[0]) << c.text;
    }
  }
}

TEST(IfEvaluator, ReasonWording) {
  EXPECT_STREQ(if_reason::negative_overflow,
               "has an operation that has a negative result that exceeds representation in type 'long'");
  EXPECT_STREQ(if_reason::number_too_big,
               "has a number that exceeds representation in type 'unsigned long'");
}

struct DefinedCase {
  const char* text;
  const char* out;  // nullptr: malformed
  int bad_use;
};

TEST(IfDefined, Replacement) {
  const std::set<std::string, std::less<>> macros = {"A", "B_2"};
  auto is_macro = [&](std::string_view n) { return macros.count(n) > 0; };
  const DefinedCase cases[] = {
      {"defined A", " 1 ", 0},
      {"defined(B_2)", " 1 ", 0},
      {"defined ( C )", " 0 ", 0},
      {"!defined A && defined C", "! 1  &&  0 ", 0},
      {"definedA", "definedA", 0},
      {"\"defined\" + 1", "\"defined\" + 1", 0},
      {"defined", nullptr, 1},
      {"defined A || defined 3", nullptr, 2},
      {"defined(A) && defined(B_2) && defined(C", nullptr, 3},
      {"defined A || defined B_2 || defined C || defined ()", nullptr, 4},
  };
  for (const DefinedCase& c : cases) {
    std::string out;
    int bad = 0;
    bool ok = replace_defined(c.text, is_macro, out, bad);
    if (c.out) {
      EXPECT_TRUE(ok) << c.text;
      EXPECT_EQ(out, c.out) << c.text;
    } else {
      EXPECT_FALSE(ok) << c.text;
      EXPECT_EQ(bad, c.bad_use) << c.text;
    }
  }
}

}  // namespace
}  // namespace ycc::pp
