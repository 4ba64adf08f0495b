#include "common/c_names.h"
#include "decl/initializers.h"

#include <algorithm>
#include <cfloat>

#include "common/text.h"
#include "decl/emit.h"
#include "decl/functions.h"
#include "decl/type_keywords.h"

namespace ycc {

namespace {

// The range of a basic type in the 32-bit world the checks follow.
bool in_range(int bits, double v) {
  if (bits & TB_DOUBLE) return v >= -DBL_MAX && v <= DBL_MAX;
  if (bits & TB_FLOAT) return v >= -FLT_MAX && v <= FLT_MAX;
  bool is_unsigned = bits & TB_UNSIGNED;
  if (bits & TB_CHAR) return is_unsigned ? v >= 0 && v <= 255 : v >= -128 && v <= 127;
  if (bits & TB_SHORT) return is_unsigned ? v >= 0 && v <= 65535 : v >= -32768 && v <= 32767;
  return is_unsigned ? v >= 0 && v <= 4294967295.0 : v >= -2147483648.0 && v <= 2147483647.0;
}

class InitWalk {
 public:
  InitWalk(SymbolTable& symbols, Diagnostics& diag, const Emitter& emit, int var,
           const std::vector<InitItem>& items)
      : sy_(symbols), diag_(diag), emit_(emit), var_(var), items_(items) {}

  std::string run() {
    walk(var_, 0, 0);
    if (!failed_ && pos_ < items_.size()) too_many(var_, 0);
    Symbol& v = sy_[var_];
    for (size_t level = 0; level < v.dims.size() && level < counts_.size(); ++level)
      if (v.dims[level].size == 0) v.dims[level].size = counts_[level];
    if (failed_) v.error_flags |= ERR_SPACE;
    return out_;
  }

 private:
  const InitItem* peek() const { return pos_ < items_.size() ? &items_[pos_] : nullptr; }
  std::string found() const { return pos_ < items_.size() ? items_[pos_].text : ""; }
  int line() const {
    if (pos_ < items_.size()) return items_[pos_].line;
    return items_.empty() ? sy_[var_].line : items_.back().line;
  }

  std::string suffix(int in_struct) const {
    return in_struct ? " in 'struct " + sy_[in_struct].shown_name() + "'" : "";
  }
  std::string var_prefix() const {
    return "in the initializer for variable '" + sy_[var_].shown_name() + "', ";
  }
  void fail(const std::string& message) {
    diag_.error(line(), message);
    failed_ = true;
  }
  void count(size_t level, int n) {
    if (counts_.size() <= level) counts_.resize(level + 1, 0);
    counts_[level] = std::max(counts_[level], n);
  }
  bool char_element(int sub) const {
    const Symbol& s = sy_[sub];
    int t = sy_.resolve_type(s.type_sym);
    return !t && (sy_.type_bits_of(sub) & TB_CHAR);
  }

  // Skips to the "}" that closes the level being read (not consuming it).
  void skip_level() {
    int depth = 0;
    while (pos_ < items_.size()) {
      char k = items_[pos_].kind;
      if (k == '}' && depth == 0) return;
      if (k == '{') ++depth;
      if (k == '}') --depth;
      ++pos_;
    }
  }
  void too_many(int sub, int in_struct) {
    fail(strf("beginning with initializer '%s', there are too many initializers while assigning to "
              "variable '%s'%s",
              found().c_str(), sy_[sub].shown_name().c_str(), suffix(in_struct).c_str()));
    skip_level();
  }
  bool close(int sub, int in_struct) {
    if (peek() && peek()->kind == '}') {
      ++pos_;
      out_ += "}";
      return true;
    }
    fail(strf("while assigning to variable '%s'%s, expecting a right brace, }, but found '%s' instead",
              sy_[sub].shown_name().c_str(), suffix(in_struct).c_str(), found().c_str()));
    skip_level();
    if (peek()) ++pos_;
    out_ += "}";
    return false;
  }
  void expect_brace(int sub, int in_struct) {
    fail(strf("while assigning to variable '%s'%s, expecting a left brace, {, but found '%s' instead",
              sy_[sub].shown_name().c_str(), suffix(in_struct).c_str(), found().c_str()));
    if (peek() && peek()->kind != '}') ++pos_;
  }

  // A string fills one row of a character space.
  void string_row(int sub, size_t level, int in_struct) {
    const InitItem& item = items_[pos_++];
    const Symbol& s = sy_[sub];
    int size = s.dims[level].size;
    if (size && item.length >= size)
      fail(strf("the string %s is too long to be assigned to variable '%s'%s. to accommodate this "
                "string, increase the rightmost dimension size of '%s' to at least %d",
                item.text.c_str(), s.shown_name().c_str(), suffix(in_struct).c_str(),
                s.shown_name().c_str(), item.length + 1));
    out_ += item.c_text;
    if (sub == var_) count(level, item.length + 1);
    if (level == 0 && s.dim_count() == 1) occurs_ = item.length;
    if (sub == var_ && level == 0 && s.dim_count() == 1) sy_[var_].initial_occurs = item.length;
  }

