// External declarations and declarators: specifiers in any order, tags,
// typedef names, dimensions, resize groups, initializers, function headers
// with parameter and return lists.
#include <gtest/gtest.h>

#include "parser_trace.h"

namespace ycc {
namespace {

// The whole trace on one line, " | " between actions.
std::string actions_of(std::string_view source) {
  std::string trace = parse_source(source).trace, out;
  for (std::size_t start = 0; start < trace.size();) {
    std::size_t end = trace.find('\n', start);
    if (!out.empty()) out += " | ";
    out += trace.substr(start, end - start);
    start = end + 1;
  }
  return out;
}

struct DeclCase {
  const char* source;
  const char* actions;
};

class DeclarationOrder : public ::testing::TestWithParam<DeclCase> {};

TEST_P(DeclarationOrder, CallsActionsInOrder) {
  EXPECT_EQ(actions_of(GetParam().source), GetParam().actions) << "source: " << GetParam().source;
  EXPECT_EQ(parse_source(GetParam().source).errors, 0) << "source: " << GetParam().source;
}

INSTANTIATE_TEST_SUITE_P(
    Specifiers, DeclarationOrder,
    ::testing::Values(
        // Storage classes and type keywords in any order.
        DeclCase{"unsigned static long x;",
                 "begin_declaration external | add_type_keyword unsigned | add_storage_class static | "
                 "add_type_keyword long | begin_declarator | declarator_name x | complete_declarator x | "
                 "end_declaration external"},
        // Combinations are the declaration routines' to refuse, not the grammar's.
        DeclCase{"extern static int int x;",
                 "begin_declaration external | add_storage_class extern | add_storage_class static | "
                 "add_type_keyword int | add_type_keyword int | begin_declarator | declarator_name x | "
                 "complete_declarator x | end_declaration external"},
        DeclCase{"int;", "begin_declaration external | add_type_keyword int | complete_tag_only_declaration | end_declaration external"},
        // struct s; declares the tag; a later body completes it.
        DeclCase{"struct s; struct s { int a; } x, y;",
                 "begin_declaration external | declare_tag struct s forward | complete_tag_only_declaration | "
                 "end_declaration external | begin_declaration external | declare_tag struct s body | "
                 "begin_declaration member | add_type_keyword int | begin_declarator | declarator_name a | "
                 "complete_declarator a | end_declaration member | end_tag_body struct | begin_declarator | "
                 "declarator_name x | complete_declarator x | begin_declarator | declarator_name y | "
                 "complete_declarator y | end_declaration external"},
        DeclCase{"struct t x;",
                 "begin_declaration external | use_tag struct t | begin_declarator | declarator_name x | "
                 "complete_declarator x | end_declaration external"},
        DeclCase{"struct { int a; };",
                 "begin_declaration external | declare_tag struct anonymous body | begin_declaration member | "
                 "add_type_keyword int | begin_declarator | declarator_name a | complete_declarator a | "
                 "end_declaration member | end_tag_body struct | complete_tag_only_declaration | end_declaration external"},
        DeclCase{"enum e { A, B } v = A;",
                 "begin_declaration external | declare_tag enum e body | enumerator A | enumerator B | "
                 "end_tag_body enum | begin_declarator | declarator_name v | begin_initializer | "
                 "initializer_identifier A | end_initializer | complete_declarator v initialized | end_declaration external"},
        // A fun type: parameters (any and ... among them) and returns; the
        // name after a return type is the return's.
        DeclCase{"fun cb (int a, any, ...) int r;",
                 "begin_declaration external | declare_tag fun cb body | begin_parameter_list fun | "
                 "begin_declaration fun_parameter | add_type_keyword int | begin_declarator | declarator_name a | "
                 "complete_declarator a | parameter_any | parameter_ellipsis | end_parameter_list fun | "
                 "begin_return_list fun | begin_declaration fun_return | add_type_keyword int | begin_declarator | "
                 "declarator_name r | complete_declarator r | end_return_list fun | end_tag_body fun | "
                 "complete_tag_only_declaration | end_declaration external"},
        DeclCase{"fun cb fp = 0;",
                 "begin_declaration external | use_tag fun cb | begin_declarator | declarator_name fp | "
                 "begin_initializer | const_literal 0 | initializer_constant 0 | end_initializer | "
                 "complete_declarator fp initialized | end_declaration external"},
        // A typedef name is a specifier; after another type it is one only
        // when a declarator follows it.
        DeclCase{"typedef int T; T x; int T y;",
                 "begin_declaration external | add_storage_class typedef | add_type_keyword int | begin_declarator | "
                 "declarator_name T | complete_declarator T | end_declaration external | begin_declaration external | "
                 "use_typedef_name T | begin_declarator | declarator_name x | complete_declarator x | "
                 "end_declaration external | begin_declaration external | add_type_keyword int | use_typedef_name T | "
                 "begin_declarator | declarator_name y | complete_declarator y | end_declaration external"},
        // A typedef name of a block is gone when the block closes.
        DeclCase{"f() { { typedef int T; } T = 1; }",
                 "enter_function_name f definition | begin_parameter_list function | end_parameter_list function | "
                 "begin_return_list function | end_return_list function | finish_function f definition | "
                 "open_function_body labels= handlers= | begin_statement | open_block | begin_declaration block | "
                 "add_storage_class typedef | add_type_keyword int | begin_declarator | declarator_name T | "
                 "complete_declarator T | end_declaration block | close_block | end_statement | begin_statement | "
                 "identifier T | end_space_reference | constant DECIMALINT 1 | assignment plain = | "
                 "expression_statement | end_statement | close_function_body"}));

INSTANTIATE_TEST_SUITE_P(
    Declarators, DeclarationOrder,
    ::testing::Values(
        // var belongs to the declarator, after the type; it may also come first.
        DeclCase{"char var text[];",
                 "begin_declaration external | add_type_keyword char | begin_declarator | add_var_qualifier var | "
                 "declarator_name text | add_dimension empty | complete_declarator text | end_declaration external"},
        DeclCase{"var int a[][];",
                 "begin_declaration external | add_var_qualifier var | add_type_keyword int | begin_declarator | "
                 "declarator_name a | add_dimension empty | add_dimension empty | complete_declarator a | "
                 "end_declaration external"},
        // The three resize forms: number and percentage, percentage alone,
        // number alone (the missing part is recorded as -1).
        DeclCase{"char var buf[].resize[100, 50%];",
                 "begin_declaration external | add_type_keyword char | begin_declarator | add_var_qualifier var | "
                 "declarator_name buf | add_dimension empty | const_literal 100 | const_literal 50 | "
                 "add_resize_group number percent | complete_declarator buf | end_declaration external"},
        DeclCase{"char var b[][].resize[50%][100];",
                 "begin_declaration external | add_type_keyword char | begin_declarator | add_var_qualifier var | "
                 "declarator_name b | add_dimension empty | add_dimension empty | const_literal 50 | "
                 "add_resize_group -1 percent | const_literal 100 | add_resize_group number -1 | "
                 "complete_declarator b | end_declaration external"},
        DeclCase{"int a[2 * (3 + 4) | 1];",
                 "begin_declaration external | add_type_keyword int | begin_declarator | declarator_name a | "
                 "const_literal 2 | const_literal 3 | const_literal 4 | const_binary + | const_binary * | "
                 "const_literal 1 | const_binary | | add_dimension size | complete_declarator a | end_declaration external"},
        DeclCase{"int a[- -2 / 1];",
                 "begin_declaration external | add_type_keyword int | begin_declarator | declarator_name a | "
                 "const_literal 2 | const_unary - | const_unary - | const_literal 1 | const_binary / | "
                 "add_dimension size | complete_declarator a | end_declaration external"},
        DeclCase{"int m[2] = { {1}, -4, +x, 'c', \"s\" };",
                 "begin_declaration external | add_type_keyword int | begin_declarator | declarator_name m | "
                 "const_literal 2 | add_dimension size | begin_initializer | initializer_open_brace | "
                 "initializer_open_brace | const_literal 1 | initializer_constant 1 | initializer_close_brace | "
                 "const_literal 4 | const_unary - | initializer_constant - | initializer_identifier x sign + | "
                 "const_literal 'c' | initializer_constant 'c' | const_literal \"s\" | initializer_constant \"s\" | "
                 "initializer_close_brace | end_initializer | complete_declarator m initialized | end_declaration external"}));

INSTANTIATE_TEST_SUITE_P(
    Functions, DeclarationOrder,
    ::testing::Values(
        // divide(int a, int b) int q, int r { } defines a function with two returns.
        DeclCase{"divide(int a, int b) int q, int r { }",
                 "enter_function_name divide definition | begin_parameter_list function | begin_declaration parameter | "
                 "add_type_keyword int | begin_declarator | declarator_name a | complete_declarator a | "
                 "begin_declaration parameter | add_type_keyword int | begin_declarator | declarator_name b | "
                 "complete_declarator b | end_parameter_list function | begin_return_list function | "
                 "begin_declaration return | add_type_keyword int | begin_declarator | declarator_name q | "
                 "complete_declarator q | begin_declaration return | add_type_keyword int | begin_declarator | "
                 "declarator_name r | complete_declarator r | end_return_list function | "
                 "finish_function divide definition | open_function_body labels= handlers= | close_function_body"},
        DeclCase{"static f(char var s[], ...) int;",
                 "enter_function_name f static prototype | begin_parameter_list function | begin_declaration parameter | "
                 "add_type_keyword char | begin_declarator | add_var_qualifier var | declarator_name s | "
                 "add_dimension empty | complete_declarator s | parameter_ellipsis | end_parameter_list function | "
                 "begin_return_list function | begin_declaration return | add_type_keyword int | begin_declarator | "
                 "complete_declarator anonymous | end_return_list function | finish_function f prototype | "
                 "end_declaration external"},
        DeclCase{"printf(...);",
                 "enter_function_name printf prototype | begin_parameter_list function | parameter_ellipsis | "
                 "end_parameter_list function | begin_return_list function | end_return_list function | "
                 "finish_function printf prototype | end_declaration external"},
        // A return may be initialized in the grammar (the routines decide);
        // its initializer's braces do not open the body.
        DeclCase{"f() int r[2] = {1, 2} { }",
                 "enter_function_name f definition | begin_parameter_list function | end_parameter_list function | "
                 "begin_return_list function | begin_declaration return | add_type_keyword int | begin_declarator | "
                 "declarator_name r | const_literal 2 | add_dimension size | begin_initializer | initializer_open_brace | "
                 "const_literal 1 | initializer_constant 1 | const_literal 2 | initializer_constant 2 | "
                 "initializer_close_brace | end_initializer | complete_declarator r initialized | end_return_list function | "
                 "finish_function f definition | open_function_body labels= handlers= | close_function_body"},
        // A structure body inside a parameter list is parsed (and refused by
        // the declaration routines); it does not make the header a definition.
        DeclCase{"g(struct p { int a; } x);",
                 "enter_function_name g prototype | begin_parameter_list function | begin_declaration parameter | "
                 "declare_tag struct p body | begin_declaration member | add_type_keyword int | begin_declarator | "
                 "declarator_name a | complete_declarator a | end_declaration member | end_tag_body struct | "
                 "begin_declarator | declarator_name x | complete_declarator x | end_parameter_list function | "
                 "begin_return_list function | end_return_list function | finish_function g prototype | "
                 "end_declaration external"},
        DeclCase{"h(fun cb f) fun cb g;",
                 "enter_function_name h prototype | begin_parameter_list function | begin_declaration parameter | "
                 "use_tag fun cb | begin_declarator | declarator_name f | complete_declarator f | "
                 "end_parameter_list function | begin_return_list function | begin_declaration return | "
                 "use_tag fun cb | begin_declarator | declarator_name g | complete_declarator g | "
                 "end_return_list function | finish_function h prototype | end_declaration external"},
        // A file that holds only ";" declares nothing.
        DeclCase{";", ""}));

// Line codes: file index 1 ("t.yc") times 1000000 plus the line.
TEST(DeclarationLines, TokensCarryTheirLineCodes) {
  std::string trace = parse_source("int\nx;", true).trace;
  EXPECT_NE(trace.find("add_type_keyword int@1000001"), std::string::npos) << trace;
  EXPECT_NE(trace.find("declarator_name x@1000002"), std::string::npos) << trace;
}

}  // namespace
}  // namespace ycc
