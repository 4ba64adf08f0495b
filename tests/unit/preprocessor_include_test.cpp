#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "common/file_time.h"
#include "common/options.h"
#include "preprocessor/include_search.h"
#include "preprocessor_test_util.h"

namespace ycc::pp {
namespace {

namespace fs = std::filesystem;
using test::run_pp;

// Runs each test in a fresh directory, since the search starts in the current one.
class IncludeTest : public ::testing::Test {
 protected:
  void SetUp() override {
    old_ = fs::current_path();
    dir_ = fs::temp_directory_path() / ("ycc_pp_inc_" + std::to_string(::getpid()) + "_" +
                                        ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
    fs::current_path(dir_);
  }
  void TearDown() override {
    fs::current_path(old_);
    fs::remove_all(dir_);
  }
  static void write(const std::string& name, const std::string& text) {
    fs::path p(name);
    if (p.has_parent_path()) fs::create_directories(p.parent_path());
    std::ofstream(name, std::ios::binary) << text;
  }
  fs::path old_, dir_;
};

TEST_F(IncludeTest, SearchPathRules) {
  SearchPath p = search_path_for("a.yc", "i1;i2");
  EXPECT_TRUE(p.current_dir);
  EXPECT_EQ(p.dirs, "i1;i2");
  p = search_path_for("sub\\a.yc", "i1");
  EXPECT_FALSE(p.current_dir);
  EXPECT_EQ(p.dirs, "sub;i1");
  p = search_path_for("x/y/a.yc", "");
  EXPECT_EQ(p.dirs, "x/y;");
}

TEST_F(IncludeTest, FindsInOrder) {
  write("cur.h", "c");
  write("d1/b.h", "one");
  write("d2/b.h", "two");
  write("d2/only.h", "only");
  std::string found, text;
  SearchPath p{"d1;;d2", true};
  ASSERT_TRUE(find_include(p, "cur.h", found, text));
  EXPECT_EQ(found, "cur.h");
  ASSERT_TRUE(find_include(p, "b.h", found, text));
  EXPECT_EQ(found, "d1/b.h");
  EXPECT_EQ(text, "one");
  ASSERT_TRUE(find_include({"d1\\;d2/", true}, "only.h", found, text));
  EXPECT_EQ(found, "d2/only.h");
  EXPECT_FALSE(find_include({"d1", false}, "cur.h", found, text));
  // A directory of the include's name is not a file.
  fs::create_directories("dir.h");
  EXPECT_FALSE(find_include({"", true}, "dir.h", found, text));
}

TEST_F(IncludeTest, FailureText) {
  EXPECT_EQ(search_failure_text({"i1", true}, "x.h"),
            "unable to open include file 'x.h' : besides the current directory, the directory "
            "searched was 'i1'");
  EXPECT_EQ(search_failure_text({"i1;;i2", false}, "x.h"),
            "unable to open include file 'x.h' : the directories searched were 'i1;;i2'");
  EXPECT_EQ(search_failure_text({"", true}, "x.h"),
            "unable to open include file 'x.h' : besides the current directory, the directories "
            "searched were ''");
}

TEST_F(IncludeTest, NestedExternBracketsOnce) {
  write("b.h", "#include extern \"c.h\"\nint b;\n");
  write("c.h", "int c;\n");
  test::PpRun r = run_pp("#include extern \"b.h\"\n#include extern \"c.h\"\n");
  EXPECT_EQ(r.text,
            "\n#line 1 \"a.yc\"\n"
            "\n#line 1 \"b.h\"\n#pragma extern_on\n"
            "\n#line 1 \"c.h\"\nint c;\n"
            "\n#line 1 \"b.h\"\n\nint b;\n"
            "\n#pragma extern_off\n"
            "\n#line 1 \"a.yc\"\n"
            "\n#line 1 \"c.h\"\n#pragma extern_on\nint c;\n"
            "\n#pragma extern_off\n"
            "\n#line 2 \"a.yc\"\n\n");
  EXPECT_EQ(r.messages, "");
}

TEST_F(IncludeTest, RecursionNamesTheChain) {
  write("b.h", "#include \"c.h\"\n");
  write("c.h", "\n#include \"b.h\"\n");
  test::PpRun r = run_pp("#include \"b.h\"\n");
  EXPECT_EQ(r.messages,
            "\n (line) in 'c.h'\n"
            " (2) **error: the #include is part of a recursive self-reference as\n"
            "              follows: 'b.h' includes 'c.h' includes 'b.h'\n");
  // The source itself takes part.
  write("a.yc", "#include \"a.yc\"\n");
  r = run_pp("#include \"a.yc\"\n");
  EXPECT_NE(r.messages.find("'a.yc' includes 'a.yc'"), std::string::npos);
}

TEST_F(IncludeTest, DeepChainIsIterative) {
  const int depth = 1000;
  for (int i = 0; i < depth; ++i)
    write("h" + std::to_string(i) + ".h",
          "#include \"h" + std::to_string(i + 1) + ".h\"\nint v" + std::to_string(i) + ";\n");
  write("h" + std::to_string(depth) + ".h", "int bottom;\n");
  test::PpRun r = run_pp("#include \"h0.h\"\n");
  EXPECT_EQ(r.messages, "");
  EXPECT_NE(r.text.find("int bottom;"), std::string::npos);
  EXPECT_NE(r.text.find("int v0;"), std::string::npos);
}

TEST_F(IncludeTest, TimestampsMakeTheFileOutOfDate) {
  write("old.h", "int o;\n");
  write("new.h", "int n;\n");
  auto now = fs::file_time_type::clock::now();
  fs::last_write_time("old.h", now - std::chrono::hours(2));
  fs::last_write_time("new.h", now);
  std::int64_t output_time = file_mtime("old.h") + std::int64_t{3600} * 1000000000;
  Options o;
  o.timestamps = true;
  EXPECT_EQ(run_pp("#include \"old.h\"\n", o, "a.yc", 'n', output_time).compile_flag, 'n');
  EXPECT_EQ(run_pp("#include \"new.h\"\n", o, "a.yc", 'n', output_time).compile_flag, 'y');
  EXPECT_EQ(run_pp("#include \"old.h\"\n", o, "a.yc", 'y', output_time).compile_flag, 'y');
}

TEST_F(IncludeTest, HeadingPrintedAgainAfterInclude) {
  write("b.h", "#bad2\n");
  test::PpRun r = run_pp("#bad1\n#include \"b.h\"\n#bad3\n");
  EXPECT_EQ(r.messages,
            "\n (line) in 'a.yc'\n (1) **error: #bad1 is an invalid preprocessor command\n"
            "\n (line) in 'b.h'\n (1) **error: #bad2 is an invalid preprocessor command\n"
            "\n (line) in 'a.yc'\n (3) **error: #bad3 is an invalid preprocessor command\n");
}

}  // namespace
}  // namespace ycc::pp
