#include "decl/constants.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "decl/library_table.h"

namespace ycc {
namespace {

class Constants : public ::testing::Test {
 protected:
  Constants() : diag(err, options) {
    options.width = 1000;  // one line a message
    diag.begin_compile();
  }
  // The messages reported so far, one per line, without layout.
  std::string messages() {
    diag.flush();
    std::string out, all = err.str();
    std::istringstream in(all);
    std::string line;
    while (std::getline(in, line)) {
      size_t p = line.find("**error: ");
      if (p != std::string::npos) out += line.substr(p + 9) + "\n";
    }
    err.str("");
    return out;
  }
  Options options;
  std::ostringstream err;
  Diagnostics diag;
};

TEST_F(Constants, CharacterConstants) {
  struct Case {
    const char* text;
    int value;
    const char* c_text;
    const char* message;
  } cases[] = {
      {"'a'", 'a', "'a'", ""},
      {"'\\n'", 10, "'\\n'", ""},
      {"'\\''", '\'', "'\\''", ""},
      {"'\\000'", 0, "'\\000'", ""},
      {"'\\065'", 65, "'\\101'", ""},
      {"'\\255'", -1, "'\\377'", ""},
      {"''", -1, "''", "character constant is empty: ''\n"},
      {"'a", -1, "'a", "character constant is missing a closing quote: '\n"},
      {"'\\0'", -1, "'\\0'", "character constant has an unrecognized escape character: '0'\n"},
      {"'\\q'", -1, "'\\q'", "character constant has an unrecognized escape character: 'q'\n"},
      {"'\\256'", -1, "'\\256'", "character constant has a decimal escape whose value exceeds 255\n"},
      {"'ab'", -1, "'ab'", "character constant has too many characters\n"},
      {"'\\na'", -1, "'\\na'", "character constant has too many characters\n"},
      {"'\\0650'", -1, "'\\0650'", "character constant has too many characters\n"},
  };
  for (const Case& c : cases) {
    CharacterConstant r = check_character_constant(c.text, diag, 1000001);
    EXPECT_EQ(messages(), c.message) << c.text;
    EXPECT_EQ(r.error, *c.message != 0) << c.text;
    if (!r.error) {
      EXPECT_EQ(r.value, c.value) << c.text;
      EXPECT_EQ(r.c_text, c.c_text) << c.text;
    }
  }
}

TEST_F(Constants, StringConstants) {
  struct Case {
    const char* text;
    const char* c_text;
    int length;
    const char* message;
  } cases[] = {
      {"\"abcd\"", "\"abcd\"", 4, ""},
      {"\"\"", "\"\"", 0, ""},
      {"\"a\\255b\"", "\"a\\377b\"", 3, ""},
      {"\"\\t\\\"x\\\\\"", "\"\\t\\\"x\\\\\"", 4, ""},
      {"\"a\\256\"", "", 0, "string constant has a decimal escape whose value exceeds 255\n"},
      {"\"a\\0\"", "", 0, "string constant has an unrecognized escape character: '0'\n"},
      {"\"open", "", 0, "string constant is missing a closing quote: \"\n"},
      {"\"ends in backslash\\\"", "", 0, "string constant is missing a closing quote: \"\n"},
  };
  for (const Case& c : cases) {
    StringConstant r = check_string_constant(c.text, diag, 1000001);
    EXPECT_EQ(messages(), c.message) << c.text;
    if (!r.error) {
      EXPECT_EQ(r.c_text, c.c_text) << c.text;
      EXPECT_EQ(r.length, c.length) << c.text;
    }
  }
  std::string longest = "\"" + std::string(20000, 'x') + "\"";  // 20002 with quotes
  EXPECT_FALSE(check_string_constant(longest, diag, 1).error);
  EXPECT_TRUE(check_string_constant("\"" + std::string(20001, 'x') + "\"", diag, 1).error);
  EXPECT_EQ(messages(), "string constant has more than 20000 characters\n");
}

TEST_F(Constants, FoldingFormattingAndSizeChecks) {
  auto d = [](const char* t) { return Folded::literal('d', t); };
  auto x = [](const char* t) { return Folded::literal('x', t); };
  auto f = [](const char* t) { return Folded::literal('f', t); };
  using Make = std::function<Folded()>;
  struct Case {
    Make make;
    const char* text;
    long long size;
    const char* message;
  } cases[] = {
      {[&] { return d("10"); }, "10", 10, ""},
      {[&] { return fold_binary('/', d("10"), d("0"), diag, 1); }, "1", 1,
       "'/' : division by zero is undefined\n"},
      {[&] { return x("0x10"); }, "0x10", 16,
       "the dimension size must be a positive decimal integer value, not 0x10\n"},
      {[&] { return fold_binary('*', f("2.5"), d("2"), diag, 1); }, "5.0", 5,
       "the dimension size must be a positive decimal integer value, not 5.0\n"},
      {[&] { return fold_binary('+', x("0x10"), d("1"), diag, 1); }, "0x11", 17,
       "the dimension size must be a positive decimal integer value, not 0x11\n"},
      {[&] { return fold_negate(d("3")); }, "-3", -3,
       "the dimension size must be a positive decimal integer value, not -3\n"},
      {[&] { return fold_binary('|', d("2"), d("4"), diag, 1); }, "6", 6, ""},
      {[&] { return fold_binary('-', d("2"), fold_negate(d("5")), diag, 1); }, "7", 7, ""},
      {[&] { return fold_binary('*', d("4294967296"), d("1"), diag, 1); }, "1", 1,
       "'*' : operand '4294967296' exceeds the limits of internal representation\n"},
      // A value beyond the largest integral type is never converted: it is reported and is 1.
      {[&] { return f("1e70"); }, "1e70", 1,
       "the dimension size must be a positive decimal integer value, not 1e70\n"
       "the computed integral constant '1e+70' exceeds the representation limits of type "
       "'unsigned long', which is the largest integral type\n"},
      {[&] { return fold_negate(f("1e70")); }, "-1e70", 1,
       "the dimension size must be a positive decimal integer value, not -1e70\n"
       "the computed integral constant '-1e+70' exceeds the representation limits of type "
       "'long', which is the largest integral type\n"},
      {[&] { return fold_binary('*', f("1e10"), f("1e60"), diag, 1); }, "1e+70", 1,
       "the dimension size must be a positive decimal integer value, not 1e+70\n"
       "the computed integral constant '1e+70' exceeds the representation limits of type "
       "'unsigned long', which is the largest integral type\n"},
      {[&] { return fold_binary('*', f("1e300"), f("1e300"), diag, 1); }, "inf.0", 1,
       "the dimension size must be a positive decimal integer value, not inf.0\n"
       "the computed integral constant 'inf' exceeds the representation limits of type "
       "'unsigned long', which is the largest integral type\n"},
      {[&] { return d("5000000000"); }, "5000000000", 1,
       "the computed integral constant '5000000000' exceeds the representation limits of type "
       "'unsigned long', which is the largest integral type\n"},
      {[&] { return fold_binary('*', d("65536"), d("65536"), diag, 1); }, "1", 1,
       "the computed integral constant '4294967296' exceeds the representation limits of type "
       "'unsigned long', which is the largest integral type\n"},
      {[&] { return fold_binary('|', f("1e70"), d("1"), diag, 1); }, "1", 1,
       "the computed integral constant '1e+70' exceeds the representation limits of type "
       "'unsigned long', which is the largest integral type\n"},
      {[&] { return fold_binary('|', d("1"), fold_negate(f("3e9")), diag, 1); }, "1", 1,
       "the computed integral constant '-3000000000' exceeds the representation limits of type "
       "'long', which is the largest integral type\n"},
      {[&] {
         Folded big = fold_binary('*', d("4294967295"), d("4294967295"), diag, 1);
         for (int i = 0; i < 40; ++i) big = fold_binary('*', big, d("4294967295"), diag, 1);
         return fold_binary('-', big, big, diag, 1);
       },
       "0", 0,
       "the computed integral constant 'inf' exceeds the representation limits of type "
       "'unsigned long', which is the largest integral type\n"},
      {[&] { return fold_binary('|', f("4294967295.5"), fold_negate(f("2147483648.5")), diag, 1); },
       "-1.0", -1, "the dimension size must be a positive decimal integer value, not -1.0\n"},
  };
  for (Case& c : cases) {
    bool bad = false;
    Folded value = c.make();
    std::string folded_messages = messages();
    EXPECT_EQ(format_constant(value, diag, 1), c.text);
    messages();  // the size check formats again and reports the same
    long long size = checked_size(value, "dimension size", true, diag, 1, bad);
    EXPECT_EQ(size, c.size) << c.text;
    EXPECT_EQ(folded_messages + messages(), c.message) << c.text;
  }
  EXPECT_EQ(format_constant(fold_binary('/', f("1.0"), d("3"), diag, 1), diag, 1), "0.333333333333333");
}

TEST(LibraryTable, SearchFindsEveryRowAndNothingElse) {
  for (int row = 0; row < library_function_count; ++row)
    EXPECT_EQ(find_library_function(library_function(row).name), row) << library_function(row).name;
  EXPECT_EQ(find_library_function("abs"), 0);
  EXPECT_EQ(find_library_function("toupper"), 117);
  for (const char* name : {"Strcpy", "", "a", "zzz", "strcpyx", "mai", "main_"})
    EXPECT_EQ(find_library_function(name), -1) << name;
  const LibraryFunction& strcpy_row = library_function(find_library_function("strcpy"));
  EXPECT_EQ(strcpy_row.raises, 'y');
  EXPECT_EQ(strcpy_row.checked_target, 1);
  const LibraryFunction& printf_row = library_function(find_library_function("printf"));
  EXPECT_EQ(printf_row.printf_like, 'y');
  EXPECT_EQ(printf_row.scanf_like, 'n');
  EXPECT_EQ(library_function(find_library_function("sscanf")).scanf_like, 'y');
  EXPECT_EQ(library_function(find_library_function("abs")).raises, 'n');
}

}  // namespace
}  // namespace ycc
