// The grammar actions: the routines the parser calls at each grammar point,
// in the order the grammar meets them. The parser does no semantic work and
// never formats C text; an implementation of this interface (the symbol
// table, the declaration routines and the translation of statements and
// expressions) does all of that.
//
// Expressions communicate through an expression stack that the
// implementation owns: every primary pushes one entry, every operator pops
// its operands and pushes its result. Constant expressions (dimension sizes,
// resize numbers, case labels, initializer items) use a separate constant
// stack of folded constants in the same way. After a syntax error inside an
// operand the parser calls syntax_error_operand (or const_error_operand) so
// that the stacks keep their shape.
//
// Every method has an empty default, so an implementation overrides only
// what it needs; `Actions` itself is the do-nothing implementation.
#pragma once

#include <string_view>
#include <vector>

#include "front/token.h"

namespace ycc {

// Where a declaration stands; decides which lists its entries belong to.
enum class DeclContext {
  External,      // file level
  Block,         // at the head of a compound statement
  Member,        // inside "struct tag { ... }"
  Parameter,     // parameter list of a function header
  Return,        // return list of a function header
  FunParameter,  // parameter list of a `fun` type
  FunReturn,     // return list of a `fun` type
};

enum class TagKind { Struct, Enum, Fun };

// Whose parameter or return list is being read.
enum class ListOwner { Function, FunType };

// Assignment level operators: "=", "===", and the compound forms ("+=" ...).
enum class AssignMode { Plain, Move, Compound };

enum class Fix { Prefix, Postfix };

// "[" expression "]", "[" `this` "]" or "[" "]".
enum class SubscriptKind { Expression, This, Empty };

// The three forms of `case`, chosen by the token after `case`. The case-label
// routine's mode is 1 for a constant (expression or character) and 2 for an
// identifier (an enumeration constant).
enum class CaseForm { ConstantExpression, Character, Identifier };
inline int case_mode(CaseForm form) { return form == CaseForm::Identifier ? 2 : 1; }

enum class LabelKind { Statement, Case, Default, Exception };

// What the parser knows about a call when its ")" has been read. The
// operands are on the expression stack, bottom to top: the return variables
// (return_count of them), the pointer expression of a "(*x)" callee, then the
// arguments (argument_count of them).
struct CallInfo {
  const Token* callee;        // the IDENTIFIER, or the "(" of "(*x)"
  bool through_pointer;       // the "(*x)(...)" form
  int argument_count;
  int return_count;           // return variables written before "="
  // A call with return variables followed directly by an operator (as in
  // x = f(y) + 1): the assignment is ambiguous without parentheses.
  bool followed_by_operator;
  const Token* rparen;
};

// The statement labels and exception handlers of a function body, gathered
// from its tokens before its statements are parsed (goto needs to know every
// label of the function; a resize needs to know whether 32000 is handled).
struct FunctionLabels {
  std::vector<const Token*> labels;    // IDENTIFIER of each "name :" label
  std::vector<const Token*> handlers;  // DECIMALINT of each "exception N :"
};

class Actions {
 public:
  virtual ~Actions() = default;

  // ---- Queries -----------------------------------------------------------
  // Whether an identifier is a typedef name where the parser stands.
  virtual bool is_typedef_name(std::string_view) { return false; }

