/* The printf family against the C library's snprintf: every conversion
   with every flag set, widths and precisions, given or taken by '*'. */
#include <float.h>
#include <limits.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "check.h"

static const char *const widths[] = {"", "1", "7", "24", "*"};
static const char *const precisions[] = {"", ".", ".0", ".3", ".17", ".*"};
static const int stars[] = {-12, -1, 0, 5};
static const long ints[] = {0, 1, -1, 42, -987654, INT_MAX, INT_MIN};
static const long longs[] = {0, LONG_MAX, LONG_MIN, -5};
static const unsigned long unsigneds[] = {0, 1, 255, 4294967295UL};
static const unsigned long ulongs[] = {0, ULONG_MAX, 1UL << 40};
static const int chars[] = {'a', ' ', '~', 200, 0};

static struct ycrt_meta1 out;

/* Formats with ours into a varspace and compares with snprintf. */
#define COMPARE(spec, ...) \
   do { \
      struct ycrt_meta1 f_ = lit(spec); \
      int count_ = -99, want_ = snprintf(NULL, 0, spec, __VA_ARGS__); \
      char *w_ = malloc((size_t)want_ + 1); \
      struct call c_; \
      snprintf(w_, (size_t)want_ + 1, spec, __VA_ARGS__); \
      call_init(&c_, &count_, NULL); \
      _yc__sprintf(c_.r, &out, &f_, __VA_ARGS__); \
      CHECK(count_ == want_ && text_is(&out, w_, (size_t)want_) && c_.exception == 0, \
            "\"%s\": \"%.*s\" (%d), C \"%s\" (%d)", spec, (int)out.occurs, (char *)out.ptr, count_, w_, \
            want_); \
      free(w_); \
   } while (0)

/* The flags that C defines for the conversion, as bits of "-+ #0". */
static int flags_allowed(char conv)
{
   switch (conv) {
   case 'd': case 'i': return 0x17;   /* - + blank 0 */
   case 'u': return 0x11;             /* - 0 */
   case 'x': case 'X': return 0x19;   /* - # 0 */
   case 'c': return 0x01;
   default: return 0x1f;
   }
}

static void build_spec(char *spec, int flags, const char *width, const char *precision, const char *length,
                       char conv)
{
   int k;
   char *p = spec;
   *p++ = '%';
   for (k = 0; k < 5; ++k)
      if (flags & (1 << k))
         *p++ = "-+ #0"[k];
   sprintf(p, "%s%s%s%c", width, precision, length, conv);
}

static void every_conversion(void)
{
   static const char convs[] = "diuxXfeEgGc";
   static const double doubles[] = {0.0, -0.0, 1.5, -2.25, 123456789.125, 1e-300, 1e300, DBL_MAX, 0.1};
   char spec[64];
   size_t ci, w, p, v;
   int flags;
   long n = 0;
   out = var();
   for (ci = 0; convs[ci] != 0; ++ci) {
      char conv = convs[ci];
      for (flags = 0; flags < 32; ++flags) {
         if ((flags & ~flags_allowed(conv)) != 0)
            continue;
         for (w = 0; w < sizeof widths / sizeof widths[0]; ++w)
            for (p = 0; p < sizeof precisions / sizeof precisions[0]; ++p) {
               int ws = strchr(widths[w], '*') != NULL, ps = strchr(precisions[p], '*') != NULL;
               int a = stars[(w + p + (size_t)flags) % 4], b = stars[(w * 3 + p + ci) % 4];
               if (conv == 'c' && precisions[p][0] != 0)
                  continue;
#define WITH_STARS(spec, value) \
   do { \
      if (ws && ps) \
         COMPARE(spec, a, b, value); \
      else if (ws) \
         COMPARE(spec, a, value); \
      else if (ps) \
         COMPARE(spec, b, value); \
      else \
         COMPARE(spec, value); \
      ++n; \
   } while (0)
               if (conv == 'd' || conv == 'i') {
                  build_spec(spec, flags, widths[w], precisions[p], "", conv);
                  for (v = 0; v < sizeof ints / sizeof ints[0]; ++v)
                     WITH_STARS(spec, (int)ints[v]);
                  build_spec(spec, flags, widths[w], precisions[p], "l", conv);
                  for (v = 0; v < sizeof longs / sizeof longs[0]; ++v)
                     WITH_STARS(spec, longs[v]);
               } else if (conv == 'c') {
                  build_spec(spec, flags, widths[w], precisions[p], "", conv);
                  for (v = 0; v < sizeof chars / sizeof chars[0]; ++v)
                     WITH_STARS(spec, chars[v]);
               } else if (strchr("uxX", conv) != NULL) {
                  build_spec(spec, flags, widths[w], precisions[p], "", conv);
                  for (v = 0; v < sizeof unsigneds / sizeof unsigneds[0]; ++v)
                     WITH_STARS(spec, (unsigned)unsigneds[v]);
                  build_spec(spec, flags, widths[w], precisions[p], "l", conv);
                  for (v = 0; v < sizeof ulongs / sizeof ulongs[0]; ++v)
                     WITH_STARS(spec, ulongs[v]);
               } else {
                  build_spec(spec, flags, widths[w], precisions[p], "", conv);
                  for (v = 0; v < sizeof doubles / sizeof doubles[0]; ++v)
                     WITH_STARS(spec, doubles[v]);
                  WITH_STARS(spec, HUGE_VAL);
                  WITH_STARS(spec, -HUGE_VAL);
                  build_spec(spec, flags, widths[w], precisions[p], "L", conv);
                  WITH_STARS(spec, 3.25L);
                  WITH_STARS(spec, -LDBL_MAX);
                  WITH_STARS(spec, 1e-4000L);
               }
            }
      }
   }
   CHECK(n > 20000, "only %ld conversions compared", n);
   free_var(&out);
}

