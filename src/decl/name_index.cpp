#include "decl/name_index.h"

namespace ycc {

std::vector<int>& NameIndex::operator[](std::string_view name) {
  if (std::vector<int>* found = find(name)) return *found;
  // At most half full: probe runs stay short.
  if (2 * (entries_.size() + 1) > slots_.size()) {
    slots_.assign(2 * slots_.size(), 0);
    for (size_t k = 0; k < entries_.size(); ++k) place(hash(entries_[k].name), k);
  }
  entries_.push_back({std::string(name), {}});
  place(hash(name), entries_.size() - 1);
  return entries_.back().subs;
}

void NameIndex::place(std::uint64_t h, size_t entry) {
  size_t i = h & mask();
  while (slots_[i] != 0) i = (i + 1) & mask();
  slots_[i] = (h & ~low_bits) | (static_cast<std::uint64_t>(entry) + 1);
}

}  // namespace ycc
