// Operand classes, arithmetic type rules and the kinds that identifier
// references give their entries.
#include "common/text.h"
#include "decl/library_table.h"
#include "translate/translator.h"

namespace ycc {

namespace {

// The size group of a type code: signedness and "int" spellings ignored.
int size_group(int bits) {
  if (bits & 32) return (bits & 8) ? 40 : 32;
  if (bits & 16) return 16;
  if (bits & 1) return 1;
  if (bits & 2) return 2;
  if (bits & 8) return 8;
  return bits ? 4 : 0;
}

// The group of spellings of one type: plain and signed agree except for char.
int spelling_group(int bits) {
  int g = size_group(bits);
  if (g == 1) return bits & 192 ? (bits & 128 ? 3 : 2) : 1;
  return g * 2 + ((bits & 128) ? 1 : 0);
}

const char* class_names[] = {"",         "aggregate",     "scalar",   "function", "enumeration",
                             "arithmetic", "floating-point", "integral",
                             "either arithmetic or enumeration"};

}  // namespace

bool sufficiently_equivalent(int a, int b) {
  return a == b || (size_group(a) != 0 && size_group(a) == size_group(b));
}

bool exactly_equivalent(int a, int b) {
  return a == b || (size_group(a) != 0 && spelling_group(a) == spelling_group(b));
}

int arithmetic_result(int a, int b) {
  auto either = [&](int mask) { return (a & mask) == mask || (b & mask) == mask; };
  if (either(40)) return 40;
  if (either(32)) return 32;
  if (either(16)) return 16;
  if (either(136)) return 136;
  if (either(8)) return 8;
  if (either(128)) return 128;
  return 4;
}

std::string Translator::class_message(const Entry& e, int cls, bool refuse_aggregates) const {
  bool aggregate = is_aggregate(e);
  if (cls == 1) return aggregate ? "" : "the required operand type is aggregate";
  bool arithmetic = e.type_bits != 0 && !e.empty;
  bool pass = false;
  if (!(aggregate && refuse_aggregates) && !e.empty) {
    switch (cls) {
      case 2: pass = arithmetic || is_function(e) || is_enum(e); break;
      case 3: pass = is_function(e); break;
      case 4: pass = is_enum(e); break;
      case 5: pass = arithmetic; break;
      case 6: pass = arithmetic && is_floating(e.type_bits); break;
      case 7: pass = arithmetic && !is_floating(e.type_bits); break;
      case 8: pass = arithmetic || is_enum(e); break;
    }
  }
  if (pass) return "";
  const char* what = "cannot be empty";
  if (e.empty)
    what = "cannot be empty";
  else if (e.dims == 0 && !e.casted && e.kind == 's')
    what = "cannot be a structure";
  else if (e.dims == 0 && !e.casted && e.kind == 'n')
    what = "cannot be a function pointer";
  else if (e.dims == 0 && !e.casted && e.kind == 'd')
    what = "cannot be a function name";
  else if (e.dims == 0 && !e.casted && e.kind == 'e')
    what = "cannot be an enumeration variable";
  else if (e.dims == 0 && !e.casted && e.kind == 'c')
    what = "cannot be an enumeration constant";
  else if (e.dims > 0)
    what = "cannot be a space";
  else if (e.casted)
    what = "cannot be a casted character space";
  else if (arithmetic && is_floating(e.type_bits))
    what = "cannot be a floating-point value";
  else if (arithmetic)
    what = "cannot be an integral value";
  return std::string(what) + ", the required type is " + class_names[cls];
}

bool Translator::test_class(Entry& e, int cls, bool refuse_aggregates, const char* format,
                            const std::string& op) {
  if (e.reported) return false;
  std::string why = class_message(e, cls, refuse_aggregates);
  if (why.empty()) return true;
  report(e, strf(format, op.c_str(), why.c_str()));
  return false;
}

bool Translator::is_literal_zero(const Entry& e) const {
  return e.literal && e.type_bits != 0 && e.value == "0";
}

bool Translator::same_function_type(int a, int b) const {
  if (a == b) return true;
  // The list owner of a function definition whose body is closed is its prototype.
  auto signature_of = [&](int sub) {
    if (symbols_[sub].name_is == 'f') {
      for (int i = 1; i < symbols_.count(); ++i)
        if (symbols_[i].name_is == 'd' && symbols_[i].name == symbols_[sub].name) return i;
    }
    return sub;
  };
  a = signature_of(a);
  b = signature_of(b);
  const Symbol& x = symbols_[a];
  const Symbol& y = symbols_[b];
  if (x.ellipsis != y.ellipsis || x.param_count != y.param_count || x.return_count != y.return_count)
    return false;
  std::vector<int> xs, ys;
  for (int i = a + 1; i < symbols_.count(); ++i)
    if (symbols_[i].owner == a && symbols_[i].p_or_r != 'n') xs.push_back(i);
  for (int i = b + 1; i < symbols_.count(); ++i)
    if (symbols_[i].owner == b && symbols_[i].p_or_r != 'n') ys.push_back(i);
  if (xs.size() != ys.size()) return false;
  for (size_t k = 0; k < xs.size(); ++k) {
    const Symbol& p = symbols_[xs[k]];
    const Symbol& q = symbols_[ys[k]];
    bool p_ret = p.p_or_r == 'r' || p.p_or_r == 'b';
    bool q_ret = q.p_or_r == 'r' || q.p_or_r == 'b';
    if (p_ret != q_ret || p.type_bits != q.type_bits || p.dim_count() != q.dim_count() ||
        p.is_var != q.is_var || symbols_.resolve_type(p.type_sym) != symbols_.resolve_type(q.type_sym))
      return false;
  }
  return true;
}

void Translator::fill_from_symbol(Entry& e, int sub) {
  Symbol& s = symbols_[sub];
  ++s.ref_count;
  e.value = s.name;
  switch (s.name_is) {
    case 'v': {
      int bits = s.type_bits;
      int t = s.type_sym;
      // Typedef names carry their own bits.
      for (int guard = 0; t && symbols_[t].name_is == 't' && guard < 1000; ++guard) {
        bits |= symbols_[t].type_bits;
        t = symbols_[t].type_sym;
      }
      e.type_bits = bits;
      e.type_sym = t;
      if (t) {
        char k = symbols_[t].name_is;
        e.kind = k == 's' ? 's' : k == 'e' ? 'e' : k == 'n' ? 'n' : 0;
      }
      e.dims = s.dim_count();
      e.lvalue = e.dims == 0;
      break;
    }
    case 'c':
      e.kind = 'c';
      e.type_sym = s.owner;
      break;
    case 'f':
    case 'd':
      e.kind = 'd';
      e.type_sym = sub;
      e.value = emit_.function_name(sub);
      if (find_library_function(s.name) >= 0 && s.name != "main")
        report(e, strf("'%s' : the names of YARL C library functions are reserved and cannot be "
                       "used as function pointers",
                       s.name.c_str()));
      break;
    default:
      e.empty = true;
      report(e, strf("'%s' is not a variable, enumeration constant, or function name", s.name.c_str()));
      break;
  }
}

}  // namespace ycc
