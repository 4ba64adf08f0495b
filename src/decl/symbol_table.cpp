#include "decl/symbol_table.h"

#include <algorithm>

#include "common/text.h"
#include "diag/diagnostics.h"

namespace ycc {

SymbolTable::SymbolTable() : symbols_(1) {}

int SymbolTable::new_symbol() {
  symbols_.emplace_back();
  symbols_.back().serial = ++serial_;
  return count() - 1;
}

void SymbolTable::make_anonymous(int sub) {
  Symbol& s = (*this)[sub];
  s.name = strf("1%d", s.serial);
}

void SymbolTable::add_to_index(int sub) {
  YCC_CHECK(sub != 0, "yc_fun");
  const Symbol& s = (*this)[sub];
  by_name_[s.name].push_back(sub);
  if (s.name_is == 't') typedefs_[s.name].push_back(sub);
}

void SymbolTable::remove_from_index(int sub) {
  auto drop = [sub](NameIndex& index, const std::string& name) {
    std::vector<int>* v = index.find(name);
    if (!v) return;
    auto it = std::find(v->rbegin(), v->rend(), sub);
    if (it != v->rend()) v->erase(std::next(it).base());
  };
  drop(by_name_, (*this)[sub].name);
  drop(typedefs_, (*this)[sub].name);
}

int SymbolTable::find_in_scope(char name_class, std::string_view name, int owner) const {
  YCC_CHECK(name_class == 'g' || name_class == 'c' || name_class == 'i' || name_class == 'o',
            "yc_fun");
  if (!name.empty() && name[0] == '1') return 0;
  const std::vector<int>* list = by_name_.find(key(name));
  if (!list) return 0;
  int lowest = depth() > 0 && name_class != 'g' ? block_first(depth()) : 1;
  const std::vector<int>& v = *list;
  for (auto it = v.rbegin(); it != v.rend(); ++it) {
    if (*it < lowest) return 0;
    // The members of a structure are numbered above it.
    if (name_class == 'c' && *it < owner) return 0;
    const Symbol& s = (*this)[*it];
    if (s.name_class != name_class) continue;
    if (name_class == 'c' && s.owner != owner) continue;
    return *it;
  }
  return 0;
}

int SymbolTable::find_typedef(std::string_view name) const {
  const std::vector<int>* list = typedefs_.find(key(name));
  return !list || list->empty() ? 0 : list->back();
}

int SymbolTable::resolve_type(int type_sym) const {
  for (int guard = 0; type_sym && (*this)[type_sym].name_is == 't' && guard < 1000; ++guard)
    type_sym = (*this)[type_sym].type_sym;
  return type_sym;
}

int SymbolTable::type_bits_of(int sub) const {
  const Symbol& s = (*this)[sub];
  return s.type_sym && (*this)[s.type_sym].name_is == 't' ? (*this)[s.type_sym].type_bits : s.type_bits;
}

int SymbolTable::find_member(int tag, std::string_view name) const {
  const std::vector<int>* list = by_name_.find(key(name));
  if (!list) return 0;
  for (int sub : *list)
    if ((*this)[sub].name_class == 'c' && (*this)[sub].owner == tag) return sub;
  return 0;
}

int SymbolTable::find_other(char name_class, std::string_view name, int except) const {
  const std::vector<int>* list = by_name_.find(key(name));
  if (!list) return 0;
  for (auto it = list->rbegin(); it != list->rend(); ++it)
    if (*it != except && (*this)[*it].name_class == name_class) return *it;
  return 0;
}

int SymbolTable::find_tag(char name_is, std::string_view name, int before) const {
  const std::vector<int>* list = by_name_.find(key(name));
  if (!list) return 0;
  for (auto it = list->rbegin(); it != list->rend(); ++it) {
    const Symbol& s = (*this)[*it];
    if (*it < before && s.name_is == name_is && s.name_class == 'g') return *it;
  }
  return 0;
}

void SymbolTable::open_construction(char kind, int first) {
  if (!constructions_.empty() && constructions_.back().kind == 'u') {
    constructions_.back().kind = kind;
    return;
  }
  constructions_.push_back({kind, first});
}

void SymbolTable::set_construction_kind(char kind) {
  if (!constructions_.empty()) constructions_.back().kind = kind;
}

void SymbolTable::close_construction() {
  if (!constructions_.empty()) constructions_.pop_back();
}

void SymbolTable::enter_block() { blocks_.push_back({count(), 'n'}); }

void SymbolTable::leave_block() {
  if (blocks_.empty()) return;
  int first = blocks_.back().first;
  blocks_.pop_back();
  for (int sub = count() - 1; sub >= first; --sub)
    if (!(*this)[sub].anonymous() && !(*this)[sub].name.empty()) remove_from_index(sub);
  symbols_.resize(static_cast<size_t>(first));
}

void SymbolTable::dump(std::ostream& out, int sub) const {
  int from = sub, to = sub;
  if (sub == 0) {
    out << "\n\n  symbol table\n\n";
    from = 1;
    to = count() - 1;
  }
  for (int i = from; i <= to; ++i) {
    const Symbol& s = (*this)[i];
    out << strf("(%2d) (%d, %s, %c, %c, %d) (%d) (%d, %d)", i, s.error_flags, s.name.c_str(),
                s.name_class ? s.name_class : ' ', s.name_is ? s.name_is : ' ', s.owner, s.storage,
                s.type_bits, s.type_sym);
    if (s.name_is == 'v') out << strf(" v:(%c, %d)", s.is_var, s.dim_count());
    if (s.name_is == 'd' || s.name_is == 'f' || s.name_is == 'n')
      out << strf(" f:(%c, %d, %d)", s.ellipsis, s.param_count, s.return_count);
    if (s.p_or_r != 'n')
      out << strf(" r:(%c, %c, %c, %d)", s.p_or_r, s.role[0], s.role[1], s.role_number);
    if (!s.vf.empty()) {
      out << strf(" vf:(%c, %c, ", s.vf_flags[0], s.vf_flags[1]);
      for (size_t k = 0; k < s.vf.size(); ++k)
        out << strf("%d%s", s.vf[k], k + 1 < s.vf.size() ? ", " : ")");
    }
    if (s.contains_fun_ptr == 'y') out << " (contains function pointer)";
    out << "\n";
    for (int d = 0; d < s.dim_count(); ++d) {
      const Dimension& dim = s.dims[static_cast<size_t>(d)];
      out << strf("(dim %d) init:%d resize-num:%d resize-pct:%d\n", d + 1, dim.size,
                  dim.resize_num, dim.resize_pct);
    }
  }
}

}  // namespace ycc
