// The lexer reads the intermediate file in one pass. Besides tokens it
// consumes the control lines the preprocessor leaves: a newline followed by
// "#line" switches to line-directive mode (the number and quoted file name set
// the line code), "#pragma" lines are skipped, and "#pragma extern_on" (only
// directly after a "#line" line) / "#pragma extern_off" bound extern ranges.
// In every mode the longest match wins, ties going to the earlier rule.
#include "front/lexer.h"

#include <algorithm>
#include <array>

#include <climits>
#include <cstddef>
#include <cstdint>
#include <new>
#include <unordered_map>

#include "common/text.h"

namespace ycc {

void ExternRanges::index() {
  std::vector<std::pair<int, int>> v;
  for (size_t i = 0; i + 1 < ranges.size(); ++i) {
    long long lo = ranges[i].begin, hi = ranges[i + 1].end;
    if (lo + 1 < hi) v.emplace_back(static_cast<int>(lo), static_cast<int>(hi));
  }
  std::sort(v.begin(), v.end());
  intervals.clear();
  for (const auto& r : v) {
    // (a, b) and (c, d) with c < b hold together every line of (a, max(b, d)).
    if (!intervals.empty() && r.first < intervals.back().second)
      intervals.back().second = std::max(intervals.back().second, r.second);
    else
      intervals.push_back(r);
  }
}

bool TokenBuffer::in_extern_range(int line) const {
  if (!extern_pragmas) return false;
  tokens.finish();
  const std::vector<std::pair<int, int>>& v = extern_ranges->intervals;
  // The last interval that begins below the line is the only one that can hold it.
  auto after = std::upper_bound(v.begin(), v.end(), line,
                                [](int l, const std::pair<int, int>& r) { return l <= r.first; });
  if (after == v.begin()) return false;
  return line < std::prev(after)->second;
}

namespace {

constexpr std::int64_t file_factor = 1000000;

bool is_hex_digit(char c) {
  return is_digit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}
constexpr bool is_garbage(char c) { return c == '#' || c == '$' || c == '@' || c == '\\' || c == '`'; }

// Keywords and punctuators, both taken from the token table, sorted for
// lookups that hash nothing and call nothing: keywords by first letter and
// length (every keyword begins with a lower-case letter and is short),
// punctuators by their first character, longest first.
struct Spelling {
  std::string_view text;
  int number;
};

// Short texts compared in line: a library call costs more than the bytes.
inline bool same_text(const char* a, const char* b, size_t n) {
  for (size_t i = 0; i < n; ++i)
    if (a[i] != b[i]) return false;
  return true;
}

// The longest keyword of the token table.
constexpr size_t longest_keyword = [] {
  size_t longest = 0;
#define TOKEN(number, name, spelling)                                                \
  if (!std::string_view(spelling).empty() && is_ident_start(spelling[0]))           \
    longest = std::max(longest, std::string_view(spelling).size());
#include "front/tokens.def"
#undef TOKEN
  return longest;
}();

struct Spellings {
  // Punctuators are at most three characters: one- and two-character ones
  // are found by table, the few of three by a short list.
  struct Punctuator {
    int number = 0;
    int length = 0;
  };
  int one[128] = {};
  int two[128][128] = {};
  std::vector<Spelling> three[128];
  bool has_three[128] = {};
  std::vector<Spelling> keywords[26][longest_keyword + 1];
  Spellings() {
#define TOKEN(number, name, spelling)                                                   \
  if (std::string_view(spelling).empty()) {                                            \
  } else if (is_ident_start(spelling[0])) {                                            \
    keywords[spelling[0] - 'a'][std::string_view(spelling).size()].push_back({spelling, number}); \
  } else {                                                                             \
    add_punctuator({spelling, number});                                                \
  }
#include "front/tokens.def"
#undef TOKEN
  }
  void add_punctuator(Spelling p) {
    auto at = [&](size_t k) { return static_cast<unsigned char>(p.text[k]) & 127; };
    if (p.text.size() == 1) one[at(0)] = p.number;
    else if (p.text.size() == 2) two[at(0)][at(1)] = p.number;
    else {
      three[at(0)].push_back(p);
      has_three[at(0)] = true;
    }
  }
  int keyword(std::string_view word) const {
    if (word[0] < 'a' || word[0] > 'z' || word.size() > longest_keyword) return T_IDENTIFIER;
    for (const Spelling& k : keywords[word[0] - 'a'][word.size()])
      if (same_text(k.text.data(), word.data(), word.size())) return k.number;
    return T_IDENTIFIER;
  }
  // The longest punctuator at `at`, whose text runs on to `end`; a length
  // of 0 for none.
  Punctuator punctuator(const char* at, const char* end) const {
    unsigned char c = static_cast<unsigned char>(at[0]);
    if (c >= 128) return {};
    size_t room = static_cast<size_t>(end - at);
    unsigned char c1 = room > 1 ? static_cast<unsigned char>(at[1]) : 0;
    if (c1 < 128) {
      if (has_three[c])
        for (const Spelling& p : three[c])
          if (room >= 3 && same_text(p.text.data(), at, 3)) return {p.number, 3};
      if (int t = two[c][c1]) return {t, 2};
    }
    if (int t = one[c]) return {t, 1};
    return {};
  }
};

const Spellings& spellings() {
  static const Spellings s;
  return s;
}

constexpr std::array<bool, 256> ident_bytes = [] {
  std::array<bool, 256> t{};
  for (int c = 0; c < 256; ++c) t[static_cast<size_t>(c)] = is_ident_char(static_cast<char>(c));
  return t;
}();
inline bool ident_byte(char c) { return ident_bytes[static_cast<unsigned char>(c)]; }

// What a byte can begin in normal mode; `other` covers slashes, points and
// punctuators, which look further.
enum class ByteClass : unsigned char { other, newline, blank, ident, digit, quote, garbage };
constexpr std::array<ByteClass, 256> byte_classes = [] {
  std::array<ByteClass, 256> t{};
  for (int i = 0; i < 256; ++i) {
    char c = static_cast<char>(i);
    ByteClass k = ByteClass::other;
    if (c == '\n') k = ByteClass::newline;
    else if (c == ' ' || c == '\t') k = ByteClass::blank;
    else if (is_ident_start(c)) k = ByteClass::ident;
    else if (is_digit(c)) k = ByteClass::digit;
    else if (c == '"' || c == '\'') k = ByteClass::quote;
    else if (is_garbage(c)) k = ByteClass::garbage;
    t[static_cast<size_t>(i)] = k;
  }
  return t;
}();
inline ByteClass byte_class(char c) { return byte_classes[static_cast<unsigned char>(c)]; }

class Lexer final : public TokenSource {
 public:
  // Every token's text is a view into `text`, which ends in a NUL. Tokens go
  // to `store`, extern ranges to `ranges`; `err` takes the reports.
  Lexer(std::string_view text, TokenStore& store, ExternRanges& ranges, FileTable& files, std::ostream& err)
      : s_(text), files_(files), err_(err), store_(store), extern_(ranges) {
    line_start();
  }

