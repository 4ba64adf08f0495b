/* Regular expressions: the machine's answers against POSIX regcomp and
   regexec (REG_EXTENDED, leftmost-longest) on generated expressions and
   texts, statuses for malformed and empty-matching expressions, hostile
   expressions, and machines stored and read back. */
#include <regex.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "check.h"

struct gen {
   char *s;
   size_t n, cap;
};

static void put(struct gen *g, const char *s)
{
   size_t n = strlen(s);
   if (g->n + n + 1 > g->cap) {
      g->cap = 2 * (g->n + n + 1);
      g->s = realloc(g->s, g->cap);
   }
   memcpy(g->s + g->n, s, n + 1);
   g->n += n;
}

static unsigned pick(unsigned n)
{
   return (unsigned)(test_random() % n);
}

/* One piece: an atom with an optional repetition. */
static void expression(struct gen *g, int depth);

static void atom(struct gen *g, int depth)
{
   static const char *const atoms[] = {
      "a", "b", "c", "a", "b", ".", "[ab]", "[^a]", "[a-c]", "[[:alpha:]]", "\\.", "[.]", "[]a]",
      "[^]b]", "[b-]"};
   unsigned k = pick(depth > 0 ? 18 : 15);
   if (k >= 15) {
      put(g, "(");
      expression(g, depth - 1);
      put(g, ")");
   } else {
      put(g, atoms[k]);
   }
   switch (pick(12)) {
   case 0: put(g, "*"); break;
   case 1: put(g, "+"); break;
   case 2: put(g, "?"); break;
   case 3: put(g, "{2}"); break;
   case 4: put(g, "{1,3}"); break;
   case 5: put(g, "{0,2}"); break;
   case 6: put(g, "{2,}"); break;
   }
}

/* Anchors stand only at the edges of top-level branches: glibc's regexec
   lets a ^ inside a group match after the start of the text. */
static void expression(struct gen *g, int depth)
{
   unsigned branches = pick(4) == 0 ? 2 + pick(2) : 1, b;
   for (b = 0; b < branches; ++b) {
      unsigned pieces = 1 + pick(3), p;
      if (b > 0)
         put(g, "|");
      if (depth == 2 && pick(8) == 0)
         put(g, "^");
      for (p = 0; p < pieces; ++p)
         atom(g, depth);
      if (depth == 2 && pick(8) == 0)
         put(g, "$");
   }
}

static void random_text(char *t, size_t n)
{
   static const char alphabet[] = "aabbc.";
   size_t i;
   for (i = 0; i < n; ++i)
      t[i] = alphabet[pick(6)];
   t[n] = 0;
}

/* POSIX's leftmost-longest match of text + from (REG_NOTBOL past 0). */
static int posix_find(const regex_t *re, const char *text, size_t from, size_t *pos, size_t *len)
{
   regmatch_t m;
   if (regexec(re, text + from, 1, &m, from > 0 ? REG_NOTBOL : 0) != 0)
      return 0;
   *pos = from + (size_t)m.rm_so;
   *len = (size_t)(m.rm_eo - m.rm_so);
   return 1;
}

static void find(struct ycrt_meta1 *machine, const char *text, unsigned start, int reverse, int *pos,
                 unsigned *len)
{
   struct ycrt_meta1 t = lit(text);
   struct call c;
   call_init(&c, pos, len);
   (reverse ? _yc__strfndr : _yc__strfnd)(c.r, machine, &t, start);
}

static long pairs;

