// --run: the translated program is built with the system C compiler and the
// run-time library in a private temporary folder, then run in place of ycc.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace ycc {

// With "--run" among the words before the first "--", the words after that
// "--" belong to the program: they move to `program_words` and the "--" is
// dropped. Returns whether "--run" was given.
bool split_run_words(std::vector<std::string>& words, std::vector<std::string>& program_words);

struct Runtime {
  std::string library;     // libycrt.a
  std::string header_dir;  // the folder of ycrt.h
};

// Looks beside an installed compiler (<bindir>/../lib, <bindir>/../include),
// then in the build tree (<dir of ycc>/runtime for the library, the source
// tree's runtime/ for the header). `program` is the name ycc was run by.
// On failure `error` says where it looked.
bool find_runtime(const std::string& program, Runtime& runtime, std::string& error);

// A folder of this run's own, removed with everything in it at destruction.
class TempFolder {
 public:
  TempFolder() = default;
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  // Makes "$TMPDIR/ycc-run-XXXXXX" (/tmp without TMPDIR); false with `error` set.
  bool make(std::string& error);
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

// Builds `executable` from the C files and the run-time library with the
// system C compiler ($CC split on blanks, else cc), then runs it as `name`
// with `program_words`, standard input and output being ycc's own. Returns
// the program's exit status (128 + the signal's number when one ended it),
// or 1 after a failed build, which is reported on `err`.
int build_and_run(const std::vector<std::string>& c_files, const std::string& executable,
                  const std::string& name, const Runtime& runtime,
                  const std::vector<std::string>& program_words, std::ostream& err);

}  // namespace ycc
