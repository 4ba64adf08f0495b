#include "decl/symbol_table.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ycc {
namespace {

int declare(SymbolTable& t, const std::string& name, char cls, char is, int owner = 0) {
  int s = t.new_symbol();
  t[s].name = SymbolTable::stored_name(name);
  t[s].name_class = cls;
  t[s].name_is = is;
  t[s].owner = owner;
  t.add_to_index(s);
  return s;
}

TEST(SymbolTable, NamesAreKeptAndComparedAsTheirFirst31Characters) {
  SymbolTable t;
  std::string forty(40, 'n');
  int s = declare(t, forty, 'o', 'v');
  EXPECT_EQ(t[s].name.size(), 31u);
  EXPECT_EQ(t.find_in_scope('o', forty), s);
  EXPECT_EQ(t.find_in_scope('o', std::string(31, 'n') + "different"), s);
  EXPECT_EQ(t.find_in_scope('o', std::string(30, 'n')), 0);
  std::string huge(100000, 'h');  // no limit but the cut
  int h = declare(t, huge, 'o', 'v');
  EXPECT_EQ(t.find_in_scope('o', huge), h);
}

TEST(SymbolTable, ScopesClassesOwnersAndAnonymousNames) {
  SymbolTable t;
  int global = declare(t, "x", 'o', 'v');
  int tag = declare(t, "s", 'g', 's');
  int member = declare(t, "x", 'c', 'v', tag);
  EXPECT_EQ(t.find_in_scope('o', "x"), global);
  EXPECT_EQ(t.find_in_scope('c', "x", tag), member);
  EXPECT_EQ(t.find_in_scope('c', "x", tag + 100), 0);  // members of another structure
  int a1 = t.new_symbol(), a2 = t.new_symbol();
  t.make_anonymous(a1);
  t.make_anonymous(a2);
  EXPECT_NE(t[a1].name, t[a2].name);
  EXPECT_EQ(t[a1].shown_name(), "anonymous");
  EXPECT_EQ(t.find_in_scope('g', t[a1].name), 0);

  t.enter_block();
  EXPECT_EQ(t.find_in_scope('o', "x"), 0);      // a block variable may reuse a global name
  EXPECT_EQ(t.find_in_scope('g', "s"), tag);    // tags are seen through every scope
  EXPECT_EQ(t.find_tag('s', "s", t.count()), tag);
  int local = declare(t, "x", 'o', 'v');
  EXPECT_EQ(t.find_in_scope('o', "x"), local);  // a second one in the block is found
  int typedef_in_block = declare(t, "T", 'o', 't');
  EXPECT_EQ(t.find_typedef("T"), typedef_in_block);
  t.leave_block();
  EXPECT_EQ(t.find_typedef("T"), 0);
  EXPECT_EQ(t.find_in_scope('o', "x"), global);
  EXPECT_EQ(declare(t, "y", 'o', 'v'), local);  // the block's numbers are reused
}

TEST(SymbolTable, DumpLayout) {
  SymbolTable t;
  int s = declare(t, "node", 'g', 's');
  int m = declare(t, "items", 'c', 'v', s);
  t[m].is_var = 'y';
  t[m].type_bits = 4;
  t[m].dims = {{0, 50, 15}};
  t[s].vf = {m};
  t[s].vf_flags[0] = 'y';
  t[s].contains_fun_ptr = 'y';
  int f = declare(t, "f", 'o', 'd');
  t[f].param_count = 1;
  t[f].return_count = 2;
  int p = declare(t, "a", 'i', 'v', f);
  t[p].p_or_r = 'p';
  t[p].type_bits = 4;
  std::ostringstream out;
  t.dump(out);
  EXPECT_EQ(out.str(),
            "\n\n  symbol table\n\n"
            "( 1) (0, node, g, s, 0) (0) (0, 0) vf:(y, n, 2) (contains function pointer)\n"
            "( 2) (0, items, c, v, 1) (0) (4, 0) v:(y, 1)\n"
            "(dim 1) init:0 resize-num:50 resize-pct:15\n"
            "( 3) (0, f, o, d, 0) (0) (0, 0) f:(n, 1, 2)\n"
            "( 4) (0, a, i, v, 3) (0) (4, 0) v:(n, 0) r:(p, n, n, 0)\n");
  std::ostringstream one;
  t.dump(one, 3);
  EXPECT_EQ(one.str(), "( 3) (0, f, o, d, 0) (0) (0, 0) f:(n, 1, 2)\n");
}

TEST(SymbolTable, ManyDeclarationsAndDeepBlocksStayCheap) {
  SymbolTable t;
  for (int i = 0; i < 100000; ++i) declare(t, "v" + std::to_string(i), 'o', 'v');
  EXPECT_EQ(t.find_in_scope('o', "v99999"), 100000);
  for (int i = 0; i < 10000; ++i) {
    t.enter_block();
    declare(t, "same", 'o', 'v');
  }
  for (int i = 0; i < 10000; ++i) t.leave_block();
  EXPECT_EQ(t.count(), 100001);
  EXPECT_EQ(t.find_in_scope('o', "same"), 0);
}

}  // namespace
}  // namespace ycc

namespace ycc {
namespace {

// The index grows past its first table many times; every name keeps its own
// list, names that share a prefix or a length stay apart, and a name whose
// list was emptied is found with an empty list.
TEST(NameIndex, KeepsEveryNameApartThroughGrowth) {
  NameIndex index;
  const int n = 5000;
  for (int i = 0; i < n; ++i) index["v" + std::to_string(i)].push_back(i);
  index[""].push_back(-1);
  for (int i = 0; i < n; ++i) {
    const std::vector<int>* list = index.find("v" + std::to_string(i));
    ASSERT_NE(list, nullptr) << i;
    EXPECT_EQ(*list, std::vector<int>{i});
  }
  EXPECT_EQ(*index.find(""), std::vector<int>{-1});
  EXPECT_EQ(index.find("v"), nullptr);
  EXPECT_EQ(index.find("v5000"), nullptr);
  EXPECT_EQ(index.find("w1"), nullptr);
  index["v7"].clear();
  ASSERT_NE(index.find("v7"), nullptr);
  EXPECT_TRUE(index.find("v7")->empty());
  index["v7"].push_back(70);
  EXPECT_EQ(*index.find("v7"), std::vector<int>{70});
}

}  // namespace
}  // namespace ycc
