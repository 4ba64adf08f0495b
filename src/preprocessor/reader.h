// The character reader of one file: blanks, line continuations, comments,
// quoted items and the character-set check, handing out one token at a time
// together with the blanks and line ends that preceded it.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "preprocessor/text_scan.h"

namespace ycc::pp {

enum class Tok { end, ident, number, string, character, punct };

struct Token {
  Tok kind = Tok::end;
  std::string_view text;  // continuations removed; valid until the next call
  int blanks = 0;         // blank characters before it on its line (a comment is one)
  int newlines = 0;       // line ends passed since the previous token
  int line = 0;           // line number where the token stands
};

class Reader {
 public:
  // `report(line, text)` receives the reader's messages. The byte after
  // `text` must be readable and a NUL (a string's or a literal's), which
  // stops plain runs without a test of the position.
  using Report = std::function<void(int, const std::string&)>;

  Reader(std::string_view text, Report report) : t_(text), report_(std::move(report)) {}

  // Reads the next token. `checked` is false in skipped groups: there neither
  // the character set nor unclosed quote marks are reported.
  // Throws PpStop{3} after reporting an illegal character.
  Token next(bool checked);

  // Position snapshots for look-ahead (a "(" after a function-like macro may
  // stand on a later line; a directive line ends before the next line's token).
  struct State {
    size_t pos;
    int line;
    int pending;
  };
  State save() const { return {pos_, line_, pending_}; }
  void restore(State s) {
    pos_ = s.pos;
    line_ = s.line;
    pending_ = s.pending;
  }

  // Ordinary text that needs nothing but copying, from the current position:
  // the longest stretch of words, numbers, punctuators and the blanks between
  // them, also across the ends of lines that hold only such text. It stops
  // before anything that starts a literal, comment or continuation, before
  // any other line end, before a character outside the character set, and
  // before a word that `may_be_macro` accepts. Advances past it; empty when
  // there is none.
  template <class MayBeMacro>
  std::string_view plain_run(MayBeMacro may_be_macro);

  int line() const { return line_; }
  // The last line of the file, where end-of-file messages stand.
  int last_line() const;

 private:
  bool splice_at(size_t i) const;
  size_t splice_len(size_t i) const;
  // Inline: plain runs pass most line ends.
  void newline() {
    line_ += 1 + pending_;
    pending_ = 0;
  }
  // Reports once per position: look-ahead may read the same comment twice.
  void report_at(size_t pos, int line, const std::string& text);
  void skip_block_comment(int& blanks, int& newlines);
  Token quoted(Token tok, bool checked);
  Token word(Token tok, Tok kind);

  std::string_view t_;
  Report report_;
  size_t pos_ = 0;
  int line_ = 1;
  int pending_ = 0;  // continuations not yet added to the line number
  size_t reported_upto_ = 0;
  std::string scratch_;
};

// What a byte can begin inside a plain run.
enum class PlainByte : unsigned char { stop, blank, ident, digit, point, slash, punct };
inline constexpr std::array<PlainByte, 256> plain_bytes = [] {
  std::array<PlainByte, 256> t{};
  for (int i = 0; i < 256; ++i) {
    char c = static_cast<char>(i);
    PlainByte k = PlainByte::stop;
    if (c == ' ')
      k = PlainByte::blank;
    else if (is_ident_start(c))
      k = PlainByte::ident;
    else if (is_digit(c))
      k = PlainByte::digit;
    else if (c == '.')
      k = PlainByte::point;
    else if (c == '/')
      k = PlainByte::slash;
    else if (c > ' ' && c < 127 && c != '"' && c != '\'' && c != '\\' && c != '$' && c != '@' && c != '`')
      k = PlainByte::punct;
    t[static_cast<size_t>(i)] = k;
  }
  return t;
}();

template <class MayBeMacro>
std::string_view Reader::plain_run(MayBeMacro may_be_macro) {
  // The NUL after the text is a stop byte: only the stop case looks at the end.
  const char* const s = t_.data();
  const char* const e = s + t_.size();
  const char* p = s + pos_;
  const char* last = p;   // end of the run so far
  const char* token = p;  // where the run's last token begins
  for (;;) {
    // Most tokens are followed by one space: passed without a dispatch.
    if (*p == ' ') {
      if (*++p == ' ') p = skip_spaces(p, e);
    }
    const char* q = p + 1;
    switch (plain_bytes[static_cast<unsigned char>(*p)]) {
      case PlainByte::blank:
        p = skip_spaces(q, e);
        continue;
      case PlainByte::ident:
        while (ident_chars[static_cast<unsigned char>(*q)]) ++q;
        if (may_be_macro(std::string_view(p, static_cast<size_t>(q - p)))) goto done;
        break;
      case PlainByte::point:
        if (!is_digit(*q)) break;
        [[fallthrough]];
      case PlainByte::digit:
        q = s + skip_number(t_, static_cast<size_t>(p - s));
        break;
      case PlainByte::slash:
        if (*q == '*' || *q == '/') goto done;
        break;
      case PlainByte::punct:
        break;
      case PlainByte::stop:
        if (p >= e) goto done;
        // A word that a continuation extends is the reader's to join: the
        // token right before a backslash leaves the run.
        if (*p == '\\') {
          if (p == last) last = token;
          goto done;
        }
        // A line end right after a token of the run, before a line that
        // begins with more plain text, goes with the run: ordinary code is
        // copied many lines at a time. These end the run instead: trailing
        // blanks, which the copy would keep; a line that continuations
        // lengthened, whose end stands for several; a line end right after
        // the token before the run, which may be a literal that joins one on
        // the next line; lines that may begin a directive or a literal.
        if (*p == '\n' && p == last && last > s + pos_ && pending_ == 0) {
          const char* r = skip_spaces(q, e);
          PlainByte k = r < e ? plain_bytes[static_cast<unsigned char>(*r)] : PlainByte::stop;
          if (k == PlainByte::ident || k == PlainByte::digit || k == PlainByte::point ||
              (k == PlainByte::punct && *r != '#')) {
            newline();
            p = last = token = r;
            continue;
          }
        }
        goto done;
    }
    token = p;
    p = last = q;
  }
done:
  std::string_view run(s + pos_, static_cast<size_t>(last - (s + pos_)));
  pos_ = static_cast<size_t>(last - s);
  return run;
}

}  // namespace ycc::pp
