// Statements: each one joins the fragments of its parts, left on the stack
// by the statements and expressions inside it, into one fragment of labels
// and gotos. A statement that is an item of a block is flushed into the
// fragment of the enclosing statement, or into the work file at the
// function's top level.
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdlib>

#include "common/c_names.h"
#include "common/text.h"
#include "translate/translator.h"

namespace ycc {

namespace {

const char source_name[] = "yc_fun2";
constexpr int max_exception = 32000;

}  // namespace

int Translator::unlabelled_frames() const {
  int n = 0;
  if (!fn_) return 0;
  for (const FunctionContext::Frame& f : fn_->frames)
    if (!f.labelled) ++n;
  return n;
}

// ---- Function bodies, blocks and statement frames -----------------------------

void Translator::open_function_body(const Token&, const FunctionLabels& labels) {
  fn_ = std::make_unique<FunctionContext>();
  FunctionContext& f = *fn_;
  for (const Token* t : labels.labels) {
    FunctionContext::Label& info = f.statement_labels[std::string(t->text())];
    if (info.line == 0) info.line = t->line;
  }
  for (const Token* t : labels.handlers) {
    char* end = nullptr;
    errno = 0;
    long n = std::strtol(std::string(t->text()).c_str(), &end, 10);
    if (errno || n < 1 || n > max_exception) continue;
    if (f.handlers.emplace(static_cast<int>(n), false).second) f.handler_order.push_back(static_cast<int>(n));
  }
  clear_stack();
  f.frames.push_back({true, 0});
  ws_.to_fragment = true;
}

void Translator::close_function_body(const Token& rbrace) {
  if (fn().added_length_used && !fn().cast_assigned && decl_.current_function())
    diag_.error(rbrace.line,
                strf("the reserved word 'added_length' was used as a variable in function '%s', but there was no "
                     "assignment to a type-cast character space in that function which would cause "
                     "'added_length' to have a value",
                     symbols_[decl_.current_function()].name.c_str()));
  for (const auto& [name, info] : fn().statement_labels)
    if (info.defined > 0 && info.referenced == 0)
      diag_.warning(info.line, strf("statement label '%s' is unreferenced in this function", name.c_str()), 2);
  ws_.to_fragment = false;
  if (fn().actuals > 0 && diag_.errors == 0) {
    std::string actuals = generated("actuals");
    appendf(ws_.wd_locals, "\nvoid *%s[%d];", actuals.c_str(), fn().actuals);
    appendf(ws_.wd_init_code, "\n%s[0] = &(%s);", actuals.c_str(), generated("exception").c_str());
  }
  clear_stack();
  fn_.reset();
}

void Translator::begin_statement(const Token& first) {
  FunctionContext& f = fn();
  f.temp_next.fill(0);
  // Calls used as values are rare: their counts are mostly empty already.
  if (!f.rt_next.empty()) f.rt_next.clear();
  if (!f.md_next.empty()) f.md_next.clear();
  f.frames.push_back({false, stack_size(), false, first.line});
}

void Translator::end_statement(const Token& last) {
  if (fn().frames.empty()) return;
  FunctionContext::Frame f = fn().frames.back();
  fn().frames.pop_back();
  if (stack_size() < f.level) return;
  join_above(f.level, last.line);
  if (options_.line_directives) mark_lines(code(top_index()), f.line);
  if (!fn().frames.empty() && !fn().frames.back().block) return;
  // A block item: flushed into the enclosing fragment or the work file.
  if (stack_size() > 1) {
    join_popped_text(top_index() - 1);
    return;
  }
  // Popped first: with no operand left, put_text writes to the work text.
  Code& c = pop_code_in_place();
  ws_.put_text('n', c.text());
  c.clear();
}

void Translator::mark_lines(Code& c, int line_code) {
  const std::string& t = c.text();
  const std::string directive = strf("#line %d \"%s\"\n", line_code % 1000000,
                                     c_string_text(diag_.files().name(line_code / 1000000)).c_str());
  std::vector<Code::Edit> edits;
  bool directed = false;  // the line before is a "#line" directive
  for (size_t pos = 0; pos <= t.size();) {
    size_t nl = t.find('\n', pos);
    if (nl == std::string::npos) nl = t.size();
    std::string_view line(t.data() + pos, nl - pos);
    if (line.starts_with('#')) {
      // Marker lines never reach the C file; a directive covers the next line.
      if (line.starts_with("#line ")) directed = true;
    } else if (line.find_first_not_of(' ') == std::string_view::npos) {
      directed = false;  // an empty line would shift the numbering
    } else {
      if (!directed) edits.push_back({pos, 0, pos == 0 ? "\n" + directive : directive});
      directed = false;
    }
    pos = nl + 1;
  }
  if (!edits.empty()) c.apply(edits);
}

void Translator::expression_statement(const Token& semicolon) {
  ensure_operands(1, semicolon.line);
  finish_expression(top_index(), true);
}

void Translator::empty_statement(const Token& semicolon) { push_operand(semicolon.line); }

void Translator::open_block(const Token& lbrace) {
  push_operand(lbrace.line);
  fn().frames.push_back({true, stack_size()});
}

void Translator::close_block(const Token&) {
  if (!fn().frames.empty() && fn().frames.back().block) fn().frames.pop_back();
  // C wants a statement between a label and the brace that closes a block.
  if (stack_size() > 0) {
    Code& text = code(top_index());
    if (text.text().starts_with("\n{") && ends_with(text.text(), ":")) text += "\n;";
  }
}

// ---- Structured statements ----------------------------------------------------------

void Translator::control_expression(const Token& rparen) {
  ensure_operands(1, rparen.line);
  control_on(top_index());
}

void Translator::if_end(bool has_else, const Token& last) {
  ensure_operands(has_else ? 3 : 2, last.line);
  // The branches are read in their slots, which nothing reuses before the end.
  static const Code no_code;
  const Code& else_code = has_else ? pop_code_in_place() : no_code;
  const Code& then_code = pop_code_in_place();
  int i = top_index();
  std::string f = false_name(operand(i).false_label);
  Code& text = code(i);
  if (has_else) {
    std::string skip = generated("skip", ++skip_counter_);
    text += std::string_view(then_code.text());
    text.append({"\ngoto ", skip, ";\n", f, ":"});
    text += std::string_view(else_code.text());
    text.append({"\n", skip, ":"});
  } else {
    text += std::string_view(then_code.text());
    text.append({"\n", f, ":"});
  }
  Operand& e = operand(i);
  e.value.clear();
  e.false_label = e.true_label = 0;
}

FunctionContext::Loop Translator::pop_loop() {
  FunctionContext::Loop loop{'p', "", ""};
  if (!fn().loops.empty()) {
    loop = std::move(fn().loops.back());
    fn().loops.pop_back();
  }
  return loop;
}

void Translator::while_start(const Token& rparen) {
  ensure_operands(1, rparen.line);
  std::string f = control_on(top_index());
  fn().loops.push_back({'p', generated("cont", ++cont_counter_), f});
}

void Translator::while_end(const Token& last) {
  ensure_operands(2, last.line);
  FunctionContext::Loop loop = pop_loop();
  const Code& body = pop_code_in_place();
  const Code& condition = pop_code_in_place();
  const std::string& c = loop.cont;
  replace_top(0, concat({"\n", c, ":", condition.text(), body.text(), "\ngoto ", c, ";\n", loop.brk, ":"}),
              last.line);
}

void Translator::do_start(const Token&) {
  std::string c = generated("cont", ++cont_counter_);
  fn().loops.push_back({'p', c, false_name(next_label())});
}

void Translator::do_end(const Token& rparen) {
  ensure_operands(2, rparen.line);
  FunctionContext::Loop loop = pop_loop();
  std::string top = generated("cont", ++cont_counter_);
  std::string own_false = control_on(top_index());
  Code& condition = pop_code_in_place();
  rename_label(condition, own_false, loop.brk);
  const Code& body = pop_code_in_place();
  replace_top(0,
              concat({"\n", top, ":", body.text(), "\n", loop.cont, ":", condition.text(), "\ngoto ", top, ";\n",
                      loop.brk, ":"}),
              rparen.line);
}

void Translator::for_start(const Token& keyword, bool has_init, bool has_condition, bool has_step,
                           const Token& rparen) {
  int heads = (has_init ? 1 : 0) + (has_condition ? 1 : 0) + (has_step ? 1 : 0);
  ensure_operands(heads, rparen.line);
  int i = stack_size() - heads;
  if (has_init) finish_expression(i++, true);
  int condition = has_condition ? i++ : -1;
  if (has_step) finish_expression(i, true);
  std::string f = condition >= 0 ? control_on(condition) : false_name(next_label());
  fn().loops.push_back({'p', generated("cont", ++cont_counter_), f});
  fn().for_heads.push_back((has_init ? 1 : 0) | (has_condition ? 2 : 0) | (has_step ? 4 : 0));
  if (options_.versioned_loops) fn().versions.push_back(plan_loop_version(keyword));
}

void Translator::for_end(const Token& last) {
  int heads = fn().for_heads.empty() ? 0 : fn().for_heads.back();
  if (!fn().for_heads.empty()) fn().for_heads.pop_back();
  FunctionContext::Loop loop = pop_loop();
  int count = 1 + ((heads & 1) ? 1 : 0) + ((heads & 2) ? 1 : 0) + ((heads & 4) ? 1 : 0);
  ensure_operands(count, last.line);
  std::string init, condition, step, body;
  body = pop_text();
  if (heads & 4) step = pop_text();
  if (heads & 2) condition = pop_text();
  if (heads & 1) init = pop_text();
  std::string twice;
  if (options_.versioned_loops && !fn().versions.empty()) {
    twice = versioned_loop(fn().versions.back(), condition, body, step);
    fn().versions.pop_back();
  }
  std::string top = generated("cont", ++cont_counter_);
  replace_top(0,
              concat({init, twice, "\n", top, ":", condition, body, "\n", loop.cont, ":", step, "\ngoto ", top, ";\n",
                      loop.brk, ":"}),
              last.line);
}

// ---- Jumps ---------------------------------------------------------------------------

void Translator::goto_stmt(const Token& label) {
  std::string name(label.text());
  push_operand(label.line);
  auto found = fn().statement_labels.find(name);
  if (found == fn().statement_labels.end()) {
    diag_.error(label.line,
                strf("the goto label '%s' is not defined as a statement label in this function", name.c_str()));
  } else {
    ++found->second.referenced;
  }
  code(top_index()) += "\ngoto " + c_name(name) + ";";
}

void Translator::continue_stmt(const Token& keyword) {
  push_operand(keyword.line);
  for (auto it = fn().loops.rbegin(); it != fn().loops.rend(); ++it) {
    if (it->kind == 'p') {
      code(top_index()) += "\ngoto " + it->cont + ";";
      return;
    }
  }
  diag_.error(keyword.line,
              "illegal placement of continue: there is no enclosing while, do, or for statement");
}

void Translator::break_stmt(const Token& keyword) {
  push_operand(keyword.line);
  if (fn().loops.empty()) {
    diag_.error(keyword.line,
                "illegal placement of break: there is no enclosing while, do, for, or switch statement");
    return;
  }
  const FunctionContext::Loop& loop = fn().loops.back();
  if (loop.kind == 'p')
    code(top_index()) += "\ngoto " + loop.brk + ";";
  else if (loop.kind == 's')
    code(top_index()) += "\nbreak;";
  else
    internal_check_failed("loop kind 'p' or 's'", source_name, __LINE__);
}

void Translator::return_stmt(const Token& keyword) {
  push_operand(keyword.line);
  code(top_index()) += "\ngoto " + generated("finish") + ";";
}

bool Translator::exception_number(const Token& number, int& value) {
  std::string text(number.text());
  errno = 0;
  char* end = nullptr;
  long n = std::strtol(text.c_str(), &end, 10);
  bool ok = errno == 0 && end && *end == '\0' && n >= 1 && n <= max_exception;
  if (!ok) {
    diag_.error(number.line,
                strf("an exception number must be between 1 and %d inclusive: number '%s' is invalid",
                     max_exception, text.c_str()));
    value = n >= INT_MIN && n <= INT_MAX ? static_cast<int>(n) : 0;
    return false;
  }
  value = static_cast<int>(n);
  return true;
}

void Translator::raise_stmt(const Token& number) {
  int n = 0;
  exception_number(number, n);
  push_operand(number.line);
  appendf(code(top_index()), "\n%s = %d;\ngoto %s;", generated("exception").c_str(), n,
                           generated("finish").c_str());
}

// ---- Labelled statements -----------------------------------------------------------

void Translator::enter_labelled_statement(LabelKind kind, const Token&) {
  if (!fn().frames.empty()) fn().frames.back().labelled = true;
  fn().labels_pending.push_back(std::string());
  if (fn().switches.empty()) return;
  FunctionContext::Switch& sw = fn().switches.back();
  ++sw.label_depth;
  if (kind == LabelKind::Case || kind == LabelKind::Default) sw.break_pending = true;
}

void Translator::statement_label(const Token& name) {
  std::string n(name.text());
  FunctionContext::Label& info = fn().statement_labels[n];
  if (info.line == 0) info.line = name.line;
  if (++info.defined > 1)
    diag_.error(name.line,
                strf("statement label '%s' is a duplicate: defined elsewhere in this function", n.c_str()));
  if (!fn().labels_pending.empty()) fn().labels_pending.back() = "\n" + c_name(n) + ":";
}

void Translator::case_label(CaseForm form, int mode, const Token& value) {
  Folded folded;
  if (form == CaseForm::ConstantExpression) folded = decl_.pop_constant();
  std::string* pending = fn().labels_pending.empty() ? nullptr : &fn().labels_pending.back();
  if (fn().switches.empty()) {
    diag_.error(value.line, "a case label can only appear within a switch statement");
    return;
  }
  FunctionContext::Switch& sw = fn().switches.back();
  if (unlabelled_frames() != sw.depth)
    diag_.error(value.line, "a case label must appear on a top-level statement within the switch statement");
  if (mode != 1 && mode != 2) internal_check_failed("mode == 1 || mode == 2", source_name, __LINE__);

  if (form == CaseForm::Identifier) {
    std::string name(value.text());
    int sub = symbols_.find_other('o', name, 0);
    if (sub) ++symbols_[sub].ref_count;
    if (pending) *pending = "\ncase " + c_name(name) + ":";
    if (!sw.enum_type) {
      diag_.error(value.line,
                  strf("invalid case label: unless the switch expression is an enumeration variable (it "
                       "is not) and '%s' is an enumeration constant of that enumeration type, then case "
                       "label '%s' is invalid",
                       name.c_str(), name.c_str()));
    } else if (!sub || symbols_[sub].name_is != 'c') {
      diag_.error(value.line,
                  strf("invalid case label: label '%s' is not an enumeration constant (or zero) as "
                       "required by the enumeration type of the switch expression",
                       name.c_str()));
    } else if (symbols_[sub].owner != sw.enum_type) {
      diag_.error(value.line,
                  strf("invalid case label: label '%s' is an enumeration constant, but it does not "
                       "belong to the enumeration type of the switch expression as required",
                       name.c_str()));
    } else {
      if (!sw.constants.insert(sub).second)
        diag_.error(value.line,
                    strf("duplicate case label: label '%s' must be unique within the switch statement",
                         name.c_str()));
    }
    return;
  }

  // A numeric value: a folded constant or a character constant.
  std::string sign, text;
  long long number = 0;
  if (form == CaseForm::Character) {
    CharacterConstant c = check_character_constant(value.text(), diag_, value.line);
    text = c.c_text;
    number = c.value;
  } else {
    if (folded.kind == 'f') {
      diag_.error(value.line, "invalid case label: the label value has a floating-point type");
      if (pending) *pending = "\ncase 1:";
      return;
    }
    bool negative;
    double magnitude;
    if (folded.converted) {
      negative = folded.value < 0;
      magnitude = std::trunc(negative ? -folded.value : folded.value);
      text = strf("%.0f", magnitude);
    } else {
      negative = folded.negative;
      errno = 0;
      unsigned long long u = std::strtoull(folded.text.c_str(), nullptr, folded.kind == 'x' ? 16 : 10);
      magnitude = errno == ERANGE ? 1e30 : static_cast<double>(u);
      text = folded.text;
    }
    if ((negative && magnitude > 2147483648.0) || (!negative && magnitude > 4294967295.0)) {
      diag_.error(value.line,
                  strf("invalid case label: the label value exceeds the representation limits of type "
                       "'%s', which is the largest integral type",
                       negative ? "long" : "unsigned long"));
      if (pending) *pending = "\ncase 1:";
      return;
    }
    sign = negative && magnitude != 0 ? "-" : "";
    number = static_cast<long long>(magnitude) * (negative ? -1 : 1);
  }
  if (pending) *pending = "\ncase " + sign + text + ":";
  if (sw.enum_type && number != 0) {
    diag_.error(value.line,
                strf("invalid case label: label '%s%s' is not an enumeration constant (or zero) as "
                     "required by the enumeration type of the switch expression",
                     sign.c_str(), text.c_str()));
    return;
  }
  if (!sw.values.insert(number).second)
    diag_.error(value.line,
                strf("duplicate case label: label value '%s%s' must be unique within the switch "
                     "statement",
                     sign.c_str(), text.c_str()));
}

void Translator::default_label(const Token& keyword) {
  if (!fn().labels_pending.empty()) fn().labels_pending.back() = "\ndefault:";
  if (fn().switches.empty()) {
    diag_.error(keyword.line, "a default label can only appear within a switch statement");
    return;
  }
  FunctionContext::Switch& sw = fn().switches.back();
  if (unlabelled_frames() != sw.depth)
    diag_.error(keyword.line,
                "a default label must appear on a top-level statement within the switch statement");
  if (sw.default_seen)
    diag_.error(keyword.line,
                "duplicate default label: the default label can only occur at most once within the "
                "switch statement");
  sw.default_seen = true;
}

void Translator::exception_handler(const Token& number) {
  int n = 0;
  bool valid = exception_number(number, n);
  if (!fn().labels_pending.empty()) fn().labels_pending.back() = "\n" + generated("exception", n) + ":";
  if (!valid) return;
  bool& defined = fn().handlers[n];
  if (defined)
    diag_.error(number.line,
                strf("duplicate : the function has more than a single handler defined for exception %d", n));
  defined = true;
}

void Translator::leave_labelled_statement(LabelKind, const Token& last) {
  ensure_operands(1, last.line);
  std::string label;
  if (!fn().labels_pending.empty()) {
    label = std::move(fn().labels_pending.back());
    fn().labels_pending.pop_back();
  }
  Code& text = code(top_index());
  text.prepend(label);
  if (fn().switches.empty()) return;
  FunctionContext::Switch& sw = fn().switches.back();
  if (--sw.label_depth == 0 && sw.break_pending) {
    sw.break_pending = false;
    text.prepend("\nbreak;");
  }
}

// ---- switch ----------------------------------------------------------------------------

void Translator::switch_start(const Token& rparen) {
  ensure_operands(1, rparen.line);
  int i = top_index();
  to_value(i);
  Operand& e = operand(i);
  bool integral = class_passes(e, 7, true);
  bool enumeration = is_enum(e) && e.dims == 0 && !e.casted;
  if (!e.reported && !integral && !enumeration)
    report(e, "the expression of the switch statement requires an integral or enumeration type");
  FunctionContext::Switch sw;
  sw.enum_type = e.kind == 'e' && e.dims == 0 ? e.type_sym : 0;
  sw.depth = unlabelled_frames() + 2;
  fn().switches.push_back(sw);
  fn().loops.push_back({'s', "", ""});
}

void Translator::switch_end(const Token& rbrace) {
  ensure_operands(2, rbrace.line);
  FunctionContext::Switch sw = fn().switches.empty() ? FunctionContext::Switch{} : fn().switches.back();
  if (!fn().switches.empty()) fn().switches.pop_back();
  if (!fn().loops.empty()) fn().loops.pop_back();
  if (sw.enum_type && !sw.default_seen) {
    int declared = symbols_[sw.enum_type].enum_count;
    int used = static_cast<int>(sw.constants.size());
    if (used != declared)
      diag_.error(rbrace.line,
                  strf("the enumeration type '%s' has %d enumeration constants, but this switch "
                       "statement has case labels for only %d of those enumeration constants, and "
                       "there is no 'default' label",
                       symbols_[sw.enum_type].shown_name().c_str(), declared, used));
  }
  std::string body = pop_text();
  int i = top_index();
  Code& text = code(i);
  text += concat({"\nswitch(", operand(i).value, ")\n{", body, "\n;}"});
  operand(i).value.clear();
}

}  // namespace ycc
