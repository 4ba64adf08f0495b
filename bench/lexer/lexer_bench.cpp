// Lexing throughput: generates an intermediate file of about N tokens (a mix
// of declarations, statements, constants, strings, comments and line
// markers), tokenises it and prints tokens per second.
//   lexer_bench [tokens] [output.i]
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "front/lexer.h"

namespace {

// One generated function adds about 73 tokens.
std::string generate(long tokens) {
  std::string out = "\n#line 1 \"bench.yc\"\n";
  long approx = 0;
  for (long i = 0; approx < tokens; ++i) {
    if (i % 50 == 0) out += "\n#line 1 \"inc" + std::to_string(i % 7) + ".h\"\n#pragma extern_on\n";
    out += "int f" + std::to_string(i) + "(int a, unsigned long b)\n{\n";
    out += "   var char s[100, 20%];\n";
    out += "   a = a * 0x1fU + 1.5e+3L - b / 7; /* comment */\n";
    out += "   if (a >= b && s.limit != 0) { s[a] = 'x'; s === s; }\n";
    out += "   while (a-- > 0) b <<= 1; // line comment\n";
    out += "   return \"a string, with text\";\n}\n";
    if (i % 50 == 49) out += "\n#pragma extern_off\n\n#line " + std::to_string(i) + " \"bench.yc\"\n";
    approx += 73;
  }
  return out;
}

}  // namespace

int main(int argc, char** argv) {
  long tokens = argc > 1 ? std::atol(argv[1]) : 1000000;
  std::string text = generate(tokens);
  if (argc > 2) std::ofstream(argv[2], std::ios::binary) << text;
  ycc::FileTable files;
  std::ostringstream err;
  auto start = std::chrono::steady_clock::now();
  ycc::TokenBuffer b = ycc::tokenize(text, files, err);
  auto end = std::chrono::steady_clock::now();
  double seconds = std::chrono::duration<double>(end - start).count();
  std::printf("%zu tokens, %zu bytes, %.3f s, %.0f tokens/s%s\n", b.tokens.size(), text.size(),
              seconds, static_cast<double>(b.tokens.size()) / seconds,
              err.str().empty() ? "" : " (lexical errors!)");
  return err.str().empty() ? 0 : 1;
}
