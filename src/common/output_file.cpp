#include "common/output_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "common/text.h"

namespace ycc {

OutputFile::OutputFile(const std::string& final_name) : final_(host_path(final_name)) {}

OutputFile::~OutputFile() {
  if (f_) std::fclose(f_);
  if (!temp_.empty() && !committed_) ::unlink(temp_.c_str());
}

bool OutputFile::open() {
  std::vector<char> name(final_.begin(), final_.end());
  for (char c : std::string_view(".tmp-XXXXXX")) name.push_back(c);
  name.push_back('\0');
  int fd = ::mkstemp(name.data());
  if (fd < 0) return false;
  temp_ = name.data();
  // mkstemp creates the file for its owner only; the output gets the mode
  // that a plain creation would give it.
  mode_t mask = ::umask(0);
  ::umask(mask);
  ::fchmod(fd, 0666 & ~mask);
  f_ = ::fdopen(fd, "w");
  if (!f_) {
    int err = errno;
    ::close(fd);
    errno = err;
    return false;
  }
  return true;
}

bool OutputFile::close() {
  std::FILE* f = f_;
  f_ = nullptr;
  return !f || std::fclose(f) == 0;
}

bool OutputFile::commit() {
  // Renaming onto an existing file makes ext4 (auto_da_alloc) start writing
  // the new file's data out inside rename(), some milliseconds for a large
  // output; a generated file needs no such care, so the old one goes first.
  // A directory of that name stays, and the rename then reports it.
  remove_output(final_);
  if (std::rename(temp_.c_str(), final_.c_str()) != 0) return false;
  committed_ = true;
  return true;
}

void remove_output(const std::string& name) {
  std::string path = host_path(name);
  struct stat st;
  if (::lstat(path.c_str(), &st) == 0 && !S_ISDIR(st.st_mode)) ::unlink(path.c_str());
}

}  // namespace ycc
