// The parser's machinery: token access, the two syntax error messages with
// their once-per-line memory, recovery by skipping to a follow set, and the
// nesting-depth limit.
#include "common/text.h"
#include "front/parser_internal.h"

namespace ycc {

namespace {

// The name of a source file without its directories.
const char* base_name(const char* path) {
  const char* b = path;
  for (const char* p = path; *p; ++p)
    if (*p == '/' || *p == '\\') b = p + 1;
  return b;
}

}  // namespace

Parser::Parser(const TokenList& tokens, Actions& actions, SyntaxErrors& syntax)
    : toks_(tokens), act_(actions), syntax_(syntax) {
  YCC_CHECK(toks_.contains(0), "yc");
  cur_ = last_ = &toks_[0];
}

const Token& Parser::peek(std::size_t k) const {
  std::size_t i = pos_ + k;
  // The list ends in Eof.
  return toks_.contains(i) ? toks_[i] : toks_.back();
}

bool Parser::expect_failed(const TokSet& follow) {
  syntax_error(follow);
  return false;
}

// Both messages are given once per line by the reporter; recovery happens
// whether or not the message was shown.
void Parser::syntax_error(const TokSet& follow) {
  syntax_.at_or_before(cur());
  recover(follow);
}

// Where a type is required (declaration specifiers, type names).
void Parser::type_error(const TokSet& follow) {
  syntax_.expecting_type(cur());
  recover(follow);
}

// Skips to a follow token or Eof. When the previous recovery consumed no
// token, one token is consumed first, so the parser always makes progress.
void Parser::recover(const TokSet& follow) {
  std::size_t start = pos_;
  if (!previous_recovery_consumed_) advance();
  while (!at(T_Eof) && !follow.has(cur().tok)) advance();
  previous_recovery_consumed_ = pos_ != start;
}

Parser::DepthGuard::DepthGuard(Parser& p, const char* file, int line) : p_(p) {
  if (++p_.depth_ > parser_depth_limit)
    throw ParserOverflow{strf("fatal: attrib/AST stack overflow %s(%d)!\n", base_name(file), line)};
}

void parse_translation_unit(const TokenList& tokens, Actions& actions,
                            SyntaxErrors& syntax) {
  Parser parser(tokens, actions, syntax);
  parser.translation_unit();
}

}  // namespace ycc
