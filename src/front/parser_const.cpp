// Constant expressions (dimension sizes, resize numbers, case labels and
// initializer items): a grammar of their own, folded at compile time by the
// actions. There is no "%" and no "&" here.
#include "front/parser_internal.h"

namespace ycc {

// constant-expression = const-additive { "|" const-additive }
void Parser::constant_expression() {
  const_additive();
  while (at(T_BITWISEOR)) {
    const Token& op = advance();
    const_additive();
    act_.const_binary(op);
  }
}

// const-additive = const-multiplicative { ("+" | "-") const-multiplicative }
void Parser::const_additive() {
  const_multiplicative();
  while (at(T_PLUS) || at(T_MINUS)) {
    const Token& op = advance();
    const_multiplicative();
    act_.const_binary(op);
  }
}

// const-multiplicative = const-unary { ("*" | "/") const-unary }
void Parser::const_multiplicative() {
  const_unary();
  while (at(T_MULTIPLY) || at(T_DIVIDE)) {
    const Token& op = advance();
    const_unary();
    act_.const_binary(op);
  }
}

// const-unary = ("-" | "+") const-unary | const-primary
void Parser::const_unary() {
  YCC_DEPTH_GUARD();
  if (at(T_MINUS) || at(T_PLUS)) {
    const Token& op = advance();
    const_unary();
    act_.const_unary(op);
    return;
  }
  const_primary();
}

// const-primary = "(" constant-expression ")"
//               | DECIMALINT | HEXADECIMAL | FLOATONE | FLOATTWO | CHARACTER | STRING
void Parser::const_primary() {
  if (literal_tokens.has(cur().tok)) {
    act_.const_literal(advance());
    return;
  }
  if (accept(T_LPARENTHESIS)) {
    constant_expression();
    expect(T_RPARENTHESIS, follow_constant);
    return;
  }
  const Token& at_token = cur();
  syntax_error(follow_constant);
  act_.const_error_operand(at_token);
}

}  // namespace ycc
