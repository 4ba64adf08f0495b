#include "common/c_names.h"
#include "decl/emit.h"

#include <algorithm>

#include "common/text.h"
#include "decl/library_table.h"
#include "decl/type_keywords.h"

namespace ycc {

int Emitter::body_end(int sub) const {
  int end = symbols_[sub].body_end;
  return end > sub && end <= symbols_.count() ? end : symbols_.count();
}

std::string Emitter::function_name(int sub) const {
  const std::string& n = symbols_[sub].name;
  return find_library_function(n) >= 0 ? "_yc__" + n : c_name(n);
}

std::string Emitter::element_type(int sub) const {
  const Symbol& s = symbols_[sub];
  int t = symbols_.resolve_type(s.type_sym);
  int bits = symbols_.type_bits_of(sub);
  if (t) {
    switch (symbols_[t].name_is) {
      case 's': return "struct " + tag_name(t);
      case 'e': return "enum " + tag_name(t);
      default: break;
    }
  }
  return type_words(bits);
}

std::string Emitter::fun_pointer(int fun, const std::string& name) const {
  std::string t = "void (*" + name + ") (void *[]";
  // A fun type's parameters, or a prototype's.
  for (int p = fun + 1; p < symbols_.count() && symbols_[p].owner == fun; ++p)
    if (symbols_[p].p_or_r == 'a' || symbols_[p].p_or_r == 'p') t += ", " + parameter(p, false);
  if (symbols_[fun].ellipsis == 'y') t += ", ...";
  return t + ")";
}

std::string Emitter::parameter(int sub, bool with_name) const {
  const Symbol& s = symbols_[sub];
  std::string name = with_name && !s.anonymous() ? c_name(s.name) : "";
  auto join = [&](const std::string& type) { return name.empty() ? type : type + " " + name; };
  if (s.role[0] == 'a') return join("void *");
  if (s.dim_count() > 0) return "struct " + names_.meta_type(s.dim_count()) + " *" + name;
  int t = symbols_.resolve_type(s.type_sym);
  if (t && symbols_[t].name_is == 's') return "struct " + tag_name(t) + " *" + name;
  if (t && symbols_[t].name_is == 'n') return fun_pointer(t, name);
  return join(element_type(sub));
}

std::string Emitter::c_type(int sub) const {
  int t = symbols_.resolve_type(symbols_[sub].type_sym);
  if (t && symbols_[t].name_is == 'n') return fun_pointer(t, "");
  return element_type(sub);
}

std::string Emitter::pointer_type(int sub) const {
  int t = symbols_.resolve_type(symbols_[sub].type_sym);
  if (t && symbols_[t].name_is == 'n') return fun_pointer(t, "*");
  return element_type(sub) + " *";
}

std::string Emitter::declaration_named(int sub, const std::string& name) const {
  const Symbol& s = symbols_[sub];
  if (s.is_var == 'y') return "struct " + names_.meta_type(s.dim_count()) + " " + name + " = {NULL};";
  int t = symbols_.resolve_type(s.type_sym);
  if (t && symbols_[t].name_is == 'n') return fun_pointer(t, name) + ";";
  return element_type(sub) + " " + name + ";";
}

std::string Emitter::file_level_type(int sub, std::vector<int>& copied, std::string& type) {
  hoisting_ = true;
  type = c_type(sub);
  std::string text;
  int root = symbols_.resolve_type(symbols_[sub].type_sym);
  // Post-order over the local tags the element type reaches through its members.
  std::vector<std::pair<int, bool>> work;
  if (root && symbols_[root].local) work.push_back({root, false});
  while (!work.empty()) {
    auto [tag, expanded] = work.back();
    work.pop_back();
    int serial = symbols_[tag].serial;
    if (std::find(copied.begin(), copied.end(), serial) != copied.end()) continue;
    if (!expanded) {
      work.push_back({tag, true});
      if (symbols_[tag].name_is == 's')
        for (int m = tag + 1; m < body_end(tag); ++m) {
          int t = symbols_.resolve_type(symbols_[m].type_sym);
          if (symbols_[m].owner == tag && t && symbols_[t].local) work.push_back({t, false});
        }
      continue;
    }
    copied.push_back(serial);
    std::string saved;
    saved.swap(ws_.wd_locals);
    bool was_into = into_locals_;
    int was_indent = locals_indent_;
    into_locals_ = true;
    locals_indent_ = 0;
    if (symbols_[tag].name_is == 's') emit_struct(tag);
    if (symbols_[tag].name_is == 'e') emit_enum(tag);
    text += ws_.wd_locals;
    ws_.wd_locals.swap(saved);
    into_locals_ = was_into;
    locals_indent_ = was_indent;
  }
  hoisting_ = false;
  return text;
}

std::string Emitter::variable_text(int sub, bool member, bool local) const {
  const Symbol& s = symbols_[sub];
  bool is_extern = s.storage & STORAGE_EXTERN;
  std::string t;
  if (s.storage & STORAGE_STATIC) t += "static ";
  if (is_extern) t += "extern ";
  if (s.is_var == 'y') {
    t += "struct " + names_.meta_type(s.dim_count()) + " " + c_name(s.name);
    if (!is_extern && !member) t += " = {NULL}";
    return t + ";";
  }
  std::string dims;
  for (const Dimension& d : s.dims)
    dims += d.size ? strf("[%d]", d.size) : (is_extern ? std::string("[2]") : std::string("[]"));
  int f = symbols_.resolve_type(s.type_sym);
  // An array of function pointers: the dimensions go inside the declarator.
  if (f && symbols_[f].name_is == 'n')
    t += fun_pointer(f, c_name(s.name) + dims);
  else
    t += element_type(sub) + " " + c_name(s.name) + dims;
  // A structure with fixed-space members gets their companions in its
  // initializer when it has one or when it has static storage; a local
  // without initializer sets them up in its init code.
  std::string init = member ? std::string() : s.init_text;
  int tag = symbols_.resolve_type(s.type_sym);
  bool companions = tag && symbols_[tag].name_is == 's' && symbols_[tag].vf_flags[1] == 'y' && !member &&
                    !is_extern && (!init.empty() || !local || (s.storage & STORAGE_STATIC));
  if (companions) {
    std::string designators = companion_designators(sub);
    if (init.empty())
      init = "{" + designators + "}";
    else
      init = init.substr(0, init.size() - 1) + ", " + designators + "}";
  }
  if (!init.empty()) t += " = " + init;
  return t + ";";
}

std::string Emitter::companion_designators(int sub) const {
  const Symbol& v = symbols_[sub];
  std::string out;
  // Every element of a space of structures, then each structure's members.
  struct Work {
    int tag;
    std::string path;  // designator path from the variable
  };
  std::vector<Work> work;
  auto add_elements = [&](const std::vector<Dimension>& dims, int tag, const std::string& path) {
    size_t total = 1;
    for (const Dimension& d : dims) total *= static_cast<size_t>(d.size > 0 ? d.size : 1);
    for (size_t flat = total; flat-- > 0;) {
      std::string index;
      size_t rest = flat;
      for (size_t k = dims.size(); k-- > 0;) {
        size_t size = static_cast<size_t>(dims[k].size > 0 ? dims[k].size : 1);
        index = "[" + std::to_string(rest % size) + "]" + index;
        rest /= size;
      }
      work.push_back({tag, path + index});
    }
  };
  int root = symbols_.resolve_type(v.type_sym);
  if (v.dim_count() > 0)
    add_elements(v.dims, root, "");
  else
    work.push_back({root, ""});
  while (!work.empty()) {
    Work w = work.back();
    work.pop_back();
    for (int m : symbols_[w.tag].vf) {
      const Symbol& ms = symbols_[m];
      if (ms.is_var == 'y') continue;
      std::string path = w.path + "." + c_name(ms.name);
      int t = symbols_.resolve_type(ms.type_sym);
      bool nests = t && symbols_[t].name_is == 's' && symbols_[t].vf_flags[1] == 'y';
      if (ms.dim_count() == 0) {
        if (nests) work.push_back({t, path});
        continue;
      }
      if (nests) add_elements(ms.dims, t, path);
      int occurs = 0;
      for (const auto& [at, n] : v.member_occurs)
        if (at == path) occurs = n;
      if (!out.empty()) out += ", ";
      appendf(out, "%s.%s = {(void *)%s%s", w.path.c_str(), names_.companion(ms.name).c_str(), c_name(v.name).c_str(),
                  path.c_str());
      if (ms.dim_count() == 1) out += strf(",%d", occurs);
      for (const Dimension& d : ms.dims) out += strf(",%d", d.size);
      out += "}";
    }
  }
  return out;
}

std::string Emitter::companion_text(int sub, bool member, bool local, int initial_occurs) const {
  const Symbol& s = symbols_[sub];
  bool is_extern = s.storage & STORAGE_EXTERN;
  bool is_static = s.storage & STORAGE_STATIC;
  std::string t;
  if (is_static) t += "static ";
  if (is_extern) t += "extern ";
  appendf(t, "struct %s %s_%s", names_.meta_type(s.dim_count()).c_str(), names_.prefix().c_str(), s.name.c_str());
  if (!is_extern && !member) {
    t += local && !is_static ? std::string(" = {NULL") : " = {(void *)" + c_name(s.name);
    if (s.dim_count() == 1) t += strf(",%d", initial_occurs);
    for (const Dimension& d : s.dims) t += strf(",%d", d.size);
    t += "}";
  }
  return t + ";";
}

void Emitter::out(char newline_bgn, const std::string& text) {
  if (!into_locals_) {
    ws_.put_text(newline_bgn, text);
    return;
  }
  if (newline_bgn == 'y') ws_.wd_locals += "\n" + std::string(static_cast<size_t>(locals_indent_), ' ');
  ws_.wd_locals += text;
}

void Emitter::in() {
  if (into_locals_)
    locals_indent_ += 3;
  else
    ws_.indent_in();
}

void Emitter::out_dent() {
  if (into_locals_)
    locals_indent_ = locals_indent_ >= 3 ? locals_indent_ - 3 : 0;
  else
    ws_.indent_out();
}

void Emitter::emit_struct(int sub) {
  out('n', "\nstruct " + tag_name(sub) + " {");
  in();
  for (int m = sub + 1; m < body_end(sub); ++m) {
    const Symbol& s = symbols_[m];
    if (s.owner != sub || s.name_class != 'c') continue;
    ws_.note_dimensions(s.dim_count());
    out('y', variable_text(m, true, false));
    if (s.dim_count() > 0 && s.is_var == 'n') out('y', companion_text(m, true, false, 0));
  }
  out_dent();
  out('y', "};\n");
}

void Emitter::emit_enum(int sub) {
  out('n', "\nenum " + tag_name(sub) + " {");
  in();
  // The constants are numbered from 1: 0 stays free as the "no value" of every enumeration.
  int number = 0;
  std::string pending;
  for (int c = sub + 1; c < body_end(sub); ++c) {
    const Symbol& s = symbols_[c];
    if (s.owner != sub || s.name_is != 'c') continue;
    if (!pending.empty()) out('y', pending + ",");
    pending = c_name(s.name) + strf(" = %d", ++number);
  }
  if (!pending.empty()) out('y', pending);
  out_dent();
  out('y', "};\n");
}

void Emitter::emit_tag(int sub) {
  // The flag lives in the record: a block's numbers are reused, its records are not.
  if (symbols_[sub].emitted) return;
  symbols_[sub].emitted = true;
  const Symbol& s = symbols_[sub];
  if (s.error_flags || s.complete == 'n') return;
  // Tags declared inside a structure's body stand before it in C.
  for (int inner = sub + 1; inner < body_end(sub); ++inner)
    if (symbols_[inner].owner == sub && symbols_[inner].name_class == 'g') emit_tag(inner);
  if (s.name_is == 's') emit_struct(sub);
  if (s.name_is == 'e') emit_enum(sub);
}

void Emitter::external_declaration(int first) {
  bool any = false;
  for (int sub = first; sub < symbols_.count(); ++sub) {
    const Symbol& s = symbols_[sub];
    if (s.error_flags) continue;
    bool tag = s.name_class == 'g' && (s.name_is == 's' || s.name_is == 'e') && s.complete == 'y';
    bool variable = s.name_class == 'o' && s.name_is == 'v';
    if (!tag && !variable) continue;
    if (!any) ws_.start_output();
    any = true;
    if (tag) {
      emit_tag(sub);
      continue;
    }
    ws_.put_text('y', variable_text(sub, false, false));
    if (s.dim_count() > 0 && s.is_var == 'n')
      ws_.put_text('y', companion_text(sub, false, false, s.initial_occurs));
    ws_.note_dimensions(s.dim_count());
  }
  if (any) ws_.note_emitted();
}

void Emitter::local_declaration(int sub, bool nested) {
  const Symbol& s = symbols_[sub];
  if (s.error_flags) return;
  if (s.name_is == 's' || s.name_is == 'e') {
    // The definition stands with the locals, before the variables of its type.
    if (nested) {
      ws_.open_block_brace();
      emit_tag(sub);
      return;
    }
    into_locals_ = true;
    emit_tag(sub);
    into_locals_ = false;
    return;
  }
  if (s.name_is != 'v' || s.name_class != 'o') return;
  ws_.note_dimensions(s.dim_count());
  std::string decl = variable_text(sub, false, true);
  bool fixed = s.dim_count() > 0 && s.is_var == 'n';
  std::string companion = fixed ? companion_text(sub, false, true, s.initial_occurs) : "";
  std::string init;
  if (fixed && !(s.storage & (STORAGE_STATIC | STORAGE_EXTERN)))
    init = strf("\n%s_%s.ptr = %s;", names_.prefix().c_str(), s.name.c_str(), c_name(s.name).c_str());
  if (s.is_var == 'n' && !(s.storage & (STORAGE_STATIC | STORAGE_EXTERN)))
    walk_varspaces(sub, c_name(s.name), companion_name(sub), false, init);
  if (!nested) {
    ws_.wd_locals += "\n" + decl;
    if (fixed) ws_.wd_locals += "\n" + companion;
    ws_.wd_init_code += init;
    return;
  }
  ws_.open_block_brace();
  ws_.put_text('y', decl);
  if (fixed) ws_.put_text('y', companion);
  if (!init.empty()) ws_.put_text('n', init);
}

bool Emitter::takes_direct_form(int f, const std::vector<int>& params) const {
  const Symbol& fs = symbols_[f];
  if (!ws_.options().direct_calls || fs.ellipsis == 'y' || find_library_function(fs.name) >= 0) return false;
  return std::none_of(params.begin(), params.end(), [&](int p) { return symbols_[p].anonymous(); });
}

std::string Emitter::direct_name(int sub) const {
  std::string name = function_name(sub);
  return direct_.count(name) ? names_.generated("direct_" + name) : std::string();
}

void Emitter::function_heading(int f, bool definition) {
  const Symbol& fs = symbols_[f];
  std::string storage = fs.storage & STORAGE_STATIC ? "static " : "";
  std::string h = storage + "void " + function_name(f) + "(void *" + names_.generated("return_ptr") + "[]";
  std::vector<int> params, returns;
  for (int p = f + 1; p < symbols_.count() && symbols_[p].owner == f; ++p) {
    if (symbols_[p].p_or_r == 'p') params.push_back(p);
    if (symbols_[p].p_or_r == 'r') returns.push_back(p);
  }
  bool element_size = fs.name == "qsort" || fs.name == "bsearch";
  std::string list;
  for (size_t i = 0; i < params.size(); ++i) {
    list += ", " + parameter(params[i], true);
    if (element_size && i + 3 == params.size()) list += ", unsigned";
  }
  if (fs.ellipsis == 'y') list += ", ...";
  h += list;
  if (!definition) {
    ws_.start_output();
    ws_.put_text('y', h + ");");
    ws_.note_emitted();
    return;
  }
  ws_.start_output();
  direct_function_ = takes_direct_form(f, params);
  if (direct_function_) {
    // The direct form: one pointer argument per return variable, the
    // exception code as the value; calls made from here on may use it.
    std::string direct = names_.generated("direct_" + function_name(f));
    std::string d = "static int " + direct + "(";
    for (size_t i = 0; i < returns.size(); ++i)
      d += strf("%svoid *%s", i ? ", " : "", return_slot(static_cast<int>(i + 1)).c_str());
    d += returns.empty() ? (list.empty() ? std::string("void") : list.substr(2)) : list;
    ws_.put_text('n', "\n\n" + d + ")\n{");
    direct_.insert(function_name(f));
    wrapper_ = h + ")";
    wrapper_call_ = direct + "(";
    std::string ret = names_.generated("return_ptr");
    for (size_t i = 0; i < returns.size(); ++i)
      wrapper_call_ += strf("%s%s[%d]", i ? ", " : "", ret.c_str(), static_cast<int>(i + 1));
    for (size_t i = 0; i < params.size(); ++i)
      wrapper_call_ += (i || !returns.empty() ? ", " : "") + c_name(symbols_[params[i]].name);
    wrapper_call_ += ")";
  } else {
    ws_.put_text('n', "\n\n" + h + ")\n{");
  }
  ws_.note_emitted();
  ws_.start_function();
  walk_counters_ = 0;
  for (size_t i = 0; i < returns.size(); ++i) {
    const Symbol& r = symbols_[returns[i]];
    int t = symbols_.resolve_type(r.type_sym);
    bool is_struct = t && symbols_[t].name_is == 's';
    if (r.dim_count() > 0 || is_struct) {
      std::string type = r.dim_count() > 0 ? names_.meta_type(r.dim_count()) : tag_name(t);
      appendf(ws_.wd_locals, "\nstruct %s *%s = (struct %s *)%s;", type.c_str(), c_name(r.name).c_str(),
              type.c_str(), return_slot(static_cast<int>(i + 1)).c_str());
      if (r.dim_count() == 1) ws_.wd_init_code += strf("\n(*%s).occurs = 0;", c_name(r.name).c_str());
      if (is_struct) walk_varspaces(returns[i], "(*" + c_name(r.name) + ")", "", false, ws_.wd_init_code);
      ws_.note_dimensions(r.dim_count());
    } else {
      ws_.wd_locals += "\n" + variable_text(returns[i], false, true);
    }
  }
  appendf(ws_.wd_locals, "\nint %s = 0;", names_.generated("exception").c_str());
}

std::string Emitter::return_slot(int index) const {
  // The direct form has one argument per slot; the described form, the array.
  if (direct_function_) return names_.generated("return_ptr", index);
  return strf("%s[%d]", names_.generated("return_ptr").c_str(), index);
}

void Emitter::function_closing(int f) {
  // Composed whole and written once.
  std::string out = strf("\n\n%s: ;\n", names_.generated("finish").c_str());
  int index = 0;
  for (int p = f + 1; p < symbols_.count() && symbols_[p].owner == f; ++p) {
    const Symbol& r = symbols_[p];
    if (r.p_or_r != 'r') continue;
    ++index;
    int t = symbols_.resolve_type(r.type_sym);
    if (r.dim_count() > 0 || (t && symbols_[t].name_is == 's')) continue;
    if (t && symbols_[t].name_is == 'n')
      // A pointer to the caller's function pointer: "void (**) (...)".
      appendf(out, "\n*((%s)(%s)) = %s;", fun_pointer(t, "*").c_str(), return_slot(index).c_str(),
              c_name(r.name).c_str());
    else
      appendf(out, "\n*((%s *)(%s)) = %s;", element_type(p).c_str(), return_slot(index).c_str(),
              c_name(r.name).c_str());
  }
  block_frees(f + 1, out);
  // What the translation left for the exit (the blocks of call temporaries).
  out += ws_.function_exit;
  ws_.function_exit.clear();
  std::string exception = names_.generated("exception");
  if (!direct_function_) {
    appendf(out, "\n*((int *)(%s)) = %s;\n}\n", return_slot(0).c_str(), exception.c_str());
    ws_.put_text('n', out);
    return;
  }
  // The described form stays, for function pointers and other files.
  appendf(out, "\nreturn %s;\n}\n", exception.c_str());
  appendf(out, "\n\n%s\n{\n*((int *)(%s[0])) = %s;\n}\n", wrapper_.c_str(), names_.generated("return_ptr").c_str(),
          wrapper_call_.c_str());
  ws_.put_text('n', out);
  direct_function_ = false;
}

std::string Emitter::loop_counter(int depth) {
  std::string name = names_.generated("walk", depth + 1);
  if (depth + 1 > walk_counters_) {
    walk_counters_ = depth + 1;
    ws_.wd_locals += "\nunsigned " + name + ";";
  }
  return name;
}

namespace {

// Initialisation of fresh contained varspaces, or their release at block end.
class VarspaceWalk : public SpaceWalker::Visitor {
 public:
  VarspaceWalk(const SymbolTable& symbols, bool free, bool set_companions, std::function<std::string(int)> counter,
               std::string& out)
      : symbols_(symbols), free_(free), set_companions_(set_companions), counter_(std::move(counter)), out_(out) {}

