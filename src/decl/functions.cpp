#include "decl/functions.h"

#include "common/text.h"

namespace ycc {

namespace {

// Spellings of one type: the groups within which basic types are exactly equal.
int exact_group(int bits) {
  switch (bits) {
    case 2: case 6: case 66: case 70: return 2;
    case 130: case 134: return 130;
    case 4: case 64: case 68: return 4;
    case 128: case 132: return 128;
    case 8: case 12: case 72: case 76: return 8;
    case 136: case 140: return 136;
    default: return bits;
  }
}

}  // namespace

FunctionLists function_lists(const SymbolTable& symbols, int f) {
  FunctionLists l;
  for (int p = f + 1; p < symbols.count(); ++p) {
    const Symbol& s = symbols[p];
    if (s.owner != f) {
      if (s.p_or_r == 'n') break;
      continue;  // members of a structure or fun type inside a list
    }
    if (s.p_or_r == 'p' || s.p_or_r == 'a') l.params.push_back(p);
    if (s.p_or_r == 'r' || s.p_or_r == 'b') l.returns.push_back(p);
  }
  return l;
}

const char* parameter_mismatch(const SymbolTable& symbols, int a, int b, bool with_resize) {
  const Symbol& x = symbols[a];
  const Symbol& y = symbols[b];
  if (exact_group(symbols.type_bits_of(a)) != exact_group(symbols.type_bits_of(b))) return "type";
  int tx = symbols.resolve_type(x.type_sym), ty = symbols.resolve_type(y.type_sym);
  if (tx != ty) {
    bool both_fun = tx && ty && symbols[tx].name_is == 'n' && symbols[ty].name_is == 'n';
    if (!both_fun || !fun_type_mismatch(symbols, tx, ty).empty()) return "type";
  }
  if (x.role[0] != y.role[0]) return "type";
  if (x.is_var != y.is_var || x.dim_count() != y.dim_count()) return "space information";
  for (int d = 0; d < x.dim_count(); ++d)
    if (x.dims[static_cast<size_t>(d)].size != y.dims[static_cast<size_t>(d)].size) return "[size] information";
  if (with_resize)
    for (int d = 0; d < x.dim_count(); ++d) {
      const Dimension& dx = x.dims[static_cast<size_t>(d)];
      const Dimension& dy = y.dims[static_cast<size_t>(d)];
      if (dx.resize_num != dy.resize_num || dx.resize_pct != dy.resize_pct) return "resize information";
    }
  return nullptr;
}

int function_signature(const SymbolTable& symbols, int f) {
  if (symbols[f].name_is != 'f') return f;
  int prototype = symbols.find_other('o', symbols[f].name, f);
  return prototype && symbols[prototype].name_is == 'd' ? prototype : f;
}

std::string fun_type_mismatch(const SymbolTable& symbols, int fa, int fb) {
  fa = function_signature(symbols, fa);
  fb = function_signature(symbols, fb);
  if (fa == fb) return "";
  const Symbol& a = symbols[fa];
  const Symbol& b = symbols[fb];
  if (a.ellipsis != b.ellipsis) return "mismatch ellipsis use";
  FunctionLists la = function_lists(symbols, fa), lb = function_lists(symbols, fb);
  if (la.params.size() != lb.params.size() || la.returns.size() != lb.returns.size())
    return strf("mismatch comparing %d/%d parameters/returns against %d/%d", static_cast<int>(la.params.size()),
                static_cast<int>(la.returns.size()), static_cast<int>(lb.params.size()),
                static_cast<int>(lb.returns.size()));
  for (size_t i = 0; i < la.params.size(); ++i)
    if (const char* aspect = parameter_mismatch(symbols, la.params[i], lb.params[i], false))
      return strf("%s mismatch at %s %d", aspect, "parameter", static_cast<int>(i + 1));
  for (size_t i = 0; i < la.returns.size(); ++i)
    if (const char* aspect = parameter_mismatch(symbols, la.returns[i], lb.returns[i], false))
      return strf("%s mismatch at %s %d", aspect, "return", static_cast<int>(i + 1));
  return "";
}

std::vector<std::string> compare_with_prototype(const SymbolTable& symbols, int definition, int prototype) {
  std::vector<std::string> out;
  const Symbol& d = symbols[definition];
  const Symbol& p = symbols[prototype];
  const char* n = d.name.c_str();
  FunctionLists ld = function_lists(symbols, definition), lp = function_lists(symbols, prototype);
  if (ld.params.size() != lp.params.size() || ld.returns.size() != lp.returns.size()) {
    out.push_back(strf("function '%s' has %d/%d parameters/returns, and its prototype has %d/%d", n,
                       static_cast<int>(ld.params.size()), static_cast<int>(ld.returns.size()),
                       static_cast<int>(lp.params.size()), static_cast<int>(lp.returns.size())));
    return out;
  }
  if (d.ellipsis != p.ellipsis) {
    out.push_back(strf("ellipsis use: function '%s' does not match its prototype", n));
    return out;
  }
  if (((d.storage & STORAGE_STATIC) != 0) != ((p.storage & STORAGE_STATIC) != 0)) {
    out.push_back(strf("use of keyword 'static': function '%s' does not match its prototype", n));
    return out;
  }
  auto compare = [&](const std::vector<int>& a, const std::vector<int>& b, const char* what) {
    for (size_t i = 0; i < a.size(); ++i) {
      const char* aspect = parameter_mismatch(symbols, a[i], b[i], true);
      if (!aspect && symbols[a[i]].shown_name() != symbols[b[i]].shown_name()) aspect = "name";
      if (aspect)
        out.push_back(strf("function '%s': the %s of %s %d does not match the prototype", n, aspect, what,
                           static_cast<int>(i + 1)));
    }
  };
  compare(ld.params, lp.params, "parameter");
  compare(ld.returns, lp.returns, "return");
  return out;
}

}  // namespace ycc
