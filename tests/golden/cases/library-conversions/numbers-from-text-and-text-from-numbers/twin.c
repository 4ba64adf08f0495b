/* The same program in C; an invalid base and the end of input (EOF) print
   what the library promises: value 0, nothing used, and -2. */
#include <stdio.h>
#include <stdlib.h>
static void showl(const char *text, int base)
{
   char *end = (char *) text;
   long value = strtol(text, &end, base);
   if (base == 1 || base < 0 || base > 36) end = (char *) text;
   printf("strtol(\"%s\", %d) = %ld used %u\n", text, base, value, (unsigned) (end - text));
}
static void showul(const char *text, int base)
{
   char *end = (char *) text;
   unsigned long value = strtoul(text, &end, base);
   if (base == 1 || base < 0 || base > 36) end = (char *) text;
   printf("strtoul(\"%s\", %d) = %lu used %u\n", text, base, value, (unsigned) (end - text));
}
static void showd(const char *text)
{
   char *end;
   double value = strtod(text, &end);
   printf("strtod(\"%s\") = %.17g used %u\n", text, value, (unsigned) (end - text));
}
static int eof(int n) { return n == EOF ? -2 : n; }
int main(void)
{
   char s[128], s2[128], fixed[32], word[16], word2[16];
   int count, i, j;
   long l;
   unsigned u;
   unsigned long ul;
   float f;
   double d;
   long double ld;
   char c;
   showl("123", 10); showl("  -42xyz", 10); showl("+7", 0); showl("0x1F", 0); showl("0x1F", 16);
   showl("017", 0); showl("019", 0); showl("101102", 2); showl("zz", 36); showl("Zz", 36);
   showl("z", 35); showl("12", 1); showl("12", 37); showl("12", -1); showl("", 10);
   showl("abc", 10); showl("-", 10); showl("0x", 16); showl("2147483648", 10); showl("-2147483649", 10);
   showul("4294967295", 10); showul("ffffffff", 16); showul("-1", 10); showul("0b1", 0);
   showul("777", 8); showul("12", 1); showul("12", 37);
   showd("3.25"); showd("  -12.5e2xyz"); showd("1e"); showd(".5"); showd("0x1p3");
   showd("1e400"); showd("-1e-400"); showd("e5"); showd(""); showd("0.1");
   count = sprintf(s, "%d|%5s|%-4c|%.3f|%x", 42, "ab", 'z', 2.0 / 3.0, 255);
   printf("sprintf %d [%s] %d\n", count, s, count);
   count = sprintf(s2, "%s and %s", s, "more");
   printf("sprintf itself %d [%s]\n", count, s2);
   count = sprintf(fixed, "%08.3e", 12345.678);
   printf("sprintf fixed %d [%s] %d\n", count, fixed, count);
   count = sprintf(s, "%s", "");
   printf("sprintf empty %d [%s] %d\n", count, s, count);
   count = sscanf("  12 -7 0x1f", "%d %i %i", &i, &j, (int *) &u);
   printf("sscanf %d: %d %d %u\n", count, i, j, u);
   count = sscanf("99999 ff 0777 4000000000", "%ld %x %i %lu", &l, &u, &i, &ul);
   printf("sscanf %d: %ld %u %d %lu\n", count, l, u, i, ul);
   count = sscanf("2.5 -1e3 0.125", "%f %lf %Lf", &f, &d, &ld);
   printf("sscanf %d: %g %g %Lg\n", count, (double) f, d, ld);
   count = sscanf("word1 word2 x", "%15s %15s %c", word, word2, &c);
   printf("sscanf %d: [%s] [%s] [%c]\n", count, word, word2, c);
   count = sscanf("12345678", "%3d%2d%*d", &i, &j);
   printf("sscanf width %d: %d %d\n", count, i, j);
   count = sscanf("key=17;", "key=%d;", &i);
   printf("sscanf literal %d: %d\n", count, i);
   i = 0;
   count = sscanf("key:17", "key=%d", &i);
   printf("sscanf mismatch %d: %d\n", count, i);
   count = sscanf("12 abc", "%d %d", &i, &j);
   printf("sscanf stops %d: %d\n", count, i);
   count = sscanf("", "%d", &i);
   printf("sscanf of nothing %d\n", eof(count));
   count = sscanf("   ", "%d", &i);
   printf("sscanf of blanks %d\n", eof(count));
   count = sscanf("1e 0x", "%lf %i", &d, &i);
   printf("sscanf of beginnings %d: %g %d\n", count, d, i);
   return 0;
}
