#include "translate/translator.h"

#include "common/text.h"

namespace ycc {

Translator::Translator(const Options& options, Diagnostics& diag, Workspace& ws, Declarations& decl,
                       const Names& names)
    : options_(options),
      diag_(diag),
      ws_(ws),
      decl_(decl),
      symbols_(decl.symbols()),
      names_(names),
      resize_(decl.symbols(), decl.emitter(), ws, diag, names),
      support_(diag.files(), names) {
  // Declarations met in the middle of a statement (a nested block's brace and
  // locals) land in the code of the statement that encloses them.
  ws_.fragment_sink = [this]() -> std::string* {
    return stack_.empty() ? nullptr : &stack_.back().code.appendable();
  };
}

Translator::~Translator() { ws_.fragment_sink = nullptr; }

FunctionContext& Translator::fn() {
  if (!fn_) fn_ = std::make_unique<FunctionContext>();
  return *fn_;
}

Operand& Translator::push_operand(int line) {
  stack_.emplace_back();
  stack_.back().line = line;
  return stack_.back();
}

Operand Translator::pop_operand() {
  Operand e = std::move(stack_.back());
  stack_.pop_back();
  return e;
}

void Translator::ensure_operands(int n, int line) {
  int floor = fn_ && !fn_->frames.empty() ? fn_->frames.back().level : 0;
  while (stack_size() - floor < n) {
    Operand& e = push_operand(line);
    e.reported = true;
    e.empty = true;
  }
}

void Translator::join_above(int level, int line) {
  if (stack_size() == level) {
    push_operand(line);
    return;
  }
  while (stack_size() > level + 1) {
    Operand e = pop_operand();
    code(top_index()) += e.code.take();
  }
}

void Translator::replace_top(int n, std::string text, int line) {
  for (int k = 0; k < n && stack_size() > 0; ++k) pop_operand();
  push_operand(line).code = Code(std::move(text));
}

void Translator::report(Operand& e, const std::string& text) {
  e.reported = true;
  diag_.error(e.line, text);
}

}  // namespace ycc
