// --versioned-loops: an innermost for loop that steps an int variable
// toward its bound and whose body only assigns arithmetic values to scalars and to
// elements of spaces is written twice. Every subscript in such a body is the
// loop variable plus or minus invariant terms, or invariant: a linear
// function of the loop variable. The passes lie between the first value and
// the last one the bound allows, so when every subscript lies in range at
// those two ends it lies in range on every pass, no element is written past
// a limit and nothing can grow. A test before the loop decides that from the
// space records, once per entry: the copy without checks runs when it
// holds, the checked loop as always otherwise, so every report and every
// growth happens exactly where it did. Short loops always run checked.
#include <algorithm>
#include <string>
#include <vector>

#include "common/c_names.h"
#include "common/text.h"
#include "decl/library_table.h"
#include "decl/type_keywords.h"
#include "translate/translator.h"

namespace ycc {

namespace {

// The fewest passes for which the copy without checks runs.
constexpr int min_passes = 16;

// Token indices [begin, end).
struct Span {
  size_t begin = 0, end = 0;
};

struct SpaceUse {
  int sym = 0;
  std::vector<Span> subs;
  bool written = false;
};

// Reads the loop's tokens and says whether the loop has the shape; it
// writes nothing and reports nothing: anything unexpected means "no".
class LoopShape {
 public:
  // `c_math`: calls of the C math functions are values (--direct-calls).
  LoopShape(const TokenList& toks, const SymbolTable& symbols, bool c_math)
      : toks_(toks), symbols_(symbols), c_math_(c_math) {}

  // `at` is the index of the `for` keyword.
  bool read(size_t at);

  int var = 0;             // the loop variable
  Span bound;              // the condition's right side
  int bound_space = 0;     // or the one-dimensional space whose occurs it is
  bool inclusive = false;  // `<=` or `>=` rather than `<` or `>`
  bool descending = false; // `v > bound` or `v >= bound`, stepped by `--`
  Span stride;             // of `v += s` or `v = v + s`; empty for a step of one
  int statements = 0;      // assignments in the body
  std::vector<SpaceUse> uses;

 private:
  int tok(size_t i) const { return toks_.tok_at(i); }
  bool at(int t) const { return tok(p_) == t; }
  int lookup(size_t i) const { return symbols_.find_other('o', toks_[i].text(), 0); }
  // A variable of an arithmetic type (neither a structure nor a fun type).
  int arithmetic_variable(size_t i) const;
  int int_variable(size_t i) const;
  // A decimal constant of at most six digits, so that sums stay small.
  bool small_decimal(size_t i) const {
    if (tok(i) != T_DECIMALINT) return false;
    std::string_view d = toks_[i].text();
    return d.size() <= 6 && d.find_first_not_of("0123456789") == std::string_view::npos;
  }
  // A space of structures that hold no spaces, whose elements' arithmetic
  // members the body may use.
  int structure_space(size_t i) const;
  bool c_math_function(size_t i) const;
  bool linear(int stop, Span& s);
  bool subscripts(int sym, bool written);
  bool members(int sym);
  bool value();
  bool assignment();