  void walk(int sub, size_t level, int in_struct) {
    const Symbol& s = sy_[sub];
    if (!peek()) return;
    if (level == 0 && s.is_var == 'y') {
      const InitItem& item = items_[pos_];
      if (item.kind == 'd' && item.text == "0") {
        ++pos_;
        out_ += "{0}";
      } else {
        fail(strf("the target variable '%s'%s has the var qualifier and can only be initialized to "
                  "literal 0, not '%s'",
                  s.shown_name().c_str(), suffix(in_struct).c_str(), item.text.c_str()));
        if (item.kind == '{') {
          ++pos_;
          skip_level();
        }
        if (peek()) ++pos_;
      }
      return;
    }
    if (level < s.dims.size()) {
      bool last = level + 1 == s.dims.size();
      if (peek()->kind == 's' && last && char_element(sub)) {
        string_row(sub, level, in_struct);
        return;
      }
      if (peek()->kind != '{') {
        expect_brace(sub, in_struct);
        return;
      }
      ++pos_;
      out_ += "{";
      int size = s.dims[level].size;
      int n = 0;
      while (peek() && peek()->kind != '}') {
        if (size && n >= size) {
          too_many(sub, in_struct);
          break;
        }
        if (last && peek()->kind == 's' && char_element(sub)) {
          if (n == 0) {
            string_row(sub, level, in_struct);
            n = -1;  // the string stands for the whole row
            break;
          }
          fail(strf("the string %s cannot be assigned to variable '%s'%s, because a nonstring "
                    "constant was just assigned to '%s'",
                    peek()->text.c_str(), s.shown_name().c_str(), suffix(in_struct).c_str(),
                    s.shown_name().c_str()));
          ++pos_;
          continue;
        }
        if (n > 0) out_ += ", ";
        size_t mark = path_.size();
        path_ += "[" + std::to_string(n) + "]";
        walk(sub, level + 1, in_struct);
        path_.resize(mark);
        ++n;
      }
      close(sub, in_struct);
      if (n >= 0 && level == 0 && s.dim_count() == 1) occurs_ = n;
      if (n >= 0 && sub == var_) {
        count(level, n);
        if (level == 0 && s.dim_count() == 1) sy_[var_].initial_occurs = n;
      }
      return;
    }
    int t = sy_.resolve_type(s.type_sym);
    if (t && sy_[t].name_is == 's') {
      if (peek()->kind != '{') {
        expect_brace(sub, in_struct);
        return;
      }
      ++pos_;
      out_ += "{";
      bool first = true;
      for (int m = t + 1; m < sy_.count() && peek() && peek()->kind != '}'; ++m) {
        if (sy_[m].owner != t || sy_[m].name_class != 'c') continue;
        if (!first) out_ += ", ";
        first = false;
        size_t mark = path_.size();
        path_ += "." + c_name(sy_[m].name);
        occurs_ = 0;
        walk(m, 0, t);
        // The member's companion meta record follows it in the C structure;
        // the designators after the list set it, with the elements given.
        if (sy_[m].dim_count() > 0 && sy_[m].is_var == 'n') {
          out_ += ", {0}";
          if (sy_[m].dim_count() == 1 && occurs_ > 0) sy_[var_].member_occurs.emplace_back(path_, occurs_);
        }
        path_.resize(mark);
      }
      if (peek() && peek()->kind != '}') too_many(sub, in_struct);
      close(sub, in_struct);
      return;
    }
    scalar(sub, in_struct);
  }

