#include "translate/support.h"

#include <algorithm>

#include "common/text.h"
#include "decl/library_table.h"

namespace ycc {

namespace {
constexpr int file_factor = 1000000;
}

int SupportFunctions::position(int line_code) {
  int file = line_code / file_factor;
  auto found = std::find(table_.begin(), table_.end(), file);
  int index = static_cast<int>(found - table_.begin());
  if (found == table_.end()) table_.push_back(file);
  return index * file_factor + line_code % file_factor;
}

std::string SupportFunctions::files_table() const {
  size_t longest = 0;
  for (int f : table_) longest = std::max(longest, files_.name(f).size());
  std::string t = strf("static char files[%d][%d] = {", static_cast<int>(table_.size()), static_cast<int>(longest + 1));
  for (size_t i = 0; i < table_.size(); ++i) {
    // A file name is a C string literal here: backslashes doubled (and a
    // quote, which no usual name has, escaped).
    std::string name;
    for (char c : files_.name(table_[i])) {
      if (c == '\\' || c == '"') name += '\\';
      name += c;
    }
    appendf(t, "\"%s\"%s", name.c_str(), i + 1 < table_.size() ? ", " : "};");
  }
  return t;
}

void SupportFunctions::generate(Workspace& ws, const Options& options, int source_line_code) {
  // A table cannot be empty in C: the compiled file stands in it at least.
  if (table_.empty()) position(source_line_code);
  // Declared here rather than by including math.h, whose other names could
  // collide with the program's.
  for (const std::string& name : c_math_) ws.globals += "\n" + c_math_declaration(name);
  if (options.memory_locations) {
    std::string header = strf("\nstatic void %s(int line)", out_of_memory().c_str());
    ws.globals += header + ";";
    appendf(ws.deferred, "\n\n%s\n{\n%s", header.c_str(), files_table().c_str());
    ws.deferred +=
        "\n\nfprintf(stderr, \"\\nmemory request failed:\\n\");\nfprintf(stderr, \"\\n failed when requested "
        "memory,\\n\");\nfprintf(stderr, \" at line %d in file %s\\n\\n\",\n       line % 1000000, files[line / "
        "1000000]);\n\nreturn;\n}\n";
  }
  if (options.bounds_checks) {
    std::string header =
        strf("\nstatic void %s(char *name, int line, int additional_args, ...)", bounds_exceeded().c_str());
    // --noreturn: compilers that know the report ends the program drop the
    // tests that an earlier failing test already decided.
    if (options.noreturn_reports) ws.globals += "\n#ifdef __GNUC__\n__attribute__((noreturn))\n#endif";
    ws.globals += header + ";";
    appendf(ws.deferred, "\n\n#include <stdarg.h>\n\n%s\n{\nint wrk1;\n%s sub, limit;\n%s", header.c_str(), "unsigned",
                        files_table().c_str());
    appendf(ws.deferred, 
        "\nva_list ap;\nva_start(ap, additional_args);\n\nfprintf(stderr, \"\\nexecution aborted: space bounds "
        "exceeded:\\n\\n\");\nfprintf(stderr, \" executed this reference: %%s\", name);\nfor(wrk1 = 0; wrk1 < "
        "additional_args / 2; ++wrk1)\n    {sub = va_arg(ap, %s);\n     fprintf(stderr, \"[%s]\", sub);}"
        "\nfprintf(stderr, \",\\n at line %%d in file %%s,\\n\",\n        line %% 1000000, files[line / 1000000]);"
        "\nfprintf(stderr, \" but current limit%%s \",\n        additional_args > 2 ? \"s are\" : \" (or occurs) "
        "is\");\nfor(wrk1 = additional_args / 2; wrk1 < additional_args; ++wrk1)\n    {limit = va_arg(ap, %s);\n"
        "     fprintf(stderr, \"[%s]\", limit);}\nfprintf(stderr, \"\\n\\n\");\n\nva_end(ap);\nexit(1);\n}\n",
        "unsigned", "%u", "unsigned", "%u");
  }
}

}  // namespace ycc
