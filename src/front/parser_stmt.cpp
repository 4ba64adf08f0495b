// Statements: function bodies, blocks, labelled statements and every
// statement form, each calling its translation actions in order.
#include "front/parser_internal.h"

#include <array>

namespace ycc {

namespace {

constexpr TokSet expression_starts =
    TokSet{T_IDENTIFIER, T_LPARENTHESIS, T_PLUSPLUS, T_MINUSMINUS, T_MINUS, T_PLUS,
           T_ONESCOMPLEMENT, T_NOT, T_SIZEOF, T_FREE, T_ADDED_LENGTH} |
    literal_tokens;

// Tokens after which an IDENTIFIER ":" can only be a statement label.
constexpr TokSet label_predecessors{T_LCURLYBRACE, T_RCURLYBRACE, T_SEMICOLON, T_COLON,
                                    T_RPARENTHESIS, T_ELSE,       T_DO};

}  // namespace

// function-body = "{" { declaration } { statement } "}"
void Parser::function_body() {
  const Token& lbrace = cur();
  FunctionLabels labels = collect_labels(pos_);
  advance();
  act_.open_function_body(lbrace, labels);
  block_items();
  const Token& rbrace = cur();
  expect(T_RCURLYBRACE, follow_external);
  act_.close_function_body(rbrace);
}

// The statement labels and exception handlers of the body that opens at
// `lbrace`, gathered from its tokens: "name :" where a statement can begin
// and where the ":" answers no pending "?" of a conditional, and
// "exception N :".
FunctionLabels Parser::collect_labels(std::size_t lbrace) const {
  // Every body is read once more here, so the scan walks whole blocks of
  // tokens and stops only at the few that matter.
  static constexpr std::array<bool, 128> stops = [] {
    std::array<bool, 128> a{};
    for (int t : {T_Eof, T_LCURLYBRACE, T_RCURLYBRACE, T_SEMICOLON, T_QUESTIONMARK, T_COLON}) a[t] = true;
    return a;
  }();
  FunctionLabels found;
  int braces = 0;
  int questions = 0;
  for (std::size_t i = lbrace;;) {
    auto [run, n] = toks_.run_at(i);
    if (!run) break;
    for (std::size_t k = 0; k < n; ++k) {
      const int t = run[k].tok;
      if (!stops[t]) continue;
      if (t == T_Eof) return found;
      if (t == T_LCURLYBRACE) {
        ++braces;
        questions = 0;
      } else if (t == T_RCURLYBRACE) {
        questions = 0;
        if (--braces == 0) return found;
      } else if (t == T_SEMICOLON) {
        questions = 0;
      } else if (t == T_QUESTIONMARK) {
        ++questions;
      } else if (questions > 0) {  // a ":"
        --questions;
      } else if (std::size_t at = i + k; at >= 2) {
        int before = toks_.tok_at(at - 1);
        int before2 = toks_.tok_at(at - 2);
        if (before == T_IDENTIFIER && label_predecessors.has(before2))
          found.labels.push_back(&toks_[at - 1]);
        else if (before == T_DECIMALINT && before2 == T_EXCEPTION)
          found.handlers.push_back(&toks_[at - 1]);
      }
    }
    i += n;
  }
  return found;
}

// block-items = { declaration } { statement }, up to the "}"
void Parser::block_items() {
  while (declaration_start()) declaration(DeclContext::Block);
  while (!at(T_RCURLYBRACE) && !at(T_Eof)) statement();
}

// statement = labelled-statement | compound-statement | expression-statement
//           | if-statement | switch-statement | while-statement | do-statement
//           | for-statement | jump-statement | raise-statement | ";"
void Parser::statement() {
  YCC_DEPTH_GUARD();
  act_.begin_statement(cur());
  switch (cur().tok) {
    case T_IDENTIFIER:
      if (tok_at(pos_ + 1) == T_COLON)
        labelled_statement();
      else
        expression_statement();
      break;
    case T_CASE:
    case T_DEFAULT:
    case T_EXCEPTION:
      labelled_statement();
      break;
    case T_LCURLYBRACE:
      compound_statement();
      break;
    case T_IF:
      if_statement();
      break;
    case T_SWITCH:
      switch_statement();
      break;
    case T_WHILE:
      while_statement();
      break;
    case T_DO:
      do_statement();
      break;
    case T_FOR:
      for_statement();
      break;
    case T_GOTO:
    case T_CONTINUE:
    case T_BREAK:
    case T_RETURN:
      jump_statement();
      break;
    case T_RAISE:
      raise_statement();
      break;
    case T_SEMICOLON:
      act_.empty_statement(advance());
      break;
    default:
      if (expression_starts.has(cur().tok))
        expression_statement();
      else
        syntax_error(follow_statement);
      break;
  }
  act_.end_statement(last());
}

// labelled-statement = IDENTIFIER ":" statement
//   | `case` constant-expression ":" statement
//   | `case` CHARACTER ":" statement
//   | `case` IDENTIFIER ":" statement
//   | `default` ":" statement
//   | `exception` DECIMALINT ":" statement
// The form of `case` is chosen by the token after it.
void Parser::labelled_statement() {
  const Token& first = cur();
  LabelKind kind = first.tok == T_IDENTIFIER ? LabelKind::Statement
                   : first.tok == T_CASE     ? LabelKind::Case
                   : first.tok == T_DEFAULT  ? LabelKind::Default
                                             : LabelKind::Exception;
  act_.enter_labelled_statement(kind, first);
  const TokSet follow = follow_statement | TokSet{T_COLON};
  switch (kind) {
    case LabelKind::Statement: {
      const Token& name = advance();
      advance();
      act_.statement_label(name);
      break;
    }
    case LabelKind::Case: {
      advance();
      const Token& value = cur();
      CaseForm form = at(T_CHARACTER)    ? CaseForm::Character
                      : at(T_IDENTIFIER) ? CaseForm::Identifier
                                         : CaseForm::ConstantExpression;
      if (form == CaseForm::ConstantExpression)
        constant_expression();
      else
        advance();
      if (expect(T_COLON, follow)) act_.case_label(form, case_mode(form), value);
      break;
    }
    case LabelKind::Default:
      advance();
      if (expect(T_COLON, follow)) act_.default_label(first);
      break;
    case LabelKind::Exception: {
      advance();
      if (!at(T_DECIMALINT)) {
        syntax_error(follow);
        accept(T_COLON);
        break;
      }
      const Token& number = advance();
      if (expect(T_COLON, follow)) act_.exception_handler(number);
      break;
    }
  }
  // A label needs a statement: "}" here is a syntax error of the statement.
  statement();
  act_.leave_labelled_statement(kind, last());
}

// compound-statement = "{" { declaration } { statement } "}"
void Parser::compound_statement() {
  const Token& lbrace = advance();
  act_.open_block(lbrace);
  block_items();
  const Token& rbrace = cur();
  expect(T_RCURLYBRACE, follow_statement);
  act_.close_block(rbrace);
}

// "(" expression ")" of if, switch, while and do; calls nothing itself.
void Parser::parenthesized_condition() {
  if (!expect(T_LPARENTHESIS, follow_expression | follow_statement)) {
    act_.syntax_error_operand(cur());
    return;
  }
  expression();
  expect(T_RPARENTHESIS, follow_statement);
}

// if-statement = `if` "(" expression ")" statement [ `else` statement ]
void Parser::if_statement() {
  advance();
  parenthesized_condition();
  act_.control_expression(last());
  statement();
  bool has_else = accept(T_ELSE);
  if (has_else) statement();
  act_.if_end(has_else, last());
}

// switch-statement = `switch` "(" expression ")" compound-statement
void Parser::switch_statement() {
  advance();
  parenthesized_condition();
  act_.switch_start(last());
  if (at(T_LCURLYBRACE))
    statement();
  else
    syntax_error(follow_statement);
  act_.switch_end(last());
}

// while-statement = `while` "(" expression ")" statement
void Parser::while_statement() {
  advance();
  parenthesized_condition();
  act_.while_start(last());
  statement();
  act_.while_end(last());
}

// do-statement = `do` statement `while` "(" expression ")" ";"
void Parser::do_statement() {
  act_.do_start(advance());
  statement();
  if (!at(T_WHILE)) {
    syntax_error(follow_statement);
    act_.syntax_error_operand(cur());
    act_.do_end(cur());
    return;
  }
  advance();
  parenthesized_condition();
  act_.do_end(last());
  expect(T_SEMICOLON, follow_statement);
}

// for-statement = `for` "(" [ expression ] ";" [ expression ] ";" [ expression ] ")" statement
void Parser::for_statement() {
  const Token& keyword = advance();
  const TokSet follow = follow_statement | TokSet{T_RPARENTHESIS};
  expect(T_LPARENTHESIS, follow_expression | follow);
  bool has_init = !at(T_SEMICOLON);
  if (has_init) expression();
  expect(T_SEMICOLON, follow);
  bool has_condition = !at(T_SEMICOLON);
  if (has_condition) expression();
  expect(T_SEMICOLON, follow);
  bool has_step = !at(T_RPARENTHESIS);
  if (has_step) expression();
  const Token& rparen = cur();
  expect(T_RPARENTHESIS, follow_statement);
  act_.for_start(keyword, has_init, has_condition, has_step, rparen);
  statement();
  act_.for_end(last());
}

// jump-statement = `goto` IDENTIFIER ";" | `continue` ";" | `break` ";" | `return` ";"
// (return takes no operand: results travel in the return variables)
void Parser::jump_statement() {
  const Token& keyword = advance();
  const Token* label = nullptr;
  if (keyword.tok == T_GOTO) {
    if (!at(T_IDENTIFIER)) {
      syntax_error(follow_statement);
      return;
    }
    label = &advance();
  }
  if (!expect(T_SEMICOLON, follow_statement)) return;
  switch (keyword.tok) {
    case T_GOTO:
      act_.goto_stmt(*label);
      break;
    case T_CONTINUE:
      act_.continue_stmt(keyword);
      break;
    case T_BREAK:
      act_.break_stmt(keyword);
      break;
    default:
      act_.return_stmt(keyword);
      break;
  }
}

// raise-statement = `raise` DECIMALINT ";"
void Parser::raise_statement() {
  advance();
  if (!at(T_DECIMALINT)) {
    syntax_error(follow_statement);
    return;
  }
  const Token& number = advance();
  if (expect(T_SEMICOLON, follow_statement)) act_.raise_stmt(number);
}

// expression-statement = expression ";"
void Parser::expression_statement() {
  expression();
  const Token& semicolon = cur();
  if (expect(T_SEMICOLON, follow_statement)) act_.expression_statement(semicolon);
}

}  // namespace ycc
