// Writes a YARL C intermediate file of about `lines` lines for the parser
// benchmark: structures, typedefs, enumerations, varspaces, prototypes and
// functions whose bodies hold every statement form and many expressions.
#include <cstdio>
#include <cstdlib>

namespace {

void unit(int n) {
  std::printf(
      "struct s%d { int a; char var b[]; double d[4]; };\n"
      "typedef struct s%d t%d;\n"
      "enum e%d { A%d, B%d, C%d };\n"
      "static int g%d[3][2] = { {1, 2}, {3, -4}, {0x10, 'c'} };\n"
      "char var buf%d[].resize[100, 50%%];\n"
      "fun cb%d (int a, any) int r;\n"
      "f%d(int a, char var s[]) int q, int r;\n"
      "f%d(int a, char var s[]) int q, int r\n"
      "{\n"
      "  int i, j[2 * (3 + 4) | 1];\n"
      "  t%d x;\n"
      "  for (i = 0; i < a; ++i) {\n"
      "    s[i] = (char) (i %% 26 + 'a');\n"
      "    if (i > 3 && x.a != 0 || !q) q = q + i * 2; else r -= i << 1;\n"
      "  }\n"
      "  switch (a) { case 1: q = 1; break; case 'x': r = 2; break; default: ; }\n"
      "  while (q > 0) { q = q - 1; if (q == 5) continue; }\n"
      "  do { r++; } while (r < 10 ? r : 10);\n"
      "  q, r = f%d(a - 1, s);\n"
      "  r = s.occurs + s[this].limit + sizeof(int) + sizeof(x);\n"
      "  x.b[q] === s[q];\n"
      "  free buf%d;\n"
      "  goto done;\n"
      "  exception 5: raise 7;\n"
      "  done: return;\n"
      "}\n",
      n, n, n, n, n, n, n, n, n, n, n, n, n, n, n);
}

}  // namespace

int main(int argc, char** argv) {
  long lines = argc > 1 ? std::atol(argv[1]) : 200000;
  const long per_unit = 26;
  std::printf("\n#line 1 \"bench.yc\"\n");
  for (long n = 0; n * per_unit < lines; ++n) unit(static_cast<int>(n));
  return 0;
}
