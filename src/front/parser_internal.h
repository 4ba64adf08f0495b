// The parser's own declarations, shared by its files: parser_core (tokens,
// syntax errors, recovery, nesting depth), parser_decl (external declarations
// and declarators), parser_stmt (statements), parser_expr (expressions) and
// parser_const (constant expressions).
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "diag/diagnostics.h"
#include "front/actions.h"
#include "front/parser.h"
#include "front/syntax_errors.h"
#include "front/token.h"

namespace ycc {

// A set of token numbers (all below 128).
class TokSet {
 public:
  constexpr TokSet() = default;
  constexpr TokSet(std::initializer_list<int> toks) {
    for (int t : toks) add(t);
  }
  constexpr void add(int t) { bits_[t >> 6] |= std::uint64_t{1} << (t & 63); }
  constexpr bool has(int t) const {
    return static_cast<unsigned>(t) < 128 && (bits_[t >> 6] >> (t & 63) & 1) != 0;
  }
  constexpr TokSet operator|(const TokSet& o) const {
    TokSet r;
    r.bits_[0] = bits_[0] | o.bits_[0];
    r.bits_[1] = bits_[1] | o.bits_[1];
    return r;
  }

 private:
  std::uint64_t bits_[2] = {0, 0};
};

// Token classes of the grammar.
inline constexpr TokSet type_keywords{T_CHAR,  T_SHORT,  T_INT,    T_LONG,
                                      T_FLOAT, T_DOUBLE, T_SIGNED, T_UNSIGNED};
inline constexpr TokSet storage_keywords{T_STATIC, T_EXTERN, T_TYPEDEF};
inline constexpr TokSet tag_keywords{T_STRUCT, T_ENUM, T_FUN};
inline constexpr TokSet literal_tokens{T_DECIMALINT, T_HEXADECIMAL, T_FLOATONE,
                                       T_FLOATTWO,   T_CHARACTER,   T_STRING};
inline constexpr TokSet assignment_operators{
    T_ASSIGNEQUAL,  T_MOVE,           T_TIMESEQUAL,      T_DIVIDEEQUAL,
    T_MODEQUAL,     T_PLUSEQUAL,      T_MINUSEQUAL,      T_SHIFTLEFTEQUAL,
    T_SHIFTRIGHTEQUAL, T_BITWISEANDEQUAL, T_BITWISEXOREQUAL, T_BITWISEOREQUAL};
inline constexpr TokSet binary_operators{
    T_OR,        T_AND,        T_BITWISEOR,         T_BITWISEXOR,           T_BITWISEAND,
    T_EQUAL,     T_NOTEQUAL,   T_LESSTHAN,          T_GREATERTHAN,          T_LESSTHANOREQUALTO,
    T_GREATERTHANOREQUALTO,    T_SHIFTLEFT,         T_SHIFTRIGHT,           T_PLUS,
    T_MINUS,     T_MULTIPLY,   T_DIVIDE,            T_PERCENT};

// Recovery sets: after a syntax error the rule skips to one of these (or Eof).
// Expressions stop where an enclosing rule can go on.
inline constexpr TokSet follow_expression =
    TokSet{T_RPARENTHESIS, T_RSQUAREBRACKET, T_SEMICOLON, T_COMMA, T_COLON,
           T_QUESTIONMARK, T_RCURLYBRACE, T_PLUSPLUS, T_MINUSMINUS} |
    binary_operators | assignment_operators;
// Statements resume at the next statement or at the end of the block.
inline constexpr TokSet follow_statement{
    T_SEMICOLON, T_LCURLYBRACE, T_RCURLYBRACE, T_ELSE,  T_IF,     T_SWITCH,   T_WHILE,
    T_DO,        T_FOR,         T_GOTO,        T_CONTINUE, T_BREAK, T_RETURN, T_RAISE,
    T_CASE,      T_DEFAULT,     T_EXCEPTION};
// Declarators resume at the next declarator or at the end of the declaration.
inline constexpr TokSet follow_declarator{T_COMMA, T_SEMICOLON, T_RCURLYBRACE};
// Parameter and return declarations.
inline constexpr TokSet follow_parameter{T_COMMA, T_RPARENTHESIS, T_LCURLYBRACE, T_SEMICOLON};
// External declarations resume at the start of the next one.
inline constexpr TokSet follow_external =
    TokSet{T_SEMICOLON, T_IDENTIFIER, T_STRUCT, T_ENUM, T_FUN} | type_keywords | storage_keywords;
// Constant expressions stop where their declarator, resize group or label goes on.
inline constexpr TokSet follow_constant{T_RSQUAREBRACKET, T_COMMA, T_PERCENT, T_COLON,
                                        T_SEMICOLON, T_RCURLYBRACE, T_RPARENTHESIS};

class Parser {
 public:
  Parser(const TokenList& tokens, Actions& actions, SyntaxErrors& syntax);

