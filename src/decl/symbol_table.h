// The symbol table: every name declared in the file being compiled, numbered
// from 1, with an index by name whose lists meet inner scopes first, the stack of
// constructions (structures, enumerations, functions, fun types whose members
// are being declared) and the stack of blocks. Leaving a block discards its
// entries, and their numbers are reused.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "common/c_names.h"
#include "common/names.h"
#include "decl/name_index.h"

namespace ycc {

// Error bits: declaration errors already reported for an entry.
enum SymbolError : int {
  ERR_TYPE = 1,        // conflicting type specifiers
  ERR_STORAGE = 2,     // conflicting storage classes
  ERR_SPACE = 4,       // dimensions, var, resize or initialization
  ERR_REDEFINED = 8,   // a redefinition
  ERR_FUNCTION = 16,   // function definition without or against its prototype
  ERR_PLACEMENT = 32,  // illegal context or placement
};

enum StorageBits : int { STORAGE_STATIC = 1, STORAGE_EXTERN = 2, STORAGE_TYPEDEF = 4 };

struct Dimension {
  int size = 0;          // 0 for an empty size "[]"
  int resize_num = -1;   // -1: not given
  int resize_pct = -1;
  bool written_empty = true;  // "[]": the size comes from an initializer or elsewhere
};

struct Symbol {
  int error_flags = 0;
  std::string name;         // at most 31 characters; anonymous names begin with '1'
  char name_class = 0;      // 'g' tag, 'c' component, 'o' ordinary, 'i' in a prototype or fun list
  char name_is = 0;         // 'v' 's' 'e' 'c' 'f' 'd' 'n' 't'
  int owner = 0;
  int storage = 0;
  int type_bits = 0;
  int type_sym = 0;
  int serial = 0;
  char is_var = 'n';
  std::vector<Dimension> dims;
  // Function info of 'f', 'd' and 'n' entries.
  char ellipsis = 'n';
  int param_count = 0;
  int return_count = 0;
  char p_or_r = 'n';        // 'p' 'r' of a function, 'a' 'b' of a fun type, 'n' none
  char role[2] = {'n', 'n'};  // role details of a parameter or return
  int role_number = 0;
  std::vector<int> vf;      // members that are spaces or nest spaces
  char vf_flags[3] = {'n', 'n', 'n'};  // has varspace, has fixed-space, has 1-D fixed-space
  char contains_fun_ptr = 'n';
  char complete = 'y';      // 'n' for a tag named ahead of its body
  bool emitted = false;     // a tag whose C definition has been written
  bool local = false;       // a tag declared inside a function body
  int enum_count = 0;       // an enumeration's constants
  int walk_parts = 0;       // a structure's nested spaces, as walks meet them (capped)
  int ref_count = 0;
  int resize_count = 0;
  int body_end = 0;         // a tag's members and a fun type's lists stand below this number
  int initial_occurs = 0;   // elements an initializer filled (one-dimensional fixed-spaces)
  int line = 0;             // where the entry was declared
  std::string init_text;    // the C text of its initializer, when it has one
  // Elements its initializer gave to one-dimensional fixed-space members,
  // by path from the variable ("[1].inner.f").
  std::vector<std::pair<std::string, int>> member_occurs;

  // Whether C's headers declare the name (known on first use: names are
  // looked up for every reference, and never change once used).
  bool clashes_with_c() const {
    if (c_clash_ < 0) c_clash_ = clashes_with_c_headers(name) ? 1 : 0;
    return c_clash_ != 0;
  }
  int dim_count() const { return static_cast<int>(dims.size()); }
  bool anonymous() const { return !name.empty() && name[0] == '1'; }
  // The name for messages.
  std::string shown_name() const { return anonymous() ? "anonymous" : name; }

 private:
  mutable signed char c_clash_ = -1;
};

// The C name of a structure, enumeration or fun tag, anonymous ones included.
inline std::string c_tag_name(const Symbol& s, const Names& names) {
  return s.anonymous() ? names.anonymous_tag(s.serial) : c_name(s.name);
}

class SymbolTable {
 public:
  static constexpr size_t name_limit = 31;

  SymbolTable();

  // Takes the next number; the record is zero-filled.
  int new_symbol();
  Symbol& operator[](int sub) { return symbols_[static_cast<size_t>(sub)]; }
  const Symbol& operator[](int sub) const { return symbols_[static_cast<size_t>(sub)]; }
  // The next free number (the count of used entries plus one).
  int count() const { return static_cast<int>(symbols_.size()); }

  // A name as entries keep and the index finds it: its first name_limit characters.
  static std::string_view key(std::string_view name) { return name.substr(0, std::min(name.size(), name_limit)); }
  static std::string stored_name(std::string_view name) { return std::string(key(name)); }
  // Drops the newest entry, which must not be indexed.
  void drop_last() { symbols_.pop_back(); }
  // Gives an entry an anonymous name (never matched by lookups).
  void make_anonymous(int sub);

  void add_to_index(int sub);
  // An entry of the class and name visible in the current scope, or 0.
  int find_in_scope(char name_class, std::string_view name, int owner = 0) const;
  int find_typedef(std::string_view name) const;
  // Follows typedef names to the structure, enumeration or fun type they
  // stand for (0 for a basic type).
  int resolve_type(int type_sym) const;
  // The basic type bits of an entry, read through its typedef name.
  int type_bits_of(int sub) const;
  // The newest other entry of the class and name anywhere in the table, or 0.
  int find_other(char name_class, std::string_view name, int except) const;
  // The member `name` of the structure `tag`, or 0.
  int find_member(int tag, std::string_view name) const;
  // An older tag ('s', 'e' or 'n') of that name, below `before`, or 0.
  int find_tag(char name_is, std::string_view name, int before) const;

  // Constructions whose members are being declared.
  struct Construction {
    char kind;   // 'u' unknown yet, 's', 'e', 'n', 'f', 'd'
    int first;   // the symbol being constructed
  };
  void open_construction(char kind, int first);
  void set_construction_kind(char kind);
  void close_construction();
  const std::vector<Construction>& constructions() const { return constructions_; }

  // Blocks: depth 0 is file level.
  void enter_block();
  void leave_block();
  int depth() const { return static_cast<int>(blocks_.size()); }
  int block_first(int depth) const { return blocks_[static_cast<size_t>(depth - 1)].first; }
  char& block_opened(int depth) { return blocks_[static_cast<size_t>(depth - 1)].opened; }

  // The debugging listing: every entry for 0, else the one entry.
  void dump(std::ostream& out, int sub = 0) const;

 private:
  struct Block {
    int first;
    char opened;
  };
  void remove_from_index(int sub);

  std::vector<Symbol> symbols_;  // entry 0 unused
  // Every indexed entry by its name, and the typedef names alone, newest
  // last: a walk from the back meets inner scopes first.
  NameIndex by_name_;
  NameIndex typedefs_;
  std::vector<Construction> constructions_;
  std::vector<Block> blocks_;
  int serial_ = 0;
};

}  // namespace ycc
