// One walker over the parts of an object that are spaces or that nest
// spaces: the members of structures (through their vf lists) and, for a
// space whose elements are such structures, every element inside loops.
// Emission (initialising and freeing contained varspaces), and later
// assignment, zeroing and free, differ only in what they do at each part.
//
// The walk is iterative and shares one text buffer for the member paths, so
// structures nested thousands deep cost linear memory and no stack.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "common/names.h"
#include "decl/symbol_table.h"

namespace ycc {

class SpaceWalker {
 public:
  // A part reached by the walk. A walk may follow a second object of the
  // same type in step (the source of a copy): its texts are `mirror` and
  // `mirror_record`, empty when there is none.
  struct Part {
    int sym;                 // the variable or member
    const std::string& object;  // C text designating it
    const std::string& record;  // its meta record ("" for a plain structure)
    int depth;               // loops open around it
    const std::string& mirror;
    const std::string& mirror_record;
  };
  // What to do at a part and around it; `out` receives the generated text.
  struct Visitor {
    virtual ~Visitor() = default;
    // Whether the elements of a space of nesting structures are visited.
    virtual bool visit_elements(const Part&) { return true; }
    // The bound of the loop over dimension k (from 1) of a space part.
    virtual std::string loop_bound(const Part& p, int k) = 0;
    // The name of the loop counter at loop depth `depth` (from 0).
    virtual std::string loop_counter(int depth) = 0;
    // A varspace reached by the walk, before its elements (when visited).
    virtual void enter_varspace(const Part&) {}
    // A varspace reached by the walk, after its elements.
    virtual void varspace(const Part&) {}
    // A fixed-space member (its record is its companion), after its elements.
    virtual void fixed_member(const Part&) {}
  };

  SpaceWalker(const SymbolTable& symbols, const Names& names) : symbols_(symbols), names_(names) {}

  // Walks the parts of `sym`, whose object is `object` and whose meta
  // record is `record`, with `depth` loops already open; text to `out`.
  void walk(int sym, const std::string& object, const std::string& record, int depth, Visitor& v,
            std::string& out);
  // The walk of an object whose type is the structure `tag` (an element of
  // a space, a member reached through subscripts).
  void walk_structure(int tag, const std::string& object, const std::string& mirror, int depth, Visitor& v,
                      std::string& out);
  // The same walk over two objects of one type in step.
  void walk_pair(int sym, const std::string& object, const std::string& record, const std::string& mirror,
                 const std::string& mirror_record, int depth, Visitor& v, std::string& out);

  // Whether the type of `sym` is a structure with parts to walk (and which).
  int nesting_struct(int sym) const;

 private:
  struct Frame0 {
    int sym;
    int tag;
  };
  void walk_frames(Frame0 root, const std::string& object, const std::string& record, const std::string& mirror,
                   const std::string& mirror_record, int depth, Visitor& v, std::string& out);

  const SymbolTable& symbols_;
  const Names& names_;
};

// "   " per loop depth, the indentation of walked code.
std::string walk_indent(int depth);

}  // namespace ycc
