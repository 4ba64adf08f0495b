// The lexer reads the intermediate file in one pass. Besides tokens it
// consumes the control lines the preprocessor leaves: a newline followed by
// "#line" switches to line-directive mode (the number and quoted file name set
// the line code), "#pragma" lines are skipped, and "#pragma extern_on" (only
// directly after a "#line" line) / "#pragma extern_off" bound extern ranges.
// In every mode the longest match wins, ties going to the earlier rule.
#include "front/lexer.h"

#include <algorithm>
#include <array>
#include <bit>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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

// Keywords and punctuators, both taken from the token table. Keywords are
// found by a hash that no two of them share (checked below), punctuators by
// tables over their first two characters.
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
// Keywords are compared as two words of eight bytes.
static_assert(longest_keyword <= 16);
// Shorter words are no keyword, and the hash reads two bytes.
constexpr size_t shortest_keyword = [] {
  size_t shortest = SIZE_MAX;
#define TOKEN(number, name, spelling)                                                \
  if (!std::string_view(spelling).empty() && is_ident_start(spelling[0]))           \
    shortest = std::min(shortest, std::string_view(spelling).size());
#include "front/tokens.def"
#undef TOKEN
  return shortest;
}();
static_assert(shortest_keyword >= 2);

// Of the first, second and last bytes and the length.
constexpr size_t keyword_hash(const char* w, size_t n) {
  auto b = [](char c) { return static_cast<size_t>(static_cast<unsigned char>(c)); };
  return ((b(w[0]) << 3) + b(w[1]) + (b(w[n - 1]) << 5) + n) & 127;
}

constexpr bool keyword_hash_is_perfect = [] {
  std::array<bool, 128> used{};
#define TOKEN(number, name, spelling)                                                \
  if (!std::string_view(spelling).empty() && is_ident_start(spelling[0])) {        \
    size_t h = keyword_hash(spelling, std::string_view(spelling).size());           \
    if (used[h]) return false;                                                      \
    used[h] = true;                                                                 \
  }
#include "front/tokens.def"
#undef TOKEN
  return true;
}();
static_assert(keyword_hash_is_perfect, "two keywords share a hash: change keyword_hash");

struct PunctuatorTables {
  std::array<std::uint8_t, 128> one{};
  // By the first character and the second byte, which may be any.
  std::array<std::array<std::uint8_t, 256>, 128> two{};
  std::array<bool, 128> longer{};     // a punctuator of two or three characters begins with it
  std::array<bool, 128> has_three{};  // one of three characters begins with it
  // The one punctuator of three characters by its first: its other two and number.
  std::array<std::array<std::uint8_t, 3>, 128> three{};
  bool three_unique = true;
};
constexpr PunctuatorTables punctuator_tables = [] {
  PunctuatorTables t;
  auto at = [](std::string_view s, size_t k) { return static_cast<size_t>(static_cast<unsigned char>(s[k]) & 127); };
#define TOKEN(number, name, spelling)                                                \
  if (std::string_view s = spelling; !s.empty() && !is_ident_start(s[0])) {         \
    if (s.size() == 1) t.one[at(s, 0)] = number;                                    \
    if (s.size() == 2) t.two[at(s, 0)][at(s, 1)] = number;                          \
    if (s.size() == 3) {                                                            \
      if (t.has_three[at(s, 0)]) t.three_unique = false;                            \
      t.has_three[at(s, 0)] = true;                                                 \
      t.three[at(s, 0)] = {static_cast<std::uint8_t>(s[1]), static_cast<std::uint8_t>(s[2]), number}; \
    }                                                                               \
    if (s.size() > 1) t.longer[at(s, 0)] = true;                                    \
  }
#include "front/tokens.def"
#undef TOKEN
  return t;
}();
static_assert(punctuator_tables.three_unique, "two punctuators of three characters share the first");

