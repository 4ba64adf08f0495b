// Runs one golden case: copies its inputs into a fresh directory, runs ycc
// there and compares streams, exit status and files with the expected ones.
// When the case has a `run` file, the generated C is built with every C
// compiler installed, linked with that compiler's build of the run-time
// library (LIB_DIR/<variant>/libycrt.a), and run; the gcc build runs once
// more under valgrind when it is installed.
//
// usage: golden_runner YCC CASE_DIR RUNTIME_DIR LIB_DIR
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

const std::set<std::string> reserved = {"args",       "env",        "stdout", "stderr",
                                        "status",     "expect",     "absent", "run",
                                        "run.stdout", "run.status", "run.stderr", "run.stdin", "run.args",
                                        "link", "README"};

bool update_mode() {
  const char* u = std::getenv("YCC_GOLDEN_UPDATE");
  return u && *u && std::strcmp(u, "0") != 0;
}

std::string slurp(const fs::path& p, bool* exists = nullptr) {
  std::ifstream in(p, std::ios::binary);
  if (exists) *exists = static_cast<bool>(in);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

void spill(const fs::path& p, const std::string& text) {
  fs::create_directories(p.parent_path());
  std::ofstream(p, std::ios::binary) << text;
}

std::vector<std::string> words_of(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> w;
  std::string s;
  while (in >> s) w.push_back(s);
  return w;
}

struct Outcome {
  int status = -1;
  std::string out, err;
};

// Runs argv[0] = name with the given words in `dir`, capturing both streams.
Outcome run_in(const fs::path& dir, const std::string& exe, const std::string& name,
               const std::vector<std::string>& words, const std::vector<std::string>& env,
               const fs::path& input = "/dev/null") {
  fs::path out_file = dir / ".golden.stdout", err_file = dir / ".golden.stderr";
  pid_t pid = fork();
  if (pid == 0) {
    if (chdir(dir.c_str()) != 0) _exit(127);
    unsetenv("YCINC");
    for (const std::string& e : env) {
      size_t eq = e.find('=');
      if (eq != std::string::npos) setenv(e.substr(0, eq).c_str(), e.substr(eq + 1).c_str(), 1);
    }
    if (!freopen(input.c_str(), "r", stdin) || !freopen(out_file.c_str(), "w", stdout) ||
        !freopen(err_file.c_str(), "w", stderr))
      _exit(127);
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(name.c_str()));
    for (const std::string& w : words) argv.push_back(const_cast<char*>(w.c_str()));
    argv.push_back(nullptr);
    execv(exe.c_str(), argv.data());
    _exit(127);
  }
  Outcome o;
  int st = 0;
  waitpid(pid, &st, 0);
  o.status = WIFEXITED(st) ? WEXITSTATUS(st) : 128 + WTERMSIG(st);
  o.out = slurp(out_file);
  o.err = slurp(err_file);
  fs::remove(out_file);
  fs::remove(err_file);
  return o;
}

int failures = 0;

void show_difference(const std::string& what, const std::string& want, const std::string& got) {
  ++failures;
  std::cout << "--- " << what << " differs\n--- expected:\n"
            << want << (want.empty() || want.back() == '\n' ? "" : "\\ (no newline)\n")
            << "--- actual:\n"
            << got << (got.empty() || got.back() == '\n' ? "" : "\\ (no newline)\n");
}

// Compares a captured text with the expected file (missing file = empty).
void compare_text(const fs::path& expected, const std::string& actual, const std::string& what) {
  bool exists = false;
  std::string want = slurp(expected, &exists);
  if (want == actual) return;
  if (update_mode()) {
    if (actual.empty() && what != "status")
      fs::remove(expected);
    else
      spill(expected, actual);
    return;
  }
  show_difference(what, want, actual);
}

std::string trimmed(std::string s) {
  while (!s.empty() && (s.back() == '\n' || s.back() == ' ')) s.pop_back();
  return s;
}

void compare_status(const fs::path& expected, int status, const std::string& what) {
  bool exists = false;
  std::string want = trimmed(slurp(expected, &exists));
  if (!exists) want = "0";
  std::string got = std::to_string(status);
  if (want == got) return;
  if (update_mode()) {
    if (status == 0)
      fs::remove(expected);
    else
      spill(expected, got + "\n");
    return;
  }
  show_difference(what, want + "\n", got + "\n");
}

bool have(const std::string& tool) {
  std::string cmd = "command -v " + tool + " >/dev/null 2>&1";
  return std::system(cmd.c_str()) == 0;
}

// Runs the program and compares what it did with the expected files.
void compare_run(const fs::path& case_dir, const fs::path& work, const std::vector<std::string>& command,
                 const std::string& label) {
  // The program's own words follow its name; its standard input is run.stdin.
  std::vector<std::string> words(command.begin() + 1, command.end());
  for (const std::string& w : words_of(slurp(case_dir / "run.args"))) words.push_back(w);
  fs::path input = fs::exists(case_dir / "run.stdin") ? case_dir / "run.stdin" : fs::path("/dev/null");
  Outcome ran = run_in(work, command[0], command[0], words, {}, input);
  compare_text(case_dir / "run.stdout", ran.out, label + " program stdout");
  compare_text(case_dir / "run.stderr", ran.err, label + " program stderr");
  compare_status(case_dir / "run.status", ran.status, label + " program status");
}

