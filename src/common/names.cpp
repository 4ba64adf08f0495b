#include "common/names.h"

namespace ycc {

std::string Names::generated(std::string_view word, int number) const {
  std::string name;
  name.reserve(2 * prefix_.size() + word.size() + 12);
  name.append(prefix_).append(prefix_).append(1, '_').append(word);
  if (number >= 1) name += std::to_string(number);
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
