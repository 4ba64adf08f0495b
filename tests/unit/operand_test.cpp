#include <gtest/gtest.h>

#include "translate/operand.h"

namespace ycc {
namespace {

// A reference's checks: read region, occurs region, third region, cast point.
Code reference(const char* name) {
  Code c;
  c += std::string("\nstore ") + name + ";";
  c.marker('x');
  c.marker('a');
  c += "\ngrow;";
  c.marker('b');
  c.marker('h');
  c += "\nlimit;";
  c.marker('i');
  c += "\noccurs;";
  c.marker('j');
  c.marker('c');
  c.marker('e');
  c += "\nraise;";
  c.marker('f');
  return c;
}

std::string letters(const Code& c) {
  std::string out;
  const std::string& t = c.text();
  for (size_t at = t.find("\n##"); at != std::string::npos; at = t.find("\n##", at + 1)) out += t[at + 3];
  return out;
}

TEST(OperandCode, RewritesChangeOnlyTheirLetters) {
  struct Row {
    const char* what;
    void (*rewrite)(Code&);
    const char* letters;
  };
  const Row rows[] = {
      {"read", [](Code&) {}, "xabhijcef"},
      {"written", [](Code& c) { c.rewrite_written(); }, "xdbkijcgf"},
      {"embedded", [](Code& c) { c.rewrite_embedded(); }, "ymboijcnf"},
      // A marker is final once rewritten: an embedded write stays a write.
      {"written then embedded", [](Code& c) { c.rewrite_written(); c.rewrite_embedded(); }, "ydbkijcgf"},
      {"embedded then written", [](Code& c) { c.rewrite_embedded(); c.rewrite_written(); }, "ymboijcnf"},
  };
  for (const Row& r : rows) {
    Code c = reference("v");
    r.rewrite(c);
    EXPECT_EQ(letters(c), r.letters) << r.what;
  }
}

TEST(OperandCode, MarkersFollowTheirTextThroughEdits) {
  Code inner = reference("i");
  inner.rewrite_embedded();  // a subscript's reference: final
  Code c;
  c += std::move(inner);
  c += reference("v");
  c.prepend("\nzzzz_int1 = 0;");
  // Renaming labels in front of the markers moves them.
  const std::string& t = c.text();
  size_t at = t.find("zzzz_int1");
  c.apply({{at, 9, "zzzz_int12345"}});
  c.rewrite_written();
  EXPECT_EQ(letters(c), "ymboijcnfxdbkijcgf");
  EXPECT_TRUE(c.insert_at_x("\nzzzz_added_length_minus_one = 3;"));
  EXPECT_NE(c.text().find("\n##x\nzzzz_added_length_minus_one = 3;\n##d"), std::string::npos);
  EXPECT_FALSE(c.insert_at_x("again"));
  EXPECT_EQ(c.text().substr(0, 19), "\nzzzz_int12345 = 0;");
}

}  // namespace
}  // namespace ycc
