// The lexer: the intermediate file becomes tokens, all before parsing starts
// or a block at a time as the parser reads them.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "diag/diagnostics.h"
#include "front/token.h"
#include "front/token_list.h"

namespace ycc {

// Lines of declarations that came from extern includes. An "extern_on" line
// sets the begin of the current entry, an "extern_off" line starts the next
// entry and sets its end; L lies in range i when
// ranges[i].begin < L < ranges[i + 1].end.
struct ExternRange {
  int begin = 0;
  int end = 0;
};

struct ExternRanges {
  std::vector<ExternRange> ranges;
  std::vector<std::pair<int, int>> intervals;  // (begin, end), lines strictly between
  // Merges the ranges into sorted open intervals.
  void index();
};

// Every token of one file, up to and including Eof. Token texts are views of
// `text_store`, the file's text, which the buffer owns in a block of its own,
// so that moving the buffer keeps the views valid. The buffer can be moved
// but not copied.
struct TokenBuffer {
  std::string text_store;
  TokenList tokens;
  // Written by the lexer, complete once the tokens are.
  std::unique_ptr<ExternRanges> extern_ranges = std::make_unique<ExternRanges>();
  // False when the text holds no extern pragma, so that no line lies in a range.
  bool extern_pragmas = true;

  // Whether a line code lies in an extern line range: a binary search over
  // the ranges as merged open intervals. Makes the whole list first.
  bool in_extern_range(int line) const;
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

// The same, but the tokens are made as they are read, and the blocks of
// tokens given back are reused. A text in which the lexer could find
// something to report is tokenised at once, so that its messages still come
// before any other.
TokenBuffer tokenize_as_read(std::string text, FileTable& files, std::ostream& err);

}  // namespace ycc
