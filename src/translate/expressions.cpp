// Expressions: literals, identifier references and every operator, each
// checked against the classes of its operands. && || and ! become jumps to
// generated labels; the conditional operator becomes jumps and a temporary.
#include <algorithm>
#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdlib>

#include "common/text.h"
#include "decl/type_keywords.h"
#include "translate/translator.h"

namespace ycc {

namespace {

std::string op_text(const Token& op) { return std::string(op.text()); }

// Splits the upper-case suffix letters off a numeric constant.
std::string_view without_suffix(std::string_view text, std::string& suffix) {
  size_t end = text.size();
  while (end > 0 && (text[end - 1] == 'U' || text[end - 1] == 'L' || text[end - 1] == 'F')) --end;
  // "0x1F": F is a hexadecimal digit, not a suffix.
  if (text.size() > 2 && (text[1] == 'x' || text[1] == 'X')) {
    while (end < text.size() && text[end] == 'F') ++end;
  }
  suffix = std::string(text.substr(end));
  return text.substr(0, end);
}



}  // namespace

// ---- Primaries ------------------------------------------------------------------------

void Translator::constant(const Token& t) {
  Operand& e = push_operand(t.line);
  e.literal = true;
  std::string_view view = t.text();
  // The common small decimal, an int or with "L" a long: its leading zeros
  // dropped, its suffix kept.
  const bool long_suffix = view.size() >= 2 && view.back() == 'L';
  std::string_view digits = long_suffix ? view.substr(0, view.size() - 1) : view;
  if (t.tok == T_DECIMALINT && !digits.empty() && digits.size() <= 9 &&
      std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    size_t nz = digits.find_first_not_of('0');
    e.value = nz == std::string_view::npos ? std::string_view("0") : digits.substr(nz);
    if (long_suffix) e.value += 'L';
    e.type_bits = long_suffix ? 8 : 4;
    return;
  }
  std::string text(view);
  switch (t.tok) {
    case T_DECIMALINT:
    case T_HEXADECIMAL: {
      std::string suffix;
      std::string digits(without_suffix(text, suffix));
      bool hex = t.tok == T_HEXADECIMAL;
      errno = 0;
      unsigned long long v = std::strtoull(hex ? digits.c_str() + 2 : digits.c_str(), nullptr, hex ? 16 : 10);
      bool too_big = errno == ERANGE || v > 4294967295ULL;
      bool is_unsigned = suffix.find('U') != std::string::npos;
      bool is_long = suffix.find('L') != std::string::npos;
      if (too_big)
        report(e, strf("the integer constant '%s' exceeds the representation limits of type 'unsigned long'",
                       text.c_str()));
      if (is_unsigned && is_long)
        e.type_bits = 136;
      else if (is_long)
        e.type_bits = v > 2147483647ULL ? 136 : 8;
      else if (is_unsigned)
        e.type_bits = 128;
      else
        e.type_bits = v <= 2147483647ULL ? 4 : hex ? 128 : 136;
      // A leading zero makes no octal constant in YARL C.
      if (!hex) {
        size_t nz = digits.find_first_not_of('0');
        digits = nz == std::string::npos ? "0" : digits.substr(nz);
      }
      e.value = digits + suffix;
      break;
    }
    case T_FLOATONE:
    case T_FLOATTWO: {
      std::string suffix;
      std::string digits(without_suffix(text, suffix));
      e.type_bits = suffix == "F" ? 16 : suffix == "L" ? 40 : 32;
      errno = 0;
      bool overflow;
      if (e.type_bits == 16) {
        double v = std::strtod(digits.c_str(), nullptr);
        overflow = (errno == ERANGE && std::isinf(v)) || v > FLT_MAX;
      } else if (e.type_bits == 32) {
        double v = std::strtod(digits.c_str(), nullptr);
        overflow = errno == ERANGE && std::isinf(v);
      } else {
        long double v = std::strtold(digits.c_str(), nullptr);
        overflow = errno == ERANGE && std::isinf(v);
      }
      if (overflow) {
        if (e.type_bits == 16)
          report(e, strf("the floating-point constant '%s' exceeds the representation limit of type 'float'",
                         text.c_str()));
        else
          report(e, strf("the floating-point constant '%s' exceeds the representation limit of type '%s'",
                         text.c_str(), e.type_bits == 32 ? "double" : "long double"));
      }
      e.value = text;
      break;
    }
    case T_CHARACTER: {
      CharacterConstant c = check_character_constant(t.text(), diag_, t.line);
      if (c.error) e.reported = true;
      e.value = c.c_text;
      e.type_bits = TB_CHAR;
      break;
    }
    default:
      e.literal = false;
      string_literal(e, t);
      break;
  }
}

void Translator::parenthesized(const Token& lparen) {
  ensure_operands(1, lparen.line);
  Operand& e = top();
  // A parenthesised reference is a value: (int)(buf[i]) casts the character.
  e.ref.reset();
  if (e.jump_form() || e.value.empty()) return;
  // In place: the value's room usually holds two more characters.
  e.value.insert(0, 1, '(').push_back(')');
}

void Translator::syntax_error_operand(const Token& at) {
  Operand& e = push_operand(at.line);
  e.reported = true;
  e.empty = true;
}

// ---- Type names, casts and sizeof --------------------------------------------------------

void Translator::cast(const Token& lparen) {
  ensure_operands(1, lparen.line);
  int i = top_index();
  TypeName type = decl_.pop_type_name();
  if (!type.bad && character_space_cast(i, type)) return;
  to_value(i);
  Operand& e = operand(i);
  e.ref.reset();
  if (type.bad) {
    e.reported = true;
    return;
  }
  if (type.type_bits == 0 || type.type_sym != 0) {
    if (!e.reported) report(e, "invalid cast: to cast an expression, the cast must have an arithmetic type");
    return;
  }
  if (!e.reported) {
    std::string why = class_message(e, 8, true);
    if (!why.empty()) {
      report(e, "invalid use of cast: the casted expression " + why);
      return;
    }
  }
  e.value = concat({"((", type_words(type.type_bits), ")(", e.value, "))"});
  e.type_bits = type.type_bits;
  e.kind = 0;
  e.type_sym = 0;
  e.lvalue = e.literal = e.emit = false;
}

void Translator::sizeof_type(const Token& keyword) {
  Operand& e = push_operand(keyword.line);
  e.type_bits = 128;
  TypeName type = decl_.pop_type_name();
  if (type.bad) {
    e.reported = true;
    return;
  }
  int t = type.type_sym;
  if (t && symbols_[t].name_is == 's')
    e.value = "sizeof(struct " + decl_.emitter().tag_name(t) + ")";
  else if (t && symbols_[t].name_is == 'e')
    e.value = "sizeof(enum " + decl_.emitter().tag_name(t) + ")";
  else if (t)
    e.value = "sizeof(void(*)())";
  else
    e.value = "sizeof(" + type_words(type.type_bits) + ")";
}

// ---- Operators ---------------------------------------------------------------------------

void Translator::comma(const Token& op) {
  ensure_operands(2, op.line);
  int left = top_index() - 1;
  finish_expression(left, true);
  Operand right = pop_operand();
  Code joined = std::move(code(left));
  joined += std::move(right.code);
  right.code = std::move(joined);
  right.line = operand(left).line;
  right.ref.reset();
  operand(left) = std::move(right);
}

void Translator::unary_operator(const Token& op, Fix fix) {
  ensure_operands(1, op.line);
  int i = top_index();
  std::string o = op_text(op);
  if (op.tok == T_NOT) {
    Operand& e = operand(i);
    if (!test_class(e, 2, true, "'%s' : the operand %s", o)) {
      e.reported = true;
      return;
    }
    if (e.jump_form()) {
      // Label names carry their role: the exchange renames them.
      resolve_labels(code(i));
      int new_true = e.false_label ? next_label() : 0;
      int new_false = e.true_label ? next_label() : 0;
      Code& text = code(i);
      if (e.false_label) rename_label(text, false_name(e.false_label), true_name(new_true));
      if (e.true_label) rename_label(text, true_name(e.true_label), false_name(new_false));
      e.false_label = new_false;
      e.true_label = new_true;
      return;
    }
    e.value = "!(" + e.value + ")";
    e.ref.reset();
    e.type_bits = 4;
    e.kind = 0;
    e.type_sym = 0;
    e.lvalue = e.literal = e.emit = false;
    return;
  }
  to_value(i);
  Operand& e = operand(i);
  bool increment = op.tok == T_PLUSPLUS || op.tok == T_MINUSMINUS;
  if (increment) {
    if (!test_class(e, 5, true, "'%s' : the operand %s", o)) {
      e.reported = true;
      return;
    }
    if (!e.lvalue) {
      report(e, strf("'%s' requires an l-value", o.c_str()));
      return;
    }
    if (checked_store(e)) {
      // The element is read into a temporary and the new value written back
      // through the checks of a written element.
      std::string t = temporary(e.type_bits);
      const char* step = op.tok == T_PLUSPLUS ? "+" : "-";
      Code write = written_copy(e);
      e.code.append({"\n", t, " = ", e.value, ";"});
      e.code += std::move(write);
      std::string store = strf("%s = %s %s 1", e.value.c_str(), t.c_str(), step);
      if (fix == Fix::Prefix) {
        e.value = store;
        e.emit = true;
      } else {
        e.code.append({"\n", store, ";"});
        e.value = t;
        e.emit = false;
      }
    } else if (fix == Fix::Prefix) {
      e.value = o + e.value;
      e.emit = true;
    } else {
      std::string t = temporary(e.type_bits);
      code(i).append({"\n", t, " = ", e.value, ";\n", e.value, o, ";"});
      e.value = t;
      e.emit = false;
    }
    e.lvalue = e.literal = false;
    e.ref.reset();
    return;
  }
  e.ref.reset();
  if (op.tok == T_ONESCOMPLEMENT) {
    if (!test_class(e, 7, true, "'%s' : the operand %s", o)) {
      e.reported = true;
      return;
    }
    e.value = "~" + e.value;
    e.lvalue = e.literal = e.emit = false;
    return;
  }
  const char* name = op.tok == T_MINUS ? "unary minus" : "unary plus";
  if (!test_class(e, 5, true, "'%s' : the operand %s", name)) {
    e.reported = true;
    return;
  }
  // "- -x" must not become the decrement "--x".
  bool same_sign = !e.value.empty() && (e.value[0] == '-' || e.value[0] == '+');
  e.value = o + (same_sign ? " " : "") + e.value;
  e.lvalue = e.emit = false;
}

void Translator::binary_operator(const Token& op) {
  ensure_operands(2, op.line);
  int left = top_index() - 1;
  int right = top_index();
  to_value(left);
  to_value(right);
  // The operator's text is needed whole only in messages.
  const std::string_view o = op.text();
  int cls = 5;
  bool comparison = false;
  switch (op.tok) {
    case T_PERCENT:
    case T_SHIFTLEFT:
    case T_SHIFTRIGHT:
    case T_BITWISEAND:
    case T_BITWISEOR:
    case T_BITWISEXOR:
      cls = 7;
      break;
    case T_EQUAL:
    case T_NOTEQUAL:
      cls = 2;
      comparison = true;
      break;
    case T_LESSTHAN:
    case T_GREATERTHAN:
    case T_LESSTHANOREQUALTO:
    case T_GREATERTHANOREQUALTO:
      cls = 8;
      comparison = true;
      break;
    default:
      break;
  }
  Operand& l = operand(left);
  Operand& r = operand(right);
  bool was_reported = l.reported || r.reported;
  bool ok_left = test_class(l, cls, true, "'%s' : the left operand %s", o);
  bool ok_right = test_class(r, cls, true, "'%s' : the right operand %s", o);
  bool ok = ok_left && ok_right;
  if (ok && comparison) {
    if (is_enum(l) && is_enum(r)) {
      if (l.type_sym != r.type_sym) {
        diag_.error(op.line, strf("'%s' : the two operands have incompatible enumeration types", std::string(o).c_str()));
        ok = false;
      }
    } else if ((is_enum(l) && !is_literal_zero(r)) || (is_enum(r) && !is_literal_zero(l))) {
      diag_.error(op.line,
                  strf("'%s' : an enumeration type cannot be compared to other types, with the sole "
                       "exception of comparison with literal 0 (zero)",
                       std::string(o).c_str()));
      ok = false;
    }
    if (is_function(l) && is_function(r)) {
      if (!same_function_type(l.type_sym, r.type_sym)) {
        diag_.error(op.line, strf("'%s' : the two operands have incompatible function types", std::string(o).c_str()));
        ok = false;
      }
    } else if ((is_function(l) && !is_literal_zero(r)) || (is_function(r) && !is_literal_zero(l))) {
      diag_.error(op.line,
                  strf("'%s' : a function type cannot be compared to other types, with the sole "
                       "exception of comparison with literal 0 (zero)",
                       std::string(o).c_str()));
      ok = false;
    }
  }
  int bits = comparison ? 4 : arithmetic_result(l.type_bits, r.type_bits);
  bool literal = l.literal && r.literal;
  // Appended in place: a long chain of operators stays linear.
  l.value.reserve(l.value.size() + o.size() + r.value.size() + 2);
  l.value.append(1, ' ').append(o).append(1, ' ').append(r.value);
  l.ref.reset();
  join_popped(left);
  Operand& e = operand(left);
  e.type_bits = bits;
  e.kind = 0;
  e.type_sym = 0;
  e.dims = 0;
  e.casted = false;
  e.lvalue = e.emit = e.empty = false;
  e.literal = literal && !comparison;
  e.reported = was_reported || !ok;
}

void Translator::logical_and(const Token& op) {
  ensure_operands(2, op.line);
  int left = top_index() - 1;
  Operand& l = operand(left);
  Operand& r = operand(left + 1);
  bool ok_left = test_class(l, 2, true, "'%s' : the left operand %s", "&&");
  bool ok_right = test_class(r, 2, true, "'%s' : the right operand %s", "&&");
  bool reported = !ok_left || !ok_right || l.reported || r.reported;
  int common = r.false_label ? r.false_label : l.false_label ? l.false_label : next_label();
  std::string f = false_name(common);
  Code& text = code(left);
  if (l.false_label && l.false_label != common) alias_label(l.false_label, common);
  if (l.jump_form()) {
    if (l.true_label) {
      std::string t = true_name(l.true_label);
      if (last_goto_is_true(text.text()))
        text.append({"\ngoto ", f, ";\n", t, ":"});
      else
        text.append({"\n", t, ":"});
    }
  } else {
    text.append({"\nif(!(", l.value, ")) goto ", f, ";"});
  }
  Operand& rv = pop_slot();
  Code& joined = code(left);
  joined += std::move(rv.code);
  if (!rv.jump_form()) joined.append({"\nif(!(", rv.value, ")) goto ", f, ";"});
  become_jump_form(operand(left), common, rv.true_label, reported);
}

// The result of && and ||: an int known only through its two labels.
void Translator::become_jump_form(Operand& e, int false_label, int true_label, bool reported) {
  e.ref.reset();
  e.false_label = false_label;
  e.true_label = true_label;
  e.value.clear();
  e.type_bits = 4;
  e.kind = 0;
  e.type_sym = 0;
  e.lvalue = e.literal = e.emit = e.empty = false;
  e.reported = reported;
}

void Translator::logical_or(const Token& op) {
  ensure_operands(2, op.line);
  int left = top_index() - 1;
  Operand& l = operand(left);
  Operand& r = operand(left + 1);
  bool ok_left = test_class(l, 2, true, "'%s' : the left operand %s", "||");
  bool ok_right = test_class(r, 2, true, "'%s' : the right operand %s", "||");
  bool reported = !ok_left || !ok_right || l.reported || r.reported;
  int common = r.true_label ? r.true_label : l.true_label ? l.true_label : next_label();
  std::string t = true_name(common);
  Code& text = code(left);
  if (l.true_label && l.true_label != common) alias_label(l.true_label, common);
  if (l.jump_form()) {
    if (l.false_label) {
      std::string f = false_name(l.false_label);
      if (!last_goto_is_true(text.text()))
        text.append({"\ngoto ", t, ";\n", f, ":"});
      else
        text.append({"\n", f, ":"});
    }
  } else {
    text.append({"\nif(", l.value, ") goto ", t, ";"});
  }
  Operand& rv = pop_slot();
  Code& joined = code(left);
  joined += std::move(rv.code);
  if (!rv.jump_form()) joined.append({"\nif(", rv.value, ") goto ", t, ";"});
  become_jump_form(operand(left), rv.false_label, common, reported);
}

void Translator::conditional(const Token& question, const Token& colon) {
  ensure_operands(3, colon.line);
  int a = top_index() - 2, b = a + 1, c = a + 2;
  to_value(b);
  to_value(c);
  const char* head = "a '?' b ':' c -- ";
  Operand& ea = operand(a);
  if (!ea.reported) {
    std::string why = class_message(ea, 2, true);
    if (!why.empty()) report(ea, std::string(head) + "expression 'a' " + why);
  }
  std::string f = control_on(a);
  std::string skip = generated("skip", ++skip_counter_);
  const Operand& eb = operand(b);
  const Operand& ec = operand(c);
  bool reported = operand(a).reported || eb.reported || ec.reported;
  int line = question.line;
  auto fail = [&](const std::string& text) {
    if (!reported) diag_.error(line, std::string(head) + text);
    reported = true;
  };
  int bits = 4;
  char kind = 0;
  int type_sym = 0;
  if (eb.casted || ec.casted) {
    fail("neither operand 'b' nor 'c' can be a casted character space");
  } else if (is_enum(eb) || is_enum(ec)) {
    const Operand& named = is_enum(eb) ? eb : ec;
    kind = 'e';
    type_sym = named.type_sym;
    if (is_enum(eb) && is_enum(ec)) {
      if (eb.type_sym != ec.type_sym) fail("operands 'b' and 'c' have incompatible enumeration types");
    } else if (!is_literal_zero(is_enum(eb) ? ec : eb)) {
      fail("for operands 'b' and 'c', an enumeration type cannot be paired with other types, with the "
           "sole exception of pairing with literal 0 (zero)");
    }
  } else if (is_function(eb) || is_function(ec)) {
    if (is_function(eb) && is_function(ec)) {
      if (!same_function_type(eb.type_sym, ec.type_sym))
        fail("operands 'b' and 'c' have incompatible function types");
    } else if (!is_literal_zero(is_function(eb) ? ec : eb)) {
      fail("for operands 'b' and 'c', a function type cannot be paired with other types, with the "
           "sole exception of pairing with literal 0 (zero)");
    }
    kind = 'n';
    type_sym = is_function(eb) ? eb.type_sym : ec.type_sym;
  } else if (is_aggregate(eb) || is_aggregate(ec)) {
    int elided_b = eb.partial ? eb.dims : 0, elided_c = ec.partial ? ec.dims : 0;
    if (eb.dims > 0 && ec.dims > 0 && elided_b != elided_c)
      fail("operands 'b' and 'c' do not have the same number of elided dimensions");
    else if (eb.dims > 0 && ec.dims > 0 && eb.dims != ec.dims)
      fail("operands 'b' and 'c' do not have the same number of unelided dimensions");
    else if (eb.dims != ec.dims || eb.kind != ec.kind || eb.type_sym != ec.type_sym ||
             (eb.kind == 0 && !sufficiently_equivalent(eb.type_bits, ec.type_bits)) || eb.partial || ec.partial ||
             (eb.dims > 0 && (!eb.ref || !ec.ref ||
                              symbols_[eb.ref->sym].is_var != symbols_[ec.ref->sym].is_var)))
      fail("operands 'b' and 'c' have incompatible types");
    else
      kind = 'a';
  } else if (eb.type_bits && ec.type_bits && !eb.empty && !ec.empty) {
    bool lenient = (eb.literal || ec.literal) && is_floating(eb.type_bits) == is_floating(ec.type_bits);
    if (!lenient && !sufficiently_equivalent(eb.type_bits, ec.type_bits))
      fail(strf("operand 'b' arithmetic type '%s' is not sufficiently equivalent to operand 'c' "
                "arithmetic type '%s'",
                type_words(eb.type_bits).c_str(), type_words(ec.type_bits).c_str()));
    bits = eb.literal && !ec.literal ? ec.type_bits
           : ec.literal && !eb.literal ? eb.type_bits
                                       : arithmetic_result(eb.type_bits, ec.type_bits);
  } else {
    fail("operands 'b' and 'c' have incompatible types");
  }
  if (kind == 'a' || kind == 'n') {
    conditional_object(a, f, skip, reported, kind == 'a');
    return;
  }
  std::string t = temporary(kind ? 4 : bits);
  Operand& oc = pop_slot();
  Operand& ob = pop_slot();
  Code& joined = code(a);
  joined += std::move(ob.code);
  joined.append({"\n", t, " = ", ob.value, ";\ngoto ", skip, ";\n", f, ":"});
  joined += std::move(oc.code);
  joined.append({"\n", t, " = ", oc.value, ";\n", skip, ":"});
  Operand& e = operand(a);
  e.ref.reset();
  e.value = t;
  e.type_bits = kind ? 0 : bits;
  e.kind = kind;
  e.type_sym = type_sym;
  e.dims = 0;
  e.false_label = e.true_label = 0;
  e.lvalue = e.literal = e.emit = e.empty = false;
  e.reported = reported;
}

bool Translator::checked_store(const Operand& e) const {
  return e.ref && e.ref.finished() && e.ref.subscripted() > 0 && !e.code.empty();
}

Code Translator::written_copy(const Operand& e) const {
  Code c = e.code.copy_from(e.ref->checks_at);
  c.rewrite_written();
  return c;
}

}  // namespace ycc

