#include "common/c_names.h"
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

// One walked object: its designating text and the frames' views of it.
struct Frame {
  int sym;               // 0 for an object given by its structure type alone
  int depth;
  size_t base[2];        // length of each path before this part's own suffix
  std::string record[2];
  Stage stage = Stage::start;
  size_t next = 0;       // next member of the vf list
  int loops = 0;         // loops this part opened
  std::string parent[2]; // the part's own objects while the paths hold an element
  int tag = 0;           // the structure type of a frame without symbol
};

}  // namespace

void SpaceWalker::walk(int root, const std::string& object, const std::string& record, int depth,
                       Visitor& v, std::string& out) {
  walk_pair(root, object, record, std::string(), std::string(), depth, v, out);
}

void SpaceWalker::walk_structure(int tag, const std::string& object, const std::string& mirror, int depth,
                                 Visitor& v, std::string& out) {
  if (!tag || symbols_[tag].name_is != 's' || symbols_[tag].vf.empty()) return;
  walk_frames(Frame0{0, tag}, object, std::string(), mirror, std::string(), depth, v, out);
}

void SpaceWalker::walk_pair(int root, const std::string& object, const std::string& record,
                            const std::string& mirror, const std::string& mirror_record, int depth, Visitor& v,
                            std::string& out) {
  walk_frames(Frame0{root, 0}, object, record, mirror, mirror_record, depth, v, out);
}

void SpaceWalker::walk_frames(Frame0 root, const std::string& object, const std::string& record,
                              const std::string& mirror, const std::string& mirror_record, int depth, Visitor& v,
                              std::string& out) {
  const int paths = mirror.empty() && mirror_record.empty() ? 1 : 2;
  std::string path[2] = {object, mirror};
  std::vector<Frame> stack;
  stack.push_back({root.sym, depth, {0, 0}, {record, mirror_record}, Stage::start, 0, 0, {}, root.tag});
  auto part = [&](const Frame& f) {
    return Part{f.sym, path[0], f.record[0], f.depth, path[1], f.record[1]};
  };
  while (!stack.empty()) {
    Frame& f = stack.back();
    const Symbol& s = symbols_[f.sym];
    int t = f.sym ? nesting_struct(f.sym) : f.tag;
    switch (f.stage) {
      case Stage::start: {
        f.stage = Stage::after_elements;
        if (s.is_var == 'y') v.enter_varspace(part(f));
        if (s.dim_count() == 0 || !t || !v.visit_elements(part(f))) break;
        // A space of structures that nest spaces: every element in turn.
        int n = s.dim_count();
        std::string index[2], element;
        for (int k = 1; k <= n; ++k) {
          std::string c = v.loop_counter(f.depth + k - 1);
          std::string bound = v.loop_bound(part(f), k);
          appendf(out, "\n%sfor(%s = 0; %s < %s; ++%s) {", walk_indent(f.depth + k - 1).c_str(), c.c_str(),
                      c.c_str(), bound.c_str(), c.c_str());
          for (int i = 0; i < paths; ++i)
            index[i] = k == 1 ? c : strf("(%s) * %s.limit%d + %s", index[i].c_str(), f.record[i].c_str(), k, c.c_str());
          element += "[" + c + "]";
        }
        f.loops = n;
        for (int i = 0; i < paths; ++i) {
          f.parent[i] = path[i];
          // A varspace's elements, and those of a space known by its record
          // alone, are reached through the record's ptr.
          if (s.is_var == 'y' || path[i].empty())
            path[i] = strf("((struct %s *)(%s.ptr))[%s]", c_tag_name(symbols_[t], names_).c_str(),
                           f.record[i].c_str(), index[i].c_str());
          else
            path[i] += element;
        }
        f.stage = Stage::elements;
        f.next = 0;
        break;
      }
      case Stage::elements:
      case Stage::members: {
        const std::vector<int>& vf = symbols_[t].vf;
        if (f.next < vf.size()) {
          int m = vf[f.next++];
          Frame child{m, f.depth + (f.stage == Stage::elements ? f.loops : 0), {0, 0}, {}, Stage::start, 0, 0, {}, 0};
          for (int i = 0; i < paths; ++i) {
            child.base[i] = path[i].size();
            path[i].append(1, '.').append(c_name(symbols_[m].name));
            // A member's record: a varspace is one, a fixed-space has its companion.
            if (symbols_[m].is_var == 'y')
              child.record[i] = path[i];
            else if (symbols_[m].dim_count() > 0)
              child.record[i] = path[i].substr(0, child.base[i]) + "." + names_.companion(symbols_[m].name);
          }
          stack.push_back(std::move(child));
          break;
        }
        if (f.stage == Stage::members) {
          for (int i = 0; i < paths; ++i) path[i].resize(f.base[i]);
          stack.pop_back();
          break;
        }
        for (int k = f.loops; k >= 1; --k) out += strf("\n%s}", walk_indent(f.depth + k - 1).c_str());
        for (int i = 0; i < paths; ++i) path[i] = std::move(f.parent[i]);
        f.stage = Stage::after_elements;
        break;
      }
      case Stage::after_elements:
        if (s.is_var == 'y') {
          v.varspace(part(f));
        } else if (s.dim_count() > 0 && stack.size() > 1) {
          v.fixed_member(part(f));
        } else if (s.dim_count() == 0 && t) {
          f.stage = Stage::members;
          f.next = 0;
          break;
        }
        for (int i = 0; i < paths; ++i) path[i].resize(f.base[i]);
        stack.pop_back();
        break;
    }
  }
}

}  // namespace ycc
