// Generated labels and the jump form of boolean expressions: a condition
// lowered by &&, || or ! is code that jumps to a "false" or a "true" label and
// falls through otherwise; what the fall-through means is read from the last
// goto of the code.
#include "common/text.h"
#include "translate/translator.h"

namespace ycc {

namespace {
const char source_name[] = "yc_fun2";
}

bool Translator::last_goto_is_true(const std::string& text) const {
  size_t at = text.rfind("goto ");
  if (at != std::string::npos) {
    std::string_view rest = std::string_view(text).substr(at + 5);
    const std::string& start = names_.generated_start();
    if (rest.starts_with(start)) {
      rest.remove_prefix(start.size());
      if (rest.starts_with("false")) return false;
      if (rest.starts_with("true")) return true;
    }
  }
  internal_check_failed("goto scan finds a false or a true label", source_name, __LINE__);
}

void Translator::rename_label(Code& code, const std::string& from, const std::string& to) {
  if (from == to || from.empty()) return;
  const std::string& text = code.text();
  std::vector<Code::Edit> edits;
  for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + from.size())) {
    size_t end = at + from.size();
    bool whole = (at == 0 || !is_ident_char(text[at - 1])) && (end == text.size() || !is_ident_char(text[end]));
    if (whole) edits.push_back({at, from.size(), to});
  }
  code.apply(edits);
}

void Translator::alias_label(int from, int to) {
  from = label_representative(from);
  to = label_representative(to);
  if (from != to) label_alias_[from] = to;
}

int Translator::label_representative(int n) {
  int root = n;
  for (auto it = label_alias_.find(root); it != label_alias_.end(); it = label_alias_.find(root))
    root = it->second;
  // Path compression keeps later lookups short.
  while (n != root) {
    auto it = label_alias_.find(n);
    n = it->second;
    it->second = root;
  }
  return root;
}

void Translator::resolve_labels(Code& code) {
  if (label_alias_.empty()) return;
  const std::string head = names_.prefix() + names_.prefix() + "_";
  const std::string& text = code.text();
  std::string_view view(text);
  std::vector<Code::Edit> edits;
  for (size_t at = text.find(head); at != std::string::npos; at = text.find(head, at + 1)) {
    if (at > 0 && is_ident_char(text[at - 1])) continue;
    size_t word = at + head.size();
    size_t digits = view.substr(word).starts_with("false")  ? word + 5
                    : view.substr(word).starts_with("true") ? word + 4
                                                            : std::string::npos;
    if (digits == std::string::npos) continue;
    size_t end = digits;
    while (end < text.size() && is_digit(text[end])) ++end;
    if (end == digits || end - digits > 9 || (end < text.size() && is_ident_char(text[end]))) continue;
    int n = std::stoi(text.substr(digits, end - digits));
    int r = label_representative(n);
    if (r != n) edits.push_back({digits, end - digits, std::to_string(r)});
  }
  code.apply(edits);
}

std::string Translator::control_on(int i) {
  Operand& e = operand(i);
  if (e.jump_form()) resolve_labels(code(i));
  int number = e.false_label ? e.false_label : next_label();
  std::string f = false_name(number);
  if (!e.reported) {
    std::string why = class_message(e, 2, true);
    if (!why.empty()) {
      report(e, "the control expression " + why);
      e.false_label = number;
      e.true_label = 0;
      return f;
    }
  }
  Code& text = code(i);
  if (e.true_label) {
    std::string t = true_name(e.true_label);
    if (last_goto_is_true(text.text()))
      text.append({"\ngoto ", f, ";\n", t, ":"});
    else
      text.append({"\n", t, ":"});
  } else if (!e.false_label) {
    text.append({"\nif(!(", e.value, ")) goto ", f, ";"});
  }
  e.false_label = number;
  e.true_label = 0;
  return f;
}

void Translator::jumps_to_value(int i) {
  std::string f = control_on(i);
  std::string t = temporary(4);
  Code& text = code(i);
  text.prepend(strf("\n%s = 0;", t.c_str()));
  text.append({"\n", t, " = 1;\n", f, ":"});
  Operand& e = operand(i);
  e.value = t;
  e.type_bits = 4;
  e.type_sym = 0;
  e.kind = 0;
  e.dims = 0;
  e.false_label = e.true_label = 0;
  e.lvalue = e.literal = e.empty = false;
}

void Translator::finish_expression(int i, bool as_statement) {
  Operand& e = operand(i);
  if (e.jump_form()) {
    std::string f = control_on(i);
    code(i).append({"\n", f, ":"});
    operand(i).false_label = 0;
    operand(i).value.clear();
    return;
  }
  if (as_statement && e.emit && !e.value.empty()) {
    if (options_.versioned_loops && !fn().versions.empty()) collect_unchecked(e.value);
    code(i).append({"\n", e.value, ";"});
  }
  e.value.clear();
  e.emit = false;
}

}  // namespace ycc