  // ---- Declarations ------------------------------------------------------
  // A declaration (or a parameter or return declaration) begins; its first
  // entry takes the specifiers that follow.
  virtual void begin_declaration(DeclContext, const Token& /*first*/) {}
  virtual void add_storage_class(const Token& /*static, extern or typedef*/) {}
  virtual void add_type_keyword(const Token& /*char ... unsigned*/) {}
  // `var`, written among the specifiers or at the start of a declarator.
  virtual void add_var_qualifier(const Token& /*var*/) {}
  virtual void use_typedef_name(const Token& /*name*/) {}
  // struct/enum/fun tag used as a type, without a body.
  virtual void use_tag(TagKind, const Token& /*tag*/) {}
  // A tag declared: with a body (struct/enum "{", fun "("), or a tag alone
  // directly before the ";" of a declaration (struct s;). tag is null when
  // untagged; `at` is the struct, enum or fun keyword.
  virtual void declare_tag(TagKind, const Token* /*tag*/, const Token& /*at*/, bool /*has_body*/) {}
  virtual void enumerator(const Token& /*name*/) {}
  // The body of a tag declared by declare_tag is complete.
  virtual void end_tag_body(TagKind, const Token& /*last*/) {}
  // Each declarator of a declaration begins (also the first one).
  virtual void begin_declarator(const Token& /*first*/) {}
  virtual void declarator_name(const Token& /*name*/) {}
  // "[" [size] "]": with a size, the folded size is on the constant stack.
  virtual void add_dimension(bool /*has_size*/, const Token& /*lbracket*/) {}
  // One resize group; the given parts are on the constant stack (number
  // below percentage). A part not written is recorded as -1.
  virtual void add_resize_group(bool /*has_number*/, bool /*has_percent*/, const Token& /*lbracket*/) {}
  // The declarator is complete (after its initializer, when it has one).
  // name is null for an unnamed parameter or return.
  virtual void complete_declarator(const Token* /*name*/, bool /*initialized*/) {}
  // A declaration whose specifiers were followed by no declarator.
  virtual void complete_tag_only_declaration(const Token& /*semicolon*/) {}
  // ";" of a declaration (external, block or member) and of a function
  // prototype; a function definition ends with close_function_body instead.
  // After a syntax error the token is where recovery stopped.
  virtual void end_declaration(DeclContext, const Token& /*semicolon*/) {}

  // Initializers: "=" then items; constant items are folded on the constant
  // stack before initializer_constant. sign is "+"/"-" or null.
  virtual void begin_initializer(const Token& /*equal*/) {}
  virtual void initializer_open_brace(const Token&) {}
  virtual void initializer_close_brace(const Token&) {}
  virtual void initializer_identifier(const Token& /*name*/, const Token* /*sign*/) {}
  virtual void initializer_constant(const Token& /*first*/) {}
  virtual void end_initializer(const Token& /*last*/) {}

  // ---- Functions and fun types ---------------------------------------------
  // As soon as the name is read, before "(": reserved names, parameter scope.
  virtual void enter_function_name(const Token& /*name*/, bool /*is_static*/, bool /*is_definition*/) {}
  virtual void begin_parameter_list(ListOwner, const Token& /*lparen*/) {}
  virtual void parameter_any(const Token& /*any*/) {}
  virtual void parameter_ellipsis(const Token& /*ellipsis*/) {}
  virtual void end_parameter_list(ListOwner, const Token& /*rparen*/) {}
  // Called after every parameter list, also when no return follows.
  virtual void begin_return_list(ListOwner, const Token& /*first*/) {}
  virtual void end_return_list(ListOwner, const Token& /*last*/) {}
  // The header is complete: check against earlier prototypes, emit.
  virtual void finish_function(const Token& /*name*/, bool /*is_definition*/) {}
  virtual void open_function_body(const Token& /*lbrace*/, const FunctionLabels&) {}
  virtual void close_function_body(const Token& /*rbrace*/) {}

