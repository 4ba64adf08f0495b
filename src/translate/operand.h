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

  // The text for writers that only append plain text at its end.
  std::string& appendable() { return text_; }
  // Plain text, which holds no marker line.
  Code& operator+=(std::string_view s) {
    text_.append(s);
    return *this;
  }
  // Another operand's code, its markers kept.
  Code& operator+=(Code&& other);
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

 private:
  void shift_from(size_t pos, std::ptrdiff_t delta);

  std::string text_;
  std::vector<size_t> markers_;  // positions of the letters still to rewrite (a, e, h)
  std::vector<size_t> inserts_;  // positions of the letters of "##x" markers
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
  int line = 0;

  bool jump_form() const { return false_label != 0 || true_label != 0; }
};

}  // namespace ycc
