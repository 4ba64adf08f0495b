#include "translate/operand.h"

#include <algorithm>
#include <cstdarg>

#include "common/text.h"
#include "decl/symbol_table.h"

namespace ycc {

namespace {

// The letters that a rewrite changes, and what they become.
char written_letter(char c) { return c == 'a' ? 'd' : c == 'e' ? 'g' : c == 'h' ? 'k' : c; }
char embedded_letter(char c) { return c == 'a' ? 'm' : c == 'e' ? 'n' : c == 'h' ? 'o' : c; }

}  // namespace

Code& Code::join(Code&& other) {
  size_t base = text_.size();
  if (text_.empty()) {
    text_ = std::move(other.text_);
  } else {
    room(other.text_.size());
    text_.append(other.text_);
  }
  for (size_t p : other.markers_) markers_.push_back(base + p);
  for (size_t p : other.inserts_) inserts_.push_back(base + p);
  // Emptied, keeping the room of its text when it was copied.
  other.clear();
  return *this;
}

void Code::prepend(std::string_view s) {
  text_.insert(0, s);
  shift_from(0, static_cast<std::ptrdiff_t>(s.size()));
}

void Code::marker(char letter) {
  text_.append("\n##").append(1, letter);
  size_t at = text_.size() - 1;
  if (letter == 'a' || letter == 'e' || letter == 'h') markers_.push_back(at);
  if (letter == 'x') inserts_.push_back(at);
}

void Code::rewrite_written() {
  for (size_t p : markers_) text_[p] = written_letter(text_[p]);
  markers_.clear();
}

void Code::rewrite_embedded() {
  for (size_t p : markers_) text_[p] = embedded_letter(text_[p]);
  for (size_t p : inserts_) text_[p] = 'y';
  markers_.clear();
  inserts_.clear();
}

bool Code::insert_at_x(std::string_view s) {
  if (inserts_.empty()) return false;
  size_t at = inserts_.front() + 1;  // after the marker's letter: the line that follows
  inserts_.erase(inserts_.begin());
  text_.insert(at, s);
  shift_from(at, static_cast<std::ptrdiff_t>(s.size()));
  return true;
}

void Code::truncate(size_t pos) {
  if (pos >= text_.size()) return;
  text_.resize(pos);
  auto drop = [pos](std::vector<size_t>& v) {
    while (!v.empty() && v.back() >= pos) v.pop_back();
  };
  drop(markers_);
  drop(inserts_);
}

Code Code::copy_from(size_t pos) const {
  Code c;
  if (pos >= text_.size()) return c;
  c.text_ = text_.substr(pos);
  for (size_t p : markers_)
    if (p >= pos) c.markers_.push_back(p - pos);
  for (size_t p : inserts_)
    if (p >= pos) c.inserts_.push_back(p - pos);
  return c;
}

void Code::shift_from(size_t pos, std::ptrdiff_t delta) {
  for (size_t& p : markers_)
    if (p >= pos) p = static_cast<size_t>(static_cast<std::ptrdiff_t>(p) + delta);
  for (size_t& p : inserts_)
    if (p >= pos) p = static_cast<size_t>(static_cast<std::ptrdiff_t>(p) + delta);
}

void Code::apply(const std::vector<Edit>& edits) {
  if (edits.empty()) return;
  std::string out;
  out.reserve(text_.size());
  size_t from = 0;
  for (const Edit& e : edits) {
    out.append(text_, from, e.pos - from);
    out += e.replacement;
    from = e.pos + e.length;
  }
  out.append(text_, from, std::string::npos);
  // A marker moves by the growth of the edits before it (both lists are in
  // text order); edits never cover markers.
  auto remap = [&](std::vector<size_t>& positions) {
    std::ptrdiff_t delta = 0;
    size_t e = 0;
    for (size_t& p : positions) {
      for (; e < edits.size() && edits[e].pos <= p; ++e)
        delta += static_cast<std::ptrdiff_t>(edits[e].replacement.size()) -
                 static_cast<std::ptrdiff_t>(edits[e].length);
      p = static_cast<size_t>(static_cast<std::ptrdiff_t>(p) + delta);
    }
  };
  remap(markers_);
  remap(inserts_);
  text_ = std::move(out);
}

void Reference::clear() {
  sym = root = subscripted = 0;
  record.clear();
  object.clear();
  written.clear();
  written_name_size = 0;
  subs.clear();
  checks.clear();
  checks_at = 0;
  pointer_record = heap = finished = occurs_or_limit = false;
  path.clear();
  // The last subscripted component is set all at once, with its symbol.
  if (last_sym) {
    last_sym = 0;
    last_checks = 0;
    last_record.clear();
    last_name.clear();
    last_given.clear();
  }
}

void ReferenceSlot::make_whole() const {
  auto r = std::make_shared<Reference>();
  r->sym = r->root = plain_sym_;
  r->path.emplace_back(plain_sym_, false);
  r->written = (*table_)[plain_sym_].name;
  r->written_name_size = r->written.size();
  r->pointer_record = plain_pointer_;
  r->finished = plain_finished_;
  r->checks_at = plain_checks_at_;
  ref_ = std::move(r);
  plain_sym_ = 0;
}

void appendf(Code& code, const char* fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  vappendf(code.appendable(), fmt, ap);
  va_end(ap);
}

}  // namespace ycc
