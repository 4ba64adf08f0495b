// The C text of declarations: structures, enumerations, variables with their
// meta records and fixed-space companions, function headings with the
// returns array, and a function's closing sequence. Everything goes through
// the code workspace.
#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "common/names.h"
#include "decl/space_walk.h"
#include "decl/symbol_table.h"
#include "output/workspace.h"

namespace ycc {

class Emitter {
 public:
  Emitter(SymbolTable& symbols, Workspace& ws, const Names& names)
      : symbols_(symbols), ws_(ws), names_(names), walker_(symbols, names) {}

  // The C name of a structure, enumeration or fun tag, anonymous ones included.
  std::string tag_name(int sub) const {
    const Symbol& s = symbols_[sub];
    return hoisting_ && s.local ? names_.anonymous_tag(s.serial) : c_tag_name(s, names_);
  }
  // The C name of a function: library functions and main carry "_yc__".
  std::string function_name(int sub) const;
  // The C type words of a variable's element type ("unsigned int", "struct s").
  std::string element_type(int sub) const;
  // A fun type as a C function-pointer type around `name` (may be empty).
  std::string fun_pointer(int fun, const std::string& name) const;
  // A parameter as written in a heading or a fun-type list.
  std::string parameter(int sub, bool with_name) const;
  // The C type of an element of `sub` ("int", "struct s", a fun type's
  // "void (*) (...)"), and of a pointer to one ("int *", "void (**) (...)").
  std::string c_type(int sub) const;
  // The declaration of `sub` under another name (a call's temporary for it).
  std::string declaration_named(int sub, const std::string& name) const;
  std::string pointer_type(int sub) const;

  // Code generated outside every function (resize functions) needs the
  // element type of a varspace at file level. A structure or enumeration
  // declared inside a body is given there a copy of its definition under its
  // generated name ("zz12_tag"), after the copies of the local tags its
  // members use. Returns the definitions not yet copied (keys in `copied`),
  // and sets `type` to the element type as named at file level.
  std::string file_level_type(int sub, std::vector<int>& copied, std::string& type);

  // The declarations of one complete external declaration, from `first` on.
  void external_declaration(int first);
  // A declaration in a function body (depth 1) or a nested block.
  void local_declaration(int sub, bool nested);
  // A prototype or the heading of a definition (with its locals).
  void function_heading(int f, bool definition);
  // The closing sequence of a function body.
  void function_closing(int f);
  // Under --direct-calls a function defined in this file also gets a direct
  // form, which takes the return variables' addresses as arguments and
  // gives the exception code as its value: its name once its definition has
  // begun, else empty. The described form stays, as a wrapper around it.
  std::string direct_name(int sub) const;
  // Frees the varspaces of the block's variables from `first` on.
  void free_block_varspaces(int first);
  // The same text, appended to `out`.
  void block_frees(int first, std::string& out);

 private:
  std::string variable_text(int sub, bool member, bool local) const;
  // Designators that set the companions of the fixed-space members of a
  // structure variable (or of every element of a space of structures):
  // ".f_zz = {(void *)x.f,0,4}, [1].zz_f = ...", for initializers.
  std::string companion_designators(int sub) const;
  std::string companion_text(int sub, bool member, bool local, int initial_occurs) const;
  void emit_tag(int sub);
  // Where structure and enumeration definitions go: the code workspace, or
  // the function's locals slot for a definition at the top of a body.
  void out(char newline_bgn, const std::string& text);
  void in();
  void out_dent();
  void emit_struct(int sub);
  void emit_enum(int sub);
  // Initialises (or, at block end, frees) the varspaces nested in `sub`.
  void walk_varspaces(int sub, const std::string& object, const std::string& meta, bool free,
                      std::string& out);
  // Whether a walk from `sub` meets a varspace: it is one, or its type is a
  // structure that nests spaces. Most variables are neither.
  bool walks_anything(int sub) const {
    return symbols_[sub].is_var == 'y' || walker_.nesting_struct(sub) != 0;
  }
  std::string loop_counter(int depth);
  bool takes_direct_form(int f, const std::vector<int>& params) const;
  // Where return variable `index` (0: the exception code) is found.
  std::string return_slot(int index) const;
  std::string companion_name(int sub) const { return names_.companion(symbols_[sub].name); }
  // Where the members of a tag end.
  int body_end(int sub) const;
  bool is_space(int sub) const { return symbols_[sub].dim_count() > 0; }

  SymbolTable& symbols_;
  Workspace& ws_;
  const Names& names_;
  SpaceWalker walker_;
  int walk_counters_ = 0;      // loop counters declared in the current function
  bool into_locals_ = false;
  bool hoisting_ = false;  // local tags take their generated names
  int locals_indent_ = 0;
  std::unordered_set<std::string> direct_;  // C names of functions with a direct form
  bool direct_function_ = false;            // the function being defined has one
  std::string wrapper_;                     // its described heading
  std::string wrapper_call_;                // the wrapper's call of the direct form
};

}  // namespace ycc
