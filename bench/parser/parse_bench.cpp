// Parser benchmark: tokenises an intermediate file and parses it with
// actions that only count their calls and keep typedef names, then prints
// the counts and the time of each stage.
#include <chrono>
#include <cstdio>
#include <iostream>
#include <set>
#include <sstream>
#include <string>

#include "common/options.h"
#include "common/text.h"
#include "diag/diagnostics.h"
#include "front/lexer.h"
#include "front/parser.h"
#include "front/syntax_errors.h"

namespace ycc {
namespace {

class CountingActions : public Actions {
 public:
  long calls = 0;

  bool is_typedef_name(std::string_view name) override { return typedefs_.count(std::string(name)) > 0; }
  void begin_declaration(DeclContext, const Token&) override {
    ++calls;
    typedef_ = false;
  }
  void add_storage_class(const Token& t) override {
    ++calls;
    if (t.tok == T_TYPEDEF) typedef_ = true;
  }
  void complete_declarator(const Token* name, bool) override {
    ++calls;
    if (typedef_ && name) typedefs_.insert(std::string(name->text()));
  }
  void identifier(const Token&) override { ++calls; }
  void constant(const Token&) override { ++calls; }
  void binary_operator(const Token&) override { ++calls; }
  void assignment(AssignMode, const Token&) override { ++calls; }
  void end_statement(const Token&) override { ++calls; }

 private:
  std::set<std::string> typedefs_;
  bool typedef_ = false;
};

}  // namespace
}  // namespace ycc

int main(int argc, char** argv) {
  using namespace ycc;
  using clock = std::chrono::steady_clock;
  if (argc < 2) {
    std::fprintf(stderr, "usage: parse_bench file.i\n");
    return 2;
  }
  std::string text;
  int err = 0;
  if (!read_file(argv[1], text, err)) {
    std::fprintf(stderr, "cannot read %s\n", argv[1]);
    return 2;
  }
  Options options;
  Diagnostics diag(std::cerr, options);
  diag.begin_compile();
  auto t0 = clock::now();
  TokenBuffer tokens = tokenize(text, diag.files(), std::cerr);
  auto t1 = clock::now();
  CountingActions actions;
  SyntaxErrors syntax(diag);
  parse_translation_unit(tokens.tokens, actions, syntax);
  auto t2 = clock::now();
  diag.flush();
  auto ms = [](auto d) { return std::chrono::duration<double, std::milli>(d).count(); };
  std::printf("tokens %zu, counted actions %ld, syntax errors %d\n", tokens.tokens.size(), actions.calls,
              diag.errors);
  std::printf("tokenize %.1f ms, parse %.1f ms\n", ms(t1 - t0), ms(t2 - t1));
  return diag.errors == 0 ? 0 : 1;
}