// Builds the generated program with each installed C compiler and, unless
// `link_only`, runs it. A file without a main of its own is linked with a
// stand-in main.
void run_program(const fs::path& case_dir, const fs::path& work, const fs::path& runtime,
                 const fs::path& libs, bool link_only) {
  std::string c_file = trimmed(slurp(case_dir / (link_only ? "link" : "run")));
  struct Cc {
    const char* name;   // the compiler
    const char* label;  // how reports name this build, and its library's directory
    const char* flags;
  };
  // The sanitizer build checks that generated programs never read or write
  // out of bounds or overflow where C leaves the behaviour undefined.
  const Cc compilers[] = {
      {"gcc", "gcc", "-std=c99 -pedantic-errors -Wall"},
      {"clang", "clang", "-std=c99 -pedantic-errors -Wall"},
      {"tcc", "tcc", ""},
      {"gcc", "gcc-sanitized", "-std=c99 -fsanitize=address,undefined -fno-sanitize-recover=undefined"},
  };
  if (!fs::exists(work / c_file)) {
    ++failures;
    std::cout << "--- ycc did not write " << c_file << ": nothing to build\n";
    return;
  }
  int installed = 0;
  for (const Cc& cc : compilers) {
    if (!have(cc.name)) continue;
    if (link_only && std::string(cc.label) != cc.name) continue;
    ++installed;
    fs::path library = libs / cc.label / "libycrt.a";
    if (!link_only && !fs::exists(library)) {
      ++failures;
      std::cout << "--- " << cc.label << " is installed but " << library.string() << " was not built\n";
      continue;
    }
    std::string exe = std::string("prog_") + cc.label;
    std::vector<std::string> words = words_of(std::string(cc.flags));
    words.push_back("-I" + runtime.string());
    words.push_back("-o");
    words.push_back(exe);
    words.push_back(c_file);
    // A file without a main of its own links with a stand-in, which the
    // library's program start then does not replace.
    if (link_only) {
      spill(work / "stand_in_main.c", "int main(void) { return 0; }\n");
      words.push_back("stand_in_main.c");
    }
    words.push_back(library.string());
    words.push_back("-lm");
    std::string path = std::string("/usr/bin/") + cc.name;
    Outcome built = run_in(work, path, cc.name, words, {});
    if (built.status != 0) {
      ++failures;
      std::cout << "--- " << cc.label << " failed to build " << c_file << ":\n" << built.err;
      continue;
    }
    if (link_only) continue;
    compare_run(case_dir, work, {(work / exe).string()}, cc.label);
    if (std::string(cc.label) == "gcc" && have("valgrind"))
      compare_run(case_dir, work,
                  {"/usr/bin/valgrind", "-q", "--error-exitcode=99", "--leak-check=full",
                   "--errors-for-leak-kinds=definite,indirect", (work / exe).string()},
                  "valgrind gcc");
  }
  if (installed == 0) {
    ++failures;
    std::cout << "--- no C compiler is installed: the program was not built\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) {
    std::cerr << "usage: golden_runner YCC CASE_DIR RUNTIME_DIR LIB_DIR\n";
    return 2;
  }
  fs::path ycc = fs::absolute(argv[1]), case_dir = fs::absolute(argv[2]),
           runtime = fs::absolute(argv[3]), libs = fs::absolute(argv[4]);
  char templ[] = "/tmp/ycc-golden-XXXXXX";
  if (!mkdtemp(templ)) {
    std::cerr << "cannot make a temporary directory\n";
    return 2;
  }
  fs::path work = templ;
  for (const auto& e : fs::directory_iterator(case_dir)) {
    if (reserved.count(e.path().filename().string())) continue;
    fs::copy(e.path(), work / e.path().filename(), fs::copy_options::recursive);
  }

  std::vector<std::string> env;
  {
    std::istringstream in(slurp(case_dir / "env"));
    std::string line;
    while (std::getline(in, line))
      if (!line.empty()) env.push_back(line);
  }
  // "@RUNTIME@" stands for the run-time library's directory (its header).
  std::vector<std::string> ycc_words = words_of(slurp(case_dir / "args"));
  for (std::string& w : ycc_words)
    if (w == "@RUNTIME@") w = runtime.string();
  Outcome o = run_in(work, ycc.string(), "ycc", ycc_words, env);
  compare_text(case_dir / "stdout", o.out, "stdout");
  compare_text(case_dir / "stderr", o.err, "stderr");
  compare_status(case_dir / "status", o.status, "exit status");

  if (fs::is_directory(case_dir / "expect")) {
    for (const auto& e : fs::recursive_directory_iterator(case_dir / "expect")) {
      if (!e.is_regular_file()) continue;
      fs::path rel = fs::relative(e.path(), case_dir / "expect");
      bool exists = false;
      std::string got = slurp(work / rel, &exists);
      if (!exists) {
        ++failures;
        std::cout << "--- expected file " << rel.string() << " was not written\n";
        continue;
      }
      compare_text(e.path(), got, "file " + rel.string());
    }
  }
  {
    std::istringstream in(slurp(case_dir / "absent"));
    std::string line;
    while (std::getline(in, line)) {
      if (line.empty()) continue;
      if (fs::exists(work / line)) {
        ++failures;
        std::cout << "--- file " << line << " should not exist\n";
      }
    }
  }
  if (fs::exists(case_dir / "run") && failures == 0) run_program(case_dir, work, runtime, libs, false);
  if (fs::exists(case_dir / "link") && failures == 0) run_program(case_dir, work, runtime, libs, true);

  if (failures == 0) {
    fs::remove_all(work);
    return 0;
  }
  std::cout << "--- work directory kept: " << work.string() << "\n";
  return 1;
}