  const TokenList& toks_;
  const SymbolTable& symbols_;
  const bool c_math_;
  size_t p_ = 0;
  std::vector<int> written_;    // scalars the body assigns
  std::vector<int> invariant_;  // variables the bound and the subscripts read
};

int LoopShape::arithmetic_variable(size_t i) const {
  if (tok(i) != T_IDENTIFIER) return 0;
  int s = lookup(i);
  if (!s || symbols_[s].name_is != 'v' || symbols_.resolve_type(symbols_[s].type_sym) != 0) return 0;
  return s;
}

int LoopShape::structure_space(size_t i) const {
  if (tok(i) != T_IDENTIFIER) return 0;
  int s = lookup(i);
  if (!s || symbols_[s].name_is != 'v' || symbols_[s].dim_count() == 0) return 0;
  int tag = symbols_.resolve_type(symbols_[s].type_sym);
  return tag && symbols_[tag].name_is == 's' && symbols_[tag].vf.empty() ? s : 0;
}

bool LoopShape::c_math_function(size_t i) const {
  if (!c_math_ || tok(i) != T_IDENTIFIER || tok(i + 1) != T_LPARENTHESIS) return false;
  int s = lookup(i);
  return s && (symbols_[s].name_is == 'f' || symbols_[s].name_is == 'd') &&
         find_library_function(symbols_[s].name) >= 0 && c_math_form(symbols_[s].name).params > 0;
}

int LoopShape::int_variable(size_t i) const {
  int s = arithmetic_variable(i);
  if (!s || symbols_[s].dim_count() != 0) return 0;
  int bits = symbols_.type_bits_of(s);
  return bits == TB_INT || bits == (TB_INT | TB_SIGNED) || bits == TB_SIGNED ? s : 0;
}

// Int variables, small decimal constants, + and - (also unary) and
// parentheses, up to `stop` outside them; the loop variable at most once.
bool LoopShape::linear(int stop, Span& s) {
  s.begin = p_;
  bool operand = true;
  int depth = 0;
  int var_uses = 0;
  for (;; ++p_) {
    int t = tok(p_);
    if (operand) {
      if (t == T_IDENTIFIER) {
        int v = int_variable(p_);
        if (!v) return false;
        if (v == var) {
          if (++var_uses > 1) return false;
        } else {
          invariant_.push_back(v);
        }
        operand = false;
      } else if (t == T_DECIMALINT) {
        if (!small_decimal(p_)) return false;
        operand = false;
      } else if (t == T_LPARENTHESIS) {
        ++depth;
      } else if (t != T_PLUS && t != T_MINUS) {
        return false;
      }
    } else if (t == T_PLUS || t == T_MINUS) {
      operand = true;
    } else if (t == T_RPARENTHESIS && depth > 0) {
      --depth;
    } else {
      s.end = p_;
      return t == stop && depth == 0;
    }
  }
}

// Every dimension of `sym` subscripted, p_ at its name.
bool LoopShape::subscripts(int sym, bool written) {
  SpaceUse use{sym, {}, written};
  ++p_;
  for (int d = 0; d < symbols_[sym].dim_count(); ++d) {
    if (!at(T_LSQUAREBRACKET)) return false;
    ++p_;
    Span s;
    if (!linear(T_RSQUAREBRACKET, s)) return false;
    ++p_;
    use.subs.push_back(s);
  }
  uses.push_back(std::move(use));
  return members(sym);
}

// After an element: `.name` down to a member of an arithmetic type, or
// nothing when the element is of one.
bool LoopShape::members(int sym) {
  int tag = symbols_.resolve_type(symbols_[sym].type_sym);
  while (tag) {
    if (symbols_[tag].name_is != 's' || !symbols_[tag].vf.empty() || !at(T_DOT) || tok(p_ + 1) != T_IDENTIFIER)
      return false;
    int m = symbols_.find_member(tag, toks_[p_ + 1].text());
    if (!m || symbols_[m].dim_count() > 0) return false;
    tag = symbols_.resolve_type(symbols_[m].type_sym);
    p_ += 2;
  }
  return !at(T_DOT) && !at(T_LSQUAREBRACKET);
}

// An arithmetic expression up to ";": variables, elements and their
// members, constants, + - * / %, parentheses, casts to basic types and
// calls of the C math functions.
bool LoopShape::value() {
  bool operand = true;
  std::vector<bool> calls;  // per open parenthesis: whether it holds a call's arguments
  for (;;) {
    int t = tok(p_);
    if (operand) {
      if (c_math_function(p_)) {
        calls.push_back(true);
        p_ += 2;
        continue;
      }
      if (t == T_IDENTIFIER) {
        int s = arithmetic_variable(p_);
        if (!s) s = structure_space(p_);
        if (!s) return false;
        if (symbols_[s].dim_count() > 0) {
          if (!subscripts(s, false)) return false;
        } else {
          ++p_;
        }
        operand = false;
        continue;
      }
      switch (t) {
        case T_DECIMALINT:
        case T_HEXADECIMAL:
        case T_FLOATONE:
        case T_FLOATTWO:
        case T_CHARACTER:
          operand = false;
          break;
        case T_LPARENTHESIS: {
          size_t k = p_ + 1;
          while (keyword_bit(tok(k))) ++k;
          if (k == p_ + 1) {
            calls.push_back(false);
          } else {
            if (tok(k) != T_RPARENTHESIS) return false;
            p_ = k;  // a cast: an operand still follows
          }
          break;
        }
        case T_PLUS:
        case T_MINUS:
          break;
        default:
          return false;
      }
      ++p_;
      continue;
    }
    if (t == T_PLUS || t == T_MINUS || t == T_MULTIPLY || t == T_DIVIDE || t == T_PERCENT ||
        (t == T_COMMA && !calls.empty() && calls.back())) {
      operand = true;
    } else if (t == T_RPARENTHESIS && !calls.empty()) {
      calls.pop_back();
    } else {
      return t == T_SEMICOLON && calls.empty();
    }
    ++p_;
  }
}

// target "=" value ";" where the target is a scalar or an element.
bool LoopShape::assignment() {
  int s = arithmetic_variable(p_);
  if (!s) s = structure_space(p_);
  if (!s) return false;
  if (symbols_[s].dim_count() == 0) {
    written_.push_back(s);
    ++p_;
  } else if (!subscripts(s, true)) {
    return false;
  }
  if (!at(T_ASSIGNEQUAL)) return false;
  ++p_;
  if (!value()) return false;
  ++p_;
  ++statements;
  return true;
}

bool LoopShape::read(size_t at_for) {
  // for ( init ; v < bound ; v++ ), or counting down to v > bound
  p_ = at_for + 1;
  if (!at(T_LPARENTHESIS)) return false;
  ++p_;
  for (int depth = 0; !(at(T_SEMICOLON) && depth == 0); ++p_) {
    if (at(T_Eof) || at(T_LCURLYBRACE)) return false;
    if (at(T_LPARENTHESIS)) ++depth;
    if (at(T_RPARENTHESIS)) --depth;
  }
  ++p_;
  var = int_variable(p_);
  if (!var) return false;
  ++p_;
  if (!at(T_LESSTHAN) && !at(T_LESSTHANOREQUALTO) && !at(T_GREATERTHAN) && !at(T_GREATERTHANOREQUALTO))
    return false;
  inclusive = at(T_LESSTHANOREQUALTO) || at(T_GREATERTHANOREQUALTO);
  descending = at(T_GREATERTHAN) || at(T_GREATERTHANOREQUALTO);
  ++p_;
  // Counting down to occurs, C's unsigned comparison would keep running
  // below zero.
  if (!descending && tok(p_) == T_IDENTIFIER && tok(p_ + 1) == T_DOT && tok(p_ + 2) == T_OCCURS && tok(p_ + 3) == T_SEMICOLON) {
    // `v < x.occurs`, alone: C compares in unsigned, which never runs
    // more passes than the exact comparison does; a difference such as
    // `x.occurs - 1` would wrap below zero.
    bound_space = arithmetic_variable(p_);
    if (!bound_space || symbols_[bound_space].dim_count() != 1) return false;
    bound = {p_, p_ + 3};
    p_ += 3;
  } else if (!linear(T_SEMICOLON, bound)) {
    return false;
  }
  for (size_t i = bound.begin; i < bound.end; ++i)
    if (tok(i) == T_IDENTIFIER && int_variable(i) == var) return false;
  ++p_;
  // The step: ++v, v++, v += s or v = v + s, where s is an int variable
  // or a constant (the test before the loop asks s >= 1), or --v and v--
  // counting down. The passes then lie between the first value and the
  // bound, so the ends still bound every subscript.
  const int one_step = descending ? T_MINUSMINUS : T_PLUSPLUS;
  if (at(one_step) && int_variable(p_ + 1) == var) {
    p_ += 2;
  } else if (int_variable(p_) == var && tok(p_ + 1) == one_step) {
    p_ += 2;
  } else if (!descending && int_variable(p_) == var && (tok(p_ + 1) == T_PLUSEQUAL ||
                                         (tok(p_ + 1) == T_ASSIGNEQUAL && int_variable(p_ + 2) == var &&
                                          tok(p_ + 3) == T_PLUS))) {
    p_ += tok(p_ + 1) == T_PLUSEQUAL ? 2 : 4;
    stride = {p_, p_ + 1};
    if (at(T_IDENTIFIER)) {
      int s = int_variable(p_);
      if (!s || s == var) return false;
      invariant_.push_back(s);
    } else if (!small_decimal(p_)) {
      return false;
    } else if (toks_[p_].text() == "1") {
      stride = {};
    }
    ++p_;
  } else {
    return false;
  }
  if (!at(T_RPARENTHESIS)) return false;
  ++p_;
  // The body: one assignment, or a block of them.
  if (at(T_LCURLYBRACE)) {
    ++p_;
    while (!at(T_RCURLYBRACE))
      if (!assignment()) return false;
  } else if (!assignment()) {
    return false;
  }
  if (statements == 0 || uses.empty()) return false;
  // A bound of occurs must not move: no one-dimensional space is written
  // (two parameters may name the same record).
  if (bound_space)
    for (const SpaceUse& u : uses)
      if (u.written && u.subs.size() == 1) return false;
  // Nothing the bound or a subscript reads, nor the loop variable, is assigned.
  for (int w : written_)
    if (w == var || std::find(invariant_.begin(), invariant_.end(), w) != invariant_.end()) return false;
  return true;
}

}  // namespace

FunctionContext::LoopVersion Translator::plan_loop_version(const Token& keyword) {
  FunctionContext::LoopVersion plan;
  const TokenList& toks = decl_.tokens().tokens;
  size_t at = toks.index_of(keyword);
  LoopShape shape(toks, symbols_, options_.direct_calls);
  if (!shape.read(at)) return plan;

  const std::string var = c_name(symbols_[shape.var].name);
  // A linear span in long long, so that the test itself cannot overflow;
  // `var_value` stands for the loop variable.
  auto wide = [&](Span s, const std::string& var_value) {
    std::string t;
    for (size_t i = s.begin; i < s.end; ++i) {
      const Token& k = toks[i];
      if (!t.empty() && k.tok != T_RPARENTHESIS && t.back() != '(') t += ' ';
      if (k.tok == T_IDENTIFIER) {
        int v = symbols_.find_other('o', k.text(), 0);
        t += v == shape.var ? var_value : "(long long)(" + c_name(symbols_[v].name) + ")";
      } else {
        t += k.text();
      }
    }
    return t;
  };
  auto reads_var = [&](Span s) {
    for (size_t i = s.begin; i < s.end; ++i)
      if (toks[i].tok == T_IDENTIFIER && symbols_.find_other('o', toks[i].text(), 0) == shape.var) return true;
    return false;
  };
  auto record_of = [&](int sym) { return own_record(sym, c_name(symbols_[sym].name)); };
  const std::string bound =
      shape.bound_space ? "(long long)(" + record_of(shape.bound_space) + ".occurs)" : wide(shape.bound, "");
  const std::string first = "(long long)(" + var + ")";
  const std::string last = shape.inclusive    ? "(" + bound + ")"
                           : shape.descending ? "(" + bound + " + 1)"
                                              : "(" + bound + " - 1)";
  const std::string runs = first + (shape.descending ? (shape.inclusive ? " >= " : " > ")
                                                     : (shape.inclusive ? " <= " : " < ")) + bound;
  const bool strided = shape.stride.end > shape.stride.begin;
  const std::string stride = strided ? wide(shape.stride, "") : std::string();
  // The value of the last pass itself, which a raised occurs must match.
  const std::string last_pass =
      strided ? "(" + first + " + (" + last + " - " + first + ") / " + stride + " * " + stride + ")" : last;

  std::vector<std::string> tests;
  auto test = [&](std::string t) {
    if (std::find(tests.begin(), tests.end(), t) == tests.end()) tests.push_back(std::move(t));
  };
  auto in_range = [&](const std::string& sub, const std::string& limit) {
    test(sub + " >= 0");
    test(sub + " < (long long)(" + limit + ")");
  };
  if (strided) test(stride + " >= 1");
  // The copy pays for its test only over enough passes: a short loop (a
  // few bodies, a row of ten) keeps its checks, and stays clear of what
  // compilers make of a few straight-line passes.
  const std::string span = shape.descending ? first + " - " + last : last + " - " + first;
  test(span + " >= " + (strided ? strf("%d * %s", min_passes - 1, stride.c_str()) : std::to_string(min_passes - 1)));
  for (const SpaceUse& use : shape.uses) {
    const std::string record = record_of(use.sym);
    for (size_t d = 0; d < use.subs.size(); ++d) {
      const std::string limit = strf("%s.limit%d", record.c_str(), static_cast<int>(d + 1));
      const bool moves = reads_var(use.subs[d]);
      std::vector<std::string> ends{wide(use.subs[d], first)};
      if (moves) ends.push_back(wide(use.subs[d], last));
      for (const std::string& e : ends) {
        in_range(e, limit);
        // A read of one dimension must also lie below occurs.
        if (use.subs.size() == 1 && !use.written) in_range(e, record + ".occurs");
      }
      if (use.subs.size() != 1 || !use.written) continue;
      // A written element of one dimension raises occurs to one past it:
      // the copy raises it once, before it starts, to one past the highest
      // element it will write, which for a linear subscript is the one of
      // the first pass or of the last.
      std::vector<std::string> written{ends[0]};
      if (moves) written.push_back(wide(use.subs[d], last_pass));
      for (const std::string& e : written) {
        std::string r = strf("\nif(%s && %s + 1 > (long long)(%s.occurs))\n   (%s.occurs) = (unsigned)(%s + 1);",
                             runs.c_str(), e.c_str(), record.c_str(), record.c_str(), e.c_str());
        if (plan.raise.find(r) == std::string::npos) plan.raise += r;
      }
    }
  }
  std::string guard = runs + " && !(";
  for (size_t i = 0; i < tests.size(); ++i) guard += (i ? " && " : "") + tests[i];
  plan.candidate = true;
  plan.statements = shape.statements;
  plan.guard = guard + ")";
  return plan;
}

void Translator::collect_unchecked(const std::string& value) {
  FunctionContext::LoopVersion& v = fn().versions.back();
  if (!v.candidate) return;
  v.fast += "\n" + value + ";";
  ++v.collected;
}

std::string Translator::versioned_loop(const FunctionContext::LoopVersion& plan, const std::string& condition,
                                       const std::string& body, const std::string& step) {
  if (!plan.candidate || plan.collected != plan.statements) return {};
  // The checked body must hold each statement as collected, in order: its
  // checks, then the statement itself.
  size_t at = 0;
  for (size_t start = 0; start < plan.fast.size();) {
    size_t next = plan.fast.find(";\n", start);
    next = next == std::string::npos ? plan.fast.size() : next + 1;
    at = body.find(std::string_view(plan.fast).substr(start, next - start), at);
    if (at == std::string::npos) return {};
    start = next;
  }
  ++version_counter_;
  std::string fast = generated("fast", version_counter_);
  std::string checked = generated("checked", version_counter_);
  return "\nif(" + plan.guard + ") goto " + checked + ";" + plan.raise + "\n" + fast + ":" + condition + plan.fast + step +
         "\ngoto " + fast + ";\n" + checked + ":";
}

}  // namespace ycc
