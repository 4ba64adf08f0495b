#include "translate/resize.h"

#include <algorithm>

#include "common/text.h"

namespace ycc {

int ResizeFunctions::function_for(int sym) {
  YCC_CHECK(symbols_[sym].is_var == 'y', "yc_fun2");
  if (diag_.errors > 0) return 0;
  const Symbol& s = symbols_[sym];
  int t = symbols_.resolve_type(s.type_sym);
  Key key{size_group(symbols_.type_bits_of(sym)), t ? symbols_[t].serial : 0, s.dim_count()};
  auto found = std::find(rows_.begin(), rows_.end(), key);
  if (found != rows_.end()) return static_cast<int>(found - rows_.begin()) + 1;
  rows_.push_back(key);
  int number = static_cast<int>(rows_.size());
  generate(number, sym);
  return number;
}

void ResizeFunctions::generate(int number, int sym) {
  const int n = symbols_[sym].dim_count();
  const std::string r = name(number);
  const std::string meta = names_.meta_type(n);
  std::string type;
  std::string definitions = emitter_.file_level_type(sym, copied_tags_, type);
  const std::string pointer = type.starts_with("void (*) (") ? "void (**) (" + type.substr(10) : type + " *";
  const bool character = (symbols_.type_bits_of(sym) & 1) != 0 && symbols_.resolve_type(symbols_[sym].type_sym) == 0;
  // Elements that hold spaces must start empty: their records are zeroed
  // (an empty varspace, a companion whose occurs is 0).
  int element = symbols_.resolve_type(symbols_[sym].type_sym);
  const bool zeroed = element && symbols_[element].name_is == 's' && !symbols_[element].vf.empty();
  const char* u = "unsigned";

  std::string header = strf("\nstatic int %s(struct %s *meta, ", r.c_str(), meta.c_str());
  for (int k = 1; k <= n; ++k)
    appendf(header, "%s sub%d, int resize_num%d, int resize_pct%d%s", u, k, k, k, k < n ? ", " : ")");
  ws_.globals += header + ";";
  ws_.deferred += definitions;
  ws_.start_resize_function(header);

  std::string& b = ws_.deferred;
  appendf(b, "\n%s new_size, lim_a, lim_b, lim_c;\nvoid *new_ptr;\nstruct %s old;%s", u, meta.c_str(),
            n > 1 ? "\nchar use_realloc = 'y';" : "");
  if (zeroed) b += strf("\n%s old_size;", u);
  for (int k = 1; k <= n; ++k) b += strf("\n%s new_limit%d;", u, k);
  b += "\n";

  // A dimension grows to the largest of the subscript plus one, the limit
  // plus the resize number, and the limit plus the percentage of it; the
  // division comes first, so below 100 the percentage adds nothing.
  for (int k = 1; k <= n; ++k)
    appendf(b, 
        "\nif(sub%d >= meta->limit%d) {%s\n   lim_a = sub%d + 1;\n   lim_b = resize_num%d + meta->limit%d;"
        "\n   lim_c = resize_pct%d * (meta->limit%d / 100) + meta->limit%d;\n   if(lim_a > lim_b)"
        "\n      {if(lim_a > lim_c)\n          new_limit%d = lim_a;\n       else\n          new_limit%d = lim_c;}"
        "\n   else if(lim_b > lim_c)\n       new_limit%d = lim_b;\n   else\n       new_limit%d = lim_c;\n   }"
        "\nelse\n   new_limit%d = meta->limit%d;",
        k, k, k >= 2 ? "\n   use_realloc = 'n';" : "", k, k, k, k, k, k, k, k, k, k, k, k);

  // The size of the new block, failing on an overflowing product.
  int first = 1;
  if (character) {
    b += "\n\nnew_size = new_limit1;";
    first = 2;
  } else {
    appendf(b, "\n\nnew_size = sizeof(%s);", type.c_str());
  }
  for (int k = first; k <= n; ++k)
    appendf(b, "\nif((new_size * new_limit%d) / new_size != new_limit%d)\n   return FALSE;\nnew_size *= new_limit%d;", k,
              k, k);

  if (zeroed) {
    appendf(b, "\n\nold_size = sizeof(%s);", type.c_str());
    for (int k = 1; k <= n; ++k) b += strf("\nold_size *= meta->limit%d;", k);
  }
  appendf(b, 
      "\n\nif(meta->limit1 == 0) {\n   new_ptr = malloc(new_size);\n   if(new_ptr == NULL)\n      return FALSE;%s"
      "\n   }\nelse%s\n   {\n   new_ptr = realloc(meta->ptr, new_size);\n   if(new_ptr == NULL)\n      return FALSE;%s"
      "\n   }",
      zeroed ? "\n   memset(new_ptr, 0, new_size);" : "", n > 1 ? " if(use_realloc == 'y')" : "",
      zeroed ? "\n   memset(((char *)new_ptr) + old_size, 0, new_size - old_size);" : "");

  if (n > 1) {
    // Growing a dimension other than the first moves every element: copy
    // them into a new block, row-major with the new limits as strides.
    b += "\nelse\n   {\n   new_ptr = malloc(new_size);\n   if(new_ptr == NULL)\n      return FALSE;";
    if (zeroed) b += "\n   memset(new_ptr, 0, new_size);";
    auto declare = [&](const std::string& name) { ws_.resize_locals += strf("\n%s %s;", u, name.c_str()); };
    std::vector<std::string> fresh, old, counters;
    for (int k = 1; k < n; ++k) fresh.push_back(names_.generated("fcl", k));
    for (int k = 1; k < n; ++k) old.push_back(names_.generated("fcl", n - 1 + k));
    for (int k = 1; k <= n; ++k) counters.push_back(names_.generated("imw", k));
    for (const auto* list : {&fresh, &old, &counters})
      for (const std::string& name : *list) declare(name);
    auto strides = [&](const std::vector<std::string>& names, const char* limit) {
      for (int k = 1; k < n; ++k) {
        appendf(b, "\n   %s = (", names[static_cast<size_t>(k - 1)].c_str());
        for (int d = k + 1; d <= n; ++d) b += strf(limit, d, d < n ? " * " : "");
        b += ");";
      }
    };
    strides(fresh, "new_limit%d%s");
    strides(old, "meta->limit%d%s");
    for (int k = 1; k <= n; ++k) {
      const char* c = counters[static_cast<size_t>(k - 1)].c_str();
      appendf(b, "\n   for(%s = 0; %s < meta->limit%d; ++%s) {", c, c, k, c);
    }
    auto index = [&](const std::vector<std::string>& stride) {
      std::string x;
      for (int k = 1; k <= n; ++k) {
        if (k > 1) x += " + ";
        x += counters[static_cast<size_t>(k - 1)];
        if (k < n) x += " * " + stride[static_cast<size_t>(k - 1)];
      }
      return x;
    };
    appendf(b, "\n      *(((%s)(new_ptr)) + (%s)) = ", pointer.c_str(), index(fresh).c_str());
    appendf(b, "\n      *(((%s)(meta->ptr)) + (%s));", pointer.c_str(), index(old).c_str());
    b += "\n   }";
    for (int k = 1; k < n; ++k) b += "}";
    b += "\n   free(meta->ptr);\n   }";
  }

  b += "\n\nmeta->ptr = new_ptr;\nold = *meta;";
  for (int k = 1; k <= n; ++k) b += strf("\nmeta->limit%d = new_limit%d;", k, k);
  b += "\n";
  b += "\n\nreturn TRUE;\n}";
}

int size_group(int bits) {
  if (bits & 32) return (bits & 8) ? 40 : 32;
  if (bits & 16) return 16;
  if (bits & 1) return 1;
  if (bits & 2) return 2;
  if (bits & 8) return 8;
  return bits ? 4 : 0;
}

}  // namespace ycc
