// The grammar actions of one file: the parser calls them at each grammar
// point, and this dispatcher hands each to the declarations or to the
// translation of statements and expressions (both, in a fixed order, where a
// construct concerns both). Everything here lives for one file.
#pragma once

#include "common/names.h"
#include "decl/declarations.h"
#include "front/actions.h"
#include "translate/translator.h"

namespace ycc {

class FileActions : public Actions {
 public:
  FileActions(const Options& options, Diagnostics& diag, const TokenBuffer& tokens, Workspace& ws,
              const std::string& prefix);

  Declarations& declarations() { return decl_; }
  Translator& translator() { return tr_; }

  bool is_typedef_name(std::string_view name) override { return decl_.is_typedef_name(name); }

  // ---- Declarations ----
  void begin_declaration(DeclContext c, const Token& t) override { decl_.begin_declaration(c, t); }
  void add_storage_class(const Token& t) override { decl_.add_storage_class(t); }
  void add_type_keyword(const Token& t) override { decl_.add_type_keyword(t); }
  void add_var_qualifier(const Token& t) override { decl_.add_var_qualifier(t); }
  void use_typedef_name(const Token& t) override { decl_.use_typedef_name(t); }
  void use_tag(TagKind k, const Token& t) override { decl_.use_tag(k, t); }
  void declare_tag(TagKind k, const Token* tag, const Token& at, bool body) override {
    decl_.declare_tag(k, tag, at, body);
  }
  void enumerator(const Token& t) override { decl_.enumerator(t); }
  void end_tag_body(TagKind k, const Token& t) override { decl_.end_tag_body(k, t); }
  void begin_declarator(const Token& t) override { decl_.begin_declarator(t); }
  void declarator_name(const Token& t) override { decl_.declarator_name(t); }
  void add_dimension(bool size, const Token& t) override { decl_.add_dimension(size, t); }
  void add_resize_group(bool n, bool p, const Token& t) override { decl_.add_resize_group(n, p, t); }
  void complete_declarator(const Token* name, bool init) override { decl_.complete_declarator(name, init); }
  void complete_tag_only_declaration(const Token& t) override { decl_.complete_tag_only_declaration(t); }
  void end_declaration(DeclContext c, const Token& t) override { decl_.end_declaration(c, t); }
  void begin_initializer(const Token& t) override { decl_.begin_initializer(t); }
  void initializer_open_brace(const Token& t) override { decl_.initializer_open_brace(t); }
  void initializer_close_brace(const Token& t) override { decl_.initializer_close_brace(t); }
  void initializer_identifier(const Token& t, const Token* sign) override { decl_.initializer_identifier(t, sign); }
  void initializer_constant(const Token& t) override { decl_.initializer_constant(t); }

  // ---- Functions ----
  void enter_function_name(const Token& t, bool st, bool def) override { decl_.enter_function_name(t, st, def); }
  void begin_parameter_list(ListOwner o, const Token& t) override { decl_.begin_parameter_list(o, t); }
  void parameter_any(const Token& t) override { decl_.parameter_any(t); }
  void parameter_ellipsis(const Token& t) override { decl_.parameter_ellipsis(t); }
  void end_parameter_list(ListOwner o, const Token& t) override { decl_.end_parameter_list(o, t); }
  void begin_return_list(ListOwner o, const Token& t) override { decl_.begin_return_list(o, t); }
  void end_return_list(ListOwner o, const Token& t) override { decl_.end_return_list(o, t); }
  void finish_function(const Token& t, bool def) override { decl_.finish_function(t, def); }
  // The body's merge markers are written before its statements; its closing
  // sequence after the last statement has been translated.
  void open_function_body(const Token& t, const FunctionLabels& labels) override {
    decl_.open_function_body(t, labels);
    tr_.open_function_body(t, labels);
  }
  void close_function_body(const Token& t) override {
    tr_.close_function_body(t);
    decl_.close_function_body(t);
  }

