/* The functions that deal with the process: exit, getenv, system, rand. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ycrt_lib.h"

void _yc__exit(void *returns[], int status)
{
   (void)returns;
   ycrt_files_close_all();
   exit(status);
}

void _yc__getenv(void *returns[], struct ycrt_meta1 *name)
{
   struct ycrt_meta1 *value = returns[1];
   int *status = returns[2];
   char *cname = ycrt_cstring(name);
   const char *found;
   if (cname == NULL) {
      ycrt_raise_memory(returns);
      return;
   }
   found = getenv(cname);
   free(cname);
   if (found == NULL) {
      ycrt_clear(value);
      *status = YCRT_NOT_FOUND;
      return;
   }
   if (ycrt_set_text(value, found, strlen(found)) != 0) {
      ycrt_raise_memory(returns);
      return;
   }
   *status = 0;
}

void _yc__system(void *returns[], struct ycrt_meta1 *command)
{
   char *ccommand = ycrt_cstring(command);
   if (ccommand == NULL) {
      ycrt_raise_memory(returns);
      return;
   }
   /* what is written so far must come before the command's own output */
   fflush(NULL);
   *(int *)returns[1] = system(ccommand);
   free(ccommand);
}

void _yc__rand(void *returns[])
{
#if RAND_MAX == 2147483647
   *(int *)returns[1] = rand();
#else
   /* the header promises RAND_MAX 2147483647 on every host */
   unsigned long r = 0;
   int bits = 0;
   while (bits < 31) {
      r = r * ((unsigned long)RAND_MAX + 1) + (unsigned long)rand();
      for (unsigned long m = RAND_MAX; m > 0; m >>= 1)
         ++bits;
   }
   *(int *)returns[1] = (int)(r & 0x7fffffffUL);
#endif
}
