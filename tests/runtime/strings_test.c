/* Text functions: checked targets, comparisons, parts, escapes, status
   texts and number conversions against the C library. */
#include <errno.h>
#include <limits.h>
#include <stdlib.h>
#include <string.h>

#include "check.h"

static void checked_targets(void)
{
   static const struct {
      const char *before, *source;
      unsigned limit;
      int cat;
      const char *after;
      unsigned need;
   } cases[] = {
      {"", "hello", 10, 0, "hello", 0},
      {"", "hello", 5, 0, "hello", 0},      /* exactly fills: no room for NUL */
      {"", "hello!", 5, 0, "hello", 6},     /* one over */
      {"xyz", "", 4, 0, "", 0},
      {"ab", "cd", 5, 1, "abcd", 0},
      {"ab", "cde", 4, 1, "abcd", 5},
      {"abcd", "e", 4, 1, "abcd", 5},
      {"", "", 0, 0, "", 0},                /* a fixed-space of no room */
      {"", "x", 0, 1, "", 1},
   };
   size_t k;
   for (k = 0; k < sizeof cases / sizeof cases[0]; ++k) {
      char *block = malloc(cases[k].limit + 1);
      struct ycrt_meta1 target, source = lit(cases[k].source);
      unsigned need = 99, limit = 99;
      struct call c;
      memset(block, '#', cases[k].limit + 1);
      memcpy(block, cases[k].before, strlen(cases[k].before) + (strlen(cases[k].before) < cases[k].limit));
      target.ptr = block;
      target.limit1 = cases[k].limit;
      target.occurs = (unsigned)strlen(cases[k].before);
      call_init(&c, &need, &limit);
      (cases[k].cat ? _yc__strcat : _yc__strcpy)(c.r, &target, &source);
      CHECK(c.exception == 0, "case %u: exception", (unsigned)k);
      CHECK(target.ptr == block && target.limit1 == cases[k].limit, "case %u: block kept", (unsigned)k);
      CHECK(text_eq(&target, cases[k].after), "case %u: text", (unsigned)k);
      CHECK(need == cases[k].need, "case %u: need %u", (unsigned)k, need);
      CHECK(cases[k].need == 0 || limit == cases[k].limit, "case %u: limit slot", (unsigned)k);
      CHECK(block[cases[k].limit] == '#', "case %u: nothing written past the limit", (unsigned)k);
      free(block);
   }
}

static void varspace_targets(void)
{
   struct ycrt_meta1 v = var(), part = lit("abc");
   struct call c;
   int i;
   call_init(&c, NULL, NULL);
   _yc__strcpy(c.r, &v, &part);
   CHECK(text_eq(&v, "abc") && var_sane(&v), "strcpy into an empty varspace");
   /* appending to itself: the source moves with the block */
   for (i = 0; i < 10; ++i)
      _yc__strcat(c.r, &v, &v);
   CHECK(v.occurs == 3 * 1024 && var_sane(&v) && c.exception == 0, "strcat doubling");
   CHECK(memcmp((char *)v.ptr + 3069, "abc", 3) == 0, "strcat content");
   _yc__strcpy(c.r, &v, &v);
   CHECK(v.occurs == 3 * 1024, "strcpy of itself");
   part = lit("");
   _yc__strcpy(c.r, &v, &part);
   CHECK(v.occurs == 0 && var_sane(&v), "strcpy of an empty text");
   free_var(&v);
}

static int sign(int x)
{
   return x < 0 ? -1 : x > 0;
}

static void comparisons(void)
{
   static const char *const texts[] = {"", "a", "ab", "abc", "abd", "b", "\xff", "a\x80", "A"};
   size_t i, j;
   for (i = 0; i < sizeof texts / sizeof texts[0]; ++i)
      for (j = 0; j < sizeof texts / sizeof texts[0]; ++j) {
         struct ycrt_meta1 a = lit(texts[i]), b = lit(texts[j]);
         int order = 7;
         unsigned n;
         struct call c;
         call_init(&c, &order, NULL);
         _yc__strcmp(c.r, &a, &b);
         CHECK(order == sign(strcmp(texts[i], texts[j])), "strcmp %u %u", (unsigned)i, (unsigned)j);
         for (n = 0; n < 4; ++n) {
            _yc__strncmp(c.r, &a, &b, n);
            CHECK(order == sign(strncmp(texts[i], texts[j], n)), "strncmp %u %u %u", (unsigned)i,
                  (unsigned)j, n);
         }
      }
   {
      /* the text ends at a NUL inside occurs */
      struct ycrt_meta1 a = bytes("ab\0cd", 5), b = lit("ab");
      int order = 7;
      struct call c;
      call_init(&c, &order, NULL);
      _yc__strcmp(c.r, &a, &b);
      CHECK(order == 0, "a NUL ends the text");
   }
}

