/* Time: seconds since the epoch as long, broken-down times as the YARL C
   struct tm (converted to and from the system's), and their texts. */
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "ycrt_lib.h"

/* clock() ticks are thousandths of a second (CLOCKS_PER_SEC in ycrt.h). */
#define TICKS_PER_SECOND 1000

void _yc__time(void *returns[])
{
   *(long *)returns[1] = (long)time(NULL);
}

void _yc__clock(void *returns[])
{
   clock_t c = clock();
   *(long *)returns[1] = c == (clock_t)-1 ? -1L
                         : (long)((double)c * TICKS_PER_SECOND / CLOCKS_PER_SEC);
}

void _yc__difftime(void *returns[], long t1, long t0)
{
   *(double *)returns[1] = difftime((time_t)t1, (time_t)t0);
}

static void from_system(struct ycrt_tm *y, const struct tm *s)
{
   y->tm_sec = s->tm_sec;
   y->tm_min = s->tm_min;
   y->tm_hour = s->tm_hour;
   y->tm_mday = s->tm_mday;
   y->tm_mon = s->tm_mon;
   y->tm_year = s->tm_year;
   y->tm_wday = s->tm_wday;
   y->tm_yday = s->tm_yday;
   y->tm_isdst = s->tm_isdst;
}

static void to_system(struct tm *s, const struct ycrt_tm *y)
{
   memset(s, 0, sizeof *s);
   s->tm_sec = y->tm_sec;
   s->tm_min = y->tm_min;
   s->tm_hour = y->tm_hour;
   s->tm_mday = y->tm_mday;
   s->tm_mon = y->tm_mon;
   s->tm_year = y->tm_year;
   s->tm_wday = y->tm_wday;
   s->tm_yday = y->tm_yday;
   s->tm_isdst = y->tm_isdst;
}

/* A time the system cannot break down gives a structure of zeros. */
static void broken_down(void *returns[], long t, struct tm *(*convert)(const time_t *))
{
   struct ycrt_tm *when = returns[1];
   time_t tt = (time_t)t;
   struct tm *s = convert(&tt);
   if (s == NULL)
      memset(when, 0, sizeof *when);
   else
      from_system(when, s);
}

void _yc__gmtime(void *returns[], long t)
{
   broken_down(returns, t, gmtime);
}

void _yc__localtime(void *returns[], long t)
{
   broken_down(returns, t, localtime);
}

void _yc__mktime(void *returns[], struct ycrt_tm *when)
{
   struct tm s;
   to_system(&s, when);
   *(long *)returns[1] = (long)mktime(&s);
}

/* Formats with strftime into a block that doubles until the text fits. A
   blank is added to the format so that an empty result is told from a block
   too small, and dropped after. */
static int format_time(struct ycrt_meta1 *text, const struct ycrt_meta1 *format, const struct tm *s)
{
   size_t n = ycrt_len(format), size = 2 * n + 64, got;
   int result;
   char *f = ycrt_malloc(n + 2), *out = NULL;
   if (f == NULL)
      return -1;
   memcpy(f, ycrt_chars(format), n);
   f[n] = ' ';
   f[n + 1] = 0;
   for (;;) {
      char *bigger = ycrt_realloc(out, size);
      if (bigger == NULL) {
         free(out);
         free(f);
         return -1;
      }
      out = bigger;
      got = strftime(out, size, f, s);
      if (got > 0)
         break;
      size *= 2;
   }
   free(f);
   result = ycrt_set_text(text, out, got - 1);
   free(out);
   return result;
}

void _yc__strftime(void *returns[], struct ycrt_meta1 *format, struct ycrt_tm *when)
{
   struct tm s;
   to_system(&s, when);
   if (format_time(returns[1], format, &s) != 0)
      ycrt_raise_memory(returns);
}

/* The C library's ctime text ("Thu Jan  1 00:00:00 1970\n"); an empty text
   when the system cannot break the time down. */
void _yc__ctime(void *returns[], long t)
{
   static const struct ycrt_meta1 layout = {"%a %b %e %H:%M:%S %Y\n", 21, 22};
   time_t tt = (time_t)t;
   struct tm *s = localtime(&tt);
   if (s == NULL) {
      ycrt_clear(returns[1]);
      return;
   }
   if (format_time(returns[1], &layout, s) != 0)
      ycrt_raise_memory(returns);
}
