/* The test harness: ycrt_test AREA runs one area's tests and prints
   "N passed, N failed". */
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "check.h"

static long passed, failed;

void check_at(int ok, const char *file, int line, const char *format, ...)
{
   va_list ap;
   if (ok) {
      ++passed;
      return;
   }
   ++failed;
   if (failed > 50)
      return;
   fprintf(stdout, "%s:%d: ", file, line);
   va_start(ap, format);
   vfprintf(stdout, format, ap);
   va_end(ap);
   fputc('\n', stdout);
}

struct ycrt_meta1 lit(const char *s)
{
   return bytes(s, strlen(s));
}

struct ycrt_meta1 bytes(const char *s, size_t n)
{
   struct ycrt_meta1 m;
   m.ptr = (void *)s;
   m.occurs = (unsigned)n;
   m.limit1 = (unsigned)n + 1;
   return m;
}

struct ycrt_meta1 var(void)
{
   struct ycrt_meta1 m = {NULL, 0, 0};
   return m;
}

void free_var(struct ycrt_meta1 *v)
{
   if (v->limit1 > 0)
      free(v->ptr);
   v->ptr = NULL;
   v->occurs = v->limit1 = 0;
}

int text_is(const struct ycrt_meta1 *m, const char *s, size_t n)
{
   return m->occurs == n && (n == 0 || memcmp(m->ptr, s, n) == 0);
}

int text_eq(const struct ycrt_meta1 *m, const char *s)
{
   return text_is(m, s, strlen(s));
}

int var_sane(const struct ycrt_meta1 *v)
{
   if (v->limit1 == 0)
      return v->occurs == 0;
   return v->ptr != NULL && v->occurs <= v->limit1 &&
          (v->occurs == v->limit1 || ((char *)v->ptr)[v->occurs] == 0);
}

void call_init(struct call *c, void *a, void *b)
{
   int i;
   c->exception = 0;
   c->r[0] = &c->exception;
   c->r[1] = a;
   c->r[2] = b;
   for (i = 3; i < 8; ++i)
      c->r[i] = NULL;
}

static unsigned long state = 12345;

void test_seed(unsigned long seed)
{
   state = seed;
}

unsigned long test_random(void)
{
   /* xorshift: the same sequence on every host */
   state ^= (state << 13) & 0xffffffffUL;
   state ^= state >> 17;
   state ^= (state << 5) & 0xffffffffUL;
   return state & 0xffffffffUL;
}

#define AREAS(X) X(strings) X(format) X(scan) X(files) X(math) X(time) X(regex) X(keys) X(sort) X(memory)
#define DECLARE(area) void test_##area(void);
AREAS(DECLARE)

int main(int argc, char **argv)
{
#define RUN(area) \
   if (argc < 2 || strcmp(argv[1], #area) == 0) { \
      found = 1; \
      test_##area(); \
   }
   int found = 0;
   AREAS(RUN)
   if (!found) {
      fprintf(stderr, "unknown area %s\n", argv[1]);
      return 2;
   }
   printf("%ld passed, %ld failed\n", passed, failed);
   return failed == 0 ? 0 : 1;
}