struct Spellings {
  struct Punctuator {
    int number = 0;
    int length = 0;
  };
  // A keyword by its hash, as two words of eight bytes with zeros after it.
  struct Keyword {
    std::uint64_t low = 0, high = 0;
    std::uint32_t length = 0;
    int number = T_IDENTIFIER;
    std::string_view text;
  };
  std::array<Keyword, 128> keywords{};
  Spellings() {
#define TOKEN(number, name, spelling)                                                   \
  if (std::string_view s = spelling; s.empty()) {                                      \
  } else if (is_ident_start(s[0])) {                                                   \
    add_keyword({s, number});                                                          \
  }
#include "front/tokens.def"
#undef TOKEN
  }
  void add_keyword(Spelling k) {
    char padded[16] = {};
    std::memcpy(padded, k.text.data(), k.text.size());
    Keyword& slot = keywords[keyword_hash(k.text.data(), k.text.size())];
    std::memcpy(&slot.low, padded, 8);
    std::memcpy(&slot.high, padded + 8, 8);
    slot.length = static_cast<std::uint32_t>(k.text.size());
    slot.number = k.number;
    slot.text = k.text;
  }
  // The word's token number. Reads up to sixteen bytes from its start, so
  // the text must be padded.
  int keyword(const char* w, size_t n) const {
    if (n > longest_keyword || n < shortest_keyword) return T_IDENTIFIER;
    const Keyword& k = keywords[keyword_hash(w, n)];
    if (k.length != n) return T_IDENTIFIER;
    if constexpr (std::endian::native == std::endian::little) {
      std::uint64_t low, high;
      std::memcpy(&low, w, 8);
      std::memcpy(&high, w + 8, 8);
      // Bytes past the word are masked off.
      if (n < 8) {
        low &= (std::uint64_t{1} << (8 * n)) - 1;
        high = 0;
      } else {
        high &= n == 16 ? ~std::uint64_t{0} : (std::uint64_t{1} << (8 * (n - 8))) - 1;
      }
      return low == k.low && high == k.high ? k.number : T_IDENTIFIER;
    } else {
      return same_text(k.text.data(), w, n) ? k.number : T_IDENTIFIER;
    }
  }
};

// The longest punctuator at `at`, a length of 0 for none. Reads two bytes
// past `at`, which the NUL and the padding after the text allow: neither
// is part of a punctuator.
inline Spellings::Punctuator punctuator(const char* at) {
  const PunctuatorTables& t = punctuator_tables;
  unsigned char c = static_cast<unsigned char>(at[0]);
  if (c >= 128) return {};
  unsigned char c1 = static_cast<unsigned char>(at[1]);
  if (t.has_three[c] && c1 == t.three[c][0] && static_cast<unsigned char>(at[2]) == t.three[c][1])
    return {t.three[c][2], 3};
  if (int n = t.two[c][c1]) return {n, 2};
  if (int n = t.one[c]) return {n, 1};
  return {};
}

const Spellings& spellings() {
  static const Spellings s;
  return s;
}

inline bool ident_byte(char c) { return ident_chars[static_cast<unsigned char>(c)]; }

// What a byte can begin in normal mode: `single` is a punctuator that no
// longer one begins with, `pair` one that only longer ones of two
// characters begin with, `triple` one that one of three characters begins
// with; `other` covers slashes, points, the other punctuators and the NUL
// that ends the text, which look further.
enum class ByteClass : unsigned char { other, newline, blank, ident, digit, quote, garbage, single, pair, triple };
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
    else if (i < 128 && punctuator_tables.one[static_cast<size_t>(i)] != 0 && !punctuator_tables.longer[static_cast<size_t>(i)])
      k = ByteClass::single;
    else if (i < 128 && c != '/' && punctuator_tables.one[static_cast<size_t>(i)] != 0 &&
             !punctuator_tables.has_three[static_cast<size_t>(i)])
      k = ByteClass::pair;
    else if (i < 128 && c != '/' && c != '.' && punctuator_tables.one[static_cast<size_t>(i)] != 0)
      k = ByteClass::triple;
    t[static_cast<size_t>(i)] = k;
  }
  return t;
}();
inline ByteClass byte_class(char c) { return byte_classes[static_cast<unsigned char>(c)]; }

