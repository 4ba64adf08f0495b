/* Arithmetic and characters against the C library over edge values. */
#include <ctype.h>
#include <float.h>
#include <limits.h>
#include <math.h>
#include <stdlib.h>
#include <string.h>

#include "check.h"

static const double edges[] = {0.0, -0.0, 1.0, -1.0, 0.5, -0.5, 2.0, 10.0, 1e-310, -1e-310, DBL_MIN,
                               DBL_MAX, -DBL_MAX, 3.14159, 100.25, -7.75, 1e300, HUGE_VAL, -HUGE_VAL};

static int same_double(double a, double b)
{
   return (a != a && b != b) || memcmp(&a, &b, sizeof a) == 0;
}

static int same_float(float a, float b)
{
   return (a != a && b != b) || memcmp(&a, &b, sizeof a) == 0;
}

static int same_long_double(long double a, long double b)
{
   return (a != a && b != b) || (a == b && signbit(a) == signbit(b));
}

#define ONE(name) {#name, _yc__##name, _yc__##name##f, _yc__##name##l, name, name##f, name##l}
static const struct {
   const char *name;
   void (*ours)(void *[], double);
   void (*oursf)(void *[], float);
   void (*oursl)(void *[], long double);
   double (*c)(double);
   float (*cf)(float);
   long double (*cl)(long double);
} ones[] = {ONE(acos), ONE(asin), ONE(atan), ONE(ceil), ONE(cos), ONE(exp), ONE(fabs),
            ONE(floor), ONE(log), ONE(log10), ONE(sin), ONE(sqrt), ONE(tan)};

#define TWO(name) {#name, _yc__##name, _yc__##name##f, _yc__##name##l, name, name##f, name##l}
static const struct {
   const char *name;
   void (*ours)(void *[], double, double);
   void (*oursf)(void *[], float, float);
   void (*oursl)(void *[], long double, long double);
   double (*c)(double, double);
   float (*cf)(float, float);
   long double (*cl)(long double, long double);
} twos[] = {TWO(atan2), TWO(fmod), TWO(pow)};

static void functions(void)
{
   size_t f, i, j, n = sizeof edges / sizeof edges[0];
   double nan_value = strtod("nan", NULL);
   for (f = 0; f < sizeof ones / sizeof ones[0]; ++f)
      for (i = 0; i <= n; ++i) {
         double x = i < n ? edges[i] : nan_value, r;
         float rf;
         long double rl;
         struct call c;
         call_init(&c, &r, NULL);
         ones[f].ours(c.r, x);
         CHECK(same_double(r, ones[f].c(x)), "%s(%g)", ones[f].name, x);
         call_init(&c, &rf, NULL);
         ones[f].oursf(c.r, (float)x);
         CHECK(same_float(rf, ones[f].cf((float)x)), "%sf(%g)", ones[f].name, x);
         call_init(&c, &rl, NULL);
         ones[f].oursl(c.r, (long double)x);
         CHECK(same_long_double(rl, ones[f].cl((long double)x)), "%sl(%g)", ones[f].name, x);
      }
   for (f = 0; f < sizeof twos / sizeof twos[0]; ++f)
      for (i = 0; i <= n; ++i)
         for (j = 0; j <= n; ++j) {
            double x = i < n ? edges[i] : nan_value, y = j < n ? edges[j] : nan_value, r;
            float rf;
            long double rl;
            struct call c;
            call_init(&c, &r, NULL);
            twos[f].ours(c.r, x, y);
            CHECK(same_double(r, twos[f].c(x, y)), "%s(%g, %g)", twos[f].name, x, y);
            call_init(&c, &rf, NULL);
            twos[f].oursf(c.r, (float)x, (float)y);
            CHECK(same_float(rf, twos[f].cf((float)x, (float)y)), "%sf(%g, %g)", twos[f].name, x, y);
            call_init(&c, &rl, NULL);
            twos[f].oursl(c.r, (long double)x, (long double)y);
            CHECK(same_long_double(rl, twos[f].cl((long double)x, (long double)y)), "%sl(%g, %g)",
                  twos[f].name, x, y);
         }
}

