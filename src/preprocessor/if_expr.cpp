#include "preprocessor/if_expr.h"

#include <cmath>
#include <cstdint>
#include <vector>

#include "common/text.h"
#include "preprocessor/text_scan.h"

namespace ycc::pp {

namespace if_reason {
const char* const missing_left = "is missing a left parenthesis";
const char* const missing_right = "is missing a right parenthesis";
const char* const invalid_operator = "has an invalid operator";
const char* const missing_operand = "has an operator that is missing an operand";
const char* const malformed = "is malformed, or it uses an invalid operator";
const char* const number_too_big = "has a number that exceeds representation in type 'unsigned long'";
const char* const negative_overflow =
    "has an operation that has a negative result that exceeds representation in type 'long'";
const char* const positive_overflow =
    "has an operation that has a positive result that exceeds representation in type 'unsigned long'";
const char* const divide_by_zero = "has an operation that divides by zero, which is undefined";
}  // namespace if_reason

bool replace_defined(std::string_view text, const std::function<bool(std::string_view)>& is_macro,
                     std::string& out, int& bad_use) {
  out.clear();
  int uses = 0;
  size_t i = 0;
  while (i < text.size()) {
    char c = text[i];
    if (c == '"' || c == '\'') {
      size_t e = skip_quoted(text, i);
      out.append(text.substr(i, e - i));
      i = e;
      continue;
    }
    if (is_digit(c)) {
      size_t e = skip_number(text, i);
      out.append(text.substr(i, e - i));
      i = e;
      continue;
    }
    if (!is_ident_start(c)) {
      out += c;
      ++i;
      continue;
    }
    size_t e = skip_ident(text, i);
    std::string_view word = text.substr(i, e - i);
    if (word != "defined") {
      out.append(word);
      i = e;
      continue;
    }
    ++uses;
    size_t s = skip_blanks(text, e);
    bool paren = s < text.size() && text[s] == '(';
    if (paren) s = skip_blanks(text, s + 1);
    if (s >= text.size() || !is_ident_start(text[s])) {
      bad_use = uses;
      return false;
    }
    size_t ne = skip_ident(text, s);
    std::string_view name = text.substr(s, ne - s);
    if (paren) {
      ne = skip_blanks(text, ne);
      if (ne >= text.size() || text[ne] != ')') {
        bad_use = uses;
        return false;
      }
      ++ne;
    }
    out += is_macro(name) ? " 1 " : " 0 ";
    i = ne;
  }
  return true;
}

namespace {

enum class Op {
  none, tilde, bang, plus, minus, star, slash, percent, shl, shr, lt, gt, le, ge, eq, ne,
  band, bxor, bor, land, lor, quest, colon, lpar, rpar
};

// One element of the working text: a value or an operator. A negative value
// stands where the text form would hold [n].
struct Item {
  bool num;
  double v;
  Op op;
};

struct Fault {
  const char* reason;
};

constexpr double max_unsigned = 4294967295.0;
constexpr double min_signed = -2147483648.0;

double checked(double r) {
  if (r > max_unsigned) throw Fault{if_reason::positive_overflow};
  if (r < min_signed) throw Fault{if_reason::negative_overflow};
  return std::trunc(r);
}

std::uint32_t bits(double v) {
  return static_cast<std::uint32_t>(static_cast<std::int64_t>(v));
}

std::vector<Item> lex(std::string_view s) {
  std::vector<Item> items;
  size_t i = 0;
  auto op = [&](Op o, size_t len) {
    items.push_back({false, 0, o});
    i += len;
  };
  while (i < s.size()) {
    char c = s[i];
    char d = i + 1 < s.size() ? s[i + 1] : '\0';
    if (is_blank(c)) {
      ++i;
      continue;
    }
    if (is_digit(c)) {
      double v = 0;
      if (c == '0' && (d == 'x' || d == 'X')) {
        i += 2;
        size_t start = i;
        while (i < s.size() && std::isxdigit(static_cast<unsigned char>(s[i]))) {
          char h = s[i++];
          v = v * 16 + (is_digit(h) ? h - '0' : (h | 0x20) - 'a' + 10);
          if (v > max_unsigned * 16) v = max_unsigned * 16;
        }
        if (i == start) throw Fault{if_reason::malformed};
      } else {
        while (i < s.size() && is_digit(s[i])) {
          v = v * 10 + (s[i++] - '0');
          if (v > max_unsigned * 10) v = max_unsigned * 10;
        }
      }
      while (i < s.size() && (s[i] == 'u' || s[i] == 'U' || s[i] == 'l' || s[i] == 'L')) ++i;
      if (i < s.size() && (is_ident_char(s[i]) || s[i] == '.')) throw Fault{if_reason::malformed};
      if (v > max_unsigned) throw Fault{if_reason::number_too_big};
      items.push_back({true, v, Op::none});
      continue;
    }
    switch (c) {
      case '~': op(Op::tilde, 1); break;
      case '!': d == '=' ? op(Op::ne, 2) : op(Op::bang, 1); break;
      case '+': op(Op::plus, 1); break;
      case '-': op(Op::minus, 1); break;
      case '*': op(Op::star, 1); break;
      case '/': op(Op::slash, 1); break;
      case '%': op(Op::percent, 1); break;
      case '<': d == '<' ? op(Op::shl, 2) : d == '=' ? op(Op::le, 2) : op(Op::lt, 1); break;
      case '>': d == '>' ? op(Op::shr, 2) : d == '=' ? op(Op::ge, 2) : op(Op::gt, 1); break;
      case '=':
        if (d != '=') throw Fault{if_reason::invalid_operator};
        op(Op::eq, 2);
        break;
      case '&': d == '&' ? op(Op::land, 2) : op(Op::band, 1); break;
      case '|': d == '|' ? op(Op::lor, 2) : op(Op::bor, 1); break;
      case '^': op(Op::bxor, 1); break;
      case '?': op(Op::quest, 1); break;
      case ':': op(Op::colon, 1); break;
      case '(': op(Op::lpar, 1); break;
      case ')': op(Op::rpar, 1); break;
      default: throw Fault{if_reason::malformed};
    }
  }
  return items;
}

double binary(Op o, double a, double b) {
  switch (o) {
    case Op::star: return checked(a * b);
    case Op::slash:
      if (b == 0) throw Fault{if_reason::divide_by_zero};
      return checked(a / b);
    case Op::percent:
      if (b == 0) throw Fault{if_reason::divide_by_zero};
      return checked(std::fmod(a, b));
    case Op::plus: return checked(a + b);
    case Op::minus: return checked(a - b);
    case Op::shl: return checked(std::ldexp(a, static_cast<int>(std::fmax(std::fmin(b, 64), -64))));
    case Op::shr: return checked(std::ldexp(a, -static_cast<int>(std::fmax(std::fmin(b, 64), -64))));
    case Op::lt: return a < b;
    case Op::gt: return a > b;
    case Op::le: return a <= b;
    case Op::ge: return a >= b;
    case Op::eq: return a == b;
    case Op::ne: return a != b;
    case Op::band: return bits(a) & bits(b);
    case Op::bxor: return bits(a) ^ bits(b);
    case Op::bor: return bits(a) | bits(b);
    case Op::land: return a != 0 && b != 0;
    case Op::lor: return a != 0 || b != 0;
    default: throw Fault{if_reason::malformed};
  }
}

bool unary_op(Op o) { return o == Op::tilde || o == Op::bang || o == Op::plus || o == Op::minus; }

// Applies the binary operators of one precedence level, left to right.
void apply_level(std::vector<Item>& seg, std::initializer_list<Op> level) {
  auto in_level = [&](const Item& it) {
    if (it.num) return false;
    for (Op o : level)
      if (it.op == o) return true;
    return false;
  };
  std::vector<Item> out;
  out.reserve(seg.size());
  for (size_t i = 0; i < seg.size(); ++i) {
    if (!in_level(seg[i])) {
      out.push_back(seg[i]);
      continue;
    }
    if (out.empty() || !out.back().num || i + 1 >= seg.size() || !seg[i + 1].num)
      throw Fault{if_reason::missing_operand};
    double r = binary(seg[i].op, out.back().v, seg[i + 1].v);
    out.back().v = r;
    ++i;
  }
  seg.swap(out);
}

// Evaluates a text without parentheses, level by level, highest first.
double flat(std::vector<Item> seg) {
  // Unary operators stand at the start or after another operator; applied
  // right to left so that "- ~ 1" works inside out.
  for (size_t k = seg.size(); k-- > 0;) {
    Item& it = seg[k];
    if (it.num || !unary_op(it.op) || (k > 0 && seg[k - 1].num)) continue;
    if (k + 1 >= seg.size() || !seg[k + 1].num) throw Fault{if_reason::missing_operand};
    double v = seg[k + 1].v;
    double r;
    switch (it.op) {
      case Op::tilde: r = static_cast<double>(~bits(v)); break;
      case Op::bang: r = v == 0; break;
      case Op::minus: r = checked(-v); break;
      default: r = v; break;
    }
    it = {true, r, Op::none};
    seg.erase(seg.begin() + static_cast<std::ptrdiff_t>(k) + 1);
  }
  apply_level(seg, {Op::star, Op::slash, Op::percent});
  apply_level(seg, {Op::plus, Op::minus});
  apply_level(seg, {Op::shl, Op::shr});
  apply_level(seg, {Op::lt, Op::gt, Op::le, Op::ge});
  apply_level(seg, {Op::eq, Op::ne});
  apply_level(seg, {Op::band});
  apply_level(seg, {Op::bxor});
  apply_level(seg, {Op::bor});
  apply_level(seg, {Op::land});
  apply_level(seg, {Op::lor});
  // "?" with ":" groups right to left: the rightmost "?" is resolved first.
  for (size_t k = seg.size(); k-- > 0;) {
    if (seg[k].num || seg[k].op != Op::quest) continue;
    if (k == 0 || k + 3 >= seg.size() + 0 || !seg[k - 1].num || !seg[k + 1].num ||
        seg[k + 2].num || seg[k + 2].op != Op::colon || !seg[k + 3].num)
      throw Fault{if_reason::malformed};
    double r = seg[k - 1].v != 0 ? seg[k + 1].v : seg[k + 3].v;
    seg[k - 1].v = r;
    seg.erase(seg.begin() + static_cast<std::ptrdiff_t>(k), seg.begin() + static_cast<std::ptrdiff_t>(k) + 4);
  }
  if (seg.size() != 1 || !seg[0].num) throw Fault{if_reason::malformed};
  return seg[0].v;
}

}  // namespace

IfResult evaluate_if(std::string_view text) {
  IfResult res;
  // Names first: unlike C, a name left after expansion is an error, not 0.
  for (size_t i = 0; i < text.size();) {
    char c = text[i];
    if (is_digit(c)) {
      i = skip_number(text, i);
    } else if (c == '"' || c == '\'') {
      i = skip_quoted(text, i);
    } else if (is_ident_start(c)) {
      res.status = IfResult::Status::alphabetic;
      return res;
    } else {
      ++i;
    }
  }
  for (char c : text) {
    static const std::string_view alphabet = "~!+-*/%<>=&|^?:() ";
    if (is_ident_char(c) || is_blank(c) || alphabet.find(c) != std::string_view::npos) continue;
    res.status = IfResult::Status::invalid_char;
    res.bad_char = c;
    return res;
  }
  try {
    std::vector<Item> items = lex(text);
    int depth = 0;
    for (const Item& it : items) {
      if (it.num) continue;
      if (it.op == Op::lpar) ++depth;
      if (it.op == Op::rpar && --depth < 0) throw Fault{if_reason::missing_left};
    }
    if (depth > 0) throw Fault{if_reason::missing_right};
    // Innermost parentheses first: each closing one replaces its group by the value.
    std::vector<Item> work;
    std::vector<size_t> opens;
    for (const Item& it : items) {
      if (!it.num && it.op == Op::lpar) {
        opens.push_back(work.size());
        continue;
      }
      if (!it.num && it.op == Op::rpar) {
        size_t start = opens.back();
        opens.pop_back();
        std::vector<Item> seg(work.begin() + static_cast<std::ptrdiff_t>(start), work.end());
        double v = flat(std::move(seg));
        work.resize(start);
        work.push_back({true, v, Op::none});
        continue;
      }
      work.push_back(it);
    }
    res.value = flat(std::move(work));
  } catch (const Fault& f) {
    res.status = IfResult::Status::fault;
    res.reason = f.reason;
  }
  return res;
}

}  // namespace ycc::pp
