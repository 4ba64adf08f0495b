#include "driver/run_program.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "common/text.h"

// Set by the build: the source tree's runtime/ (the header of an uninstalled
// compiler), and the link options that its run-time library needs (the
// sanitizers of an instrumented build).
#ifndef YCC_RUNTIME_SOURCE_DIR
#define YCC_RUNTIME_SOURCE_DIR ""
#endif
#ifndef YCC_RUNTIME_LINK_OPTIONS
#define YCC_RUNTIME_LINK_OPTIONS ""
#endif

namespace ycc {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> blank_separated(const char* text) {
  std::vector<std::string> words;
  std::string word;
  for (const char* p = text;; ++p) {
    if (*p == ' ' || *p == '\t' || *p == '\0') {
      if (!word.empty()) words.push_back(word);
      word.clear();
      if (*p == '\0') break;
    } else {
      word += *p;
    }
  }
  return words;
}

// Where this executable lives: the system's link to it, else the name it was
// run by, looked up along PATH when it has no folder part.
std::string own_path(const std::string& program) {
  std::error_code ec;
  fs::path self = fs::read_symlink("/proc/self/exe", ec);
  if (!ec) return self.string();
  if (program.find('/') != std::string::npos) {
    self = fs::canonical(program, ec);
    return ec ? std::string() : self.string();
  }
  const char* path = std::getenv("PATH");
  if (!path) return {};
  std::string dirs = path;
  size_t start = 0;
  while (start <= dirs.size()) {
    size_t colon = dirs.find(':', start);
    if (colon == std::string::npos) colon = dirs.size();
    std::string dir = colon > start ? dirs.substr(start, colon - start) : ".";
    std::string candidate = dir + "/" + program;
    if (::access(candidate.c_str(), X_OK) == 0) {
      self = fs::canonical(candidate, ec);
      if (!ec) return self.string();
    }
    start = colon + 1;
  }
  return {};
}

bool is_file(const fs::path& p) {
  std::error_code ec;
  return fs::is_regular_file(p, ec);
}

std::string joined(const std::vector<std::string>& words) {
  std::string s;
  for (const std::string& w : words) {
    if (!s.empty()) s += ' ';
    s += w;
  }
  return s;
}

// Written straight to the error stream: also by a child that failed to exec.
void report_failure(const char* what, const std::string& file, int err) {
  std::string message =
      strf("ycc: cannot %s '%s': %s\n", what, file.c_str(), system_error_text(err).c_str());
  ssize_t written = ::write(2, message.data(), message.size());
  (void)written;
}

// Runs a command and waits for it, ignoring the terminal's interrupt and quit
// meanwhile (they reach the child, whose status then tells), as system() does.
// `file` is run with `words` as its arguments (the first its name). Returns
// the exit status, 128 + the signal's number, or 127 when it could not start.
int run_child(const std::string& file, const std::vector<std::string>& words, bool search_path,
              bool output_to_error) {
  std::vector<char*> argv;
  for (const std::string& w : words) argv.push_back(const_cast<char*>(w.c_str()));
  argv.push_back(nullptr);
  std::fflush(nullptr);

  struct sigaction ignore {}, old_int {}, old_quit {};
  ignore.sa_handler = SIG_IGN;
  sigemptyset(&ignore.sa_mask);
  ::sigaction(SIGINT, &ignore, &old_int);
  ::sigaction(SIGQUIT, &ignore, &old_quit);
  pid_t pid = ::fork();
  if (pid == 0) {
    ::sigaction(SIGINT, &old_int, nullptr);
    ::sigaction(SIGQUIT, &old_quit, nullptr);
    if (output_to_error) ::dup2(2, 1);
    if (search_path)
      ::execvp(file.c_str(), argv.data());
    else
      ::execv(file.c_str(), argv.data());
    int err = errno;
    report_failure("run", file, err);
    ::_exit(127);
  }
  int status = 127;
  if (pid < 0) {
    report_failure("start", file, errno);
  } else {
    int st = 0;
    while (::waitpid(pid, &st, 0) < 0 && errno == EINTR) continue;
    status = WIFEXITED(st) ? WEXITSTATUS(st) : WIFSIGNALED(st) ? 128 + WTERMSIG(st) : 1;
  }
  ::sigaction(SIGINT, &old_int, nullptr);
  ::sigaction(SIGQUIT, &old_quit, nullptr);
  return status;
}

}  // namespace

