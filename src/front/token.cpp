#include "front/token.h"

namespace ycc {

std::string_view token_name(int tok) {
  switch (tok) {
#define TOKEN(number, name, spelling) \
  case number:                        \
    return #name;
#include "front/tokens.def"
#undef TOKEN
  }
  return "";
}

std::string_view token_spelling(int tok) {
  switch (tok) {
#define TOKEN(number, name, spelling) \
  case number:                        \
    return spelling;
#include "front/tokens.def"
#undef TOKEN
  }
  return "";
}

}  // namespace ycc
