/* The same program in C, with the same properties for what depends on the
   machine. */
#include <stdio.h>
#include <string.h>
#include <time.h>
static void show(const struct tm *w)
{
   printf("%04d-%02d-%02d %02d:%02d:%02d wday %d yday %d\n", w->tm_year + 1900, w->tm_mon + 1,
          w->tm_mday, w->tm_hour, w->tm_min, w->tm_sec, w->tm_wday, w->tm_yday);
}
static void showg(time_t t) { show(gmtime(&t)); }
int main(void)
{
   time_t now = time(NULL), t;
   clock_t ticks;
   struct tm when, local, copy;
   char text[1024], other[64];
   size_t n;
   printf("now after 2023 and before 2100: %d\n", now > 1700000000 && now < 4102444800);
   ticks = clock();
   printf("clock counts up from zero: %d\n", ticks >= 0 && clock() >= ticks);
   printf("difftime %.1f %.1f %.1f\n", difftime(10, 3), difftime(3, 10), difftime(now, now));
   showg(0); showg(951782400); showg(1700000000); showg(-1); showg(4102444799);
   t = 1700000000;
   when = *gmtime(&t);
   n = strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S %j %a %A %b %B %p %%", &when);
   printf("strftime [%s] %zu\n", text, n);
   printf("strftime of nothing [%s] %u\n", "", 0u);
   n = strftime(text, sizeof text, "%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%Y%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A%A", &when);
   printf("strftime long %zu\n", n);
   local = *localtime(&now);
   copy = local;
   printf("mktime undoes localtime: %d\n", mktime(&copy) == now);
   strcpy(text, ctime(&now));
   strftime(other, sizeof other, "%a %b %e %H:%M:%S %Y\n", &local);
   printf("ctime is 25 characters like strftime's: %d %d\n", strlen(text) == 25, strcmp(text, other) == 0);
   when.tm_year = 124; when.tm_mon = 13; when.tm_mday = 31;
   when.tm_hour = 12; when.tm_min = 0; when.tm_sec = 0; when.tm_isdst = -1;
   copy = when;
   t = mktime(&copy);
   printf("mktime normalises: month 14 of 2024 day 31 is ");
   show(localtime(&t));
   printf("argument left as it was: month %d\n", when.tm_mon);
   when.tm_year = 2147483647;
   printf("mktime of a year out of range %ld\n", (long) mktime(&when));
   return 0;
}
