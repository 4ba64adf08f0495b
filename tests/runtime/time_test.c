/* Time against the C library: broken-down times, mktime, ctime and
   strftime, for times around the epoch, leap days and far years. */
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "check.h"

static const long times[] = {0, 1, -1, 86399, 951782400, 951868800, 1234567890, 2147483647, -2147483648L,
                             4102444800L, 253402300799L};

static int same_tm(const struct ycrt_tm *y, const struct tm *s)
{
   return y->tm_sec == s->tm_sec && y->tm_min == s->tm_min && y->tm_hour == s->tm_hour &&
          y->tm_mday == s->tm_mday && y->tm_mon == s->tm_mon && y->tm_year == s->tm_year &&
          y->tm_wday == s->tm_wday && y->tm_yday == s->tm_yday && y->tm_isdst == s->tm_isdst;
}

static void broken_down(void)
{
   size_t k;
   for (k = 0; k < sizeof times / sizeof times[0]; ++k) {
      struct ycrt_tm when;
      time_t t = (time_t)times[k];
      long back;
      struct call c;
      call_init(&c, &when, NULL);
      _yc__gmtime(c.r, times[k]);
      CHECK(same_tm(&when, gmtime(&t)), "gmtime(%ld)", times[k]);
      _yc__localtime(c.r, times[k]);
      CHECK(same_tm(&when, localtime(&t)), "localtime(%ld)", times[k]);
      call_init(&c, &back, NULL);
      _yc__mktime(c.r, &when);
      CHECK(back == times[k], "mktime(localtime(%ld)): %ld", times[k], back);
   }
   {
      /* mktime normalises out-of-range fields as C does, leaving ours alone */
      struct ycrt_tm when = {70, 59, 23, 31, 11, 99, 0, 0, -1};
      struct tm s;
      long t;
      struct call c;
      memset(&s, 0, sizeof s);
      s.tm_sec = 70;
      s.tm_min = 59;
      s.tm_hour = 23;
      s.tm_mday = 31;
      s.tm_mon = 11;
      s.tm_year = 99;
      s.tm_isdst = -1;
      call_init(&c, &t, NULL);
      _yc__mktime(c.r, &when);
      CHECK(t == (long)mktime(&s) && when.tm_sec == 70, "mktime normalises");
   }
}

static void texts(void)
{
   static const char *const formats[] = {"%Y-%m-%d %H:%M:%S", "%a %A %b %B %j %U %w %y %%", "", "%p",
                                         "plain text", "%c|%x|%X"};
   size_t k, f;
   struct ycrt_meta1 v = var();
   struct call c;
   call_init(&c, &v, NULL);
   for (k = 0; k < sizeof times / sizeof times[0]; ++k) {
      time_t t = (time_t)times[k];
      struct ycrt_tm when;
      struct call w;
      char *want = ctime(&t);
      _yc__ctime(c.r, times[k]);
      CHECK(want != NULL ? text_eq(&v, want) : v.occurs == 0, "ctime(%ld)", times[k]);
      call_init(&w, &when, NULL);
      _yc__gmtime(w.r, times[k]);
      for (f = 0; f < sizeof formats / sizeof formats[0]; ++f) {
         struct ycrt_meta1 format = lit(formats[f]);
         char buffer[512];
         size_t n = strftime(buffer, sizeof buffer, formats[f], gmtime(&t));
         _yc__strftime(c.r, &format, &when);
         CHECK(text_is(&v, buffer, n) && var_sane(&v), "strftime(\"%s\", %ld)", formats[f], times[k]);
      }
   }
   {
      /* a result much longer than the format's first guess */
      struct ycrt_meta1 format = lit("%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A");
      struct ycrt_tm when = {0, 0, 0, 3, 0, 100, 3, 2, 0};
      _yc__strftime(c.r, &format, &when);
      CHECK(v.occurs == 32 * 9, "a long strftime result: %u", v.occurs);
   }
   free_var(&v);
}

static void clocks(void)
{
   long t, ticks;
   double s;
   struct call c;
   call_init(&c, &t, NULL);
   _yc__time(c.r);
   CHECK(labs(t - (long)time(NULL)) <= 2, "time is now");
   call_init(&c, &ticks, NULL);
   _yc__clock(c.r);
   CHECK(ticks >= 0, "clock");
   call_init(&c, &s, NULL);
   _yc__difftime(c.r, 100, 40);
   CHECK(s == 60.0, "difftime");
}

void test_time(void)
{
   broken_down();
   texts();
   clocks();
}
