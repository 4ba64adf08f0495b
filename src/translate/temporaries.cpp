// Typed temporaries and string literals: both are declared in the function's
// locals slot, so they stand at the top of the function body in the output.
#include <algorithm>

#include "common/text.h"
#include "translate/translator.h"

namespace ycc {

namespace {

struct TempType {
  const char* word;   // base word of the generated name
  const char* c_type;
};

// One row per type of temporary; the index is the key of the counters.
const TempType temp_types[] = {
    {"char", "char"},     {"signed_char", "signed char"}, {"unsigned_char", "unsigned char"},
    {"short", "short"},   {"unsigned_short", "unsigned short"},
    {"int", "int"},       {"unsigned", "unsigned"},
    {"long", "long"},     {"unsigned_long", "unsigned long"},
    {"float", "float"},   {"double", "double"},             {"long_double", "long double"},
};

int temp_row(int bits) {
  bool is_unsigned = bits & 128;
  if (bits & 32) return (bits & 8) ? 11 : 10;
  if (bits & 16) return 9;
  if (bits & 1) return is_unsigned ? 2 : (bits & 64) ? 1 : 0;
  if (bits & 2) return is_unsigned ? 4 : 3;
  if (bits & 8) return is_unsigned ? 8 : 7;
  return is_unsigned ? 6 : 5;
}

}  // namespace

void Translator::add_local(const std::string& text) {
  if (diag_.errors == 0) ws_.wd_locals += text;
}

std::string Translator::temporary(int type_bits) {
  int row = temp_row(type_bits);
  FunctionContext& f = fn();
  int n = ++f.temp_next[row];
  std::string name = generated(temp_types[row].word, n);
  if (n > f.temp_declared[row]) {
    f.temp_declared[row] = n;
    add_local(strf("\n%s %s;", temp_types[row].c_type, name.c_str()));
  }
  return name;
}

void Translator::string_literal(Operand& e, const Token& t) {
  StringConstant sc = check_string_constant(t.text(), diag_, t.line);
  if (sc.error) e.reported = true;
  std::string s = generated("string", ++string_counter_);
  int length = sc.length;
  if (t.text().size() <= 400) {
    add_local(strf("\nstatic char %s[%d] = %s;", s.c_str(), length + 1, sc.c_text.c_str()));
  } else {
    // A list of character constants meets no C compiler's limit on literals.
    std::string list = "{\n ";
    int width = 1;
    bool first = true;
    std::string_view body(sc.c_text);
    body = body.substr(1, body.size() >= 2 ? body.size() - 2 : 0);
    for (size_t i = 0; i < body.size(); ++i) {
      std::string item;
      int w;
      if (body[i] == '\\' && i + 1 < body.size()) {
        if (is_digit(body[i + 1]) && i + 3 < body.size()) {
          item = strf("'\\%c%c%c'", body[i + 1], body[i + 2], body[i + 3]);
          w = 8;
          i += 3;
        } else {
          item = strf("'\\%c'", body[i + 1]);
          w = 6;
          i += 1;
        }
      } else {
        item = strf("'%s%c'", body[i] == '\'' ? "\\" : "", body[i]);
        w = 5;
      }
      if (!first) {
        if (width > options_.width) {
          list += ",\n ";
          width = 1;
        } else {
          list += ", ";
        }
      }
      first = false;
      list += item;
      width += w;
    }
    list += ", 0}";
    add_local(strf("\nstatic char %s[%d] = %s;", s.c_str(), length + 1, list.c_str()));
  }
  std::string record = names_.companion(s);
  add_local(strf("\nstatic struct %s %s = {%s,%d,%d};", names_.meta_type(1).c_str(), record.c_str(), s.c_str(),
                 length, length + 1));
  ws_.note_dimensions(1);
  e.value = record;
  e.type_bits = 1;
  e.dims = 1;
  e.string_literal = true;
  std::string_view quoted(sc.c_text);
  e.format = std::string(quoted.substr(1, quoted.size() >= 2 ? quoted.size() - 2 : 0));
}

}  // namespace ycc

namespace ycc {

std::string Translator::return_temporary(int ret) {
  const Symbol& r = symbols_[ret];
  int t = symbols_.resolve_type(r.type_sym);
  bool scalar = r.dim_count() == 0 && (!t || symbols_[t].name_is == 'e');
  if (scalar) return temporary(t ? 4 : symbols_.type_bits_of(ret));
  FunctionContext& f = fn();
  auto at = std::find(f.rt_symbols.begin(), f.rt_symbols.end(), ret);
  int position = static_cast<int>(at - f.rt_symbols.begin()) + 1;
  if (at == f.rt_symbols.end()) f.rt_symbols.push_back(ret);
  int use = ++f.rt_next[ret];
  std::string name = names_.prefix() + names_.prefix() + strf("_rt_%d_%d", position, use);
  if (use > f.rt_declared[ret]) {
    f.rt_declared[ret] = use;
    add_local("\n" + decl_.emitter().declaration_named(ret, name));
    // A space a library call returns into the temporary is released at the exit.
    if (r.is_var == 'y' && diag_.errors == 0)
      appendf(ws_.function_exit, "\nif(%s.limit1 > 0) {\nfree(%s.ptr);\n;}", name.c_str(), name.c_str());
  }
  return name;
}

std::string Translator::meta_temporary(int dimensions) {
  YCC_CHECK(dimensions > 0, "yc_fun2");
  int dims = dimensions;
  FunctionContext& f = fn();
  auto at = std::find(f.md_dims.begin(), f.md_dims.end(), dims);
  int position = static_cast<int>(at - f.md_dims.begin()) + 1;
  if (at == f.md_dims.end()) f.md_dims.push_back(dims);
  int use = ++f.md_next[dims];
  std::string name = names_.prefix() + names_.prefix() + strf("_md_%d_%d", position, use);
  if (use > f.md_declared[dims]) {
    f.md_declared[dims] = use;
    add_local(strf("\nstruct %s %s;", names_.meta_type(dims).c_str(), name.c_str()));
    ws_.note_dimensions(dims);
  }
  return name;
}

}  // namespace ycc
