#include <gtest/gtest.h>

#include "translate_fixture.h"

namespace ycc::testing {
namespace {

std::string in_function(const std::string& statements, const std::string& globals = "") {
  return globals +
         "f(int a, int b, int c, int x, long l, unsigned u, double d, char ch) int r;\n"
         "f(int a, int b, int c, int x, long l, unsigned u, double d, char ch) int r\n{\n" +
         statements + "\n}\n";
}

const char color[] = "enum color { red, green, blue };\nenum size { small, large };\n";

// ---- Arithmetic type rules ---------------------------------------------------------------

struct Equivalence {
  int a, b;
  bool sufficient, exact;
};

TEST(TranslateTypes, SufficientAndExactEquivalence) {
  const Equivalence rows[] = {
      {4, 128, true, false},   {4, 68, true, true},     {64, 4, true, true},    {128, 132, true, true},
      {4, 8, false, false},    {8, 12, true, true},     {8, 136, true, false},  {136, 140, true, true},
      {16, 32, false, false},  {32, 40, false, false},  {40, 40, true, true},   {1, 65, true, false},
      {1, 129, true, false},   {65, 129, true, false},  {2, 70, true, true},    {130, 134, true, true},
      {2, 130, true, false},   {2, 4, false, false},    {1, 2, false, false},   {16, 16, true, true},
  };
  for (const Equivalence& r : rows) {
    EXPECT_EQ(sufficiently_equivalent(r.a, r.b), r.sufficient) << r.a << " " << r.b;
    EXPECT_EQ(sufficiently_equivalent(r.b, r.a), r.sufficient) << r.b << " " << r.a;
    EXPECT_EQ(exactly_equivalent(r.a, r.b), r.exact) << r.a << " " << r.b;
  }
}

TEST(TranslateTypes, ResultTypeOfBinaryArithmetic) {
  struct Row {
    int a, b, result;
  };
  const Row rows[] = {
      {4, 4, 4},     {1, 1, 4},      {129, 4, 128},  {130, 2, 128}, {4, 8, 8},
      {128, 8, 8},   {136, 4, 136},  {8, 128, 8},    {16, 8, 16},   {16, 32, 32},
      {40, 16, 40},  {32, 40, 40},   {4, 16, 16},    {140, 72, 136}, {65, 66, 4},
  };
  for (const Row& r : rows) {
    EXPECT_EQ(arithmetic_result(r.a, r.b), r.result) << r.a << " " << r.b;
    EXPECT_EQ(arithmetic_result(r.b, r.a), r.result) << r.b << " " << r.a;
  }
}

// ---- Operand classes ---------------------------------------------------------------------------

struct ClassRow {
  const char* what;
  Operand entry;
  int cls;
  bool refuse_aggregates;
  const char* message;  // "" when the operand passes
};

Operand make(int bits, char kind = 0, int dims = 0, bool casted = false, bool empty = false) {
  Operand e;
  e.type_bits = bits;
  e.kind = kind;
  e.dims = dims;
  e.casted = casted;
  e.empty = empty;
  return e;
}

TEST(TranslateClasses, EveryClassAndMessage) {
  const ClassRow rows[] = {
      {"int scalar", make(4), 2, true, ""},
      {"function pointer scalar", make(0, 'n'), 2, true, ""},
      {"enumeration scalar", make(0, 'e'), 2, true, ""},
      {"structure scalar", make(0, 's'), 2, true, "cannot be a structure, the required type is scalar"},
      {"space scalar", make(4, 0, 1), 2, true, "cannot be a space, the required type is scalar"},
      {"space by element", make(4, 0, 1), 5, false, ""},
      {"casted", make(4, 0, 0, true), 2, true, "cannot be a casted character space, the required type is scalar"},
      {"empty", make(0, 0, 0, false, true), 2, true, "cannot be empty, the required type is scalar"},
      {"function name", make(0, 'd'), 3, true, ""},
      {"int function", make(4), 3, true, "cannot be an integral value, the required type is function"},
      {"double function", make(32), 3, true, "cannot be a floating-point value, the required type is function"},
      {"enum constant", make(0, 'c'), 4, true, ""},
      {"pointer enumeration", make(0, 'n'), 4, true, "cannot be a function pointer, the required type is enumeration"},
      {"enum var arithmetic", make(0, 'e'), 5, true,
       "cannot be an enumeration variable, the required type is arithmetic"},
      {"float floating", make(16), 6, true, ""},
      {"int floating", make(4), 6, true, "cannot be an integral value, the required type is floating-point"},
      {"long integral", make(8), 7, true, ""},
      {"long double integral", make(40), 7, true,
       "cannot be a floating-point value, the required type is integral"},
      {"enum constant either", make(0, 'c'), 8, true, ""},
      {"function name either", make(0, 'd'), 8, true,
       "cannot be a function name, the required type is either arithmetic or enumeration"},
      {"structure aggregate", make(0, 's'), 1, true, ""},
      {"int aggregate", make(4), 1, true, "the required operand type is aggregate"},
  };
  for (const ClassRow& r : rows)
    EXPECT_EQ(class_message(r.entry, r.cls, r.refuse_aggregates), r.message) << r.what;
}

// ---- Values and code ---------------------------------------------------------------------------

TEST(TranslateExpressions, OperatorsKeepTheSourceGrouping) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("r = (a + b) * c - a / b % c;\nr = a << 2 | b & c ^ x;\nr = - -a;\nr = ~a + +b;")),
            "\nr = (a + b) * c - a / b % c;\nr = a << 2 | b & c ^ x;\nr = - -a;\nr = ~a + +b;");
  EXPECT_EQ(t.messages(), "");
}

