#include "translate/translator.h"

#include "common/text.h"

namespace ycc {

Translator::Translator(const Options& options, Diagnostics& diag, const TokenBuffer& tokens,
                       Workspace& ws, const std::string& prefix)
    : Declarations(options, diag, tokens, ws), prefix_(prefix) {}

std::string Translator::generated_name(const char* word, int number) const {
  if (number < 1) return strf("%s%s_%s", prefix_.c_str(), prefix_.c_str(), word);
  return strf("%s%s_%s%d", prefix_.c_str(), prefix_.c_str(), word, number);
}

Entry& Translator::push_entry(int line) {
  ws_.new_fragment();
  entries_.emplace_back();
  entries_.back().line = line;
  return entries_.back();
}

Entry Translator::pop_entry(std::string* code_out) {
  int i = top_index();
  if (code_out) *code_out = std::move(code(i));
  Entry e = std::move(entries_.back());
  entries_.pop_back();
  ws_.truncate_fragments(i);
  return e;
}

void Translator::ensure_operands(int n, int line) {
  int floor = frames_.empty() ? 0 : frames_.back().level;
  while (stack_size() - floor < n) {
    Entry& e = push_entry(line);
    e.reported = true;
    e.empty = true;
  }
}

void Translator::join_above(int level, int line) {
  if (stack_size() == level) {
    push_entry(line);
    return;
  }
  while (stack_size() > level + 1) {
    std::string text;
    Entry e = pop_entry(&text);
    code(top_index()) += text;
  }
}

void Translator::report(Entry& e, const std::string& text) {
  e.reported = true;
  diag_.error(e.line, text);
}

}  // namespace ycc
