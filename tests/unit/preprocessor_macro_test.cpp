#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "preprocessor/macros.h"
#include "preprocessor_test_util.h"

namespace ycc::pp {
namespace {

using test::body;
using test::run_pp;

// Definitions, one use, and the line the use becomes.
struct ExpandCase {
  const char* defines;
  const char* use;
  const char* expect;
};

TEST(MacroExpansion, SourceLines) {
  const ExpandCase cases[] = {
      {"#define N 10\n", "N", "10"},
      {"#define N 10\n", "xN N_ \"N\" 'N' N1", "xN N_ \"N\" 'N' N1"},
      {"#define E\n", "a E b", "a b"},
      {"#define A B\n#define B 7\n", "A", "7"},
      {"#define foo foo + 1\n", "foo", "foo + 1"},
      {"#define a b\n#define b a\n", "a b", "a b"},
      {"#define f(x) ((x) * 2)\n", "f(3)", "((3) * 2)"},
      {"#define f(x) ((x) * 2)\n", "f", "f"},
      {"#define f(x) ((x) * 2)\n", "f (1 + 2)", "((1 + 2) * 2)"},
      {"#define f(x, y) x - y\n", "f((1, 2), \"a,b\")", "(1, 2) - \"a,b\""},
      {"#define f(x, y) x - y\n", "f(  a  ,  b  )", "a - b"},
      {"#define g() 42\n", "g()", "42"},
      {"#define g() 42\n", "g( )", "42"},
      {"#define f(x) x\n#define h(y) f(y) + 1\n", "h(2)", "2 + 1"},
      {"#define f(x) [x]\n", "f(f)", "[f]"},
      {"#define f(x) f(x)\n", "f(1)", "f(1)"},
      {"#define S(x) #x\n", "S(a  b)", "\"a  b\""},
      {"#define S(x) #x\n", "S(\"q\\n\" 'c')", "\"\\\"q\\\\n\\\" 'c'\""},
      {"#define S(x) # x\n", "S(1)", "\"1\""},
      {"#define C(a, b) a ## b\n", "C(x, 1)", "x1"},
      {"#define C(a, b) a##b\n#define x1 hit\n", "C(x, 1)", "hit"},
      {"#define C3(a, b, c) a ## b ## c\n", "C3(1, 2, 3)", "123"},
      {"#define P x ## y\n", "P", "xy"},
      {"#define Q(a) a \"a\" 'a'\n", "Q(z)", "z \"a\" 'a'"},
      {"#define L __LINE__\n", "L", "2"},
      {"", "__FILE__", "\"a.yc\""},
      {"#define F(x) __FILE__ x\n", "F(1)", "\"a.yc\" 1"},
      {"#define TWICE(x) x x\n#define ONE 1\n", "TWICE(ONE)", "1 1"},
  };
  for (const ExpandCase& c : cases) {
    std::string src = std::string(c.defines) + c.use + "\n";
    test::PpRun r = run_pp(src);
    std::string want(std::count(c.defines, c.defines + std::strlen(c.defines), '\n'), '\n');
    want += c.expect;
    want += "\n";
    EXPECT_EQ(body(r), want) << src;
    EXPECT_EQ(r.messages, "") << src;
  }
}

// Definitions and a use that is reported; the use stays as written.
struct FaultCase {
  const char* source;
  const char* message;
};

TEST(MacroExpansion, Faults) {
  const FaultCase cases[] = {
      {"#define f(a, b) a\nf(,1)\n", " (2) **error: macro 'f' expansion: empty argument\n"},
      {"#define f(a, b) a\nf(1,2,3)\n", " (2) **error: macro 'f' expansion: too many arguments\n"},
      {"#define f(a, b) a\nf(1)\n", " (2) **error: macro 'f' expansion: too few arguments\n"},
      {"#define f(a, b) a\nf(1,)\n", " (2) **error: macro 'f' expansion: empty argument\n"},
      {"#define f(a, b) a\nf(1,\n,2)\n",
       " (3) **error: the invocation of macro 'f' is missing argument 2: found\n"
       "              ','\n"},
      {"#define f(a, b) a\nf(1,\n2,\n3)\n",
       " (3) **error: invocation of macro 'f': expecting ')', found ','\n"},
      {"#define f(a, b) a\nf(1\n)\n",
       " (3) **error: invocation of macro 'f': expecting ',', found ')'\n"},
      {"#define g() 0\ng(\nx)\n", " (3) **error: invocation of macro 'g': expecting ')', found 'x'\n"},
      {"#define f(a) a\n#define h f\nh\n",
       " (3) **error: macro 'f' expansion: missing left parenthesis that\n"
       "              begins argument list\n"},
      {"#define f(a) a\n#define h f(1\nh\n",
       " (3) **error: macro 'f' expansion: incomplete or malformed argument\n"
       "              list\n"},
      {"#define f(a) a\n#define h f((1\nh\n",
       " (3) **error: a macro argument has unbalanced parentheses\n"},
      {"#define B(x) #1\nB(2)\n",
       " (2) **error: macro 'B' expansion: the stringization operator '#' must\n"
       "              be followed by a parameter name\n"},
  };
  for (const FaultCase& c : cases) {
    test::PpRun r = run_pp(c.source);
    EXPECT_EQ(r.messages, std::string("\n (line) in 'a.yc'\n") + c.message) << c.source;
    EXPECT_EQ(r.errors, 1) << c.source;
  }
}

TEST(MacroExpansion, FaultyUseIsLeftAsWritten) {
  test::PpRun r = run_pp("#define f(a, b) a\nint x = f(1,2,3) + f(4,5);\n");
  EXPECT_EQ(body(r), "\nint x = f(1,2,3) + 4;\n");
}

TEST(MacroExpansion, InvocationAcrossLinesKeepsLineEnds) {
  test::PpRun r = run_pp("#define f(a, b) a+b\nx = f(1,\n  2);\ny;\n");
  EXPECT_EQ(body(r), "\nx = 1+2\n;\ny;\n");
}

TEST(MacroExpansion, OpenInvocationAtEndOfFile) {
  test::PpRun r = run_pp("#define f(a, b) a\nint x = f(1,\n2\n");
  EXPECT_EQ(r.messages,
            "\n (line) in 'a.yc'\n"
            " (2) **error: macro 'f' expansion: incomplete or malformed argument\n"
            "              list\n");
  EXPECT_EQ(body(r), "\nint x = f(1,\n2\n");
}

TEST(MacroTable, SameBucketNamesStayDistinct) {
  // Two names of one bucket: among 2040 names two must share one.
  std::vector<std::string> first(MacroTable::bucket_count);
  std::string a, b;
  for (int i = 0; a.empty(); ++i) {
    std::string n = "N" + std::to_string(i);
    int bucket = MacroTable::bucket_of(n);
    ASSERT_GE(bucket, 0);
    ASSERT_LT(bucket, MacroTable::bucket_count);
    std::string& seen = first[static_cast<size_t>(bucket)];
    if (seen.empty()) {
      seen = n;
    } else {
      a = seen;
      b = n;
    }
  }
  MacroTable t;
  t.set_up({a, b, a}, "Jan 01 2026", "00:00:00");
  ASSERT_NE(t.find(a), nullptr);
  ASSERT_NE(t.find(b), nullptr);
  EXPECT_NE(t.find(a), t.find(b));
  t.undefine(a);
  EXPECT_EQ(t.find(a), nullptr);
  EXPECT_NE(t.find(b), nullptr);
  EXPECT_TRUE(t.is_defined("__FILE__"));
  EXPECT_TRUE(t.is_defined("defined"));
  EXPECT_EQ(t.find("__DATE__")->replacement, "\"Jan 01 2026\"");
  EXPECT_EQ(t.find("__TIME__")->replacement, "\"00:00:00\"");
}

TEST(MacroTable, ManyNamesInOneTable) {
  MacroTable t;
  for (int i = 0; i < 20000; ++i) t.define("m" + std::to_string(i)).replacement = std::to_string(i);
  for (int i = 0; i < 20000; i += 997)
    EXPECT_EQ(t.find("m" + std::to_string(i))->replacement, std::to_string(i));
}

TEST(MacroExpansion, DateAndTimeFormats) {
  // Two string literals in a row would be joined: a comma keeps them apart.
  test::PpRun r = run_pp("__DATE__,__TIME__\n");
  std::string b = body(r);
  // "Mmm dd yyyy","hh:mm:ss"
  ASSERT_EQ(b.size(), 13u + 1 + 10 + 1) << b;
  EXPECT_EQ(b[0], '"');
  EXPECT_EQ(b[4], ' ');
  EXPECT_EQ(b[7], ' ');
  EXPECT_EQ(b[12], '"');
  EXPECT_EQ(b[14], '"');
  EXPECT_EQ(b[17], ':');
  EXPECT_EQ(b[20], ':');
}

TEST(Expander, DirectiveOperandText) {
  MacroTable t;
  t.set_up({}, "d", "t");
  Macro& f = t.define("f");
  f.function_like = true;
  f.params = {"a", "b"};
  f.replacement = "(a) + (b)";
  index_params(f);
  t.define("N").replacement = "f(N, 2)";
  std::vector<std::string> msgs;
  Expander x(t, ExpandHooks{[&](const std::string& m) { msgs.push_back(m); },
                            [] { return std::string("x.h"); }, [] { return 9; }});
  EXPECT_EQ(x.expand("N * __LINE__ __FILE__"), "(N) + (2) * 9 \"x.h\"");
  EXPECT_EQ(x.expand("f(1)"), "f(1)");
  ASSERT_EQ(msgs.size(), 1u);
  EXPECT_EQ(msgs[0], "macro 'f' expansion: too few arguments");
  EXPECT_EQ(f.expanding, 0);
}

TEST(Expander, LongChainNeedsNoDeepRecursion) {
  MacroTable t;
  const int n = 200000;
  for (int i = 0; i < n; ++i) t.define("m" + std::to_string(i)).replacement = "m" + std::to_string(i + 1);
  Expander x(t, ExpandHooks{[](const std::string&) {}, [] { return std::string(); }, [] { return 1; }});
  EXPECT_EQ(x.expand("m0"), "m" + std::to_string(n));
}

// Plain stretches of a line are copied whole; what ends a stretch (a macro
// name, a tab, a continuation inside a word, literals to join, comments,
// trailing blanks, an invocation whose "(" is on the next line) must come
// out exactly as token by token.
TEST(MacroExpansion, PlainStretchesEndWhereTokensNeedTheReader) {
  test::PpRun r = run_pp(
      "#define e 9\n#define M(x) x\n"
      "int a = 1e+5 + e, b\t= M(2)  ;   \n"
      "ab\\\ncd = \"s\"  \"t\" /* c */ + x // d\n"
      "y = 'q' + M\n(3) ;  z\n");
  EXPECT_EQ(body(r), "\n\nint a = 1e+5 + 9, b = 2  ;\nabcd = \"st\"     + x\n\ny = 'q' + 3\n ;  z\n");
}

TEST(Stringize, EscapesInsideQuotedItems) {
  EXPECT_EQ(stringize("a b"), "\"a b\"");
  EXPECT_EQ(stringize("\"x\""), "\"\\\"x\\\"\"");
  EXPECT_EQ(stringize("'\\n'"), "\"'\\\\n'\"");
  EXPECT_EQ(stringize("\\n"), "\"\\n\"");
}

}  // namespace
}  // namespace ycc::pp
