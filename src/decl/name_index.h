// Lists of symbol numbers by name, looked up for every identifier read.
// Open addressing over a power-of-two table whose slots hold part of each
// name's hash: a lookup reads one slot array and compares a name only when
// the hashes agree. A name once added stays; its list may become empty.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ycc {

class NameIndex {
 public:
  NameIndex() : slots_(initial_slots, 0) {}

  // The list of `name`, or null when the name was never added.
  const std::vector<int>* find(std::string_view name) const {
    const std::uint64_t h = hash(name);
    for (size_t i = h & mask();; i = (i + 1) & mask()) {
      std::uint64_t slot = slots_[i];
      if (slot == 0) return nullptr;
      const Entry& e = entries_[(slot & low_bits) - 1];
      if ((slot & ~low_bits) == (h & ~low_bits) && same_name(e.name, name)) return &e.subs;
    }
  }
  std::vector<int>* find(std::string_view name) {
    return const_cast<std::vector<int>*>(static_cast<const NameIndex*>(this)->find(name));
  }
  // The list of `name`, added empty when it is new.
  std::vector<int>& operator[](std::string_view name);

 private:
  struct Entry {
    std::string name;
    std::vector<int> subs;
  };
  static constexpr size_t initial_slots = 256;
  static constexpr std::uint64_t low_bits = 0xffffffffu;

  // Names are short: compared in line, not through the library's memcmp.
  static bool same_name(const std::string& a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < b.size(); ++i)
      if (a[i] != b[i]) return false;
    return true;
  }
  // FNV-1a, in line: names are short.
  static std::uint64_t hash(std::string_view s) {
    std::uint64_t h = 14695981039346656037u;
    for (char c : s) h = (h ^ static_cast<unsigned char>(c)) * 1099511628211u;
    // The slot keeps the high half; the low half picks the slot.
    return h ^ (h >> 29);
  }
  size_t mask() const { return slots_.size() - 1; }
  void place(std::uint64_t h, size_t entry);

  std::vector<Entry> entries_;
  std::vector<std::uint64_t> slots_;  // high half of the hash | entry number + 1; 0 free
};

}  // namespace ycc