  // ---- Statements ----------------------------------------------------------
  virtual void begin_statement(const Token& /*first*/) {}
  // After every statement: its fragment is flushed.
  virtual void end_statement(const Token& /*last*/) {}
  virtual void expression_statement(const Token& /*semicolon*/) {}
  virtual void empty_statement(const Token& /*semicolon*/) {}
  virtual void open_block(const Token& /*lbrace*/) {}
  virtual void close_block(const Token& /*rbrace*/) {}
  // if: after the condition; if_end after the whole statement.
  virtual void control_expression(const Token& /*rparen*/) {}
  virtual void if_end(bool /*has_else*/, const Token& /*last*/) {}
  virtual void switch_start(const Token& /*rparen*/) {}
  virtual void switch_end(const Token& /*rbrace*/) {}
  virtual void while_start(const Token& /*rparen*/) {}
  virtual void while_end(const Token& /*last*/) {}
  virtual void do_start(const Token& /*do*/) {}
  virtual void do_end(const Token& /*rparen*/) {}
  // The heads given are on the expression stack in order.
  virtual void for_start(const Token& /*keyword*/, bool /*has_init*/, bool /*has_condition*/,
                         bool /*has_step*/, const Token& /*rparen*/) {}
  virtual void for_end(const Token& /*last*/) {}
  virtual void goto_stmt(const Token& /*label*/) {}
  virtual void continue_stmt(const Token&) {}
  virtual void break_stmt(const Token&) {}
  virtual void return_stmt(const Token&) {}
  virtual void raise_stmt(const Token& /*number*/) {}
  // Every labelled statement is bracketed: enter at the label's first token,
  // the label routine at its ":", the statement, then leave.
  virtual void enter_labelled_statement(LabelKind, const Token& /*first*/) {}
  virtual void statement_label(const Token& /*name*/) {}
  // ConstantExpression: the folded value is on the constant stack; `value`
  // is its first token. Character and Identifier: `value` is that token.
  virtual void case_label(CaseForm, int /*mode*/, const Token& /*value*/) {}
  virtual void default_label(const Token&) {}
  virtual void exception_handler(const Token& /*number*/) {}
  virtual void leave_labelled_statement(LabelKind, const Token& /*last*/) {}

  // ---- Expressions ---------------------------------------------------------
  virtual void comma(const Token& /*op*/) {}
  virtual void assignment(AssignMode, const Token& /*op*/) {}
  virtual void conditional(const Token& /*question*/, const Token& /*colon*/) {}
  virtual void logical_or(const Token& /*op*/) {}
  virtual void logical_and(const Token& /*op*/) {}
  // | ^ & == != < > <= >= << >> + - * / %
  virtual void binary_operator(const Token& /*op*/) {}
  // ++ -- - + ~ ! as prefix; ++ -- as postfix.
  virtual void unary_operator(const Token& /*op*/, Fix) {}
  // A type name (casts and sizeof) uses the specifier actions between these.
  virtual void begin_type_name(const Token& /*first*/) {}
  virtual void end_type_name(const Token& /*last*/) {}
  virtual void cast(const Token& /*lparen*/) {}
  virtual void sizeof_type(const Token& /*sizeof*/) {}
  virtual void sizeof_expr(const Token& /*sizeof*/) {}
  virtual void constant(const Token& /*literal*/) {}
  virtual void parenthesized(const Token& /*lparen*/) {}
  // A space reference: identifier, then subscripts and members in order,
  // then occurs or limit, then end_space_reference.
  virtual void identifier(const Token& /*name*/) {}
  virtual void subscript(SubscriptKind, const Token& /*lbracket*/) {}
  virtual void member(const Token& /*name*/) {}
  virtual void occurs(const Token&) {}
  virtual void limit(const Token&) {}
  virtual void end_space_reference(const Token& /*last*/) {}
  virtual void added_length(const Token&) {}
  // `free` and its space reference.
  virtual void free_reference(const Token& /*free*/) {}
  virtual void call(const CallInfo&) {}
  // Stands in for an operand that a syntax error left out.
  virtual void syntax_error_operand(const Token& /*at*/) {}

  // ---- Constant expressions -------------------------------------------------
  virtual void const_literal(const Token&) {}
  virtual void const_unary(const Token& /*op: - or +*/) {}
  virtual void const_binary(const Token& /*op: | + - * /*/) {}
  virtual void const_error_operand(const Token& /*at*/) {}
};

}  // namespace ycc
