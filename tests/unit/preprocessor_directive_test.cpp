#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "preprocessor_test_util.h"

namespace ycc {
namespace {

using test::body;
using test::run_pp;

// The messages of a run as "line:text", read from lines wide enough not to wrap.
std::vector<std::string> messages(const std::string& err) {
  std::vector<std::string> out;
  std::istringstream in(err);
  std::string line;
  while (std::getline(in, line)) {
    if (line.rfind(" (", 0) != 0 || line.rfind(" (line)", 0) == 0) continue;
    size_t close = line.find(") **error: ");
    out.push_back(line.substr(2, close - 2) + ":" + line.substr(close + 11));
  }
  return out;
}

struct DirectiveCase {
  const char* source;
  std::vector<std::string> messages;
  const char* body;  // nullptr: not checked
};

TEST(Directives, Messages) {
  const DirectiveCase cases[] = {
      {"#if FOO\n#endif\n",
       {"1:#if expression: after macro expansion the expression has alphabetic content: 'FOO'"},
       "\n"},
      {"#define E\n#if E\n#endif\n",
       {"2:#if expression: after macro expansion the expression is malformed, or it uses an "
        "invalid operator: ''"},
       nullptr},
      {"#if 1\n#elif 1/0\n#endif\n", {}, nullptr},
      {"#if 0\n#elif 1/0\n#endif\n",
       {"2:#elif expression: after macro expansion the expression has an operation that divides "
        "by zero, which is undefined: '1/0'"},
       nullptr},
      {"#if 0\n#if 1/0\n#endif\n#endif\n", {}, nullptr},
      {"#if defined X || defined\n#endif\n",
       {"1:#if expression: the 2nd 'defined' operator has an invalid format"}, nullptr},
      {"#if 1 $\n#endif\n",
       {"1:fatal: illegal character '$' (decimal value is 36): this character, which is neither "
        "quoted nor commented, is not in the YARL C character set"},
       nullptr},
      {"#if 0\n#else\nx\n#else\ny\n#elif 1\nz\n#endif\nw\n",
       {"4:#else: an #else cannot follow an #else", "6:#elif: an #elif cannot follow an #else"},
       "\n\nx\n\ny\n\nz\n\nw\n"},
      {"#if 1\n#ifdef A\n#ifndef B\n\n",
       {"4:the #ifndef at line 3 is missing its #endif", "4:the #ifdef at line 2 is missing its #endif",
        "4:the #if at line 1 is missing its #endif"},
       nullptr},
      {"#if 0\n#ifdef A B\n#endif D\n#endif\n", {}, nullptr},
      {"#define A 1\n#undef A junk\n#ifdef A\nkept\n#endif\n",
       {"2:found unexpected additional text: 'junk'"}, "\n\n\nkept\n"},
      {"#foo\n# 12\n#\"s\"\n#\n# +\n#if 0\n#foo\n#endif\n",
       {"1:#foo is an invalid preprocessor command", "2:malformed preprocessor line: '12'",
        "3:malformed preprocessor line: '\"s\"'"},
       nullptr},
      {"#define A 1\n#define A 1\n#define A  1 \n#define A 2\n#define F(x) x\n#define F (x) x\n",
       {"4:redefinition of macro 'A'", "6:redefinition of macro 'F'"}, nullptr},
      {"#define F (x) x\nF\n", {}, "\n(x) x\n"},
      {"#include\n#include x\n#define H \"b.yc\" z\n#include H\n#include \"b.txt\"\n",
       {"1:invalid #include format: found '' after macro expansion",
        "2:invalid #include format: found 'x' after macro expansion",
        "4:found unexpected additional text: 'z'",
        "5:include file 'b.txt' : the filename ending is neither '.h' nor '.yc'"},
       nullptr},
      {"#include \"no_such_file_here.h\"\n",
       {"1:unable to open include file 'no_such_file_here.h' : besides the current directory, the "
        "directories searched were ''"},
       nullptr},
      {"#line\n#line x\n#line 5 junk\n#define L 9 \"n.yc\"\n#line L\n#line 3 \"m.yc\"\n",
       {"1:invalid #line format: found '' after macro expansion",
        "2:invalid #line format: found 'x' after macro expansion",
        "3:invalid #line format: found '5 junk' after macro expansion"},
       "\n\n\n\n#line 9 \"n.yc\"\n#line 3 \"m.yc\"\n"},
      {"#pragma  a  b // c\n#pragma\n", {}, "#pragma a  b\n#pragma \n"},
  };
  for (const DirectiveCase& c : cases) {
    Options o;
    o.width = 400;
    test::PpRun r = run_pp(c.source, o);
    EXPECT_EQ(messages(r.messages), c.messages) << c.source;
    if (c.body) {
      EXPECT_EQ(body(r), c.body) << c.source;
    }
  }
}

TEST(Directives, ErrorCountsOnceAndStops) {
  Options o;
  o.width = 400;
  test::PpRun r = run_pp("#define R \"why\"\n#error R\n#bogus\n", o);
  EXPECT_EQ(messages(r.messages),
            (std::vector<std::string>{"2:why", "2:preprocessing ceases with this #error directive"}));
  EXPECT_EQ(r.errors, 1);
  EXPECT_EQ(r.stop, 1);
  EXPECT_EQ(r.text, "");  // no intermediate text after an early end
  r = run_pp("#error  plain  text \n", o);
  EXPECT_EQ(messages(r.messages),
            (std::vector<std::string>{"1:plain  text", "1:preprocessing ceases with this #error directive"}));
}

TEST(Directives, ErrorLimitStopsTheFile) {
  Options o;
  o.error_limit = 2;
  test::PpRun r = run_pp("#a\n#b\n#c\n", o);
  EXPECT_EQ(r.stop, 2);
  EXPECT_EQ(r.errors, 2);
}

TEST(Directives, IllegalCharacterEndsTheFile) {
  test::PpRun r = run_pp("int a;\nint `b;\n#bogus\n");
  EXPECT_EQ(r.stop, 3);
  EXPECT_EQ(r.errors, 1);
}

TEST(Directives, DeepNesting) {
  std::string src;
  for (int i = 0; i < 10000; ++i) src += i % 2 ? "#if 1\n" : "#ifdef __FILE__\n";
  src += "x\n";
  for (int i = 0; i < 10000; ++i) src += "#endif\n";
  test::PpRun r = run_pp(src);
  EXPECT_EQ(r.messages, "");
  EXPECT_EQ(body(r), std::string(10000, '\n') + "x\n");
}

TEST(Directives, SourceDirectivesInOrder) {
  test::PpRun r = run_pp("#define D /D_name\nD\n", Options{});
  EXPECT_EQ(body(r), "\n/D_name\n");
  Options o;
  o.defines = {"ONE", "TWO"};
  r = run_pp("#if defined ONE && defined(TWO)\nboth\n#endif\nONE TWO.\n", o);
  EXPECT_EQ(body(r), "\nboth\n\n.\n");
}

}  // namespace
}  // namespace ycc
