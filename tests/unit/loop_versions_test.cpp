#include <gtest/gtest.h>

#include "translate_fixture.h"

namespace ycc::testing {
namespace {

const char declarations[] =
    "struct pt { double x; int k; };\n"
    "struct named { char var name[]; double w; };\n"
    "h(double y) double z;\n"
    "sqrt(double x) double r;\n"
    "pow(double x, double y) double r;\n"
    "abs(int x) int y;\n"
    "f(int a, int b, int c, int x) int r;\n"
    "f(int a, int b, int c, int x) int r\n{\n"
    "   double var g[][];\n   double e[4][4];\n   int var v[];\n   int k;\n   long m;\n   double t;\n"
    "   struct pt var s[];\n   struct named var ns[];\n";

std::string versioned_run(const std::string& statements, std::string* messages = nullptr, bool direct_calls = false) {
  TranslateRun t;
  t.options.versioned_loops = true;
  t.options.direct_calls = direct_calls;
  std::string body = t.run(std::string(declarations) + statements + "\n}\n");
  if (messages) *messages = t.messages();
  return body;
}

// The text as written before the workspace broke its long lines (a break
// is a newline and one blank where a blank was).
std::string unbroken(std::string body) {
  for (size_t at = body.find("\n "); at != std::string::npos; at = body.find("\n ", at))
    if (at + 2 < body.size() && body[at + 2] != ' ')
      body.erase(at, 2);
    else
      at += 2;
  return body;
}

// The copies without checks: each begins with its label on a line.
int copies(const std::string& body) {
  int n = 0;
  for (size_t at = body.find("\nzzzz_fast"); at != std::string::npos; at = body.find("\nzzzz_fast", at + 1)) ++n;
  return n;
}

TEST(LoopVersions, TheTestAndTheCopyStandBeforeTheCheckedLoop) {
  std::string messages;
  EXPECT_EQ(versioned_run("for (k = 1; k <= a - 1; ++k) t = t + g[k - 1][a - k];", &messages),
            "\nk = 1;"
            "\nif((long long)(k) <= (long long)(a) - 1 && !(((long long)(a) - 1) - (long "
            "\n long)(k) >= 15 && (long long)(k) - 1 >= 0 && (long long)(k) - 1 < (long "
            "\n long)(g.limit1) && ((long long)(a) - 1) - 1 >= 0 && ((long long)(a) - 1) "
            "\n - 1 < (long long)(g.limit1) && (long long)(a) - (long long)(k) >= 0 && (long "
            "\n long)(a) - (long long)(k) < (long long)(g.limit2) && (long long)(a) - ((long "
            "\n long)(a) - 1) >= 0 && (long long)(a) - ((long long)(a) - 1) < (long long)(g.limit2))) "
            "\n goto zzzz_checked1;"
            "\nzzzz_fast1:"
            "\nif(!(k <= a - 1)) goto zzzz_false1;"
            "\nt = t + (*(((double *)(g.ptr)) + ((k - 1) * (g.limit2) + (a - k))));"
            "\n++k;"
            "\ngoto zzzz_fast1;"
            "\nzzzz_checked1:"
            "\nzzzz_cont2:"
            "\nif(!(k <= a - 1)) goto zzzz_false1;"
            "\n##a"
            "\nif((signed)(k - 1) < 0 || (signed)(a - k) < 0)"
            "\n   zzzz_bounds_exceeded(\"g\", 17, 4, (unsigned)(k - 1), (unsigned)(a - k),"
            "\n  (unsigned)(g.limit1), (unsigned)(g.limit2));"
            "\nif((unsigned)(k - 1) >= (g.limit1) || (unsigned)(a - k) >= (g.limit2))"
            "\n   if(!zzzz_resize1(&(g), (unsigned)(k - 1), 7, 15, (unsigned)(a - k), 7,"
            "\n  15)) {"
            "\n      zzzz_out_of_memory(17);"
            "\n      zzzz_exception = 32000;"
            "\n      goto zzzz_finish;"
            "\n   }"
            "\n##b"
            "\nif((signed)(k - 1) < 0 || (unsigned)(k - 1) >= (g.limit1) || (signed)(a - "
            "\n k) < 0 || (unsigned)(a - k) >= (g.limit2))"
            "\n   zzzz_bounds_exceeded(\"g\", 17, 4, (unsigned)(k - 1), (unsigned)(a - k),"
            "\n  (unsigned)(g.limit1), (unsigned)(g.limit2));"
            "\n##c"
            "\nt = t + (*(((double *)(g.ptr)) + ((k - 1) * (g.limit2) + (a - k))));"
            "\nzzzz_cont1:"
            "\n++k;"
            "\ngoto zzzz_cont2;"
            "\nzzzz_false1:");
  EXPECT_EQ(messages.find("error"), std::string::npos) << messages;
}

TEST(LoopVersions, AWrittenElementOfOneDimensionRaisesOccursBeforeTheCopy) {
  std::string body = unbroken(versioned_run("for (k = 2; k <= a; k++) v[a - k] = 0;"));
  EXPECT_NE(body.find("goto zzzz_checked1;"
                      "\nif((long long)(k) <= (long long)(a) && (long long)(a) - (long long)(k) + 1 > (long "
                      "long)(v.occurs))"
                      "\n   (v.occurs) = (unsigned)((long long)(a) - (long long)(k) + 1);"
                      "\nif((long long)(k) <= (long long)(a) && (long long)(a) - ((long long)(a)) + 1 > (long "
                      "long)(v.occurs))"
                      "\n   (v.occurs) = (unsigned)((long long)(a) - ((long long)(a)) + 1);"
                      "\nzzzz_fast1:"),
            std::string::npos)
      << body;
}

TEST(LoopVersions, AStrideMustBePositiveAndOccursRisesToTheLastPassItself) {
  std::string body = unbroken(versioned_run("for (k = 1; k < a; k += b) v[k] = 0;"));
  EXPECT_NE(body.find("(long long)(b) >= 1 && ((long long)(a) - 1) - (long long)(k) >= 15 * (long long)(b) && "
                      "(long long)(k) >= 0"),
            std::string::npos)
      << body;
  EXPECT_NE(body.find("\n   (v.occurs) = (unsigned)(((long long)(k) + (((long long)(a) - 1) - (long long)(k)) / "
                      "(long long)(b) * (long long)(b)) + 1);\nzzzz_fast1:"),
            std::string::npos)
      << body;
}

// Which loops get a copy without checks: only those where the copy cannot
// differ from the checked loop once the test before it holds.
TEST(LoopVersions, OnlyLoopsWhoseSubscriptsFollowTheLoopVariable) {
  struct Case {
    const char* loop;
    int copies;
    bool direct_calls = false;  // math calls are values only then
  };
  const Case cases[] = {
      {"for (k = 0; k < a; k++) g[b][k] = 1.0;", 1},
      {"for (k = 0; k < a; k += 1) { e[k][0] = (double)k; t = -t * 2.0 / e[0][3 - k]; }", 1},
      {"for (k = 0; k < 4; k++) x = x + v[k] % 3;", 1},
      {"for (; k < a + b; k++) g[0][k] = g[1][(k)];", 1},
      {"for (k = 0; k < a; k++) for (b = 0; b < a; b++) g[k][b] = 1.0;", 1},
      {"for (k = 0; k < a; k += 2) g[0][k] = 1.0;", 1},
      {"for (k = a - 1; k >= 0; k--) g[0][k] = g[1][a - 1 - k];", 1},
      {"for (k = a; k > b; --k) v[k] = 0;", 1},
      {"for (k = a; k >= v.occurs; k--) g[0][k] = 1.0;", 0},
      {"for (k = a; k > 0; k -= 1) g[0][k] = 1.0;", 0},
      {"for (k = a; k > 0; k++) g[0][k] = 1.0;", 0},
      {"for (k = 0; k < a; k = k + b) v[k] = 1;", 1},
      {"for (k = 0; k <= v.occurs; k++) { t = t + (double)v[k]; g[0][k] = t; }", 1},
      {"for (k = 0; k < a; k++) v[k] = v[k + 1];", 1},
      // What the test reads must not change in the body.
      {"for (k = 0; k < a; k++) { b = k; g[b][k] = 1.0; }", 0},
      {"for (k = 0; k < a; k++) { g[0][k] = 1.0; a = a - 1; }", 0},
      {"for (k = 0; k < a; k++) { g[0][k] = 1.0; k = k + 1; }", 0},
      // Subscripts must be linear in the loop variable, with a step of one.
      {"for (k = 0; k < a; k++) g[0][k + k] = 1.0;", 0},
      {"for (k = 0; k < a; k++) g[0][2 * k] = 1.0;", 0},
      {"for (k = 0; k < a; k++) g[0][v[k]] = 1.0;", 0},
      {"for (k = 0; k < a; k--) g[0][k] = 1.0;", 0},
      {"for (k = 0; k < a; k += k) g[0][k] = 1.0;", 0},
      {"for (k = 0; k < a; k = k + b) { g[0][k] = 1.0; b = 2; }", 0},
      {"for (k = 0; k < a; k = k - 1) g[0][k] = 1.0;", 0},
      {"for (k = 0; k > a; k++) g[0][k] = 1.0;", 0},
      {"for (k = 0; k < v.occurs - 1; k++) g[0][k] = 1.0;", 0},
      {"for (k = 0; k < v.occurs; k++) v[k] = 0;", 0},
      {"for (m = 0; m < a; m++) g[0][m] = 1.0;", 0},
      // Bodies of anything but plain assignments.
      {"for (k = 0; k < a; k++) g[0][k] += 1.0;", 0},
      {"for (k = 0; k < a; k++) g[0][k] = h(t);", 0},
      {"for (k = 0; k < a; k++) if (x) g[0][k] = 1.0;", 0},
      {"for (k = 0; k < a; k++) { g[0][k] = 1.0; break; }", 0},
      {"for (k = 0; k < a; k++) g[0][k] = x > 0 ? 1.0 : 2.0;", 0},
      {"for (k = 0; k < a; k++) t = t + 1.0;", 0},
      // Members of structures that hold no spaces.
      {"for (k = 0; k < a; k++) s[k].x = s[k].x + 1.0;", 1},
      {"for (k = 0; k < a; k++) s[b].x = s[k].x * (double)s[k + 1].k;", 1},
      {"for (k = 0; k < a; k++) ns[k].w = 1.0;", 0},
      {"for (k = 0; k < a; k++) s[k].x = ns[k].w;", 0},
      {"for (k = 0; k < a; k++) s[k] = s[k + 1];", 0},
      // Math functions that are C's own, called by their C names.
      {"for (k = 0; k < a; k++) g[0][k] = sqrt(g[1][k]);", 0},
      {"for (k = 0; k < a; k++) g[0][k] = sqrt(g[1][k]);", 1, true},
      {"for (k = 0; k < a; k++) g[0][k] = (pow(t, (sqrt(s[k].x)))) * 2.0;", 1, true},
      {"for (k = 0; k < a; k++) v[k] = abs(k);", 0, true},
      {"for (k = 0; k < a; k++) g[0][k] = h(t);", 0, true},
  };
  for (const Case& c : cases) {
    std::string messages;
    std::string body = versioned_run(c.loop, &messages, c.direct_calls);
    EXPECT_EQ(copies(body), c.copies) << c.loop << "\n" << body;
    EXPECT_EQ(messages.find("error"), std::string::npos) << c.loop << messages;
  }
}

}  // namespace
}  // namespace ycc::testing
