// The names the compiler invents in generated C, in one place: every one
// begins with the generated-names prefix (/F, "zz" by default).
#pragma once

#include <string>
#include <string_view>

namespace ycc {

class Names {
 public:
  explicit Names(std::string prefix)
      : prefix_(prefix.empty() ? std::string("zz") : std::move(prefix)), generated_start_(prefix_ + prefix_ + "_") {}

  const std::string& prefix() const { return prefix_; }
  // Labels, temporaries and generated functions: the prefix twice, "_", the
  // word, and the number when it is 1 or more ("zzzz_false7", "zzzz_finish").
  std::string generated(std::string_view word, int number = 0) const;
  // What every generated name begins with: the prefix twice and "_".
  const std::string& generated_start() const { return generated_start_; }
  // The meta record type of a space with `dims` dimensions ("zz2D_meta").
  std::string meta_type(int dims) const;
  // The companion meta record of the fixed-space `name` ("zz_v").
  std::string companion(std::string_view name) const;
  // An anonymous structure, enumeration or fun type ("zz12_tag"), and an
  // anonymous entry of another kind ("zz12").
  std::string anonymous_tag(int serial) const;
  std::string anonymous(int serial) const;

 private:
  std::string prefix_;
  std::string generated_start_;  // the prefix twice and "_"
};

}  // namespace ycc
