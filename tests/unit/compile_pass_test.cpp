#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "common/text.h"
#include "compile/compile_pass.h"

namespace ycc {
namespace {

namespace fs = std::filesystem;

// A run of the compile pass over intermediate texts written to a fresh directory.
struct PassFixture {
  Options options;
  std::ostringstream err;
  Diagnostics diag{err, options};
  CompileSession session;
  fs::path dir;

  PassFixture() {
    dir = fs::temp_directory_path() /
          ("ycc_pass_" + std::to_string(reinterpret_cast<uintptr_t>(this)));
    fs::create_directories(dir);
  }
  ~PassFixture() {
    std::error_code ec;
    fs::remove_all(dir, ec);
  }
  std::string path(const std::string& name) const { return (dir / name).string(); }

  // Writes name.i and compiles it as source `source`; returns the output text.
  std::string compile(const std::string& name, const std::string& intermediate,
                      const std::string& source, const std::string& prefix = "") {
    std::ofstream(path(name + ".i"), std::ios::binary) << intermediate;
    session.compile_one_file(options, diag, path(name + ".i"), path(name + ".c"), source, prefix);
    std::string out;
    int e;
    EXPECT_TRUE(read_file(path(name + ".c"), out, e));
    return out;
  }
};

struct EmptyCase {
  const char* name;
  const char* intermediate;
  const char* err;
};

class EmptyFiles : public ::testing::TestWithParam<EmptyCase> {};

TEST_P(EmptyFiles, NoValidDeclarations) {
  PassFixture f;
  std::string out = f.compile("a", GetParam().intermediate, "a.yc");
  EXPECT_EQ(f.err.str(), GetParam().err) << GetParam().name;
  EXPECT_EQ(out, "\n");
  EXPECT_EQ(f.diag.run_errors, 1);
  EXPECT_EQ(f.diag.run_warnings, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Table, EmptyFiles,
    ::testing::Values(
        EmptyCase{"empty_file", "", "\n (line) in 'unknown'\n (0) **error: there are no valid declarations or functions\n"},
        EmptyCase{"only_marker", "\n#line 1 \"a.yc\"\n\n",
                  "\n (line) in 'a.yc'\n (2) **error: there are no valid declarations or functions\n"},
        EmptyCase{"blank_lines", "\n#line 1 \"a.yc\"\n\n\n   \n\t\n\n",
                  "\n (line) in 'a.yc'\n (6) **error: there are no valid declarations or functions\n"},
        EmptyCase{"pragma_only", "\n#line 1 \"a.yc\"\n#pragma x\n\n",
                  "\n (line) in 'a.yc'\n (3) **error: there are no valid declarations or functions\n"}));

TEST(CompilePass, GarbageGivesASyntaxError) {
  PassFixture f;
  f.options.width = 200;
  std::string out = f.compile("a", "\n#line 1 \"a.yc\"\n\n$@\n", "a.yc");
  EXPECT_EQ(f.err.str(),
            "\n (line) in 'a.yc'\n (2) **error: syntax error at or before '$@'\n"
            " (3) **error: there are no valid declarations or functions\n");
  EXPECT_EQ(out, "\n");
  EXPECT_EQ(f.diag.run_errors, 2);
  EXPECT_EQ(f.session.files_compiled(), 1);
}

TEST(CompilePass, ErrorLimitHaltsWithTheSourceName) {
  PassFixture f;
  f.options.width = 200;
  f.options.error_limit = 1;
  std::string out = f.compile("a", "\n#line 1 \"sub/a.yc\"\n@\n", "sub/a.yc");
  EXPECT_EQ(f.err.str(),
            "\n (line) in 'sub/a.yc'\n (1) **error: syntax error at or before '@'\n"
            " compilation of 'sub/a.yc' halted\n ** too many errors **\n"
            " (2) **error: there are no valid declarations or functions\n");
  EXPECT_EQ(out, "\n");
  EXPECT_EQ(f.diag.run_errors, 2);
  EXPECT_EQ(f.session.files_compiled(), 0);
}

TEST(CompilePass, ErrorLimitReachedByTheEmptyFileMessage) {
  PassFixture f;
  f.options.width = 200;
  f.options.error_limit = 1;
  f.compile("a", "\n#line 1 \"a.yc\"\n", "a.yc");
  EXPECT_EQ(f.err.str(),
            "\n (line) in 'a.yc'\n (1) **error: there are no valid declarations or functions\n"
            " compilation of 'a.yc' halted\n ** too many errors **\n");
  EXPECT_EQ(f.diag.run_errors, 1);
}

TEST(CompilePass, InvalidTokenIsReportedButNotCounted) {
  PassFixture f;
  f.options.width = 200;
  f.compile("a", "\n#line 1 \"a.yc\"\n\r\n", "a.yc");
  EXPECT_EQ(f.err.str(),
            "invalid token near line 1000001 (text was '\r')\n"
            "\n (line) in 'a.yc'\n (2) **error: there are no valid declarations or functions\n");
  EXPECT_EQ(f.diag.run_errors, 1);
}

TEST(CompilePass, SecondFileStartsClean) {
  PassFixture f;
  f.options.width = 200;
  f.compile("a", "\n#line 1 \"a.yc\"\n@\n", "a.yc");
  Workspace* ws = f.session.workspace();
  ASSERT_NE(ws, nullptr);
  f.compile("b", "\n#line 1 \"b.yc\"\n\n\n`\n", "b.yc");
  EXPECT_EQ(f.session.workspace(), ws);  // set up once, reused
  EXPECT_EQ(f.err.str(),
            "\n (line) in 'a.yc'\n (1) **error: syntax error at or before '@'\n"
            " (2) **error: there are no valid declarations or functions\n"
            "\n (line) in 'b.yc'\n (3) **error: syntax error at or before '`'\n"
            " (4) **error: there are no valid declarations or functions\n");
  EXPECT_EQ(f.diag.errors, 2);
  EXPECT_EQ(f.diag.run_errors, 4);
  EXPECT_EQ(ws->merge_count(), 0);
}

TEST(CompilePass, SyntaxErrorLineMemoryIsPerFile) {
  PassFixture f;
  f.options.width = 200;
  f.compile("a", "\n#line 1 \"s.yc\"\n#\n", "s.yc");
  f.compile("b", "\n#line 1 \"s.yc\"\n#\n", "s.yc");
  std::string err = f.err.str();
  size_t first = err.find("syntax error at or before '#'");
  ASSERT_NE(first, std::string::npos);
  EXPECT_NE(err.find("syntax error at or before '#'", first + 1), std::string::npos);
}

TEST(CompilePass, ParserNestingLimitBecomesAResourceExit) {
  PassFixture f;
  std::string deep = "\n#line 1 \"a.yc\"\nint x = " + std::string(5000, '(') + "1;\n";
  std::ofstream(f.path("a.i")) << deep;
  try {
    f.session.compile_one_file(f.options, f.diag, f.path("a.i"), f.path("a.c"), "a.yc", "");
    FAIL() << "no resource exit";
  } catch (const ParserResourceExit& e) {
    EXPECT_EQ(e.report.rfind("fatal: attrib/AST stack overflow ", 0), 0u) << e.report;
    EXPECT_EQ(e.report.back(), '\n');
  }
}

TEST(CompilePass, UnopenableIntermediateIsFatal) {
  PassFixture f;
  try {
    f.session.compile_one_file(f.options, f.diag, f.path("missing.i"), f.path("missing.c"), "m.yc", "");
    FAIL() << "no fatal error";
  } catch (const FatalError& e) {
    EXPECT_EQ(e.report, "\n ** fatal error:\n unable to open preprocessed file '" + f.path("missing.i") +
                            "': No such file or directory\n YARL C compiler terminated\n\n");
  }
}

TEST(CompilePass, UnwritableOutputIsFatal) {
  PassFixture f;
  std::ofstream(f.path("a.i")) << "\n#line 1 \"a.yc\"\n";
  try {
    f.session.compile_one_file(f.options, f.diag, f.path("a.i"), f.path("no/such/a.c"), "a.yc", "");
    FAIL() << "no fatal error";
  } catch (const FatalError& e) {
    EXPECT_EQ(e.report, "\n ** fatal error:\n unable to open file '" + f.path("no/such/a.c") +
                            "' for output: No such file or directory\n YARL C compiler terminated\n\n");
  }
}

}  // namespace
}  // namespace ycc

namespace ycc {
namespace {

// The walks over structures that nest varspaces are iterative: twenty
// thousand nested structures neither overflow the stack nor take memory
// quadratic in the depth.
TEST(CompilePass, StructuresNestedTwentyThousandDeep) {
  const int depth = 20000;
  std::string src = "\n#line 1 \"d.yc\"\nstruct s0 { int a; char var text[]; };\n";
  for (int i = 1; i < depth; ++i) src += strf("struct s%d { int b; struct s%d x; };\n", i, i - 1);
  src += strf("f();\nf()\n{\n   struct s%d deep;\n}\n", depth - 1);
  PassFixture f;
  f.options.warning_level = 1;
  std::string out = f.compile("d", src, "d.yc");
  EXPECT_EQ(f.err.str(), "");
  std::string path = "deep";
  for (int i = 1; i < depth; ++i) path += ".x";
  EXPECT_NE(out.find("\n" + path + ".text.ptr = NULL;\n" + path + ".text.occurs = 0;\n"), std::string::npos);
  EXPECT_NE(out.find("\nfree(" + path + ".text.ptr);"), std::string::npos);
}

}  // namespace
}  // namespace ycc

namespace ycc {
namespace {

// Space references at sizes far beyond real programs: each translates, or
// ends in the parser's own overflow report, without crashing or hanging.
TEST(CompilePass, SpaceReferencesAtExtremeSizes) {
  auto nested = [](int depth) {
    std::string e = "0";
    for (int i = 0; i < depth; ++i) e = "a[" + e + "]";
    return "f() int r;\nf() int r\n{\n   int var a[];\n   r = " + e + ";\n}\n";
  };
  auto dimensions = [](int n) {
    std::string empty, subs;
    for (int i = 0; i < n; ++i) {
      empty += "[]";
      subs += "[" + std::to_string(i) + "]";
    }
    return "f() int r;\nf() int r\n{\n   int var a" + empty + ";\n   a" + subs + " = 1;\n   r = a" + subs + ";\n}\n";
  };
  auto many = [](int n) {
    std::string decls, uses;
    for (int i = 0; i < n; ++i) {
      decls += "   int var v" + std::to_string(i) + "[];\n";
      uses += "   v" + std::to_string(i) + "[r] = r;\n";
    }
    return "f() int r;\nf() int r\n{\n" + decls + "   r = 0;\n" + uses + "}\n";
  };
  struct Row {
    const char* what;
    std::string source;
    const char* expect;  // a text of the output
  };
  const Row rows[] = {
      {"subscripts nested 1,000 deep", nested(1000), "zzzz_int999 = (*(((int *)(a.ptr)) + ((zzzz_int998))));"},
      {"100 dimensions", dimensions(100), "struct zz100D_meta {"},
      {"10,000 varspaces in one function", many(10000), "(*(((int *)(v9999.ptr)) + ((r)))) = r;"},
  };
  for (const Row& r : rows) {
    PassFixture f;
    f.options.warning_level = 1;
    std::string out = f.compile("s", "\n#line 1 \"s.yc\"\n" + r.source, "s.yc");
    EXPECT_EQ(f.err.str(), "") << r.what;
    EXPECT_NE(out.find(r.expect), std::string::npos) << r.what;
  }
  PassFixture f;
  EXPECT_THROW(f.compile("s", "\n#line 1 \"s.yc\"\n" + nested(10000), "s.yc"), ParserResourceExit);
}

}  // namespace
}  // namespace ycc

namespace ycc {
namespace {

// The output with its long lines joined again (the writer breaks a line past
// column 72 after a blank or comma, continuing with one blank).
std::string joined(const std::string& out) {
  std::string j;
  for (size_t i = 0; i < out.size(); ++i) {
    if (out[i] == '\n' && i > 0 && (out[i - 1] == ' ' || out[i - 1] == ',') && i + 1 < out.size() &&
        out[i + 1] == ' ') {
      ++i;
      continue;
    }
    j += out[i];
  }
  return j;
}

// Assignments and free over deeply nested structures stay linear; a type
// whose nested spaces double at each level is refused, not expanded.
TEST(CompilePass, AssignmentOfDeeplyNestedStructures) {
  auto chain = [](int depth, bool doubling) {
    std::string src = "struct s0 { int a; char var text[]; int f[2]; };\n";
    for (int i = 1; i < depth; ++i)
      src += strf(doubling ? "struct s%d { int b; struct s%d x; struct s%d var many[]; };\n"
                           : "struct s%d { int b; struct s%d x; };\n",
                  i, i - 1, i - 1);
    src += strf("f();\nf()\n{\n   struct s%d p;\n   struct s%d q;\n   p.b = 1;\n   q = p;\n   q === p;\n"
                "   free q;\n}\n",
                depth - 1, depth - 1);
    return src;
  };
  {
    PassFixture f;
    std::string out = joined(f.compile("n", "\n#line 1 \"n.yc\"\n" + chain(1000, false), "n.yc"));
    EXPECT_EQ(f.err.str(), "");
    std::string path = ".x";
    for (int i = 2; i < 1000; ++i) path += ".x";
    EXPECT_NE(out.find("memcpy(q" + path + ".text.ptr, p" + path + ".text.ptr,"), std::string::npos);
  }
  {
    PassFixture f;
    f.compile("n", "\n#line 1 \"n.yc\"\n" + chain(40, true), "n.yc");
    EXPECT_EQ(f.err.str(),
              "\n (line) in 'n.yc'\n (44) **error: 'p' nests more than 100000 spaces: the code that would\n"
              "               set them up, copy them and free them one by one is too\n"
              "               large\n (45) **error: 'q' nests more than 100000 spaces: the code that would\n"
              "               set them up, copy them and free them one by one is too\n               large\n");
  }
  {
    // A space of structures of spaces of structures, copied and freed.
    PassFixture f;
    std::string out = joined(f.compile("n",
                                "\n#line 1 \"n.yc\"\nstruct leaf { char var t[]; };\n"
                                "struct mid { struct leaf var leaves[]; };\n"
                                "f();\nf()\n{\n   struct mid var a[];\n   struct mid var b[];\n   a[1].leaves[2].t[3] = 'x';\n"
                                "   b = a;\n   free a;\n}\n",
                                "n.yc"));
    EXPECT_EQ(f.err.str(), "");
    EXPECT_NE(out.find("((struct leaf *)(((struct mid *)(b.ptr))[zzzz_imw2].leaves.ptr))[zzzz_imw3].t.ptr = malloc("),
              std::string::npos);
  }
}

}  // namespace
}  // namespace ycc
