/* Fannkuch-redux: over every permutation of 1..N, the number of flips of
   the first k elements (k the first element) until 1 comes first; prints
   the checksum and the largest number of flips. Usage: fannkuch [N] */
#include <stdio.h>
#include <stdlib.h>

static void fannkuch(int n, int *checksum_out, int *max_flips_out)
{
   int perm[16], perm1[16], count[16];
   int i, j, k, t, r, flips, perm0;
   int checksum = 0, max_flips = 0, perm_count = 0;
   for (i = 0; i < n; i++)
      perm1[i] = i;
   r = n;
   for (;;) {
      while (r != 1) {
         count[r - 1] = r;
         r--;
      }
      for (i = 0; i < n; i++)
         perm[i] = perm1[i];
      flips = 0;
      k = perm[0];
      while (k != 0) {
         i = 0;
         j = k;
         while (i < j) {
            t = perm[i];
            perm[i] = perm[j];
            perm[j] = t;
            i++;
            j--;
         }
         flips++;
         k = perm[0];
      }
      if (flips > max_flips)
         max_flips = flips;
      if (perm_count % 2 == 0)
         checksum = checksum + flips;
      else
         checksum = checksum - flips;
      /* the next permutation in the counting order */
      for (;;) {
         if (r == n) {
            *checksum_out = checksum;
            *max_flips_out = max_flips;
            return;
         }
         perm0 = perm1[0];
         for (i = 0; i < r; i++)
            perm1[i] = perm1[i + 1];
         perm1[r] = perm0;
         count[r] = count[r] - 1;
         if (count[r] > 0)
            break;
         r++;
      }
      perm_count++;
   }
}

int main(int argc, char **argv)
{
   int n = argc > 1 ? atoi(argv[1]) : 10;
   int checksum, max_flips;
   if (n < 1 || n > 15) {
      printf("N must lie in 1..15\n");
      return 1;
   }
   fannkuch(n, &checksum, &max_flips);
   printf("%d\nPfannkuchen(%d) = %d\n", checksum, n, max_flips);
   return 0;
}
