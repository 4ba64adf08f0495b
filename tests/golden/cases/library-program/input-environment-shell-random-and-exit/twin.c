/* The same program in C; the end of input prints as the library's -2, and
   the shell's status is the wait status C's system returns. */
#include <stdio.h>
#include <stdlib.h>
static void leave(int code)
{
   printf("leaving with %d, no newline", code);
   exit(code);
}
int main(void)
{
   int n, total = 0, count, k, r, first, differ = 0, inrange = 1, st;
   double d;
   char word[64];
   const char *value;
   count = scanf("%d %d", &n, &total);
   printf("scanf %d: %d %d\n", count, n, total);
   count = scanf("%63s %lf", word, &d);
   printf("scanf %d: [%s] %g\n", count, word, d);
   count = scanf("%d", &n);
   printf("scanf of a word as a number %d\n", count);
   count = scanf("%63s", word);
   printf("scanf %d: [%s]\n", count, word);
   count = scanf("%d", &n);
   printf("scanf at the end %d\n", count == EOF ? -2 : count);
   count = printf("%s|%5d|\n", "twelve", 12);
   printf("printf counted %d\n", count);
   value = getenv("PATH");
   printf("getenv PATH: %d, not empty %d\n", value ? 0 : -1, value && *value);
   value = getenv("YC_NO_SUCH_VARIABLE_EVER");
   printf("getenv of an unset variable: %d [%s] %u\n", value ? 0 : -1, value ? value : "", 0u);
   printf("before the shell\n");
   fflush(stdout);
   st = system("echo from the shell");
   printf("system %d\n", st);
   printf("system exit 3: %d\n", system("exit 3"));
   first = rand();
   for (k = 0; k < 1000; k++) {
      r = rand();
      if (r < 0 || r > RAND_MAX) inrange = 0;
      if (r != first) differ = 1;
   }
   printf("rand: in range %d, not constant %d\n", inrange, differ);
   leave(7);
   return 0;
}
