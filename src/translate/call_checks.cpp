// The checks of a call: each argument against its parameter, each return
// variable against its return, the structure rules of qsort and bsearch,
// and the integrity of varspaces during a call of a YARL C function.
#include "common/text.h"
#include "decl/functions.h"
#include "decl/type_keywords.h"
#include "translate/call_site.h"
#include "translate/translator.h"

namespace ycc {

std::string ordinal(int n) {
  const char* suffix = "th";
  if (n % 100 < 11 || n % 100 > 13) {
    if (n % 10 == 1) suffix = "st";
    if (n % 10 == 2) suffix = "nd";
    if (n % 10 == 3) suffix = "rd";
  }
  return std::to_string(n) + suffix;
}

std::string Translator::type_mismatch(const CallSite& site, const Operand& a, int decl, const std::string& what) {
  const Symbol& p = symbols_[decl];
  int t = symbols_.resolve_type(p.type_sym);
  char kind = t ? symbols_[t].name_is : 0;
  const char* head = site.head.c_str();
  const char* ref = site.reference.c_str();
  const char* w = what.c_str();
  auto incompatible = [&](const char* word) {
    return strf("%s : compared with %s, this call's %s has an incompatible%s type", head, ref, w, word);
  };
  if (kind == 's') {
    if (a.kind != 's' || a.type_sym != t) return incompatible("");
  } else if (kind == 'e') {
    if (!(is_enum(a) && a.type_sym == t) && !is_literal_zero(a)) return incompatible(" enumeration");
  } else if (kind == 'n') {
    if (!(is_function(a) && same_function_type(t, a.type_sym)) && !is_literal_zero(a)) return incompatible(" function");
  } else if (a.kind == 's' || is_enum(a) || is_function(a) || a.empty || !a.type_bits) {
    return incompatible(is_enum(a) ? " enumeration" : is_function(a) ? " function" : "");
  } else {
    int want = symbols_.type_bits_of(decl);
    bool lenient = a.literal && is_floating(want) == is_floating(a.type_bits);
    if (!lenient && !sufficiently_equivalent(a.type_bits, want))
      return strf("%s : compared with %s, this call's %s has arithmetic type '%s', which is not sufficiently "
                  "equivalent to the %s '%s'",
                  head, ref, w, type_words(a.type_bits).c_str(), site.possessive.c_str(), type_words(want).c_str());
  }
  return "";
}

bool Translator::check_argument(const CallSite& site, Operand& a, int param, int n) {
  const Symbol& p = symbols_[param];
  std::string what = ordinal(n) + " parameter";
  auto fail = [&](const std::string& text) {
    diag_.error(site.line, text);
    return false;
  };
  if (a.casted) return fail(strf("%s : this call's %s cannot be a casted character space", site.head.c_str(), what.c_str()));
  // qsort's and bsearch's untyped parameters and comparison follow their own rules.
  if (p.role[0] == 'a') return true;
  if ((site.name == "qsort" || site.name == "bsearch") && site.library >= 0) {
    int t = symbols_.resolve_type(p.type_sym);
    if (t && symbols_[t].name_is == 'n') return true;
  }
  int dims = p.dim_count();
  if (dims == 0) {
    if (a.dims > 0)
      return fail(strf("%s : compared with %s, this call's %s cannot be a space", site.head.c_str(),
                       site.reference.c_str(), what.c_str()));
  } else {
    if (a.dims != dims)
      return fail(strf("%s : compared with %s, this call's %s must be a %d-dimensional space", site.head.c_str(),
                       site.reference.c_str(), what.c_str(), dims));
    bool var = a.ref && !a.partial && symbols_[a.ref.sym()].is_var == 'y';
    if (p.is_var == 'y' && !var) {
      bool elided = a.partial && a.ref && a.ref->last_sym && symbols_[a.ref->last_sym].is_var == 'y';
      return fail(strf("%s : this call's %s is a fixed-space%s, but a varspace is required because the %s %s is a "
                       "varspace",
                       site.head.c_str(), what.c_str(),
                       elided ? " (partial elision of a varspace produces a fixed-space)" : "",
                       site.possessive.c_str(), "parameter"));
    }
  }
  std::string why = type_mismatch(site, a, param, what);
  return why.empty() ? true : fail(why);
}

bool Translator::check_return_variable(const CallSite& site, Operand& v, int ret, int n) {
  const Symbol& r = symbols_[ret];
  auto fail = [&](const std::string& text) {
    diag_.error(site.line, text);
    return false;
  };
  std::string suffix = ordinal(n).substr(std::to_string(n).size());
  if (!v.lvalue)
    return fail(strf("%s : the %d%s return variable %s", site.head.c_str(), n, suffix.c_str(), "is not an l-value"));
  if (v.casted)
    return fail(strf("%s : the %d%s return variable %s", site.head.c_str(), n, suffix.c_str(),
                     "is a casted character space"));
  std::string what = ordinal(n) + " return variable";
  int dims = r.dim_count();
  if (dims == 0) {
    if (v.dims > 0)
      return fail(strf("%s : compared with %s, this call's %s cannot be a space", site.head.c_str(),
                       site.reference.c_str(), what.c_str()));
  } else {
    bool whole_var = v.ref && !v.partial && v.dims == dims && symbols_[v.ref.sym()].is_var == 'y';
    if (!whole_var)
      return fail(strf("%s : compared with %s, this call's %s must be a %d-dimensional varspace%s", site.head.c_str(),
                       site.reference.c_str(), what.c_str(), dims,
                       v.ref && v.ref.subscripted() > 0 ? " with all dimensions elided" : ""));
  }
  std::string why = type_mismatch(site, v, ret, what);
  return why.empty() ? true : fail(why);
}

bool Translator::check_sorting(const CallSite& site, int args_at, int count) {
  auto fail = [&](const std::string& text) {
    diag_.error(site.line, text);
    return false;
  };
  const char* head = site.head.c_str();
  if (count < 1) return true;
  Operand& table = operand(args_at);
  if (table.dims != 1 || table.kind != 's')
    return fail(strf("%s : the %stype of this call's %s parameter must be a%s structure type", head, "element ", "1st", ""));
  int tag = table.type_sym;
  bool search = site.name == "bsearch";
  if (search && count >= 2) {
    Operand& key = operand(args_at + 1);
    if (key.kind != 's' || key.dims > 0)
      return fail(strf("%s : the %stype of this call's %s parameter must be a%s structure type", head, "", "2nd", ""));
    if (key.type_sym != tag)
      return fail(strf("%s : this call's %s parameter must have the same structure type as the first parameter", head,
                       "2nd"));
  }
  if (count >= 3) {
    Operand& compare = operand(args_at + 2);
    bool ok = is_function(compare);
    if (ok) {
      int f = function_signature(symbols_, compare.type_sym);
      FunctionLists l = function_lists(symbols_, f);
      ok = l.params.size() == 2;
      for (int p : l.params) {
        int t = symbols_.resolve_type(symbols_[p].type_sym);
        if (t != tag || symbols_[p].dim_count() > 0) ok = false;
      }
    }
    if (!ok)
      return fail(strf("%s : regarding the function%s type of this call's %s parameter, both parameters of this "
                       "type must have the same structure type as %sthis call's first parameter",
                       head, compare.kind == 'n' ? "-pointer" : "", "3rd", "the element type of "));
  }
  return true;
}

bool Translator::check_integrity(const CallSite& site, int returns_at, int return_count, int args_at, int count,
                                 const FunctionLists& lists) {
  struct ByReference {
    const Operand* op;
    std::string kind;  // "parameter" or "return variable"
    int n;
  };
  std::vector<ByReference> refs;
  for (int i = 0; i < return_count; ++i) refs.push_back({&operand(returns_at + i), "return variable", i + 1});
  for (int i = 0; i < count && i < static_cast<int>(lists.params.size()); ++i) {
    const Operand& a = operand(args_at + i);
    if (by_reference(lists.params[static_cast<size_t>(i)], a)) refs.push_back({&a, "parameter", i + 1});
  }
  const char* head = site.head.c_str();
  auto nests_varspace = [&](const Operand& o) {
    if (o.ref && symbols_[o.ref.sym()].is_var == 'y' && o.dims > 0) return true;
    int t = o.kind == 's' ? o.type_sym : 0;
    return t && symbols_[t].vf_flags[0] == 'y';
  };
  // A persistent variable reached by reference: the callee may reach the
  // same storage itself and reallocate it.
  for (const ByReference& r : refs) {
    if (!r.op->ref) continue;
    const Reference& ref = *r.op->ref;
    const Symbol& root = symbols_[ref.root];
    bool global = symbols_.depth() > 0 && ref.root < symbols_.block_first(1);
    bool persistent = global || (root.storage & STORAGE_STATIC);
    if (!persistent) continue;
    if (!(ref.heap || nests_varspace(*r.op))) continue;
    std::string ord = ordinal(r.n);
    bool parameter = r.kind == "parameter";
    diag_.error(site.line,
                strf("%s : this is a non-library call, and the %s %s is a variable%s that either has lifetime "
                     "persistence or is nested in a variable that has lifetime persistence, and the %s is either a "
                     "varspace or is nested in a varspace or nests a varspace: for a %s with these qualities, the "
                     "integrity of all relevant memory locations cannot be guaranteed for the duration of this call "
                     "(given all possible constructions of the function being called)",
                     head, ord.c_str(), r.kind.c_str(), parameter ? " passed by reference" : "", r.kind.c_str(),
                     r.kind.c_str()));
    return false;
  }
  // One argument inside a varspace that another one can resize.
  for (const ByReference& x : refs) {
    for (const ByReference& y : refs) {
      if (&x == &y || !x.op->ref || !y.op->ref) continue;
      const auto& xp = x.op->ref->path;
      const auto& yp = y.op->ref->path;
      if (xp.size() > yp.size() || xp.empty()) continue;
      bool prefix = true;
      for (size_t k = 0; k < xp.size(); ++k)
        if (xp[k].first != yp[k].first) prefix = false;
      if (!prefix) continue;
      // The varspace whose block holds y, at or below x.
      int holder = 0;
      for (size_t k = xp.size() - 1; k + 1 < yp.size(); ++k)
        if (yp[k].second) holder = yp[k].first;
      if (!holder) continue;
      std::string xo = ordinal(x.n), yo = ordinal(y.n);
      diag_.error(site.line,
                  strf("%s : this is a non-library call, and the %s %s either contains the %s %s or potentially "
                       "contains it (by assuming the right subscript values, if any), and within the called function "
                       "the %s %s can potentially be used to alter the properties of varspace '%s' which nests the %s "
                       "%s: given these conditions, the integrity of the location in memory of the %s %s cannot be "
                       "guaranteed for the duration of this call (given all possible constructions of the function "
                       "being called)",
                       head, xo.c_str(), x.kind.c_str(), yo.c_str(), y.kind.c_str(), xo.c_str(), x.kind.c_str(),
                       symbols_[holder].name.c_str(), yo.c_str(), y.kind.c_str(), yo.c_str(), y.kind.c_str()));
      return false;
    }
  }
  return true;
}

}  // namespace ycc
