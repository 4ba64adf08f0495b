#include "common/names.h"

#include <charconv>

namespace ycc {

std::string Names::generated(std::string_view word, int number) const {
  // One allocation at most: the length is known before the first append.
  char digits[12];
  char* end = number >= 1 ? std::to_chars(digits, digits + sizeof digits, number).ptr : digits;
  std::string name;
  name.reserve(generated_start_.size() + word.size() + static_cast<size_t>(end - digits));
  name.append(generated_start_).append(word).append(digits, end);
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
