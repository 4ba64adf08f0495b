// Test fixture of the parser: actions that write one line per call (the
// action's name and its arguments), and keep typedef names per block as the
// symbol table will.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "front/actions.h"

namespace ycc {

class TraceActions : public Actions {
 public:
  std::string trace;
  bool show_lines = false;  // add "@line" to every token shown

  bool is_typedef_name(std::string_view name) override;

  void begin_declaration(DeclContext, const Token&) override;
  void add_storage_class(const Token&) override;
  void add_type_keyword(const Token&) override;
  void add_var_qualifier(const Token&) override;
  void use_typedef_name(const Token&) override;
  void use_tag(TagKind, const Token&) override;
  void declare_tag(TagKind, const Token*, const Token&, bool) override;
  void enumerator(const Token&) override;
  void end_tag_body(TagKind, const Token&) override;
  void begin_declarator(const Token&) override;
  void declarator_name(const Token&) override;
  void add_dimension(bool, const Token&) override;
  void add_resize_group(bool, bool, const Token&) override;
  void complete_declarator(const Token*, bool) override;
  void complete_tag_only_declaration(const Token&) override;
  void end_declaration(DeclContext, const Token&) override;
  void begin_initializer(const Token&) override;
  void initializer_open_brace(const Token&) override;
  void initializer_close_brace(const Token&) override;
  void initializer_identifier(const Token&, const Token*) override;
  void initializer_constant(const Token&) override;
  void end_initializer(const Token&) override;

  void enter_function_name(const Token&, bool, bool) override;
  void begin_parameter_list(ListOwner, const Token&) override;
  void parameter_any(const Token&) override;
  void parameter_ellipsis(const Token&) override;
  void end_parameter_list(ListOwner, const Token&) override;
  void begin_return_list(ListOwner, const Token&) override;
  void end_return_list(ListOwner, const Token&) override;
  void finish_function(const Token&, bool) override;
  void open_function_body(const Token&, const FunctionLabels&) override;
  void close_function_body(const Token&) override;

  void begin_statement(const Token&) override;
  void end_statement(const Token&) override;
  void expression_statement(const Token&) override;
  void empty_statement(const Token&) override;
  void open_block(const Token&) override;
  void close_block(const Token&) override;
  void control_expression(const Token&) override;
  void if_end(bool, const Token&) override;
  void switch_start(const Token&) override;
  void switch_end(const Token&) override;
  void while_start(const Token&) override;
  void while_end(const Token&) override;
  void do_start(const Token&) override;
  void do_end(const Token&) override;
  void for_start(const Token&, bool, bool, bool, const Token&) override;
  void for_end(const Token&) override;
  void goto_stmt(const Token&) override;
  void continue_stmt(const Token&) override;
  void break_stmt(const Token&) override;
  void return_stmt(const Token&) override;
  void raise_stmt(const Token&) override;
  void enter_labelled_statement(LabelKind, const Token&) override;
  void statement_label(const Token&) override;
  void case_label(CaseForm, int, const Token&) override;
  void default_label(const Token&) override;
  void exception_handler(const Token&) override;
  void leave_labelled_statement(LabelKind, const Token&) override;

  void comma(const Token&) override;
  void assignment(AssignMode, const Token&) override;
  void conditional(const Token&, const Token&) override;
  void logical_or(const Token&) override;
  void logical_and(const Token&) override;
  void binary_operator(const Token&) override;
  void unary_operator(const Token&, Fix) override;
  void begin_type_name(const Token&) override;
  void end_type_name(const Token&) override;
  void cast(const Token&) override;
  void sizeof_type(const Token&) override;
  void sizeof_expr(const Token&) override;
  void constant(const Token&) override;
  void parenthesized(const Token&) override;
  void identifier(const Token&) override;
  void subscript(SubscriptKind, const Token&) override;
  void member(const Token&) override;
  void occurs(const Token&) override;
  void limit(const Token&) override;
  void end_space_reference(const Token&) override;
  void added_length(const Token&) override;
  void free_reference(const Token&) override;
  void call(const CallInfo&) override;
  void syntax_error_operand(const Token&) override;

  void const_literal(const Token&) override;
  void const_unary(const Token&) override;
  void const_binary(const Token&) override;
  void const_error_operand(const Token&) override;

 private:
  void line(std::string_view name, const std::vector<std::string>& args = {});
  std::string tok(const Token& t) const;

  std::vector<std::set<std::string, std::less<>>> typedefs_{1};
  bool typedef_declaration_ = false;
  DeclContext context_ = DeclContext::External;
};

// The result of parsing a source text with TraceActions.
struct ParseResult {
  std::string trace;     // one action per line
  std::string messages;  // the diagnostics written to the error stream
  int errors = 0;
};

// Tokenises and parses `source`. The text is preceded by a #line line, so
// its first line is line 1 of "t.yc".
ParseResult parse_source(std::string_view source, bool show_lines = false);

// Only the expression actions of a trace, for a source that is one
// expression: "f() { <expr>; }" is parsed and the lines between the
// statement brackets are kept.
std::string expression_trace(std::string_view expr);

}  // namespace ycc
