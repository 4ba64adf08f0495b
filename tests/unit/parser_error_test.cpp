// Syntax errors: which inputs are refused and where, the once-per-line rule,
// the 40-character cut, "end of file", recovery that resumes at the next
// declaration or statement, the error limit, and the nesting limit.
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "front/lexer.h"
#include "front/parser.h"
#include "parser_trace.h"

namespace ycc {
namespace {

// "line: text" for each error message, one a line.
std::string errors_of(std::string_view source) {
  std::string messages = parse_source(source).messages, out;
  const std::string mark = " **error: ";
  for (std::size_t start = 0; start < messages.size();) {
    std::size_t end = messages.find('\n', start);
    if (end == std::string::npos) end = messages.size();
    std::string line = messages.substr(start, end - start);
    start = end + 1;
    std::size_t at = line.find(mark);
    if (at == std::string::npos) continue;
    std::size_t open = line.find('(');
    out += line.substr(open + 1, line.find(')') - open - 1) + ": " + line.substr(at + mark.size()) + "\n";
  }
  return out;
}

struct ErrorCase {
  const char* source;
  const char* errors;
};

class SyntaxErrorsReported : public ::testing::TestWithParam<ErrorCase> {};

TEST_P(SyntaxErrorsReported, AtTheRightToken) {
  EXPECT_EQ(errors_of(GetParam().source), GetParam().errors) << "source: " << GetParam().source;
}

INSTANTIATE_TEST_SUITE_P(
    Statements, SyntaxErrorsReported,
    ::testing::Values(
        ErrorCase{"f() { do x; while (y) }", "1: syntax error at or before '}'\n"},
        // A label needs a statement.
        ErrorCase{"f() { a: }", "1: syntax error at or before '}'\n"},
        ErrorCase{"f() { switch (c) { default: } }", "1: syntax error at or before '}'\n"},
        // raise takes a decimal constant; return takes nothing.
        ErrorCase{"f() {\nraise n;\nreturn x;\nraise 0x3;\n}",
                  "2: syntax error at or before 'n'\n3: syntax error at or before 'x'\n"
                  "4: syntax error at or before '0x3'\n"},
        ErrorCase{"f() { exception x: ; }", "1: syntax error at or before 'x'\n"},
        ErrorCase{"f() { case x + 1: ; }", "1: syntax error at or before '+'\n"},
        ErrorCase{"f() { case 'a' + 1: ; }", "1: syntax error at or before '+'\n"},
        ErrorCase{"f() { goto 3; }", "1: syntax error at or before '3'\n"},
        ErrorCase{"f() { switch (c) x; }", "1: syntax error at or before 'x'\n"},
        // Declarations come before the first statement.
        ErrorCase{"f() { x; int y; }", "1: syntax error at or before 'int'\n"},
        ErrorCase{"f() { x;", "1: syntax error at or before 'end of file'\n"}));

INSTANTIATE_TEST_SUITE_P(
    Expressions, SyntaxErrorsReported,
    ::testing::Values(
        // sizeof is always parenthesised; free never is.
        ErrorCase{"f() { sizeof x; }", "1: syntax error at or before 'x'\n"},
        ErrorCase{"f() { sizeof(a + 1); }", "1: syntax error at or before '+'\n"},
        ErrorCase{"f() { free (buf); }", "1: syntax error at or before '('\n"},
        ErrorCase{"f() { free buf; }", ""},
        ErrorCase{"f() { x = ; }", "1: syntax error at or before ';'\n"},
        ErrorCase{"f() { f(a b); }", "1: syntax error at or before 'b'\n"},
        ErrorCase{"f() { a ? b; }", "1: syntax error at or before ';'\n"},
        ErrorCase{"f() { (*fp; }", "1: syntax error at or before ';'\n"},
        ErrorCase{"f() { x[this + 1]; }", "1: syntax error at or before 'this'\n"},
        // A GARBAGE token fits no rule.
        ErrorCase{"f() { x = @y; }", "1: syntax error at or before '@'\n"}));

INSTANTIATE_TEST_SUITE_P(
    Declarations, SyntaxErrorsReported,
    ::testing::Values(
        // % and & are no operators of constant expressions; | is.
        ErrorCase{"int a[10 % 2];", "1: syntax error at or before '%'\n"},
        ErrorCase{"int a[2 & 4];", "1: syntax error at or before '&'\n"},
        ErrorCase{"int a[2 | 4];", ""},
        ErrorCase{"int a[x];", "1: syntax error at or before 'x'\n"},
        ErrorCase{"char var b[].resize[10, 20];", "1: syntax error at or before ']'\n"},
        ErrorCase{"char var b[].resize;", "1: syntax error at or before ';'\n"},
        ErrorCase{"enum e { A, };", "1: syntax error at or before '}'\n"},
        ErrorCase{"int m[2] = { };", "1: syntax error at or before '}'\n"},
        ErrorCase{"struct;", "1: syntax error at or before ';'\n"},
        ErrorCase{"int [5];", "1: syntax error at or before '['\n"},
        // Where a type is required, an identifier that is no typedef name.
        ErrorCase{"x y;", "1: syntax error: expecting a type or typedef name, but found 'x'\n"},
        ErrorCase{"f(x);", "1: syntax error: expecting a type or typedef name, but found 'x'\n"},
        ErrorCase{"f() x;", "1: syntax error: expecting a type or typedef name, but found 'x'\n"},
        ErrorCase{"struct s { static int a; };",
                  "1: syntax error: expecting a type or typedef name, but found 'static'\n"},
        ErrorCase{"f(int a) int q, r;", "1: syntax error: expecting a type or typedef name, but found 'r'\n"},
        ErrorCase{"f(int a) int q { return x; }", "1: syntax error at or before 'x'\n"},
        ErrorCase{"} int x;", "1: syntax error at or before '}'\n"}));

INSTANTIATE_TEST_SUITE_P(
    Rules, SyntaxErrorsReported,
    ::testing::Values(
        // Once per line, but again on the next line.
        ErrorCase{"f() { raise n; raise m; }", "1: syntax error at or before 'n'\n"},
        ErrorCase{"f() { raise n;\nraise m; }",
                  "1: syntax error at or before 'n'\n2: syntax error at or before 'm'\n"},
        // The two messages keep separate line memories.
        ErrorCase{"f(x) { raise n; }",
                  "1: syntax error: expecting a type or typedef name, but found 'x'\n"
                  "1: syntax error at or before 'n'\n"},
        // The quoted text is cut to 40 characters.
        ErrorCase{"f() { raise abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJ; }",
                  "1: syntax error at or before 'abcdefghijklmnopqrstuvwxyz0123456789ABCD'\n"},
        ErrorCase{"f() { raise abcdefghijklmnopqrstuvwxyz0123456789ABCD; }",
                  "1: syntax error at or before 'abcdefghijklmnopqrstuvwxyz0123456789ABCD'\n"},
        ErrorCase{"int x", "1: syntax error at or before 'end of file'\n"}));

// After an error the parser resumes at the next statement or declaration.
struct RecoveryCase {
  const char* source;
  const char* resumes_with;  // a run of trace lines after the error
};

class RecoveryResumes : public ::testing::TestWithParam<RecoveryCase> {};

TEST_P(RecoveryResumes, AtTheNextConstruct) {
  ParseResult r = parse_source(GetParam().source);
  EXPECT_GE(r.errors, 1) << GetParam().source;
  EXPECT_NE(r.trace.find(GetParam().resumes_with), std::string::npos)
      << "source: " << GetParam().source << "\ntrace:\n" << r.trace;
}

INSTANTIATE_TEST_SUITE_P(
    Table, RecoveryResumes,
    ::testing::Values(
        RecoveryCase{"int a = ;\nint b;",
                     "begin_declaration external\nadd_type_keyword int\nbegin_declarator\ndeclarator_name b\n"},
        RecoveryCase{"x y z;\nint b;", "declarator_name b\ncomplete_declarator b\nend_declaration external\n"},
        RecoveryCase{"} ) ] int b;", "declarator_name b\n"},
        RecoveryCase{"int a[10 % 2], c;\nf() { }", "enter_function_name f definition\n"},
        RecoveryCase{"f() int q, r;\ng() { }", "enter_function_name g definition\n"},
        RecoveryCase{"f() {\nx = ;\ny;\n}", "identifier y\nend_space_reference\nexpression_statement\n"},
        RecoveryCase{"f() {\nreturn x;\nbreak;\n}", "break_stmt\n"},
        RecoveryCase{"f() {\nif x) y;\nz;\n}", "identifier z\nend_space_reference\nexpression_statement\n"},
        RecoveryCase{"f() {\nwhile (a b) c;\nd;\n}", "identifier d\n"},
        RecoveryCase{"f() { int x = 1 2; y; }", "identifier y\n"},
        RecoveryCase{"f() { a: }\ng() { }", "close_function_body\nenter_function_name g definition\n"},
        RecoveryCase{"f() { x; }}\nint z;", "declarator_name z\n"},
        RecoveryCase{"f() { case : ; y; }", "identifier y\n"}));

// A recovery that consumed no token makes the next recovery consume one
// first: here the second ";" is taken, and the skip then runs over z.
TEST(RecoveryProgress, NextRecoveryConsumesOneTokenFirst) {
  ParseResult r = parse_source("f() {\nx = ;\ny = ;\nz;\n}\nint w;");
  EXPECT_EQ(errors_of("f() {\nx = ;\ny = ;\nz;\n}"),
            "2: syntax error at or before ';'\n3: syntax error at or before ';'\n");
  EXPECT_EQ(r.trace.find("identifier z"), std::string::npos) << r.trace;
  EXPECT_NE(r.trace.find("identifier y\nend_space_reference\nsyntax_error_operand ;\nassignment plain =\n"
                         "expression_statement\n"),
            std::string::npos)
      << r.trace;
  EXPECT_NE(r.trace.find("declarator_name w"), std::string::npos) << r.trace;
}

// Junk of every kind ends without a hang: each recovery makes progress.
TEST(RecoveryProgress, RandomTokensEnd) {
  const char* words[] = {"(", ")", "[", "]", "{", "}", ";", ",", ":", "?", "=", "===", "+", "-",
                         "*", "%", "&", "|", "x", "T", "1", "'c'", "\"s\"", "int", "struct", "enum",
                         "fun", "var", "static", "typedef", "if", "else", "do", "while", "for",
                         "case", "default", "exception", "raise", "return", "sizeof", "free",
                         ".", "resize", "this", "limit", "occurs", "...", "any", "@", "f"};
  std::mt19937 random(12345);
  for (int round = 0; round < 40; ++round) {
    std::string source;
    for (int i = 0; i < 3000; ++i) {
      source += words[random() % (sizeof words / sizeof *words)];
      source += (i % 17 == 0) ? "\n" : " ";
    }
    Options options;
    options.error_limit = 1000000;
    std::ostringstream err;
    Diagnostics diag(err, options);
    diag.begin_compile();
    TokenBuffer tokens = tokenize(source, diag.files(), err);
    TraceActions actions;
    SyntaxErrors syntax(diag);
    parse_translation_unit(tokens.tokens, actions, syntax);
    EXPECT_GT(diag.errors, 0);
  }
}

// The error limit ends the parse at once.
TEST(ErrorLimit, HaltPropagates) {
  Options options;
  options.error_limit = 2;
  std::ostringstream err;
  Diagnostics diag(err, options);
  diag.begin_compile();
  TokenBuffer tokens = tokenize("\n#line 1 \"t.yc\"\nint a = ;\nint b = ;\nint c = ;\nint x;", diag.files(), err);
  TraceActions actions;
  SyntaxErrors syntax(diag);
  EXPECT_THROW(parse_translation_unit(tokens.tokens, actions, syntax), CompileHalt);
  EXPECT_EQ(diag.errors, 2);
  EXPECT_EQ(actions.trace.find("declarator_name x"), std::string::npos);
}

std::string repeat(std::string_view s, int n) {
  std::string out;
  for (int i = 0; i < n; ++i) out += s;
  return out;
}

struct DepthCase {
  std::string source;
  const char* grammar_file;  // the parser file named by the report
};

class NestingLimit : public ::testing::TestWithParam<DepthCase> {};

// Nesting far beyond the limit ends with the resource message, not a crash.
TEST_P(NestingLimit, EndsWithTheOverflowReport) {
  try {
    parse_source(GetParam().source);
    FAIL() << "no overflow";
  } catch (const ParserOverflow& overflow) {
    std::string expected = std::string("fatal: attrib/AST stack overflow ") + GetParam().grammar_file + "(";
    EXPECT_EQ(overflow.report.substr(0, expected.size()), expected) << overflow.report;
    EXPECT_EQ(overflow.report.substr(overflow.report.size() - 3), ")!\n");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Table, NestingLimit,
    ::testing::Values(DepthCase{"f() { x = " + repeat("(", 100000) + "; }", "parser_expr.cpp"},
                      DepthCase{"f() { x = " + repeat("-", 100000) + "y; }", "parser_expr.cpp"},
                      DepthCase{"f() { x = " + repeat("a = ", 100000) + "y; }", "parser_expr.cpp"},
                      DepthCase{"f() { x = " + repeat("v[", 100000) + "; }", "parser_expr.cpp"},
                      DepthCase{"f() " + repeat("{", 100000), "parser_stmt.cpp"},
                      DepthCase{"f() { " + repeat("do ", 100000) + "; }", "parser_stmt.cpp"},
                      DepthCase{"f() { x = " + repeat("a ? b : ", 100000) + "y; }", "parser_expr.cpp"},
                      DepthCase{repeat("struct a { ", 100000), "parser_decl.cpp"},
                      DepthCase{"int a = " + repeat("{", 100000), "parser_decl.cpp"},
                      DepthCase{"int a[" + repeat("-(", 100000) + "];", "parser_const.cpp"}));

// Nesting just below the limit parses without error: each parenthesis,
// unary operator, nested assignment or block is one level.
TEST(NestingLimit, DepthBelowTheLimitParses) {
  int n = parser_depth_limit - 10;
  const std::string sources[] = {
      "f() { x = " + repeat("(", n) + "y" + repeat(")", n) + "; }",
      "f() { x = " + repeat("-", n) + "y; }",
      "f() { " + repeat("a = ", n) + "y; }",
      "f() " + repeat("{", n) + repeat("}", n),
      "int a[" + repeat("- ", n) + "1];",
  };
  for (const std::string& source : sources) {
    ParseResult r = parse_source(source);
    EXPECT_EQ(r.errors, 0) << r.messages;
  }
}

}  // namespace
}  // namespace ycc
