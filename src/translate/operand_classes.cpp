// Operand classes, arithmetic type rules and the kinds that identifier
// references give their entries.
#include "common/c_names.h"
#include "common/text.h"
#include "decl/functions.h"
#include "decl/library_table.h"
#include "translate/resize.h"
#include "translate/translator.h"

namespace ycc {

namespace {

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

std::string class_message(const Operand& e, int cls, bool refuse_aggregates) {
  if (class_passes(e, cls, refuse_aggregates)) return std::string();
  if (cls == 1) return "the required operand type is aggregate";
  bool arithmetic = e.type_bits != 0 && !e.empty;
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

bool Translator::report_class(Operand& e, int cls, bool refuse_aggregates, const char* format,
                              std::string_view op) {
  std::string why = class_message(e, cls, refuse_aggregates);
  report(e, strf(format, std::string(op).c_str(), why.c_str()));
  return false;
}

bool Translator::is_literal_zero(const Operand& e) const {
  return e.literal && e.type_bits != 0 && e.value == "0";
}

bool Translator::same_function_type(int a, int b) const {
  return fun_type_mismatch(symbols_, a, b).empty();
}

void Translator::fill_from_symbol(Operand& e, int sub) {
  Symbol& s = symbols_[sub];
  ++s.ref_count;
  e.value = c_name(s.name);
  switch (s.name_is) {
    case 'v': {
      int t = symbols_.resolve_type(s.type_sym);
      e.type_bits = symbols_.type_bits_of(sub);
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
      e.value = decl_.emitter().function_name(sub);
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
