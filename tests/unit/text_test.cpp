#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <string>

#include "common/text.h"

namespace ycc {
namespace {

// The formatter composes the few conversions of generated text itself and
// leaves every other to the C library: both must give snprintf's text,
// appended to what the string already holds.
TEST(Formatting, AgreesWithTheCLibrary) {
  char expect[256];
  auto check = [&](const std::string& got) { EXPECT_EQ(got, std::string(expect)); };

  std::snprintf(expect, sizeof expect, "\nif(!(%s)) goto %s;", "a < b", "zzzz_false3");
  check(strf("\nif(!(%s)) goto %s;", "a < b", "zzzz_false3"));

  std::snprintf(expect, sizeof expect, "%d %d %u %c%%%s", INT_MIN, 0, UINT_MAX, 'q', "");
  check(strf("%d %d %u %c%%%s", INT_MIN, 0, UINT_MAX, 'q', ""));

  // Conversions it does not compose itself, after plain ones it had begun.
  std::snprintf(expect, sizeof expect, "%s=%5d|%.*s|%x|%ld", "w", 42, 3, "abcdef", 255u, 7L);
  check(strf("%s=%5d|%.*s|%x|%ld", "w", 42, 3, "abcdef", 255u, 7L));

  std::string out = "kept ";
  appendf(out, "%s %s %.2f", "one", "two", 1.5);
  EXPECT_EQ(out, "kept one two 1.50");
  appendf(out, "%s", "");
  EXPECT_EQ(out, "kept one two 1.50");
}

}  // namespace
}  // namespace ycc
