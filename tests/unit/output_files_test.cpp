// What a run leaves beside its sources when an output cannot be written:
// never a truncated output, a temporary file or a stray intermediate file.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "common/text.h"
#include "driver/driver.h"

namespace ycc {
namespace {

namespace fs = std::filesystem;

// A fresh directory that the run works in.
struct RunDir {
  fs::path dir, saved;
  RunDir() {
    static int n = 0;
    dir = fs::temp_directory_path() / strf("ycc_outputs_%d_%d", static_cast<int>(getpid()), ++n);
    fs::create_directories(dir);
    saved = fs::current_path();
    fs::current_path(dir);
  }
  ~RunDir() {
    fs::current_path(saved);
    std::error_code ec;
    fs::remove_all(dir, ec);
  }
  // Every entry, directories with a trailing "/".
  std::set<std::string> entries() const {
    std::set<std::string> names;
    for (const auto& e : fs::recursive_directory_iterator(dir))
      names.insert(fs::relative(e.path(), dir).string() + (e.is_directory() ? "/" : ""));
    return names;
  }
};

// Writes beyond `bytes` fail with "File too large" in every file of the process.
struct FileSizeLimit {
  rlimit saved{};
  void (*handler)(int) = SIG_DFL;
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &saved);
    rlimit l = saved;
    l.rlim_cur = bytes ? bytes : saved.rlim_cur;
    setrlimit(RLIMIT_FSIZE, &l);
    handler = signal(SIGXFSZ, SIG_IGN);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &saved);
    signal(SIGXFSZ, handler);
  }
};

std::string fatal_report(const std::string& text) {
  return "\n ** fatal error:\n " + text + "\n YARL C compiler terminated\n\n";
}

struct Case {
  const char* name;
  std::vector<std::string> words;
  std::string earlier_output;  // a.c before the run: "" none, "/" a directory
  rlim_t size_limit;           // 0: none
  int status;
  std::string err;
  std::set<std::string> left;
};

TEST(OutputFiles, NothingTruncatedOrStrayIsLeft) {
  const Case cases[] = {
      {"output name is a directory", {"a.yc"}, "/", 0, 1,
       fatal_report("unable to open file 'a.c' for output: Is a directory"),
       {"a.yc", "a.c/", "a.c/keep"}},
      // The intermediate file (25 bytes) and the work file (no support
      // functions with /M and /B) fit; the output, with its header, does not.
      {"output write fails", {"/M", "/B", "a.yc"}, "from an earlier run\n", 64, 1,
       fatal_report("error writing to file 'a.c': File too large"), {"a.yc"}},
      {"output write fails, /P keeps the complete intermediate", {"/M", "/B", "/P", "a.yc"}, "", 64, 1,
       fatal_report("error writing to file 'a.c': File too large"), {"a.yc", "a.i"}},
      {"intermediate write fails", {"/P", "a.yc"}, "from an earlier run\n", 8, 1,
       "\n (line) in 'a.yc'\n (1) **error: output file 'a.i' : File too large\n", {"a.yc"}},
      {"success replaces an earlier output", {"a.yc"}, "from an earlier run\n", 0, 0, "",
       {"a.yc", "a.c"}},
  };
  for (const Case& c : cases) {
    RunDir run;
    std::ofstream("a.yc") << "int a;\n";
    if (c.earlier_output == "/") {
      fs::create_directory("a.c");
      std::ofstream("a.c/keep");
    } else if (!c.earlier_output.empty()) {
      std::ofstream("a.c") << c.earlier_output;
    }
    std::vector<std::string> args{"ycc"};
    args.insert(args.end(), c.words.begin(), c.words.end());
    std::ostringstream out, err;
    int status;
    {
      FileSizeLimit limit(c.size_limit);
      status = run_compiler(args, out, err);
    }
    EXPECT_EQ(status, c.status) << c.name;
    EXPECT_EQ(err.str(), c.err) << c.name;
    EXPECT_EQ(run.entries(), c.left) << c.name;
    if (c.status == 0) {
      std::string text;
      int e;
      ASSERT_TRUE(read_file("a.c", text, e));
      EXPECT_EQ(text.rfind("\n#define FALSE 0\n", 0), 0u) << text;
      // A new output gets the mode of any newly created file.
      mode_t mask = umask(0);
      umask(mask);
      struct stat st;
      ASSERT_EQ(stat("a.c", &st), 0);
      EXPECT_EQ(st.st_mode & 0777, 0666 & ~mask);
    }
  }
}

}  // namespace
}  // namespace ycc