namespace ycc {

// a ? b : c of functions goes through a function-pointer temporary; of
// structures and spaces through a pointer to the one chosen, so the result
// designates it.
void Translator::conditional_object(int a, const std::string& false_label, const std::string& skip, bool reported,
                                    bool aggregate) {
  Operand oc = pop_operand();
  Operand ob = pop_operand();
  const Operand& model = is_function(ob) || aggregate ? ob : oc;
  std::string p = names_.prefix() + names_.prefix() + strf("_ptr%d", ++fn().pointer_temps);
  const Emitter& emitter = decl_.emitter();
  std::string declaration;
  if (!aggregate) {
    int fun = model.type_sym;
    if (symbols_[fun].name_is != 'n') fun = function_signature(symbols_, fun);
    declaration = emitter.fun_pointer(fun, p);
  } else if (model.dims > 0) {
    declaration = "struct " + names_.meta_type(symbols_[model.ref->sym].dim_count()) + " *" + p;
  } else {
    declaration = "struct " + emitter.tag_name(model.type_sym) + " *" + p;
  }
  add_local("\n" + declaration + ";");
  auto object = [&](const Operand& o) { return aggregate ? (o.dims > 0 ? o.ref->record : o.value) : o.value; };
  const char* form = aggregate ? "\n%s = &(%s);" : "\n%s = %s;";
  Code& joined = code(a);
  joined += std::move(ob.code);
  appendf(joined, form, p.c_str(), object(ob).c_str());
  appendf(joined, "\ngoto %s;\n%s:", skip.c_str(), false_label.c_str());
  joined += std::move(oc.code);
  appendf(joined, form, p.c_str(), object(oc).c_str());
  appendf(joined, "\n%s:", skip.c_str());
  Operand& e = operand(a);
  Operand result = model;
  result.code = std::move(e.code);
  result.line = e.line;
  result.reported = reported;
  result.false_label = result.true_label = 0;
  result.literal = result.emit = false;
  if (aggregate) {
    result.value = "(*" + p + ")";
    if (model.dims > 0) {
      auto r = std::make_shared<Reference>(*model.ref);
      r->record = result.value;
      r->checks = Code();
      r->checks_at = 0;
      r->subscripted = 0;
      r->path.clear();
      result.ref = r;
    } else {
      result.ref.reset();
    }
    result.lvalue = true;
  } else {
    result.value = p;
    result.ref.reset();
    result.lvalue = false;
    result.kind = 'n';
  }
  e = std::move(result);
}

}  // namespace ycc
