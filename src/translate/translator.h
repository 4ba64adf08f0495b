// The translation of statements and expressions. Every statement becomes
// labels and goto (switch stays a C switch); every operator is checked
// against the classes of its operands and lowered into C text. The parser's
// expression stack lives here: one entry per pending code fragment of the
// workspace, entry i owning fragment i, so that text the declaration actions
// write with put_text in the middle of a statement lands in the fragment of
// the statement that encloses it.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "decl/declarations.h"
#include "output/workspace.h"

namespace ycc {

// One entry of the statement/expression stack; its code text is the
// workspace fragment with the same index.
struct Entry {
  std::string value;      // C text of the value
  int type_bits = 0;      // arithmetic type code; 0 for none
  int type_sym = 0;       // structure/enumeration/fun type, or the function itself
  char kind = 0;          // 's' structure, 'n' function pointer, 'd' function name,
                          // 'e' enumeration variable, 'c' enumeration constant
  int dims = 0;
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

// Arithmetic type rules shared by the operators.
bool sufficiently_equivalent(int a, int b);
bool exactly_equivalent(int a, int b);
int arithmetic_result(int a, int b);
inline bool is_floating(int bits) { return (bits & 48) != 0; }

class Translator : public Declarations {
 public:
  Translator(const Options& options, Diagnostics& diag, const TokenBuffer& tokens, Workspace& ws,
             const std::string& prefix);

  // Generated names: prefix twice, "_", the word, and the number when above 0.
  std::string generated_name(const char* word, int number = 0) const;
  // The operand class test: empty when `e` passes, else the class message.
  std::string class_message(const Entry& e, int cls, bool refuse_aggregates) const;

  // ---- Statements (statements.cpp) ----
  void open_function_body(const Token& lbrace, const FunctionLabels& labels) override;
  void close_function_body(const Token& rbrace) override;
  void begin_statement(const Token& first) override;
  void end_statement(const Token& last) override;
  void expression_statement(const Token& semicolon) override;
  void empty_statement(const Token& semicolon) override;
  void open_block(const Token& lbrace) override;
  void close_block(const Token& rbrace) override;
  void control_expression(const Token& rparen) override;
  void if_end(bool has_else, const Token& last) override;
  void switch_start(const Token& rparen) override;
  void switch_end(const Token& rbrace) override;
  void while_start(const Token& rparen) override;
  void while_end(const Token& last) override;
  void do_start(const Token& keyword) override;
  void do_end(const Token& rparen) override;
  void for_start(bool has_init, bool has_condition, bool has_step, const Token& rparen) override;
  void for_end(const Token& last) override;
  void goto_stmt(const Token& label) override;
  void continue_stmt(const Token& keyword) override;
  void break_stmt(const Token& keyword) override;
  void return_stmt(const Token& keyword) override;
  void raise_stmt(const Token& number) override;
  void enter_labelled_statement(LabelKind kind, const Token& first) override;
  void statement_label(const Token& name) override;
  void case_label(CaseForm form, int mode, const Token& value) override;
  void default_label(const Token& keyword) override;
  void exception_handler(const Token& number) override;
  void leave_labelled_statement(LabelKind kind, const Token& last) override;

  // ---- Expressions (expressions.cpp) ----
  void comma(const Token& op) override;
  void assignment(AssignMode mode, const Token& op) override;
  void conditional(const Token& question, const Token& colon) override;
  void logical_or(const Token& op) override;
  void logical_and(const Token& op) override;
  void binary_operator(const Token& op) override;
  void unary_operator(const Token& op, Fix fix) override;
  void cast(const Token& lparen) override;
  void sizeof_type(const Token& keyword) override;
  void sizeof_expr(const Token& keyword) override;
  void constant(const Token& literal) override;
  void parenthesized(const Token& lparen) override;
  void identifier(const Token& name) override;
  void subscript(SubscriptKind kind, const Token& lbracket) override;
  void member(const Token& name) override;
  void occurs(const Token& t) override;
  void limit(const Token& t) override;
  void end_space_reference(const Token& last) override;
  void added_length(const Token& t) override;
  void free_reference(const Token& keyword) override;
  void call(const CallInfo& info) override;
  void syntax_error_operand(const Token& at) override;

  // For tests: the stack depth and the label counters.
  int stack_size() const { return static_cast<int>(entries_.size()); }

