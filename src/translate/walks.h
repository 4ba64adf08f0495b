// The walks of assignments, free and casts over the spaces an object nests:
// what each does at a varspace, a fixed-space member or before the
// elements. The walker itself (decl/space_walk.h) only finds the parts.
#pragma once

#include <functional>
#include <string>

#include "common/text.h"
#include "decl/emit.h"
#include "decl/space_walk.h"
#include "decl/symbol_table.h"

namespace ycc {

inline bool nests_varspace(const SymbolTable& symbols, int tag) {
  return tag && symbols[tag].name_is == 's' && symbols[tag].vf_flags[0] == 'y';
}

// The loops of the walks below: over the used elements of a one-dimensional
// varspace, the limits of others, the declared sizes of member fixed-spaces.
inline std::string walk_bound(const SymbolTable& symbols, const SpaceWalker::Part& p, int k) {
  const Symbol& s = symbols[p.sym];
  if (s.is_var == 'n' && (s.name_class == 'c' || p.record.empty()))
    return std::to_string(s.dims[static_cast<size_t>(k - 1)].size);
  if (s.is_var == 'y' && s.dim_count() == 1) return p.record + ".occurs";
  return strf("%s.limit%d", p.record.c_str(), k);
}

// Releases the blocks of the varspaces in an object and leaves each empty;
// with `reset_occurs` a one-dimensional fixed-space is emptied too.
class Release : public SpaceWalker::Visitor {
 public:
  Release(const SymbolTable& symbols, std::function<std::string(int)> counter, std::string& out, bool reset_occurs)
      : symbols_(symbols), counter_(std::move(counter)), out_(out), reset_occurs_(reset_occurs) {}
  std::string loop_bound(const SpaceWalker::Part& p, int k) override { return walk_bound(symbols_, p, k); }
  std::string loop_counter(int depth) override { return counter_(depth); }
  void varspace(const SpaceWalker::Part& p) override {
    std::string in = walk_indent(p.depth);
    const char* r = p.record.c_str();
    out_ += strf("\n%sif(%s.limit1 > 0)\n%s   free(%s.ptr);", in.c_str(), r, in.c_str(), r);
    out_ += strf("\n%s%s.ptr = NULL;", in.c_str(), r);
    int n = symbols_[p.sym].dim_count();
    if (n == 1) out_ += strf("\n%s%s.occurs = 0;", in.c_str(), r);
    for (int k = 1; k <= n; ++k) out_ += strf("\n%s%s.limit%d = 0;", in.c_str(), r, k);
  }
  void fixed_member(const SpaceWalker::Part& p) override {
    if (reset_occurs_ && symbols_[p.sym].dim_count() == 1)
      out_ += strf("\n%s%s.occurs = 0;", walk_indent(p.depth).c_str(), p.record.c_str());
  }

