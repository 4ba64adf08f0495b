// The translation of statements and expressions. Every statement becomes
// labels and goto (switch stays a C switch); every operator is checked
// against the classes of its operands and lowered into C text. The operands
// wait on the expression/statement stack until the construct that joins
// them is complete; each owns its code.
//
// The grammar's expression and statement actions arrive here (through the
// file's action dispatcher); the declarations are Declarations' business,
// reached through its small interface.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "common/names.h"
#include "common/options.h"
#include "decl/declarations.h"
#include "diag/diagnostics.h"
#include "front/actions.h"
#include "output/workspace.h"
#include "decl/functions.h"
#include "decl/library_table.h"
#include "translate/call_site.h"
#include "translate/function_context.h"
#include "translate/operand.h"
#include "translate/resize.h"
#include "translate/support.h"

namespace ycc {

// Arithmetic type rules shared by the operators.
bool sufficiently_equivalent(int a, int b);
bool exactly_equivalent(int a, int b);
int arithmetic_result(int a, int b);
inline bool is_floating(int bits) { return (bits & 48) != 0; }

// The operand class test (classes 1 to 8): empty when `e` passes, else the
// class message ("cannot be a space, the required type is scalar").
std::string class_message(const Operand& e, int cls, bool refuse_aggregates);
// The same test without the message (in line: every operator asks it).
inline bool class_passes(const Operand& e, int cls, bool refuse_aggregates) {
  bool aggregate = e.dims > 0 || e.kind == 's' || e.casted;
  auto is_function = [](const Operand& o) { return o.kind == 'n' || o.kind == 'd'; };
  auto is_enum = [](const Operand& o) { return o.kind == 'e' || o.kind == 'c'; };
  if (cls == 1) return aggregate;
  bool arithmetic = e.type_bits != 0 && !e.empty;
  if ((aggregate && refuse_aggregates) || e.empty) return false;
  switch (cls) {
    case 2: return arithmetic || is_function(e) || is_enum(e);
    case 3: return is_function(e);
    case 4: return is_enum(e);
    case 5: return arithmetic;
    case 6: return arithmetic && is_floating(e.type_bits);
    case 7: return arithmetic && !is_floating(e.type_bits);
    case 8: return arithmetic || is_enum(e);
  }
  return false;
}

// What an aggregate operand of an assignment designates.
struct Aggregate {
  int sym = 0;       // a whole space: the variable or member
  int tag = 0;       // a structure: its type
  std::string text;  // the space's record, or the structure object
  std::string name;  // as written
  bool var = false;
  int dims = 0;
};

class Translator {
 public:
  Translator(const Options& options, Diagnostics& diag, Workspace& ws, Declarations& decl,
             const Names& names);
  ~Translator();

  // ---- Statements (statements.cpp) ----
  void open_function_body(const Token& lbrace, const FunctionLabels& labels);
  void close_function_body(const Token& rbrace);
  void begin_statement(const Token& first);
  void end_statement(const Token& last);
  void expression_statement(const Token& semicolon);
  void empty_statement(const Token& semicolon);
  void open_block(const Token& lbrace);
  void close_block(const Token& rbrace);
  void control_expression(const Token& rparen);
  void if_end(bool has_else, const Token& last);
  void switch_start(const Token& rparen);
  void switch_end(const Token& rbrace);
  void while_start(const Token& rparen);
  void while_end(const Token& last);
  void do_start(const Token& keyword);
  void do_end(const Token& rparen);
  void for_start(const Token& keyword, bool has_init, bool has_condition, bool has_step, const Token& rparen);
  void for_end(const Token& last);
  void goto_stmt(const Token& label);
  void continue_stmt(const Token& keyword);
  void break_stmt(const Token& keyword);
  void return_stmt(const Token& keyword);
  void raise_stmt(const Token& number);
  void enter_labelled_statement(LabelKind kind, const Token& first);
  void statement_label(const Token& name);
  void case_label(CaseForm form, int mode, const Token& value);
  void default_label(const Token& keyword);
  void exception_handler(const Token& number);
  void leave_labelled_statement(LabelKind kind, const Token& last);

