/* The scanf family against the C library's sscanf on a table of inputs,
   one conversion at a time, and the statuses of files and ends. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "check.h"

static const char *const inputs[] = {
   "", "   ", "42", "  -17 rest", "+5", "0x1f", "0X", "017", "09", "abc", "-", "12abc", "4294967295",
   "3.5", "-.25e2x", "1e", "1e+", "inf", "-Infinity", "nan", "nan(12)", "0x1p4", ".", "1.5e-3,7",
   "  word next", "\tx"};

static void numbers(void)
{
   static const char *const formats[] = {"%d", "%i", "%u", "%x", "%X", "%ld", "%li", "%lu", "%lx", "%f",
                                         "%e", "%g", "%lf", "%le", "%Lf", "%3d", "%2x", "%4f", "%1lf"};
   size_t i, k;
   for (i = 0; i < sizeof formats / sizeof formats[0]; ++i)
      for (k = 0; k < sizeof inputs / sizeof inputs[0]; ++k) {
         struct ycrt_meta1 f = lit(formats[i]), s = lit(inputs[k]);
         const char *spec = formats[i];
         char conv = spec[strlen(spec) - 1], length = strchr(spec, 'l') ? 'l' : strchr(spec, 'L') ? 'L' : 0;
         int count = 99, want;
         struct call c;
         call_init(&c, &count, NULL);
         if (strchr("di", conv) && length == 0) {
            int got = 7, exp = 7;
            want = sscanf(inputs[k], spec, &exp);
            _yc__sscanf(c.r, &s, &f, &got);
            CHECK(got == exp, "\"%s\" \"%s\" value", spec, inputs[k]);
         } else if (strchr("di", conv)) {
            long got = 7, exp = 7;
            want = sscanf(inputs[k], spec, &exp);
            _yc__sscanf(c.r, &s, &f, &got);
            CHECK(got == exp, "\"%s\" \"%s\" value", spec, inputs[k]);
         } else if (strchr("uxX", conv) && length == 0) {
            unsigned got = 7, exp = 7;
            want = sscanf(inputs[k], spec, &exp);
            _yc__sscanf(c.r, &s, &f, &got);
            CHECK(got == exp, "\"%s\" \"%s\" value", spec, inputs[k]);
         } else if (strchr("uxX", conv)) {
            unsigned long got = 7, exp = 7;
            want = sscanf(inputs[k], spec, &exp);
            _yc__sscanf(c.r, &s, &f, &got);
            CHECK(got == exp, "\"%s\" \"%s\" value", spec, inputs[k]);
         } else if (length == 0) {
            float got = 7, exp = 7;
            want = sscanf(inputs[k], spec, &exp);
            _yc__sscanf(c.r, &s, &f, &got);
            CHECK(memcmp(&got, &exp, sizeof got) == 0 || (got != got && exp != exp), "\"%s\" \"%s\" value",
                  spec, inputs[k]);
         } else if (length == 'l') {
            double got = 7, exp = 7;
            want = sscanf(inputs[k], spec, &exp);
            _yc__sscanf(c.r, &s, &f, &got);
            CHECK(got == exp || (got != got && exp != exp), "\"%s\" \"%s\" value", spec, inputs[k]);
         } else {
            long double got = 7, exp = 7;
            want = sscanf(inputs[k], spec, &exp);
            _yc__sscanf(c.r, &s, &f, &got);
            CHECK(got == exp || (got != got && exp != exp), "\"%s\" \"%s\" value", spec, inputs[k]);
         }
         /* the C library's EOF is the library's -2 */
         CHECK(count == (want == EOF ? -2 : want), "\"%s\" \"%s\": count %d, C %d", spec, inputs[k], count,
               want);
      }
}

static void words_and_characters(void)
{
   struct ycrt_meta1 f = lit("%s %c%d,%s"), s = lit("  hello   x12,world!  "), w1 = var(), w2 = var();
   char ch = 0;
   int n = 0, count;
   struct call c;
   call_init(&c, &count, NULL);
   _yc__sscanf(c.r, &s, &f, &w1, &ch, &n, &w2);
   CHECK(count == 4 && text_eq(&w1, "hello") && ch == 'x' && n == 12 && text_eq(&w2, "world!") && var_sane(&w2),
         "words, a character and a number");
   f = lit("%3s%*d%%%s");
   s = lit("abcdef 99 %tail");
   _yc__sscanf(c.r, &s, &f, &w1, &w2);
   CHECK(count == 1 && text_eq(&w1, "abc"), "%%*d meets \"def\": %d", count);
   s = lit("abc 99 %tail");
   _yc__sscanf(c.r, &s, &f, &w1, &w2);
   CHECK(count == 2 && text_eq(&w1, "abc") && text_eq(&w2, "tail"), "width, suppression and %%%%: %d", count);
   f = lit("x%d");
   s = lit("y5");
   _yc__sscanf(c.r, &s, &f, &n);
   CHECK(count == 0, "a literal that does not match");
   f = lit("%s");
   _yc__sscanf(c.r, &w1, &f, &w1);
   CHECK(count == 1 && text_eq(&w1, "abc"), "reading a word into its own source");
   free_var(&w1);
   free_var(&w2);
}

static void files(void)
{
   struct ycrt_meta1 f = lit("%d %s"), text = lit("31 days\n7"), w = var();
   int file, status, count, n = 0;
   struct call c;
   call_init(&c, &count, NULL);
   _yc__fscanf(c.r, 99, &f, &n, &w);
   CHECK(count == -3, "fscanf from a file that is not open");
   call_init(&c, &file, NULL);
   _yc__tmpfile(c.r);
   call_init(&c, &status, NULL);
   _yc__fputs(c.r, &text, file);
   _yc__fseek(c.r, file, 0, 0);
   call_init(&c, &count, NULL);
   _yc__fscanf(c.r, file, &f, &n, &w);
   CHECK(count == 2 && n == 31 && text_eq(&w, "days"), "fscanf reads a number and a word");
   _yc__fscanf(c.r, file, &f, &n, &w);
   CHECK(count == 1 && n == 7, "fscanf stops at the end: %d", count);
   _yc__fscanf(c.r, file, &f, &n, &w);
   CHECK(count == -2, "fscanf at the end gives EOF (-2): %d", count);
   call_init(&c, &status, NULL);
   _yc__fclose(c.r, file);
   free_var(&w);
}

void test_scan(void)
{
   numbers();
   words_and_characters();
   files();
}
