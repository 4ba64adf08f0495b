// #if and #elif expressions: the replacement of "defined", the checks of the
// expanded text and its evaluation.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace ycc::pp {

// Replaces each "defined NAME" and "defined ( NAME )" by " 1 " or " 0 ".
// Returns false, with the 1-based number of the faulty use, when one is malformed.
bool replace_defined(std::string_view text, const std::function<bool(std::string_view)>& is_macro,
                     std::string& out, int& bad_use);

struct IfResult {
  enum class Status { ok, alphabetic, invalid_char, fault };
  Status status = Status::ok;
  double value = 0;
  char bad_char = 0;           // invalid_char
  const char* reason = nullptr;  // fault: the reason's wording
};

// Evaluates an expanded expression: unsigned 32-bit numbers, each operation
// computed in double precision and range-checked.
IfResult evaluate_if(std::string_view text);

namespace if_reason {
extern const char* const missing_left;
extern const char* const missing_right;
extern const char* const invalid_operator;
extern const char* const missing_operand;
extern const char* const malformed;
extern const char* const number_too_big;
extern const char* const negative_overflow;
extern const char* const positive_overflow;
extern const char* const divide_by_zero;
}  // namespace if_reason

}  // namespace ycc::pp
