// What the translation keeps for the function being translated. It is made
// when a function body opens and dropped when it closes, so nothing of one
// function reaches the next.
#pragma once

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace ycc {

struct FunctionContext {
  // Statement frames: block items flush into the enclosing fragment, the
  // parts of a structured statement stay on the stack for it.
  struct Frame {
    bool block;
    int level;  // stack size when it began
    bool labelled = false;
    int line = 0;  // line code of the statement's first token
  };
  std::vector<Frame> frames;

  // break and continue targets.
  struct Loop {
    char kind;  // 'p' loop, 's' switch
    std::string cont, brk;
  };
  std::vector<Loop> loops;

  struct Switch {
    int enum_type = 0;
    std::set<long long> values;  // numeric case values
    std::set<int> constants;     // enumeration constants used
    bool default_seen = false;
    int label_depth = 0;
    bool break_pending = false;
    int depth = 0;               // frame depth of its top-level statements
  };
  std::vector<Switch> switches;

  // The heads a for statement has: bit 1 init, 2 condition, 4 step.
  std::vector<int> for_heads;

  // --versioned-loops, per open for statement: whether it is written twice,
  // the test that picks the copy without checks, and that copy's
  // statements, collected as the body is translated.
  struct LoopVersion {
    bool candidate = false;
    int statements = 0;  // the assignments the body holds
    int collected = 0;
    std::string guard;
    std::string raise;  // occurs raised before the copy runs
    std::string fast;
  };
  std::vector<LoopVersion> versions;

  // The label of each labelled statement being read, composed when it is left.
  std::vector<std::string> labels_pending;

  struct Label {
    int line = 0;
    int defined = 0;
    int referenced = 0;
  };
  std::map<std::string, Label> statement_labels;

  // The handler numbers in the order of the body, and whether each has been
  // translated.
  std::vector<int> handler_order;
  std::map<int, bool> handlers;
  bool handles(int n) const { return handlers.count(n) != 0; }

  // added_length and its companion are declared once, by the first
  // character-space cast; using added_length needs an assignment to a cast.
  bool added_length_declared = false;
  int added_length_used = 0;  // line of the first use
  bool cast_assigned = false;
  bool ccs_declared = false;  // the running pointer of cast sequences

  // Loop counters declared for the walks of assignments and free.
  int walk_counters = 0;
  // Pointer temporaries of conditionals over functions and aggregates.
  int pointer_temps = 0;

  // Calls: the slots of the largest returns array; the temporaries that hold
  // the returns of calls used as values ("rt", by return variable) and the
  // records of spaces built for calls ("md", by dimension count), numbered
  // per statement and declared once per function.
  int actuals = 0;
  std::vector<int> rt_symbols;
  std::map<int, int> rt_next, rt_declared;
  std::vector<int> md_dims;
  std::map<int, int> md_next, md_declared;

  // Temporaries: the next number of each type row within a statement, and
  // the highest declared in the function.
  static constexpr int temp_rows = 12;
  std::array<int, temp_rows> temp_next{};
  std::array<int, temp_rows> temp_declared{};
};

}  // namespace ycc
