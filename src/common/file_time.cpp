#include "common/file_time.h"

#include <sys/stat.h>

namespace ycc {

std::int64_t file_mtime(const std::string& name) {
  struct stat st;
  if (stat(name.c_str(), &st) != 0) return 0;
  return static_cast<std::int64_t>(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
}

}  // namespace ycc
