// Space references: identifiers, subscripts, structure components,
// `.occurs`, `.limit` and `[this]`. A space is never indexed directly: a
// subscripted reference becomes pointer arithmetic on its meta record, with
// the live limits as strides, after generated checks. A reference emits the
// checks of a read and of a write between marker lines; the construct that
// uses it (an assignment, a subscript) rewrites the markers, and the output
// assembly keeps the version that applies.
#include <cctype>
#include <string_view>

#include "common/c_names.h"
#include "common/text.h"
#include "decl/type_keywords.h"
#include "translate/translator.h"

namespace ycc {

namespace {

constexpr int memory_exception = 32000;

const char* ordinal_suffix(int n) {
  if (n % 100 >= 11 && n % 100 <= 13) return "th";
  switch (n % 10) {
    case 1: return "st";
    case 2: return "nd";
    case 3: return "rd";
    default: return "th";
  }
}

bool joins_words(char a, char b) { return is_ident_char(a) && is_ident_char(b); }

}  // namespace

// ---- Components -----------------------------------------------------------------------------

void Translator::enter_component(Operand& e, Reference& r, int sym, const std::string& container) {
  const Symbol& s = symbols_[sym];
  // Space and structure parameters and returns arrive as pointers.
  bool pointer = container.empty() && (s.p_or_r == 'p' || s.p_or_r == 'r');
  // A variable of its own whose name C leaves alone, the common case, is
  // named without composing a new text.
  const bool own_name = container.empty() && !s.clashes_with_c();
  std::string name = own_name ? std::string() : container.empty() ? c_name(s.name) : container + "." + c_name(s.name);
  const std::string& c_text = own_name ? s.name : name;
  r.sym = sym;
  if (container.empty()) r.root = sym;
  r.path.emplace_back(sym, false);
  if (!container.empty()) {  // a root comes with a fresh reference
    r.subs.clear();
    r.record.clear();
    r.object.clear();
  }
  r.written_name_size = r.written.size();
  r.pointer_record = pointer;
  int t = symbols_.resolve_type(s.type_sym);
  bool structure = t && symbols_[t].name_is == 's';
  if (s.dim_count() > 0) {
    if (container.empty())
      r.record = own_record(sym, c_text);
    else if (s.is_var == 'y')
      r.record = c_text;
    else
      r.record = container + "." + names_.companion(s.name);
    e.value = r.record;
    if (s.is_var == 'n' && !container.empty() && r.heap) {
      // A structure in a varspace's block moves when the block grows, and
      // fresh elements are zeroed: its fixed-space member's companion is
      // pointed at the member, with its sizes, before it is used.
      appendf(r.checks, "\n%s.ptr = %s;", r.record.c_str(), c_text.c_str());
      for (int k = 1; k <= s.dim_count(); ++k)
        appendf(r.checks, "\n%s.limit%d = %d;", r.record.c_str(), k, s.dims[static_cast<size_t>(k - 1)].size);
    }
  } else if (structure) {
    // Only a structure is read as an object again (its members, free).
    r.object = pointer ? "(*" + c_text + ")" : c_text;
    e.value = r.object;
  } else {
    e.value = c_text;
  }
  component_facts(e, sym, t);
}

void Translator::component_facts(Operand& e, int sym, int t) const {
  e.type_bits = symbols_.type_bits_of(sym);
  e.type_sym = t;
  e.kind = 0;
  if (t) {
    char k = symbols_[t].name_is;
    e.kind = k == 's' ? 's' : k == 'e' ? 'e' : k == 'n' ? 'n' : 0;
  }
  e.dims = symbols_[sym].dim_count();
  e.partial = false;
  e.lvalue = true;
}

std::string Translator::own_record(int sym, std::string_view c_text) const {
  const Symbol& s = symbols_[sym];
  if (s.p_or_r == 'p' || s.p_or_r == 'r') return "(*" + std::string(c_text) + ")";
  return s.is_var == 'y' ? std::string(c_text) : names_.companion(s.name);
}

std::string Translator::subscript_source(const Token& lbracket) const {
  const TokenList& toks = decl_.tokens().tokens;
  size_t i = toks.index_of(lbracket) + 1;
  std::string text;
  for (int depth = 0; toks.tok_at(i) != T_Eof; ++i) {
    if (toks[i].tok == T_LSQUAREBRACKET) ++depth;
    if (toks[i].tok == T_RSQUAREBRACKET && depth-- == 0) break;
    std::string_view t = toks[i].text();
    if (!text.empty() && !t.empty() && joins_words(text.back(), t.front())) text += ' ';
    text += t;
  }
  return text;
}

namespace {

// Whether a subscript's text reads a space's limit or occurs.
bool reads_space_record(std::string_view text) {
  for (std::string_view field : {std::string_view(".occurs"), std::string_view(".limit")}) {
    for (size_t at = text.find(field); at != std::string_view::npos; at = text.find(field, at + 1)) {
      size_t end = at + field.size();
      if (end == text.size() || !(std::isalnum(static_cast<unsigned char>(text[end])) || text[end] == '_') ||
          field == ".limit")
        return true;
    }
  }
  return false;
}

}  // namespace

void Translator::subscript(SubscriptKind kind, const Token& lbracket) {
  bool has_expression = kind == SubscriptKind::Expression;
  ensure_operands(has_expression ? 2 : 1, lbracket.line);
  int i = top_index() - (has_expression ? 1 : 0);
  Operand& e = operand(i);
  std::string source = kind == SubscriptKind::This ? "this" : has_expression ? subscript_source(lbracket) : "";
  Reference::Subscript sub{kind == SubscriptKind::Expression ? 0 : kind == SubscriptKind::This ? 1 : 2, ""};
  if (has_expression) {
    to_value(i + 1);
    Operand& x = operand(i + 1);
    bool ok = !x.reported;
    if (ok && e.ref) {
      std::string why = class_message(x, 7, true);
      if (!why.empty()) {
        int position = static_cast<int>(e.ref->subs.size()) + 1;
        report(x, strf("the %d%s subscript given for '%s' %s", position, ordinal_suffix(position),
                       e.ref->written_name().c_str(), why.c_str()));
        ok = false;
      }
    }
    // A reference inside a subscript is always read; a subscript that needs
    // code of its own is evaluated once, into a temporary. So is one that
    // reads a limit or occurs: the growth and the occurs update change those
    // before the element's address is taken (s[s.occurs] = c appends).
    Operand x_op = pop_operand();
    sub.text = x_op.value;
    if (!x_op.code.empty() || reads_space_record(x_op.value)) {
      x_op.code.rewrite_embedded();
      code(i) += std::move(x_op.code);
      if (ok) {
        std::string t = temporary(x_op.type_bits ? x_op.type_bits : 4);
        appendf(code(i), "\n%s = %s;", t.c_str(), x_op.value.c_str());
        sub.text = t;
      }
    }
    if (!ok) e.reported = true;
  }
  Operand& ref_op = operand(top_index());
  if (!ref_op.ref) {
    if (!ref_op.reported) report(ref_op, strf("'%s' is dimensionless and cannot be subscripted", ref_op.value.c_str()));
    return;
  }
  Reference& r = *ref_op.ref;
  const Symbol& s = symbols_[r.sym];
  r.written += "[" + source + "]";
  if (!ref_op.reported) {
    if (s.dim_count() == 0) {
      report(ref_op, strf("'%s' is dimensionless and cannot be subscripted", r.written_name().c_str()));
    } else if (static_cast<int>(r.subs.size()) >= s.dim_count()) {
      report(ref_op, strf("too many subscripts given for '%s'", r.written_name().c_str()));
    }
  }
  r.subs.push_back(sub);
  ++r.subscripted;
}

bool Translator::this_used(const Reference& r) const {
  for (const Reference::Subscript& s : r.subs)
    if (s.kind == 1) return true;
  return false;
}

void Translator::check_this(Operand& e) {
  Reference& r = *e.ref;
  int thises = 0, given = 0;
  for (const Reference::Subscript& s : r.subs) {
    if (s.kind == 1) ++thises;
    if (s.kind == 0) ++given;
  }
  if (thises > 0 && (thises > 1 || given > 0) && !e.reported)
    report(e, strf("misuse of '[this]' notation: correct usage is one occurrence of '[this]' and the remaining "
                   "subscripts of '%s' are empty '[]'",
                   r.written_name().c_str()));
}

void Translator::finish_component(Operand& e) {
  Reference& r = *e.ref;
  if (r.subs.empty() || e.reported) return;
  const Symbol& s = symbols_[r.sym];
  int n = s.dim_count();
  if (this_used(r)) {
    check_this(e);
    return;
  }
  // Given subscripts come first; the dimensions left empty are elided.
  std::vector<std::string> given;
  while (given.size() < r.subs.size() && r.subs[given.size()].kind == 0) given.push_back(r.subs[given.size()].text);
  for (size_t k = given.size(); k < r.subs.size(); ++k) {
    if (r.subs[k].kind == 0) {
      report(e, strf("'%s' has an empty subscript before a given one: only the last dimensions of a space can "
                     "be elided",
                     r.written_name().c_str()));
      return;
    }
  }
  if (given.empty()) return;  // every subscript empty: the whole space
  r.last_checks = r.checks.text().size();
  r.last_given = given;
  r.last_sym = r.sym;
  r.last_record = r.record;
  r.last_name = r.written_name();
  r.checks += component_checks(r.sym, r.record, given, r.written_name(), e.line, "");
  std::string address = element_address(r.sym, r.record, given);
  int k = static_cast<int>(given.size());
  if (k == n) {
    e.value = "(*" + address + ")";
    e.dims = 0;
    e.partial = false;
  } else {
    e.value = address;
    e.dims = n - k;
    e.partial = true;
  }
  r.object = e.value;
  r.record.clear();
  r.subs.clear();
  if (s.is_var == 'y') {
    r.heap = true;
    r.path.back().second = true;
  }
}

std::string Translator::element_address(int sym, const std::string& record, const std::vector<std::string>& given) {
  const int n = symbols_[sym].dim_count();
  std::string a = "(((" + decl_.emitter().pointer_type(sym) + ")(" + record + ".ptr)) + (";
  for (size_t i = 0; i < given.size(); ++i) {
    if (i > 0) a += " + ";
    // --wide-subscripts: offsets in size_t, which the C compiler may
    // strength-reduce, instead of in unsigned int, which wraps.
    a += options_.wide_subscripts ? "(size_t)(" + given[i] + ")" : "(" + given[i] + ")";
    for (int k = static_cast<int>(i) + 2; k <= n; ++k) a += strf(" * (%s.limit%d)", record.c_str(), k);
  }
  return a + "))";
}

std::string Translator::memory_failure(int position, const char* indent) {
  std::string t;
  if (options_.memory_locations) t += strf("\n%s%s(%d);", indent, support_.out_of_memory().c_str(), position);
  if (fn().handles(memory_exception)) {
    appendf(t, "\n%sgoto %s;", indent, generated("exception", memory_exception).c_str());
  } else {
    appendf(t, "\n%s%s = %d;", indent, generated("exception").c_str(), memory_exception);
    appendf(t, "\n%sgoto %s;", indent, generated("finish").c_str());
  }
  return t;
}

std::string Translator::resize_call(int sym, const std::string& record, const std::vector<std::string>& subs,
                                    const std::string& added, int line) {
  const Symbol& s = symbols_[sym];
  int number = resize_.function_for(sym);
  int position = support_.position(line);
  std::string t = ws_.check_marker('g', line);
  appendf(t, "\n   if(!%s(&(%s), ", resize_.name(number).c_str(), record.c_str());
  int n = s.dim_count();
  for (int d = 1; d <= n; ++d) {
    const Dimension& dim = s.dims[static_cast<size_t>(d - 1)];
    bool has = d <= static_cast<int>(subs.size());
    bool last = d == static_cast<int>(subs.size());
    appendf(t, "(%s)(%s)%s, %d, %d%s", "unsigned", has ? subs[static_cast<size_t>(d - 1)].c_str() : "0",
              last ? added.c_str() : "", dim.resize_num, dim.resize_pct, d < n ? ", " : ")) {");
  }
  return t + memory_failure(position, "      ") + "\n   }";
}

Code Translator::component_checks(int sym, const std::string& record, const std::vector<std::string>& subs,
                                  const std::string& name, int line, const std::string& added) {
  const Symbol& s = symbols_[sym];
  const int n = s.dim_count();
  const int k = static_cast<int>(subs.size());
  const bool var = s.is_var == 'y';
  const bool checks = options_.bounds_checks;
  const bool one = n == 1 && k == 1;
  const int position = support_.position(line);
  const std::string mark = ws_.check_marker('s', line);
  const std::string report = mark + strf("\n   %s(\"%s\", %d, %d, ", support_.bounds_exceeded().c_str(),
                                         c_string_text(name).c_str(), position, 2 * k);
  auto sub = [&](int i) { return subs[static_cast<size_t>(i)]; };
  // The added length of a cast object goes with the last subscript.
  auto add = [&](int i) { return i == k - 1 ? added : std::string(); };
  auto limits = [&]() {
    std::string t;
    for (int d = 1; d <= k; ++d) t += strf("(%s)(%s.limit%d)%s", "unsigned", record.c_str(), d, d < k ? ", " : ");");
    return t;
  };
  Code c;
  if (!added.empty()) c.marker('x');
  if (var) {
    // Written: a negative subscript is reported, a subscript past the limit grows the space.
    c.marker('a');
    if (checks) {
      std::string t = "\nif(";
      for (int i = 0; i < k; ++i) t += strf("(%s)(%s) < 0%s", "signed", sub(i).c_str(), i + 1 < k ? " || " : ")");
      t += report;
      for (int i = 0; i < k; ++i) t += strf("(%s)(%s), ", "unsigned", sub(i).c_str());
      c += t + limits();
    }
    std::string t = "\nif(";
    for (int i = 0; i < k; ++i)
      appendf(t, "(%s)(%s)%s >= (%s.limit%d)%s", "unsigned", sub(i).c_str(), add(i).c_str(), record.c_str(), i + 1,
                i + 1 < k ? " || " : ")");
    c += t + resize_call(sym, record, subs, added, line);
    c.marker('b');
  }
  if (checks) {
    // Read: within the limits and, for one subscript of one dimension, below occurs.
    if (one) c.marker('h');
    std::string t = "\nif(";
    for (int i = 0; i < k; ++i)
      appendf(t, "(%s)(%s) < 0 || (%s)(%s)%s >= (%s.limit%d)%s", "signed", sub(i).c_str(), "unsigned",
                sub(i).c_str(), add(i).c_str(), record.c_str(), i + 1, i + 1 < k ? " || " : ")");
    t += report;
    for (int i = 0; i < k; ++i) t += strf("(%s)(%s)%s, ", "unsigned", sub(i).c_str(), add(i).c_str());
    c += t + limits();
    if (one) {
      c.marker('i');
      appendf(c, "\nif((%s)(%s) < 0 || (%s)(%s)%s >= (%s.occurs))", "signed", sub(0).c_str(), "unsigned",
                sub(0).c_str(), added.c_str(), record.c_str());
      c += mark;
      appendf(c, "\n   %s(\"%s\", %d, %d, (%s)(%s)%s, (%s)(%s.occurs));", support_.bounds_exceeded().c_str(),
                c_string_text(name).c_str(), position, 2, "unsigned", sub(0).c_str(), added.c_str(), "unsigned",
                record.c_str());
      c.marker('j');
    }
  }
  if (var) c.marker('c');
  if (one) {
    // A written element raises occurs to one past it.
    c.marker('e');
    appendf(c, "\nif((%s)(%s)%s + 1 > (%s.occurs))\n   (%s.occurs) = (%s)(%s)%s + 1;", "unsigned", sub(0).c_str(),
              added.c_str(), record.c_str(), record.c_str(), "unsigned", sub(0).c_str(), added.c_str());
    c.marker('f');
  }
  return c;
}

// ---- The actions ---------------------------------------------------------------------------

std::shared_ptr<Reference> Translator::new_reference() {
  // A few records past the last one taken are tried; most are free again.
  for (size_t tries = 0; tries < 4 && !spare_refs_.empty(); ++tries) {
    if (next_spare_ >= spare_refs_.size()) next_spare_ = 0;
    std::shared_ptr<Reference>& r = spare_refs_[next_spare_++];
    if (r.use_count() == 1) {
      r->clear();
      return r;
    }
  }
  spare_refs_.push_back(std::make_shared<Reference>());
  next_spare_ = spare_refs_.size();
  return spare_refs_.back();
}

void Translator::identifier(const Token& name) {
  Operand& e = push_operand(name.line);
  int sub = symbols_.find_other('o', name.text(), 0);
  if (!sub) {
    e.value = name.text();
    e.empty = true;
    report(e, strf("'%s' is an undeclared identifier", e.value.c_str()));
    return;
  }
  const Symbol& s = symbols_[sub];
  if (s.name_is != 'v') {
    fill_from_symbol(e, sub);
    return;
  }
  // A variable: the reference sets what the symbol tells.
  ++symbols_[sub].ref_count;
  if (s.dim_count() == 0) {
    int t = symbols_.resolve_type(s.type_sym);
    if (!t || symbols_[t].name_is != 's') {
      // Most references: no dimensions, no members. Any subscript or member
      // that follows makes the reference whole first.
      e.ref.set_plain(symbols_, sub, s.p_or_r == 'p' || s.p_or_r == 'r');
      e.value = s.clashes_with_c() ? c_name(s.name) : s.name;
      component_facts(e, sub, t);
      return;
    }
  }
  std::shared_ptr<Reference> r = new_reference();
  r->written = symbols_[sub].name;
  static const std::string no_container;
  enter_component(e, *r, sub, no_container);
  e.ref = std::move(r);
}

void Translator::member(const Token& name) {
  ensure_operands(1, name.line);
  Operand& e = top();
  std::string m(name.text());
  if (!e.ref) {
    if (!e.reported)
      report(e, strf("'%s' cannot be appended to '%s', because '%s' does not reference a structure", m.c_str(),
                     e.value.c_str(), e.value.c_str()));
    return;
  }
  Reference& r = *e.ref;
  if (this_used(r)) {
    if (!e.reported)
      report(e, strf("'%s' invalid: subscripts using '[this]' notation to identify a dimension can only be "
                     "followed by '.limit'",
                     r.written.c_str()));
    e.ref.reset();
    return;
  }
  finish_component(e);
  const char* w = r.written.c_str();
  int tag = e.type_sym && symbols_[e.type_sym].name_is == 's' ? e.type_sym : 0;
  int member = tag ? symbols_.find_member(tag, m) : 0;
  if (!e.reported) {
    if (e.dims > 0 && tag)
      report(e, strf("'%s' cannot be appended to '%s', because the '%s' reference has %d elided dimension%s", m.c_str(),
                     w, w, e.dims, e.dims > 1 ? "s" : ""));
    else if (!tag)
      report(e, strf("'%s' cannot be appended to '%s', because '%s' does not reference a structure", m.c_str(), w, w));
    else if (!member)
      report(e, strf("'%s' cannot be appended to '%s', because '%s' is not a structure component of '%s'", m.c_str(),
                     w, m.c_str(), w));
  }
  if (e.reported || !member) {
    e.ref.reset();
    e.reported = true;
    return;
  }
  std::string container = r.object;
  r.written += "." + symbols_[member].name;
  enter_component(e, r, member, container);
}

void Translator::occurs(const Token& t) {
  ensure_operands(1, t.line);
  Operand& e = top();
  if (!e.ref) {
    if (!e.reported) report(e, strf("'%s' is dimensionless and therefore has no occurs value", e.value.c_str()));
    return;
  }
  Reference& r = *e.ref;
  int n = symbols_[r.sym].dim_count();
  const std::string written_name = r.written_name();
  const char* w = written_name.c_str();
  bool only_this = r.subs.empty() || (r.subs.size() == 1 && r.subs[0].kind == 1);
  if (!e.reported) {
    if (n == 0)
      report(e, strf("'%s' is dimensionless and therefore has no occurs value", w));
    else if (n > 1)
      report(e, strf("'%s' has %d dimensions and therefore has no occurs value", w, n));
    else if (!only_this)
      report(e, strf("to access the occurs value, the format is either '%s.occurs' without the subscript, or "
                     "'%s[this].occurs'",
                     w, w));
  }
  r.written += ".occurs";
  e.value = r.record + ".occurs";
  r.subs.clear();
  r.occurs_or_limit = true;
  become_unsigned(e);
}

void Translator::limit(const Token& t) {
  ensure_operands(1, t.line);
  Operand& e = top();
  if (!e.ref) {
    if (!e.reported) report(e, strf("'%s' is dimensionless and therefore has no limit value", e.value.c_str()));
    return;
  }
  Reference& r = *e.ref;
  int n = symbols_[r.sym].dim_count();
  const std::string written_name = r.written_name();
  const char* w = written_name.c_str();
  int dimension = 1;
  if (!e.reported) {
    int thises = 0, given = 0, at = 0;
    for (size_t k = 0; k < r.subs.size(); ++k) {
      if (r.subs[k].kind == 1) {
        ++thises;
        at = static_cast<int>(k) + 1;
      }
      if (r.subs[k].kind == 0) ++given;
    }
    if (n == 0) {
      report(e, strf("'%s' is dimensionless and therefore has no limit value", w));
    } else if (n == 1) {
      if (given > 0 || thises > 1)
        report(e, strf("to access the limit value, the format is either '%s.limit' without the subscript, or "
                       "'%s[this].limit'",
                       w, w));
    } else if (thises > 0 && (thises > 1 || given > 0)) {
      check_this(e);
    } else if (thises != 1) {
      report(e, strf("to access a limit value, use the '[this]' notation: correct usage is one occurrence of "
                     "'[this]' and the remaining subscripts of '%s' are empty '[]'",
                     w));
    } else {
      dimension = at;
    }
  }
  r.written += ".limit";
  e.value = strf("%s.limit%d", r.record.c_str(), dimension);
  r.subs.clear();
  r.occurs_or_limit = true;
  become_unsigned(e);
}

void Translator::become_unsigned(Operand& e) {
  e.type_bits = 128;
  e.type_sym = 0;
  e.kind = 0;
  e.dims = 0;
  e.partial = false;
  e.lvalue = false;
}

void Translator::end_space_reference(const Token& last) {
  ensure_operands(1, last.line);
  Operand& e = top();
  if (!e.ref) return;
  if (e.ref.plain()) {
    e.ref.finish_plain(e.code.text().size());
    return;
  }
  Reference& r = *e.ref;
  if (!r.occurs_or_limit) {
    if (this_used(r)) {
      if (!e.reported) {
        check_this(e);
        if (!e.reported)
          report(e, "subscripts using '[this]' notation to identify a dimension must be followed by '.limit'");
      }
    } else {
      finish_component(e);
    }
  }
  r.checks_at = e.code.text().size();
  e.code += std::move(r.checks);
  r.finished = true;
}

void Translator::added_length(const Token& t) {
  Operand& e = push_operand(t.line);
  e.value = "added_length";
  e.type_bits = 128;
  if (!fn().added_length_used) fn().added_length_used = t.line;
}

void Translator::declare_added_length() {
  FunctionContext& f = fn();
  if (f.added_length_declared) return;
  f.added_length_declared = true;
  add_local(strf("\n%s added_length, %s;", "unsigned", generated("added_length_minus_one").c_str()));
}

void Translator::sizeof_expr(const Token& keyword) {
  ensure_operands(1, keyword.line);
  int i = top_index();
  Operand& e = operand(i);
  if (e.casted) {
    if (!e.reported) report(e, "the operand of sizeof cannot be a casted character space");
  }
  std::string text;
  if (!e.reported && !e.empty) {
    if (e.kind == 'n' && e.dims == 0) {
      text = "sizeof(void(*)())";
    } else if (e.ref && e.dims > 0) {
      // A whole space: its element size times its live limits.
      const Reference& r = *e.ref;
      int sym = r.sym;
      int n = symbols_[sym].dim_count();
      std::string record = e.partial ? r.last_record : r.record;
      text = strf("%ssizeof(%s)", "", decl_.emitter().c_type(sym).c_str());
      for (int k = n - e.dims + 1; k <= n; ++k) text += strf("* %s.limit%d", record.c_str(), k);
    } else if (e.kind == 's' || e.kind == 'e') {
      text = strf("sizeof(%s %s)", e.kind == 's' ? "struct" : "enum",
                  decl_.emitter().tag_name(e.type_sym).c_str());
    } else if (e.type_bits) {
      text = strf("sizeof(%s)", type_words(e.type_bits).c_str());
    } else {
      text = "sizeof(int)";
    }
  }
  e.ref.reset();
  e.partial = false;
  e.casted = false;
  become_unsigned(e);
  e.literal = false;
  e.emit = false;
  if (!e.code.empty() && !text.empty()) {
    // The operand's code runs; the size goes to a temporary after it.
    std::string t = temporary(128);
    appendf(e.code, "\n%s = %s;", t.c_str(), text.c_str());
    text = t;
  }
  e.value = text;
}

// ---- Character-space casts -------------------------------------------------------------------

bool Translator::character_space_cast(int i, const TypeName& type) {
  Operand& e = operand(i);
  // A variable without dimensions has no character space to cast.
  if (!e.ref || e.ref.plain() || !e.ref->finished || e.ref->occurs_or_limit) return false;
  Reference& r = *e.ref;
  // The space the cast reads or writes: the last component, whole, partly
  // elided or subscripted down to one character.
  bool whole = e.dims > 0 && !e.partial;
  int sym = whole ? r.sym : r.last_sym;
  std::string record = whole ? r.record : r.last_record;
  std::string name = whole ? r.written_name() : r.last_name;
  std::vector<std::string> subs = whole ? std::vector<std::string>() : r.last_given;
  if (!sym || symbols_[sym].dim_count() == 0) return false;
  const Symbol& s = symbols_[sym];
  bool character = (symbols_.type_bits_of(sym) & 1) != 0 && symbols_.resolve_type(s.type_sym) == 0;
  bool arithmetic_cast = type.type_bits != 0 && type.type_sym == 0;
  // A value cast of an element of another space stays a value cast.
  if (!character && arithmetic_cast) return false;
  if (e.reported) return true;
  if (!character) {
    report(e, strf("invalid use of a character-space cast: '%s' must have a character type", name.c_str()));
    return true;
  }
  int n = s.dim_count();
  if (static_cast<int>(subs.size()) < n - 1) {
    report(e, strf("invalid use of a character-space cast: %s dimension of '%s' must be subscripted",
                   n > 2 ? "each" : "the", name.c_str()));
    return true;
  }
  int t = symbols_.resolve_type(type.type_sym);
  if (t && (symbols_[t].name_is == 'n' || symbols_[t].contains_fun_ptr == 'y')) {
    report(e, strf("invalid character-space cast: the cast type %s a function pointer. function pointers are "
                   "forbidden in a casted character space, because one of the potential uses of a casted "
                   "character space is to provide data persistence across different executions of a program, and "
                   "function pointers are nonpersistent",
                   symbols_[t].name_is == 'n' ? "is" : "contains"));
    return true;
  }
  // The cast object reaches from its first byte to added_length_minus_one
  // bytes further: the checks of its last component are made again with
  // that added to the last subscript, from a "##x" where the assignment
  // sets the value before the tests use it.
  declare_added_length();
  if (!whole) e.code.truncate(r.checks_at + r.last_checks);
  while (static_cast<int>(subs.size()) < n) subs.push_back("0");
  std::string added = " + " + generated("added_length_minus_one");
  e.code += component_checks(sym, record, subs, name, e.line, added);
  e.value = "(*" + element_address(sym, record, subs) + ")";
  e.casted = true;
  e.cast_record = record;
  e.dims = 0;
  e.partial = false;
  e.type_bits = t ? 0 : type.type_bits;
  e.type_sym = t;
  e.kind = t ? (symbols_[t].name_is == 's' ? 's' : symbols_[t].name_is == 'e' ? 'e' : 0) : 0;
  e.lvalue = true;
  e.ref.reset();
  return true;
}

// ---- End of the file ------------------------------------------------------------------------

void Translator::finish_file(int last_line) {
  if (diag_.errors > 0) return;
  support_.generate(ws_, options_, last_line);
}

}  // namespace ycc