static void compare_one(const char *pattern)
{
   struct ycrt_meta1 p = lit(pattern), machine = var();
   regex_t re;
   int status = 99, k;
   struct call c;
   call_init(&c, &machine, &status);
   _yc__strreg(c.r, &p);
   if (regcomp(&re, pattern, REG_EXTENDED) != 0) {
      CHECK(status == -7, "\"%s\": POSIX refuses it, strreg gave %d", pattern, status);
      free_var(&machine);
      return;
   }
   {
      /* can match nothing exactly when POSIX matches the empty text */
      regmatch_t m;
      int empty = regexec(&re, "", 1, &m, 0) == 0;
      CHECK(status == (empty ? -6 : 0), "\"%s\": status %d", pattern, status);
   }
   for (k = 0; status == 0 && k < 8; ++k) {
      char text[16];
      size_t n = pick(13), want_pos = 0, want_len = 0, from;
      int pos, found;
      unsigned len;
      random_text(text, n);
      from = k < 4 ? 0 : pick((unsigned)n + 1);
      found = posix_find(&re, text, from, &want_pos, &want_len);
      find(&machine, text, (unsigned)from, 0, &pos, &len);
      ++pairs;
      CHECK(found ? pos == (int)want_pos && len == want_len : pos == -1,
            "strfnd \"%s\" \"%s\" from %u: %d,%u, POSIX %d,%u", pattern, text, (unsigned)from, pos, len,
            found ? (int)want_pos : -1, (unsigned)want_len);
      /* the last match beginning at or before from: the longest one that
         POSIX finds at the greatest such position */
      {
         size_t q = from + 1, lp = 0, ll = 0;
         int any = 0;
         while (q-- > 0) {
            size_t mp, ml;
            if (posix_find(&re, text, q, &mp, &ml) && mp == q) {
               any = 1;
               lp = mp;
               ll = ml;
               break;
            }
         }
         find(&machine, text, (unsigned)from, 1, &pos, &len);
         CHECK(any ? pos == (int)lp && len == ll : pos == -1,
               "strfndr \"%s\" \"%s\" from %u: %d,%u, POSIX %d,%u", pattern, text, (unsigned)from, pos,
               len, any ? (int)lp : -1, (unsigned)ll);
      }
   }
   regfree(&re);
   free_var(&machine);
}

static void differential(void)
{
   struct gen g = {NULL, 0, 0};
   int k;
   test_seed(20260101);
   for (k = 0; k < 2500; ++k) {
      g.n = 0;
      put(&g, "");
      expression(&g, 2);
      compare_one(g.s);
   }
   CHECK(pairs >= 10000, "only %ld pattern and text pairs were compared", pairs);
   free(g.s);
}

static int compile(struct ycrt_meta1 *machine, const char *pattern, size_t n)
{
   struct ycrt_meta1 p = bytes(pattern, n);
   int status = 99;
   struct call c;
   call_init(&c, machine, &status);
   _yc__strreg(c.r, &p);
   CHECK(c.exception == 0, "strreg raised on \"%.40s\"", pattern);
   return status;
}

static void statuses(void)
{
   static const struct {
      const char *pattern;
      int status;
   } cases[] = {
      {"(", -7}, {")", -7}, {"a)", -7}, {"(a", -7}, {"((a)", -7}, {"[a", -7}, {"[]", -7}, {"[^]", -7},
      {"*a", -7}, {"a|*b", -7}, {"(*a)", -7}, {"+", -7}, {"?", -7}, {"{1}", -7}, {"a{", -7},
      {"a{1", -7}, {"a{,2}", -7}, {"a{2,1}", -7}, {"a{1,2", -7}, {"a{x}", -7}, {"\\", -7},
      {"[[:foo:]]", -7}, {"[z-a]", -7}, {"a{32768}", -7}, {"[[.ab.]]", -7}, {"[[:alpha:]", -7},
      {"", -6}, {"a*", -6}, {"()", -6}, {"a|", -6}, {"|a", -6}, {"^", -6}, {"$", -6}, {"^$", -6},
      {"(a|b)*", -6}, {"a?", -6}, {"a{0}", -6}, {"a{0,3}", -6}, {"(^|a)", -6}, {"x*^", -6},
      {"a", 0}, {"a{32767}", 0}, {"(|a)b", 0}, {"a^", 0}, {"[[.a.]-c]", 0}, {"[[=b=]]", 0},
      {"\\(", 0}, {"a**", -6}, {"a+?", -6}, {"(a+)+", 0}, {"a{2}{3}", 0}, {"[\\]", 0},
   };
   size_t k;
   for (k = 0; k < sizeof cases / sizeof cases[0]; ++k) {
      struct ycrt_meta1 machine = var();
      int status = compile(&machine, cases[k].pattern, strlen(cases[k].pattern));
      CHECK(status == cases[k].status, "strreg \"%s\": %d, expected %d", cases[k].pattern, status,
            cases[k].status);
      CHECK(status == 0 ? machine.occurs > 0 && var_sane(&machine) : machine.occurs == 0,
            "strreg \"%s\": machine", cases[k].pattern);
      free_var(&machine);
   }
}