  // ---- Statements ----
  void begin_statement(const Token& t) override { tr_.begin_statement(t); }
  void end_statement(const Token& t) override { tr_.end_statement(t); }
  void expression_statement(const Token& t) override { tr_.expression_statement(t); }
  void empty_statement(const Token& t) override { tr_.empty_statement(t); }
  // A block's statement frame stands before its declarations are read; its
  // varspaces are freed and its brace closed after its last statement.
  void open_block(const Token& t) override {
    tr_.open_block(t);
    decl_.open_block(t);
  }
  void close_block(const Token& t) override {
    tr_.close_block(t);
    decl_.close_block(t);
  }
  void control_expression(const Token& t) override { tr_.control_expression(t); }
  void if_end(bool has_else, const Token& t) override { tr_.if_end(has_else, t); }
  void switch_start(const Token& t) override { tr_.switch_start(t); }
  void switch_end(const Token& t) override { tr_.switch_end(t); }
  void while_start(const Token& t) override { tr_.while_start(t); }
  void while_end(const Token& t) override { tr_.while_end(t); }
  void do_start(const Token& t) override { tr_.do_start(t); }
  void do_end(const Token& t) override { tr_.do_end(t); }
  void for_start(const Token& k, bool i, bool c, bool s, const Token& t) override { tr_.for_start(k, i, c, s, t); }
  void for_end(const Token& t) override { tr_.for_end(t); }
  void goto_stmt(const Token& t) override { tr_.goto_stmt(t); }
  void continue_stmt(const Token& t) override { tr_.continue_stmt(t); }
  void break_stmt(const Token& t) override { tr_.break_stmt(t); }
  void return_stmt(const Token& t) override { tr_.return_stmt(t); }
  void raise_stmt(const Token& t) override { tr_.raise_stmt(t); }
  void enter_labelled_statement(LabelKind k, const Token& t) override { tr_.enter_labelled_statement(k, t); }
  void statement_label(const Token& t) override { tr_.statement_label(t); }
  void case_label(CaseForm f, int mode, const Token& t) override { tr_.case_label(f, mode, t); }
  void default_label(const Token& t) override { tr_.default_label(t); }
  void exception_handler(const Token& t) override { tr_.exception_handler(t); }
  void leave_labelled_statement(LabelKind k, const Token& t) override { tr_.leave_labelled_statement(k, t); }

  // ---- Expressions ----
  void comma(const Token& t) override { tr_.comma(t); }
  void assignment(AssignMode m, const Token& t) override { tr_.assignment(m, t); }
  void conditional(const Token& q, const Token& c) override { tr_.conditional(q, c); }
  void logical_or(const Token& t) override { tr_.logical_or(t); }
  void logical_and(const Token& t) override { tr_.logical_and(t); }
  void binary_operator(const Token& t) override { tr_.binary_operator(t); }
  void unary_operator(const Token& t, Fix f) override { tr_.unary_operator(t, f); }
  void begin_type_name(const Token& t) override { decl_.begin_type_name(t); }
  void end_type_name(const Token& t) override { decl_.end_type_name(t); }
  void cast(const Token& t) override { tr_.cast(t); }
  void sizeof_type(const Token& t) override { tr_.sizeof_type(t); }
  void sizeof_expr(const Token& t) override { tr_.sizeof_expr(t); }
  void constant(const Token& t) override { tr_.constant(t); }
  void parenthesized(const Token& t) override { tr_.parenthesized(t); }
  void identifier(const Token& t) override { tr_.identifier(t); }
  void subscript(SubscriptKind k, const Token& t) override { tr_.subscript(k, t); }
  void member(const Token& t) override { tr_.member(t); }
  void occurs(const Token& t) override { tr_.occurs(t); }
  void limit(const Token& t) override { tr_.limit(t); }
  void end_space_reference(const Token& t) override { tr_.end_space_reference(t); }
  void added_length(const Token& t) override { tr_.added_length(t); }
  void free_reference(const Token& t) override { tr_.free_reference(t); }
  void call(const CallInfo& info) override { tr_.call(info); }
  void syntax_error_operand(const Token& t) override { tr_.syntax_error_operand(t); }

  // ---- Constant expressions ----
  void const_literal(const Token& t) override { decl_.const_literal(t); }
  void const_unary(const Token& t) override { decl_.const_unary(t); }
  void const_binary(const Token& t) override { decl_.const_binary(t); }
  void const_error_operand(const Token& t) override { decl_.const_error_operand(t); }

 private:
  Names names_;
  Declarations decl_;
  Translator tr_;
};

}  // namespace ycc
