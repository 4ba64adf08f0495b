#include "driver/driver.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "common/output_file.h"
#include "common/text.h"
#include "diag/diagnostics.h"
#include "driver/check_report.h"
#include "driver/command_line.h"
#include "driver/depfile.h"
#include "driver/run_program.h"
#include "compile/compile_pass.h"
#include "preprocessor/preprocessor.h"

namespace ycc {

namespace {

const char banner[] =
    "\n YARL C (tm) Compiler Version 1.04\n"
    " Copyright (c) 2026 the YARL C project\n"
    "\n";

const char memory_exhausted[] = "\n\n  ** memory is exhausted -- unable to continue **\n\n";

class Driver {
 public:
  Driver(std::ostream& out, std::ostream& err)
      : out_(&out), progress_(&out), err_(err), diag_(err, options_) {}

  int run(const std::vector<std::string>& args);

 private:
  // --run: finds the run-time library and makes the folder the C files go to.
  bool prepare_run(const std::string& program);
  void process(const SourceFile& file);
  void preprocess_and_compile(const SourceFile& file, PpJob& job);
  // --depfile: the rule of a file translated without errors (or up to date).
  void record_dependencies(const SourceFile& file, const PpJob& job);
  // Removes the intermediate file unless /P, and the output C file of a failed file.
  void discard(const SourceFile& file, const PpJob& job, bool failed);
  int finish();

  // The progress lines' stream: the standard output, or under --run the
  // error stream, so that the standard output is the program's alone.
  std::ostream* out_;
  // The banner and the preprocess and compile lines: out_, or nowhere under --quiet.
  std::ostream* progress_;
  std::ostream nowhere_{nullptr};
  std::ostream& err_;
  Options options_;
  Diagnostics diag_;
  CompileSession session_;
  std::string depfile_rules_;  // --depfile=PATH: the rules of the files done so far
  Runtime runtime_;
  TempFolder run_folder_;
};

int Driver::run(const std::vector<std::string>& args) {
  std::vector<std::string> words(args.begin() + (args.empty() ? 0 : 1), args.end());
  std::vector<std::string> program_words;
  if (split_run_words(words, program_words)) out_ = &err_;
  progress_ = std::find(words.begin(), words.end(), "--quiet") != words.end() ? &nowhere_ : out_;
  *progress_ << banner;
  if (args.size() <= 1) {
    *out_ << usage_text;
    return 1;
  }
  std::vector<std::string> sources;
  if (!read_command_line(words, args[0], options_, sources, diag_)) return finish();
  if (const char* env = std::getenv("YCINC")) append_include_dirs(options_.include_dirs, env);
  if (options_.run && !prepare_run(args[0])) return 1;

  int last_total = 0;
  std::vector<std::string> c_files;
  for (const std::string& source : sources) {
    int total = diag_.run_errors + diag_.run_warnings;
    if (total != last_total) *progress_ << '\n';
    last_total = total;
    *progress_ << " preprocess '" << source << "'\n";
    progress_->flush();
    SourceFile file = name_source(source, options_);
    process(file);
    c_files.push_back(file.output_name);
  }
  if (!options_.depfile_path.empty()) write_depfile(options_.depfile_path, depfile_rules_);
  int status = finish();
  if (!options_.run || diag_.run_errors > 0) return status;
  // The program is named after its first source.
  std::string name = sources.front();
  size_t sep = name.find_last_of("\\/");
  if (sep != std::string::npos) name.erase(0, sep + 1);
  name.resize(name.size() - 3);
  return build_and_run(c_files, run_folder_.path() + "/" + name, name, runtime_, program_words,
                       err_);
}

bool Driver::prepare_run(const std::string& program) {
  std::string error;
  if (!find_runtime(program, runtime_, error) || !run_folder_.make(error)) {
    err_ << "ycc: " << error << "\n";
    return false;
  }
  // <ycrt.h> is found without /I, after the directories given.
  append_include_dirs(options_.include_dirs, runtime_.header_dir);
  options_.output_dir = run_folder_.path();
  return true;
}

void Driver::process(const SourceFile& file) {
  int errors_before = diag_.run_errors;
  diag_.pp_errors = 0;
  PpJob job;
  job.source_name = file.source_name;
  job.intermediate_name = file.intermediate_name;
  job.compile_flag = file.compile_flag;
  job.output_time = file.output_time;
  try {
    preprocess_and_compile(file, job);
    if (diag_.run_errors == errors_before) record_dependencies(file, job);
  } catch (...) {
    // A fatal error ends the run: like a file with errors, this one keeps no
    // output C file, and its intermediate file only with /P.
    discard(file, job, true);
    throw;
  }
  discard(file, job, diag_.run_errors > errors_before);
}

void Driver::record_dependencies(const SourceFile& file, const PpJob& job) {
  if (!options_.depfile && options_.depfile_path.empty()) return;
  std::string rule = dependency_rule(file.output_name, file.source_name, job.includes_read);
  if (options_.depfile) write_depfile(depfile_name(file.output_name), rule);
  if (!options_.depfile_path.empty()) depfile_rules_ += rule;
}

void Driver::preprocess_and_compile(const SourceFile& file, PpJob& job) {
  int err = 0;
  if (!read_file(file.source_name, job.source_text, err)) {
    diag_.pp_error(strf("unable to open source file '%s' : %s", file.source_name.c_str(),
                        system_error_text(err).c_str()),
                   nullptr);
    return;
  }
  try {
    preprocess(options_, diag_, job);
  } catch (const PpStop& stop) {
    if (stop.code == 2) {
      err_ << " preprocessing of '" << file.source_name << "' halted\n ** too many errors **\n";
      return;
    }
  }
  if (diag_.pp_errors == 0 && job.compile_flag == 'y') {
    *progress_ << " compile    '" << file.source_name << "'\n";
    progress_->flush();
    int errors_before = diag_.run_errors;
    session_.compile_one_file(options_, diag_, file.intermediate_name, file.output_name,
                              file.source_name, options_.prefix, &job.intermediate_text);
    if (options_.report_checks && diag_.run_errors == errors_before && session_.workspace()) {
      *out_ << format_check_report(file.source_name, session_.workspace()->check_report(), diag_.files());
      out_->flush();
    }
  }
}

void Driver::discard(const SourceFile& file, const PpJob& job, bool failed) {
  if (job.intermediate_written && !options_.keep_intermediate) remove_output(file.intermediate_name);
  if (!failed) return;
  remove_output(file.output_name);
  if (options_.depfile) remove_output(depfile_name(file.output_name));
}

int Driver::finish() {
  int e = diag_.run_errors, w = diag_.run_warnings;
  if (e == 0 && w == 0) return 0;
  *out_ << strf("\n totals     %d error%s, %d warning%s\n", e, e == 1 ? "" : "s", w,
               w == 1 ? "" : "s");
  return e > 0 ? 1 : 0;
}

}  // namespace

int run_compiler(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  Driver driver(out, err);
  try {
    return driver.run(args);
  } catch (const MemoryExhausted&) {
    out.flush();
    err << memory_exhausted;
  } catch (const std::bad_alloc&) {
    out.flush();
    err << memory_exhausted;
  } catch (const FatalError& f) {
    out.flush();
    err << f.report;
  } catch (const ParserResourceExit& f) {
    out.flush();
    err << f.report;
    err.flush();
    return 255;
  }
  err.flush();
  return 1;
}

}  // namespace ycc
