/* The Mandelbrot set on an N x N grid over [-1.5,0.5] x [-1,1], 50
   iterations, one bit a point packed as the portable bitmap format would:
   prints the points in the set and a checksum of the bytes.
   Usage: mandelbrot [N] */
#include <stdio.h>
#include <stdlib.h>

int main(int argc, char **argv)
{
   int n = argc > 1 ? atoi(argv[1]) : 3000;
   int x, y, i, byte, bit, inside, total = 0;
   int row_bytes = (n + 7) / 8;
   size_t used = 0, k;
   unsigned checksum = 0;
   double cr, ci, zr, zi, tr, ti;
   unsigned char *bits = malloc((size_t)row_bytes * n + 1);
   if (bits == NULL) return 1;
   for (y = 0; y < n; y++) {
      ci = 2.0 * (double)y / (double)n - 1.0;
      byte = 0;
      bit = 0;
      for (x = 0; x < n; x++) {
         cr = 2.0 * (double)x / (double)n - 1.5;
         zr = zi = tr = ti = 0.0;
         inside = 1;
         for (i = 0; i < 50 && inside; i++) {
            zi = 2.0 * zr * zi + ci;
            zr = tr - ti + cr;
            tr = zr * zr;
            ti = zi * zi;
            if (tr + ti > 4.0)
               inside = 0;
         }
         byte = byte * 2 + inside;
         total = total + inside;
         bit++;
         if (bit == 8 || x == n - 1) {
            while (bit < 8) {
               byte = byte * 2;
               bit++;
            }
            bits[used++] = (unsigned char)byte;
            byte = 0;
            bit = 0;
         }
      }
   }
   for (k = 0; k < used; k++)
      checksum = checksum * 31 + bits[k];
   printf("P4 %d %d: %d bytes, %d points inside, checksum %u\n", n, n, row_bytes * n, total, checksum);
   free(bits);
   return 0;
}
