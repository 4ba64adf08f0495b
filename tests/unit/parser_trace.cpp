#include "parser_trace.h"

#include <sstream>

#include "common/options.h"
#include "diag/diagnostics.h"
#include "front/lexer.h"
#include "front/parser.h"
#include "front/syntax_errors.h"

namespace ycc {

namespace {

const char* context_name(DeclContext c) {
  switch (c) {
    case DeclContext::External: return "external";
    case DeclContext::Block: return "block";
    case DeclContext::Member: return "member";
    case DeclContext::Parameter: return "parameter";
    case DeclContext::Return: return "return";
    case DeclContext::FunParameter: return "fun_parameter";
    case DeclContext::FunReturn: return "fun_return";
  }
  return "?";
}

const char* tag_name(TagKind k) {
  return k == TagKind::Struct ? "struct" : k == TagKind::Enum ? "enum" : "fun";
}

const char* owner_name(ListOwner o) { return o == ListOwner::Function ? "function" : "fun"; }

const char* label_name(LabelKind k) {
  switch (k) {
    case LabelKind::Statement: return "statement";
    case LabelKind::Case: return "case";
    case LabelKind::Default: return "default";
    case LabelKind::Exception: return "exception";
  }
  return "?";
}

}  // namespace

std::string TraceActions::tok(const Token& t) const {
  std::string s = t.tok == T_Eof ? std::string("<eof>") : std::string(t.text());
  if (show_lines) s += "@" + std::to_string(t.line);
  return s;
}

void TraceActions::line(std::string_view name, const std::vector<std::string>& args) {
  trace += name;
  for (const std::string& a : args) trace += " " + a;
  trace += "\n";
}

bool TraceActions::is_typedef_name(std::string_view name) {
  for (const auto& scope : typedefs_)
    if (scope.find(name) != scope.end()) return true;
  return false;
}

void TraceActions::begin_declaration(DeclContext c, const Token&) {
  context_ = c;
  typedef_declaration_ = false;
  line("begin_declaration", {context_name(c)});
}
void TraceActions::add_storage_class(const Token& t) {
  if (t.tok == T_TYPEDEF) typedef_declaration_ = true;
  line("add_storage_class", {tok(t)});
}
void TraceActions::add_type_keyword(const Token& t) { line("add_type_keyword", {tok(t)}); }
void TraceActions::add_var_qualifier(const Token& t) { line("add_var_qualifier", {tok(t)}); }
void TraceActions::use_typedef_name(const Token& t) { line("use_typedef_name", {tok(t)}); }
void TraceActions::use_tag(TagKind k, const Token& t) { line("use_tag", {tag_name(k), tok(t)}); }
void TraceActions::declare_tag(TagKind k, const Token* t, const Token&, bool body) {
  line("declare_tag", {tag_name(k), t ? tok(*t) : "anonymous", body ? "body" : "forward"});
}
void TraceActions::enumerator(const Token& t) { line("enumerator", {tok(t)}); }
void TraceActions::end_tag_body(TagKind k, const Token&) { line("end_tag_body", {tag_name(k)}); }
void TraceActions::begin_declarator(const Token&) { line("begin_declarator"); }
void TraceActions::declarator_name(const Token& t) { line("declarator_name", {tok(t)}); }
void TraceActions::add_dimension(bool has_size, const Token&) {
  line("add_dimension", {has_size ? "size" : "empty"});
}
void TraceActions::add_resize_group(bool number, bool percent, const Token&) {
  line("add_resize_group", {number ? "number" : "-1", percent ? "percent" : "-1"});
}
void TraceActions::complete_declarator(const Token* name, bool initialized) {
  if (name && typedef_declaration_ &&
      (context_ == DeclContext::External || context_ == DeclContext::Block))
    typedefs_.back().insert(std::string(name->text()));
  std::vector<std::string> args{name ? tok(*name) : "anonymous"};
  if (initialized) args.push_back("initialized");
  line("complete_declarator", args);
}
void TraceActions::complete_tag_only_declaration(const Token&) { line("complete_tag_only_declaration"); }
void TraceActions::end_declaration(DeclContext c, const Token&) { line("end_declaration", {context_name(c)}); }
void TraceActions::begin_initializer(const Token&) { line("begin_initializer"); }
void TraceActions::initializer_open_brace(const Token&) { line("initializer_open_brace"); }
void TraceActions::initializer_close_brace(const Token&) { line("initializer_close_brace"); }
void TraceActions::initializer_identifier(const Token& t, const Token* sign) {
  std::vector<std::string> args{tok(t)};
  if (sign) args.push_back("sign " + tok(*sign));
  line("initializer_identifier", args);
}
void TraceActions::initializer_constant(const Token& t) { line("initializer_constant", {tok(t)}); }
void TraceActions::end_initializer(const Token&) { line("end_initializer"); }

void TraceActions::enter_function_name(const Token& t, bool is_static, bool definition) {
  std::vector<std::string> args{tok(t)};
  if (is_static) args.push_back("static");
  args.push_back(definition ? "definition" : "prototype");
  line("enter_function_name", args);
}
void TraceActions::begin_parameter_list(ListOwner o, const Token&) { line("begin_parameter_list", {owner_name(o)}); }
void TraceActions::parameter_any(const Token&) { line("parameter_any"); }
void TraceActions::parameter_ellipsis(const Token&) { line("parameter_ellipsis"); }
void TraceActions::end_parameter_list(ListOwner o, const Token&) { line("end_parameter_list", {owner_name(o)}); }
void TraceActions::begin_return_list(ListOwner o, const Token&) { line("begin_return_list", {owner_name(o)}); }
void TraceActions::end_return_list(ListOwner o, const Token&) { line("end_return_list", {owner_name(o)}); }
void TraceActions::finish_function(const Token& t, bool definition) {
  line("finish_function", {tok(t), definition ? "definition" : "prototype"});
}
void TraceActions::open_function_body(const Token&, const FunctionLabels& labels) {
  std::string l = "labels=", h = "handlers=";
  for (std::size_t i = 0; i < labels.labels.size(); ++i) l += (i ? "," : "") + tok(*labels.labels[i]);
  for (std::size_t i = 0; i < labels.handlers.size(); ++i) h += (i ? "," : "") + tok(*labels.handlers[i]);
  typedefs_.emplace_back();
  line("open_function_body", {l, h});
}
void TraceActions::close_function_body(const Token&) {
  if (typedefs_.size() > 1) typedefs_.pop_back();
  line("close_function_body");
}

void TraceActions::begin_statement(const Token&) { line("begin_statement"); }
void TraceActions::end_statement(const Token&) { line("end_statement"); }
void TraceActions::expression_statement(const Token&) { line("expression_statement"); }
void TraceActions::empty_statement(const Token&) { line("empty_statement"); }
void TraceActions::open_block(const Token&) {
  typedefs_.emplace_back();
  line("open_block");
}
void TraceActions::close_block(const Token&) {
  if (typedefs_.size() > 1) typedefs_.pop_back();
  line("close_block");
}
void TraceActions::control_expression(const Token&) { line("control_expression"); }
void TraceActions::if_end(bool has_else, const Token&) { line("if_end", {has_else ? "else" : "no_else"}); }
void TraceActions::switch_start(const Token&) { line("switch_start"); }
void TraceActions::switch_end(const Token&) { line("switch_end"); }
void TraceActions::while_start(const Token&) { line("while_start"); }
void TraceActions::while_end(const Token&) { line("while_end"); }
void TraceActions::do_start(const Token&) { line("do_start"); }
void TraceActions::do_end(const Token&) { line("do_end"); }
void TraceActions::for_start(const Token&, bool i, bool c, bool s, const Token&) {
  line("for_start", {i ? "init" : "-", c ? "condition" : "-", s ? "step" : "-"});
}
void TraceActions::for_end(const Token&) { line("for_end"); }
void TraceActions::goto_stmt(const Token& t) { line("goto_stmt", {tok(t)}); }
void TraceActions::continue_stmt(const Token&) { line("continue_stmt"); }
void TraceActions::break_stmt(const Token&) { line("break_stmt"); }
void TraceActions::return_stmt(const Token&) { line("return_stmt"); }
void TraceActions::raise_stmt(const Token& t) { line("raise_stmt", {tok(t)}); }
void TraceActions::enter_labelled_statement(LabelKind k, const Token&) {
  line("enter_labelled_statement", {label_name(k)});
}
void TraceActions::statement_label(const Token& t) { line("statement_label", {tok(t)}); }
void TraceActions::case_label(CaseForm f, int mode, const Token& t) {
  const char* form = f == CaseForm::ConstantExpression ? "constant"
                     : f == CaseForm::Character        ? "character"
                                                       : "identifier";
  line("case_label", {form, "mode " + std::to_string(mode), tok(t)});
}
void TraceActions::default_label(const Token&) { line("default_label"); }
void TraceActions::exception_handler(const Token& t) { line("exception_handler", {tok(t)}); }
void TraceActions::leave_labelled_statement(LabelKind k, const Token&) {
  line("leave_labelled_statement", {label_name(k)});
}

void TraceActions::comma(const Token&) { line("comma"); }
void TraceActions::assignment(AssignMode m, const Token& t) {
  const char* mode = m == AssignMode::Plain ? "plain" : m == AssignMode::Move ? "move" : "compound";
  line("assignment", {mode, tok(t)});
}
void TraceActions::conditional(const Token&, const Token&) { line("conditional"); }
void TraceActions::logical_or(const Token&) { line("logical_or"); }
void TraceActions::logical_and(const Token&) { line("logical_and"); }
void TraceActions::binary_operator(const Token& t) { line("binary_operator", {tok(t)}); }
void TraceActions::unary_operator(const Token& t, Fix f) {
  line("unary_operator", {tok(t), f == Fix::Prefix ? "prefix" : "postfix"});
}
void TraceActions::begin_type_name(const Token&) { line("begin_type_name"); }
void TraceActions::end_type_name(const Token&) { line("end_type_name"); }
void TraceActions::cast(const Token&) { line("cast"); }
void TraceActions::sizeof_type(const Token&) { line("sizeof_type"); }
void TraceActions::sizeof_expr(const Token&) { line("sizeof_expr"); }
void TraceActions::constant(const Token& t) { line("constant", {std::string(token_name(t.tok)), tok(t)}); }
void TraceActions::parenthesized(const Token&) { line("parenthesized"); }
void TraceActions::identifier(const Token& t) { line("identifier", {tok(t)}); }
void TraceActions::subscript(SubscriptKind k, const Token&) {
  line("subscript", {k == SubscriptKind::Expression ? "expression" : k == SubscriptKind::This ? "this" : "empty"});
}
void TraceActions::member(const Token& t) { line("member", {tok(t)}); }
void TraceActions::occurs(const Token&) { line("occurs"); }
void TraceActions::limit(const Token&) { line("limit"); }
void TraceActions::end_space_reference(const Token&) { line("end_space_reference"); }
void TraceActions::added_length(const Token&) { line("added_length"); }
void TraceActions::free_reference(const Token&) { line("free_reference"); }
void TraceActions::call(const CallInfo& c) {
  std::vector<std::string> args{c.through_pointer ? "(*x)" : tok(*c.callee),
                                "args=" + std::to_string(c.argument_count),
                                "returns=" + std::to_string(c.return_count)};
  if (c.followed_by_operator) args.push_back("followed_by_operator");
  line("call", args);
}
void TraceActions::syntax_error_operand(const Token& t) { line("syntax_error_operand", {tok(t)}); }

void TraceActions::const_literal(const Token& t) { line("const_literal", {tok(t)}); }
void TraceActions::const_unary(const Token& t) { line("const_unary", {tok(t)}); }
void TraceActions::const_binary(const Token& t) { line("const_binary", {tok(t)}); }
void TraceActions::const_error_operand(const Token& t) { line("const_error_operand", {tok(t)}); }

ParseResult parse_source(std::string_view source, bool show_lines) {
  Options options;
  options.width = 1000;  // one message, one line
  std::ostringstream err;
  Diagnostics diag(err, options);
  diag.begin_compile();
  std::string text = "\n#line 1 \"t.yc\"\n";
  text += source;
  TokenBuffer tokens = tokenize(text, diag.files(), err);
  TraceActions actions;
  actions.show_lines = show_lines;
  SyntaxErrors syntax(diag);
  parse_translation_unit(tokens.tokens, actions, syntax);
  diag.flush();
  return ParseResult{actions.trace, err.str(), diag.errors};
}

std::string expression_trace(std::string_view expr) {
  std::string source = "f() { ";
  source += expr;
  source += "; }";
  std::string trace = parse_source(source).trace;
  const std::string open = "begin_statement\n", close = "expression_statement\n";
  std::size_t b = trace.find(open);
  std::size_t e = trace.rfind(close);
  if (b == std::string::npos || e == std::string::npos || e < b) return "<no expression statement>\n" + trace;
  return trace.substr(b + open.size(), e - b - open.size());
}

}  // namespace ycc
