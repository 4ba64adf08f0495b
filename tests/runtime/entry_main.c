/* Stands in for a translated main: its status is the argument count minus 1,
   with the text of the last argument selecting an exception. */
#include <string.h>

struct zz1D_meta {
   void *ptr;
   unsigned occurs;
   unsigned limit1;
};

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{
   struct zz1D_meta *arg = (struct zz1D_meta *)args->ptr + (args->occurs - 1);
   int status = (int)args->occurs - 1, zzzz_exception = 0;
   if (args->occurs != args->limit1 || arg->limit1 != arg->occurs + 1 ||
       strlen((char *)arg->ptr) != arg->occurs)
      status = 99;
   if (strcmp((char *)arg->ptr, "raise7") == 0)
      zzzz_exception = 7;
   if (strcmp((char *)arg->ptr, "memory") == 0)
      zzzz_exception = 32000;
   *((int *)(zzzz_return_ptr[1])) = status;
   *((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}
