#include <gtest/gtest.h>

#include "translate_fixture.h"

namespace ycc::testing {
namespace {

// A function f with int parameters a, b, c, x and the return variable r.
std::string in_function(const std::string& statements, const std::string& globals = "") {
  return globals + "f(int a, int b, int c, int x) int r;\nf(int a, int b, int c, int x) int r\n{\n" + statements +
         "\n}\n";
}

const char color[] = "enum color { red, green, blue };\nenum size { small, large };\n";

TEST(TranslateStatements, IfWithAndWithoutElse) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("if (a) x = 1;")), "\nif(!(a)) goto zzzz_false1;\nx = 1;\nzzzz_false1:");
  TranslateRun u;
  EXPECT_EQ(u.run(in_function("if (a < b) x = 1; else x = 2;")),
            "\nif(!(a < b)) goto zzzz_false1;\nx = 1;\ngoto zzzz_skip1;\nzzzz_false1:\nx = 2;\nzzzz_skip1:");
  EXPECT_EQ(u.messages(), "");
}

TEST(TranslateStatements, DoLoopUsesItsOwnFalseLabelInTheTest) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("do { if (b) continue; --a; } while (a > 0);")),
            "\nzzzz_cont2:\nif(!(b)) goto zzzz_false2;\ngoto zzzz_cont1;\nzzzz_false2:\n--a;\n"
            "zzzz_cont1:\nif(!(a > 0)) goto zzzz_false1;\ngoto zzzz_cont2;\nzzzz_false1:");
}

TEST(TranslateStatements, DoConditionInJumpFormIsRewrittenToTheLoopExit) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("do x = 1; while (a && b);")),
            "\nzzzz_cont2:\nx = 1;\nzzzz_cont1:\nif(!(a)) goto zzzz_false1;\nif(!(b)) goto "
            "zzzz_false1;\ngoto zzzz_cont2;\nzzzz_false1:");
}

TEST(TranslateStatements, ForWithEveryHead) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("for (a = 0; a < 10; ++a) x = x + a;")),
            "\na = 0;\nzzzz_cont2:\nif(!(a < 10)) goto zzzz_false1;\nx = x + a;\nzzzz_cont1:\n++a;"
            "\ngoto zzzz_cont2;\nzzzz_false1:");
  TranslateRun u;
  EXPECT_EQ(u.run(in_function("for (; a; ) continue;")),
            "\nzzzz_cont2:\nif(!(a)) goto zzzz_false1;\ngoto zzzz_cont1;\nzzzz_cont1:\ngoto "
            "zzzz_cont2;\nzzzz_false1:");
}

TEST(TranslateStatements, StatementLabelsAndHandlersInASwitchSetNoBreak) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("switch (a) { top: x = 1; case 1: inner: x = 2; exception 3: x = 3; }\ngoto top;"
                              "\ngoto inner;")),
            "\nswitch(a)\n{\ntop:\nx = 1;\nbreak;\ncase 1:\ninner:\nx = 2;\nzzzz_exception3:\nx = 3;\n;}"
            "\ngoto top;\ngoto inner;");
  EXPECT_EQ(t.messages(), "");
}

TEST(TranslateStatements, NestedSwitchesKeepTheirOwnCases) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("switch (a) { case 1: switch (b) { case 1: x = 1; } case 2: x = 2; }")),
            "\nswitch(a)\n{\nbreak;\ncase 1:\nswitch(b)\n{\nbreak;\ncase 1:\nx = 1;\n;}\nbreak;"
            "\ncase 2:\nx = 2;\n;}");
  EXPECT_EQ(t.messages(), "");
}

TEST(TranslateStatements, CaseLabelForms) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("switch (a) { case 'a': x = 1; case 0x10: x = 2; case 2 * 3 + 1: x = 3; }")),
            "\nswitch(a)\n{\nbreak;\ncase 'a':\nx = 1;\nbreak;\ncase 0x10:\nx = 2;\nbreak;\ncase "
            "7:\nx = 3;\n;}");
  EXPECT_EQ(t.messages(), "");
}