static char *repeated(const char *piece, size_t times, const char *middle, const char *tail)
{
   size_t n = strlen(piece), m = strlen(middle), t = strlen(tail), i;
   char *s = malloc(2 * n * times + m + 1);
   for (i = 0; i < times; ++i)
      memcpy(s + i * n, piece, n);
   memcpy(s + n * times, middle, m);
   for (i = 0; i < times; ++i)
      memcpy(s + n * times + m + i * t, tail, t);
   s[n * times + m + t * times] = 0;
   return s;
}

/* Expressions made to hurt: each gives a status or works, quickly. */
static void hostile(void)
{
   struct ycrt_meta1 machine = var();
   char *s;
   int pos;
   unsigned len;
   s = repeated("a", 100000, "", "");
   s[0] = 'b';
   CHECK(compile(&machine, s, 100000) == 0, "a 100,000-character expression compiles");
   find(&machine, s, 0, 0, &pos, &len);
   CHECK(pos == 0 && len == 100000, "and matches itself");
   free(s);
   s = repeated("(", 10000, "a", ")");
   CHECK(compile(&machine, s, strlen(s)) == 0, "10,000 nested groups compile");
   find(&machine, "xxa", 0, 0, &pos, &len);
   CHECK(pos == 2 && len == 1, "and match");
   free(s);
   s = repeated("(", 60000, "", ")");
   CHECK(compile(&machine, s, strlen(s)) == -6, "60,000 nested empty groups can match nothing");
   free(s);
   CHECK(compile(&machine, "(a{1000}){1000}", 15) == -7, "{1000}{1000} is refused");
   CHECK(compile(&machine, "((a{100}){100}){100}", 20) == -7, "nested counts are refused");
   CHECK(compile(&machine, "(((a{32767}){32767}){32767}){32767}", 35) == -7, "huge counts are refused");
   CHECK(compile(&machine, "[a-z]{200}", 10) == 0, "a large count works");
   s = repeated("(a|", 20000, "b", ")");
   CHECK(compile(&machine, s, strlen(s)) == 0, "20,000 alternatives compile");
   find(&machine, "ab", 0, 0, &pos, &len);
   CHECK(pos == 0 && len == 1, "and match");
   free(s);
   free_var(&machine);
}

/* Patterns that make backtracking explode run in one pass. */
static void linear(void)
{
   struct ycrt_meta1 machine = var();
   size_t n = 200000;
   char *text = malloc(n + 2);
   int pos;
   unsigned len;
   memset(text, 'a', n);
   text[n] = 0;
   compile(&machine, "(a|aa)*b", 8);
   find(&machine, text, 0, 0, &pos, &len);
   CHECK(pos == -1, "(a|aa)*b finds nothing in a's");
   text[n] = 'b';
   text[n + 1] = 0;
   find(&machine, text, 0, 0, &pos, &len);
   CHECK(pos == 0 && len == n + 1, "(a|aa)*b matches them all");
   find(&machine, text, 5, 1, &pos, &len);
   CHECK(pos == 5 && len == n + 1 - 5, "strfndr finds the last start");
   compile(&machine, "(x+x+)+y", 8);
   memset(text, 'x', n);
   text[n] = 0;
   find(&machine, text, 0, 0, &pos, &len);
   CHECK(pos == -1, "(x+x+)+y finds nothing in x's");
   free(text);
   free_var(&machine);
}

static void replacing(void)
{
   static const struct {
      const char *pattern, *text, *replacement, *after;
      int count;
   } cases[] = {
      {"a+", "baaac a", "<\\0>", "b<aaa>c <a>", 2},
      {"[0-9]+", "x1y22z", "#", "x#y#z", 2},
      {"q", "abc", "Q", "abc", 0},
      {"b", "abc", "\\\\", "a\\c", 1},
      {"b", "abc", "\\1\\", "a\\1\\c", 1},
      {"^a", "aaa", "b", "baa", 1},
      {"a$", "aaa", "b", "aab", 1},
      {".", "xyz", "", "", 3},
   };
   size_t k;
   for (k = 0; k < sizeof cases / sizeof cases[0]; ++k) {
      struct ycrt_meta1 machine = var(), text = var(), source = lit(cases[k].text),
                        rep = lit(cases[k].replacement);
      int count = 99;
      struct call c;
      compile(&machine, cases[k].pattern, strlen(cases[k].pattern));
      call_init(&c, NULL, NULL);
      _yc__strcpy(c.r, &text, &source);
      call_init(&c, &count, NULL);
      _yc__strrpl(c.r, &text, &machine, &rep);
      CHECK(count == cases[k].count && text_eq(&text, cases[k].after), "strrpl case %u", (unsigned)k);
      free_var(&machine);
      free_var(&text);
   }
   {
      /* a fixed-space target reports the length it needed */
      char block[6] = "abab";
      struct ycrt_meta1 machine = var(), text, rep = lit("xyz");
      unsigned need = 0, limit = 0;
      int count;
      struct call c;
      text.ptr = block;
      text.occurs = 4;
      text.limit1 = 5;
      compile(&machine, "b", 1);
      call_init(&c, &count, &need);
      c.r[3] = &limit;
      _yc__strrpl(c.r, &text, &machine, &rep);
      CHECK(count == 2 && need == 8 && limit == 5 && text.occurs == 5 && memcmp(block, "axyza", 5) == 0,
            "strrpl into a fixed-space");
      free_var(&machine);
   }
}

