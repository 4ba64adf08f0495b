/* The spectral norm of the infinite matrix A(i,j) = 1/((i+j)(i+j+1)/2+i+1),
   by ten power iterations on an N x N section: prints the norm.
   Usage: spectralnorm [N] */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>

static double eval_a(int i, int j)
{
   return 1.0 / (double)((i + j) * (i + j + 1) / 2 + i + 1);
}

static void a_times(double *v, const double *u, int n)
{
   int i, j;
   double s;
   for (i = 0; i < n; i++) {
      s = 0.0;
      for (j = 0; j < n; j++)
         s = s + eval_a(i, j) * u[j];
      v[i] = s;
   }
}

static void at_times(double *v, const double *u, int n)
{
   int i, j;
   double s;
   for (i = 0; i < n; i++) {
      s = 0.0;
      for (j = 0; j < n; j++)
         s = s + eval_a(j, i) * u[j];
      v[i] = s;
   }
}

static void at_a_times(double *v, const double *u, double *w, int n)
{
   a_times(w, u, n);
   at_times(v, w, n);
}

int main(int argc, char **argv)
{
   int n = argc > 1 ? atoi(argv[1]) : 3500;
   int i;
   double vbv = 0.0, vv = 0.0;
   double *u = malloc(sizeof(double) * n);
   double *v = malloc(sizeof(double) * n);
   double *w = malloc(sizeof(double) * n);
   if (u == NULL || v == NULL || w == NULL) return 1;
   for (i = 0; i < n; i++)
      u[i] = 1.0;
   for (i = 0; i < 10; i++) {
      at_a_times(v, u, w, n);
      at_a_times(u, v, w, n);
   }
   for (i = 0; i < n; i++) {
      vbv = vbv + u[i] * v[i];
      vv = vv + v[i] * v[i];
   }
   printf("%.9f\n", sqrt(vbv / vv));
   free(u);
   free(v);
   free(w);
   return 0;
}
