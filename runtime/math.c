/* Arithmetic: the C library's math functions in their double, float and
   long double forms, abs and div without C's undefined cases, and merr to
   classify a result. */
#include <limits.h>
#include <math.h>

#include "ycrt_lib.h"

/* The C99 float and long double forms exist in every C99 library. */
#define MATH1(name) \
   void _yc__##name(void *returns[], double x) { *(double *)returns[1] = name(x); } \
   void _yc__##name##f(void *returns[], float x) { *(float *)returns[1] = name##f(x); } \
   void _yc__##name##l(void *returns[], long double x) { *(long double *)returns[1] = name##l(x); }
#define MATH2(name) \
   void _yc__##name(void *returns[], double x, double y) { *(double *)returns[1] = name(x, y); } \
   void _yc__##name##f(void *returns[], float x, float y) { *(float *)returns[1] = name##f(x, y); } \
   void _yc__##name##l(void *returns[], long double x, long double y) \
   { \
      *(long double *)returns[1] = name##l(x, y); \
   }

MATH1(acos)
MATH1(asin)
MATH1(atan)
MATH2(atan2)
MATH1(ceil)
MATH1(cos)
MATH1(exp)
MATH1(fabs)
MATH1(floor)
MATH2(fmod)
MATH1(log)
MATH1(log10)
MATH2(pow)
MATH1(sin)
MATH1(sqrt)
MATH1(tan)

/* The most negative value has no positive counterpart: it is its own
   absolute value, as two's complement arithmetic gives it. */
void _yc__abs(void *returns[], int x)
{
   *(int *)returns[1] = x == INT_MIN ? x : x < 0 ? -x : x;
}

void _yc__labs(void *returns[], long x)
{
   *(long *)returns[1] = x == LONG_MIN ? x : x < 0 ? -x : x;
}

/* A zero divisor gives quotient 0 and the dividend as remainder; the most
   negative value divided by -1 gives itself and 0. */
void _yc__div(void *returns[], int a, int b)
{
   int q = b == 0 ? 0 : b == -1 ? (a == INT_MIN ? a : -a) : a / b;
   *(int *)returns[1] = q;
   *(int *)returns[2] = b == 0 ? a : b == -1 ? 0 : a % b;
}

void _yc__ldiv(void *returns[], long a, long b)
{
   long q = b == 0 ? 0 : b == -1 ? (a == LONG_MIN ? a : -a) : a / b;
   *(long *)returns[1] = q;
   *(long *)returns[2] = b == 0 ? a : b == -1 ? 0 : a % b;
}

static int classify(int kind)
{
   return kind == FP_NAN ? 1 : kind == FP_INFINITE ? 2 : 0;
}

void _yc__merr(void *returns[], double x)
{
   *(int *)returns[1] = classify(fpclassify(x));
}

void _yc__merrf(void *returns[], float x)
{
   *(int *)returns[1] = classify(fpclassify(x));
}

void _yc__merrl(void *returns[], long double x)
{
   *(int *)returns[1] = classify(fpclassify(x));
}