/* The same answers from a machine copied, and written and read back. */
static void stored(void)
{
   static const char *const patterns[] = {"a[bc]+d", "(x|yz)*q", "^ab|cd$", "[[:digit:]]{2,3}"};
   static const char *const texts[] = {"xabcbd", "yzxq", "abcd", "a12345", "zzz", ""};
   size_t k, j;
   for (k = 0; k < sizeof patterns / sizeof patterns[0]; ++k) {
      struct ycrt_meta1 machine = var(), copy = var(), back = var();
      int file = 0, status = 0;
      struct call c;
      compile(&machine, patterns[k], strlen(patterns[k]));
      call_init(&c, NULL, NULL);
      _yc__strcpy(c.r, &copy, &machine);
      call_init(&c, &file, NULL);
      _yc__tmpfile(c.r);
      call_init(&c, &status, NULL);
      _yc__fputall(c.r, file, &machine);
      _yc__fseek(c.r, file, 0, 0);
      call_init(&c, &back, &status);
      _yc__fgetall(c.r, file);
      call_init(&c, &status, NULL);
      _yc__fclose(c.r, file);
      CHECK(back.occurs == machine.occurs && copy.occurs == machine.occurs, "machine %u stored whole",
            (unsigned)k);
      for (j = 0; j < sizeof texts / sizeof texts[0]; ++j) {
         int p1, p2, p3;
         unsigned l1, l2, l3;
         find(&machine, texts[j], 0, 0, &p1, &l1);
         find(&copy, texts[j], 0, 0, &p2, &l2);
         find(&back, texts[j], 0, 0, &p3, &l3);
         CHECK(p1 == p2 && p1 == p3 && l1 == l2 && l1 == l3, "machine %u text %u", (unsigned)k, (unsigned)j);
      }
      free_var(&machine);
      free_var(&copy);
      free_var(&back);
   }
}

/* Machines that strreg did not make give a status, never a crash. */
static void damaged(void)
{
   struct ycrt_meta1 machine = var(), empty = var(), junk = lit("not a machine at all");
   int pos, i;
   unsigned len, count;
   find(&empty, "abc", 0, 0, &pos, &len);
   CHECK(pos == -5, "an empty machine: %d", pos);
   find(&empty, "abc", 0, 1, &pos, &len);
   CHECK(pos == -5, "strfndr with an empty machine");
   find(&junk, "abc", 0, 0, &pos, &len);
   CHECK(pos == -8, "a text that is no machine: %d", pos);
   compile(&machine, "(ab|c)*d", 8);
   test_seed(99);
   count = 0;
   for (i = 0; i < 3000; ++i) {
      /* change one byte of the program to another non-NUL byte */
      struct ycrt_meta1 copy = var();
      struct call c;
      size_t at;
      call_init(&c, NULL, NULL);
      _yc__strcpy(c.r, &copy, &machine);
      at = pick(copy.occurs);
      ((unsigned char *)copy.ptr)[at] = (unsigned char)(1 + pick(255));
      find(&copy, "ababcd", 0, i & 1, &pos, &len);
      count += pos == -8;
      free_var(&copy);
   }
   CHECK(count > 0, "damaged machines are noticed");
   machine.occurs -= 1;
   find(&machine, "d", 0, 0, &pos, &len);
   CHECK(pos == -8, "a cut machine");
   free_var(&machine);
}

void test_regex(void)
{
   statuses();
   differential();
   hostile();
   linear();
   replacing();
   stored();
   damaged();
}
