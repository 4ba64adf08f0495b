// The lexer: the whole intermediate file becomes tokens before parsing starts.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "diag/diagnostics.h"
#include "front/token.h"

namespace ycc {

// Lines of declarations that came from extern includes. An "extern_on" line
// sets the begin of the current entry, an "extern_off" line starts the next
// entry and sets its end; L lies in range i when
// ranges[i].begin < L < ranges[i + 1].end.
struct ExternRange {
  int begin = 0;
  int end = 0;
};

// Every token of one file, up to and including Eof. Token texts are views of
// `text_store`, the file's text, which the buffer owns;
// the buffer can be moved but not copied, so the texts never dangle.
struct TokenBuffer {
  std::vector<Token> tokens;
  std::vector<ExternRange> extern_ranges;
  std::string text_store;

  TokenBuffer() = default;
  TokenBuffer(TokenBuffer&&) = default;
  TokenBuffer& operator=(TokenBuffer&&) = default;
  TokenBuffer(const TokenBuffer&) = delete;
  TokenBuffer& operator=(const TokenBuffer&) = delete;

  // Whether a line code lies in an extern line range: a binary search over
  // the ranges as merged open intervals, which `index_extern_ranges` builds.
  bool in_extern_range(int line) const;
  void index_extern_ranges();

 private:
  std::vector<std::pair<int, int>> extern_intervals_;  // (begin, end), lines strictly between
};

// The token buffers could not grow: `report` is the complete message
// ("cannot allocate token buffer (%d tokens)\n" and its kin).
struct TokenBufferFailure {
  std::string report;
};

// Tokenises a whole intermediate file. File names of "#line" lines are
// entered into `files` (which lives for the run); invalid characters are
// reported on `err` in the lexer's own form, which is not counted. Throws
// TokenBufferFailure when memory runs out.
TokenBuffer tokenize(std::string text, FileTable& files, std::ostream& err);

}  // namespace ycc