TEST(TranslateExpressions, LiteralsAsCText) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("r = 010 + 0 + 0x1F;\nl = 7L;\nu = 3000000000U;\nd = 1.5e3;\nch = '\\065';")),
            "\nr = 10 + 0 + 0x1F;\nl = 7L;\nu = 3000000000U;\nd = 1.5e3;\nch = '\\101';");
  EXPECT_EQ(t.messages(), "");
}

TEST(TranslateExpressions, CompoundAssignmentsAndPrefixIncrements) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("a += 2;\nb <<= 1;\nc %= 3;\n++a;\n--b;\nd /= 2.0;")),
            "\na += 2;\nb <<= 1;\nc %= 3;\n++a;\n--b;\nd /= 2.0;");
  TranslateRun u;
  u.run(in_function("d %= 2;\nd <<= 1;\nred += 1;", color));
  EXPECT_EQ(u.message_list(), (std::vector<std::string>{
                                  "5 error: '%=' : the left operand cannot be a floating-point value, "
                                  "the required type is integral",
                                  "6 error: '<<=' : the left operand cannot be a floating-point value, "
                                  "the required type is integral",
                                  "7 error: '+=' : the left operand cannot be an enumeration constant, "
                                  "the required type is arithmetic"}));
}

TEST(TranslateExpressions, PostfixIncrementKeepsTheOldValueInATemporary) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("r = a++ + b--;\nd++;\nr = a++;")),
            "\nzzzz_int1 = a;\na++;\nzzzz_int2 = b;\nb--;\nr = zzzz_int1 + zzzz_int2;"
            "\nzzzz_double1 = d;\nd++;\nzzzz_int1 = a;\na++;\nr = zzzz_int1;");
  // Declared once per function, with the highest number used.
  EXPECT_EQ(t.locals.back(), "\nint zzzz_int1;\nint zzzz_int2;\ndouble zzzz_double1;");
}

TEST(TranslateExpressions, TemporariesAreDeclaredAgainInTheNextFunction) {
  TranslateRun t;
  t.run("f(int a) int r;\ng(long a) int r;\nf(int a) int r\n{\nr = a++;\n}\ng(long a) int r\n{\n"
        "a--;\nr = 1;\n}\n");
  ASSERT_EQ(t.locals.size(), 2u);
  EXPECT_EQ(t.locals[0], "\nint zzzz_int1;");
  EXPECT_EQ(t.locals[1], "\nlong zzzz_long1;");
}

