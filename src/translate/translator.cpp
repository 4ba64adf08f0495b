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
    return depth_ == 0 ? nullptr : &top().code.appendable();
  };
}

Translator::~Translator() { ws_.fragment_sink = nullptr; }

void Translator::make_function_context() { fn_ = std::make_unique<FunctionContext>(); }

Operand Translator::pop_operand() { return std::move(stack_[--depth_]); }

// A dropped slot lets its reference go at once, so the pool can reuse it.
Code Translator::pop_code() { return std::move(pop_code_in_place()); }

Code& Translator::pop_code_in_place() {
  Operand& e = stack_[--depth_];
  e.ref.reset();
  return e.code;
}

void Translator::join_popped_text(int into) {
  Code& c = pop_code_in_place();
  code(into) += std::string_view(c.text());
  c.clear();
}

void Translator::join_popped(int into) { code(into) += std::move(pop_code_in_place()); }

void Translator::drop_operands(int n) {
  for (size_t k = std::min(depth_, static_cast<size_t>(std::max(n, 0))); k > 0; --k) stack_[--depth_].ref.reset();
}

void Translator::add_missing_operands(int n, int line) {
  while (stack_size() - frame_floor() < n) {
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
  while (stack_size() > level + 1) join_popped_text(top_index() - 1);
}

void Translator::replace_top(int n, std::string text, int line) {
  drop_operands(n);
  push_operand(line).code = Code(std::move(text));
}

void Translator::report(Operand& e, const std::string& text) {
  e.reported = true;
  diag_.error(e.line, text);
}

}  // namespace ycc
