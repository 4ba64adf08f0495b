// Statement forms: the order of the translation actions of each statement,
// labels and their brackets, and the labels gathered before a body.
#include <gtest/gtest.h>

#include "parser_trace.h"

namespace ycc {
namespace {

// The actions between the body's opening and closing, on one line; the
// statement brackets and end_space_reference are left out unless `all`.
std::string body_actions(std::string_view body, bool all = false) {
  std::string trace = parse_source("f() { " + std::string(body) + " }").trace;
  std::size_t open = trace.find("open_function_body");
  std::size_t from = trace.find('\n', open) + 1;
  std::size_t to = trace.rfind("close_function_body");
  std::string out;
  for (std::size_t start = from; start < to;) {
    std::size_t end = trace.find('\n', start);
    std::string line = trace.substr(start, end - start);
    start = end + 1;
    if (!all && (line == "begin_statement" || line == "end_statement" || line == "end_space_reference"))
      continue;
    if (!out.empty()) out += " | ";
    out += line;
  }
  return out;
}

struct StmtCase {
  const char* body;
  const char* actions;
};

class StatementOrder : public ::testing::TestWithParam<StmtCase> {};

TEST_P(StatementOrder, CallsActionsInOrder) {
  EXPECT_EQ(body_actions(GetParam().body), GetParam().actions) << "body: " << GetParam().body;
  EXPECT_EQ(parse_source(std::string("f() { ") + GetParam().body + " }").errors, 0)
      << "body: " << GetParam().body;
}

INSTANTIATE_TEST_SUITE_P(
    Forms, StatementOrder,
    ::testing::Values(
        StmtCase{"x;", "identifier x | expression_statement"},
        StmtCase{";", "empty_statement"},
        StmtCase{"{ x; }", "open_block | identifier x | expression_statement | close_block"},
        StmtCase{"if (a) b;", "identifier a | control_expression | identifier b | expression_statement | if_end no_else"},
        StmtCase{"if (a) b; else c;",
                 "identifier a | control_expression | identifier b | expression_statement | identifier c | "
                 "expression_statement | if_end else"},
        // else belongs to the nearest if.
        StmtCase{"if (a) if (b) c; else d;",
                 "identifier a | control_expression | identifier b | control_expression | identifier c | "
                 "expression_statement | identifier d | expression_statement | if_end else | if_end no_else"},
        StmtCase{"switch (x) { default: ; }",
                 "identifier x | switch_start | open_block | enter_labelled_statement default | default_label | "
                 "empty_statement | leave_labelled_statement default | close_block | switch_end"},
        StmtCase{"while (a) b;", "identifier a | while_start | identifier b | expression_statement | while_end"},
        StmtCase{"do b; while (a);", "do_start | identifier b | expression_statement | identifier a | do_end"},
        StmtCase{"for (i = 0; i < n; ++i) x;",
                 "identifier i | constant DECIMALINT 0 | assignment plain = | identifier i | identifier n | "
                 "binary_operator < | identifier i | unary_operator ++ prefix | for_start init condition step | "
                 "identifier x | expression_statement | for_end"},
        StmtCase{"for (;;) break;", "for_start - - - | break_stmt | for_end"},
        StmtCase{"for (; a;) continue;", "identifier a | for_start - condition - | continue_stmt | for_end"},
        StmtCase{"goto out; out: return;",
                 "goto_stmt out | enter_labelled_statement statement | statement_label out | return_stmt | "
                 "leave_labelled_statement statement"},
        StmtCase{"raise 3;", "raise_stmt 3"},
        StmtCase{"exception 32000: raise 7;",
                 "enter_labelled_statement exception | exception_handler 32000 | raise_stmt 7 | "
                 "leave_labelled_statement exception"},
        StmtCase{"free buf;", "identifier buf | free_reference | expression_statement"},
        StmtCase{"q, r = divide(a, b);",
                 "identifier q | identifier r | identifier a | identifier b | call divide args=2 returns=2 | "
                 "expression_statement"}));

// case takes three forms, chosen by the token after it.
INSTANTIATE_TEST_SUITE_P(
    CaseLabels, StatementOrder,
    ::testing::Values(
        StmtCase{"switch (c) { case 'a': ; }",
                 "identifier c | switch_start | open_block | enter_labelled_statement case | "
                 "case_label character mode 1 'a' | empty_statement | leave_labelled_statement case | close_block | switch_end"},
        StmtCase{"switch (c) { case 1+2: ; }",
                 "identifier c | switch_start | open_block | enter_labelled_statement case | const_literal 1 | "
                 "const_literal 2 | const_binary + | case_label constant mode 1 1 | empty_statement | "
                 "leave_labelled_statement case | close_block | switch_end"},
        StmtCase{"switch (c) { case x: ; }",
                 "identifier c | switch_start | open_block | enter_labelled_statement case | "
                 "case_label identifier mode 2 x | empty_statement | leave_labelled_statement case | close_block | switch_end"},
        StmtCase{"switch (c) { case -1: ; }",
                 "identifier c | switch_start | open_block | enter_labelled_statement case | const_literal 1 | "
                 "const_unary - | case_label constant mode 1 - | empty_statement | leave_labelled_statement case | "
                 "close_block | switch_end"},
        // Consecutive labels nest: each labelled statement holds the next.
        StmtCase{"switch (c) { case 1: case 2: x; }",
                 "identifier c | switch_start | open_block | enter_labelled_statement case | const_literal 1 | "
                 "case_label constant mode 1 1 | enter_labelled_statement case | const_literal 2 | "
                 "case_label constant mode 1 2 | identifier x | expression_statement | leave_labelled_statement case | "
                 "leave_labelled_statement case | close_block | switch_end"}));

// Declarations come first in a block; a typedef name there starts one.
INSTANTIATE_TEST_SUITE_P(
    Blocks, StatementOrder,
    ::testing::Values(
        StmtCase{"int i; i;",
                 "begin_declaration block | add_type_keyword int | begin_declarator | declarator_name i | "
                 "complete_declarator i | end_declaration block | identifier i | expression_statement"},
        StmtCase{"{ typedef int T; T x; } T;",
                 "open_block | begin_declaration block | add_storage_class typedef | add_type_keyword int | "
                 "begin_declarator | declarator_name T | complete_declarator T | end_declaration block | "
                 "begin_declaration block | use_typedef_name T | begin_declarator | declarator_name x | "
                 "complete_declarator x | end_declaration block | close_block | identifier T | expression_statement"}));

// The statement brackets surround every statement, inner ones first closed.
TEST(StatementBrackets, NestInSourceOrder) {
  EXPECT_EQ(body_actions("while (a) { b; }", true),
            "begin_statement | identifier a | end_space_reference | while_start | begin_statement | open_block | "
            "begin_statement | identifier b | end_space_reference | expression_statement | end_statement | "
            "close_block | end_statement | while_end | end_statement");
}

struct LabelCase {
  const char* body;
  const char* open;  // the open_function_body line
};

class GatheredLabels : public ::testing::TestWithParam<LabelCase> {};

// Labels and handlers are known when the body opens, before any statement.
TEST_P(GatheredLabels, BeforeTheBody) {
  std::string trace = parse_source(std::string("f() { ") + GetParam().body + " }").trace;
  std::size_t at = trace.find("open_function_body");
  ASSERT_NE(at, std::string::npos);
  EXPECT_EQ(trace.substr(at, trace.find('\n', at) - at), GetParam().open) << GetParam().body;
}

INSTANTIATE_TEST_SUITE_P(
    Table, GatheredLabels,
    ::testing::Values(
        LabelCase{"goto b; a: x; b: ;", "open_function_body labels=a,b handlers="},
        LabelCase{"x = a ? b : c; y = p ? q ? r : s : t;", "open_function_body labels= handlers="},
        LabelCase{"switch (e) { case k: ; default: ; }", "open_function_body labels= handlers="},
        LabelCase{"if (x) l1: ; else l2: ; { l3: ; }", "open_function_body labels=l1,l2,l3 handlers="},
        LabelCase{"exception 5: ; exception 32000: ;", "open_function_body labels= handlers=5,32000"},
        LabelCase{"a: b: ;", "open_function_body labels=a,b handlers="}));

// Labels of one body are not those of the next.
TEST(GatheredLabelsPerFunction, StopAtTheBodysEnd) {
  std::string trace = parse_source("f() { a: ; } g() { b: ; }").trace;
  EXPECT_NE(trace.find("open_function_body labels=a handlers=\n"), std::string::npos);
  EXPECT_NE(trace.find("open_function_body labels=b handlers=\n"), std::string::npos);
}

// The scan walks the body a token block at a time: a label, its ":" and the
// token before it fall on every side of the blocks' edges, and a
// conditional's ":" next to an edge is still no label.
TEST(GatheredLabelsPerFunction, FoundAcrossTokenBlocks) {
  std::string body, expected = "open_function_body labels=";
  for (int k = 0; k < 4100; ++k) {
    body += "l" + std::to_string(k) + ": ; x = a ? b : c;\n";
    expected += (k ? ",l" : "l") + std::to_string(k);
  }
  expected += " handlers=";
  std::string trace = parse_source("f() { " + body + " }").trace;
  std::size_t at = trace.find("open_function_body");
  ASSERT_NE(at, std::string::npos);
  EXPECT_EQ(trace.substr(at, trace.find('\n', at) - at), expected);
}

}  // namespace
}  // namespace ycc