TEST(TranslateExpressions, TemporaryTypesFollowTheOperand) {
  TranslateRun t;
  t.run("f(char a, signed char b, unsigned char c, short d, unsigned short e, unsigned g, unsigned long h,"
        " float i, long double j) int r;\n"
        "f(char a, signed char b, unsigned char c, short d, unsigned short e, unsigned g, unsigned long h,"
        " float i, long double j) int r\n{\na++;\nb++;\nc++;\nd++;\ne++;\ng++;\nh++;\ni++;\nj++;\nr = 0;\n}\n");
  EXPECT_EQ(t.messages(), "");
  EXPECT_EQ(t.locals.back(),
            "\nchar zzzz_char1;\nsigned char zzzz_signed_char1;\nunsigned char zzzz_unsigned_char1;"
            "\nshort zzzz_short1;\nunsigned short zzzz_unsigned_short1;\nunsigned zzzz_unsigned1;"
            "\nunsigned long zzzz_unsigned_long1;\nfloat zzzz_float1;\nlong double zzzz_long_double1;");
}

TEST(TranslateExpressions, OrThenAndPlacesTheLeftFalseLabel) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("if (a || b && c) x = 1;")),
            "\nif(a) goto zzzz_true2;\nif(!(b)) goto zzzz_false1;\nif(!(c)) goto zzzz_false1;"
            "\nzzzz_true2:\nx = 1;\nzzzz_false1:");
  TranslateRun u;
  EXPECT_EQ(u.run(in_function("if ((a || b) && c) x = 1;")),
            "\nif(a) goto zzzz_true1;\nif(b) goto zzzz_true1;\ngoto zzzz_false2;\nzzzz_true1:"
            "\nif(!(c)) goto zzzz_false2;\nx = 1;\nzzzz_false2:");
}

TEST(TranslateExpressions, AndOfTwoJumpFormsSharesOneFalseLabel) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("if ((a && b) && (c && x)) r = 1;")),
            "\nif(!(a)) goto zzzz_false2;\nif(!(b)) goto zzzz_false2;\nif(!(c)) goto zzzz_false2;"
            "\nif(!(x)) goto zzzz_false2;\nr = 1;\nzzzz_false2:");
}

TEST(TranslateExpressions, LongChainsShareOneLabelAndOneValue) {
  std::string pairs, sum;
  for (int k = 0; k < 20000; ++k) {
    pairs += k ? " && (a && b)" : "(a && b)";
    sum += k ? " + a" : "a";
  }
  TranslateRun t;
  std::string body = t.run(in_function("if (" + pairs + ") r = 1;\nr = " + sum + ";"));
  EXPECT_EQ(t.messages(), "");
  // Every test jumps to the false label of the last pair.
  size_t tests = 0;
  for (size_t at = body.find("goto zzzz_false20000;"); at != std::string::npos;
       at = body.find("goto zzzz_false20000;", at + 1))
    ++tests;
  EXPECT_EQ(tests, 40000u);
  EXPECT_EQ(body.find("zzzz_false1;"), std::string::npos);
  EXPECT_NE(body.find("\nr = a + a + a"), std::string::npos);
}

TEST(TranslateExpressions, NotOfAPlainValueAndDoubleNot) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("r = !a;\nif (!!(a && b)) r = 2;")),
            "\nr = !(a);\nif(!(a)) goto zzzz_false3;\nif(!(b)) goto zzzz_false3;\nr = 2;\nzzzz_false3:");
}

TEST(TranslateExpressions, JumpFormAsStatementPlacesItsLabels) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("a && b;\nfor (; a || b; ) break;")),
            "\nif(!(a)) goto zzzz_false1;\nif(!(b)) goto zzzz_false1;\nzzzz_false1:\nzzzz_cont2:"
            "\nif(a) goto zzzz_true2;\nif(b) goto zzzz_true2;\ngoto zzzz_false3;\nzzzz_true2:\ngoto "
            "zzzz_false3;\nzzzz_cont1:\ngoto zzzz_cont2;\nzzzz_false3:");
}

