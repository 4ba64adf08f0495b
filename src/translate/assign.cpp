// Assignment and move. Between scalars `=` is C's assignment. Between
// structures and spaces `=` copies, a varspace target getting blocks of its
// own, and `===` hands the storage over: exactly one owner of every block
// remains, so the target's former blocks are released first and a moved
// varspace leaves its source empty. `= 0` zeroes an aggregate, a casted
// character space stores or loads a value byte by byte, and `free` releases.
#include "common/c_names.h"
#include "common/text.h"
#include "decl/type_keywords.h"
#include "translate/translator.h"
#include "translate/walks.h"

namespace ycc {


std::string Translator::walk_counter(int depth) {
  FunctionContext& f = fn();
  // Every counter up to this depth: walks may start at an inner depth.
  while (f.walk_counters < depth + 1)
    add_local(strf("\n%s %s;", "unsigned", generated("imw", ++f.walk_counters).c_str()));
  return generated("imw", depth + 1);
}

// ---- The assignment operators ----------------------------------------------------------------

void Translator::assignment(AssignMode mode, const Token& op) {
  ensure_operands(2, op.line);
  int left = top_index() - 1, right = top_index();
  to_value(right);
  std::string o(op.text());
  Operand& l = operand(left);
  Operand& r = operand(right);
  bool reported = l.reported || r.reported;
  auto fail = [&](const std::string& text) {
    if (!reported) diag_.error(op.line, text);
    reported = true;
  };
  if (mode == AssignMode::Compound) {
    bool integral = o == "%=" || o == "<<=" || o == ">>=" || o == "&=" || o == "|=" || o == "^=";
    bool ok_left = test_class(l, integral ? 7 : 5, true, "'%s' : the left operand %s", o);
    bool ok_right = test_class(r, integral ? 7 : 5, true, "'%s' : the right operand %s", o);
    if (!ok_left || !ok_right) reported = true;
    if (!reported && !l.lvalue) fail(strf("'%s' requires an l-value", o.c_str()));
    if (checked_store(l)) {
      // The element is read into a temporary, and the result written back
      // through the checks of a written element.
      std::string t = temporary(l.type_bits);
      Code write = written_copy(l);
      Operand rv = pop_operand();
      Operand& e = operand(left);
      e.code += std::move(rv.code);
      appendf(e.code, "\n%s = %s;\n%s %s %s;", t.c_str(), e.value.c_str(), t.c_str(), o.c_str(), rv.value.c_str());
      e.code += std::move(write);
      e.value = e.value + " = " + t;
    } else {
      l.value.append(" ").append(o).append(" ").append(r.value);
      join_popped(left);
    }
    finish_assignment(left, reported, true);
    return;
  }

  bool move = mode == AssignMode::Move;
  const char* verb = move ? "moved" : "assigned";
  const char* on = o.c_str();
  if (!l.lvalue) fail(strf("'%s' : the left operand is not an l-value", on));
  if (r.aggregate_assigned)
    fail(strf("'%s' : the right operand is an assignment or move of structures or spaces, which has no value: write "
              "each one as a statement of its own",
              on));
  if (l.casted || r.casted) {
    if (l.casted && r.casted)
      fail("'=' : only one operand can be a casted character space, not both");
    else if (move)
      fail("'===' : neither operand can be a casted character space");
    cast_assignment(left, reported, op.line);
    return;
  }
  if (is_enum(l) || is_enum(r)) {
    if (is_enum(l) && is_enum(r)) {
      if (l.type_sym != r.type_sym) fail(strf("'%s' : the operands have incompatible enumeration types", on));
    } else if (is_enum(l)) {
      if (move)
        fail("'===' : a non-enumeration value cannot be moved to an enumeration variable");
      else if (!is_literal_zero(r))
        fail("'=' : a non-enumeration value cannot be assigned to an enumeration variable, with the sole "
             "exception of assigning literal 0 (zero)");
    } else {
      fail(strf("'%s' : an enumeration value cannot be %s to a non-enumeration variable", on, verb));
    }
  } else if (is_function(l) || is_function(r)) {
    if (is_function(l) && is_function(r)) {
      if (!same_function_type(l.type_sym, r.type_sym)) fail(strf("'%s' : the operands have incompatible function types", on));
    } else if (is_function(l)) {
      if (move)
        fail("'===' : a non-function value cannot be moved to a function variable");
      else if (!is_literal_zero(r))
        fail("'=' : a non-function value cannot be assigned to a function variable, with the sole exception "
             "of assigning literal 0 (zero)");
    } else {
      fail(strf("'%s' : a function value cannot be %s to a non-function variable", on, verb));
    }
  } else if (is_aggregate(l) || is_aggregate(r)) {
    aggregate_assignment(left, move, o, reported, op.line);
    return;
  } else if (move) {
    fail("'===' : the operands must be structures or spaces");
  } else if (l.type_bits && r.type_bits && !l.empty && !r.empty) {
    // A literal takes any type of its own family.
    bool lenient = r.literal && is_floating(l.type_bits) == is_floating(r.type_bits);
    if (!lenient && !sufficiently_equivalent(l.type_bits, r.type_bits))
      fail(strf("'%s' : the left operand's arithmetic type '%s' is not sufficiently equivalent to the right "
                "operand's arithmetic type '%s'",
                on, type_words(l.type_bits).c_str(), type_words(r.type_bits).c_str()));
  } else if (!l.empty && !r.empty) {
    fail(strf("'%s' : the operands have incompatible types", on));
  }
  if (move) fail("'===' : the operands must be structures or spaces");
  // The left operand's checks are those of a written element.
  l.code.rewrite_written();
  l.value.append(" = ").append(r.value);
  join_popped(left);
  finish_assignment(left, reported, true);
}

void Translator::finish_assignment(int i, bool reported, bool has_value) {
  Operand& e = operand(i);
  e.emit = has_value;
  if (!has_value) {
    e.value.clear();
    e.empty = true;
    e.aggregate_assigned = true;
    e.type_bits = 0;
    e.type_sym = 0;
    e.kind = 0;
    e.dims = 0;
    e.casted = false;
    e.partial = false;
  }
  e.lvalue = e.literal = false;
  e.reported = reported;
  e.ref.reset();
}

bool Translator::aggregate_of(const Operand& e, Aggregate& a) const {
  if (e.partial) return false;
  a.dims = e.dims;
  a.tag = e.kind == 's' ? e.type_sym : 0;
  if (e.dims == 0 && e.kind == 's') {
    // A structure needs only its object (a conditional's result has no reference).
    a.text = e.value;
    a.name = e.ref ? e.ref->written : e.value;
    return true;
  }
  if (!e.ref || !e.ref->finished) return false;
  const Reference& r = *e.ref;
  a.name = r.written;
  if (e.dims > 0) {
    a.sym = r.sym;
    a.text = r.record;
    a.var = symbols_[r.sym].is_var == 'y';
  } else {
    a.text = e.value;
  }
  return e.dims > 0 || e.kind == 's';
}

// ---- Structures and spaces ------------------------------------------------------------------

void Translator::aggregate_assignment(int left, bool move, const std::string& o, bool reported, int line) {
  Operand& l = operand(left);
  Operand& r = operand(left + 1);
  const char* on = o.c_str();
  const char* verb = move ? "moved" : "assigned";
  auto fail = [&](const std::string& text) {
    if (!reported) diag_.error(line, text);
    reported = true;
  };
  if (!move && is_literal_zero(r) && !is_aggregate(r)) {
    zero_assignment(left, reported, line);
    return;
  }
  Aggregate la, ra;
  if (move && (!is_aggregate(l) || !is_aggregate(r))) {
    fail("'===' : the operands must be structures or spaces");
  } else if (r.dims > 0 && l.dims == 0) {
    fail(strf("'%s' : a space cannot be %s to a nonspace", on, verb));
  } else if (l.dims > 0 && r.dims == 0) {
    fail(strf("'%s' : the operands have incompatible types", on));
  } else if (l.dims != r.dims) {
    fail(strf("'%s' : the left operand is a %d-dimensional space, but the right operand is %d-dimensional", on,
              l.dims, r.dims));
  } else if (l.partial) {
    fail(strf("'%s' : the left operand cannot be a partially elided space", on));
  } else if (r.partial) {
    fail(strf("'%s' : the right operand cannot be a partially elided space", on));
  } else if (!reported && (!aggregate_of(l, la) || !aggregate_of(r, ra))) {
    fail(strf("'%s' : the operands have incompatible types", on));
  } else if (!reported) {
    if (l.dims > 0 && move && la.var && !ra.var) {
      fail("'===' : a fixed-space cannot be moved to a varspace");
    } else if (l.dims > 0 && !la.var && ra.var) {
      fail(strf("'%s' : a varspace cannot be %s to a fixed-space", on, verb));
    } else if (l.dims > 0 && !la.var && !ra.var) {
      const Symbol& x = symbols_[la.sym];
      const Symbol& y = symbols_[ra.sym];
      for (int k = 0; k < x.dim_count(); ++k) {
        int a = x.dims[static_cast<size_t>(k)].size, b = y.dims[static_cast<size_t>(k)].size;
        if (a > 0 && b > 0 && a != b) {
          fail(strf("'%s' : for the left operand's %d%s dimension the allocation value is %d, which differs "
                    "from the right operand's allocation value of %d",
                    on, k + 1, k == 0 ? "st" : k == 1 ? "nd" : k == 2 ? "rd" : "th", a, b));
          break;
        }
      }
    }
    // The elements (or structures) must be of one type.
    bool same = l.kind == r.kind && l.type_sym == r.type_sym &&
                (l.kind != 0 || sufficiently_equivalent(l.type_bits, r.type_bits));
    if (!same && l.kind == 'n' && r.kind == 'n') same = same_function_type(l.type_sym, r.type_sym);
    if (!same) fail(strf("'%s' : the operands have incompatible types", on));
  }
  // After an error no code is kept: nothing is walked.
  if (reported || diag_.errors > 0) {
    join_popped(left);
    finish_assignment(left, reported, false);
    return;
  }

  // The code: the target's checks are a written element's, then the source's.
  Operand ro = pop_operand();
  Operand& e = operand(left);
  e.code.rewrite_written();
  e.code += std::move(ro.code);
  std::string out;
  auto counter = [this](int depth) { return walk_counter(depth); };
  int position = support_.position(line);
  std::string flag, bytes;
  bool copies = false;  // blocks are allocated: the flag says whether all could be
  auto copy_flag = [&]() {
    if (flag.empty()) {
      flag = temporary(4);
      bytes = temporary(128);
    }
    copies = true;
  };
  const std::string& L = la.text;
  const std::string& R = ra.text;
  SpaceWalker walker(symbols_, names_);
  const Emitter& emitter = decl_.emitter();

  if (la.dims > 0 && la.var) {
    int element = symbols_.resolve_type(symbols_[la.sym].type_sym);
    bool nested = nests_varspace(symbols_, element);
    if (!move) copy_flag();
    std::string body;
    Release release(symbols_, counter, body, false);
    walker.walk(la.sym, L, L, 1, release, body);
    if (move) {
      appendf(body, "\n   %s = %s;", L.c_str(), R.c_str());
      Empty empty(symbols_, counter, body);
      walker.walk(ra.sym, R, R, 1, empty, body);
    } else {
      DeepCopy copy(symbols_, emitter, counter, body, flag, bytes, 1);
      copy.copy_block(la.sym, L, R, "   ", true);
      if (nested) walker.walk_pair(la.sym, L, L, R, R, 1, copy, body);
    }
    if (!move) out += strf("\n%s = 1;", flag.c_str());
    appendf(out, "\nif(&(%s) != &(%s)) {%s\n}", L.c_str(), R.c_str(), body.c_str());
  } else if (la.dims > 0) {
    // A fixed-space target keeps its block: the limits must agree at run time.
    const Symbol& s = symbols_[la.sym];
    int n = s.dim_count();
    int element = symbols_.resolve_type(s.type_sym);
    bool nested = nests_varspace(symbols_, element);
    std::string t = temporary(128);
    std::string body;
    if (options_.bounds_checks) {
      body += "\n   if(";
      for (int k = 1; k <= n; ++k)
        appendf(body, "%s.limit%d != %s.limit%d%s", L.c_str(), k, R.c_str(), k, k < n ? " || " : ")");
      std::string name = strf("\n for fixed-space '%s': assigning limit%s ", la.name.c_str(), n > 1 ? "s" : "");
      body += ws_.check_marker('s', line);
      appendf(body, "\n      %s(\"%s\", %d, %d, ", support_.bounds_exceeded().c_str(), c_string_text(name).c_str(),
                   position, 2 * n);
      for (int k = 1; k <= n; ++k) body += strf("(%s)(%s.limit%d), ", "unsigned", L.c_str(), k);
      for (int k = 1; k <= n; ++k) body += strf("(%s)(%s.limit%d)%s", "unsigned", R.c_str(), k, k < n ? ", " : ");");
    }
    if (nested) {
      Release release(symbols_, counter, body, false);
      walker.walk(la.sym, "", L, 1, release, body);
    }
    appendf(body, "\n   %s = sizeof(%s)", t.c_str(), emitter.c_type(la.sym).c_str());
    for (int k = 1; k <= n; ++k) body += strf(" * %s.limit%d", L.c_str(), k);
    appendf(body, ";\n   memcpy(%s.ptr, %s.ptr, %s);", L.c_str(), R.c_str(), t.c_str());
    if (n == 1) body += strf("\n   %s.occurs = %s.occurs;", L.c_str(), R.c_str());
    if (nested && move) {
      Empty empty(symbols_, counter, body);
      walker.walk(ra.sym, "", R, 1, empty, body);
    } else if (nested) {
      copy_flag();
      DeepCopy copy(symbols_, emitter, counter, body, flag, bytes, 0);
      walker.walk_pair(la.sym, "", L, "", R, 1, copy, body);
      appendf(out, "\n%s = 1;", flag.c_str());
    }
    appendf(out, "\nif(&(%s) != &(%s)) {%s\n}", L.c_str(), R.c_str(), body.c_str());
  } else {
    // A structure is copied whole; what it nests is then made its own.
    int tag = la.tag;
    bool nested = nests_varspace(symbols_, tag);
    std::string body;
    if (nested) {
      Release release(symbols_, counter, body, false);
      walker.walk_structure(tag, L, "", 1, release, body);
    }
    appendf(body, "\n   %s = %s;", L.c_str(), R.c_str());
    if (symbols_[tag].vf_flags[1] == 'y') {
      Repoint repoint(symbols_, counter, body);
      walker.walk_structure(tag, L, "", 1, repoint, body);
    }
    if (nested && move) {
      Empty empty(symbols_, counter, body);
      walker.walk_structure(tag, R, "", 1, empty, body);
    } else if (nested) {
      copy_flag();
      DeepCopy copy(symbols_, emitter, counter, body, flag, bytes, 0);
      walker.walk_structure(tag, L, R, 1, copy, body);
      appendf(out, "\n%s = 1;", flag.c_str());
    }
    appendf(out, "\nif(&(%s) != &(%s)) {%s\n}", L.c_str(), R.c_str(), body.c_str());
  }
  if (copies) out += strf("\nif(!%s) {", flag.c_str()) + memory_failure(position, "   ") + "\n}";
  e.code += out;
  finish_assignment(left, false, false);
}

// ---- = 0 --------------------------------------------------------------------------------------

void Translator::zero_assignment(int left, bool reported, int line) {
  Operand& l = operand(left);
  auto fail = [&](const std::string& text) {
    if (!reported) diag_.error(line, text);
    reported = true;
  };
  Aggregate a;
  std::string out;
  if (!reported && !aggregate_of(l, a)) fail("'=' : the operands have incompatible types");
  if (!reported && l.dims > 0) {
    int element = symbols_.resolve_type(symbols_[a.sym].type_sym);
    if (element && symbols_[element].name_is == 's' && !symbols_[element].vf.empty()) {
      fail("'=' : a space whose element type contains at least one space cannot be zeroed");
    } else {
      appendf(out, "\nif(%s.limit1)\n   memset(%s.ptr, 0,sizeof(%s)", a.text.c_str(), a.text.c_str(),
                  decl_.emitter().c_type(a.sym).c_str());
      for (int k = 1; k <= a.dims; ++k) out += strf("* %s.limit%d", a.text.c_str(), k);
      out += ");";
    }
  } else if (!reported) {
    // One line per scalar member, through nested structures.
    struct Work {
      int tag;
      std::string path;
    };
    std::vector<Work> work{{a.tag, a.text}};
    std::vector<std::string> lines;
    while (!work.empty()) {
      Work w = work.back();
      work.pop_back();
      std::vector<Work> inner;
      for (int m = w.tag + 1; m < symbols_[w.tag].body_end && m < symbols_.count(); ++m) {
        const Symbol& ms = symbols_[m];
        if (ms.owner != w.tag || ms.name_class != 'c' || ms.dim_count() > 0) continue;
        int t = symbols_.resolve_type(ms.type_sym);
        std::string path = w.path + "." + c_name(ms.name);
        if (t && symbols_[t].name_is == 's')
          inner.push_back({t, path});
        else
          lines.push_back(strf("\n%s = 0%s;", path.c_str(), ""));
      }
      // Members in order: the nested structures' lines where they stand.
      for (auto it = inner.rbegin(); it != inner.rend(); ++it) work.push_back(*it);
    }
    if (lines.empty())
      fail("'=' : in the structure type of the left operand there are no scalar variables to zero");
    for (const std::string& s : lines) out += s;
  }
  Operand ro = pop_operand();
  Operand& e = operand(left);
  e.code.rewrite_written();
  e.code += std::move(ro.code);
  if (!reported) e.code += out;
  finish_assignment(left, reported, false);
}

// ---- free --------------------------------------------------------------------------------------

void Translator::free_reference(const Token& keyword) {
  ensure_operands(1, keyword.line);
  Operand& e = top();
  std::string out;
  if (!e.reported) {
    const char* refused =
        "is not a varspace or one-dimensional fixed-space, and does not contain a varspace or one-dimensional "
        "fixed-space";
    if (!e.ref || !e.ref->finished) {
      report(e, strf("invalid free: the variable being freed %s", refused));
    } else if (e.ref->subscripted > 0) {
      std::string base = e.ref->written.substr(0, e.ref->written.find_first_of("[."));
      report(e, strf("invalid free: to free '%s', do not subscript '%s'", base.c_str(), base.c_str()));
    } else {
      const Reference& r = *e.ref;
      const Symbol& s = symbols_[r.sym];
      int t = symbols_.resolve_type(s.type_sym);
      bool holds = t && symbols_[t].name_is == 's' && (symbols_[t].vf_flags[0] == 'y' || symbols_[t].vf_flags[2] == 'y');
      bool eligible = s.is_var == 'y' || (s.dim_count() == 1) || holds;
      if (!eligible) {
        report(e, strf("invalid free: '%s' %s", r.written.c_str(), refused));
      } else if (diag_.errors == 0) {
        SpaceWalker walker(symbols_, names_);
        Release release(symbols_, [this](int depth) { return walk_counter(depth); }, out, true);
        walker.walk(r.sym, s.dim_count() > 0 ? "" : r.object, r.record, 0, release, out);
        // The space itself: a varspace was released by the walk, a fixed one is emptied.
        if (s.is_var == 'n' && s.dim_count() == 1) out += strf("\n%s.occurs = 0;", r.record.c_str());
      }
    }
  }
  e.code += out;
  e.ref.reset();
  e.value.clear();
  e.empty = true;
  e.aggregate_assigned = true;
  e.emit = false;
  e.dims = 0;
  e.kind = 0;
  e.type_bits = 0;
}

}  // namespace ycc