static void parts(void)
{
   static const char text[] = "abcdef";
   unsigned start, length;
   for (start = 0; start < 9; ++start)
      for (length = 0; length < 9; ++length) {
         struct ycrt_meta1 t = lit(text), v = var();
         size_t from = start < 6 ? start : 6, n = 6 - from < length ? 6 - from : length;
         struct call c;
         call_init(&c, &v, NULL);
         _yc__strpart(c.r, &t, start, length);
         CHECK(text_is(&v, text + from, n) && var_sane(&v), "strpart %u %u", start, length);
         free_var(&v);
      }
   {
      /* a part of the return variable itself */
      struct ycrt_meta1 v = var(), t = lit("hello world");
      struct call c;
      call_init(&c, &v, NULL);
      _yc__strpart(c.r, &t, 0, 11);
      _yc__strpart(c.r, &v, 6, 100);
      CHECK(text_eq(&v, "world"), "strpart of itself");
      _yc__strpart(c.r, &t, 0xffffffffu, 0xffffffffu);
      CHECK(text_eq(&v, ""), "strpart beyond the end");
      free_var(&v);
   }
}

/* Reads C escapes back: the inverse of stresc, written from the C rules. */
static size_t unescape(const char *s, size_t n, char *out)
{
   size_t i, k = 0;
   for (i = 0; i < n; ++i) {
      const char *from = "abfnrtv\"'\\", *to = "\a\b\f\n\r\t\v\"'\\";
      if (s[i] != '\\') {
         out[k++] = s[i];
      } else if (s[i + 1] >= '0' && s[i + 1] <= '7') {
         out[k++] = (char)((s[i + 1] - '0') * 64 + (s[i + 2] - '0') * 8 + (s[i + 3] - '0'));
         i += 3;
      } else {
         out[k++] = to[strchr(from, s[++i]) - from];
      }
   }
   return k;
}

static void escapes(void)
{
   static const struct {
      const char *text, *escaped;
   } cases[] = {
      {"plain", "plain"},
      {"a\nb", "a\\nb"},
      {"\t\"q\"\\", "\\t\\\"q\\\"\\\\"},
      {"'", "\\'"},
      {"\x01" "7", "\\0017"},
      {"\x7f\x1b", "\\177\\033"},
      {"\xe9t\xc3\xa9", "\xe9t\xc3\xa9"},
      {"", ""},
   };
   size_t k;
   char all[256], back[256 * 4];
   struct ycrt_meta1 v = var(), t;
   struct call c;
   call_init(&c, &v, NULL);
   for (k = 0; k < sizeof cases / sizeof cases[0]; ++k) {
      t = lit(cases[k].text);
      _yc__stresc(c.r, &t);
      CHECK(text_eq(&v, cases[k].escaped), "stresc case %u", (unsigned)k);
   }
   /* every byte: the escape is printable and reads back as the text */
   for (k = 0; k < 255; ++k)
      all[k] = (char)(k + 1);
   t = bytes(all, 255);
   _yc__stresc(c.r, &t);
   for (k = 0; k < v.occurs; ++k) {
      unsigned char ch = ((unsigned char *)v.ptr)[k];
      if (ch < 0x20 || ch == 0x7f)
         break;
   }
   CHECK(k == v.occurs, "stresc leaves no control character");
   CHECK(unescape(v.ptr, v.occurs, back) == 255 && memcmp(back, all, 255) == 0, "stresc reads back");
   free_var(&v);
}

