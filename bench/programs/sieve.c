/* Sieve of Eratosthenes: prints the number of primes below N and the sum of
   the last thousand of them. Usage: sieve [N] */
#include <stdio.h>
#include <stdlib.h>

int main(int argc, char **argv)
{
   int n = argc > 1 ? atoi(argv[1]) : 80000000;
   int i, j, count = 0;
   long tail = 0;
   char *composite = malloc((size_t)n + 1);
   if (composite == NULL) return 1;
   for (i = 0; i < n; i++) composite[i] = 0;
   for (i = 2; (long)i * i < n; i++)
      if (composite[i] == 0)
         for (j = i * i; j < n; j += i) composite[j] = 1;
   for (i = 2; i < n; i++)
      if (composite[i] == 0) count++;
   j = 0;
   for (i = n - 1; i >= 2 && j < 1000; i--)
      if (composite[i] == 0) { tail += i; j++; }
   printf("primes below %d: %d, sum of the largest %d: %ld\n", n, count, j, tail);
   free(composite);
   return 0;
}