// Bytes that begin no token, which the lexer reports outside constants.
constexpr std::array<bool, 256> reportable_bytes = [] {
  std::array<bool, 256> t{};
  for (int i = 0; i < 256; ++i)
    t[static_cast<size_t>(i)] = byte_classes[static_cast<size_t>(i)] == ByteClass::other &&
                                (i >= 128 || punctuator_tables.one[static_cast<size_t>(i)] == 0);
  return t;
}();
// The vector test below spells the same set out: control bytes but newline
// and tab, DEL, and every byte from 128.
constexpr bool reportable_by_range(int i) {
  return (i < 0x20 && i != '\n' && i != '\t') || i >= 0x7f;
}
static_assert([] {
  for (int i = 0; i < 256; ++i)
    if (reportable_bytes[static_cast<size_t>(i)] != reportable_by_range(i)) return false;
  return true;
}());

// Bytes a text is padded with past its NUL, so that blanks, words and
// keywords can be read eight or sixteen bytes at a time.
constexpr size_t text_padding = 32;

// The first byte at `p` (before `end`) that is no blank.
inline const char* skip_blanks(const char* p, const char* end) {
  for (;;) {
    p = skip_spaces(p, end);
    if (p == end || *p != '\t') return p;
    ++p;
  }
}

class Lexer final : public TokenSource {
 public:
  // Every token's text is a view into `text`, which ends in a NUL and then
  // `text_padding` more bytes (take_text sees to both). Tokens go
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

