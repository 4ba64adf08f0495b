#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "diag/diagnostics.h"
#include "preprocessor/reader.h"
#include "preprocessor_test_util.h"

namespace ycc::pp {
namespace {

using test::body;
using test::run_pp;

// Tokens as "text/blanks/newlines/line", and the reader's messages.
struct ReadCase {
  const char* text;
  std::vector<std::string> tokens;
  std::vector<std::string> messages;
};

std::string show(const Token& t) {
  return std::string(t.text) + "/" + std::to_string(t.blanks) + "/" + std::to_string(t.newlines) +
         "/" + std::to_string(t.line);
}

TEST(Reader, Tokens) {
  const ReadCase cases[] = {
      {"a  b\tc\n", {"a/0/0/1", "b/2/0/1", "c/1/0/1"}, {}},
      {"x\n\n  y\n", {"x/0/0/1", "y/2/2/3"}, {}},
      {"a /* c */ b\n", {"a/0/0/1", "b/3/0/1"}, {}},
      {"a /* 1\n2 */ b\n", {"a/0/0/1", "b/2/1/2"}, {}},
      {"a // rest\nb\n", {"a/0/0/1", "b/0/1/2"}, {}},
      {"a \\\n b\nc\n", {"a/0/0/1", "b/2/0/1", "c/0/2/3"}, {}},
      {"ab\\\ncd\n", {"abcd/0/0/1"}, {}},
      {"\"s /* t */\" 'c'\n", {"\"s /* t */\"/0/0/1", "'c'/1/0/1"}, {}},
      {"\"a\\\"b\" \"c\\\\\"\n", {"\"a\\\"b\"/0/0/1", "\"c\\\\\"/1/0/1"}, {}},
      {"\"con\\\ntinued\" x\ny\n", {"\"continued\"/0/0/1", "x/1/0/1", "y/0/2/3"}, {}},
      {"0x1F 1e+5 .5 x\n", {"0x1F/0/0/1", "1e+5/1/0/1", ".5/1/0/1", "x/1/0/1"}, {}},
      {"a+=b\n", {"a/0/0/1", "+/0/0/1", "=/0/0/1", "b/0/0/1"}, {}},
      {"\"open\nx\n", {"\"open/0/0/1", "x/0/1/2"}, {"1:no closing quote mark for the quoted string"}},
      {"'c\n", {"'c/0/0/1"}, {"1:no closing quote mark for the quoted character"}},
      {"/* a /* b\n /* c */ x\n",
       {"x/2/1/2"},
       {"1:found '/*' further down inside this comment: nested comments are not allowed",
        "2:found '/*' further down inside this comment: nested comments are not allowed"}},
      {"x /* open\n\n", {"x/0/0/1"}, {"2:missing end of comment: '*/'"}},
      {"a\r\nb\n", {"a/0/0/1", "b/0/1/2"}, {}},
      {"", {}, {}},
  };
  for (const ReadCase& c : cases) {
    std::vector<std::string> msgs;
    Reader r(c.text, [&](int line, const std::string& m) { msgs.push_back(std::to_string(line) + ":" + m); });
    std::vector<std::string> toks;
    for (;;) {
      Token t = r.next(true);
      if (t.kind == Tok::end) break;
      toks.push_back(show(t));
    }
    EXPECT_EQ(toks, c.tokens) << c.text;
    EXPECT_EQ(msgs, c.messages) << c.text;
  }
}

TEST(Reader, IllegalCharacters) {
  // A byte that is not printable is shown as '?', which is itself legal.
  struct Case {
    char byte;
    const char* shown;
  } cases[] = {{'$', "'$' (decimal value is 36)"},   {'@', "'@' (decimal value is 64)"},
               {'`', "'`' (decimal value is 96)"},   {'\0', "'?' (decimal value is 0)"},
               {'\x01', "'?' (decimal value is 1)"}, {'\x1b', "'?' (decimal value is 27)"},
               {'\x7f', "'?' (decimal value is 127)"}, {'\x80', "'?' (decimal value is 128)"},
               {'\xe9', "'?' (decimal value is 233)"}, {'\xff', "'?' (decimal value is 255)"}};
  for (const Case& c : cases) {
    std::string text = std::string("a ") + c.byte + "\n";
    std::vector<std::string> msgs;
    Reader r(text, [&](int, const std::string& m) { msgs.push_back(m); });
    r.next(true);
    EXPECT_THROW(r.next(true), PpStop) << c.shown;
    ASSERT_EQ(msgs.size(), 1u);
    EXPECT_EQ(msgs[0], std::string("fatal: illegal character ") + c.shown +
                           ": this character, which is neither quoted nor commented, is not in "
                           "the YARL C character set");
    // Skipped groups are not checked.
    Reader skip(text, [&](int, const std::string&) {});
    skip.next(false);
    EXPECT_NO_THROW(skip.next(false));
  }
}

TEST(Reader, LookAheadReportsOnce) {
  std::vector<std::string> msgs;
  Reader r("f /* a /* b */ (\n", [&](int, const std::string& m) { msgs.push_back(m); });
  r.next(true);
  Reader::State s = r.save();
  EXPECT_EQ(r.next(true).text, "(");
  r.restore(s);
  EXPECT_EQ(r.next(true).text, "(");
  EXPECT_EQ(msgs.size(), 1u);
}

TEST(Reader, LastLine) {
  EXPECT_EQ(Reader("a\nb\n", nullptr).last_line(), 2);
  EXPECT_EQ(Reader("", nullptr).last_line(), 1);
}

// Whole files: the text after the opening marker.
struct OutputCase {
  const char* source;
  const char* body;
};

TEST(IntermediateText, Layout) {
  const OutputCase cases[] = {
      {"int a;", "int a;\n"},
      {"int a;\n", "int a;\n"},
      {"\n\nint a;\n\n\n", "\n\nint a;\n"},
      {"  int\t a ;\n", "  int  a ;\n"},
      {"a /* c */ b // d\n", "a   b\n"},
      {"a \\\n  b\nc\n", "a   b\n\nc\n"},
      {"\"x\" \"y\"\n", "\"xy\" \n"},
      {"\"x\"\n\n  \"y\" z\n", "\"xy\"\n\n   z\n"},
      {"\"x\" 'y' \"z\"\n", "\"x\" 'y' \"z\"\n"},
      {"\"a\" \"b\" \"c\"\n", "\"abc\"  \n"},
      {"\"a\"\n#define X\n\"b\"\n", "\"ab\"\n\n\n"},
      {"#define S \"s\"\nS \"t\"\n", "\n\"st\" \n"},
      {"#pragma pack(1)\nx\n", "#pragma pack(1)\nx\n"},
      {"x\n#line 7 \"b.yc\"\ny\n", "x\n#line 7 \"b.yc\"\ny\n"},
      {"#if 0\na\n#else\nb\n#endif\nc\n", "\n\n\nb\n\nc\n"},
      {"#\n# ;\nx\n", "\n\nx\n"},
  };
  for (const OutputCase& c : cases) {
    test::PpRun r = run_pp(c.source);
    EXPECT_EQ(body(r), c.body) << c.source;
    EXPECT_EQ(r.messages, "") << c.source;
  }
  EXPECT_EQ(run_pp("").text, "\n#line 1 \"a.yc\"\n\n");
  // An unclosed literal is not joined with the next one.
  EXPECT_EQ(body(run_pp("\"ab\n\"cd\"\n")), "\"ab\n\"cd\"\n");
}

}  // namespace
}  // namespace ycc::pp
