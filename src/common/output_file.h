// Generated files are written under a unique temporary name beside their
// final name and renamed onto it only when complete, so that a failed or
// interrupted run never leaves a truncated file under the final name.
#pragma once

#include <cstdio>
#include <string>

namespace ycc {

class OutputFile {
 public:
  explicit OutputFile(const std::string& final_name);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  // An uncommitted temporary is closed and removed.
  ~OutputFile();

  // Creates "<final name>.tmp-XXXXXX"; false with errno set.
  bool open();
  std::FILE* stream() const { return f_; }
  // Flushes and closes the temporary; false with errno set.
  bool close();
  // Renames the closed temporary onto the final name; false with errno set.
  bool commit();

 private:
  std::string final_;
  std::string temp_;
  std::FILE* f_ = nullptr;
  bool committed_ = false;
};

// Removes a file of this run's output; a directory of that name stays.
void remove_output(const std::string& name);

}  // namespace ycc