  // ---- Expressions (expressions.cpp) ----
  void comma(const Token& op);
  void assignment(AssignMode mode, const Token& op);
  void conditional(const Token& question, const Token& colon);
  void logical_or(const Token& op);
  void logical_and(const Token& op);
  void binary_operator(const Token& op);
  void unary_operator(const Token& op, Fix fix);
  void cast(const Token& lparen);
  void sizeof_type(const Token& keyword);
  void sizeof_expr(const Token& keyword);
  void constant(const Token& literal);
  void parenthesized(const Token& lparen);
  void identifier(const Token& name);
  void subscript(SubscriptKind kind, const Token& lbracket);
  void member(const Token& name);
  void occurs(const Token& t);
  void limit(const Token& t);
  void end_space_reference(const Token& last);
  void added_length(const Token& t);
  void free_reference(const Token& keyword);
  void call(const CallInfo& info);
  void syntax_error_operand(const Token& at);

  // At the end of a file without errors: the support functions.
  void finish_file(int last_line);

  // For tests: the stack depth.
  int stack_size() const { return static_cast<int>(depth_); }

 private:
  // ---- The stack (translator.cpp) ----
  // A slot is reused with the room of its texts (the common case, in line).
  Operand& push_operand(int line) {
    if (depth_ == stack_.size()) [[unlikely]]
      stack_.emplace_back();
    else
      stack_[depth_].reset();
    Operand& e = stack_[depth_++];
    e.line = line;
    return e;
  }
  Operand& operand(int i) { return stack_[static_cast<size_t>(i)]; }
  Operand& top() { return stack_[depth_ - 1]; }
  Code& code(int i) { return operand(i).code; }
  int top_index() const { return static_cast<int>(depth_) - 1; }
  Operand pop_operand();
  // The top operand's code (or text), the operand dropped.
  Code pop_code();
  // Pops the top operand and appends its code to operand `into`'s; the
  // popped slot keeps its room for the next push.
  void join_popped(int into);
  // The same with the popped code's text alone: its markers are final.
  void join_popped_text(int into);
  // Pops the top operand; its code stays in the slot until the next push.
  Code& pop_code_in_place();
  // Pops the top operand, which stays in its slot until the next push.
  Operand& pop_slot() { return stack_[--depth_]; }
  std::string pop_text() { return pop_code().take(); }
  // The innermost loop's labels, taken off (empty ones after a syntax error).
  FunctionContext::Loop pop_loop();
  // Drops the top `n` operands (fewer when the stack is shorter).
  void drop_operands(int n);
  void clear_stack() { depth_ = 0; }
  // Makes sure `n` operands stand on the stack (syntax errors can leave fewer).
  void ensure_operands(int n, int line) {
    if (static_cast<int>(depth_) < n + frame_floor()) add_missing_operands(n, line);
  }
  int frame_floor() const { return fn_ && !fn_->frames.empty() ? fn_->frames.back().level : 0; }
  void add_missing_operands(int n, int line);
  // Joins every operand above `level` into one.
  void join_above(int level, int line);
  // Pops the top `n` operands and pushes one whose code is `text`.
  void replace_top(int n, std::string text, int line);
  void report(Operand& e, const std::string& text);
  // The function being translated (made on demand after a syntax error).
  FunctionContext& fn() {
    if (!fn_) [[unlikely]]
      make_function_context();
    return *fn_;
  }
  // Out of line, so that fn() stays small enough to inline everywhere.
  [[gnu::noinline]] void make_function_context();
  std::string generated(std::string_view word, int number = 0) const { return names_.generated(word, number); }

