#include "front/compile_pass.h"

namespace ycc {

// The lexer, the parser and the output assembly plug in here.
void CompileSession::compile_one_file(const Options&, Diagnostics&, const std::string&,
                                      const std::string&, const std::string&) {}

}  // namespace ycc