/* %s prints a space's text: cut to the precision, padded to the width,
   ending at a NUL inside occurs. */
static void texts(void)
{
   static const char *const specs[] = {"%s", "%5s", "%-5s|", "%.2s", "%8.3s", "%-8.3s|", "%05s", "%.0s",
                                       "[%s]", "%%%s%%"};
   static const char *const values[] = {"", "abc", "abcdefghij", "with space"};
   size_t i, j;
   out = var();
   for (i = 0; i < sizeof specs / sizeof specs[0]; ++i)
      for (j = 0; j < sizeof values / sizeof values[0]; ++j) {
         struct ycrt_meta1 f = lit(specs[i]), v = lit(values[j]);
         int count, want = snprintf(NULL, 0, specs[i], values[j]);
         char *w = malloc((size_t)want + 1);
         struct call c;
         snprintf(w, (size_t)want + 1, specs[i], values[j]);
         call_init(&c, &count, NULL);
         _yc__sprintf(c.r, &out, &f, &v);
         CHECK(count == want && text_is(&out, w, (size_t)want), "\"%s\" with \"%s\"", specs[i], values[j]);
         free(w);
      }
   {
      static const int starred[][2] = {{-6, 2}, {6, -1}, {0, 0}, {-1, 10}};
      for (i = 0; i < 4; ++i) {
         struct ycrt_meta1 f = lit("<%*.*s>"), v = lit("abcd");
         char w[64];
         int count;
         struct call c;
         snprintf(w, sizeof w, "<%*.*s>", starred[i][0], starred[i][1], "abcd");
         call_init(&c, &count, NULL);
         _yc__sprintf(c.r, &out, &f, starred[i][0], starred[i][1], &v);
         CHECK(text_eq(&out, w), "%%*.*s with %d %d", starred[i][0], starred[i][1]);
      }
   }
   {
      struct ycrt_meta1 f = lit("%s!"), v = bytes("ab\0cd", 5);
      int count;
      struct call c;
      call_init(&c, &count, NULL);
      _yc__sprintf(c.r, &out, &f, &v);
      CHECK(count == 3 && text_eq(&out, "ab!"), "%%s stops at a NUL");
   }
   free_var(&out);
}

static void targets_and_files(void)
{
   char block[8];
   struct ycrt_meta1 fixed, f = lit("%d-%s"), word = lit("abcdef");
   unsigned need = 9, limit = 9;
   int count, file, status;
   struct ycrt_meta1 back = var();
   struct call c;
   fixed.ptr = block;
   fixed.occurs = 0;
   fixed.limit1 = 8;
   call_init(&c, &count, &need);
   c.r[3] = &limit;
   _yc__sprintf(c.r, &fixed, &f, 123, &word);
   CHECK(count == 10 && need == 10 && limit == 8 && fixed.occurs == 8 && memcmp(block, "123-abcd", 8) == 0,
         "sprintf into a fixed-space too small");
   _yc__sprintf(c.r, &fixed, &f, 1, &word);
   CHECK(count == 8 && need == 0 && fixed.occurs == 8, "sprintf that just fits");
   call_init(&c, &count, NULL);
   _yc__fprintf(c.r, 57, &f, 1, &word);
   CHECK(count == -3, "fprintf to a file that is not open: %d", count);
   _yc__fprintf(c.r, -1, &f, 1, &word);
   CHECK(count == -3, "fprintf to file -1");
   call_init(&c, &file, NULL);
   _yc__tmpfile(c.r);
   call_init(&c, &count, NULL);
   _yc__fprintf(c.r, file, &f, -5, &word);
   CHECK(count == 9, "fprintf count");
   call_init(&c, &status, NULL);
   _yc__fseek(c.r, file, 0, 0);
   call_init(&c, &back, &status);
   _yc__fgetall(c.r, file);
   CHECK(text_eq(&back, "-5-abcdef"), "fprintf wrote the text");
   call_init(&c, &status, NULL);
   _yc__fclose(c.r, file);
   {
      struct ycrt_meta1 empty = lit("");
      call_init(&c, &count, NULL);
      _yc__printf(c.r, &empty);
      CHECK(count == 0 && c.exception == 0, "printf of nothing");
   }
   free_var(&back);
}

void test_format(void)
{
   every_conversion();
   texts();
   targets_and_files();
}