  // Normal mode until the text ends, the mode changes or a token beyond
  // `want` is made.
  void normal_run(std::size_t want);
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

void Lexer::normal_run(std::size_t want) {
  // The scan runs on locals, which the stores of tokens cannot alias; they
  // go back to the members before any helper runs and when the run ends.
  const char* const d = s_.data();
  const char* const end = d + s_.size();
  const char* p = d + pos_;
  std::int64_t line = line_;
  int code = line_code_;
  // The block being filled: its first token's index, and its free places
  // (none when a new one is due).
  constexpr std::size_t in_block = TokenStore::block_size - 1;
  std::size_t base = store_.count & ~in_block;
  Token* block = nullptr;
  Token* slot = nullptr;
  Token* slot_end = nullptr;
  if ((store_.count & in_block) != 0) {
    block = store_.blocks.back().get();
    slot = block + (store_.count & in_block);
    slot_end = block + TokenStore::block_size;
  }
  auto save = [&] {
    pos_ = static_cast<size_t>(p - d);
    line_ = line;
    line_code_ = code;
    if (block) store_.count = base + static_cast<std::size_t>(slot - block);
  };
  auto load = [&] {
    p = d + pos_;
    line = line_;
    code = line_code_;
  };
  auto next_line = [&] {
    if (line < INT_MAX) {
      ++line;
      code = static_cast<int>(std::clamp<std::int64_t>(line, INT_MIN, INT_MAX));
    }
  };
  // Appends the token from `begin` to p; false when the run is to stop
  // before it. Requests are met a block at a time: the run stops at the
  // first full block once it has made a token beyond `want`.
  auto put = [&](int tok, const char* begin) {
    std::string_view text(begin, static_cast<size_t>(p - begin));
    if (slot == slot_end) [[unlikely]] {
      save();
      if (store_.count > want) {
        p = begin;
        save();
        return false;
      }
      emit(tok, text);  // takes a new block
      base = store_.count - 1;
      block = store_.blocks.back().get();
      slot = block + 1;
      slot_end = block + TokenStore::block_size;
      return true;
    }
    *slot++ = Token(text, tok, code);
    return true;
  };

  for (;;) {
    const char* begin = p;
    char c = *p;
    // Most tokens are followed by one blank: passed without a dispatch.
    if (c == ' ') {
      c = *++p;
      if (c == ' ') {
        p = skip_blanks(p, end);
        c = *p;
      }
      begin = p;
    }
    switch (byte_class(c)) {
      case ByteClass::blank:
        p = skip_blanks(p + 1, end);
        continue;
      case ByteClass::newline:
        if (p[1] != '#') {
          next_line();
          ++p;
          continue;
        }
        save();
        newline_in_normal();
        if (mode_ != Mode::normal) return;
        load();
        continue;
      case ByteClass::ident: {
        ++p;
        while (ident_byte(*p)) ++p;
        if (!put(spellings_.keyword(begin, static_cast<size_t>(p - begin)), begin)) return;
        continue;
      }
      case ByteClass::single:
        ++p;
        if (!put(punctuator_tables.one[static_cast<unsigned char>(c)], begin)) return;
        continue;
      case ByteClass::pair: {
        int tok = punctuator_tables.two[static_cast<unsigned char>(c)][static_cast<unsigned char>(p[1])];
        if (tok != 0) {
          p += 2;
        } else {
          tok = punctuator_tables.one[static_cast<unsigned char>(c)];
          ++p;
        }
        if (!put(tok, begin)) return;
        continue;
      }
      case ByteClass::triple: {
        Spellings::Punctuator pu = punctuator(p);
        p += pu.length;
        if (!put(pu.number, begin)) return;
        continue;
      }
      case ByteClass::digit: {
        // A run of digits that nothing extends is the commonest number.
        const char* q = p + 1;
        while (is_digit(*q)) ++q;
        int tok = T_DECIMALINT;
        switch (*q) {
          case '.': case 'e': case 'E': case 'x': case 'X': case 'U': case 'L':
            q = d + number_end(static_cast<size_t>(p - d), tok);
            break;
          default:
            break;
        }
        p = q;
        if (!put(tok, begin)) return;
        continue;
      }
      case ByteClass::quote:
        // An unclosed constant ends before its newline, which normal mode counts.
        p = d + quoted_end(static_cast<size_t>(p - d), c);
        if (!put(c == '"' ? T_STRING : T_CHARACTER, begin)) return;
        continue;
      case ByteClass::garbage:
        while (is_garbage(*p)) ++p;
        if (!put(T_GARBAGE, begin)) return;
        continue;
      case ByteClass::other:
        break;
    }
    if (p == end) {
      save();
      return;
    }
    if (c == '/' && p[1] == '*') {
      // Comments do not nest; an unclosed one runs to the end of the file.
      size_t close = s_.find("*/", static_cast<size_t>(p - d) + 2);
      const char* after = close == std::string_view::npos ? end : d + close + 2;
      for (const char* j = p + 2; j < after; ++j)
        if (*j == '\n') next_line();
      p = after;
      continue;
    }
    if (c == '/' && p[1] == '/') {
      // The newline stays for normal mode, which counts it.
      const void* nl = std::memchr(p, '\n', static_cast<size_t>(end - p));
      p = nl ? static_cast<const char*>(nl) : end;
      continue;
    }
    if (c == '.' && is_digit(p[1])) {
      int tok;
      p = d + number_end(static_cast<size_t>(p - d), tok);
      if (!put(tok, begin)) return;
      continue;
    }
    if (Spellings::Punctuator pu = punctuator(p); pu.length > 0) {
      // The longest punctuator that matches wins.
      p += pu.length;
      if (!put(pu.number, begin)) return;
      continue;
    }
    // Not counted as an error; the raw line code is shown.
    err_ << strf("%s near line %d (text was '%c')\n", "invalid token", code, c);
    ++p;
  }
}

void Lexer::produce(std::size_t index) {
  const std::size_t want = index < SIZE_MAX - ahead ? index + ahead : SIZE_MAX;
  while (pos_ < s_.size() && store_.count <= want) {
    if (mode_ == Mode::normal)
      normal_run(want);
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
// stops every scan, and then `text_padding` zero bytes.
void take_text(TokenBuffer& b, std::string text) {
  const size_t size = text.size();
  try {
    b.text_store = std::move(text);
    b.text_store.reserve(size + text_padding);
    b.text_store.append(text_padding, '\0');
    b.text_store.resize(size);
  } catch (const std::bad_alloc&) {
    throw TokenBufferFailure{strf("cannot allocate lookahead text buffer (%d bytes)\n",
                                  static_cast<int>(std::min<size_t>(size + 1, INT_MAX)))};
  }
}

// What one look over a text finds: whether the lexer could report something
// (a byte that begins no token; inside a constant it reports nothing, but a
// look at bytes alone cannot tell), and whether the text holds an extern
// pragma's word.
struct TextFacts {
  bool may_report = false;
  bool extern_pragmas = false;
};

// `text` ends in a NUL.
TextFacts text_facts(std::string_view text) {
  static constexpr std::string_view word = "extern_o";
  const char* d = text.data();
  const size_t n = text.size();
  TextFacts facts;
  size_t i = 0;
#if defined(__SSE2__)
  // Sixteen bytes a step, the pair "_o" marking where the word may end;
  // the second load reaches the NUL at most.
  const __m128i space = _mm_set1_epi8(' ');
  const __m128i newline = _mm_set1_epi8('\n');
  const __m128i tab = _mm_set1_epi8('\t');
  const __m128i del = _mm_set1_epi8(0x7f);
  const __m128i underscore = _mm_set1_epi8('_');
  const __m128i o = _mm_set1_epi8('o');
  auto odd_bytes = [&](__m128i x) {
    // Signed, bytes from 128 are below the space.
    __m128i control = _mm_andnot_si128(_mm_or_si128(_mm_cmpeq_epi8(x, newline), _mm_cmpeq_epi8(x, tab)),
                                       _mm_cmplt_epi8(x, space));
    return _mm_or_si128(control, _mm_cmpeq_epi8(x, del));
  };
  auto pairs = [&](size_t at) {
    __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + at));
    __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + at + 1));
    return _mm_and_si128(_mm_cmpeq_epi8(x, underscore), _mm_cmpeq_epi8(next, o));
  };
  // What the block of sixteen at `at` adds to the facts.
  auto settle = [&](size_t at) {
    __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + at));
    if (_mm_movemask_epi8(odd_bytes(x)) != 0) facts.may_report = true;
    for (unsigned m = static_cast<unsigned>(_mm_movemask_epi8(pairs(at))); m != 0; m &= m - 1) {
      size_t u = at + static_cast<size_t>(std::countr_zero(m));
      if (u >= 6 && text.substr(u - 6, word.size()) == word) facts.extern_pragmas = true;
    }
  };
  // Thirty-two bytes a step while nothing is found.
  for (; i + 32 <= n; i += 32) {
    __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + i));
    __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + i + 16));
    __m128i any = _mm_or_si128(_mm_or_si128(odd_bytes(low), odd_bytes(high)),
                               _mm_or_si128(pairs(i), pairs(i + 16)));
    if (_mm_movemask_epi8(any) == 0) [[likely]]
      continue;
    settle(i);
    settle(i + 16);
    if (facts.may_report && facts.extern_pragmas) return facts;
  }
  for (; i + 16 <= n; i += 16) settle(i);
