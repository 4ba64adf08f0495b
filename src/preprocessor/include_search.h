// The search for include files along the include-directory string.
#pragma once

#include <string>

namespace ycc::pp {

struct SearchPath {
  std::string dirs;         // ";"-separated
  bool current_dir = true;  // the current directory is searched first
};

// A source with a directory part searches that directory first and never the
// current directory.
SearchPath search_path_for(const std::string& source_name, const std::string& include_dirs);

// The first candidate that opens: `found` is its name as composed, `text` its content.
bool find_include(const SearchPath& path, const std::string& name, std::string& found,
                  std::string& text);

std::string search_failure_text(const SearchPath& path, const std::string& name);

}  // namespace ycc::pp
