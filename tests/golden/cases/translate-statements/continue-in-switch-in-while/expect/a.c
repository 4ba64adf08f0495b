
#define FALSE 0
#define TRUE 1
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
struct zz1D_meta {
   void *ptr;
   unsigned occurs;
   unsigned limit1;
};


static void zzzz_out_of_memory(int line);
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
struct yc_argument {
   struct zz1D_meta text;
};

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args);

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
int i;
int n;
int zzzz_int1;

i = 0;
n = 0;
zzzz_cont1:
if(!(i < 5)) goto zzzz_false1;
zzzz_int1 = i;
i++;
switch(i)
{
break;
case 2:
goto zzzz_cont1;
break;
default:
n = n + i;
break;
;}
n = n + 100;
goto zzzz_cont1;
zzzz_false1:
status = n;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}




static void zzzz_out_of_memory(int line)
{
static char files[1][5] = {"a.yc"};

fprintf(stderr, "\nmemory request failed:\n");
fprintf(stderr, "\n failed when requested memory,\n");
fprintf(stderr, " at line %d in file %s\n\n",
       line % 1000000, files[line / 1000000]);

return;
}


#include <stdarg.h>


static void zzzz_bounds_exceeded(char *name, int line, int additional_args,
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

