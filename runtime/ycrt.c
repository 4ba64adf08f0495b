/* The run-time entry of translated YARL C programs: builds the argument space,
   calls the YARL C main through its returns array, and turns main's results
   into the process status. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* The layout of every one-dimensional meta record. */
struct ycrt_meta1 {
   void *ptr;
   unsigned occurs;
   unsigned limit1;
};

void _yc__main(void *returns[], struct ycrt_meta1 *args);

static void not_enough_memory(void)
{
   fputs("** not enough memory to start main() **\n   execution terminated\n", stdout);
   exit(1);
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

   if (exception == 0)
      return status;
   fputs("\nmain() is returning with an unhandled exception:\n\n", stderr);
   if (exception == 32000)
      fputs(" memory failure (not enough memory)\n", stderr);
   else
      fprintf(stderr, " exception %d\n", exception);
   return 1;
}
