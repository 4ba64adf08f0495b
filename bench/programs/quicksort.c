/* A recursive quicksort of N pseudo-random ints: prints a checksum of the
   sorted order and its smallest, median and largest values.
   Usage: quicksort [N] */
#include <stdio.h>
#include <stdlib.h>

static void quicksort(int *v, int lo, int hi)
{
   int i, j, pivot, t;
   while (lo < hi) {
      pivot = v[lo + (hi - lo) / 2];
      i = lo;
      j = hi;
      while (i <= j) {
         while (v[i] < pivot) i++;
         while (v[j] > pivot) j--;
         if (i <= j) {
            t = v[i];
            v[i] = v[j];
            v[j] = t;
            i++;
            j--;
         }
      }
      /* recurse into the smaller part, loop on the larger */
      if (j - lo < hi - i) {
         quicksort(v, lo, j);
         lo = i;
      } else {
         quicksort(v, i, hi);
         hi = j;
      }
   }
}

int main(int argc, char **argv)
{
   int n = argc > 1 ? atoi(argv[1]) : 6000000;
   int i;
   unsigned seed = 12345;
   long sum = 0;
   int *v = NULL;
   int cap = 0;
   for (i = 0; i < n; i++) {
      seed = seed * 1103515245 + 12345;
      if (i >= cap) {
         cap = cap ? cap * 2 : 1024;
         v = realloc(v, sizeof(int) * cap);
         if (v == NULL) return 1;
      }
      v[i] = (int)(seed >> 1);
   }
   quicksort(v, 0, n - 1);
   for (i = 1; i < n; i++) {
      if (v[i - 1] > v[i]) {
         printf("not sorted at %d\n", i);
         return 1;
      }
      sum = sum + (long)(v[i] % 1000) * (long)(i % 1000);
   }
   printf("n %d min %d median %d max %d checksum %ld\n", n, v[0], v[n / 2], v[n - 1], sum);
   free(v);
   return 0;
}