  // A fresh varspace has no elements yet.
  bool visit_elements(const SpaceWalker::Part& p) override { return free_ || symbols_[p.sym].is_var != 'y'; }
  std::string loop_bound(const SpaceWalker::Part& p, int k) override {
    const Symbol& s = symbols_[p.sym];
    // A fixed-space member's sizes are the declared ones (its companion may not be set up yet).
    if (p.record.empty() || (s.is_var == 'n' && s.name_class == 'c'))
      return strf("%d", s.dims[static_cast<size_t>(k - 1)].size);
    if (s.dim_count() == 1 && free_) return p.record + ".occurs";
    return strf("%s.limit%d", p.record.c_str(), k);
  }
  std::string loop_counter(int depth) override { return counter_(depth); }
  void varspace(const SpaceWalker::Part& p) override {
    std::string indent = walk_indent(p.depth);
    const char* in = indent.c_str();
    const char* path = p.object.c_str();
    if (free_) {
      appendf(out_, "\n%sif(%s.limit1 > 0) {", in, path);
      appendf(out_, "\n%sfree(%s.ptr);", in, path);
      appendf(out_, "\n%s;}", in);
      return;
    }
    appendf(out_, "\n%s%s.ptr = %s;", in, path, "NULL");
    int dims = symbols_[p.sym].dim_count();
    if (dims == 1) out_ += strf("\n%s%s.occurs = 0;", in, path);
    for (int k = 1; k <= dims; ++k) out_ += strf("\n%s%s.limit%d = 0;", in, path, k);
  }
  // A fixed-space member's companion points at the member, with its sizes.
  void fixed_member(const SpaceWalker::Part& p) override {
    if (free_ || !set_companions_) return;
    std::string indent = walk_indent(p.depth);
    const Symbol& s = symbols_[p.sym];
    appendf(out_, "\n%s%s.ptr = %s;", indent.c_str(), p.record.c_str(), p.object.c_str());
    if (s.dim_count() == 1) out_ += strf("\n%s%s.occurs = 0;", indent.c_str(), p.record.c_str());
    for (int k = 1; k <= s.dim_count(); ++k)
      appendf(out_, "\n%s%s.limit%d = %d;", indent.c_str(), p.record.c_str(), k, s.dims[static_cast<size_t>(k - 1)].size);
  }