  // translation-unit = { external-declaration } Eof
  void translation_unit();

 private:
  // ---- core: tokens ----
  // The current token is held by address: the parser reads it many times.
  const Token& cur() const { return *cur_; }
  const Token& peek(std::size_t k) const;
  int tok_at(std::size_t i) const { return toks_.tok_at(i); }
  bool at(int tok) const { return cur_->tok == static_cast<unsigned>(tok); }
  // The current token, passed (Eof stays current).
  const Token& advance() {
    const Token& t = *cur_;
    if (t.tok != T_Eof) {
      last_ = cur_;
      cur_ = &toks_.next(++pos_, cur_);
    }
    return t;
  }
  bool accept(int tok) {
    if (!at(tok)) return false;
    advance();
    return true;
  }
  // Consumes `tok` or reports a syntax error and recovers to `follow`.
  bool expect(int tok, const TokSet& follow) { return accept(tok) || expect_failed(follow); }
  bool expect_failed(const TokSet& follow);

  // ---- core: syntax errors and recovery ----
  void syntax_error(const TokSet& follow);
  void type_error(const TokSet& follow);
  void recover(const TokSet& follow);
  // Recovery at file level: to the start of the next external declaration.
  void recover_external();
  // The last token consumed (the first token when none was).
  const Token& last() const { return *last_; }

  // ---- core: nesting depth ----
  class DepthGuard {
   public:
    DepthGuard(Parser& p, const char* file, int line);
    ~DepthGuard() { --p_.depth_; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

   private:
    Parser& p_;
  };

  // ---- declarations (parser_decl.cpp) ----
  void external_declaration();
  bool function_header_at(std::size_t i) const;
  bool header_has_body(std::size_t lparen);
  void function_definition_or_prototype();
  void declaration(DeclContext ctx);
  bool type_start_at(std::size_t i) const;
  bool typedef_name_at(std::size_t i) const;
  bool declaration_start() const;
  bool declaration_specifiers(DeclContext ctx, const TokSet& follow);
  bool specifier(DeclContext ctx, bool in_type_name, bool& have_type);
  void tag_specifier(DeclContext ctx, bool in_type_name);
  void struct_body();
  void enum_body();
  void member_declaration();
  void init_declarator();
  const Token* declarator(bool name_required);
  void dimension();
  void resize_information();
  void resize_group();
  void initializer();
  void parameter_list(ListOwner owner);
  void parameter_declaration(ListOwner owner);
  void return_list(ListOwner owner);
  void return_declaration(ListOwner owner);
  bool type_name();

  // ---- statements (parser_stmt.cpp) ----
  void function_body();
  FunctionLabels collect_labels(std::size_t lbrace) const;
  void statement();
  void compound_statement();
  void block_items();
  void labelled_statement();
  void if_statement();
  void switch_statement();
  void while_statement();
  void do_statement();
  void for_statement();
  void jump_statement();
  void raise_statement();
  void expression_statement();
  void parenthesized_condition();

  // ---- expressions (parser_expr.cpp) ----
  void expression();
  void assignment_expression();
  void conditional_expression();
  void binary_expression(int min_level);
  void unary_expression();
  void postfix_expression();
  void primary_expression();
  bool cast_at(std::size_t lparen) const;
  void missing_operand(const TokSet& follow);
  void space_reference();
  void call_with_returns();
  void call_rest(int return_count);
  std::size_t skip_space_reference(std::size_t i) const;
  std::size_t skip_balanced(std::size_t i, int open, int close) const;
  bool returns_call_at(std::size_t i);
  bool callee_at(std::size_t i) const;

  // ---- constant expressions (parser_const.cpp) ----
  void constant_expression();
  void const_additive();
  void const_multiplicative();
  void const_unary();
  void const_primary();

  const TokenList& toks_;
  std::size_t pos_ = 0;
  const Token* cur_;   // token pos_
  const Token* last_;  // token pos_ - 1, or token 0 at the start
  Actions& act_;
  SyntaxErrors& syntax_;
  int depth_ = 0;
  bool previous_recovery_consumed_ = true;
  // Inside call arguments a comma separates arguments, so a call with
  // return variables there takes only one of them.
  bool in_arguments_ = false;
  // Token positions where a list of return variables is known not to start,
  // from `no_returns_base_` on (the start of the external declaration).
  std::vector<char> no_returns_call_;
  std::size_t no_returns_base_ = 0;
  // The last function-header scan: up to where it looked, and its answer.
  std::size_t header_scan_end_ = 0;
  bool header_scan_body_ = false;
};

#define YCC_DEPTH_GUARD() DepthGuard depth_guard_(*this, __FILE__, __LINE__)

}  // namespace ycc