bool split_run_words(std::vector<std::string>& words, std::vector<std::string>& program_words) {
  size_t end = 0;
  bool run = false;
  for (; end < words.size() && words[end] != "--"; ++end)
    if (words[end] == "--run") run = true;
  if (run && end < words.size()) {
    program_words.assign(words.begin() + static_cast<std::ptrdiff_t>(end) + 1, words.end());
    words.resize(end);
  }
  return run;
}

bool find_runtime(const std::string& program, Runtime& runtime, std::string& error) {
  std::string self = own_path(program);
  if (self.empty()) {
    error = strf("cannot find the run-time library: the location of '%s' is unknown",
                 program.c_str());
    return false;
  }
  fs::path bin = fs::path(self).parent_path();
  fs::path installed_lib = bin.parent_path() / "lib" / "libycrt.a";
  fs::path installed_header = bin.parent_path() / "include" / "ycrt.h";
  if (is_file(installed_lib) && is_file(installed_header)) {
    runtime.library = installed_lib.string();
    runtime.header_dir = installed_header.parent_path().string();
    return true;
  }
  fs::path built_lib = bin / "runtime" / "libycrt.a";
  fs::path source_header = fs::path(YCC_RUNTIME_SOURCE_DIR) / "ycrt.h";
  if (*YCC_RUNTIME_SOURCE_DIR && is_file(built_lib) && is_file(source_header)) {
    runtime.library = built_lib.string();
    runtime.header_dir = source_header.parent_path().string();
    return true;
  }
  error = strf("cannot find the run-time library: neither '%s' with '%s' nor '%s' with '%s' exists",
               installed_lib.c_str(), installed_header.c_str(), built_lib.c_str(),
               source_header.c_str());
  return false;
}

TempFolder::~TempFolder() {
  if (path_.empty()) return;
  std::error_code ec;
  fs::remove_all(path_, ec);
}

bool TempFolder::make(std::string& error) {
  const char* tmp = std::getenv("TMPDIR");
  std::string templ = tmp && *tmp ? tmp : "/tmp";
  if (templ.back() != '/') templ += '/';
  templ += "ycc-run-XXXXXX";
  std::vector<char> name(templ.begin(), templ.end());
  name.push_back('\0');
  if (!::mkdtemp(name.data())) {
    error = strf("cannot make a temporary folder '%s': %s", templ.c_str(),
                 system_error_text(errno).c_str());
    return false;
  }
  path_ = name.data();
  return true;
}

int build_and_run(const std::vector<std::string>& c_files, const std::string& executable,
                  const std::string& name, const Runtime& runtime,
                  const std::vector<std::string>& program_words, std::ostream& err) {
  const char* cc = std::getenv("CC");
  std::vector<std::string> command = blank_separated(cc ? cc : "");
  if (command.empty()) command.push_back("cc");
  for (const std::string& w : blank_separated(YCC_RUNTIME_LINK_OPTIONS)) command.push_back(w);
  command.insert(command.end(), {"-std=c99", "-o", executable});
  command.insert(command.end(), c_files.begin(), c_files.end());
  command.insert(command.end(), {runtime.library, "-lm"});
  err.flush();
  // The compiler's messages, on whichever stream, reach ycc's error stream:
  // the standard output stays the program's.
  int status = run_child(command[0], command, true, true);
  if (status != 0) {
    err << "ycc: the C compiler failed ('" << joined(command) << "' ended with status " << status
        << ")\n";
    err.flush();
    return 1;
  }
  // The program is called by its source's name, not by the temporary folder's.
  std::vector<std::string> argv{name};
  argv.insert(argv.end(), program_words.begin(), program_words.end());
  return run_child(executable, argv, false, false);
}

}  // namespace ycc
