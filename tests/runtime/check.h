/* A small harness for the run-time library's tests: checks count passes
   and failures, and helpers build the meta records the compiler passes. */
#ifndef CHECK_H
#define CHECK_H

#include <stddef.h>

#include "ycrt_lib.h"

void check_at(int ok, const char *file, int line, const char *format, ...);
#define CHECK(ok, ...) check_at((ok) != 0, __FILE__, __LINE__, __VA_ARGS__)

/* A record of a constant text, as the compiler passes a string literal. */
struct ycrt_meta1 lit(const char *s);
/* A record of n characters (NUL bytes allowed). */
struct ycrt_meta1 bytes(const char *s, size_t n);
/* An empty varspace. */
struct ycrt_meta1 var(void);
void free_var(struct ycrt_meta1 *v);
/* Whether a record's text is exactly s (n characters). */
int text_is(const struct ycrt_meta1 *m, const char *s, size_t n);
int text_eq(const struct ycrt_meta1 *m, const char *s);
/* A varspace record is consistent: no block without a limit, occurs within
   the limit, a NUL after the text when there is room. */
int var_sane(const struct ycrt_meta1 *v);

/* A fresh returns array: slot 0 the exception code (cleared), slots 1 on
   the given pointers, then NULL (varspace targets). */
struct call {
   int exception;
   void *r[8];
};
void call_init(struct call *c, void *a, void *b);

/* Random numbers the tests repeat exactly. */
unsigned long test_random(void);
void test_seed(unsigned long seed);

#endif
