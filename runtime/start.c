/* The program's start: the C main that builds the argument space, calls the
   YARL C main through its returns array and turns its results into the
   process status. Kept alone in its file so that a C program can link the
   library without taking this main. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ycrt_lib.h"

static void not_enough_memory(void)
{
   fputs("** not enough memory to start main() **\n   execution terminated\n", stdout);
   exit(1);
}

static void free_arguments(struct ycrt_meta1 *elements, int count)
{
   int i;
   for (i = 0; i < count; ++i)
      if (elements[i].limit1 > 0)
         free(elements[i].ptr);
   free(elements);
}

int main(int argc, char **argv)
{
   struct ycrt_meta1 args;
   struct ycrt_meta1 *elements;
   int exception = 0, status = 0, i;
   void *returns[2];

   elements = malloc(sizeof(struct ycrt_meta1) * (size_t)(argc > 0 ? argc : 1));
   if (elements == NULL)
      not_enough_memory();
   for (i = 0; i < argc; ++i) {
      size_t length = strlen(argv[i]);
      char *copy = malloc(length + 1);
      if (copy == NULL)
         not_enough_memory();
      memcpy(copy, argv[i], length + 1);
      elements[i].ptr = copy;
      elements[i].occurs = (unsigned)length;
      elements[i].limit1 = (unsigned)(length + 1);
   }
   args.ptr = elements;
   args.occurs = (unsigned)argc;
   args.limit1 = (unsigned)argc;

   returns[0] = &exception;
   returns[1] = &status;
   _yc__main(returns, &args);
   /* each argument is a varspace that main may have grown or freed */
   free_arguments(elements, argc);
   ycrt_files_close_all();

   if (exception == 0)
      return status;
   fputs("\nmain() is returning with an unhandled exception:\n\n", stderr);
   if (exception == 32000)
      fputs(" memory failure (not enough memory)\n", stderr);
   else
      fprintf(stderr, " exception %d\n", exception);
   return 1;
}
