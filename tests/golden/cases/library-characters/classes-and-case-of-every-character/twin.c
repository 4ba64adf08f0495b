/* The same program in C; values outside 0..255 are given by hand: no class, unchanged. */
#include <ctype.h>
#include <stdio.h>
static int classes(int c)
{
   if (c < -1 || c > 255) return 0;
   return !!isalnum(c) + 2 * !!isalpha(c) + 4 * !!isdigit(c) + 8 * !!islower(c) + 16 * !!isspace(c) + 32 * !!isupper(c);
}
static int lower(int c) { return c < -1 || c > 255 ? c : tolower(c); }
static int upper(int c) { return c < -1 || c > 255 ? c : toupper(c); }
int main(void)
{
   int c, count[6] = {0}, k, m, changed = 0;
   for (c = 0; c < 256; c++) {
      m = classes(c);
      for (k = 0; k < 6; k++)
         if ((m >> k) % 2 == 1) count[k]++;
      if (c % 32 == 0) printf("%3d:", c);
      printf(" %02x", m);
      if (c % 32 == 31) printf("\n");
   }
   printf("alnum %d alpha %d digit %d lower %d space %d upper %d\n", count[0], count[1], count[2], count[3], count[4], count[5]);
   for (c = 0; c < 256; c++) {
      if (tolower(c) != c) { changed++; printf("%c", tolower(c)); }
      if (toupper(c) != c) printf("%c", toupper(c));
   }
   printf("\n%d changed by tolower\n", changed);
   printf("%d %d %d %d\n", classes(-1), classes(256), classes(-1000), classes(65 + 256));
   printf("%d %d %d %d\n", lower(-1), upper(-1), lower(321), upper(353));
   printf("%d %d\n", tolower('A'), toupper('z'));
   return 0;
}
