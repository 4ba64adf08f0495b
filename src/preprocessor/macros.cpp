#include "preprocessor/macros.h"

#include <cstdint>

#include "common/text.h"
#include "diag/diagnostics.h"
#include "preprocessor/text_scan.h"

namespace ycc::pp {

int MacroTable::bucket_of(std::string_view name) {
  // FNV-1a: one multiplication a character, one division at the end.
  std::uint32_t h = 2166136261u;
  for (char ch : name) h = (h ^ static_cast<unsigned char>(ch)) * 16777619u;
  return static_cast<int>(h % bucket_count);
}

MacroTable::MacroTable() : buckets_(bucket_count) {}

Macro* MacroTable::find(std::string_view name) {
  return const_cast<Macro*>(static_cast<const MacroTable*>(this)->find(name));
}

const Macro* MacroTable::find(std::string_view name) const {
  if (name.empty()) return nullptr;
  for (const auto& m : buckets_[static_cast<size_t>(bucket_of(name))])
    if (m->name[0] == name[0] && m->name == name) return m.get();
  return nullptr;
}

Macro& MacroTable::define(std::string_view name) {
  if (Macro* m = find(name)) {
    *m = Macro{};
    m->name = name;
    return *m;
  }
  if (!name.empty() && name.size() < 64) seen_[static_cast<unsigned char>(name[0]) & 127] |= std::uint64_t{1} << name.size();
  auto& bucket = buckets_[static_cast<size_t>(bucket_of(name))];
  // Buckets grow five records at a time.
  if (bucket.size() == bucket.capacity()) bucket.reserve(bucket.size() + 5);
  bucket.push_back(std::make_unique<Macro>());
  bucket.back()->name = name;
  return *bucket.back();
}

void MacroTable::undefine(std::string_view name) {
  auto& bucket = buckets_[static_cast<size_t>(bucket_of(name))];
  for (size_t i = 0; i < bucket.size(); ++i) {
    if (bucket[i]->name == name) {
      bucket.erase(bucket.begin() + static_cast<std::ptrdiff_t>(i));
      return;
    }
  }
}

void MacroTable::set_up(const std::vector<std::string>& defines, const std::string& date,
                        const std::string& time) {
  for (const std::string& d : defines)
    if (!find(d)) define(d);
  auto builtin = [&](const char* name, Macro::Kind kind, const std::string& value) {
    Macro& m = define(name);
    m.kind = kind;
    m.builtin = true;
    m.replacement = value;
  };
  builtin("__DATE__", Macro::Kind::ordinary, "\"" + date + "\"");
  builtin("__TIME__", Macro::Kind::ordinary, "\"" + time + "\"");
  builtin("__FILE__", Macro::Kind::file, "");
  builtin("__LINE__", Macro::Kind::line, "");
  builtin("defined", Macro::Kind::defined, "");
}

void index_params(Macro& m) {
  m.param_index.clear();
  for (size_t i = 0; i < m.params.size(); ++i)
    m.param_index.emplace(m.params[i], static_cast<int>(i));
}

ArgFault ArgCollector::feed(std::string_view token, int blanks) {
  if (depth_ == 1 && m_.params.empty() && token != ")") return ArgFault::too_many;
  if (token == "(") {
    ++depth_;
  } else if (token == ")") {
    if (--depth_ == 0) {
      std::string_view arg = trim(current_);
      if (args_.empty() && arg.empty()) {
        if (!m_.params.empty()) return ArgFault::too_few;
      } else {
        if (arg.empty()) return ArgFault::empty;
        args_.emplace_back(arg);
        if (args_.size() < m_.params.size()) return ArgFault::too_few;
      }
      done_ = true;
      return ArgFault::none;
    }
  } else if (token == "," && depth_ == 1) {
    std::string_view arg = trim(current_);
    if (arg.empty()) return ArgFault::empty;
    if (args_.size() + 1 >= m_.params.size()) return ArgFault::too_many;
    args_.emplace_back(arg);
    current_.clear();
    return ArgFault::none;
  }
  if (!current_.empty()) current_.append(static_cast<size_t>(blanks), ' ');
  current_.append(token);
  return ArgFault::none;
}

std::string arg_fault_text(ArgFault f, const Macro& m, bool across_lines, std::string_view found,
                           int arg_number) {
  const char* name = m.name.c_str();
  std::string fnd(found);
  if (across_lines) {
    switch (f) {
      case ArgFault::empty:
        return strf("the invocation of macro '%s' is missing argument %d: found '%s'", name,
                    arg_number, fnd.c_str());
      case ArgFault::too_many:
        return strf("invocation of macro '%s': expecting ')', found '%s'", name, fnd.c_str());
      case ArgFault::too_few:
        return strf("invocation of macro '%s': expecting '%s', found '%s'", name, ",", fnd.c_str());
      default:
        break;
    }
  }
  switch (f) {
    case ArgFault::empty:
      return strf("macro '%s' expansion: empty argument", name);
    case ArgFault::too_many:
      return strf("macro '%s' expansion: too many arguments", name);
    case ArgFault::too_few:
      return strf("macro '%s' expansion: too few arguments", name);
    case ArgFault::unbalanced:
      return "a macro argument has unbalanced parentheses";
    case ArgFault::no_paren:
      return strf("macro '%s' expansion: missing left parenthesis that begins argument list", name);
    default:
      return strf("macro '%s' expansion: incomplete or malformed argument list", name);
  }
}

std::string stringize(std::string_view arg) {
  std::string out = "\"";
  for (size_t i = 0; i < arg.size();) {
    char c = arg[i];
    if (c == '"' || c == '\'') {
      size_t e = skip_quoted(arg, i);
      for (size_t k = i; k < e; ++k) {
        if (arg[k] == '"' || arg[k] == '\\') out += '\\';
        out += arg[k];
      }
      i = e;
    } else {
      out += c;
      ++i;
    }
  }
  out += '"';
  return out;
}

std::string Expander::builtin_text(const Macro& m) const {
  if (m.kind == Macro::Kind::file) return "\"" + hooks_.file_name() + "\"";
  if (m.kind == Macro::Kind::line) return strf("%d", hooks_.line());
  return m.name;
}

namespace {

size_t token_count(std::string_view s) {
  size_t n = 0;
  for (size_t i = skip_blanks(s, 0); i < s.size(); i = skip_blanks(s, i), ++n) {
    char c = s[i];
    if (c == '"' || c == '\'')
      i = skip_quoted(s, i);
    else if (is_ident_start(c))
      i = skip_ident(s, i);
    else if (is_digit(c))
      i = skip_number(s, i);
    else
      ++i;
  }
  return n;
}

}  // namespace

void Expander::count(size_t tokens) {
  tokens_ += tokens;
  if (tokens_ <= expansion_token_limit) return;
  hooks_.report(strf("macro '%s' expansion: the expansion exceeds %zu tokens", outermost_->name.c_str(),
                     expansion_token_limit));
  throw PpStop{4};
}

bool Expander::substitute(const Macro& m, const std::vector<std::string>& args, std::string& out) {
  tokens_ = 0;
  outermost_ = &m;
  return build(m, args, out);
}

bool Expander::build(const Macro& m, const std::vector<std::string>& args, std::string& out) {
  std::string_view r = m.replacement;
  out.clear();
  std::vector<size_t> arg_tokens;
  for (const std::string& a : args) arg_tokens.push_back(token_count(a));
  auto param = [&](std::string_view name) -> int {
    auto it = m.param_index.find(name);
    return it == m.param_index.end() ? -1 : it->second;
  };
  size_t i = 0;
  while (i < r.size()) {
    char c = r[i];
    if (c == '"' || c == '\'') {
      size_t e = skip_quoted(r, i);
      count(1);
      out.append(r.substr(i, e - i));
      i = e;
    } else if (is_ident_start(c)) {
      size_t e = skip_ident(r, i);
      int p = param(r.substr(i, e - i));
      if (p >= 0) {
        count(arg_tokens[static_cast<size_t>(p)]);
        out += args[static_cast<size_t>(p)];
      } else {
        count(1);
        out.append(r.substr(i, e - i));
      }
      i = e;
    } else if (is_digit(c)) {
      size_t e = skip_number(r, i);
      count(1);
      out.append(r.substr(i, e - i));
      i = e;
    } else if (c == '#' && i + 1 < r.size() && r[i + 1] == '#') {
      // Token pasting: the blanks on both sides go.
      while (!out.empty() && is_blank(out.back())) out.pop_back();
      i = skip_blanks(r, i + 2);
    } else if (c == '#' && m.function_like) {
      size_t s = skip_blanks(r, i + 1);
      size_t e = s < r.size() && is_ident_start(r[s]) ? skip_ident(r, s) : s;
      int p = e > s ? param(r.substr(s, e - s)) : -1;
      if (p < 0) {
        hooks_.report(strf(
            "macro '%s' expansion: the stringization operator '#' must be followed by a parameter name",
            m.name.c_str()));
        return false;
      }
      count(1);
      out += stringize(args[static_cast<size_t>(p)]);
      i = e;
    } else {
      if (!is_blank(c)) count(1);
      out += c;
      ++i;
    }
  }
  return true;
}

ArgFault Expander::text_args(const Macro& m, std::string_view text, size_t& pos,
                             std::vector<std::string>& args) {
  size_t i = skip_blanks(text, pos);
  if (i >= text.size() || text[i] != '(') return ArgFault::no_paren;
  ++i;
  ArgCollector col(m);
  while (true) {
    size_t s = skip_blanks(text, i);
    int blanks = static_cast<int>(s - i);
    if (s >= text.size()) return col.at_end();
    char c = text[s];
    size_t e;
    if (c == '"' || c == '\'')
      e = skip_quoted(text, s);
    else if (is_ident_start(c))
      e = skip_ident(text, s);
    else if (is_digit(c))
      e = skip_number(text, s);
    else
      e = s + 1;
    ArgFault f = col.feed(text.substr(s, e - s), blanks);
    if (f != ArgFault::none) return f;
    i = e;
    if (col.done()) break;
  }
  pos = i;
  args = std::move(col.args());
  return ArgFault::none;
}

// The expansion stack is explicit: each frame is a text being rescanned for
// one macro, and all frames write into one output, so a long chain of
// expansions costs neither C++ stack nor repeated copying.
std::string Expander::run(std::string_view text, Macro* owner) {
  struct Frame {
    std::unique_ptr<std::string> owned;
    std::string_view text;
    size_t pos;
    Macro* macro;
    // An argument list ran to the end of this text: later function-like
    // names in it are copied, as reading each to the end again could be slow.
    bool no_calls = false;
  };
  std::string out;
  std::vector<Frame> frames;
  frames.push_back({nullptr, text, 0, owner});
  if (owner) ++owner->expanding;
  std::vector<std::string> args;
  std::string subst;
  // A stopped expansion leaves no macro marked as expanding.
  struct Unmark {
    std::vector<Frame>& frames;
    ~Unmark() {
      for (const Frame& f : frames)
        if (f.macro) --f.macro->expanding;
    }
  } unmark{frames};
  tokens_ = 0;
  outermost_ = owner;
  while (!frames.empty()) {
    Frame& f = frames.back();
    std::string_view t = f.text;
    size_t i = f.pos;
    if (i >= t.size()) {
      if (f.macro) --f.macro->expanding;
      frames.pop_back();
      continue;
    }
    char c = t[i];
    if (is_blank(c)) {
      out += c;
      f.pos = i + 1;
      continue;
    }
    // A directive operand itself is source text: only what macros bring is counted.
    bool counted = owner || frames.size() > 1;
    if (counted) count(1);
    if (c == '"' || c == '\'') {
      size_t e = skip_quoted(t, i);
      out.append(t.substr(i, e - i));
      f.pos = e;
      continue;
    }
    if (is_digit(c)) {
      size_t e = skip_number(t, i);
      out.append(t.substr(i, e - i));
      f.pos = e;
      continue;
    }
    if (!is_ident_start(c)) {
      out += c;
      f.pos = i + 1;
      continue;
    }
    size_t e = skip_ident(t, i);
    std::string_view name = t.substr(i, e - i);
    f.pos = e;
    Macro* m = table_.find(name);
    if (!m || m->expanding || m->kind == Macro::Kind::defined) {
      out.append(name);
      continue;
    }
    if (frames.size() == 1 && !owner) outermost_ = m;
    if (m->kind != Macro::Kind::ordinary) {
      out += builtin_text(*m);
      continue;
    }
    if (!m->function_like) {
      ++m->expanding;
      frames.push_back({nullptr, m->replacement, 0, m});
      continue;
    }
    if (f.no_calls) {
      out.append(name);
      continue;
    }
    size_t p = e;
    ArgFault fault = text_args(*m, t, p, args);
    if (fault != ArgFault::none) {
      hooks_.report(arg_fault_text(fault, *m, false, "", 0));
      if (fault == ArgFault::incomplete || fault == ArgFault::unbalanced) f.no_calls = true;
      out.append(name);
      continue;
    }
    if (counted) count(token_count(t.substr(e, p - e)));
    if (!build(*m, args, subst)) {
      out.append(name);
      continue;
    }
    f.pos = p;
    auto owned = std::make_unique<std::string>(std::move(subst));
    subst = std::string();
    std::string_view view = *owned;
    ++m->expanding;
    frames.push_back({std::move(owned), view, 0, m});
  }
  return out;
}

}  // namespace ycc::pp
