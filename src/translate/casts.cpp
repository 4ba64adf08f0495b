// Casted character spaces: a value stored into, or loaded from, the bytes of
// a character space. A plain value moves in one transfer (memcpy, or a typed
// store or load with /U). A structure that holds varspaces moves as a
// sequence through a running pointer: its own bytes, then for each varspace
// its record and its elements; loading gives each varspace a block of its
// own and tests every step against the space's occurs.
#include "common/text.h"
#include "decl/type_keywords.h"
#include "translate/translator.h"
#include "translate/walks.h"

namespace ycc {

namespace {

// The varspaces of a structure value, in walk order; a structure that holds
// them only inside the elements of spaces cannot be sent as one sequence.
class Collect : public SpaceWalker::Visitor {
 public:
  explicit Collect(const SymbolTable& symbols) : symbols_(symbols) {}
  bool visit_elements(const SpaceWalker::Part&) override {
    loops = true;
    return false;
  }
  std::string loop_bound(const SpaceWalker::Part&, int) override { return "0"; }
  std::string loop_counter(int) override { return "0"; }
  void varspace(const SpaceWalker::Part& p) override { parts.push_back({p.sym, p.record}); }
  void fixed_member(const SpaceWalker::Part& p) override { fixed.push_back({p.sym, p.record}); }
  struct Item {
    int sym;
    std::string record;
  };
  std::vector<Item> parts, fixed;
  bool loops = false;

