// Calls. A callee is a function whose prototype is visible, or a function
// pointer called with (*x). Every generated function returns void and takes
// the returns array first: slot 0 points to the caller's exception code, the
// next slots to the return variables, then, for a library function that
// writes a character space, the two slots of its checked target. After a
// call of a YARL C function the exception code is tested; after a library
// call that can fail, a failed memory request is.
#include "common/text.h"
#include "decl/functions.h"
#include "decl/library_table.h"
#include "decl/type_keywords.h"
#include "translate/call_site.h"
#include "translate/translator.h"

namespace ycc {

namespace {
constexpr int memory_exception = 32000;

// A variable's name, or "(*name)" for a structure or space that came by
// reference: its address does not depend on when it is taken.
bool plain_object(std::string_view text) {
  if (text.starts_with("(*") && text.ends_with(")")) text = text.substr(2, text.size() - 3);
  return !text.empty() && !is_digit(text[0]) &&
         std::all_of(text.begin(), text.end(), [](char c) { return is_ident_char(c); });
}
}  // namespace

void Translator::call(const CallInfo& info) {
  int operands = info.return_count + (info.through_pointer ? 1 : 0) + info.argument_count;
  ensure_operands(operands, info.callee->line);
  int first = top_index() - operands + 1;
  int returns_at = first;
  int pointer_at = first + info.return_count;
  int args_at = pointer_at + (info.through_pointer ? 1 : 0);

  CallSite site;
  site.line = info.callee->line;
  bool reported = false;
  for (int k = first; k <= top_index(); ++k) reported = reported || operand(k).reported;
  auto fail = [&](const std::string& text) {
    if (!reported) diag_.error(site.line, text);
    reported = true;
  };

  // ---- The callee.
  std::string callee_text;
  std::string direct;  // the callee's direct form, under --direct-calls
  if (info.through_pointer) {
    site.head = "call using '(*x)' notation";
    site.reference = "the function-pointer type";
    site.possessive = "function pointer's";
    to_value(pointer_at);
    Operand& p = operand(pointer_at);
    if (!p.reported && (p.kind != 'n' || p.dims > 0)) fail(site.head + " : x is not a function pointer");
    site.signature = p.kind == 'n' ? p.type_sym : 0;
    callee_text = "\n(*(" + p.value + "))(";
  } else {
    site.name = std::string(info.callee->text());
    site.head = "call '" + site.name + "'";
    site.reference = "the prototype";
    site.possessive = "prototype's";
    int sub = symbols_.find_other('o', site.name, 0);
    if (!sub || (symbols_[sub].name_is != 'f' && symbols_[sub].name_is != 'd')) {
      fail(strf("%s : either '%s' is not a function or its prototype is not visible from this call location",
                site.head.c_str(), site.name.c_str()));
    } else {
      ++symbols_[sub].ref_count;
      site.signature = function_signature(symbols_, sub);
      direct = decl_.emitter().direct_name(sub);
      site.library = find_library_function(symbols_[sub].name);
      if (site.name == "main") site.library = -1;
      callee_text = "\n" + decl_.emitter().function_name(sub) + "(";
    }
  }
  for (int k = args_at; k <= top_index(); ++k) to_value(k);

  // ---- Counts, parameters, returns, formats.
  FunctionLists lists;
  if (site.signature && !reported) {
    lists = function_lists(symbols_, site.signature);
    const Symbol& f = symbols_[site.signature];
    int want = static_cast<int>(lists.params.size());
    bool variadic = f.ellipsis == 'y';
    int given = info.argument_count;
    if (given < want || (!variadic && given > want))
      fail(strf("%s : %s has%s %d parameter%s, but this call has %d parameter%s", site.head.c_str(),
                site.reference.c_str(), variadic ? " at least" : "", want, want == 1 ? "" : "s", given,
                given == 1 ? "" : "s"));
    int nret = static_cast<int>(lists.returns.size());
    if (!reported && info.return_count > 0 && info.return_count != nret)
      fail(strf("%s : %s has %d return%s, but this call has %d return variable%s", site.head.c_str(),
                site.reference.c_str(), nret, nret == 1 ? "" : "s", info.return_count,
                info.return_count == 1 ? "" : "s"));
  }
  if (site.signature && !reported) {
    for (int i = 0; i < static_cast<int>(lists.params.size()) && i < info.argument_count && !reported; ++i)
      if (!check_argument(site, operand(args_at + i), lists.params[static_cast<size_t>(i)], i + 1)) reported = true;
    for (int i = 0; i < info.return_count && !reported; ++i)
      if (!check_return_variable(site, operand(returns_at + i), lists.returns[static_cast<size_t>(i)], i + 1))
        reported = true;
    if (!reported && info.followed_by_operator && info.return_count > 0) {
      bool many = info.return_count > 1;
      fail(strf("%s : without parentheses, the assignment operator is ambiguous: if the intention is to use the%s "
                "return value of this call anonymously in the arithmetic expression, then enclose this call in "
                "parentheses: (call) : otherwise, if the intention is to first assign the return value%s to%s "
                "return variable%s, then enclose the assignment in parentheses: (return variable%s = call)",
                site.head.c_str(), many ? " first" : "", many ? "s" : "", " the", many ? "s" : "",
                many ? "s" : ""));
    }
    if (!reported && site.library >= 0) {
      const LibraryFunction& row = library_function(site.library);
      if (row.printf_like == 'y' || row.scanf_like == 'y')
        reported = !check_format(site, args_at, info.argument_count, row.scanf_like == 'y');
      if (!reported && (site.name == "qsort" || site.name == "bsearch"))
        reported = !check_sorting(site, args_at, info.argument_count);
    }
    if (!reported && site.library < 0) reported = !check_integrity(site, returns_at, info.return_count, args_at,
                                                                    info.argument_count, lists);
  }

  // --direct-calls: a math function that is C's own, with C's types, is
  // called by its C name as a value; it never raises and touches no
  // space, so no returns array or exception test is needed.
  bool c_math = false;
  if (options_.direct_calls && site.library >= 0 && site.signature && !reported) {
    CMathForm form = c_math_form(site.name);
    auto is_form = [&](int sym) {
      return symbols_[sym].dim_count() == 0 && symbols_.resolve_type(symbols_[sym].type_sym) == 0 &&
             symbols_.type_bits_of(sym) == form.type_bits;
    };
    c_math = form.params == static_cast<int>(lists.params.size()) && lists.returns.size() == 1 &&
             info.argument_count == form.params && info.return_count <= 1 &&
             std::all_of(lists.params.begin(), lists.params.end(), is_form) && is_form(lists.returns[0]);
  }

  // A loop written twice copies only the statements' values: a call whose
  // C text is more than a value keeps the loop checked.
  if (!c_math && options_.versioned_loops && !fn().versions.empty()) fn().versions.back().candidate = false;

  // ---- The C text.
  std::string value;
  int value_bits = 0, value_sym = 0, value_dims = 0;
  char value_kind = 0;
  Code text;
  for (int k = first; k <= top_index(); ++k) {
    Operand& o = operand(k);
    bool written = k < pointer_at || (site.signature && k >= args_at && k - args_at < static_cast<int>(lists.params.size()) &&
                                      by_reference(lists.params[static_cast<size_t>(k - args_at)], o));
    if (written) o.code.rewrite_written();
    text += std::move(o.code);
  }
  // A call used as a value: its first return, in a temporary.
  if (site.signature && info.return_count == 0 && !symbols_[site.signature].name.empty()) {
    FunctionLists l = lists.returns.empty() && lists.params.empty() ? function_lists(symbols_, site.signature) : lists;
    if (!l.returns.empty()) {
      int r = l.returns[0];
      value = c_math ? c_math_call(site, args_at, info.argument_count) : return_temporary(r);
      value_dims = symbols_[r].dim_count();
      value_bits = symbols_.type_bits_of(r);
      value_sym = symbols_.resolve_type(symbols_[r].type_sym);
      if (value_sym) {
        char k = symbols_[value_sym].name_is;
        value_kind = k == 's' ? 's' : k == 'e' ? 'e' : k == 'n' ? 'n' : 0;
      }
    }
  }
  // The return variables, or temporaries for a call used as a value.
  std::vector<std::string> targets;
  bool emitting = !reported && site.signature && diag_.errors == 0;
  for (int i = 0; emitting && i < static_cast<int>(lists.returns.size()); ++i) {
    if (i < info.return_count)
      targets.push_back(argument_object(operand(returns_at + i)));
    else
      targets.push_back(i == 0 ? value : return_temporary(lists.returns[static_cast<size_t>(i)]));
  }
  // A target more complex than a name keeps the described form, whose slots
  // are set before the arguments are computed.
  if (emitting && c_math) {
    if (info.return_count == 1) {
      std::string statement = targets[0] + " = " + c_math_call(site, args_at, info.argument_count);
      if (options_.versioned_loops && !fn().versions.empty()) collect_unchecked(statement);
      text += "\n" + statement + ";";
    }
  } else if (emitting && !direct.empty() && std::all_of(targets.begin(), targets.end(), plain_object)) {
    text += direct_call(site, info, direct, targets, args_at, lists);
  } else if (emitting) {
    const LibraryFunction* row = site.library >= 0 ? &library_function(site.library) : nullptr;
    std::string actuals = generated("actuals");
    int slots = 1 + static_cast<int>(lists.returns.size());
    std::string t;
    appendf(t, "\n%s[%d] = &(%s);", actuals.c_str(), 0, generated("exception").c_str());
    for (size_t i = 0; i < targets.size(); ++i)
      appendf(t, "\n%s[%d] = &(%s);", actuals.c_str(), static_cast<int>(i + 1), targets[i].c_str());
    // The checked target: a varspace grows, a fixed-space reports what did not fit.
    std::string needed, limit_temp, target_record;
    bool checked = row && row->checked_target > 0 && info.argument_count >= row->checked_target;
    if (checked) {
      Operand& target = operand(args_at + row->checked_target - 1);
      target_record = target.ref ? target.ref->record : std::string();
      bool var = target.ref && symbols_[target.ref->sym].is_var == 'y' && !target.partial;
      if (var) {
        appendf(t, "\n%s[%d] = %s[%d] = NULL;", actuals.c_str(), slots, actuals.c_str(), slots + 1);
      } else {
        needed = temporary(128);
        limit_temp = temporary(128);
        appendf(t, "\n%s = 0;\n%s[%d] = &(%s);\n%s[%d] = &(%s);", needed.c_str(), actuals.c_str(), slots,
                  needed.c_str(), actuals.c_str(), slots + 1, limit_temp.c_str());
      }
      slots += 2;
    }
    fn().actuals = std::max(fn().actuals, slots);
    // The parameters: spaces and structures by reference, the rest by value.
    std::string args;
    for (int i = 0; i < info.argument_count; ++i) {
      Operand& a = operand(args_at + i);
      int param = i < static_cast<int>(lists.params.size()) ? lists.params[static_cast<size_t>(i)] : 0;
      args += ", " + argument_text(site, a, param, t);
      if (row && (site.name == "qsort" || site.name == "bsearch") && i == 0)
        appendf(args, ", sizeof(struct %s)", decl_.emitter().tag_name(operand(args_at).type_sym).c_str());
    }
    t += callee_text + actuals + args + ");";
    if (checked && !target_record.empty()) {
      // occurs is the length of the text within the limit.
      std::string n = temporary(128);
      const char* rec = target_record.c_str();
      appendf(t, "\nfor(%s = 0; %s < %s.limit1 && *(((unsigned char *)%s.ptr) + %s) != 0; ++%s)\n   ;\n%s.occurs = %s;",
                n.c_str(), n.c_str(), rec, rec, n.c_str(), n.c_str(), rec, n.c_str());
      if (!needed.empty() && options_.bounds_checks)
        appendf(t, "\nif(%s)%s\n   %s(\"'%s()' out\", %d, 2, (%s)(%s), (%s)(%s));", needed.c_str(),
                  ws_.check_marker('s', site.line).c_str(), support_.bounds_exceeded().c_str(), site.name.c_str(), support_.position(site.line), "unsigned",
                  needed.c_str(), "unsigned", limit_temp.c_str());
    }
    t += exception_test(site, row);
    text += t;
  }
  drop_operands(operands);
  Operand& e = push_operand(site.line);
  e.code = std::move(text);
  e.reported = reported;
  if (value.empty()) {
    e.empty = true;
  } else {
    e.value = value;
    e.dims = value_dims;
    e.type_bits = value_kind ? 0 : value_bits;
    e.type_sym = value_sym;
    e.kind = value_kind;
  }
}

// A call of a function's direct form: the return variables' addresses as
// arguments and the exception code as the value.
std::string Translator::direct_call(const CallSite& site, const CallInfo& info, const std::string& direct,
                                    const std::vector<std::string>& targets, int args_at,
                                    const FunctionLists& lists) {
  std::vector<std::string> parts;
  for (const std::string& target : targets) parts.push_back("&(" + target + ")");
  std::string prep;
  for (int i = 0; i < info.argument_count; ++i) {
    int param = i < static_cast<int>(lists.params.size()) ? lists.params[static_cast<size_t>(i)] : 0;
    parts.push_back(argument_text(site, operand(args_at + i), param, prep));
  }
  std::string t = prep;
  appendf(t, "\n%s = %s(", generated("exception").c_str(), direct.c_str());
  for (size_t i = 0; i < parts.size(); ++i) t += (i ? ", " : "") + parts[i];
  t += ");";
  return t + exception_test(site, nullptr);
}

std::string Translator::c_math_call(const CallSite& site, int args_at, int argument_count) {
  support_.use_c_math(site.name);
  std::string t = site.name + "(";
  for (int i = 0; i < argument_count; ++i) t += (i ? ", " : "") + operand(args_at + i).value;
  return t + ")";
}

std::string Translator::exception_test(const CallSite& site, const LibraryFunction* row) {
  std::string exc = generated("exception");
  std::string t;
  if (!row || row->raises == 'y') t = ws_.check_marker('e', site.line);
  if (!row) {
    // A YARL C function: its exception goes to a handler of this function or on up.
    appendf(t, "\nif(%s) {", exc.c_str());
    for (int n : fn().handler_order)
      appendf(t, "\n   if(%s == %d) {\n      %s = 0;\n      goto %s;\n   }", exc.c_str(), n, exc.c_str(),
                generated("exception", n).c_str());
    appendf(t, "\n   goto %s;\n}", generated("finish").c_str());
    return t;
  }
  if (row->raises != 'y') return t;
  appendf(t, "\nif(%s) {", exc.c_str());
  if (options_.memory_locations) t += strf("\n   %s(%d);", support_.out_of_memory().c_str(), support_.position(site.line));
  if (fn().handles(memory_exception))
    appendf(t, "\n   %s = 0;\n   goto %s;\n}", exc.c_str(), generated("exception", memory_exception).c_str());
  else
    appendf(t, "\n   goto %s;\n}", generated("finish").c_str());
  return t;
}

// ---- Arguments ---------------------------------------------------------------------------

bool Translator::by_reference(int param, const Operand& a) const {
  const Symbol& p = symbols_[param];
  if (p.dim_count() > 0) return true;
  int t = symbols_.resolve_type(p.type_sym);
  if (t && symbols_[t].name_is == 's') return true;
  return p.role[0] == 'a' && is_aggregate(a);
}

std::string Translator::argument_object(const Operand& a) {
  // A space is its record (a string literal's included).
  if (a.dims > 0 && a.ref && !a.partial) return a.ref->record;
  return a.value;
}

std::string Translator::argument_text(const CallSite& site, Operand& a, int param, std::string& prep) {
  if (a.dims > 0 && a.ref) {
    if (!a.partial) return "&(" + a.ref->record + ")";
    // A row of a space: a record of the remaining dimensions, made on the fly.
    const Reference& r = *a.ref;
    int n = symbols_[r.last_sym].dim_count();
    int k = n - a.dims;
    std::string md = meta_temporary(a.dims);
    appendf(prep, "\n%s.ptr = (void *)%s;", md.c_str(), a.value.c_str());
    for (int d = 1; d <= a.dims; ++d) prep += strf("\n%s.limit%d = %s.limit%d;", md.c_str(), d, r.last_record.c_str(), k + d);
    if (a.dims == 1) prep += strf("\n%s.occurs = %s.limit%d;", md.c_str(), md.c_str(), 1);
    return "&(" + md + ")";
  }
  if (a.kind == 's' || a.dims > 0) return "&(" + a.value + ")";
  if (param) {
    const Symbol& p = symbols_[param];
    int t = symbols_.resolve_type(p.type_sym);
    // A comparison function goes to the library as the parameter's own type.
    if (t && symbols_[t].name_is == 'n' && is_function(a) && site.library >= 0)
      return strf("(%s)(%s)", decl_.emitter().fun_pointer(t, "").c_str(), a.value.c_str());
  }
  return a.value;
}

}  // namespace ycc
