#include "driver/depfile.h"

#include <cerrno>

#include "common/output_file.h"
#include "common/text.h"
#include "diag/diagnostics.h"

namespace ycc {

std::string make_escape(std::string_view path) {
  std::string out;
  out.reserve(path.size());
  for (char c : path) {
    if (c == ' ' || c == '#')
      out += '\\';
    else if (c == '$')
      out += '$';
    out += c;
  }
  return out;
}

std::string dependency_rule(const std::string& target, const std::string& source,
                            const std::vector<std::string>& includes) {
  std::string rule = make_escape(host_path(target));
  rule += ": ";
  rule += make_escape(host_path(source));
  for (const std::string& name : includes) {
    rule += ' ';
    rule += make_escape(name);
  }
  rule += '\n';
  return rule;
}

std::string depfile_name(const std::string& output_name) {
  return output_name.substr(0, output_name.size() - 2) + ".d";
}

void write_depfile(const std::string& path, const std::string& text) {
  OutputFile file(path);
  int err = 0;
  if (!file.open()) {
    err = errno;
  } else {
    if (std::fwrite(text.data(), 1, text.size(), file.stream()) != text.size())
      err = errno != 0 ? errno : EIO;
    if (!file.close() && err == 0) err = errno;
    if (err == 0 && !file.commit()) err = errno;
  }
  if (err != 0)
    fatal(strf("unable to write the dependency file '%s' : %s", path.c_str(),
               system_error_text(err).c_str()));
}

}  // namespace ycc