  void produce(std::size_t index) override;

 private:
  // Tokens made ahead of the one asked for, so that requests are few.
  static constexpr std::size_t ahead = 256;

  enum class Mode { normal, line_directive };

  char at(size_t i) const { return i < s_.size() ? s_[i] : '\0'; }
  bool starts(size_t i, std::string_view w) const { return s_.substr(std::min(i, s_.size())).starts_with(w); }
  size_t rest_of_line(size_t i) const {
    size_t nl = s_.find('\n', i);
    return nl == std::string_view::npos ? s_.size() : nl;
  }
  // Length of "#pragma" + blanks + word + rest of line at i, or 0.
  size_t pragma_with(size_t i, std::string_view word) const;

  int line_code() const { return line_code_; }
  void set_line(std::int64_t line) {
    line_ = line;
    line_code_ = static_cast<int>(std::clamp<std::int64_t>(line, INT_MIN, INT_MAX));
  }
  void next_line() {
    if (line_ < INT_MAX) set_line(line_ + 1);
  }
  void emit(int tok, size_t begin, size_t end) { emit(tok, s_.substr(begin, end - begin)); }
  inline void emit(int tok, std::string_view text);

  void normal_step();
  void line_directive_step();
  void newline_in_normal();
  void line_start();
  size_t number_end(size_t i, int& tok) const;
  size_t quoted_end(size_t i, char quote) const;
  void file_name();
  // An entry whose begin was never set (an "extern_off" with no "extern_on")
  // holds no line.
  void grow_ranges() {
    if (extern_.ranges.size() <= current_range_) extern_.ranges.resize(current_range_ + 1, {INT_MAX, 0});
  }
  void extern_on() {
    grow_ranges();
    extern_.ranges[current_range_].begin = static_cast<int>(std::max<std::int64_t>(line_ - 1, INT_MIN));
  }
  void extern_off() {
    ++current_range_;
    grow_ranges();
    extern_.ranges[current_range_].end = line_code();
  }