  // ---- Labels (labels.cpp) ----
  int next_label() { return ++label_counter_; }
  std::string false_name(int n) const { return generated("false", n); }
  std::string true_name(int n) const { return generated("true", n); }
  // Whether the last goto of `code` jumps to a true label.
  bool last_goto_is_true(const std::string& code) const;
  // Label numbers merged by && and || without rewriting text at once: the
  // text is rewritten in one pass when the jump form is finished, so a long
  // chain of operators stays linear.
  void alias_label(int from, int to);
  int label_representative(int n);
  void resolve_labels(Code& code);
  // Replaces every whole occurrence of the label `from` in `code` by `to`.
  static void rename_label(Code& code, const std::string& from, const std::string& to);
  // The control expression on operand i: appends its test; returns the false label.
  std::string control_on(int i);
  // Jump form to value: the operand's labels become an int temporary.
  void to_value(int i) {
    if (operand(i).jump_form()) jumps_to_value(i);
  }
  void jumps_to_value(int i);
  // An expression whose value is not used: labels placed, value emitted if marked.
  void finish_expression(int i, bool as_statement);
  void become_jump_form(Operand& e, int false_label, int true_label, bool reported);
  void conditional_object(int a, const std::string& false_label, const std::string& skip, bool reported,
                          bool aggregate);

  // ---- Operand classes (operand_classes.cpp) ----
  // Reports, with `format`, an operand outside class `cls`; the passing
  // operand, the common case, is decided in line.
  bool test_class(Operand& e, int cls, bool refuse_aggregates, const char* format, std::string_view op) {
    if (e.reported) return false;
    return class_passes(e, cls, refuse_aggregates) || report_class(e, cls, refuse_aggregates, format, op);
  }
  bool report_class(Operand& e, int cls, bool refuse_aggregates, const char* format, std::string_view op);
  bool is_literal_zero(const Operand& e) const;
  bool is_enum(const Operand& e) const { return e.kind == 'e' || e.kind == 'c'; }
  bool is_function(const Operand& e) const { return e.kind == 'n' || e.kind == 'd'; }
  bool is_aggregate(const Operand& e) const { return e.dims > 0 || e.kind == 's' || e.casted; }
  bool same_function_type(int a, int b) const;
  void fill_from_symbol(Operand& e, int sub);

  // ---- Temporaries and strings (temporaries.cpp) ----
  std::string temporary(int type_bits);
  void string_literal(Operand& e, const Token& t);
  void add_local(const std::string& text);

  // ---- Space references (spaces.cpp) ----
  void enter_component(Operand& e, Reference& r, int sym, const std::string& container);
  // The operand's type facts for component `sym`, whose resolved type is `t`.
  void component_facts(Operand& e, int sym, int t) const;
  // The record of space `sym` named on its own, `c_text` being its C name:
  // parameters and returns arrive as pointers, fixed-spaces have companions.
  std::string own_record(int sym, std::string_view c_text) const;
  // Checks and addresses the subscripts given to the current component.
  void finish_component(Operand& e);
  bool this_used(const Reference& r) const;
  void check_this(Operand& e);
  std::string subscript_source(const Token& lbracket) const;
  std::string element_address(int sym, const std::string& record, const std::vector<std::string>& given);
  // The read and write checks of subscripts `subs` of space `sym`, between
  // their marker lines; `added` follows the last subscript of a cast.
  Code component_checks(int sym, const std::string& record, const std::vector<std::string>& subs,
                        const std::string& name, int line, const std::string& added);
  std::string resize_call(int sym, const std::string& record, const std::vector<std::string>& subs,
                          const std::string& added, int line);
  // A failed memory request: reported unless /M, then exception 32000.
  std::string memory_failure(int position, const char* indent);
  void become_unsigned(Operand& e);
  // Whether stores into `e` carry generated checks (a subscripted element),
  // and a copy of its checks as those of a written element.
  bool checked_store(const Operand& e) const;
  Code written_copy(const Operand& e) const;
  void declare_added_length();
  // A cast applied directly to a reference of a character space: the
  // operand becomes a casted character space. False for a value cast.
  bool character_space_cast(int i, const TypeName& type);

