// User names in generated C. The generated file includes <stdio.h>,
// <stdlib.h> and <string.h>; a user's function, variable, constant or tag
// named like something those headers declare or define would not compile,
// so such a name is written with "_yc_" before it. Every other name is
// written as the user wrote it.
#pragma once

#include <string>
#include <string_view>

namespace ycc {

bool clashes_with_c_headers(std::string_view name);
std::string c_name(std::string_view name);

}  // namespace ycc