  std::string_view s_;
  FileTable& files_;
  std::ostream& err_;
  size_t pos_ = 0;
  Mode mode_ = Mode::normal;
  std::int64_t line_ = 0;
  int line_code_ = 0;  // line_ as tokens carry it
  const Spellings& spellings_ = spellings();
  TokenStore& store_;
  ExternRanges& extern_;
  size_t current_range_ = 0;
};

void Lexer::emit(int tok, std::string_view text) {
  try {
    store_.append(Token(text, tok, line_code()));
  } catch (const std::bad_alloc&) {
    throw TokenBufferFailure{strf("cannot allocate token buffer (%d tokens)\n",
                                  static_cast<int>(std::min<size_t>(store_.count + 1, INT_MAX)))};
  }
}

size_t Lexer::pragma_with(size_t i, std::string_view word) const {
  if (!starts(i, "#pragma")) return 0;
  size_t j = i + 7;
  size_t blanks = j;
  while (at(j) == ' ' || at(j) == '\t') ++j;
  if (j == blanks || !starts(j, word)) return 0;
  return rest_of_line(j) - i;
}

// The end of the quoted constant that opens at i: escapes are a backslash
// pair or a backslash before the quote; a newline ends it unclosed.
size_t Lexer::quoted_end(size_t i, char quote) const {
  size_t j = i + 1;
  while (j < s_.size()) {
    char c = s_[j];
    if (c == quote) return j + 1;
    if (c == '\n') return j;
    if (quote == '"') {
      j += (c == '\\' && (at(j + 1) == '\\' || at(j + 1) == quote)) ? 2 : 1;
      continue;
    }
    // A character constant extends by runs free of newline and apostrophe,
    // which compete with the two escapes by length (a tie goes to the escape).
    size_t run = j;
    while (run < s_.size() && s_[run] != '\n' && s_[run] != quote) ++run;
    bool escape = c == '\\' && (at(j + 1) == '\\' || at(j + 1) == quote);
    j = (escape && run - j <= 2) ? j + 2 : run;
  }
  return j;
}

// The longest numeric constant at i (a digit, or a point before a digit).
size_t Lexer::number_end(size_t i, int& tok) const {
  auto digits = [&](size_t j) {
    while (is_digit(at(j))) ++j;
    return j;
  };
  auto int_suffix = [&](size_t j) {
    if ((at(j) == 'U' && at(j + 1) == 'L') || (at(j) == 'L' && at(j + 1) == 'U')) return j + 2;
    if (at(j) == 'U' || at(j) == 'L') return j + 1;
    return j;
  };
  auto exponent = [&](size_t j) {  // returns j when there is no complete exponent
    if (at(j) != 'e' && at(j) != 'E') return j;
    size_t k = j + 1;
    if (at(k) == '+' || at(k) == '-') ++k;
    if (!is_digit(at(k))) return j;
    return digits(k);
  };
  auto float_suffix = [&](size_t j) { return (at(j) == 'F' || at(j) == 'L') ? j + 1 : j; };

  size_t best = i;
  tok = T_DECIMALINT;
  auto consider = [&](size_t end, int t) {
    if (end > best) {
      best = end;
      tok = t;
    }
  };
  if (at(i) == '0' && (at(i + 1) == 'x' || at(i + 1) == 'X') && is_hex_digit(at(i + 2))) {
    size_t j = i + 2;
    while (is_hex_digit(at(j))) ++j;
    consider(int_suffix(j), T_HEXADECIMAL);
  }
  size_t int_end = digits(i);
  if (int_end > i) consider(int_suffix(int_end), T_DECIMALINT);
  if (at(int_end) == '.') {
    size_t frac_end = digits(int_end + 1);
    if (int_end > i || frac_end > int_end + 1) consider(float_suffix(exponent(frac_end)), T_FLOATONE);
  }
  if (int_end > i) {
    size_t e = exponent(int_end);
    if (e > int_end) consider(float_suffix(e), T_FLOATTWO);
  }
  return best;
}

void Lexer::newline_in_normal() {
  if (at(pos_ + 1) == '#' && starts(pos_, "\n#line") && (at(pos_ + 6) == ' ' || at(pos_ + 6) == '\t')) {
    ++pos_;
    line_start();
    return;
  }
  next_line();
  ++pos_;
  line_start();
}

// Control lines. The preprocessor puts a newline before every marker it
// writes, but a directive of the source may follow a "#line" line (whose
// newline that mode consumed) or open the file, so they are also recognised
// there; a newline consumed by line-directive mode counts no line.
void Lexer::line_start() {
  if (at(pos_) != '#') return;
  if (starts(pos_, "#line") && (at(pos_ + 5) == ' ' || at(pos_ + 5) == '\t')) {
    pos_ += 5;
    mode_ = Mode::line_directive;
  } else if (size_t n = pragma_with(pos_, "extern_off")) {
    extern_off();
    pos_ += n;
  } else if (starts(pos_, "#pragma")) {
    pos_ = rest_of_line(pos_);
  }
}

void Lexer::file_name() {
  size_t end = quoted_end(pos_, '"');
  size_t name_end = (end > pos_ + 1 && at(end - 1) == '"') ? end - 1 : end;
  int index = files_.intern(s_.substr(pos_ + 1, name_end - pos_ - 1));
  set_line(line_ % file_factor + static_cast<std::int64_t>(index) * file_factor);
  pos_ = end;
}

void Lexer::line_directive_step() {
  char c = s_[pos_];
  if (c == '\n') {
    if (size_t n = pragma_with(pos_ + 1, "extern_on")) {
      extern_on();
      pos_ += 1 + n;
      return;
    }
    mode_ = Mode::normal;
    ++pos_;
    line_start();
  } else if (is_digit(c)) {
    std::int64_t number = 0;
    while (is_digit(at(pos_))) {
      if (number < file_factor * 10000) number = number * 10 + (s_[pos_] - '0');
      ++pos_;
    }
    set_line(number + (line_ / file_factor) * file_factor);
  } else if (c == '"') {
    file_name();
  } else {
    ++pos_;
  }
}

void Lexer::normal_step() {
  const char* d = s_.data();
  // Blanks between tokens, the commonest bytes, are passed without a dispatch;
  // the text ends in a NUL that stops the run. The scans run on locals, which
  // the stores of tokens cannot alias.
  size_t begin = pos_;
  while (d[begin] == ' ' || d[begin] == '\t') ++begin;
  pos_ = begin;
  if (begin >= s_.size()) return;
  char c = d[begin];
  switch (byte_class(c)) {
    case ByteClass::newline:
      newline_in_normal();
      return;
    case ByteClass::blank:  // passed above
      return;
    case ByteClass::ident: {
      size_t end = begin + 1;
      while (ident_byte(d[end])) ++end;
      pos_ = end;
      std::string_view word(d + begin, end - begin);
      emit(spellings_.keyword(word), word);
      return;
    }
    case ByteClass::digit: {
      int tok;
      pos_ = number_end(pos_, tok);
      emit(tok, begin, pos_);
      return;
    }
    case ByteClass::quote:
      // An unclosed constant ends before its newline, which normal mode counts.
      pos_ = quoted_end(pos_, c);
      emit(c == '"' ? T_STRING : T_CHARACTER, begin, pos_);
      return;
    case ByteClass::garbage:
      while (is_garbage(at(pos_))) ++pos_;
      emit(T_GARBAGE, begin, pos_);
      return;
    case ByteClass::other:
      break;
  }
  if (c == '/' && at(pos_ + 1) == '*') {
    // Comments do not nest; an unclosed one runs to the end of the file.
    size_t close = s_.find("*/", pos_ + 2);
    size_t end = close == std::string_view::npos ? s_.size() : close + 2;
    for (size_t j = pos_ + 2; j < end; ++j)
      if (s_[j] == '\n') next_line();
    pos_ = end;
  } else if (c == '/' && at(pos_ + 1) == '/') {
    // The newline stays for normal mode, which counts it.
    pos_ = rest_of_line(pos_);
  } else if (c == '.' && is_digit(at(pos_ + 1))) {
    int tok;
    pos_ = number_end(pos_, tok);
    emit(tok, begin, pos_);
  } else if (Spellings::Punctuator p = spellings_.punctuator(d + pos_, d + s_.size()); p.length > 0) {
    // The longest punctuator that matches wins.
    pos_ += static_cast<size_t>(p.length);
    emit(p.number, begin, pos_);
  } else {
    // Not counted as an error; the raw line code is shown.
    err_ << strf("%s near line %d (text was '%c')\n", "invalid token", line_code(), c);
    ++pos_;
  }
}

void Lexer::produce(std::size_t index) {
  const std::size_t want = index < SIZE_MAX - ahead ? index + ahead : SIZE_MAX;
  while (pos_ < s_.size() && store_.count <= want) {
    if (mode_ == Mode::normal)
      normal_step();
    else
      line_directive_step();
  }
  if (pos_ >= s_.size() && !store_.ended) {
    emit(T_Eof, std::string_view());
    store_.ended = true;
    extern_.index();
  }
}

// Takes the text over, in a block of its own (never a string's inner
// buffer, which moves with the string) that ends in the string's NUL, which
// stops every scan.
void take_text(TokenBuffer& b, std::string text) {
  try {
    b.text_store = std::move(text);
    b.text_store.reserve(std::max<size_t>(b.text_store.size(), 16));
  } catch (const std::bad_alloc&) {
    throw TokenBufferFailure{strf("cannot allocate lookahead text buffer (%d bytes)\n",
                                  static_cast<int>(std::min<size_t>(b.text_store.size() + 1, INT_MAX)))};
  }
  b.extern_pragmas = b.text_store.find("extern_o") != std::string::npos;
}

// Whether the lexer could report something in the text: a byte that begins
// no token. Such a byte inside a constant reports nothing, but a look at
// bytes alone cannot tell.
bool may_report(std::string_view text) {
  static const std::array<bool, 256> reportable = [] {
    std::array<bool, 256> t{};
    for (int i = 0; i < 256; ++i) {
      char c = static_cast<char>(i);
      t[static_cast<size_t>(i)] = byte_class(c) == ByteClass::other && spellings().punctuator(&c, &c + 1).length == 0;
    }
    return t;
  }();
  // Eight bytes a step: the test is one table read per byte and no branch.
  const auto* d = reinterpret_cast<const unsigned char*>(text.data());
  size_t i = 0, n = text.size();
  bool any = false;
  for (; i + 8 <= n && !any; i += 8)
    any = reportable[d[i]] | reportable[d[i + 1]] | reportable[d[i + 2]] | reportable[d[i + 3]] |
          reportable[d[i + 4]] | reportable[d[i + 5]] | reportable[d[i + 6]] | reportable[d[i + 7]];
  for (; i < n; ++i) any |= reportable[d[i]];
  return any;
}

}  // namespace

TokenBuffer tokenize(std::string text, FileTable& files, std::ostream& err) {
  TokenBuffer b;
  take_text(b, std::move(text));
  Lexer lexer(b.text_store, b.tokens.store(), *b.extern_ranges, files, err);
  lexer.produce(SIZE_MAX);
  b.tokens.set_source(nullptr);
  return b;
}

TokenBuffer tokenize_as_read(std::string text, FileTable& files, std::ostream& err) {
  if (may_report(text)) return tokenize(std::move(text), files, err);
  TokenBuffer b;
  take_text(b, std::move(text));
  b.tokens.set_source(std::make_unique<Lexer>(b.text_store, b.tokens.store(), *b.extern_ranges, files, err));
  return b;
}

}  // namespace ycc
