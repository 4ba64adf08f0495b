// Expressions, lowest precedence first. Binary levels are left-associative
// loops; assignment and the conditional are right-associative. Operands reach
// the actions through their expression stack.
#include <algorithm>

#include "front/parser_internal.h"

namespace ycc {

namespace {

constexpr std::size_t npos = static_cast<std::size_t>(-1);

// The binary levels, from logical or (0) to multiplicative (9); -1 for a
// token that is no binary operator.
int binary_level(int tok) {
  switch (tok) {
    case T_OR:
      return 0;
    case T_AND:
      return 1;
    case T_BITWISEOR:
      return 2;
    case T_BITWISEXOR:
      return 3;
    case T_BITWISEAND:
      return 4;
    case T_EQUAL:
    case T_NOTEQUAL:
      return 5;
    case T_LESSTHAN:
    case T_GREATERTHAN:
    case T_LESSTHANOREQUALTO:
    case T_GREATERTHANOREQUALTO:
      return 6;
    case T_SHIFTLEFT:
    case T_SHIFTRIGHT:
      return 7;
    case T_PLUS:
    case T_MINUS:
      return 8;
    case T_MULTIPLY:
    case T_DIVIDE:
    case T_PERCENT:
      return 9;
    default:
      return -1;
  }
}

constexpr TokSet prefix_operators{T_PLUSPLUS, T_MINUSMINUS, T_MINUS,
                                  T_PLUS,     T_ONESCOMPLEMENT, T_NOT};

}  // namespace

// expression = assignment-expression { "," assignment-expression }
void Parser::expression() {
  bool saved = in_arguments_;
  in_arguments_ = false;
  assignment_expression();
  while (at(T_COMMA)) {
    const Token& op = advance();
    assignment_expression();
    act_.comma(op);
  }
  in_arguments_ = saved;
}

// assignment-expression = conditional-expression [ assignment-operator assignment-expression ]
// assignment-operator = "=" | "===" | "*=" | "/=" | "%=" | "+=" | "-=" | "<<=" | ">>="
//                     | "&=" | "^=" | "|="
void Parser::assignment_expression() {
  conditional_expression();
  if (!assignment_operators.has(cur().tok)) return;
  YCC_DEPTH_GUARD();  // the right operand nests
  const Token& op = advance();
  assignment_expression();
  AssignMode mode = op.tok == T_ASSIGNEQUAL ? AssignMode::Plain
                    : op.tok == T_MOVE      ? AssignMode::Move
                                            : AssignMode::Compound;
  act_.assignment(mode, op);
}

// conditional-expression = logical-or-expression [ "?" expression ":" conditional-expression ]
void Parser::conditional_expression() {
  binary_expression(0);
  if (!at(T_QUESTIONMARK)) return;
  YCC_DEPTH_GUARD();  // the last operand nests
  const Token& question = advance();
  expression();
  const Token& colon = cur();
  expect(T_COLON, follow_expression);
  conditional_expression();
  act_.conditional(question, colon);
}

// logical-or-expression     = logical-and-expression { "||" logical-and-expression }
// logical-and-expression    = bitwise-or-expression { "&&" bitwise-or-expression }
// bitwise-or-expression     = bitwise-xor-expression { "|" bitwise-xor-expression }
// bitwise-xor-expression    = bitwise-and-expression { "^" bitwise-and-expression }
// bitwise-and-expression    = equality-expression { "&" equality-expression }
// equality-expression       = relational-expression { ("==" | "!=") relational-expression }
// relational-expression     = shift-expression { ("<" | ">" | "<=" | ">=") shift-expression }
// shift-expression          = additive-expression { ("<<" | ">>") additive-expression }
// additive-expression       = multiplicative-expression { ("+" | "-") multiplicative-expression }
// multiplicative-expression = unary-expression { ("*" | "/" | "%") unary-expression }
// One function climbs all ten levels: it parses the operands of the levels
// from min_level up, so a chain of operators stays a loop.
void Parser::binary_expression(int min_level) {
  unary_expression();
  for (;;) {
    int level = binary_level(cur().tok);
    if (level < min_level) return;
    const Token& op = advance();
    binary_expression(level + 1);
    if (level == 0)
      act_.logical_or(op);
    else if (level == 1)
      act_.logical_and(op);
    else
      act_.binary_operator(op);
  }
}

// unary-expression = ( "++" | "--" | "-" | "+" | "~" | "!" ) unary-expression
//                  | "(" type-name ")" unary-expression
//                  | `sizeof` "(" type-name ")"
//                  | `sizeof` "(" space-reference ")"
//                  | postfix-expression
// A "(" followed by a type starts a cast, otherwise a parenthesised expression.
void Parser::unary_expression() {
  YCC_DEPTH_GUARD();
  if (prefix_operators.has(cur().tok)) {
    const Token& op = advance();
    unary_expression();
    act_.unary_operator(op, Fix::Prefix);
    return;
  }
  if (at(T_LPARENTHESIS) && cast_at(pos_)) {
    const Token& lparen = advance();
    type_name();
    expect(T_RPARENTHESIS, follow_expression | literal_tokens | TokSet{T_IDENTIFIER, T_LPARENTHESIS});
    unary_expression();
    act_.cast(lparen);
    return;
  }
  if (at(T_SIZEOF)) {
    const Token& keyword = advance();
    if (!at(T_LPARENTHESIS)) {
      missing_operand(follow_expression);
      return;
    }
    bool of_type = cast_at(pos_);
    advance();
    if (of_type) {
      type_name();
    } else if (at(T_IDENTIFIER)) {
      space_reference();
    } else {
      missing_operand(follow_expression);
    }
    expect(T_RPARENTHESIS, follow_expression);
    if (of_type)
      act_.sizeof_type(keyword);
    else
      act_.sizeof_expr(keyword);
    return;
  }
  postfix_expression();
}

bool Parser::cast_at(std::size_t lparen) const { return type_start_at(lparen + 1); }

// A syntax error where an operand belongs: reported, recovered, and an
// operand stands in for the missing one.
void Parser::missing_operand(const TokSet& follow) {
  const Token& at_token = cur();
  syntax_error(follow);
  act_.syntax_error_operand(at_token);
}

// postfix-expression = primary-expression { "++" | "--" }
void Parser::postfix_expression() {
  primary_expression();
  while (at(T_PLUSPLUS) || at(T_MINUSMINUS)) act_.unary_operator(advance(), Fix::Postfix);
}

// primary-expression = constant
//                    | "(" expression ")"
//                    | call
//                    | `free` space-reference
//                    | `added_length`
//                    | space-reference
// constant = DECIMALINT | HEXADECIMAL | FLOATONE | FLOATTWO | CHARACTER | STRING
void Parser::primary_expression() {
  const Token& first = cur();
  if (literal_tokens.has(first.tok)) {
    act_.constant(advance());
    return;
  }
  switch (first.tok) {
    case T_IDENTIFIER:
      if (returns_call_at(pos_))
        call_with_returns();
      else if (tok_at(pos_ + 1) == T_LPARENTHESIS)
        call_rest(0);
      else
        space_reference();
      return;
    case T_LPARENTHESIS:
      if (tok_at(pos_ + 1) == T_MULTIPLY) {
        call_rest(0);
      } else {
        advance();
        expression();
        expect(T_RPARENTHESIS, follow_expression);
        act_.parenthesized(first);
      }
      return;
    case T_FREE:
      advance();
      if (at(T_IDENTIFIER)) {
        space_reference();
        act_.free_reference(first);
      } else {
        missing_operand(follow_expression);
      }
      return;
    case T_ADDED_LENGTH:
      act_.added_length(advance());
      return;
    default:
      missing_operand(follow_expression);
      return;
  }
}

// space-reference = IDENTIFIER { "[" subscript "]" | "." IDENTIFIER } [ "." ( `occurs` | `limit` ) ]
// subscript = expression | `this` | (nothing)
void Parser::space_reference() {
  act_.identifier(advance());
  for (;;) {
    const int t = cur().tok;
    // Most references are a name alone.
    if (t != T_LSQUAREBRACKET && t != T_DOT) break;
    if (t == T_LSQUAREBRACKET) {
      const Token& lbracket = advance();
      SubscriptKind kind = SubscriptKind::Expression;
      if (at(T_RSQUAREBRACKET)) {
        kind = SubscriptKind::Empty;
      } else if (at(T_THIS) && tok_at(pos_ + 1) == T_RSQUAREBRACKET) {
        advance();
        kind = SubscriptKind::This;
      } else {
        expression();
      }
      expect(T_RSQUAREBRACKET, follow_expression);
      act_.subscript(kind, lbracket);
    } else if (tok_at(pos_ + 1) == T_IDENTIFIER) {
      advance();
      act_.member(advance());
    } else if (tok_at(pos_ + 1) == T_OCCURS) {
      advance();
      act_.occurs(advance());
      break;
    } else if (tok_at(pos_ + 1) == T_LIMIT) {
      advance();
      act_.limit(advance());
      break;
    } else {
      break;
    }
  }
  act_.end_space_reference(last());
}

// call = [ return-variables "=" ] callee "(" [ arguments ] ")"
// return-variables = space-reference { "," space-reference }
// The form with return variables is found by lookahead; inside an argument
// list, where "," separates arguments, it takes a single return variable.
void Parser::call_with_returns() {
  int count = 0;
  space_reference();
  ++count;
  while (!in_arguments_ && at(T_COMMA)) {
    advance();
    space_reference();
    ++count;
  }
  advance();  // "=", checked by the lookahead
  call_rest(count);
}

// callee = IDENTIFIER | "(" "*" expression ")"
// arguments = assignment-expression { "," assignment-expression }
void Parser::call_rest(int return_count) {
  CallInfo info{};
  info.return_count = return_count;
  if (at(T_IDENTIFIER)) {
    info.callee = &advance();
  } else {
    info.callee = &advance();  // "("
    info.through_pointer = true;
    advance();                 // "*"
    expression();
    expect(T_RPARENTHESIS, follow_expression);
  }
  if (!expect(T_LPARENTHESIS, follow_expression)) {
    info.rparen = &cur();
    act_.call(info);
    return;
  }
  if (!at(T_RPARENTHESIS)) {
    bool saved = in_arguments_;
    in_arguments_ = true;
    for (;;) {
      std::size_t before = pos_;
      assignment_expression();
      ++info.argument_count;
      if (!at(T_COMMA) || pos_ == before) break;
      advance();
    }
    in_arguments_ = saved;
  }
  info.rparen = &cur();
  expect(T_RPARENTHESIS, follow_expression);
  int next = cur().tok;
  info.followed_by_operator =
      return_count > 0 && (binary_level(next) >= 0 || assignment_operators.has(next) ||
                           next == T_QUESTIONMARK || next == T_PLUSPLUS || next == T_MINUSMINUS);
  act_.call(info);
}

// Whether a call with return variables starts at `i`: space references
// separated by "," (only one inside arguments), "=", then a callee and "(".
// The starts of a failed list are remembered, so that each later element of
// the same list is not scanned again.
bool Parser::returns_call_at(std::size_t i) {
  if (i >= no_returns_base_ && i - no_returns_base_ < no_returns_call_.size() &&
      no_returns_call_[i - no_returns_base_])
    return false;
  // Most names are followed by an operator: no list, no call to look for.
  switch (tok_at(i + 1)) {
    case T_LSQUAREBRACKET:
    case T_DOT:
    case T_COMMA:
      break;
    case T_ASSIGNEQUAL:
      return callee_at(i + 2);
    default:
      return false;
  }
  std::size_t j = i;
  for (;;) {
    j = skip_space_reference(j);
    if (j == npos) break;
    if (!in_arguments_ && tok_at(j) == T_COMMA && tok_at(j + 1) == T_IDENTIFIER) {
      ++j;
      continue;
    }
    if (tok_at(j) == T_ASSIGNEQUAL && callee_at(j + 1)) return true;
    break;
  }
  // Mark every list element from i on: each starts a suffix of the same list.
  std::size_t k = i;
  while (k != npos && k >= no_returns_base_ && tok_at(k) == T_IDENTIFIER) {
    std::size_t at = k - no_returns_base_;
    if (at >= no_returns_call_.size()) no_returns_call_.resize(std::max(at + 1, no_returns_call_.size() * 2));
    no_returns_call_[at] = 1;
    std::size_t next = skip_space_reference(k);
    if (next == npos || in_arguments_ || tok_at(next) != T_COMMA || tok_at(next + 1) != T_IDENTIFIER)
      break;
    k = next + 1;
  }
  return false;
}

bool Parser::callee_at(std::size_t i) const {
  return (tok_at(i) == T_IDENTIFIER && tok_at(i + 1) == T_LPARENTHESIS) ||
         (tok_at(i) == T_LPARENTHESIS && tok_at(i + 1) == T_MULTIPLY);
}

// The position after the space reference at `i`, or npos when none is there.
std::size_t Parser::skip_space_reference(std::size_t i) const {
  if (tok_at(i) != T_IDENTIFIER) return npos;
  ++i;
  for (;;) {
    int t = tok_at(i);
    if (t == T_LSQUAREBRACKET) {
      i = skip_balanced(i, T_LSQUAREBRACKET, T_RSQUAREBRACKET);
      if (i == npos) return npos;
    } else if (t == T_DOT && tok_at(i + 1) == T_IDENTIFIER) {
      i += 2;
    } else if (t == T_DOT && (tok_at(i + 1) == T_OCCURS || tok_at(i + 1) == T_LIMIT)) {
      return i + 2;
    } else {
      return i;
    }
  }
}

// The position after the bracket that closes the one at `i`; npos at the end
// of the file or when the brackets nest deeper than the parser would go.
std::size_t Parser::skip_balanced(std::size_t i, int open, int close) const {
  int depth = 0;
  for (; toks_.contains(i); ++i) {
    int t = toks_[i].tok;
    if (t == T_Eof) return npos;
    if (t == open) {
      if (++depth > parser_depth_limit) return npos;
    } else if (t == close && --depth == 0) {
      return i + 1;
    }
  }
  return npos;
}

}  // namespace ycc