  void scalar(int sub, int in_struct) {
    const InitItem& item = items_[pos_];
    const Symbol& s = sy_[sub];
    std::string name = s.shown_name(), sfx = suffix(in_struct);
    if (item.kind == '{') {
      ++pos_;
      fail(strf("an unexpected left brace, {, followed by '%s', was encountered while assigning to "
                "variable '%s'%s",
                found().c_str(), name.c_str(), sfx.c_str()));
      skip_level();
      if (peek()) ++pos_;
      return;
    }
    ++pos_;
    if (item.sign && (item.kind == 's' || item.kind == 'i')) {
      fail(strf("in the initializer for variable '%s', at initialization item '%s', the sign '%c' is "
                "only allowed with a numeric constant",
                sy_[var_].shown_name().c_str(), item.text.c_str(), item.sign));
      return;
    }
    int t = sy_.resolve_type(s.type_sym);
    char kind = t ? sy_[t].name_is : 0;  // 'e' enumeration, 'n' fun type
    auto mismatch = [&] {
      fail(strf("the type of initializer '%s' does not match the type of target variable '%s'%s",
                item.text.c_str(), name.c_str(), sfx.c_str()));
    };
    switch (item.kind) {
      case 'c':
      case 'd':
      case 'x':
      case 'f': {
        if (kind == 'e' || kind == 'n') {
          if (item.kind == 'd' && item.text == "0")
            out_ += "0";
          else
            mismatch();
          return;
        }
        int bits = sy_.type_bits_of(sub);
        std::string words = type_words(bits);
        if (item.overflow)
          diag_.warning(item.line,
                        var_prefix() + strf("the value '%s' exceeds the limits of internal representation",
                                            item.text.c_str()),
                        1);
        else if (!in_range(bits, item.value))
          diag_.warning(item.line,
                        var_prefix() + strf("the value '%s' exceeds the representation limits of target "
                                            "variable '%s'%s. the target type is '%s'",
                                            item.text.c_str(), name.c_str(), sfx.c_str(), words.c_str()),
                        1);
        if (item.kind == 'f' && !(bits & (TB_FLOAT | TB_DOUBLE)))
          diag_.warning(item.line,
                        var_prefix() + strf("the value '%s' is a floating-point number, but the target "
                                            "variable '%s'%s has type '%s'",
                                            item.text.c_str(), name.c_str(), sfx.c_str(), words.c_str()),
                        1);
        out_ += item.c_text;
        return;
      }
      case 's':
        if (char_element(sub))
          fail(strf("the string %s cannot be assigned to variable '%s'%s, because '%s' is dimensionless",
                    item.text.c_str(), name.c_str(), sfx.c_str(), name.c_str()));
        else
          mismatch();
        return;
      case 'i':
        identifier(sub, item, in_struct, kind, t);
        return;
      default:
        mismatch();
    }
  }

  void identifier(int sub, const InitItem& item, int in_struct, char kind, int type) {
    std::string name = sy_[sub].shown_name(), sfx = suffix(in_struct);
    int found = sy_.find_in_scope('o', item.text);
    if (!found && sy_.depth() > 0) {
      // Outer scopes are visible too.
      for (int i = sy_.count() - 1; i >= 1 && !found; --i)
        if (sy_[i].name_class == 'o' && sy_[i].name == SymbolTable::stored_name(item.text)) found = i;
    }
    if (kind == 'e') {
      if (!found || sy_[found].name_is != 'c' || sy_[found].owner != type) {
        fail(strf("identifier '%s' is not an enumeration constant belonging to 'enum %s' which is the "
                  "type of the enumeration variable '%s'%s",
                  item.text.c_str(), sy_[type].shown_name().c_str(), name.c_str(), sfx.c_str()));
        return;
      }
      ++sy_[found].ref_count;
      out_ += c_name(sy_[found].name);
      return;
    }
    if (kind == 'n') {
      if (!found || (sy_[found].name_is != 'd' && sy_[found].name_is != 'f')) {
        fail(strf("either '%s' is not a function, or its prototype is not visible from this assignment "
                  "location",
                  item.text.c_str()));
        return;
      }
      std::string why = fun_type_mismatch(sy_, found, type);
      if (!why.empty()) {
        fail(strf("while trying to match the function-pointer type of the target variable '%s'%s with "
                  "the initialization identifier '%s': %s",
                  name.c_str(), sfx.c_str(), item.text.c_str(), why.c_str()));
        return;
      }
      ++sy_[found].ref_count;
      out_ += emit_.function_name(found);
      return;
    }
    fail(strf("the type of target variable '%s'%s disallows initialization by any identifier: %s", name.c_str(),
              sfx.c_str(),
              found ? strf("the identifier is '%s'", item.text.c_str()).c_str()
                    : strf("the identifier '%s' is an undeclared identifier", item.text.c_str()).c_str()));
  }

  SymbolTable& sy_;
  Diagnostics& diag_;
  const Emitter& emit_;
  int var_;
  const std::vector<InitItem>& items_;
  size_t pos_ = 0;
  std::string path_;  // the object being filled, from the variable: "[1].inner.f"
  int occurs_ = 0;    // elements given to the last one-dimensional space
  bool failed_ = false;
  std::string out_;
  std::vector<int> counts_;
};

}  // namespace

std::string check_initializer(SymbolTable& symbols, Diagnostics& diag, const Emitter& emit, int sub,
                              const std::vector<InitItem>& items) {
  return InitWalk(symbols, diag, emit, sub, items).run();
}

}  // namespace ycc