static void status_texts(void)
{
   /* the library's texts are fixed by the design */
   static const char *const library[] = {
      "Not found", "At end of file", "File number is invalid", "Too many open files",
      "Machine is empty", "Expression can match nothing", "Expression is malformed",
      "Invalid argument"};
   static const int system[] = {0, ENOENT, EACCES, EINVAL, 9999};
   struct ycrt_meta1 v = var();
   struct call c;
   int k;
   call_init(&c, &v, NULL);
   for (k = 1; k <= 8; ++k) {
      _yc__strerror(c.r, -k);
      CHECK(text_eq(&v, library[k - 1]), "strerror(%d)", -k);
   }
   for (k = 0; k < (int)(sizeof system / sizeof system[0]); ++k) {
      char *want = malloc(strlen(strerror(system[k])) + 1);
      strcpy(want, strerror(system[k]));
      _yc__strerror(c.r, system[k]);
      CHECK(text_eq(&v, want), "strerror(%d)", system[k]);
      if (system[k] > 0) {
         _yc__strerror(c.r, -1000 - system[k]);
         CHECK(text_eq(&v, want), "strerror(-1000 - %d)", system[k]);
      }
      free(want);
   }
   _yc__strerror(c.r, -9);
   CHECK(text_eq(&v, "Unknown status -9"), "strerror(-9)");
   _yc__strerror(c.r, INT_MIN);
   CHECK(v.occurs > 0 && var_sane(&v), "strerror(INT_MIN)");
   free_var(&v);
}

static const char *const numbers[] = {
   "", " ", "0", "-0", "+0", "42", "  -17xyz", "0x1A", "0X1a", "0x", "0xg", "077", "08", "0b101",
   "z", "Zz", "9223372036854775807", "9223372036854775808", "-9223372036854775808",
   "-9223372036854775809", "18446744073709551615", "18446744073709551616", "-1",
   "99999999999999999999999999", "1e10", "1.5", ".5", "-.5e-3", "1e", "1e+", "1e-400", "1e400",
   "inf", "-Infinity", "infinit", "nan", "NAN(abc)", "nan(", "0x1p-3", "0x.8p1", "0x1.fffffffffffffp1023",
   "2.2250738585072014e-308", "4.9e-324", "-0.0", "\t\n 12", "1_000", "ZZZZZZZZZZZZZZ", "-zz"};

static void conversions(void)
{
   size_t k;
   int base;
   for (k = 0; k < sizeof numbers / sizeof numbers[0]; ++k) {
      struct ycrt_meta1 t = lit(numbers[k]);
      double d = 1;
      long l = 1;
      unsigned long ul = 1;
      unsigned used = 99;
      char *end;
      struct call c;
      call_init(&c, &d, &used);
      _yc__strtod(c.r, &t);
      {
         double want = strtod(numbers[k], &end);
         CHECK((d == want || (d != d && want != want)) && used == (unsigned)(end - numbers[k]) &&
                   (want != 0 || memcmp(&d, &want, sizeof d) == 0),
               "strtod \"%s\"", numbers[k]);
      }
      for (base = -1; base <= 38; ++base) {
         int valid = base == 0 || (base >= 2 && base <= 36);
         call_init(&c, &l, &used);
         _yc__strtol(c.r, &t, base);
         if (valid) {
            long want = strtol(numbers[k], &end, base);
            CHECK(l == want && used == (unsigned)(end - numbers[k]), "strtol \"%s\" base %d", numbers[k], base);
         } else {
            CHECK(l == 0 && used == 0, "strtol \"%s\" base %d refused", numbers[k], base);
         }
         call_init(&c, &ul, &used);
         _yc__strtoul(c.r, &t, base);
         if (valid) {
            unsigned long want = strtoul(numbers[k], &end, base);
            CHECK(ul == want && used == (unsigned)(end - numbers[k]), "strtoul \"%s\" base %d", numbers[k], base);
         } else {
            CHECK(ul == 0 && used == 0, "strtoul \"%s\" base %d refused", numbers[k], base);
         }
      }
   }
   {
      /* the text ends at occurs even without a NUL after it */
      struct ycrt_meta1 t = bytes("12345", 3);
      long l;
      unsigned used;
      struct call c;
      call_init(&c, &l, &used);
      _yc__strtol(c.r, &t, 10);
      CHECK(l == 123 && used == 3, "strtol reads only the text");
   }
}

void test_strings(void)
{
   checked_targets();
   varspace_targets();
   comparisons();
   parts();
   escapes();
   status_texts();
   conversions();
}