 private:
  const SymbolTable& symbols_;
  std::function<std::string(int)> counter_;
  std::string& out_;
  bool reset_occurs_;
};

// After a structure or element copy the nested varspace records of the
// target still name the source's blocks: each gets a copy of its own,
// outer blocks first so that the inner records copied are the target's.
class DeepCopy : public SpaceWalker::Visitor {
 public:
  DeepCopy(const SymbolTable& symbols, const Emitter& emitter, std::function<std::string(int)> counter,
           std::string& out, std::string flag, std::string bytes, int skip_root)
      : symbols_(symbols),
        emitter_(emitter),
        counter_(std::move(counter)),
        out_(out),
        flag_(std::move(flag)),
        bytes_(std::move(bytes)),
        skip_(skip_root) {}
  std::string loop_bound(const SpaceWalker::Part& p, int k) override { return walk_bound(symbols_, p, k); }
  std::string loop_counter(int depth) override { return counter_(depth); }
  void enter_varspace(const SpaceWalker::Part& p) override {
    if (skip_-- > 0) return;
    copy_block(p.sym, p.record, p.mirror_record, walk_indent(p.depth), false);
  }
  // The target's own block for the varspace `sym`: copied from the source
  // when it has elements, emptied when it has none.
  void copy_block(int sym, const std::string& target, const std::string& source, const std::string& in,
                  bool whole_record) {
    const char* t = target.c_str();
    const char* s = source.c_str();
    const char* i = in.c_str();
    int n = symbols_[sym].dim_count();
    if (whole_record) out_ += strf("\n%s%s = %s;", i, t, s);
    std::string chain;
    if (n == 1) chain += strf("%s.occurs = ", t);
    for (int k = 1; k <= n; ++k) chain += strf("%s.limit%d = %s", t, k, k < n ? "" : "0;");
    out_ += strf("\n%sif(%s.limit1 > 0) {", i, s);
    out_ += strf("\n%s   %s = sizeof(%s)", i, bytes_.c_str(), emitter_.c_type(sym).c_str());
    for (int k = 1; k <= n; ++k) out_ += strf(" * %s.limit%d", s, k);
    out_ += strf(";\n%s   %s.ptr = malloc(%s);\n%s   if(%s.ptr == NULL)", i, t, bytes_.c_str(), i, t);
    out_ += strf("\n%s      %s = %s", i, flag_.c_str(), chain.c_str());
    out_ += strf("\n%s   else\n%s      memcpy(%s.ptr, %s.ptr, %s);\n%s}", i, i, t, s, bytes_.c_str(), i);
    out_ += strf("\n%selse\n%s   %s", i, i, chain.c_str());
  }

 private:
  const SymbolTable& symbols_;
  const Emitter& emitter_;
  std::function<std::string(int)> counter_;
  std::string& out_;
  std::string flag_, bytes_;
  int skip_;
};

// Leaves the varspaces of a moved-from object empty: their blocks now
// belong to the target. The elements of a varspace moved with its block.
class Empty : public SpaceWalker::Visitor {
 public:
  Empty(const SymbolTable& symbols, std::function<std::string(int)> counter, std::string& out)
      : symbols_(symbols), counter_(std::move(counter)), out_(out) {}
  bool visit_elements(const SpaceWalker::Part& p) override { return symbols_[p.sym].is_var != 'y'; }
  std::string loop_bound(const SpaceWalker::Part& p, int k) override { return walk_bound(symbols_, p, k); }
  std::string loop_counter(int depth) override { return counter_(depth); }
  void varspace(const SpaceWalker::Part& p) override {
    std::string in = walk_indent(p.depth);
    out_ += strf("\n%s%s.ptr = NULL;", in.c_str(), p.record.c_str());
    int n = symbols_[p.sym].dim_count();
    if (n == 1) out_ += strf("\n%s%s.occurs = 0;", in.c_str(), p.record.c_str());
    for (int k = 1; k <= n; ++k) out_ += strf("\n%s%s.limit%d = 0;", in.c_str(), p.record.c_str(), k);
  }

 private:
  const SymbolTable& symbols_;
  std::function<std::string(int)> counter_;
  std::string& out_;
};

// A copied structure's fixed-space companions name the source's members:
// each is pointed at the target's own.
class Repoint : public SpaceWalker::Visitor {
 public:
  Repoint(const SymbolTable& symbols, std::function<std::string(int)> counter, std::string& out)
      : symbols_(symbols), counter_(std::move(counter)), out_(out) {}
  // Structures in a varspace's block have theirs pointed where they are used.
  bool visit_elements(const SpaceWalker::Part& p) override { return symbols_[p.sym].is_var != 'y'; }
  std::string loop_bound(const SpaceWalker::Part& p, int k) override { return walk_bound(symbols_, p, k); }
  std::string loop_counter(int depth) override { return counter_(depth); }
  void fixed_member(const SpaceWalker::Part& p) override {
    out_ += strf("\n%s%s.ptr = %s;", walk_indent(p.depth).c_str(), p.record.c_str(), p.object.c_str());
  }

 private:
  const SymbolTable& symbols_;
  std::function<std::string(int)> counter_;
  std::string& out_;
};


}  // namespace ycc
