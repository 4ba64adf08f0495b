// The directives: conditionals, #define and #undef, #include, #line,
// #pragma and #error.
#include <unordered_set>

#include "common/text.h"
#include "diag/diagnostics.h"
#include "preprocessor/if_expr.h"
#include "preprocessor/pp_state.h"
#include "preprocessor/text_scan.h"

namespace ycc::pp {

namespace {

const char* const no_match = "no matching #if, #ifdef, or #ifndef";

bool is_conditional(std::string_view n) {
  return n == "if" || n == "ifdef" || n == "ifndef" || n == "elif" || n == "else" || n == "endif";
}

// A name at the start of `text`: its end, or npos.
size_t leading_name(std::string_view text, size_t& start) {
  start = skip_blanks(text, 0);
  if (start >= text.size() || !is_ident_start(text[start])) return std::string_view::npos;
  return skip_ident(text, start);
}

// "number" or "number "name"", the fixed form of #line.
bool line_form(std::string_view s) {
  s = trim(s);
  size_t i = 0;
  while (i < s.size() && is_digit(s[i])) ++i;
  if (i == 0) return false;
  if (i == s.size()) return true;
  if (!is_blank(s[i])) return false;
  i = skip_blanks(s, i);
  if (s[i] != '"') return false;
  size_t e = skip_quoted(s, i);
  return e == s.size() && e - i >= 2 && s[e - 1] == '"';
}

struct IncludeOperand {
  bool is_extern = false;
  std::string name;
  std::string_view after;
};

// "name" or <name>, optionally after the word extern.
bool include_form(std::string_view s, IncludeOperand& op) {
  size_t i = skip_blanks(s, 0);
  if (s.substr(i, 6) == "extern" && (i + 6 >= s.size() || !is_ident_char(s[i + 6]))) {
    op.is_extern = true;
    i = skip_blanks(s, i + 6);
  }
  if (i >= s.size()) return false;
  char close = s[i] == '"' ? '"' : s[i] == '<' ? '>' : '\0';
  if (!close) return false;
  size_t e = s.find(close, i + 1);
  if (e == std::string_view::npos) return false;
  op.name = std::string(s.substr(i + 1, e - i - 1));
  op.after = s.substr(e + 1);
  return true;
}

}  // namespace

std::string Preprocessor::rest_of_line(bool checked) {
  Reader& r = top().reader;
  std::string s;
  for (;;) {
    Reader::State st = r.save();
    Token t = r.next(checked);
    if (t.kind == Tok::end || t.newlines > 0) {
      r.restore(st);
      break;
    }
    if (!s.empty()) s.append(static_cast<size_t>(t.blanks), ' ');
    s.append(t.text);
  }
  return s;
}

void Preprocessor::extra_text(std::string_view rest) {
  std::string_view t = trim(rest);
  if (!t.empty()) report(cur_line_, strf("found unexpected additional text: '%s'", std::string(t).c_str()));
}

void Preprocessor::directive(const Token& hash) {
  FileEntry& e = top();
  bool active = e.active();
  Reader::State st = e.reader.save();
  Token name_tok = e.reader.next(active);
  if (name_tok.kind == Tok::end || name_tok.newlines > 0) {
    e.reader.restore(st);  // a "#" alone on its line does nothing
    return;
  }
  cur_line_ = hash.line;
  std::string name(name_tok.text);
  bool is_name = name_tok.kind == Tok::ident;
  std::string rest = rest_of_line(active);
  if (is_name && is_conditional(name)) {
    conditional(name, rest, hash.line);
    return;
  }
  if (!active) return;
  if (!is_name) {
    if (name.size() > 1) report(cur_line_, strf("malformed preprocessor line: '%s'", name.c_str()));
    return;
  }
  if (name == "define") {
    define(rest);
  } else if (name == "undef") {
    undef(rest);
  } else if (name == "include") {
    include(rest);
  } else if (name == "line") {
    line_directive(rest);
  } else if (name == "pragma") {
    writer_.directive_line("#pragma " + rest);
  } else if (name == "error") {
    error_directive(rest);
  } else {
    report(cur_line_, strf("#%s is an invalid preprocessor command", name.c_str()));
  }
}

void Preprocessor::conditional(const std::string& name, const std::string& rest, int line) {
  FileEntry& e = top();
  bool active = e.active();
  if (name == "if" || name == "ifdef" || name == "ifndef") {
    char kind = name == "if" ? 'i' : name == "ifdef" ? 'd' : 'n';
    bool value = false;
    if (active) {
      if (kind == 'i') {
        value = evaluate("#if", rest);
      } else {
        size_t s;
        size_t end = leading_name(rest, s);
        if (end == std::string_view::npos) {
          report(cur_line_, strf("%s name: expecting a name, found '%s'", ("#" + name).c_str(),
                                 std::string(first_token(rest)).c_str()));
        } else {
          bool def = table_.is_defined(std::string_view(rest).substr(s, end - s));
          value = kind == 'd' ? def : !def;
          extra_text(std::string_view(rest).substr(end));
        }
      }
    }
    e.conds.push_back({kind, false, value || !active, value, active, line});
    return;
  }
  if (e.conds.empty()) {
    if (name == "endif")
      report(cur_line_, "#endif: no matching #if, #ifdef, or #ifndef");
    else
      report(cur_line_, strf("#%s: %s", name.c_str(), no_match));
    return;
  }
  Cond& c = e.conds.back();
  if (name == "elif") {
    if (c.else_seen) {
      report(cur_line_, "#elif: an #elif cannot follow an #else");
      return;
    }
    // Not evaluated once a group was taken or when the enclosing group is skipped.
    if (!c.outer_active || c.taken) {
      c.selected = false;
      return;
    }
    bool value = evaluate("#elif", rest);
    c.selected = value;
    c.taken = value;
    return;
  }
  if (name == "else") {
    if (c.else_seen) {
      report(cur_line_, "#else: an #else cannot follow an #else");
      return;
    }
    c.else_seen = true;
    c.selected = !c.taken;
    c.taken = true;
    if (c.outer_active) extra_text(rest);
    return;
  }
  bool outer = c.outer_active;
  e.conds.pop_back();
  if (outer) extra_text(rest);
}

bool Preprocessor::evaluate(const char* directive, const std::string& rest) {
  std::string replaced;
  int bad = 0;
  if (!replace_defined(rest, [this](std::string_view n) { return table_.is_defined(n); }, replaced,
                       bad)) {
    report(cur_line_, strf("%s expression: the %d%s 'defined' operator has an invalid format",
                           directive, bad, ordinal_suffix(bad)));
    return false;
  }
  std::string expanded = expander_.expand(replaced);
  std::string shown(trim(expanded));
  IfResult r = evaluate_if(expanded);
  switch (r.status) {
    case IfResult::Status::ok:
      return r.value != 0;
    case IfResult::Status::alphabetic:
      report(cur_line_, strf("%s expression: after macro expansion the expression has alphabetic "
                             "content: '%s'",
                             directive, shown.c_str()));
      break;
    case IfResult::Status::invalid_char:
      report(cur_line_, strf("%s expression: after macro expansion the expression contains the "
                             "invalid character '%c' : '%s'",
                             directive, r.bad_char, shown.c_str()));
      break;
    case IfResult::Status::fault:
      report(cur_line_, strf("%s expression: after macro expansion the expression %s: '%s'",
                             directive, r.reason, shown.c_str()));
      break;
  }
  return false;
}

void Preprocessor::define(const std::string& rest) {
  std::string_view r = rest;
  size_t s;
  size_t e = leading_name(r, s);
  if (e == std::string_view::npos) {
    report(cur_line_, strf("expecting macro name: found '%s'", std::string(first_token(r)).c_str()));
    return;
  }
  std::string name(r.substr(s, e - s));
  Macro* old = table_.find(name);
  if (old && old->builtin) {
    report(cur_line_, strf("'%s' is a built-in macro name: it cannot be redefined", name.c_str()));
    return;
  }
  bool function_like = e < r.size() && r[e] == '(';
  std::vector<std::string> params;
  size_t i = e;
  if (function_like) {
    std::unordered_set<std::string> seen;
    i = skip_blanks(r, i + 1);
    if (i < r.size() && r[i] == ')') {
      ++i;
    } else {
      for (;;) {
        std::string_view p = first_token(r.substr(i));
        i = skip_blanks(r, i) + p.size();
        if (p.empty() || !is_ident_start(p[0])) {
          report(cur_line_, strf("'%s' is an invalid macro parameter", std::string(p).c_str()));
          return;
        }
        std::string param(p);
        if (!seen.insert(param).second) {
          report(cur_line_, strf("duplicate parameter name '%s'", param.c_str()));
          return;
        }
        params.push_back(param);
        std::string_view sep = first_token(r.substr(i));
        i = skip_blanks(r, i) + sep.size();
        if (sep == ",") continue;
        if (sep == ")") break;
        report(cur_line_, strf("found '%s' after macro parameter '%s': expecting comma or right "
                               "parenthesis",
                               std::string(sep).c_str(), param.c_str()));
        return;
      }
    }
  }
  std::string replacement(trim(r.substr(i)));
  if (old) {
    // An identical definition is no redefinition.
    if (old->function_like != function_like || old->params != params ||
        old->replacement != replacement)
      report(cur_line_, strf("redefinition of macro '%s'", name.c_str()));
  }
  Macro& m = table_.define(name);
  m.function_like = function_like;
  m.params = std::move(params);
  m.replacement = std::move(replacement);
  index_params(m);
  // Without parameters the joins of "##" are the same at every use.
  if (!function_like && m.replacement.find("##") != std::string::npos) {
    std::string joined;
    expander_.substitute(m, {}, joined);
    m.replacement = std::move(joined);
  }
}

void Preprocessor::undef(const std::string& rest) {
  std::string_view r = rest;
  size_t s;
  size_t e = leading_name(r, s);
  if (e == std::string_view::npos) {
    report(cur_line_, strf("expecting macro name: found '%s'", std::string(first_token(r)).c_str()));
    return;
  }
  std::string name(r.substr(s, e - s));
  Macro* m = table_.find(name);
  if (m && m->builtin) {
    report(cur_line_, strf("'%s' is a built-in macro name: it cannot be undefined", name.c_str()));
    return;
  }
  if (!trim(r.substr(e)).empty()) {
    extra_text(r.substr(e));
    return;
  }
  table_.undefine(name);
}

void Preprocessor::include(const std::string& rest) {
  IncludeOperand op;
  std::string operand = rest;
  bool expanded = false;
  if (!include_form(operand, op)) {
    operand = expander_.expand(rest);
    expanded = true;
    op = IncludeOperand{};
    if (!include_form(operand, op)) {
      report(cur_line_, strf("invalid #include format: found '%s'%s",
                             std::string(trim(operand)).c_str(),
                             expanded ? " after macro expansion" : ""));
      return;
    }
  }
  if (!trim(op.after).empty()) {
    extra_text(op.after);
    return;
  }
  if (!ends_with(op.name, ".yc") && !ends_with(op.name, ".h")) {
    report(cur_line_, strf("include file '%s' : the filename ending is neither '.h' nor '.yc'",
                           op.name.c_str()));
    return;
  }
  std::string found, text;
  if (!find_include(search_, op.name, found, text)) {
    report(cur_line_, search_failure_text(search_, op.name));
    return;
  }
  for (size_t k = 0; k < files_.size(); ++k) {
    if (files_[k]->name != found) continue;
    std::string msg = "the #include is part of a recursive self-reference as follows: ";
    for (size_t j = k; j < files_.size(); ++j) msg += strf("'%s' includes ", files_[j]->name.c_str());
    appendf(msg, "'%s'", found.c_str());
    report(cur_line_, msg);
    return;
  }
  push_file(found, std::move(text), op.is_extern);
}

void Preprocessor::line_directive(const std::string& rest) {
  std::string operands(trim(rest));
  if (!line_form(operands)) {
    std::string x(trim(expander_.expand(rest)));
    if (!line_form(x)) {
      report(cur_line_, strf("invalid #line format: found '%s'%s", x.c_str(), " after macro expansion"));
      return;
    }
    operands = x;
  }
  writer_.directive_line("#line " + operands);
}

void Preprocessor::error_directive(const std::string& rest) {
  std::string x(trim(expander_.expand(rest)));
  if (x.size() >= 2 && x.front() == '"' && x.back() == '"') x = x.substr(1, x.size() - 2);
  report(cur_line_, x);
  report(cur_line_, "preprocessing ceases with this #error directive");
  // The two messages count as one error.
  --diag_.pp_errors;
  --diag_.run_errors;
  throw PpStop{1};
}

}  // namespace ycc::pp
