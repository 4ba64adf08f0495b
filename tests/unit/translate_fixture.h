// Runs the parser with the translation actions over a source text and keeps
// what was written between the opening and the closing of each function
// body: the translated statements, without the heading and closing code.
#pragma once

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "front/lexer.h"
#include "front/parser.h"
#include "front/syntax_errors.h"
#include "output/workspace.h"
#include "compile/file_actions.h"

namespace ycc::testing {

class BodyRecorder : public FileActions {
 public:
  BodyRecorder(const Options& o, Diagnostics& d, const TokenBuffer& t, Workspace& ws, const std::string& prefix)
      : FileActions(o, d, t, ws, prefix), ws_(ws) {}

  void open_function_body(const Token& lbrace, const FunctionLabels& labels) override {
    FileActions::open_function_body(lbrace, labels);
    start_ = ws_.work_size();
    locals_at_open_ = ws_.wd_locals.size();
  }
  void close_function_body(const Token& rbrace) override {
    bodies.push_back(ws_.work_text().substr(std::min(start_, ws_.work_size())));
    locals.push_back(ws_.wd_locals.substr(std::min(locals_at_open_, ws_.wd_locals.size())));
    FileActions::close_function_body(rbrace);
  }

  std::vector<std::string> bodies;
  std::vector<std::string> locals;  // what the body added to the locals slot

 private:
  Workspace& ws_;
  size_t start_ = 0;
  size_t locals_at_open_ = 0;
};

struct TranslateRun {
  Options options;
  std::ostringstream err;
  Diagnostics diag{err, options};
  std::vector<std::string> bodies;
  std::vector<std::string> locals;
  int stack_left = 0;

  // Translates `source`; returns the body of its last function.
  std::string run(const std::string& source, const std::string& prefix = "zz") {
    options.prefix = prefix;
    diag.begin_compile();
    {
      Workspace ws(options, diag);
      ws.reset();
      ws.set_prefix(prefix);
      TokenBuffer tokens = tokenize(source, diag.files(), diag.err());
      SyntaxErrors syntax(diag);
      BodyRecorder t(options, diag, tokens, ws, prefix);
      try {
        parse_translation_unit(tokens.tokens, t, syntax);
      } catch (const CompileHalt&) {
      }
      bodies = t.bodies;
      locals = t.locals;
      stack_left = t.translator().stack_size();
      diag.flush();
    }
    return bodies.empty() ? std::string() : bodies.back();
  }
  std::string messages() const { return err.str(); }
  // The messages without their layout: "line kind: text" each, the wrapped
  // lines joined again.
  std::vector<std::string> message_list() const {
    std::vector<std::string> out;
    std::istringstream in(err.str());
    std::string line;
    while (std::getline(in, line)) {
      size_t close = line.find(") ");
      bool head = line.size() > 2 && line[0] == ' ' && line[1] == '(' && close != std::string::npos &&
                  line.compare(1, 6, "(line)") != 0;
      if (head) {
        std::string number = line.substr(2, close - 2);
        std::string rest = line.substr(close + 2);
        if (rest.starts_with("**")) rest = rest.substr(2);
        out.push_back(number + " " + rest);
      } else if (!out.empty() && line.starts_with("   ")) {
        size_t first = line.find_first_not_of(' ');
        out.back() += " " + line.substr(first);
      }
    }
    return out;
  }
};

}  // namespace ycc::testing
