#include <gtest/gtest.h>

#include <sstream>

#include "diag/diagnostics.h"

namespace ycc {
namespace {

TEST(Layout, Placeholder) {
  Options o;
  std::ostringstream err;
  Diagnostics d(err, o);
  EXPECT_EQ(d.layout(" (1) **error: ", "abc"), " (1) **error: abc\n");
}

}  // namespace
}  // namespace ycc
