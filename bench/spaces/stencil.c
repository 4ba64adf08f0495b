#include <stdlib.h>
int main(void)
{
   int n = 1000, i, j, step;
   double *g = malloc(sizeof(double) * n * n), *h = malloc(sizeof(double) * n * n), total = 0.0;
   if (!g || !h) return 255;
   for (i = 0; i < n; i++)
      for (j = 0; j < n; j++) {
         g[i * n + j] = (double)((i * j) % 17);
         h[i * n + j] = 0.0;
      }
   for (step = 0; step < 60; step++) {
      for (i = 1; i < n - 1; i++)
         for (j = 1; j < n - 1; j++)
            h[i * n + j] = 0.2 * (g[i * n + j] + g[(i - 1) * n + j] + g[(i + 1) * n + j] + g[i * n + j - 1] +
                                  g[i * n + j + 1]);
      for (i = 1; i < n - 1; i++)
         for (j = 1; j < n - 1; j++) g[i * n + j] = h[i * n + j];
   }
   for (i = 0; i < n; i++) total = total + g[i * n + i];
   free(g);
   free(h);
   return (int)((long)total % 256L);
}
