// The macro table and the expansion of macro uses in a text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ycc::pp {

struct Macro {
  enum class Kind { ordinary, file, line, defined };
  std::string name;
  std::string replacement;
  bool function_like = false;
  std::vector<std::string> params;
  std::unordered_map<std::string_view, int> param_index;  // views into params
  Kind kind = Kind::ordinary;
  bool builtin = false;
  int expanding = 0;  // on the expansion stack: not expanded again
};

// 2039 buckets; a name's bucket is h = (c + h * 64) mod 2039 over its
// characters taken as signed 8-bit values.
class MacroTable {
 public:
  static constexpr int bucket_count = 2039;
  static int bucket_of(std::string_view name);

  MacroTable();
  Macro* find(std::string_view name);
  const Macro* find(std::string_view name) const;
  bool is_defined(std::string_view name) const { return find(name) != nullptr; }
  // False only for a name that no macro has ever had: a quick test by first
  // character and length, before any search.
  bool may_define(std::string_view name) const {
    return name.size() >= 64 || (seen_[static_cast<unsigned char>(name[0]) & 127] >> name.size() & 1);
  }
  // Enters or replaces a macro; returns the record.
  Macro& define(std::string_view name);
  void undefine(std::string_view name);

  // /D names (empty replacement; repeats skipped), then the built-in names.
  void set_up(const std::vector<std::string>& defines, const std::string& date,
              const std::string& time);

 private:
  // Records stay put while the table grows: expansion holds pointers to them.
  std::vector<std::vector<std::unique_ptr<Macro>>> buckets_;
  std::array<std::uint64_t, 128> seen_{};  // lengths below 64 by first character
};

// Builds the parameter index of a function-like macro.
void index_params(Macro& m);

// Where an expansion happens: the message routine and the current place.
struct ExpandHooks {
  std::function<void(const std::string&)> report;
  std::function<std::string()> file_name;
  std::function<int()> line;
};

// Faults of an argument list, reported in one of two wordings.
enum class ArgFault { none, empty, too_many, too_few, incomplete, unbalanced, no_paren };

// Counts arguments while they are read, token by token or from a text, and
// notices each fault as soon as its token arrives.
class ArgCollector {
 public:
  explicit ArgCollector(const Macro& m) : m_(m) {}
  // Feeds one token (its blanks first); returns the fault it causes, if any.
  // `done()` turns true at the closing parenthesis.
  ArgFault feed(std::string_view token, int blanks);
  ArgFault at_end() const { return depth_ > 1 ? ArgFault::unbalanced : ArgFault::incomplete; }
  bool done() const { return done_; }
  int arg_number() const { return static_cast<int>(args_.size()) + 1; }
  std::vector<std::string>& args() { return args_; }

 private:
  const Macro& m_;
  std::vector<std::string> args_;
  std::string current_;
  int depth_ = 1;
  bool done_ = false;
};

// The message of an argument-list fault. `across_lines` selects the wording
// of an invocation collected token by token over line ends.
std::string arg_fault_text(ArgFault f, const Macro& m, bool across_lines, std::string_view found,
                           int arg_number);

// Each of expand, rescan and substitute may scan or build at most this many
// tokens; past it the expansion is reported and the file's preprocessing ends
// (PpStop 4). A macro that doubles at each of thirty levels would otherwise
// run until memory is exhausted.
inline constexpr std::size_t expansion_token_limit = 10000000;

class Expander {
 public:
  Expander(MacroTable& table, ExpandHooks hooks) : table_(table), hooks_(std::move(hooks)) {}

  // Expands every macro use in a text (a directive operand).
  std::string expand(std::string_view text) { return run(text, nullptr); }
  // Rescans the substituted replacement of `owner` with `owner` on the stack.
  std::string rescan(std::string_view text, Macro* owner) { return run(text, owner); }
  // Puts the arguments in place of the parameters, with # and ##. False (after
  // the message) when a "#" is not followed by a parameter name.
  bool substitute(const Macro& m, const std::vector<std::string>& args, std::string& out);
  // The text of __FILE__ and __LINE__.
  std::string builtin_text(const Macro& m) const;

 private:
  std::string run(std::string_view text, Macro* owner);
  bool build(const Macro& m, const std::vector<std::string>& args, std::string& out);
  // Reads the argument list of `m` that starts at `pos` (after the name).
  ArgFault text_args(const Macro& m, std::string_view text, size_t& pos,
                     std::vector<std::string>& args);
  // Adds to the tokens of the current expansion; past the limit it reports
  // the macro used in the text and throws PpStop 4.
  void count(std::size_t tokens);

  MacroTable& table_;
  ExpandHooks hooks_;
  std::size_t tokens_ = 0;
  const Macro* outermost_ = nullptr;  // the use that the limit message names
};

// The argument in double quotes; quote marks and backslashes inside its quoted
// items are escaped so that the result stays one string literal.
std::string stringize(std::string_view arg);

}  // namespace ycc::pp
