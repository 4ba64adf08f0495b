// The generated resize functions: one static C function per distinct
// (element type, structure or enumeration type, dimension count) of the
// file's varspaces, written into the deferred-functions text the first time
// a varspace of that key must grow. Element types that are sufficiently
// equivalent (int and unsigned) share a function.
#pragma once

#include <string>
#include <vector>

#include "common/names.h"
#include "decl/emit.h"
#include "decl/symbol_table.h"
#include "diag/diagnostics.h"
#include "output/workspace.h"

namespace ycc {

class ResizeFunctions {
 public:
  ResizeFunctions(const SymbolTable& symbols, Emitter& emitter, Workspace& ws, const Diagnostics& diag,
                  const Names& names)
      : symbols_(symbols), emitter_(emitter), ws_(ws), diag_(diag), names_(names) {}

  // The number of the resize function of varspace `sym`, generated on first
  // use; 0 once the file has an error (nothing is generated then).
  int function_for(int sym);
  std::string name(int number) const { return names_.generated("resize", number); }

 private:
  struct Key {
    int group;  // size group of the element's type code (signedness ignored)
    int tag;    // serial of the element's structure, enumeration or fun type, 0 for none
    int dims;
    bool operator==(const Key&) const = default;
  };
  void generate(int number, int sym);

  const SymbolTable& symbols_;
  Emitter& emitter_;
  Workspace& ws_;
  const Diagnostics& diag_;
  const Names& names_;
  std::vector<Key> rows_;
  std::vector<int> copied_tags_;  // local tags already defined at file level
};

// The size group of a type code: the codes within one group are
// sufficiently equivalent.
int size_group(int type_bits);

}  // namespace ycc
