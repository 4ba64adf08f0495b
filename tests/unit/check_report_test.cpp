#include "driver/check_report.h"

#include <gtest/gtest.h>

namespace ycc {
namespace {

TEST(CheckReport, NamesOtherFilesAndCountsInSingularAndPlural) {
  FileTable files;
  int a = files.intern("a.yc"), h = files.intern("inc/h.yc");
  std::vector<Workspace::FunctionChecks> functions(2);
  functions[0] = {"walk", a * 1000000 + 3, {a * 1000000 + 9, h * 1000000 + 4, a * 1000000 + 5}, {a * 1000000 + 9}, {}};
  functions[1] = {"", 0, {}, {}, {a * 1000000 + 12, a * 1000000 + 12}};
  EXPECT_EQ(format_check_report("a.yc", functions, files),
            " checks in  'a.yc'\n"
            "   walk (body at line 3): 3 subscript checks (lines 5, 9, inc/h.yc:4), 1 growth point (line 9), "
            "0 exception tests\n"
            "   outside functions: 0 subscript checks, 0 growth points, 2 exception tests (lines a.yc:12, "
            "a.yc:12)\n"
            "   all functions: 3 subscript checks, 1 growth point, 2 exception tests\n");
}

}  // namespace
}  // namespace ycc
