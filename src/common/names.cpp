#include "common/names.h"

#include <charconv>
#include <cstring>

namespace ycc {

std::string Names::generated(std::string_view word, int number) const {
  // Composed in place, then copied once: most names fit a string's own room.
  char buf[96];
  const size_t head = generated_start_.size() + word.size();
  if (head > sizeof buf - 12) {
    std::string name(generated_start_);
    name.append(word);
    if (number >= 1) name.append(std::to_string(number));
    return name;
  }
  std::memcpy(buf, generated_start_.data(), generated_start_.size());
  std::memcpy(buf + generated_start_.size(), word.data(), word.size());
  char* end = number >= 1 ? std::to_chars(buf + head, buf + sizeof buf, number).ptr : buf + head;
  return std::string(buf, end);
}

std::string Names::meta_type(int dims) const { return prefix_ + std::to_string(dims) + "D_meta"; }

std::string Names::companion(std::string_view name) const {
  std::string c = prefix_;
  c.append(1, '_').append(name);
  return c;
}

std::string Names::anonymous_tag(int serial) const { return anonymous(serial) + "_tag"; }

std::string Names::anonymous(int serial) const { return prefix_ + std::to_string(serial); }

}  // namespace ycc
