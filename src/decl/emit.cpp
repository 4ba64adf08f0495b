#include "decl/emit.h"

#include "common/text.h"
#include "decl/library_table.h"
#include "decl/type_keywords.h"

namespace ycc {

std::string Emitter::generated(const char* word, int number) const {
  return number >= 1 ? strf("%s%s_%s%d", prefix_.c_str(), prefix_.c_str(), word, number)
                     : strf("%s%s_%s", prefix_.c_str(), prefix_.c_str(), word);
}

int Emitter::body_end(int sub) const {
  int end = symbols_[sub].body_end;
  return end > sub && end <= symbols_.count() ? end : symbols_.count();
}

std::string Emitter::companion_name(int sub) const {
  return prefix_ + "_" + symbols_[sub].name;
}

std::string Emitter::meta_type(int dims) const { return strf("%s%dD_meta", prefix_.c_str(), dims); }

std::string Emitter::tag_name(int sub) const {
  const Symbol& s = symbols_[sub];
  if (s.anonymous()) return strf("%s%d_tag", prefix_.c_str(), s.serial);
  return s.name;
}

std::string Emitter::function_name(int sub) const {
  const std::string& n = symbols_[sub].name;
  return find_library_function(n) >= 0 ? "_yc__" + n : n;
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
  for (int p = fun + 1; p < symbols_.count() && symbols_[p].owner == fun; ++p)
    if (symbols_[p].p_or_r == 'a') t += ", " + parameter(p, false);
  if (symbols_[fun].ellipsis == 'y') t += ", ...";
  return t + ")";
}

std::string Emitter::parameter(int sub, bool with_name) const {
  const Symbol& s = symbols_[sub];
  std::string name = with_name && !s.anonymous() ? s.name : "";
  auto join = [&](const std::string& type) { return name.empty() ? type : type + " " + name; };
  if (s.role[0] == 'a') return join("void *");
  if (s.dim_count() > 0) return "struct " + meta_type(s.dim_count()) + " *" + name;
  int t = symbols_.resolve_type(s.type_sym);
  if (t && symbols_[t].name_is == 's') return "struct " + tag_name(t) + " *" + name;
  if (t && symbols_[t].name_is == 'n') return fun_pointer(t, name);
  return join(element_type(sub));
}

std::string Emitter::variable_text(int sub, bool member, bool local) const {
  const Symbol& s = symbols_[sub];
  bool is_extern = s.storage & STORAGE_EXTERN;
  std::string t;
  if (s.storage & STORAGE_STATIC) t += "static ";
  if (is_extern) t += "extern ";
  if (s.is_var == 'y') {
    t += "struct " + meta_type(s.dim_count()) + " " + s.name;
    if (!is_extern && !member) t += " = {NULL}";
    return t + ";";
  }
  int f = symbols_.resolve_type(s.type_sym);
  if (f && symbols_[f].name_is == 'n')
    t += fun_pointer(f, s.name);
  else
    t += element_type(sub) + " " + s.name;
  for (const Dimension& d : s.dims)
    t += d.size ? strf("[%d]", d.size) : (is_extern ? std::string("[2]") : std::string("[]"));
  (void)local;
  if (!s.init_text.empty() && !member) t += " = " + s.init_text;
  return t + ";";
}

std::string Emitter::companion_text(int sub, bool member, bool local, int initial_occurs) const {
  const Symbol& s = symbols_[sub];
  bool is_extern = s.storage & STORAGE_EXTERN;
  bool is_static = s.storage & STORAGE_STATIC;
  std::string t;
  if (is_static) t += "static ";
  if (is_extern) t += "extern ";
  t += strf("struct %s %s_%s", meta_type(s.dim_count()).c_str(), prefix_.c_str(), s.name.c_str());
  if (!is_extern && !member) {
    t += local && !is_static ? std::string(" = {NULL") : " = {(void *)" + s.name;
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
    pending = strf("%s = %d", s.name.c_str(), ++number);
  }
  if (!pending.empty()) out('y', pending);
  out_dent();
  out('y', "};\n");
}

void Emitter::emit_tag(int sub) {
  if (static_cast<int>(emitted_.size()) <= sub) emitted_.resize(static_cast<size_t>(sub) + 1, 0);
  if (emitted_[static_cast<size_t>(sub)]) return;
  emitted_[static_cast<size_t>(sub)] = 1;
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
    init = strf("\n%s_%s.ptr = %s;", prefix_.c_str(), s.name.c_str(), s.name.c_str());
  if (s.is_var == 'n' && !(s.storage & (STORAGE_STATIC | STORAGE_EXTERN)))
    walk_varspaces(sub, s.name, companion_name(sub), false, init, 0);
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

void Emitter::function_heading(int f, bool definition) {
  const Symbol& fs = symbols_[f];
  std::string h;
  if (fs.storage & STORAGE_STATIC) h += "static ";
  h += "void " + function_name(f) + "(void *" + generated("return_ptr") + "[]";
  std::vector<int> params, returns;
  for (int p = f + 1; p < symbols_.count() && symbols_[p].owner == f; ++p) {
    if (symbols_[p].p_or_r == 'p') params.push_back(p);
    if (symbols_[p].p_or_r == 'r') returns.push_back(p);
  }
  bool element_size = fs.name == "qsort" || fs.name == "bsearch";
  for (size_t i = 0; i < params.size(); ++i) {
    h += ", " + parameter(params[i], true);
    if (element_size && i + 3 == params.size()) h += ", unsigned";
  }
  if (fs.ellipsis == 'y') h += ", ...";
  if (!definition) {
    ws_.start_output();
    ws_.put_text('y', h + ");");
    ws_.note_emitted();
    return;
  }
  ws_.start_output();
  ws_.put_text('n', "\n\n" + h + ")\n{");
  ws_.note_emitted();
  ws_.start_function();
  walk_counters_ = 0;
  std::string ret = generated("return_ptr");
  for (size_t i = 0; i < returns.size(); ++i) {
    const Symbol& r = symbols_[returns[i]];
    int t = symbols_.resolve_type(r.type_sym);
    bool is_struct = t && symbols_[t].name_is == 's';
    if (r.dim_count() > 0 || is_struct) {
      std::string type = r.dim_count() > 0 ? meta_type(r.dim_count()) : tag_name(t);
      ws_.wd_locals += strf("\nstruct %s *%s = (struct %s *)%s[%d];", type.c_str(), r.name.c_str(),
                            type.c_str(), ret.c_str(), static_cast<int>(i + 1));
      if (r.dim_count() == 1) ws_.wd_init_code += strf("\n(*%s).occurs = 0;", r.name.c_str());
      if (is_struct) walk_varspaces(returns[i], "(*" + r.name + ")", "", false, ws_.wd_init_code, 0);
      ws_.note_dimensions(r.dim_count());
    } else {
      ws_.wd_locals += "\n" + variable_text(returns[i], false, true);
    }
  }
  ws_.wd_locals += strf("\nint %s = 0;", generated("exception").c_str());
}

void Emitter::function_closing(int f) {
  std::string ret = generated("return_ptr");
  ws_.put_text('n', strf("\n\n%s: ;\n", generated("finish").c_str()));
  int index = 0;
  for (int p = f + 1; p < symbols_.count() && symbols_[p].owner == f; ++p) {
    const Symbol& r = symbols_[p];
    if (r.p_or_r != 'r') continue;
    ++index;
    int t = symbols_.resolve_type(r.type_sym);
    if (r.dim_count() > 0 || (t && symbols_[t].name_is == 's')) continue;
    if (t && symbols_[t].name_is == 'n')
      // A pointer to the caller's function pointer: "void (**) (...)".
      ws_.put_text('n', strf("\n*((%s)(%s[%d])) = %s;", fun_pointer(t, "*").c_str(), ret.c_str(), index,
                             r.name.c_str()));
    else
      ws_.put_text('n', strf("\n*((%s *)(%s[%d])) = %s;", element_type(p).c_str(), ret.c_str(), index,
                             r.name.c_str()));
  }
  free_block_varspaces(f + 1);
  ws_.put_text('n', strf("\n*((int *)(%s[0])) = %s;", ret.c_str(), generated("exception").c_str()));
  ws_.put_text('n', "\n}\n");
}

std::string Emitter::loop_counter(int depth) {
  std::string name = generated("walk", depth + 1);
  if (depth + 1 > walk_counters_) {
    walk_counters_ = depth + 1;
    ws_.wd_locals += "\nunsigned " + name + ";";
  }
  return name;
}

// `object` designates the C object of `sub` (a variable, member or element);
// `meta` its meta record ("" for a plain structure).
void Emitter::walk_varspaces(int sub, const std::string& object, const std::string& meta, bool free,
                             std::string& out, int depth) {
  const Symbol& s = symbols_[sub];
  std::string indent(static_cast<size_t>(depth) * 3, ' ');
  int t = symbols_.resolve_type(s.type_sym);
  bool nests = t && symbols_[t].name_is == 's' && !symbols_[t].vf.empty();
  std::string path = object + ".";
  if (s.dim_count() > 0 && nests) {
    // A space of structures that nest spaces: every element in turn.
    std::string index, element;
    int n = s.dim_count();
    for (int k = 1; k <= n; ++k) {
      std::string c = loop_counter(depth + k - 1);
      // A member's companion record is not set up with the structure: its sizes are the declared ones.
      std::string bound = meta.empty() ? strf("%d", s.dims[static_cast<size_t>(k - 1)].size)
                          : n == 1 && free ? meta + ".occurs"
                                           : strf("%s.limit%d", meta.c_str(), k);
      if (s.is_var == 'y' && !free) break;  // a fresh varspace has no elements yet
      out += strf("\n%sfor(%s = %s; %s < %s; ++%s) {", std::string(static_cast<size_t>(depth + k - 1) * 3, ' ').c_str(),
                  c.c_str(), "0", c.c_str(), bound.c_str(), c.c_str());
      index = k == 1 ? c : strf("(%s) * %s.limit%d + %s", index.c_str(), meta.c_str(), k, c.c_str());
      element += "[" + c + "]";
    }
    if (!(s.is_var == 'y' && !free)) {
      std::string elem = s.is_var == 'y'
                             ? strf("((struct %s *)(%s.ptr))[%s]", tag_name(t).c_str(), meta.c_str(), index.c_str())
                             : object + element;
      for (int m : symbols_[t].vf) walk_member(m, elem, free, out, depth + n);
      for (int k = n; k >= 1; --k)
        out += strf("\n%s}", std::string(static_cast<size_t>(depth + k - 1) * 3, ' ').c_str());
    }
  }
  if (s.is_var == 'y') {
    if (free) {
      out += strf("\n%sif(%slimit1 > 0) {", indent.c_str(), path.c_str());
      out += strf("\n%sfree(%sptr);", indent.c_str(), path.c_str());
      out += strf("\n%s;}", indent.c_str());
    } else {
      out += strf("\n%s%sptr = %s;", indent.c_str(), path.c_str(), "NULL");
      if (s.dim_count() == 1) out += strf("\n%s%soccurs = 0;", indent.c_str(), path.c_str());
      for (int k = 1; k <= s.dim_count(); ++k)
        out += strf("\n%s%slimit%d = 0;", indent.c_str(), path.c_str(), k);
    }
    return;
  }
  if (s.dim_count() == 0 && nests)
    for (int m : symbols_[t].vf) walk_member(m, object, free, out, depth);
}

void Emitter::walk_member(int m, const std::string& container, bool free, std::string& out, int depth) {
  const Symbol& ms = symbols_[m];
  std::string object = container + "." + ms.name;
  std::string meta = ms.is_var == 'y' ? object : "";
  walk_varspaces(m, object, meta, free, out, depth);
}

void Emitter::free_block_varspaces(int first) {
  std::string out;
  for (int sub = first; sub < symbols_.count(); ++sub) {
    const Symbol& s = symbols_[sub];
    if (s.error_flags || s.name_is != 'v' || s.name_class != 'o' || s.p_or_r != 'n') continue;
    if (s.storage & (STORAGE_STATIC | STORAGE_EXTERN)) continue;
    walk_varspaces(sub, s.name, s.is_var == 'y' ? s.name : companion_name(sub), true, out, 0);
  }
  if (!out.empty()) ws_.put_text('n', out);
}

}  // namespace ycc