  // ---- Assignment and move (assign.cpp) ----
  // The loop counter of the assignment walks at loop depth `depth`.
  std::string walk_counter(int depth);
  void finish_assignment(int i, bool reported, bool has_value);
  bool aggregate_of(const Operand& e, Aggregate& a) const;
  void aggregate_assignment(int left, bool move, const std::string& op, bool reported, int line);
  void zero_assignment(int left, bool reported, int line);
  void cast_assignment(int left, bool reported, int line);
  // A structure that holds varspaces through a casted character space.
  void cast_sequence(int left, bool store, const std::string& type, int line);

  // ---- Calls (calls.cpp, call_checks.cpp, formats.cpp) ----
  std::string exception_test(const CallSite& site, const LibraryFunction* row);
  std::string c_math_call(const CallSite& site, int args_at, int argument_count);
  std::string direct_call(const CallSite& site, const CallInfo& info, const std::string& direct,
                          const std::vector<std::string>& targets, int args_at, const FunctionLists& lists);
  // Whether an argument for `param` is passed by reference (spaces, structures).
  bool by_reference(int param, const Operand& a) const;
  // The object a return slot points to; the C text of an argument.
  std::string argument_object(const Operand& a);
  std::string argument_text(const CallSite& site, Operand& a, int param, std::string& prep);
  std::string type_mismatch(const CallSite& site, const Operand& a, int decl, const std::string& what);
  bool check_argument(const CallSite& site, Operand& a, int param, int n);
  bool check_return_variable(const CallSite& site, Operand& v, int ret, int n);
  bool check_format(const CallSite& site, int args_at, int count, bool scanf);
  bool check_sorting(const CallSite& site, int args_at, int count);
  bool check_integrity(const CallSite& site, int returns_at, int return_count, int args_at, int count,
                       const FunctionLists& lists);
  // The temporary that holds return `ret` of a call used as a value, and the
  // record of a space built for a call.
  std::string return_temporary(int ret);
  std::string meta_temporary(int dimensions);

  // ---- Loops written twice (loop_versions.cpp) ----
  // Whether the for loop at `keyword` can have a copy without checks, and
  // the test that picks it.
  FunctionContext::LoopVersion plan_loop_version(const Token& keyword);
  // A statement of the innermost loop's body, as the copy holds it.
  void collect_unchecked(const std::string& value);
  // The test and the copy that go before the checked loop, or empty.
  std::string versioned_loop(const FunctionContext::LoopVersion& plan, const std::string& condition,
                             const std::string& body, const std::string& step);

  // ---- Statements (statements.cpp) ----
  int unlabelled_frames() const;
  // --line-directives: a "#line" directive before every C line of a
  // finished statement that has none yet (inner statements mark theirs first).
  void mark_lines(Code& code, int line_code);
  bool exception_number(const Token& number, int& value);

  const Options& options_;
  Diagnostics& diag_;
  Workspace& ws_;
  Declarations& decl_;
  SymbolTable& symbols_;
  const Names& names_;

  // The operands are stack_[0, depth_); the slots above keep the room of
  // their texts for the next push.
  std::vector<Operand> stack_;
  size_t depth_ = 0;
  // References live for a statement; their records are reused, with the
  // room their texts had, once no operand holds them.
  std::vector<std::shared_ptr<Reference>> spare_refs_;
  size_t next_spare_ = 0;
  std::shared_ptr<Reference> new_reference();
  std::unique_ptr<FunctionContext> fn_;
  ResizeFunctions resize_;
  SupportFunctions support_;

  // Label counters run over the whole file.
  int label_counter_ = 0;  // false and true labels
  std::map<int, int> label_alias_;
  int cont_counter_ = 0;
  int version_counter_ = 0;
  int skip_counter_ = 0;
  int string_counter_ = 0;
};

}  // namespace ycc
