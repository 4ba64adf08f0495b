// Expression forms: the order of the actions pins precedence, associativity
// and the choice between look-alike forms.
#include <gtest/gtest.h>

#include "parser_trace.h"

namespace ycc {
namespace {

// The expression actions of `expr` on one line, " | " between actions;
// end_space_reference is left out (the space-reference cases keep it).
std::string compact(std::string_view expr) {
  std::string trace = expression_trace(expr), out;
  std::size_t start = 0;
  while (start < trace.size()) {
    std::size_t end = trace.find('\n', start);
    std::string line = trace.substr(start, end - start);
    start = end + 1;
    if (line == "end_space_reference") continue;
    if (!out.empty()) out += " | ";
    out += line;
  }
  return out;
}

struct ExprCase {
  const char* expr;
  const char* actions;
};

class ExpressionOrder : public ::testing::TestWithParam<ExprCase> {};

TEST_P(ExpressionOrder, CallsActionsInOrder) {
  EXPECT_EQ(compact(GetParam().expr), GetParam().actions) << "expression: " << GetParam().expr;
  EXPECT_EQ(parse_source(std::string("f() { ") + GetParam().expr + "; }").errors, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Levels, ExpressionOrder,
    ::testing::Values(
        // a = b === c is a = (b === c): assignment is right-associative and
        // === stands at its level.
        ExprCase{"a = b === c",
                 "identifier a | identifier b | identifier c | assignment move === | assignment plain ="},
        ExprCase{"a += b <<= c",
                 "identifier a | identifier b | identifier c | assignment compound <<= | assignment compound +="},
        ExprCase{"a, b, c", "identifier a | identifier b | comma | identifier c | comma"},
        // The middle operand of ?: is a full expression, the last a conditional.
        ExprCase{"a ? b, c : d",
                 "identifier a | identifier b | identifier c | comma | identifier d | conditional"},
        ExprCase{"a ? b : c ? d : e",
                 "identifier a | identifier b | identifier c | identifier d | identifier e | conditional | conditional"},
        ExprCase{"a || b && c",
                 "identifier a | identifier b | identifier c | logical_and | logical_or"},
        ExprCase{"a && b || c",
                 "identifier a | identifier b | logical_and | identifier c | logical_or"},
        ExprCase{"a | b ^ c & d",
                 "identifier a | identifier b | identifier c | identifier d | binary_operator & | binary_operator ^ | binary_operator |"},
        ExprCase{"a == b < c << d + e * f",
                 "identifier a | identifier b | identifier c | identifier d | identifier e | identifier f | "
                 "binary_operator * | binary_operator + | binary_operator << | binary_operator < | binary_operator =="},
        ExprCase{"a - b - c",
                 "identifier a | identifier b | binary_operator - | identifier c | binary_operator -"},
        ExprCase{"a * b % c / d",
                 "identifier a | identifier b | binary_operator * | identifier c | binary_operator % | identifier d | binary_operator /"},
        ExprCase{"x % 2", "identifier x | constant DECIMALINT 2 | binary_operator %"},
        ExprCase{"a != b >= c >> d",
                 "identifier a | identifier b | identifier c | identifier d | binary_operator >> | binary_operator >= | binary_operator !="},
        // a - - b is a minus a negated b; a---b is (a--) - b.
        ExprCase{"a - - b", "identifier a | identifier b | unary_operator - prefix | binary_operator -"},
        ExprCase{"a---b", "identifier a | unary_operator -- postfix | identifier b | binary_operator -"},
        ExprCase{"!~-+x", "identifier x | unary_operator + prefix | unary_operator - prefix | unary_operator ~ prefix | unary_operator ! prefix"},
        ExprCase{"++x--", "identifier x | unary_operator -- postfix | unary_operator ++ prefix"},
        ExprCase{"(a + b) * c",
                 "identifier a | identifier b | binary_operator + | parenthesized | identifier c | binary_operator *"},
        // Casts are told from parenthesised expressions by the token after "(".
        ExprCase{"(int) x", "begin_type_name | add_type_keyword int | end_type_name | identifier x | cast"},
        ExprCase{"(unsigned long) -x",
                 "begin_type_name | add_type_keyword unsigned | add_type_keyword long | end_type_name | identifier x | unary_operator - prefix | cast"},
        ExprCase{"(struct s) buf[i]",
                 "begin_type_name | use_tag struct s | end_type_name | identifier buf | identifier i | subscript expression | cast"},
        ExprCase{"(x) - y", "identifier x | parenthesized | identifier y | binary_operator -"},
        ExprCase{"sizeof(int)", "begin_type_name | add_type_keyword int | end_type_name | sizeof_type"},
        ExprCase{"sizeof(v[this].limit)", "identifier v | subscript this | limit | sizeof_expr"},
        ExprCase{"1 + 0x1f + 1.5 + 1e3 + 'c' + \"s\"",
                 "constant DECIMALINT 1 | constant HEXADECIMAL 0x1f | binary_operator + | constant FLOATONE 1.5 | binary_operator + | "
                 "constant FLOATTWO 1e3 | binary_operator + | constant CHARACTER 'c' | binary_operator + | constant STRING \"s\" | binary_operator +"},
        ExprCase{"added_length + 1", "added_length | constant DECIMALINT 1 | binary_operator +"},
        ExprCase{"free buf", "identifier buf | free_reference"}));

INSTANTIATE_TEST_SUITE_P(
    SpaceReferences, ExpressionOrder,
    ::testing::Values(
        ExprCase{"m[i][j].x", "identifier m | identifier i | subscript expression | identifier j | subscript expression | member x"},
        ExprCase{"m[this][].limit", "identifier m | subscript this | subscript empty | limit"},
        ExprCase{"v.occurs", "identifier v | occurs"},
        ExprCase{"s.a[k].b.limit", "identifier s | member a | identifier k | subscript expression | member b | limit"},
        ExprCase{"v[a[b]]", "identifier v | identifier a | identifier b | subscript expression | subscript expression"}));

INSTANTIATE_TEST_SUITE_P(
    Calls, ExpressionOrder,
    ::testing::Values(
        ExprCase{"f()", "call f args=0 returns=0"},
        ExprCase{"f(a, b = c)", "identifier a | identifier b | identifier c | assignment plain = | call f args=2 returns=0"},
        // q, r = divide(a, b) hands both return variables to the call.
        ExprCase{"q, r = divide(a, b)", "identifier q | identifier r | identifier a | identifier b | call divide args=2 returns=2"},
        ExprCase{"v[i].x = g()", "identifier v | identifier i | subscript expression | member x | call g args=0 returns=1"},
        ExprCase{"(*fp)(x)", "identifier fp | identifier x | call (*x) args=1 returns=0"},
        ExprCase{"r = (*fp)(x)", "identifier r | identifier fp | identifier x | call (*x) args=1 returns=1"},
        // Without parentheses the call with a return variable comes first and
        // the call is told that an operator follows it.
        ExprCase{"x = f(y) + 1", "identifier x | identifier y | call f args=1 returns=1 followed_by_operator | constant DECIMALINT 1 | binary_operator +"},
        ExprCase{"x = (f(y)) + 1", "identifier x | identifier y | call f args=1 returns=0 | parenthesized | constant DECIMALINT 1 | binary_operator + | assignment plain ="},
        ExprCase{"x += f(y)", "identifier x | identifier y | call f args=1 returns=0 | assignment compound +="},
        ExprCase{"x = y = f(z)", "identifier x | identifier y | identifier z | call f args=1 returns=1 | assignment plain ="},
        // Inside arguments "," separates arguments: one return variable only.
        ExprCase{"g(a, b = f(c))", "identifier a | identifier b | identifier c | call f args=1 returns=1 | call g args=2 returns=0"},
        ExprCase{"g((a, b = f(c)))", "identifier a | identifier b | identifier c | call f args=1 returns=2 | parenthesized | call g args=1 returns=0"},
        ExprCase{"a, b, c = 1", "identifier a | identifier b | comma | identifier c | constant DECIMALINT 1 | assignment plain = | comma"}));

}  // namespace
}  // namespace ycc

namespace ycc {
namespace {

struct TypedefCase {
  const char* source;
  const char* run;  // consecutive trace lines
};

class CastOrParentheses : public ::testing::TestWithParam<TypedefCase> {};

// (T) x is a cast exactly when T is a typedef name where it stands.
TEST_P(CastOrParentheses, DecidedByTheTypedefNames) {
  ParseResult r = parse_source(GetParam().source);
  EXPECT_NE(r.trace.find(GetParam().run), std::string::npos) << GetParam().source << "\n" << r.trace;
  EXPECT_EQ(r.errors, 0) << r.messages;
}

INSTANTIATE_TEST_SUITE_P(
    Table, CastOrParentheses,
    ::testing::Values(
        TypedefCase{"typedef int T; f() { (T) x; }",
                    "begin_type_name\nuse_typedef_name T\nend_type_name\nidentifier x\nend_space_reference\ncast\n"},
        TypedefCase{"f() { (T) - x; }",
                    "identifier T\nend_space_reference\nparenthesized\nidentifier x\nend_space_reference\nbinary_operator -\n"},
        TypedefCase{"f() { { typedef char T; } (T) - x; }",
                    "identifier T\nend_space_reference\nparenthesized\nidentifier x\nend_space_reference\nbinary_operator -\n"},
        TypedefCase{"typedef int T; f() { sizeof(T); }",
                    "begin_type_name\nuse_typedef_name T\nend_type_name\nsizeof_type\n"},
        TypedefCase{"f() { sizeof(T); }", "identifier T\nend_space_reference\nsizeof_expr\n"},
        TypedefCase{"f() { (fun cb) p; (enum e) 0; }",
                    "begin_type_name\nuse_tag fun cb\nend_type_name\nidentifier p\nend_space_reference\ncast\n"
                    "expression_statement\nend_statement\nbegin_statement\nbegin_type_name\nuse_tag enum e\n"
                    "end_type_name\nconstant DECIMALINT 0\ncast\n"}));

}  // namespace
}  // namespace ycc
