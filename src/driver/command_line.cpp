#include "driver/command_line.h"

#include <climits>

#include "common/file_time.h"
#include "common/text.h"

namespace ycc {

const char* const usage_text =
    "\n"
    "  OPTIONS (either '-' or '/' begins the option):\n"
    "\n"
    " /B         Do not generate bounds-checking code.\n"
    "\n"
    " /D names   'names' is a list of one or more names (separated by\n"
    "            semicolons) that are defined before processing begins.\n"
    "\n"
    " /E number  'number' is an error limit: processing of a source file\n"
    "            stops as soon as this number of errors is seen. The default\n"
    "            is 50 and the minimum is 1.\n"
    "\n"
    " /F text    'text' is a prefix the compiler adds to any generated names\n"
    "            it produces. 'text' is limited to at most four alphanumeric\n"
    "            characters, beginning with a letter. The default is 'zz'.\n"
    "\n"
    " /H number  'number' is a size in half-megabytes: the compiler allocates\n"
    "            various workspaces as a percentage of this size. The default\n"
    "            is 2 and the minimum is 1.\n"
    "\n"
    " /I dirs    'dirs' is a list of one or more directories (separated by\n"
    "            semicolons) that are searched to find #include files.\n"
    "\n"
    " /L number  'number' is the number of warning levels reported. 'number'\n"
    "            can range from 0 (no warnings) to 3 (all warnings). The\n"
    "            default is 3.\n"
    "\n"
    " /M         Do not generate code for pinpointing memory-failure locations.\n"
    "\n"
    " /O dir     'dir' is the output directory where all compiler-generated\n"
    "            files are placed.\n"
    "\n"
    " /P         For each source file, the intermediate file (name.i) is saved\n"
    "            (the intermediate file is the preprocessed source file).\n"
    "\n"
    " /T         Use file timestamps (including the timestamps of any #include\n"
    "            files) to limit compilation to those files that have been\n"
    "            updated since the previous compile.\n"
    "\n"
    " /U         Generate unaligned code for each assignment to/from a casted\n"
    "            character space. The default generates alignment-safe code.\n"
    "\n"
    " /W number  'number' is the width of message lines. The default is 72 and\n"
    "            the minimum is 50.\n";

namespace {

// A whole number: decimal digits only, representable as int.
bool whole_number(const std::string& s, int& value) {
  if (s.empty()) return false;
  long long v = 0;
  for (char c : s) {
    if (!is_digit(c)) return false;
    v = v * 10 + (c - '0');
    if (v > INT_MAX) return false;
  }
  value = static_cast<int>(v);
  return true;
}

void check_number(const std::string& arg, int min, int max, int& target, const char* message,
                  Diagnostics& diag) {
  int v;
  if (whole_number(arg, v) && v >= min && v <= max)
    target = v;
  else
    diag.pp_error(strf(message, arg.c_str()), nullptr);
}

void check_prefix(const std::string& arg, Options& options, Diagnostics& diag) {
  bool ok = !arg.empty() && arg.size() <= 4 && is_alpha(arg[0]);
  for (size_t i = 1; ok && i < arg.size(); ++i) ok = is_alpha(arg[i]) || is_digit(arg[i]);
  if (ok)
    options.prefix = arg;
  else
    diag.pp_error(strf("the generated-names prefix must be one to four alphanumeric characters "
                       "(letters or digits), beginning with a letter: found '%s'",
                       arg.c_str()),
                  nullptr);
}

void check_defines(const std::string& arg, Options& options, Diagnostics& diag) {
  size_t start = 0;
  while (start <= arg.size()) {
    size_t end = arg.find(';', start);
    if (end == std::string::npos) end = arg.size();
    std::string name = arg.substr(start, end - start);
    bool ok = true;
    for (size_t i = 0; i < name.size(); ++i) {
      bool good = i == 0 ? is_ident_start(name[i]) : is_ident_char(name[i]);
      if (!good) {
        diag.pp_error(strf("the name %s character '%c' is not a valid identifier: '%s'",
                           i == 0 ? "beginning with" : "containing", name[i], arg.c_str()),
                      nullptr);
        ok = false;
        break;
      }
    }
    if (ok && !name.empty()) options.defines.push_back(name);
    start = end + 1;
  }
}

void apply_argument(char letter, const std::string& arg, Options& options, Diagnostics& diag) {
  switch (letter) {
    case 'E':
      check_number(arg, 1, INT_MAX, options.error_limit,
                   "the number of errors allowed before ending compilation must be an integer "
                   "not less than 1: found '%s'",
                   diag);
      break;
    case 'H':
      check_number(arg, 1, INT_MAX, options.halfmegs,
                   "the size in half-megabytes of a workspace unit must be an integer not less "
                   "than 1: found '%s'",
                   diag);
      break;
    case 'L':
      check_number(arg, 0, 3, options.warning_level,
                   "the warning level must be an integer from 0 (no warnings) to 3 (all "
                   "warnings): found '%s'",
                   diag);
      break;
    case 'W':
      check_number(arg, 50, INT_MAX, options.width,
                   "the report width must be an integer not less than 50: found '%s'", diag);
      break;
    case 'F':
      check_prefix(arg, options, diag);
      break;
    case 'D':
      check_defines(arg, options, diag);
      break;
    case 'I':
      append_include_dirs(options.include_dirs, arg);
      break;
    case 'O': {
      std::string dir = arg;
      if (!dir.empty() && (dir.back() == '\\' || dir.back() == '/')) dir.pop_back();
      options.output_dir = dir;
      break;
    }
  }
}

// Options beyond the described ones.
bool extra_option(const std::string& word, Options& options) {
  static constexpr struct {
    const char* word;
    bool Options::*flag;
  } flags[] = {
      {"--dump-symbols", &Options::dump_symbols},     {"--dump-tokens", &Options::dump_tokens},
      {"--noreturn", &Options::noreturn_reports},     {"--wide-subscripts", &Options::wide_subscripts},
      {"--diagnostics=gcc", &Options::gcc_diagnostics}, {"--line-directives", &Options::line_directives},
      {"--report-checks", &Options::report_checks},   {"--depfile", &Options::depfile},
      {"--quiet", &Options::quiet},                   {"--run", &Options::run},
      {"--direct-calls", &Options::direct_calls},     {"--versioned-loops", &Options::versioned_loops},
  };
  for (const auto& f : flags) {
    if (word == f.word) {
      options.*f.flag = true;
      return true;
    }
  }
  if (word.rfind("--depfile=", 0) == 0 && word.size() > 10) {
    options.depfile_path = word.substr(10);
    return true;
  }
  return false;
}

}  // namespace

void append_include_dirs(std::string& dirs, const std::string& more) {
  if (!dirs.empty() && dirs.back() != ';') dirs += ';';
  dirs += more;
}

bool read_command_line(const std::vector<std::string>& words, const std::string& program,
                       Options& options, std::vector<std::string>& sources, Diagnostics& diag) {
  int errors_before = diag.run_errors;
  char pending = 0;
  static const char flags_with_argument[] = "IDWHELFO";
  static const char option_letters[] = "IDPTWHELBMUFO";
  for (const std::string& word : words) {
    if (pending) {
      apply_argument(pending, word, options, diag);
      pending = 0;
      continue;
    }
    if (word.size() >= 2 && (word[0] == '/' || word[0] == '-') &&
        std::string_view(option_letters).find(word[1]) != std::string_view::npos) {
      char letter = word[1];
      if (std::string_view(flags_with_argument).find(letter) == std::string_view::npos) {
        switch (letter) {
          case 'B': options.bounds_checks = false; break;
          case 'M': options.memory_locations = false; break;
          case 'U': options.unaligned = true; break;
          case 'P': options.keep_intermediate = true; break;
          case 'T': options.timestamps = true; break;
        }
      } else if (word.size() > 2) {
        apply_argument(letter, word.substr(2), options, diag);
      } else {
        pending = letter;
      }
      continue;
    }
    if (word.rfind("--", 0) == 0) {
      if (!extra_option(word, options))
        diag.pp_error(strf("'%s' is an unrecognized option: enter '%s' by itself to get a list "
                           "of valid options",
                           word.c_str(), program.c_str()),
                      nullptr);
      continue;
    }
    if (!ends_with(word, ".yc")) {
      diag.pp_error(strf("'%s' is unrecognized: the name of each source file must end with .yc : "
                         "enter '%s' by itself to get a list of valid options",
                         word.c_str(), program.c_str()),
                    nullptr);
      return false;
    }
    sources.push_back(word);
  }
  if (pending) diag.pp_error("the last option is missing its argument", nullptr);
  if (sources.empty()) diag.pp_error("specify the source file(s) on the command line", nullptr);
  return diag.run_errors == errors_before;
}

SourceFile name_source(const std::string& source, const Options& options) {
  SourceFile f;
  f.source_name = source;
  std::string out;
  if (!options.output_dir.empty()) {
    size_t sep = source.find_last_of("\\/");
    out = options.output_dir + "/" + (sep == std::string::npos ? source : source.substr(sep + 1));
  } else {
    out = source;
  }
  f.output_name = out.substr(0, out.size() - 3) + ".c";
  f.intermediate_name = f.output_name.substr(0, f.output_name.size() - 1) + "i";
  if (options.timestamps) {
    std::int64_t src = file_mtime(f.source_name);
    std::int64_t dst = file_mtime(f.output_name);
    if (src != 0 && dst != 0 && src < dst) {
      f.compile_flag = 'n';
      f.output_time = dst;
    }
  }
  return f;
}

}  // namespace ycc