 private:
  const SymbolTable& symbols_;
  bool free_;
  bool set_companions_;
  std::function<std::string(int)> counter_;
  std::string& out_;
};

}  // namespace

// `object` designates the C object of `sub` (a variable, member or element);
// `meta` its meta record ("" for a plain structure).
void Emitter::walk_varspaces(int sub, const std::string& object, const std::string& meta, bool free,
                             std::string& out) {
  if (!walks_anything(sub)) return;
  // An initialized variable had its companions set by its initializer.
  bool set_companions = !free && symbols_[sub].init_text.empty();
  VarspaceWalk visit(symbols_, free, set_companions, [this](int depth) { return loop_counter(depth); }, out);
  walker_.walk(sub, object, meta, 0, visit, out);
}

void Emitter::free_block_varspaces(int first) {
  std::string out;
  block_frees(first, out);
  if (!out.empty()) ws_.put_text('n', out);
}

void Emitter::block_frees(int first, std::string& out) {
  for (int sub = first; sub < symbols_.count(); ++sub) {
    const Symbol& s = symbols_[sub];
    if (s.error_flags || s.name_is != 'v' || s.name_class != 'o' || s.p_or_r != 'n') continue;
    // Most locals hold no varspace: no names are composed for them.
    if (s.storage & (STORAGE_STATIC | STORAGE_EXTERN) || !walks_anything(sub)) continue;
    walk_varspaces(sub, c_name(s.name), s.is_var == 'y' ? c_name(s.name) : companion_name(sub), true, out);
  }
}

}  // namespace ycc