TEST(TranslateExpressions, ConditionalWithATypedTemporary) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("l = a ? l : 2L;")),
            "\nif(!(a)) goto zzzz_false1;\nzzzz_long1 = l;\ngoto zzzz_skip1;\nzzzz_false1:"
            "\nzzzz_long1 = 2L;\nzzzz_skip1:\nl = zzzz_long1;");
  TranslateRun u;
  EXPECT_EQ(u.run(in_function("enum color k;\nk = a > b ? red : blue;", color)),
            "\nif(!(a > b)) goto zzzz_false1;\nzzzz_int1 = red;\ngoto zzzz_skip1;\nzzzz_false1:"
            "\nzzzz_int1 = blue;\nzzzz_skip1:\nk = zzzz_int1;");
  EXPECT_EQ(u.messages(), "");
}

TEST(TranslateExpressions, ConditionalOperandsInJumpFormBecomeValues) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("r = a && b ? c || x : 0;")),
            "\nif(!(a)) goto zzzz_false1;\nif(!(b)) goto zzzz_false1;\nzzzz_int1 = 0;"
            "\nif(c) goto zzzz_true2;\nif(x) goto zzzz_true2;\ngoto zzzz_false3;\nzzzz_true2:"
            "\nzzzz_int1 = 1;\nzzzz_false3:\nzzzz_int2 = zzzz_int1;\ngoto zzzz_skip1;\nzzzz_false1:"
            "\nzzzz_int2 = 0;\nzzzz_skip1:\nr = zzzz_int2;");
}

TEST(TranslateExpressions, CommaEmitsTheLeftOperand) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("a = 1, b = 2;\nr = (a++, b);")),
            "\na = 1;\nb = 2;\nzzzz_int1 = a;\na++;\nr = (b);");
}

TEST(TranslateExpressions, CastsAndSizeofOfTypes) {
  TranslateRun t;
  EXPECT_EQ(t.run(in_function("r = (int)d + (int)red;\nu = sizeof(unsigned long);\nch = (char)(a + 1);", color)),
            "\nr = ((int)(d)) + ((int)(red));\nu = sizeof(unsigned long);\nch = ((char)((a + 1)));");
  EXPECT_EQ(t.messages(), "");
}

TEST(TranslateExpressions, EnumerationAndFunctionComparisons) {
  TranslateRun t;
  t.run("enum color { red, green };\nenum size { small };\nf(int a) int r;\ng(int a) int r;\n"
        "h(long a) int r;\nf(int a) int r\n{\nenum color k;\nenum size s;\nk = red;\ns = small;\n"
        "if (k == green || red == k || k != 0 || 0 == k) r = 1;\nif (k == s) r = 2;\n"
        "if (f == g || f != 0) r = 3;\nif (f == h) r = 4;\nif (f == 1) r = 5;\nif (1 != g) r = 6;\n"
        "if (k == a) r = 7;\n}\n");
  EXPECT_EQ(t.message_list(), (std::vector<std::string>{
                                  "12 error: '==' : the two operands have incompatible enumeration types",
                                  "14 error: '==' : the two operands have incompatible function types",
                                  "15 error: '==' : a function type cannot be compared to other types, "
                                  "with the sole exception of comparison with literal 0 (zero)",
                                  "16 error: '!=' : a function type cannot be compared to other types, "
                                  "with the sole exception of comparison with literal 0 (zero)",
                                  "17 error: '==' : an enumeration type cannot be compared to other "
                                  "types, with the sole exception of comparison with literal 0 (zero)"}));
}

