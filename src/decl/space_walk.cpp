#include "decl/space_walk.h"

#include "common/text.h"

namespace ycc {

std::string walk_indent(int depth) { return std::string(static_cast<size_t>(depth > 0 ? depth : 0) * 3, ' '); }

int SpaceWalker::nesting_struct(int sym) const {
  int t = symbols_.resolve_type(symbols_[sym].type_sym);
  return t && symbols_[t].name_is == 's' && !symbols_[t].vf.empty() ? t : 0;
}

namespace {

enum class Stage { start, elements, after_elements, members };

struct Frame {
  int sym;
  int depth;
  size_t base;          // length of the path before this part's own suffix
  std::string record;
  Stage stage = Stage::start;
  size_t next = 0;      // next member of the vf list
  int loops = 0;        // loops this part opened
  std::string parent;   // the part's own object while the path holds an element
};

}  // namespace

void SpaceWalker::walk(int root, const std::string& object, const std::string& record, int depth,
                       Visitor& v, std::string& out) {
  std::string path = object;
  std::vector<Frame> stack;
  stack.push_back({root, depth, 0, record, Stage::start, 0, 0, {}});
  while (!stack.empty()) {
    Frame& f = stack.back();
    const Symbol& s = symbols_[f.sym];
    int t = nesting_struct(f.sym);
    switch (f.stage) {
      case Stage::start: {
        f.stage = Stage::after_elements;
        if (s.dim_count() == 0 || !t || !v.visit_elements({f.sym, path, f.record, f.depth})) break;
        // A space of structures that nest spaces: every element in turn.
        int n = s.dim_count();
        std::string index, element;
        for (int k = 1; k <= n; ++k) {
          std::string c = v.loop_counter(f.depth + k - 1);
          std::string bound = v.loop_bound({f.sym, path, f.record, f.depth}, k);
          out += strf("\n%sfor(%s = 0; %s < %s; ++%s) {", walk_indent(f.depth + k - 1).c_str(), c.c_str(),
                      c.c_str(), bound.c_str(), c.c_str());
          index = k == 1 ? c : strf("(%s) * %s.limit%d + %s", index.c_str(), f.record.c_str(), k, c.c_str());
          element += "[" + c + "]";
        }
        f.loops = n;
        f.parent = path;
        if (s.is_var == 'y')
          path = strf("((struct %s *)(%s.ptr))[%s]", c_tag_name(symbols_[t], names_).c_str(), f.record.c_str(),
                      index.c_str());
        else
          path += element;
        f.stage = Stage::elements;
        f.next = 0;
        break;
      }
      case Stage::elements:
      case Stage::members: {
        const std::vector<int>& vf = symbols_[t].vf;
        if (f.next < vf.size()) {
          int m = vf[f.next++];
          size_t base = path.size();
          path.append(1, '.').append(symbols_[m].name);
          int child_depth = f.depth + (f.stage == Stage::elements ? f.loops : 0);
          // A member's record: a varspace is one, a fixed-space has its companion.
          std::string record;
          if (symbols_[m].is_var == 'y')
            record = path;
          else if (symbols_[m].dim_count() > 0)
            record = path.substr(0, base) + "." + names_.companion(symbols_[m].name);
          stack.push_back({m, child_depth, base, std::move(record), Stage::start, 0, 0, {}});
          break;
        }
        if (f.stage == Stage::members) {
          path.resize(f.base);
          stack.pop_back();
          break;
        }
        for (int k = f.loops; k >= 1; --k) out += strf("\n%s}", walk_indent(f.depth + k - 1).c_str());
        path = std::move(f.parent);
        f.stage = Stage::after_elements;
        break;
      }
      case Stage::after_elements:
        if (s.is_var == 'y') {
          v.varspace({f.sym, path, f.record, f.depth});
        } else if (s.dim_count() > 0 && stack.size() > 1) {
          v.fixed_member({f.sym, path, f.record, f.depth});
        } else if (s.dim_count() == 0 && t) {
          f.stage = Stage::members;
          f.next = 0;
          break;
        }
        path.resize(f.base);
        stack.pop_back();
        break;
    }
  }
}

}  // namespace ycc