static void classes(void)
{
   size_t i, n = sizeof edges / sizeof edges[0];
   for (i = 0; i <= n; ++i) {
      double x = i < n ? edges[i] : strtod("nan", NULL);
      int want = x != x ? 1 : (x == HUGE_VAL || x == -HUGE_VAL) ? 2 : 0, got, gotf, gotl;
      struct call c;
      call_init(&c, &got, NULL);
      _yc__merr(c.r, x);
      call_init(&c, &gotf, NULL);
      _yc__merrf(c.r, (float)x);
      call_init(&c, &gotl, NULL);
      _yc__merrl(c.r, (long double)x);
      CHECK(got == want && gotl == want, "merr(%g) %d", x, got);
      /* DBL_MAX and 1e300 overflow float */
      CHECK(gotf == (isinf((float)x) ? 2 : want == 1 ? 1 : 0), "merrf(%g)", x);
   }
}

static void integers(void)
{
   static const int as[] = {0, 1, -1, 7, -7, 100, INT_MAX, INT_MIN, INT_MIN + 1};
   static const long ls[] = {0, 3, -3, LONG_MAX, LONG_MIN, 1000000007L};
   size_t i, j;
   for (i = 0; i < sizeof as / sizeof as[0]; ++i) {
      int y;
      struct call c;
      call_init(&c, &y, NULL);
      _yc__abs(c.r, as[i]);
      CHECK(y == (as[i] == INT_MIN ? INT_MIN : abs(as[i])), "abs(%d)", as[i]);
      for (j = 0; j < sizeof as / sizeof as[0]; ++j) {
         int q, r;
         call_init(&c, &q, &r);
         _yc__div(c.r, as[i], as[j]);
         if (as[j] == 0)
            CHECK(q == 0 && r == as[i], "div(%d, 0)", as[i]);
         else if (as[j] == -1 && as[i] == INT_MIN)
            CHECK(q == INT_MIN && r == 0, "div(INT_MIN, -1)");
         else {
            div_t d = div(as[i], as[j]);
            CHECK(q == d.quot && r == d.rem, "div(%d, %d)", as[i], as[j]);
         }
      }
   }
   for (i = 0; i < sizeof ls / sizeof ls[0]; ++i) {
      long y;
      struct call c;
      call_init(&c, &y, NULL);
      _yc__labs(c.r, ls[i]);
      CHECK(y == (ls[i] == LONG_MIN ? LONG_MIN : labs(ls[i])), "labs(%ld)", ls[i]);
      for (j = 0; j < sizeof ls / sizeof ls[0]; ++j) {
         long q, r;
         call_init(&c, &q, &r);
         _yc__ldiv(c.r, ls[i], ls[j]);
         if (ls[j] == 0)
            CHECK(q == 0 && r == ls[i], "ldiv(%ld, 0)", ls[i]);
         else {
            ldiv_t d = ldiv(ls[i], ls[j]);
            CHECK(q == d.quot && r == d.rem, "ldiv(%ld, %ld)", ls[i], ls[j]);
         }
      }
   }
   {
      long q, r;
      struct call c;
      call_init(&c, &q, &r);
      _yc__ldiv(c.r, LONG_MIN, -1);
      CHECK(q == LONG_MIN && r == 0, "ldiv(LONG_MIN, -1)");
   }
}

#define CLASS(name) {#name, _yc__##name}
static const struct {
   const char *name;
   void (*ours)(void *[], int);
} character_functions[] = {CLASS(isalnum), CLASS(isalpha), CLASS(isdigit), CLASS(islower),
                           CLASS(isspace), CLASS(isupper), CLASS(tolower), CLASS(toupper)};

static void characters(void)
{
   int (*const cs[])(int) = {isalnum, isalpha, isdigit, islower, isspace, isupper, tolower, toupper};
   size_t f;
   int ch;
   for (f = 0; f < 8; ++f)
      for (ch = -300; ch < 600; ++ch) {
         int r;
         struct call c;
         call_init(&c, &r, NULL);
         character_functions[f].ours(c.r, ch);
         if (ch < 0 || ch > 255)
            CHECK(r == (f < 6 ? 0 : ch), "%s(%d) outside the characters", character_functions[f].name, ch);
         else
            CHECK(f < 6 ? r == (cs[f](ch) != 0) : r == cs[f](ch), "%s(%d)", character_functions[f].name, ch);
      }
}

static void random_numbers(void)
{
   int k, r, first;
   struct call c;
   call_init(&c, &r, NULL);
   _yc__rand(c.r);
   first = r;
   for (k = 0; k < 1000; ++k) {
      _yc__rand(c.r);
      CHECK(r >= 0 && r <= 2147483647, "rand in range");
   }
   CHECK(r != first, "rand varies");
}

void test_math(void)
{
   functions();
   classes();
   integers();
   characters();
   random_numbers();
}
