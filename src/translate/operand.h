// The operand of the expression/statement stack: the C text of a value and
// the code that must run before it, with the type facts the operators check.
//
// A space reference does not know, when its checks are generated, whether it
// will be read or written, so its code carries both versions between marker
// lines ("##" and a letter) that the output assembly resolves. `Code` knows
// where its changeable markers stand, so the enclosing construct rewrites
// them (a written operand, a reference embedded in a subscript) without
// scanning the text; a marker is final once rewritten.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ycc {

class Code {
 public:
  Code() = default;
  explicit Code(std::string text) : text_(std::move(text)) {}

  const std::string& text() const { return text_; }
  bool empty() const { return text_.empty(); }
  // The text, leaving this code empty.
  std::string take() {
    markers_.clear();
    inserts_.clear();
    return std::move(text_);
  }

  // Empty again, keeping the room of its text.
  void clear() {
    text_.clear();
    markers_.clear();
    inserts_.clear();
  }

  // The text for writers that only append plain text at its end.
  std::string& appendable() {
    room(64);
    return text_;
  }
  // Plain text, which holds no marker line.
  Code& operator+=(std::string_view s) {
    room(s.size());
    text_.append(s);
    return *this;
  }
  Code& operator+=(const char* s) { return *this += std::string_view(s); }
  // Plain pieces in order, with room made once: the common short statements
  // ("\nif(!(" value ")) goto " label ";") without a format to read.
  Code& append(std::initializer_list<std::string_view> pieces) {
    size_t more = 0;
    for (std::string_view p : pieces) more += p.size();
    room(more);
    for (std::string_view p : pieces) text_.append(p);
    return *this;
  }
  // The same, taking the text's block when this code is still empty.
  Code& operator+=(std::string&& s) {
    if (text_.empty() && s.capacity() >= text_.capacity()) {
      text_ = std::move(s);
      return *this;
    }
    return *this += std::string_view(s);
  }
  // Another operand's code, its markers kept.
  Code& operator+=(Code&& other) {
    // Most references have no checks to join: decided in line.
    if (other.text_.empty() && other.markers_.empty() && other.inserts_.empty()) return *this;
    return join(std::move(other));
  }
  void prepend(std::string_view s);

  // Appends the marker line "\n##" + letter.
  void marker(char letter);

  // A written operand: "##a" becomes "##d", "##e" "##g", "##h" "##k".
  void rewrite_written();
  // A reference inside a subscript is always read: "##a" becomes "##m",
  // "##e" "##n", "##h" "##o", "##x" "##y".
  void rewrite_embedded();
  // Inserts `s` at the first "##x" marker (the start of the checks of a
  // casted character-space reference); false when there is none.
  bool insert_at_x(std::string_view s);

  // Replaces, left to right, non-overlapping pieces of the text; markers
  // keep their places. Each edit is {position, length, replacement}.
  struct Edit {
    size_t pos;
    size_t length;
    std::string replacement;
  };
  void apply(const std::vector<Edit>& edits);
  // Drops the text from `pos` on, with its markers.
  void truncate(size_t pos);
  // A copy of the text from `pos` on, with its markers.
  Code copy_from(size_t pos) const;

 private:
  Code& join(Code&& other);
  void shift_from(size_t pos, std::ptrdiff_t delta);
  // Room for `more` bytes. A code grows by many small appends: it starts
  // with a few lines' room instead of doubling up from the string's own.
  void room(size_t more) {
    if (text_.size() + more > text_.capacity()) [[unlikely]]
      text_.reserve(std::max({text_.size() + more, 2 * text_.capacity(), first_room}));
  }
  static constexpr size_t first_room = 256;

  std::string text_;
  std::vector<size_t> markers_;  // positions of the letters still to rewrite (a, e, h)
  std::vector<size_t> inserts_;  // positions of the letters of "##x" markers
};

// Formatted plain text appended to a code, as strf would make it.
void appendf(Code& code, const char* fmt, ...) __attribute__((format(printf, 2, 3)));

