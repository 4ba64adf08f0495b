
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
struct yc_argument {
   struct ab1D_meta text;
};

void _yc__main(void *abab_return_ptr[], struct ab1D_meta *args);

void _yc__main(void *abab_return_ptr[], struct ab1D_meta *args)
{

int status;
int abab_exception = 0;
int i;
int abab_int1;
static char abab_string1[3] = "ab";
static struct ab1D_meta ab_abab_string1 = {abab_string1,2,3};

status = 0;
i = 0;
abab_cont2:
if(!(i < 6)) goto abab_false1;
if(i % 2 == 0) goto abab_true2;
if(i == 5) goto abab_true2;
goto abab_false3;
abab_true2:
status = status + i;
goto abab_skip1;
abab_false3:
status = status - 1;
abab_skip1:
abab_cont1:
abab_int1 = i;
i++;
goto abab_cont2;
abab_false1:
abab_cont4:
abab_int1 = status;
status++;
abab_cont3:
if(!(status < 3)) goto abab_false4;
goto abab_cont4;
abab_false4:

abab_finish: ;

*((int *)(abab_return_ptr[1])) = status;
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

