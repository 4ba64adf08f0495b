
#define FALSE 0
#define TRUE 1
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
struct ab1D_meta {
   void *ptr;
   unsigned occurs;
   unsigned limit1;
};


static void abab_out_of_memory(int line);
static void abab_bounds_exceeded(char *name, int line, int additional_args, ...);
struct ab1D_meta text = {NULL};
int fixed[3];
struct ab1D_meta ab_fixed = {(void *)fixed,0,3};
struct ab3_tag {
   int a;
};

struct ab3_tag anon;
void f(void *abab_return_ptr[], int a);

void f(void *abab_return_ptr[], int a)
{

int r;
int abab_exception = 0;


abab_finish: ;

*((int *)(abab_return_ptr[1])) = r;
*((int *)(abab_return_ptr[0])) = abab_exception;
}




static void abab_out_of_memory(int line)
{
static char files[1][5] = {"a.yc"};

fprintf(stderr, "\nmemory request failed:\n");
fprintf(stderr, "\n failed when requested memory,\n");
fprintf(stderr, " at line %d in file %s\n\n",
       line % 1000000, files[line / 1000000]);

return;
}


#include <stdarg.h>


static void abab_bounds_exceeded(char *name, int line, int additional_args,
  ...)
{
int wrk1;
unsigned sub, limit;
static char files[1][5] = {"a.yc"};
va_list ap;
va_start(ap, additional_args);

fprintf(stderr, "\nexecution aborted: space bounds exceeded:\n\n");
fprintf(stderr, " executed this reference: %s", name);
for(wrk1 = 0; wrk1 < additional_args / 2; ++wrk1)
    {sub = va_arg(ap, unsigned);
     fprintf(stderr, "[%u]", sub);}
fprintf(stderr, ",\n at line %d in file %s,\n",
        line % 1000000, files[line / 1000000]);
fprintf(stderr, " but current limit%s ",
        additional_args > 2 ? "s are" : " (or occurs) is");
for(wrk1 = additional_args / 2; wrk1 < additional_args; ++wrk1)
    {limit = va_arg(ap, unsigned);
     fprintf(stderr, "[%u]", limit);}
fprintf(stderr, "\n\n");

va_end(ap);
exit(1);
}

