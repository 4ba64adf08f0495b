#include "common/names.h"

#include <charconv>

namespace ycc {

std::string Names::generated(std::string_view word, int number) const {
  // Most generated names fit the string's own small buffer: no reserve.
  std::string name;
  name.append(prefix_).append(prefix_).append(1, '_').append(word);
  if (number >= 1) {
    char digits[12];
    name.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
  }
  return name;
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
