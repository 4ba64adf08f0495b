#include "preprocessor/include_search.h"

#include <vector>

#include "common/text.h"

namespace ycc::pp {

namespace {

std::vector<std::string> pieces(const std::string& dirs) {
  std::vector<std::string> out;
  size_t start = 0;
  while (start <= dirs.size()) {
    size_t semi = dirs.find(';', start);
    if (semi == std::string::npos) semi = dirs.size();
    if (semi > start) out.push_back(dirs.substr(start, semi - start));
    start = semi + 1;
  }
  return out;
}

bool try_open(const std::string& name, std::string& text) {
  int err = 0;
  return read_file(host_path(name), text, err);
}

}  // namespace

SearchPath search_path_for(const std::string& source_name, const std::string& include_dirs) {
  SearchPath p;
  p.dirs = include_dirs;
  size_t sep = source_name.find_last_of("\\/");
  if (sep != std::string::npos) {
    p.dirs = source_name.substr(0, sep) + ";" + include_dirs;
    p.current_dir = false;
  }
  return p;
}

bool find_include(const SearchPath& path, const std::string& name, std::string& found,
                  std::string& text) {
  if (path.current_dir && try_open(name, text)) {
    found = name;
    return true;
  }
  for (const std::string& dir : pieces(path.dirs)) {
    std::string candidate = dir;
    if (candidate.back() != '\\' && candidate.back() != '/') candidate += '/';
    candidate += name;
    if (try_open(candidate, text)) {
      found = candidate;
      return true;
    }
  }
  return false;
}

std::string search_failure_text(const SearchPath& path, const std::string& name) {
  size_t n = pieces(path.dirs).size();
  return strf("unable to open include file '%s' : %sthe %s '%s'", name.c_str(),
              path.current_dir ? "besides the current directory, " : "",
              n == 1 ? "directory searched was" : "directories searched were", path.dirs.c_str());
}

}  // namespace ycc::pp
