/* A five-point stencil over an N x N grid of doubles, iterated 400 times
   with fixed borders: prints a checksum of the diagonal and of the whole
   grid. Usage: stencil [N] */
#include <stdio.h>
#include <stdlib.h>

int main(int argc, char **argv)
{
   int n = argc > 1 ? atoi(argv[1]) : 1000;
   int i, j, step;
   double diagonal = 0.0, total = 0.0;
   double *g = malloc(sizeof(double) * n * n);
   double *h = malloc(sizeof(double) * n * n);
   if (g == NULL || h == NULL) return 1;
   for (i = 0; i < n; i++)
      for (j = 0; j < n; j++) {
         g[i * n + j] = (double)((i * j) % 17);
         h[i * n + j] = g[i * n + j];
      }
   for (step = 0; step < 400; step++) {
      for (i = 1; i < n - 1; i++)
         for (j = 1; j < n - 1; j++)
            h[i * n + j] = 0.2 * (g[i * n + j] + g[(i - 1) * n + j] + g[(i + 1) * n + j] + g[i * n + j - 1] + g[i * n + j + 1]);
      for (i = 1; i < n - 1; i++)
         for (j = 1; j < n - 1; j++)
            g[i * n + j] = h[i * n + j];
   }
   for (i = 0; i < n; i++) {
      diagonal = diagonal + g[i * n + i];
      for (j = 0; j < n; j++)
         total = total + g[i * n + j];
   }
   printf("n %d diagonal %.6f total %.6f\n", n, diagonal, total);
   free(g);
   free(h);
   return 0;
}