TEST(TranslateStatements, CaseLabelErrors) {
  TranslateRun t;
  t.run(in_function("switch (a) {\ncase 1: x = 1;\ncase 1: x = 2;\ncase 1.5: x = 3;\n"
                    "case 5000000000: x = 4;\ncase red: x = 5;\ndefault: x = 6;\ndefault: x = 7;\n"
                    "case 4: if (b) case 5: x = 8;\n}\ncase 6: x = 9;\ndefault: x = 10;",
                    color));
  EXPECT_EQ(t.message_list(), (std::vector<std::string>{
              "7 error: duplicate case label: label value '1' must be unique within the switch statement",
              "8 error: invalid case label: the label value has a floating-point type",
              "9 error: invalid case label: the label value exceeds the representation limits of type 'unsigned long', which is the largest integral type",
              "10 error: invalid case label: unless the switch expression is an enumeration variable (it is not) and 'red' is an enumeration constant of that enumeration type, then case label 'red' is invalid",
              "12 error: duplicate default label: the default label can only occur at most once within the switch statement",
              "13 error: a case label must appear on a top-level statement within the switch statement",
              "15 error: a case label can only appear within a switch statement",
              "16 error: a default label can only appear within a switch statement"}));
}

TEST(TranslateStatements, EnumerationSwitchLabelErrors) {
  TranslateRun t;
  t.run(in_function("enum color k;\nk = red;\nswitch (k) {\ncase 1: x = 1;\ncase small: x = 2;\n"
                    "case red: x = 3;\ncase red: x = 4;\ncase a: x = 5;\ndefault: x = 6;\n}",
                    color));
  EXPECT_EQ(t.message_list(), (std::vector<std::string>{
              "8 error: invalid case label: label '1' is not an enumeration constant (or zero) as required by the enumeration type of the switch expression",
              "9 error: invalid case label: label 'small' is an enumeration constant, but it does not belong to the enumeration type of the switch expression as required",
              "11 error: duplicate case label: label 'red' must be unique within the switch statement",
              "12 error: invalid case label: label 'a' is not an enumeration constant (or zero) as required by the enumeration type of the switch expression"}));
}

TEST(TranslateStatements, SwitchExpressionMustBeIntegralOrEnumeration) {
  TranslateRun t;
  t.run(in_function("double d;\nd = 1.0;\nswitch (d) { default: x = 1; }\nswitch (red) { case 0: x = 2; }",
                    color));
  EXPECT_EQ(t.message_list(), (std::vector<std::string>{
              "7 error: the expression of the switch statement requires an integral or enumeration type"}));
}

TEST(TranslateStatements, StatementLabelsAndGoto) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("top: x = x + 1;\nif (x < 3) goto top;")),
            "\ntop:\nx = x + 1;\nif(!(x < 3)) goto zzzz_false1;\ngoto top;\nzzzz_false1:");
  EXPECT_EQ(t.messages(), "");
}

TEST(TranslateStatements, ExceptionsRaiseAndReturn) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("if (a) raise 7;\nreturn;\nexception 7: x = 1;\nexception 32000: x = 2;")),
            "\nif(!(a)) goto zzzz_false1;\nzzzz_exception = 7;\ngoto zzzz_finish;\nzzzz_false1:\ngoto "
            "zzzz_finish;\nzzzz_exception7:\nx = 1;\nzzzz_exception32000:\nx = 2;");
  EXPECT_EQ(t.messages(), "");
}

TEST(TranslateStatements, ControlExpressionClassIsChecked) {
  TranslateRun t;
  t.run(in_function("int v[3];\nif (v) x = 1;\nwhile (red) x = 2;", color));
  EXPECT_EQ(t.message_list(), (std::vector<std::string>{
              "6 error: the control expression cannot be a space, the required type is scalar"}));
}

TEST(TranslateStatements, LabelBeforeTheFunctionEndAndPrefix) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("if (a) x = 1;"), "q"), "\nif(!(a)) goto qq_false1;\nx = 1;\nqq_false1:");
}

TEST(TranslateStatements, NestedStatementsLeaveTheStackEmpty) {
  TranslateRun t;
  t.run(in_function("{ if (a) { while (b) { x = 1; } } else x = 2; }\nfor (a = 0; a < 2; a++) { x = a; }"));
  EXPECT_EQ(t.stack_left, 0);
  EXPECT_EQ(t.messages(), "");
}

TEST(TranslateStatements, SyntaxErrorsKeepTheStackInShape) {
  TranslateRun t;
  t.run(in_function("if (a x = 1;\nwhile () ;\nfor (a = ; ; ) x = 1;\ndo x = 2; while (a)\nx = 3;"));
  EXPECT_EQ(t.stack_left, 0);
  EXPECT_NE(t.messages().find("syntax error"), std::string::npos);
}

}  // namespace
}  // namespace ycc::testing
