// Dependency rules in make format for build tools (make, ninja): the output C
// file depends on its source and on every include file read for it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ycc {

// A path as make and ninja read it in a rule: blank "\ ", "#" "\#", "$" "$$".
std::string make_escape(std::string_view path);

// "target: source include...\n", every path escaped.
std::string dependency_rule(const std::string& target, const std::string& source,
                            const std::vector<std::string>& includes);

// The dependency file that a translated file "name.c" gets beside it: "name.d".
std::string depfile_name(const std::string& output_name);

// Writes the whole file or nothing; failure is the fatal error.
void write_depfile(const std::string& path, const std::string& text);

}  // namespace ycc
