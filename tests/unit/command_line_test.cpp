#include "driver/command_line.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace ycc {
namespace {

struct Naming {
  const char* words;
  const char* source;
  const char* output;
  const char* intermediate;
};

std::vector<std::string> split(const char* s) {
  std::istringstream in(s);
  std::vector<std::string> w;
  std::string x;
  while (in >> x) w.push_back(x);
  return w;
}

TEST(CommandLine, OutputAndIntermediateNames) {
  const Naming cases[] = {
      {"a.yc", "a.yc", "a.c", "a.i"},
      {"/O out a.yc", "a.yc", "out/a.c", "out/a.i"},
      {"/Oout\\ a.yc", "a.yc", "out/a.c", "out/a.i"},
      {"-O out/ sub\\dir\\a.yc", "sub\\dir\\a.yc", "out/a.c", "out/a.i"},
      {"/O out src/b.yc", "src/b.yc", "out/b.c", "out/b.i"},
      {"src/b.yc", "src/b.yc", "src/b.c", "src/b.i"},
  };
  for (const Naming& c : cases) {
    Options o;
    std::ostringstream err;
    Diagnostics d(err, o);
    std::vector<std::string> sources;
    ASSERT_TRUE(read_command_line(split(c.words), "ycc", o, sources, d)) << c.words << err.str();
    ASSERT_EQ(sources.size(), 1u);
    SourceFile f = name_source(sources[0], o);
    EXPECT_EQ(f.source_name, c.source);
    EXPECT_EQ(f.output_name, c.output) << c.words;
    EXPECT_EQ(f.intermediate_name, c.intermediate) << c.words;
  }
}

TEST(CommandLine, OptionsAccumulateOrOverride) {
  Options o;
  std::ostringstream err;
  Diagnostics d(err, o);
  std::vector<std::string> sources;
  ASSERT_TRUE(read_command_line(split("/I inc /Iother; -I last /D A;B -DC /E 3 /E7 /L0 /W 100 /F ab1 "
                                      "/H 4 /B /M /U /P /T x.yc y.yc"),
                                "ycc", o, sources, d));
  EXPECT_EQ(o.include_dirs, "inc;other;last");
  EXPECT_EQ(o.defines, (std::vector<std::string>{"A", "B", "C"}));
  EXPECT_EQ(o.error_limit, 7);
  EXPECT_EQ(o.warning_level, 0);
  EXPECT_EQ(o.width, 100);
  EXPECT_EQ(o.prefix, "ab1");
  EXPECT_EQ(o.halfmegs, 4);
  EXPECT_FALSE(o.bounds_checks);
  EXPECT_FALSE(o.memory_locations);
  EXPECT_TRUE(o.unaligned && o.keep_intermediate && o.timestamps);
  EXPECT_EQ(sources, (std::vector<std::string>{"x.yc", "y.yc"}));
  EXPECT_EQ(err.str(), "");
}

TEST(CommandLine, TimestampsDecideTheCompileFlag) {
  namespace fs = std::filesystem;
  fs::path dir = fs::temp_directory_path() / "ycc-cmdline-test";
  fs::create_directories(dir);
  std::string src = (dir / "t.yc").string(), out = (dir / "t.c").string();
  std::ofstream(src) << "int x;\n";
  Options o;
  o.timestamps = true;
  fs::remove(out);
  EXPECT_EQ(name_source(src, o).compile_flag, 'y');  // no output yet
  std::ofstream(out) << "\n";
  fs::last_write_time(out, fs::last_write_time(src) + std::chrono::seconds(5));
  SourceFile newer = name_source(src, o);
  EXPECT_EQ(newer.compile_flag, 'n');
  EXPECT_NE(newer.output_time, 0);
  fs::last_write_time(out, fs::last_write_time(src));
  EXPECT_EQ(name_source(src, o).compile_flag, 'y');  // equal times compile
  o.timestamps = false;
  fs::last_write_time(out, fs::last_write_time(src) + std::chrono::seconds(5));
  EXPECT_EQ(name_source(src, o).compile_flag, 'y');
  fs::remove_all(dir);
}

}  // namespace
}  // namespace ycc
