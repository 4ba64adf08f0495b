#include "preprocessor/reader.h"

#include "common/text.h"
#include "diag/diagnostics.h"
#include "preprocessor/text_scan.h"

namespace ycc::pp {

bool Reader::splice_at(size_t i) const { return splice_len(i) != 0; }

// A backslash right before a line end (a carriage return may stand between).
size_t Reader::splice_len(size_t i) const {
  if (i + 1 >= t_.size() || t_[i] != '\\') return 0;
  if (t_[i + 1] == '\n') return 2;
  if (t_[i + 1] == '\r' && i + 2 < t_.size() && t_[i + 2] == '\n') return 3;
  return 0;
}

int Reader::last_line() const {
  int n = 1;
  for (char c : t_)
    if (c == '\n') ++n;
  return t_.empty() ? 1 : n - 1;
}

void Reader::report_at(size_t pos, int line, const std::string& text) {
  if (pos < reported_upto_) return;
  reported_upto_ = pos + 1;
  report_(line, text);
}

void Reader::skip_block_comment(int& blanks, int& newlines) {
  size_t start = pos_;
  pos_ += 2;
  int inner_newlines = 0;
  for (;;) {
    if (pos_ >= t_.size()) {
      // Like an open conditional, an open comment is reported at the last line.
      report_at(start, last_line(), strf("missing end of comment: '*%c'", '/'));
      break;
    }
    char c = t_[pos_];
    if (c == '*' && pos_ + 1 < t_.size() && t_[pos_ + 1] == '/') {
      pos_ += 2;
      break;
    }
    if (c == '/' && pos_ + 1 < t_.size() && t_[pos_ + 1] == '*') {
      report_at(pos_, line_,
                strf("found '%c*' further down inside this comment: nested comments are not allowed",
                     '/'));
      pos_ += 2;
      continue;
    }
    if (c == '\n') {
      int before = line_;
      newline();
      inner_newlines += line_ - before;
    } else if (size_t n = splice_len(pos_)) {
      ++pending_;
      pos_ += n;
      continue;
    }
    ++pos_;
  }
  newlines += inner_newlines;
  blanks = (inner_newlines ? 0 : blanks) + 1;
}

Token Reader::next(bool checked) {
  Token tok;
  int blanks = 0, newlines = 0;
  for (;;) {
    if (pos_ >= t_.size()) {
      tok.kind = Tok::end;
      tok.blanks = blanks;
      tok.newlines = newlines;
      tok.line = line_;
      return tok;
    }
    char c = t_[pos_];
    if (c == '\n') {
      int before = line_;
      newline();
      newlines += line_ - before;
      blanks = 0;
      ++pos_;
      continue;
    }
    if (c == ' ') {
      // Indentation comes in runs.
      size_t end = pos_ + 1;
      while (end < t_.size() && t_[end] == ' ') ++end;
      blanks += static_cast<int>(end - pos_);
      pos_ = end;
      continue;
    }
    if (size_t n = splice_len(pos_)) {
      ++pending_;
      pos_ += n;
      continue;
    }
    if (is_blank(c)) {
      ++blanks;
      ++pos_;
      continue;
    }
    if (c == '/' && pos_ + 1 < t_.size()) {
      if (t_[pos_ + 1] == '*') {
        skip_block_comment(blanks, newlines);
        continue;
      }
      if (t_[pos_ + 1] == '/') {
        while (pos_ < t_.size() && t_[pos_] != '\n') ++pos_;
        ++blanks;
        continue;
      }
    }
    break;
  }
  tok.blanks = blanks;
  tok.newlines = newlines;
  tok.line = line_;
  char c = t_[pos_];
  if (c == '"' || c == '\'') return quoted(tok, checked);
  if (is_ident_start(c)) return word(tok, Tok::ident);
  if (is_digit(c) || (c == '.' && pos_ + 1 < t_.size() && is_digit(t_[pos_ + 1])))
    return word(tok, Tok::number);
  unsigned char u = static_cast<unsigned char>(c);
  bool printable = u >= 32 && u <= 126;
  if (checked && (!printable || c == '$' || c == '@' || c == '`')) {
    // Control and non-ASCII bytes would corrupt a terminal: '?' (itself legal) stands for them.
    report_(line_, strf("fatal: illegal character '%c' (decimal value is %d): this character, which "
                        "is neither quoted nor commented, is not in the YARL C character set",
                        printable ? c : '?', static_cast<int>(u)));
    throw PpStop{3};
  }
  tok.kind = Tok::punct;
  tok.text = t_.substr(pos_, 1);
  ++pos_;
  return tok;
}

// Identifiers and numbers; a continuation inside one is removed from its text.
Token Reader::word(Token tok, Tok kind) {
  size_t start = pos_;
  bool spliced = false;
  // The common case first: a run of word characters.
  if (kind == Tok::ident)
    while (pos_ < t_.size() && is_ident_char(t_[pos_])) ++pos_;
  for (;;) {
    if (size_t n = splice_len(pos_)) {
      spliced = true;
      ++pending_;
      pos_ += n;
      continue;
    }
    if (pos_ >= t_.size()) break;
    char c = t_[pos_];
    bool more = is_ident_char(c);
    if (kind == Tok::number && !more) {
      char prev = pos_ > start ? t_[pos_ - 1] : ' ';
      more = c == '.' || ((c == '+' || c == '-') && (prev == 'e' || prev == 'E'));
    }
    if (!more) break;
    ++pos_;
  }
  tok.kind = kind;
  if (!spliced) {
    tok.text = t_.substr(start, pos_ - start);
  } else {
    scratch_.clear();
    for (size_t i = start; i < pos_;) {
      if (size_t n = splice_len(i)) {
        i += n;
        continue;
      }
      scratch_ += t_[i++];
    }
    tok.text = scratch_;
  }
  return tok;
}

Token Reader::quoted(Token tok, bool checked) {
  char q = t_[pos_];
  size_t start = pos_;
  bool spliced = false;
  size_t i = pos_ + 1;
  for (;;) {
    if (i >= t_.size()) break;
    if (size_t n = splice_len(i)) {
      spliced = true;
      ++pending_;
      i += n;
      continue;
    }
    char c = t_[i];
    if (c == '\\') {
      // The escaped character is taken along; a continuation right after a
      // backslash escape is still a continuation.
      ++i;
      if (i < t_.size() && t_[i] != '\n' && !splice_at(i)) ++i;
      continue;
    }
    if (c == q) {
      ++i;
      break;
    }
    if (c == '\n') {
      if (checked)
        report_at(start, line_,
                  q == '"' ? "no closing quote mark for the quoted string"
                           : "no closing quote mark for the quoted character");
      break;
    }
    ++i;
  }
  pos_ = i;
  tok.kind = q == '"' ? Tok::string : Tok::character;
  if (!spliced) {
    tok.text = t_.substr(start, i - start);
  } else {
    scratch_.clear();
    for (size_t k = start; k < i;) {
      if (size_t n = splice_len(k)) {
        k += n;
        continue;
      }
      scratch_ += t_[k++];
    }
    tok.text = scratch_;
  }
  return tok;
}

}  // namespace ycc::pp
