// External declarations, declaration specifiers, declarators, initializers,
// function headers with their parameter and return lists, and type names.
#include "front/parser_internal.h"

namespace ycc {

namespace {

TagKind tag_kind(int tok) {
  return tok == T_STRUCT ? TagKind::Struct : tok == T_ENUM ? TagKind::Enum : TagKind::Fun;
}

// Tokens that only a statement can hold: a function header never reaches them.
constexpr TokSet statement_keywords{T_IF,     T_SWITCH, T_WHILE, T_DO,   T_FOR,
                                    T_GOTO,   T_CONTINUE, T_BREAK, T_RETURN, T_RAISE,
                                    T_CASE,   T_DEFAULT, T_EXCEPTION, T_ELSE};

}  // namespace

// translation-unit = { external-declaration } Eof
void Parser::translation_unit() {
  while (!at(T_Eof)) {
    // Nothing before an external declaration is read again.
    toks_.give_back_before(pos_);
    no_returns_call_.clear();
    no_returns_base_ = pos_;
    if (at(T_SEMICOLON)) {
      advance();  // an empty declaration declares nothing
    } else if (function_header_at(pos_)) {
      function_definition_or_prototype();
    } else if (declaration_start() || at(T_IDENTIFIER)) {
      declaration(DeclContext::External);
    } else {
      syntax_.at_or_before(cur());
      recover_external();
    }
  }
}

void Parser::recover_external() {
  std::size_t start = pos_;
  if (!previous_recovery_consumed_) advance();
  while (!at(T_Eof) && !at(T_SEMICOLON) && !declaration_start() && !function_header_at(pos_))
    advance();
  previous_recovery_consumed_ = pos_ != start;
}

// A function header starts with [ `static` ] IDENTIFIER "(".
bool Parser::function_header_at(std::size_t i) const {
  if (tok_at(i) == T_STATIC) ++i;
  return tok_at(i) == T_IDENTIFIER && tok_at(i + 1) == T_LPARENTHESIS;
}

// Whether the header whose "(" stands at `lparen` is followed by a body: the
// first "{" that opens no structure or enumeration body and no initializer
// list, before any ";". The scan result is kept so that malformed input
// (headers that never end) is scanned only once.
bool Parser::header_has_body(std::size_t lparen) {
  if (lparen < header_scan_end_) return header_scan_body_;
  std::size_t i = lparen;
  bool body = false;
  for (;; ++i) {
    int t = tok_at(i);
    if (t == T_Eof || t == T_SEMICOLON || t == T_RCURLYBRACE || statement_keywords.has(t)) break;
    if (t != T_LCURLYBRACE) continue;
    int p1 = tok_at(i - 1), p2 = tok_at(i - 2);
    bool tag_body = p1 == T_STRUCT || p1 == T_ENUM ||
                    (p1 == T_IDENTIFIER && (p2 == T_STRUCT || p2 == T_ENUM));
    if (!tag_body && p1 != T_ASSIGNEQUAL) {
      body = true;
      break;
    }
    std::size_t close = skip_balanced(i, T_LCURLYBRACE, T_RCURLYBRACE);
    if (close == static_cast<std::size_t>(-1)) break;
    i = close - 1;
  }
  header_scan_end_ = i;
  header_scan_body_ = body;
  return body;
}

// function-definition = function-header function-body
// function-prototype = function-header ";"
// function-header = [ `static` ] IDENTIFIER parameter-list [ return-list ]
void Parser::function_definition_or_prototype() {
  bool is_static = accept(T_STATIC);
  const Token& name = advance();
  bool definition = header_has_body(pos_);
  act_.enter_function_name(name, is_static, definition);
  parameter_list(ListOwner::Function);
  return_list(ListOwner::Function);
  act_.finish_function(name, definition);
  if (at(T_LCURLYBRACE)) {
    function_body();
    return;
  }
  if (!at(T_SEMICOLON)) {
    syntax_.at_or_before(cur());
    recover_external();
  }
  const Token& end = cur();
  accept(T_SEMICOLON);
  act_.end_declaration(DeclContext::External, end);
}

// parameter-list = "(" [ parameter { "," parameter } [ "," "..." ] | "..." ] ")"
// parameter = `any` | type-specifiers declarator
void Parser::parameter_list(ListOwner owner) {
  const Token& lparen = cur();
  if (!expect(T_LPARENTHESIS, follow_parameter)) {
    act_.begin_parameter_list(owner, lparen);
    act_.end_parameter_list(owner, cur());
    return;
  }
  act_.begin_parameter_list(owner, lparen);
  if (!at(T_RPARENTHESIS)) {
    for (;;) {
      if (at(T_ELLIPSIS)) {
        act_.parameter_ellipsis(advance());
        break;
      }
      parameter_declaration(owner);
      if (!accept(T_COMMA)) break;
    }
  }
  const Token& rparen = cur();
  expect(T_RPARENTHESIS, follow_parameter);
  act_.end_parameter_list(owner, rparen);
}

void Parser::parameter_declaration(ListOwner owner) {
  if (at(T_ANY)) {
    act_.parameter_any(advance());
    return;
  }
  DeclContext ctx = owner == ListOwner::Function ? DeclContext::Parameter : DeclContext::FunParameter;
  act_.begin_declaration(ctx, cur());
  declaration_specifiers(ctx, follow_parameter);
  act_.begin_declarator(cur());
  const Token* name = declarator(false);
  act_.complete_declarator(name, false);
}

// return-list = return-declaration { "," return-declaration }
// A function's return list runs up to its body or ";". A fun type's return
// list is there only when a type follows its ")", and goes on only while a
// type follows the ",".
void Parser::return_list(ListOwner owner) {
  act_.begin_return_list(owner, cur());
  bool present = owner == ListOwner::Function
                     ? !at(T_LCURLYBRACE) && !at(T_SEMICOLON)
                     : type_start_at(pos_);
  if (present) {
    return_declaration(owner);
    while (at(T_COMMA) && (owner == ListOwner::Function || type_start_at(pos_ + 1))) {
      advance();
      return_declaration(owner);
    }
  }
  act_.end_return_list(owner, last());
}

// return-declaration = type-specifiers declarator [ "=" initializer ]
// (the initializer only in a function header)
void Parser::return_declaration(ListOwner owner) {
  DeclContext ctx = owner == ListOwner::Function ? DeclContext::Return : DeclContext::FunReturn;
  act_.begin_declaration(ctx, cur());
  declaration_specifiers(ctx, follow_parameter);
  act_.begin_declarator(cur());
  const Token* name = declarator(false);
  bool initialized = false;
  if (owner == ListOwner::Function && at(T_ASSIGNEQUAL)) {
    act_.begin_initializer(advance());
    initializer();
    act_.end_initializer(last());
    initialized = true;
  }
  act_.complete_declarator(name, initialized);
}

bool Parser::typedef_name_at(std::size_t i) const {
  return tok_at(i) == T_IDENTIFIER && act_.is_typedef_name(toks_[i].text());
}

// A type: a type keyword, struct, enum, fun, or a typedef name.
bool Parser::type_start_at(std::size_t i) const {
  int t = tok_at(i);
  return type_keywords.has(t) || tag_keywords.has(t) || typedef_name_at(i);
}

// What starts a declaration at file level or at the head of a block.
bool Parser::declaration_start() const {
  return type_start_at(pos_) || storage_keywords.has(cur().tok) || at(T_VAR);
}

// declaration = declaration-specifiers [ init-declarator { "," init-declarator } ] ";"
void Parser::declaration(DeclContext ctx) {
  const TokSet& follow = ctx == DeclContext::External ? follow_declarator : follow_statement;
  act_.begin_declaration(ctx, cur());
  if (!declaration_specifiers(ctx, follow | follow_declarator)) {
    // No type at all: the rest of the declaration is skipped.
    accept(T_SEMICOLON);
    act_.end_declaration(ctx, last());
    return;
  }
  if (at(T_SEMICOLON)) {
    act_.complete_tag_only_declaration(cur());
  } else {
    init_declarator();
    while (accept(T_COMMA)) init_declarator();
  }
  if (!at(T_SEMICOLON)) {
    syntax_.at_or_before(cur());
    if (ctx == DeclContext::External)
      recover_external();
    else
      recover(follow_statement);
  }
  const Token& end = cur();
  accept(T_SEMICOLON);
  act_.end_declaration(ctx, end);
}

// declaration-specifiers = specifier { specifier }   (in any order)
// specifier = storage-class | type-keyword | `var` | struct-specifier
//           | enum-specifier | fun-specifier | typedef-name
// Members, parameters and returns take no storage class. False when no
// specifier was found (the type error has been reported).
bool Parser::declaration_specifiers(DeclContext ctx, const TokSet& follow) {
  bool have_type = false;
  bool any = false;
  while (specifier(ctx, false, have_type)) any = true;
  if (!any) type_error(follow);
  return any;
}

// One specifier, when the current token is one. A typedef name counts as a
// specifier when no type was given yet, or when a declarator or another
// specifier follows it (int T x); otherwise it is the declarator's name.
bool Parser::specifier(DeclContext ctx, bool in_type_name, bool& have_type) {
  int t = cur().tok;
  bool storage_allowed = !in_type_name && (ctx == DeclContext::External || ctx == DeclContext::Block);
  if (storage_keywords.has(t) && storage_allowed) {
    act_.add_storage_class(advance());
    return true;
  }
  if (type_keywords.has(t)) {
    act_.add_type_keyword(advance());
    have_type = true;
    return true;
  }
  if (t == T_VAR && !have_type && !in_type_name) {
    act_.add_var_qualifier(advance());
    return true;
  }
  if (tag_keywords.has(t)) {
    tag_specifier(ctx, in_type_name);
    have_type = true;
    return true;
  }
  if (typedef_name_at(pos_)) {
    int next = tok_at(pos_ + 1);
    bool continues = next == T_IDENTIFIER || next == T_VAR || type_keywords.has(next) ||
                     tag_keywords.has(next) || storage_keywords.has(next);
    if (!have_type || continues) {
      act_.use_typedef_name(advance());
      have_type = true;
      return true;
    }
  }
  return false;
}

// struct-specifier = `struct` [ IDENTIFIER ] [ "{" { member-declaration } "}" ]
// enum-specifier = `enum` [ IDENTIFIER ] [ "{" IDENTIFIER { "," IDENTIFIER } "}" ]
// fun-specifier = `fun` [ IDENTIFIER ] [ parameter-list [ return-list ] ]
// A tag or a body must be written; a type name takes no body. A tag alone
// before ";" declares the tag (struct s;); elsewhere it uses it.
void Parser::tag_specifier(DeclContext ctx, bool in_type_name) {
  YCC_DEPTH_GUARD();
  const Token& keyword = advance();
  TagKind kind = tag_kind(keyword.tok);
  const Token* tag = at(T_IDENTIFIER) ? &advance() : nullptr;
  int opener = kind == TagKind::Fun ? T_LPARENTHESIS : T_LCURLYBRACE;
  if (!in_type_name && at(opener)) {
    act_.declare_tag(kind, tag, keyword, true);
    if (kind == TagKind::Struct) {
      struct_body();
    } else if (kind == TagKind::Enum) {
      enum_body();
    } else {
      parameter_list(ListOwner::FunType);
      return_list(ListOwner::FunType);
    }
    act_.end_tag_body(kind, last());
    return;
  }
  if (!tag) {
    syntax_error(follow_declarator | follow_parameter);
    return;
  }
  bool forward = !in_type_name && at(T_SEMICOLON) &&
                 (ctx == DeclContext::External || ctx == DeclContext::Block);
  if (forward)
    act_.declare_tag(kind, tag, keyword, false);
  else
    act_.use_tag(kind, *tag);
}

// "{" { member-declaration } "}"
void Parser::struct_body() {
  advance();
  while (!at(T_RCURLYBRACE) && !at(T_Eof)) {
    std::size_t before = pos_;
    member_declaration();
    if (pos_ == before) advance();
  }
  expect(T_RCURLYBRACE, follow_declarator);
}

// "{" IDENTIFIER { "," IDENTIFIER } "}"
void Parser::enum_body() {
  advance();
  for (;;) {
    if (at(T_IDENTIFIER)) {
      act_.enumerator(advance());
    } else {
      syntax_error(TokSet{T_COMMA, T_RCURLYBRACE, T_SEMICOLON});
    }
    if (!accept(T_COMMA)) break;
  }
  expect(T_RCURLYBRACE, follow_declarator);
}

// member-declaration = type-specifiers [ declarator { "," declarator } ] ";"
void Parser::member_declaration() {
  act_.begin_declaration(DeclContext::Member, cur());
  if (!declaration_specifiers(DeclContext::Member, follow_declarator)) {
    accept(T_SEMICOLON);
    act_.end_declaration(DeclContext::Member, last());
    return;
  }
  if (at(T_SEMICOLON)) {
    act_.complete_tag_only_declaration(cur());
  } else {
    do {
      act_.begin_declarator(cur());
      const Token* name = declarator(true);
      act_.complete_declarator(name, false);
    } while (accept(T_COMMA));
  }
  const Token& end = cur();
  if (!accept(T_SEMICOLON)) {
    syntax_error(follow_declarator);
    accept(T_SEMICOLON);
  }
  act_.end_declaration(DeclContext::Member, end);
}

// init-declarator = declarator [ "=" initializer ]
void Parser::init_declarator() {
  act_.begin_declarator(cur());
  const Token* name = declarator(true);
  bool initialized = false;
  if (at(T_ASSIGNEQUAL)) {
    act_.begin_initializer(advance());
    initializer();
    act_.end_initializer(last());
    initialized = true;
  }
  act_.complete_declarator(name, initialized);
}

// declarator = [ `var` ] IDENTIFIER { dimension } [ resize-information ]
// The name may be left out in parameter and return lists.
const Token* Parser::declarator(bool name_required) {
  if (at(T_VAR)) act_.add_var_qualifier(advance());
  const Token* name = nullptr;
  if (at(T_IDENTIFIER)) {
    name = &advance();
    act_.declarator_name(*name);
  } else if (name_required) {
    syntax_error(follow_declarator | TokSet{T_ASSIGNEQUAL});
    return nullptr;
  }
  while (at(T_LSQUAREBRACKET)) dimension();
  if (at(T_DOT) && tok_at(pos_ + 1) == T_RESIZE) resize_information();
  return name;
}

// dimension = "[" [ constant-expression ] "]"
void Parser::dimension() {
  const Token& lbracket = advance();
  bool has_size = !at(T_RSQUAREBRACKET);
  if (has_size) constant_expression();
  expect(T_RSQUAREBRACKET, follow_declarator | TokSet{T_LSQUAREBRACKET, T_ASSIGNEQUAL, T_DOT});
  act_.add_dimension(has_size, lbracket);
}

// resize-information = "." `resize` resize-group { resize-group }
void Parser::resize_information() {
  advance();
  advance();
  if (!at(T_LSQUAREBRACKET)) {
    syntax_error(follow_declarator | TokSet{T_ASSIGNEQUAL});
    return;
  }
  while (at(T_LSQUAREBRACKET)) resize_group();
}

// resize-group = "[" number "]" | "[" percentage "%" "]" | "[" number "," percentage "%" "]"
//   number = constant-expression, percentage = constant-expression
void Parser::resize_group() {
  const Token& lbracket = advance();
  bool has_number = true, has_percent = false;
  constant_expression();
  if (accept(T_PERCENT)) {
    has_number = false;
    has_percent = true;
  } else if (accept(T_COMMA)) {
    constant_expression();
    has_percent = true;
    expect(T_PERCENT, follow_declarator | TokSet{T_RSQUAREBRACKET});
  }
  expect(T_RSQUAREBRACKET, follow_declarator | TokSet{T_LSQUAREBRACKET, T_ASSIGNEQUAL});
  act_.add_resize_group(has_number, has_percent, lbracket);
}

// initializer = "{" initializer { "," initializer } "}"
//             | [ "+" | "-" ] IDENTIFIER
//             | constant-expression          (numbers, characters, strings)
void Parser::initializer() {
  YCC_DEPTH_GUARD();
  if (at(T_LCURLYBRACE)) {
    act_.initializer_open_brace(advance());
    initializer();
    while (accept(T_COMMA)) initializer();
    const Token& close = cur();
    if (expect(T_RCURLYBRACE, follow_declarator))
      act_.initializer_close_brace(close);
    else
      act_.initializer_close_brace(cur());
    return;
  }
  if (at(T_IDENTIFIER)) {
    act_.initializer_identifier(advance(), nullptr);
    return;
  }
  if ((at(T_PLUS) || at(T_MINUS)) && tok_at(pos_ + 1) == T_IDENTIFIER) {
    const Token& sign = advance();
    act_.initializer_identifier(advance(), &sign);
    return;
  }
  const Token& first = cur();
  constant_expression();
  act_.initializer_constant(first);
}

// type-name = type-specifier { type-specifier }
// type-specifier = type-keyword | (`struct` | `enum` | `fun`) IDENTIFIER | typedef-name
bool Parser::type_name() {
  act_.begin_type_name(cur());
  bool have_type = false;
  bool any = false;
  while (specifier(DeclContext::Block, true, have_type)) any = true;
  if (!any) type_error(follow_expression);
  act_.end_type_name(last());
  return any;
}

}  // namespace ycc
