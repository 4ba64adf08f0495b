#include <stdlib.h>
int main(void)
{
   int n = 700, i, j, k;
   double *a = malloc(sizeof(double) * n * n), *b = malloc(sizeof(double) * n * n),
          *c = malloc(sizeof(double) * n * n), s, total = 0.0;
   if (!a || !b || !c) return 255;
   for (i = 0; i < n; i++)
      for (j = 0; j < n; j++) {
         a[i * n + j] = (double)((i * 7 + j * 3) % 11);
         b[i * n + j] = (double)((i * 5 + j * 2) % 13);
      }
   for (i = 0; i < n; i++)
      for (j = 0; j < n; j++) {
         s = 0.0;
         for (k = 0; k < n; k++) s = s + a[i * n + k] * b[k * n + j];
         c[i * n + j] = s;
      }
   for (i = 0; i < n; i++) total = total + c[i * n + (i * 3) % n];
   free(a);
   free(b);
   free(c);
   return (int)((long)total % 256L);
}