 protected:
  // ---- The stack (translator.cpp) ----
  Entry& push_entry(int line);
  Entry& entry(int i) { return entries_[static_cast<size_t>(i)]; }
  Entry& top() { return entries_.back(); }
  std::string& code(int i) { return ws_.fragment_text(i); }
  int top_index() const { return static_cast<int>(entries_.size()) - 1; }
  // Pops the top entry, handing back its code.
  Entry pop_entry(std::string* code_out);
  // Makes sure `n` entries stand on the stack (syntax errors can leave fewer).
  void ensure_operands(int n, int line);
  // Joins every entry above `level` into one.
  void join_above(int level, int line);
  void report(Entry& e, const std::string& text);

  // ---- Labels (labels.cpp) ----
  int next_label() { return ++label_counter_; }
  std::string false_name(int n) const { return generated_name("false", n); }
  std::string true_name(int n) const { return generated_name("true", n); }
  // Whether the last goto of `code` jumps to a true label.
  bool last_goto_is_true(const std::string& code) const;
  // Label numbers merged by && and || without rewriting text at once: the
  // text is rewritten in one pass when the jump form is finished, so a long
  // chain of operators stays linear.
  void alias_label(int from, int to);
  int label_representative(int n);
  void resolve_labels(std::string& code);
  // Replaces every whole occurrence of the label `from` in `code` by `to`.
  static void rename_label(std::string& code, const std::string& from, const std::string& to);
  // The control expression on entry i: appends its test; returns the false label.
  std::string control_on(int i);
  // Jump form to value: the entry's labels become an int temporary.
  void to_value(int i);
  // An expression whose value is not used: labels placed, value emitted if marked.
  void finish_expression(int i, bool as_statement);

  // ---- Operand classes (operand_classes.cpp) ----
  bool test_class(Entry& e, int cls, bool refuse_aggregates, const char* format,
                  const std::string& op);
  bool is_literal_zero(const Entry& e) const;
  bool is_enum(const Entry& e) const { return e.kind == 'e' || e.kind == 'c'; }
  bool is_function(const Entry& e) const { return e.kind == 'n' || e.kind == 'd'; }
  bool is_aggregate(const Entry& e) const { return e.dims > 0 || e.kind == 's' || e.casted; }
  bool same_function_type(int a, int b) const;
  void fill_from_symbol(Entry& e, int sub);

  // ---- Temporaries and strings (temporaries.cpp) ----
  std::string temporary(int type_bits);
  void string_literal(Entry& e, const Token& t);
  void add_local(const std::string& text);

  std::string prefix_;
  std::vector<Entry> entries_;

  // Statement frames: block items flush into the enclosing fragment, the
  // parts of a structured statement stay on the stack for it.
  struct Frame {
    bool block;
    int level;       // stack size when it began
    bool labelled = false;
  };
  std::vector<Frame> frames_;

  struct LoopEntry {
    char kind;  // 'p' loop, 's' switch
    std::string cont, brk;
  };
  std::vector<LoopEntry> loops_;

  struct SwitchEntry {
    int enum_type = 0;
    std::set<long long> values;      // numeric case values
    std::set<int> constants;         // enumeration constants used
    bool default_seen = false;
    int label_depth = 0;
    bool break_pending = false;
    int depth = 0;                   // frame depth of its top-level statements
  };
  std::vector<SwitchEntry> switches_;
  // The heads a for statement has: bit 1 init, 2 condition, 4 step.
  std::vector<int> for_heads_;
  int unlabelled_frames() const;
  // Pops the top `n` entries and pushes one whose code is `text`.
  void replace_top(int n, std::string text, int line);
  bool exception_number(const Token& number, int& value);

  // A pending label of a labelled statement, composed when it is left.
  struct PendingLabel {
    std::string text;
  };
  std::vector<PendingLabel> labels_pending_;

  struct LabelInfo {
    int line = 0;
    int defined = 0;
    int referenced = 0;
  };
  std::map<std::string, LabelInfo> statement_labels_;
  // The function's handler numbers in the order of the body, and whether
  // each has been translated.
  std::vector<int> handler_order_;
  std::map<int, bool> handlers_;
  // Declared constant count of each enumeration met by a switch.
  std::map<int, int> enum_counts_;

  int label_counter_ = 0;   // false and true labels
  std::map<int, int> label_alias_;
  int cont_counter_ = 0;
  int skip_counter_ = 0;
  int string_counter_ = 0;

  // Temporaries: the next number of each type within a statement, and the
  // highest declared in the function.
  std::map<int, int> temp_next_;
  std::map<int, int> temp_declared_;

  // The type name of the last cast or sizeof, typedefs resolved.
  void resolve_type_name();
  void become_jump_form(Entry& e, int false_label, int true_label, bool reported);
  int type_name_bits_ = 0;
  int type_name_sym_ = 0;
};

}  // namespace ycc