 private:
  const SymbolTable& symbols_;
};

}  // namespace

void Translator::cast_assignment(int left, bool reported, int line) {
  Operand& l = operand(left);
  Operand& r = operand(left + 1);
  bool store = l.casted;
  Operand& c = store ? l : r;  // the casted character space
  Operand& v = store ? r : l;  // the value stored or loaded
  const char* cside = store ? "left" : "right";
  const char* vside = store ? "right" : "left";
  auto fail = [&](const std::string& text) {
    if (!reported) diag_.error(line, text);
    reported = true;
  };
  std::string type;
  if (c.kind == 's')
    type = "struct " + decl_.emitter().tag_name(c.type_sym);
  else if (c.kind == 'e')
    type = "enum " + decl_.emitter().tag_name(c.type_sym);
  else
    type = type_words(c.type_bits);
  if (v.partial) {
    fail(strf("'=' : when assigning %s a casted character space, the %s operand cannot be a partially elided space",
              store ? "to" : "from", vside));
  } else if (v.dims > 0) {
    // A cast type names one value, never a space.
    fail(strf("'=' : the %d dimension%s of the %s operand's casted type is incompatible with the %s operand's %d "
              "dimension%s",
              0, "s", cside, vside, v.dims, v.dims == 1 ? "" : "s"));
  } else if (c.kind == 's' || v.kind == 's') {
    if (c.kind != v.kind || c.type_sym != v.type_sym)
      fail(strf("'=' : the %s operand's casted type is incompatible with the %s operand's type", cside, vside));
  } else if (c.kind == 'e' || v.kind == 'e' || v.kind == 'c') {
    if (c.kind == 'e' && is_enum(v)) {
      if (c.type_sym != v.type_sym) fail("'=' : the operands have incompatible enumeration types");
    } else {
      fail(strf("'=' : the %s operand's casted type is incompatible with the %s operand's type", cside, vside));
    }
  } else if (!c.type_bits || !v.type_bits || is_function(v)) {
    fail(strf("'=' : the %s operand's casted type is incompatible with the %s operand's type", cside, vside));
  } else {
    bool lenient = v.literal && is_floating(c.type_bits) == is_floating(v.type_bits);
    if (!lenient && !sufficiently_equivalent(c.type_bits, v.type_bits))
      fail(strf("'=' : the %s operand's casted arithmetic type '%s' is not sufficiently equivalent to the %s "
                "operand's arithmetic type '%s'",
                cside, type_words(c.type_bits).c_str(), vside, type_words(v.type_bits).c_str()));
  }
  fn().cast_assigned = true;
  if (reported) {
    join_popped(left);
    finish_assignment(left, true, false);
    return;
  }
  if (v.kind == 's' && !symbols_[v.type_sym].vf.empty()) {
    cast_sequence(left, store, type, line);
    return;
  }
  // The length of the cast object reaches the checks through "##x".
  std::string minus_one = generated("added_length_minus_one");
  c.code.insert_at_x(strf("\n%s = sizeof(%s) - 1;", minus_one.c_str(), type.c_str()));
  std::string cv = c.value, vv = v.value;
  Operand ro = pop_operand();
  Operand& e = operand(left);
  e.code.rewrite_written();
  e.code += std::move(ro.code);
  if (store && !v.lvalue) {
    // memcpy needs the value's address.
    std::string t = c.kind ? temporary(4) : temporary(c.type_bits);
    if (c.kind == 's') t.clear();
    if (!t.empty()) {
      appendf(e.code, "\n%s = %s;", t.c_str(), vv.c_str());
      vv = t;
    }
  }
  appendf(e.code, "\nadded_length = sizeof(%s);", type.c_str());
  if (!options_.unaligned)
    e.code += store ? strf("\nmemcpy(&(%s), &(%s), sizeof(%s));", cv.c_str(), vv.c_str(), type.c_str())
                    : strf("\nmemcpy(&(%s), &(%s), sizeof(%s));", vv.c_str(), cv.c_str(), type.c_str());
  else
    e.code += store ? strf("\n*((%s *)(&(%s))) = %s;", type.c_str(), cv.c_str(), vv.c_str())
                    : strf("\n%s = *((%s *)(&(%s)));", vv.c_str(), type.c_str(), cv.c_str());
  finish_assignment(left, false, false);
}


void Translator::cast_sequence(int left, bool store, const std::string& type, int line) {
  Operand& c = store ? operand(left) : operand(left + 1);
  Operand& v = store ? operand(left + 1) : operand(left);
  int tag = v.type_sym;
  SpaceWalker walker(symbols_, names_);
  Collect collect(symbols_);
  std::string ignored;
  walker.walk_structure(tag, v.value, "", 0, collect, ignored);
  if (collect.loops || diag_.errors > 0) {
    if (collect.loops && !v.reported)
      diag_.error(line, "'=' : a value whose spaces lie inside the elements of spaces cannot pass through a casted "
                        "character space");
    join_popped(left);
    finish_assignment(left, true, false);
    return;
  }
  const Emitter& emitter = decl_.emitter();
  std::string ccs = generated("ccs_ptr");
  if (!fn().ccs_declared) {
    fn().ccs_declared = true;
    add_local(strf("\nchar *%s;", ccs.c_str()));
  }
  auto meta = [&](int sym) { return "struct " + names_.meta_type(symbols_[sym].dim_count()); };
  auto bytes = [&](int sym, const std::string& rec) {
    std::string b = "sizeof(" + emitter.c_type(sym) + ")";
    const Symbol& s = symbols_[sym];
    if (s.dim_count() == 1) return b + " * " + rec + (store ? ".occurs" : ".limit1");
    for (int k = 1; k <= s.dim_count(); ++k) b += strf(" * %s.limit%d", rec.c_str(), k);
    return b;
  };
  std::string minus_one = generated("added_length_minus_one");
  std::string element = c.value, record = c.cast_record;
  std::string value = v.value;
  bool u = options_.unaligned;
  std::string t;
  if (store) {
    // The whole sequence must fit: its length reaches the checks through "##x".
    std::string total = "sizeof(" + type + ")";
    for (const auto& p : collect.parts) total += " + sizeof(" + meta(p.sym) + ") + " + bytes(p.sym, p.record);
    c.code.insert_at_x(strf("\n%s = %s - 1;", minus_one.c_str(), total.c_str()));
    appendf(t, "\n%s = &(%s);", ccs.c_str(), element.c_str());
    t += u ? strf("\n*((%s *)%s) = %s;", type.c_str(), ccs.c_str(), value.c_str())
           : strf("\nmemcpy(%s, &(%s), sizeof(%s));", ccs.c_str(), value.c_str(), type.c_str());
    appendf(t, "\n%s += sizeof(%s);", ccs.c_str(), type.c_str());
    for (const auto& p : collect.parts) {
      const char* r = p.record.c_str();
      std::string m = meta(p.sym);
      t += u ? strf("\n*((%s *)%s) = %s;", m.c_str(), ccs.c_str(), r)
             : strf("\nmemcpy(%s, &(%s), sizeof(%s));", ccs.c_str(), r, m.c_str());
      appendf(t, "\n%s += sizeof(%s);", ccs.c_str(), m.c_str());
      std::string b = bytes(p.sym, p.record);
      appendf(t, "\nif(%s.limit1 > 0)\n   memcpy(%s, %s.ptr, %s);", r, ccs.c_str(), r, b.c_str());
      appendf(t, "\n%s += %s;", ccs.c_str(), b.c_str());
    }
  } else {
    // The value's own bytes first; each later step is tested as it is taken.
    c.code.insert_at_x(strf("\n%s = sizeof(%s) - 1;", minus_one.c_str(), type.c_str()));
    Release release(symbols_, [this](int depth) { return walk_counter(depth); }, t, false);
    walker.walk_structure(tag, value, "", 0, release, t);
    std::string flag = temporary(4);
    std::string end = strf("((char *)(%s.ptr)) + %s.occurs", record.c_str(), record.c_str());
    std::string report;
    if (options_.bounds_checks)
      report = ws_.check_marker('s', line) +
               strf("\n   %s(\"%s\", %d, 2, (%s)(%s - (char *)(%s.ptr)), (%s)(%s.occurs));",
                    support_.bounds_exceeded().c_str(),
                    c_string_text("\n extracting from the casted character space up to subscript").c_str(),
                    support_.position(line), "unsigned", ccs.c_str(), record.c_str(), "unsigned", record.c_str());
    appendf(t, "\n%s = 1;", flag.c_str());
    appendf(t, "\n%s = &(%s);", ccs.c_str(), element.c_str());
    t += u ? strf("\n%s = *((%s *)%s);", value.c_str(), type.c_str(), ccs.c_str())
           : strf("\nmemcpy(&(%s), %s, sizeof(%s));", value.c_str(), ccs.c_str(), type.c_str());
    appendf(t, "\n%s += sizeof(%s);", ccs.c_str(), type.c_str());
    for (const auto& p : collect.parts) {
      const char* r = p.record.c_str();
      const Symbol& s = symbols_[p.sym];
      std::string m = meta(p.sym);
      std::string stored = strf("((%s *)(%s - sizeof(%s)))", m.c_str(), ccs.c_str(), m.c_str());
      if (options_.bounds_checks) t += strf("\nif((%s += sizeof(%s)) > %s)", ccs.c_str(), m.c_str(), end.c_str()) + report;
      else t += strf("\n%s += sizeof(%s);", ccs.c_str(), m.c_str());
      // The record's description, not its pointer: the elements follow it.
      if (s.dim_count() == 1) {
        t += u ? strf("\n%s.occurs = %s->occurs;", r, stored.c_str())
               : strf("\nmemcpy(&(%s.occurs), &(%s->occurs), sizeof(%s));", r, stored.c_str(), "unsigned");
        appendf(t, "\n%s.limit1 = %s.occurs;", r, r);
      } else {
        for (int k = 1; k <= s.dim_count(); ++k)
          t += u ? strf("\n%s.limit%d = %s->limit%d;", r, k, stored.c_str(), k)
                 : strf("\nmemcpy(&(%s.limit%d), &(%s->limit%d), sizeof(%s));", r, k, stored.c_str(), k, "unsigned");
      }
      std::string b = bytes(p.sym, p.record);
      if (options_.bounds_checks) t += strf("\nif((%s += %s) > %s)", ccs.c_str(), b.c_str(), end.c_str()) + report;
      else t += strf("\n%s += %s;", ccs.c_str(), b.c_str());
      std::string chain;
      if (s.dim_count() == 1) chain += strf("%s.occurs = ", r);
      for (int k = 1; k <= s.dim_count(); ++k) chain += strf("%s.limit%d = %s", r, k, k < s.dim_count() ? "" : "0;");
      appendf(t, "\n%s.ptr = NULL;\nif(%s.limit1 > 0) {", r, r);
      appendf(t, "\n   %s.ptr = malloc(%s);\n   if(%s.ptr == NULL)\n      %s = %s", r, b.c_str(), r, flag.c_str(),
                chain.c_str());
      appendf(t, "\n   else\n      memcpy(%s.ptr, %s - (%s), %s);\n}", r, ccs.c_str(), b.c_str(), b.c_str());
    }
    Repoint repoint(symbols_, [this](int depth) { return walk_counter(depth); }, t);
    walker.walk_structure(tag, value, "", 0, repoint, t);
    appendf(t, "\nif(!%s) {%s\n}", flag.c_str(), memory_failure(support_.position(line), "   ").c_str());
  }
  appendf(t, "\nadded_length = %s - &(%s);", ccs.c_str(), element.c_str());
  fn().cast_assigned = true;
  Operand ro = pop_operand();
  Operand& e = operand(left);
  e.code.rewrite_written();
  e.code += std::move(ro.code);
  e.code += t;
  finish_assignment(left, false, false);
}

}  // namespace ycc