// A space reference being read: identifier, then subscripts and members.
// Subscripts are evaluated first (into temporaries when they need code);
// the checks of every component follow, in order.
struct Reference {
  struct Subscript {
    int kind;          // 0 expression, 1 [this], 2 empty
    std::string text;  // C text of its value
  };
  int sym = 0;                  // the component: a variable or a member
  std::string record;           // its meta record, when it is a space
  std::string object;           // C text of the object, when it is a structure
  std::string written;          // the reference as written so far
  size_t written_name_size = 0;  // ... up to the component's own subscripts
  std::vector<Subscript> subs;  // the component's subscripts
  Code checks;                  // the checks of the components so far
  size_t last_checks = 0;       // where the last component's checks begin
  bool pointer_record = false;  // the record is reached through a pointer
  bool heap = false;            // the object lies in a varspace's block
  bool finished = false;        // end_space_reference was called
  bool occurs_or_limit = false;
  size_t checks_at = 0;         // where `checks` begins in the operand's code
  int subscripted = 0;          // subscripts given, over all components
  int root = 0;                 // the variable the reference begins with
  // Each component and whether it is a varspace whose elements the
  // reference reaches (the integrity checks of calls read this).
  std::vector<std::pair<int, bool>> path;
  // The last subscripted component, kept for a character-space cast that
  // makes its checks again.
  int last_sym = 0;
  std::string last_record;
  std::string last_name;
  std::vector<std::string> last_given;

  std::string written_name() const { return written.substr(0, written_name_size); }

  // Back to a fresh reference, keeping the room of its texts and lists.
  void clear();
};

class SymbolTable;

// The space reference of an operand. A variable without dimensions that is
// not a structure, named alone, is most of all references; it is kept as its
// symbol, and made a whole Reference only where one is read.
class ReferenceSlot {
 public:
  explicit operator bool() const { return ref_ != nullptr || plain_sym_ != 0; }
  Reference* operator->() const { return &get(); }
  Reference& operator*() const { return get(); }
  ReferenceSlot& operator=(std::shared_ptr<Reference> r) {
    ref_ = std::move(r);
    plain_sym_ = 0;
    return *this;
  }
  void reset() {
    ref_.reset();
    plain_sym_ = 0;
  }

  // The variable `sym` of `table` named alone; `pointer` when its value is
  // reached through a pointer (a parameter or return variable).
  void set_plain(const SymbolTable& table, int sym, bool pointer) {
    ref_.reset();
    table_ = &table;
    plain_sym_ = sym;
    plain_pointer_ = pointer;
    plain_finished_ = false;
    plain_checks_at_ = 0;
  }
  // What the end of a reference records; `checks_at` is where its checks
  // (none) begin in the operand's code.
  void finish_plain(size_t checks_at) {
    plain_finished_ = true;
    plain_checks_at_ = checks_at;
  }
  bool plain() const { return plain_sym_ != 0; }

  // Facts read often, answered without making a plain reference whole.
  int sym() const { return plain_sym_ ? plain_sym_ : ref_->sym; }
  int subscripted() const { return plain_sym_ ? 0 : ref_->subscripted; }
  bool finished() const { return plain_sym_ ? plain_finished_ : ref_->finished; }

 private:
  Reference& get() const {
    if (plain_sym_) [[unlikely]]
      make_whole();
    return *ref_;
  }
  // The Reference that naming the variable alone would have built.
  void make_whole() const;

  mutable std::shared_ptr<Reference> ref_;
  mutable int plain_sym_ = 0;
  bool plain_pointer_ = false;
  bool plain_finished_ = false;
  size_t plain_checks_at_ = 0;
  const SymbolTable* table_ = nullptr;
};

// One entry of the expression/statement stack.
struct Operand {
  Code code;              // statements that run before the value is used
  std::string value;      // C text of the value
  int type_bits = 0;      // arithmetic type code; 0 for none
  int type_sym = 0;       // structure/enumeration/fun type, or the function itself
  char kind = 0;          // 's' structure, 'n' function pointer, 'd' function name,
                          // 'e' enumeration variable, 'c' enumeration constant
  int dims = 0;           // dimensions not subscripted
  bool casted = false;    // casted character space
  int false_label = 0;    // jump form: label numbers, 0 when none
  int true_label = 0;
  bool reported = false;  // a diagnostic was issued for this expression
  bool emit = false;      // emitted as "\n%s;" when it stands as a statement
  bool lvalue = false;
  bool literal = false;   // a literal constant
  bool empty = false;     // no value at all
  bool aggregate_assigned = false;  // an assignment of structures or spaces, which has no value
  int line = 0;
  bool partial = false;   // a partially elided space
  bool string_literal = false;
  std::string cast_record;  // a casted character space: the space's record
  std::string format;     // a string literal's text between its quotes
  ReferenceSlot ref;      // while it is a space reference

  bool jump_form() const { return false_label != 0 || true_label != 0; }
  // Back to a fresh operand, keeping the room of its texts (every member
  // above has its default again).
  void reset() {
    code.clear();
    value.clear();
    type_bits = type_sym = 0;
    kind = 0;
    dims = 0;
    casted = false;
    false_label = true_label = 0;
    reported = emit = lvalue = literal = empty = aggregate_assigned = false;
    line = 0;
    partial = string_literal = false;
    cast_record.clear();
    format.clear();
    ref.reset();
  }
};

}  // namespace ycc
