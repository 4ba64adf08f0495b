/* Dense matrix multiply of two N x N matrices: prints the trace and a
   checksum of the product. Usage: matmul [N] */
#include <stdio.h>
#include <stdlib.h>

int main(int argc, char **argv)
{
   int n = argc > 1 ? atoi(argv[1]) : 900;
   int i, j, k;
   double s, trace = 0.0, total = 0.0;
   double *a = malloc(sizeof(double) * n * n);
   double *b = malloc(sizeof(double) * n * n);
   double *c = malloc(sizeof(double) * n * n);
   if (a == NULL || b == NULL || c == NULL) return 1;
   for (i = 0; i < n; i++)
      for (j = 0; j < n; j++) {
         a[i * n + j] = (double)((i * 7 + j * 3) % 11) - 5.0;
         b[i * n + j] = (double)((i * 5 + j * 2) % 13) * 0.5;
      }
   for (i = 0; i < n; i++)
      for (j = 0; j < n; j++) {
         s = 0.0;
         for (k = 0; k < n; k++)
            s = s + a[i * n + k] * b[k * n + j];
         c[i * n + j] = s;
      }
   for (i = 0; i < n; i++) {
      trace = trace + c[i * n + i];
      for (j = 0; j < n; j++)
         total = total + c[i * n + j] * (double)((i + j) % 7);
   }
   printf("n %d trace %.3f checksum %.3f\n", n, trace, total);
   free(a);
   free(b);
   free(c);
   return 0;
}