TEST(TranslateExpressions, FunctionNamesAsValues) {
  TranslateRun t;
  EXPECT_EQ(t.run("g() int r;\ng() int r\n{\nr = 0;\nif (g != 0) r = 2;\n}\n"),
            "\nr = 0;\nif(!(g != 0)) goto zzzz_false1;\nr = 2;\nzzzz_false1:");
  TranslateRun u;
  u.run("fabs(double x) double y;\ng() int r;\ng() int r\n{\nr = 0;\nif (fabs == 0) r = 1;\n}\n");
  EXPECT_EQ(u.message_list(), (std::vector<std::string>{
                                  "5 error: 'fabs' : the names of YARL C library functions are reserved "
                                  "and cannot be used as function pointers"}));
}

TEST(TranslateExpressions, AFailedOperandIsReportedOnce) {
  TranslateRun t;
  t.run(in_function("struct point s;\nr = s + 1 + 2 * 3;\nif (s && a) r = 1;",
                    "struct point { int x; };\n"));
  EXPECT_EQ(t.message_list(),
            (std::vector<std::string>{
                "5 error: '+' : the left operand cannot be a structure, the required type is arithmetic",
                "6 error: '&&' : the left operand cannot be a structure, the required type is scalar"}));
}

TEST(TranslateExpressions, CastsRefuseSpacesAndValuesWithSpacesInElements) {
  TranslateRun t;
  t.run(in_function("struct holder h;\nint var v[];\nchar buf[64];\n(struct holder) buf[0] = h;\n(int) buf[0] = v;",
                    "struct item { char var text[]; };\nstruct holder { struct item list[2]; };\n"));
  EXPECT_EQ(t.message_list(),
            (std::vector<std::string>{
                "8 error: '=' : a value whose spaces lie inside the elements of spaces cannot pass through a casted "
                "character space",
                "9 error: '=' : the 0 dimensions of the left operand's casted type is incompatible with the right "
                "operand's 1 dimension"}));
}

// ---- String literals ------------------------------------------------------------------------------

TEST(TranslateStrings, ShortLiteralIsAStaticArrayWithItsRecord) {
  TranslateRun t;
  t.run(in_function("\"ab\\065\";\n\"\";"));
  EXPECT_EQ(t.messages(), "");
  EXPECT_EQ(t.locals.back(),
            "\nstatic char zzzz_string1[4] = \"ab\\101\";"
            "\nstatic struct zz1D_meta zz_zzzz_string1 = {zzzz_string1,3,4};"
            "\nstatic char zzzz_string2[1] = \"\";"
            "\nstatic struct zz1D_meta zz_zzzz_string2 = {zzzz_string2,0,1};");
}

TEST(TranslateStrings, LongLiteralIsAListOfCharacters) {
  std::string body = "'q\\\"\\n\\065";
  std::string text(400, 'x');
  text.replace(0, body.size(), body);
  TranslateRun t;
  t.run(in_function("\"" + text + "\";"));
  EXPECT_EQ(t.messages(), "");
  std::string list = "{\n '\\'', 'q', '\\\"', '\\n', '\\101'";
  int width = 1 + 5 + 5 + 6 + 6 + 8;
  int count = 5;
  for (size_t i = body.size(); i < text.size(); ++i, ++count) {
    if (width > 72) {
      list += ",\n ";
      width = 1;
    } else {
      list += ", ";
    }
    list += "'x'";
    width += 5;
  }
  list += ", 0}";
  int length = count;  // escapes count one character each
  EXPECT_EQ(t.locals.back(),
            "\nstatic char zzzz_string1[" + std::to_string(length + 1) + "] = " + list + ";" +
                "\nstatic struct zz1D_meta zz_zzzz_string1 = {zzzz_string1," + std::to_string(length) + "," +
                std::to_string(length + 1) + "};");
}

TEST(TranslateStrings, ALiteralIsASpaceToTheOperators) {
  TranslateRun t;
  t.run(in_function("r = \"abc\" + 1;"));
  EXPECT_EQ(t.message_list(), (std::vector<std::string>{
                                  "3 error: '+' : the left operand cannot be a space, the required type "
                                  "is arithmetic"}));
}

}  // namespace
}  // namespace ycc::testing
