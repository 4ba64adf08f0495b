// Where YARL C and C agree, the tokens of the intermediate text must be those
// that the system's C preprocessor produces from the same files.
#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "common/text.h"
#include "preprocessor_test_util.h"

namespace ycc {
namespace {

namespace fs = std::filesystem;

// Tokens of a preprocessed text: line-marker and pragma lines are dropped,
// blanks do not count, and adjacent string literals are joined (C joins them
// only later, in translation phase 6).
std::vector<std::string> tokens(const std::string& text) {
  std::vector<std::string> out;
  std::istringstream in(text);
  std::string line;
  bool last_string = false;
  while (std::getline(in, line)) {
    size_t i = line.find_first_not_of(" \t");
    if (i != std::string::npos && line[i] == '#') continue;
    while (i != std::string::npos && i < line.size()) {
      char c = line[i];
      size_t e = i + 1;
      if (c == ' ' || c == '\t') {
        ++i;
        continue;
      }
      if (c == '"' || c == '\'') {
        while (e < line.size() && line[e] != c) e += line[e] == '\\' ? 2 : 1;
        e = std::min(e + 1, line.size());
      } else if (is_ident_char(c)) {
        while (e < line.size() && is_ident_char(line[e])) ++e;
      }
      std::string tok = line.substr(i, e - i);
      if (c == '"' && last_string) {
        out.back().pop_back();
        out.back() += tok.substr(1);
      } else {
        out.push_back(tok);
      }
      last_string = c == '"';
      i = e;
    }
  }
  return out;
}

struct OracleCase {
  const char* name;
  std::vector<std::pair<std::string, std::string>> files;  // a.yc first
};

class Oracle : public ::testing::TestWithParam<OracleCase> {};

TEST_P(Oracle, SameTokensAsCpp) {
  if (std::system("cpp --version > /dev/null 2>&1") != 0) GTEST_SKIP() << "cpp is not installed";
  const OracleCase& c = GetParam();
  fs::path old = fs::current_path();
  fs::path dir = fs::temp_directory_path() /
                 ("ycc_pp_oracle_" + std::to_string(::getpid()) + "_" + c.name);
  fs::remove_all(dir);
  fs::create_directories(dir);
  fs::current_path(dir);
  for (const auto& [name, text] : c.files) std::ofstream(name, std::ios::binary) << text;
  test::PpRun r = test::run_pp(c.files[0].second);
  int status = std::system("cpp -P -x c a.yc -o cpp.out 2> cpp.err");
  std::string expected, err;
  int e = 0;
  read_file("cpp.out", expected, e);
  fs::current_path(old);
  fs::remove_all(dir);
  ASSERT_EQ(status, 0);
  EXPECT_EQ(r.messages, "");
  EXPECT_EQ(tokens(r.text), tokens(expected));
}

const OracleCase cases[] = {
    {"object_like",
     {{"a.yc",
       "#define N 10\n#define M N + N\n#define EMPTY\nint a = M * N EMPTY;\n"
       "#undef N\n#define N 3\nint b = M;\nint c = N_ + xN;\n"}}},
    {"function_like",
     {{"a.yc",
       "#define SQ(x) ((x) * (x))\n#define MAX(a, b) ((a) > (b) ? (a) : (b))\n"
       "#define CALL(f, v) f(v)\n#define ZERO() 0\n"
       "int a = SQ(3 + 1);\nint b = MAX(SQ(2), (1, 2));\nint c = CALL(SQ, 5);\n"
       "int d = ZERO() + MAX( 1 ,\n  2 );\nint SQ;\nchar *s = \"SQ(1)\";\n"}}},
    {"rescanning",
     {{"a.yc",
       "#define foo foo + bar\n#define bar foo\nint a = foo;\nint b = bar;\n"
       "#define f(x) g(x) + x\n#define g(y) [y]\nint c = f(1);\n"
       "#define h(x) x\n#define i h(2)\nint d = i;\n"}}},
    {"stringize_and_paste",
     {{"a.yc",
       "#define S(x) #x\n#define X(x) S(x)\n#define V 42\n#define CAT(a, b) a ## b\n"
       "#define CAT3(a, b, c) a##b##c\n"
       "char *a = S(hello world);\nchar *b = X(-);\nchar *c = S(\"q\" 'c');\n"
       "int CAT(var, 1) = CAT(V, 0);\nint CAT3(x, y, z) = CAT(0x, 1F);\n"
       "char *d = S(a) \"b\" S(c);\n"}}},
    {"conditionals",
     {{"a.yc",
       "#define A 1\n#define B 0\n"
       "#ifdef A\nint a1;\n#ifndef B\nint no;\n#else\nint b_defined;\n#endif\n#endif\n"
       "#if A && !B\nint t1;\n#elif A\nint no2;\n#else\nint no3;\n#endif\n"
       "#if B\nint no4;\n#elif defined(A) && (A + 2) * 3 == 9\nint t2;\n#endif\n"
       "#if 0\n#if 1\nint no5;\n#else\nint no6;\n#endif\n#elif 0x10 > 15\nint t3;\n#endif\n"
       "#ifndef C\n#define C 7\n#endif\nint c = C;\n"}}},
    {"includes",
     {{"a.yc",
       "#include \"b.h\"\n#include \"b.h\"\nint main_line = __LINE__;\n"
       "#define HDR \"c.h\"\n#include HDR\nint after = B_VALUE + C_VALUE;\n"},
      {"b.h", "#ifndef B_H\n#define B_H\n#define B_VALUE 2\nint b_line = __LINE__;\n#endif\n"},
      {"c.h", "#define C_VALUE 3\nint c;\n"}}},
};

INSTANTIATE_TEST_SUITE_P(Preprocessor, Oracle, ::testing::ValuesIn(cases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(OracleTokens, Normalisation) {
  EXPECT_EQ(tokens("# 1 \"x\"\n a  +b\n\"s\" \n \"t\"'c'\n"),
            (std::vector<std::string>{"a", "+", "b", "\"st\"", "'c'"}));
}

}  // namespace
}  // namespace ycc
