#include "diag/diagnostics.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ycc {
namespace {

struct LayoutCase {
  int width;
  const char* prefix;
  const char* text;
  const char* expected;
};

TEST(Layout, WrapsAtBlanksWithinTheBreakDistance) {
  // With /W 50 and a 15-character prefix a line holds 34 characters of text
  // and may end up to 13 characters early at a blank.
  const LayoutCase cases[] = {
      {50, " (12) **error: ", "short message", " (12) **error: short message\n"},
      // The blank at position 21 of the 34 copied is the earliest allowed break.
      {50, " (12) **error: ", "aaaaaaaaaaaaaaaaaaaaa bbbbbbbbbbbbbbbbbbbbbbbbbbbbb",
       " (12) **error: aaaaaaaaaaaaaaaaaaaaa\n"
       "               bbbbbbbbbbbbbbbbbbbbbbbbbbbbb\n"},
      // A blank one position earlier is too far back: the line is cut at 34.
      {50, " (12) **error: ", "aaaaaaaaaaaaaaaaaaaa bbbbbbbbbbbbbbbbbbbbbbbbbbbbbb",
       " (12) **error: aaaaaaaaaaaaaaaaaaaa bbbbbbbbbbbbb\n"
       "               bbbbbbbbbbbbbbbbb\n"},
      // A word longer than the break distance is cut in the middle (35 a line here).
      {50, " (1) warning: ", "x 0123456789012345678901234567890123456789",
       " (1) warning: x 012345678901234567890123456789012\n"
       "              3456789\n"},
      // Text of exactly one line's length is not wrapped.
      {50, " (12) **error: ", "0123456789012345678901234567890123",
       " (12) **error: 0123456789012345678901234567890123\n"},
      // The blank that ends a line is dropped; the next line starts after it.
      {72, " command line: ", "the name beginning with character '1' is not a valid identifier: '1A'",
       " command line: the name beginning with character '1' is not a valid\n"
       "               identifier: '1A'\n"},
  };
  for (const LayoutCase& c : cases) {
    Options o;
    o.width = c.width;
    std::ostringstream err;
    Diagnostics d(err, o);
    EXPECT_EQ(d.layout(c.prefix, c.text), c.expected) << c.text;
  }
}

TEST(Layout, NarrowWidthFallsBackTo72ForTheRestOfTheRun) {
  Options o;
  o.width = 50;
  std::ostringstream err;
  Diagnostics d(err, o);
  std::string prefix(31, 'p');  // leaves 19 columns: too few
  d.layout(prefix, "text");
  EXPECT_EQ(d.width(), 72);
  EXPECT_EQ(d.layout(" (1) **error: ", std::string(60, 'x')),
            " (1) **error: " + std::string(57, 'x') + "\n              xxx\n");
}

TEST(PreprocessorRoutine, CommandLineAndFileHeadings) {
  Options o;
  std::ostringstream err;
  Diagnostics d(err, o);
  d.pp_error("first", nullptr);
  d.pp_error("second", nullptr);
  std::string a = "a.yc", b = "b.h";
  bool a_heading = false, b_heading = false;
  PpPlace in_a{&a, 3, &a_heading}, in_b{&b, 7, &b_heading};
  d.pp_error("one", &in_a);
  d.pp_error("two", &in_a);
  d.pp_error("three", &in_b);
  EXPECT_EQ(err.str(),
            "\n command line: first\n command line: second\n"
            "\n (line) in 'a.yc'\n (3) **error: one\n (3) **error: two\n"
            "\n (line) in 'b.h'\n (7) **error: three\n");
  EXPECT_EQ(d.pp_errors, 5);
  EXPECT_EQ(d.run_errors, 5);
}

TEST(PreprocessorRoutine, ErrorLimitStopsTheFileButNotTheCommandLine) {
  Options o;
  o.error_limit = 2;
  std::ostringstream err;
  Diagnostics d(err, o);
  d.pp_error("a", nullptr);
  d.pp_error("b", nullptr);  // no file open: no stop
  d.pp_errors = 0;
  std::string name = "a.yc";
  bool heading = false;
  PpPlace place{&name, 1, &heading};
  d.pp_error("c", &place);
  try {
    d.pp_error("d", &place);
    FAIL() << "the second error of the file must stop it";
  } catch (const PpStop& stop) {
    EXPECT_EQ(stop.code, 2);
  }
  EXPECT_EQ(d.run_errors, 4);
}

class CompilerRoutine : public ::testing::Test {
 protected:
  CompilerRoutine() : diag(err, options) {
    diag.files().intern("a.yc");  // file 1
    diag.files().intern("b.h");   // file 2
    diag.begin_compile();
  }
  Options options;
  std::ostringstream err;
  Diagnostics diag;
};

TEST_F(CompilerRoutine, FlushSortsByLineWithOneHeadingPerFile) {
  diag.error(1000009, "nine");
  diag.warning(2000001, "in the header", 1);
  diag.error(1000002, "two");
  diag.warning(1000005, "five", 3);
  diag.flush();
  EXPECT_EQ(err.str(),
            "\n (line) in 'a.yc'\n (2) **error: two\n (5) warning: five\n (9) **error: nine\n"
            "\n (line) in 'b.h'\n (1) warning: in the header\n");
  // The heading is not repeated while the file number stays the same.
  err.str("");
  diag.error(2000003, "again");
  diag.flush();
  EXPECT_EQ(err.str(), " (3) **error: again\n");
  diag.end_compile();
  EXPECT_EQ(diag.run_errors, 3);
  EXPECT_EQ(diag.run_warnings, 2);
}

TEST_F(CompilerRoutine, CombSortGapRulesOrderEveryKey) {
  // 13 entries exercise the gaps 10 -> 11, then 8, 6, 4, 3, 2, 1.
  const int keys[] = {1000013, 1000007, 1000011, 1000001, 1000012, 1000003, 1000010,
                      1000002, 1000009, 1000005, 1000008, 1000004, 1000006};
  for (int k : keys) diag.error(k, std::to_string(k % 100));
  diag.flush();
  std::string expected = "\n (line) in 'a.yc'\n";
  for (int i = 1; i <= 13; ++i) expected += " (" + std::to_string(i) + ") **error: " + std::to_string(i) + "\n";
  EXPECT_EQ(err.str(), expected);
}

TEST_F(CompilerRoutine, HundredHeldMessagesThenDroppedButCounted) {
  options.error_limit = 200;
  for (int i = 0; i < 120; ++i) diag.error(1000001, "m");
  diag.flush();
  size_t printed = 0;
  for (size_t p = err.str().find("**error"); p != std::string::npos; p = err.str().find("**error", p + 1))
    ++printed;
  EXPECT_EQ(printed, 100u);
  EXPECT_EQ(diag.errors, 120);
}

TEST_F(CompilerRoutine, WarningLevelFiltersBeforeCounting) {
  options.warning_level = 1;
  diag.warning(1000001, "level two", 2);
  diag.warning(1000001, "level one", 1);
  diag.flush();
  EXPECT_EQ(diag.warnings, 1);
  EXPECT_EQ(err.str(), "\n (line) in 'a.yc'\n (1) warning: level one\n");
}

TEST_F(CompilerRoutine, ErrorLimitEscapes) {
  options.error_limit = 2;
  diag.warning(1000001, "w", 3);
  diag.error(1000001, "e1");
  EXPECT_THROW(diag.error(1000002, "e2"), CompileHalt);
}

TEST(InternalCheck, ReportNamesConditionSourceAndLine) {
  try {
    YCC_CHECK(1 + 1 == 3, "yc_fun");
    FAIL();
  } catch (const FatalError& f) {
    EXPECT_EQ(f.report, "Assertion failed: 1 + 1 == 3, file yc_fun, line " + std::to_string(__LINE__ - 3) + "\n");
  }
  try {
    fatal("insufficient memory");
    FAIL();
  } catch (const FatalError& f) {
    EXPECT_EQ(f.report, "\n ** fatal error:\n insufficient memory\n YARL C compiler terminated\n\n");
  }
}

}  // namespace
}  // namespace ycc
