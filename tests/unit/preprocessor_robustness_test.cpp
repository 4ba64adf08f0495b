// Hostile inputs: each must end, with the expected messages, in linear time.
#include <gtest/gtest.h>

#include <string>

#include "common/text.h"
#include "preprocessor_test_util.h"

namespace ycc {
namespace {

using test::body;
using test::run_pp;

TEST(Robustness, MutuallyRecursiveMacros) {
  test::PpRun r = run_pp("#define a b(a)\n#define b(x) c x a\n#define c a b(c)\na c\n");
  EXPECT_EQ(r.messages, "");
  EXPECT_EQ(r.stop, 0);
  EXPECT_FALSE(body(r).empty());
}

TEST(Robustness, ManyOpenInvocations) {
  std::string src = "#define f(x) x\n";
  for (int i = 0; i < 100000; ++i) src += "f(";
  src += "\n";
  test::PpRun r = run_pp(src);
  EXPECT_EQ(r.errors, 1);
  test::PpRun r2 = run_pp("#define f(x) x\n#if " + src.substr(15));
  // The open list, the names left in the expression, the missing #endif.
  EXPECT_EQ(r2.errors, 3);
}

TEST(Robustness, HundredThousandArguments) {
  std::string params, args;
  for (int i = 0; i < 100000; ++i) {
    params += (i ? ",p" : "p") + std::to_string(i);
    args += (i ? "," : "") + std::to_string(i);
  }
  test::PpRun r = run_pp("#define g(" + params + ") p99999 p0\ng(" + args + ")\n#define f(x) x\nf(" +
                         args + ")\n");
  EXPECT_EQ(body(r).substr(0, 10), "\n99999 0\n\n");
  EXPECT_EQ(r.errors, 1);  // f: too many arguments, at its second comma
}

TEST(Robustness, TenMegabyteLine) {
  std::string src = "#define ONE 1\nint x = ";
  for (int i = 0; i < 2500000; ++i) src += "ONE+";
  src += "0;\n";
  test::PpRun r = run_pp(src);
  EXPECT_EQ(r.messages, "");
  EXPECT_EQ(body(r).size(), 1 + 8 + 2500000 * 2 + 3);
}

TEST(Robustness, NulBytes) {
  test::PpRun r = run_pp(std::string(100000, '\0'));
  EXPECT_EQ(r.stop, 3);
  EXPECT_EQ(r.errors, 1);
}

TEST(Robustness, UnterminatedCommentAtEnd) {
  test::PpRun r = run_pp("int a; /* open");
  EXPECT_EQ(r.errors, 1);
  EXPECT_EQ(body(r), "int a;\n");
}

TEST(Robustness, EmptyAndBlankFiles) {
  EXPECT_EQ(run_pp("").text, "\n#line 1 \"a.yc\"\n\n");
  EXPECT_EQ(run_pp("\n\n").text, "\n#line 1 \"a.yc\"\n\n");
  EXPECT_EQ(run_pp("\\").messages, "");
}

TEST(Robustness, InvocationOpenAcrossManyLines) {
  std::string src = "#define f(a, b) a\nf(1,\n";
  for (int i = 0; i < 100000; ++i) src += "x\n";
  test::PpRun r = run_pp(src);
  EXPECT_EQ(r.errors, 1);
  // The text after the faulty name is kept, line by line.
  EXPECT_EQ(body(r).size(), 1 + 5 + 100000 * 2);
}

// Thirty levels of doubling: each stops at the token limit with one message,
// ends the file's preprocessing, and leaves no macro marked as expanding.
TEST(Robustness, ExponentialExpansionStopsAtTokenLimit) {
  struct Case {
    const char* first;     // level 1
    const char* level;     // level n from level p (both %d)
    const char* use;
    const char* name;
  } cases[] = {
      {"#define M1 x", "#define M%d M%d M%d", "int M30;", "M30"},
      {"#define E1", "#define E%d E%d E%d", "int E30 a;", "E30"},
      {"#define F1(a) a", "#define F%d(a) F%d(a a)", "int F30(x);", "F30"},
      {"#define M1 x", "#define M%d M%d M%d", "#if M30 > 0\n#endif", "M30"},
  };
  for (const Case& c : cases) {
    std::string src = std::string(c.first) + "\n";
    for (int n = 2; n <= 30; ++n) src += strf(c.level, n, n - 1, n - 1) + "\n";
    src += std::string(c.use) + "\nint after;\n";
    test::PpRun r = run_pp(src);
    EXPECT_EQ(r.messages, strf("\n (line) in 'a.yc'\n (31) **error: macro '%s' expansion: the "
                               "expansion exceeds 10000000\n               tokens\n",
                               c.name))
        << c.use;
    EXPECT_EQ(r.stop, 4) << c.use;
    EXPECT_EQ(r.text, "") << c.use;
  }
}

// Below the limit nothing is reported, and each use has a limit of its own.
TEST(Robustness, LargeExpansionsBelowTheLimit) {
  std::string src = "#define M1 x\n";
  // M22 scans 2^22 - 2 names and 2^21 x's.
  for (int n = 2; n <= 22; ++n) src += strf("#define M%d M%d M%d\n", n, n - 1, n - 1);
  test::PpRun r = run_pp(src + "M22\nM22\n");
  EXPECT_EQ(r.messages, "");
  EXPECT_EQ(body(r).size(), 22 + 2 * (2 * (1u << 21)));
}

}  // namespace
}  // namespace ycc
