#pragma once

#include <cstdint>
#include <string>

namespace ycc {

// A file's modification time in nanoseconds, or 0 when it cannot be read.
std::int64_t file_mtime(const std::string& name);

}  // namespace ycc
