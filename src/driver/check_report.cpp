#include "driver/check_report.h"

#include <algorithm>

#include "common/text.h"

namespace ycc {

namespace {

// "3 subscript checks (lines 5, 6, 6)"; a line of another file than the
// function's is written with that file's name.
void append_kind(std::string& out, std::vector<int> lines, const char* one, const char* many, int home,
                 const FileTable& files) {
  std::sort(lines.begin(), lines.end());
  appendf(out, "%d %s", static_cast<int>(lines.size()), lines.size() == 1 ? one : many);
  if (lines.empty()) return;
  out += lines.size() == 1 ? " (line " : " (lines ";
  for (size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) out += ", ";
    int file = lines[i] / 1000000;
    if (file != home) appendf(out, "%s:", files.name(file).c_str());
    appendf(out, "%d", lines[i] % 1000000);
  }
  out += ')';
}

}  // namespace

std::string format_check_report(const std::string& source, const std::vector<Workspace::FunctionChecks>& functions,
                                const FileTable& files) {
  std::string out = strf(" checks in  '%s'\n", source.c_str());
  size_t s = 0, g = 0, e = 0;
  for (const Workspace::FunctionChecks& f : functions) {
    int home = f.line / 1000000;
    if (f.name.empty())
      out += "   outside functions: ";
    else
      appendf(out, "   %s (body at line %d): ", f.name.c_str(), f.line % 1000000);
    append_kind(out, f.subscripts, "subscript check", "subscript checks", home, files);
    out += ", ";
    append_kind(out, f.growths, "growth point", "growth points", home, files);
    out += ", ";
    append_kind(out, f.exceptions, "exception test", "exception tests", home, files);
    out += '\n';
    s += f.subscripts.size();
    g += f.growths.size();
    e += f.exceptions.size();
  }
  appendf(out, "   all functions: %d subscript check%s, %d growth point%s, %d exception test%s\n", static_cast<int>(s),
          s == 1 ? "" : "s", static_cast<int>(g), g == 1 ? "" : "s", static_cast<int>(e), e == 1 ? "" : "s");
  return out;
}

}  // namespace ycc