#endif
  for (size_t j = i; j < n && !facts.may_report; ++j) facts.may_report = reportable_bytes[static_cast<unsigned char>(d[j])];
  // The word may begin in the bytes already passed.
  if (!facts.extern_pragmas) facts.extern_pragmas = text.find(word, i >= 7 ? i - 7 : 0) != std::string_view::npos;
  return facts;
}

// Every token of the text the buffer holds, made at once.
void lex_whole(TokenBuffer& b, FileTable& files, std::ostream& err) {
  Lexer lexer(b.text_store, b.tokens.store(), *b.extern_ranges, files, err);
  lexer.produce(SIZE_MAX);
  b.tokens.set_source(nullptr);
}

}  // namespace

TokenBuffer tokenize(std::string text, FileTable& files, std::ostream& err) {
  TokenBuffer b;
  take_text(b, std::move(text));
  b.extern_pragmas = text_facts(b.text_store).extern_pragmas;
  lex_whole(b, files, err);
  return b;
}

TokenBuffer tokenize_as_read(std::string text, FileTable& files, std::ostream& err) {
  TokenBuffer b;
  take_text(b, std::move(text));
  TextFacts facts = text_facts(b.text_store);
  b.extern_pragmas = facts.extern_pragmas;
  if (facts.may_report) {
    lex_whole(b, files, err);
    return b;
  }
  b.tokens.set_source(std::make_unique<Lexer>(b.text_store, b.tokens.store(), *b.extern_ranges, files, err));
  return b;
}

}  // namespace ycc
