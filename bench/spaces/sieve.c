#include <stdlib.h>
int main(void)
{
   int n = 20000000, i, j, count = 0;
   char *composite = malloc((size_t)n + 1);
   if (!composite) return 255;
   for (i = 0; i < n; i++) composite[i] = 0;
   for (i = 2; i < n; i++)
      if (composite[i] == 0) {
         count++;
         for (j = i + i; j < n; j += i) composite[j] = 1;
      }
   free(composite);
   return count % 256;
}
