
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
int n;
static char zzzz_string1[16] = "a short literal";
static struct zz1D_meta zz_zzzz_string1 = {zzzz_string1,15,16};
static char zzzz_string2[477] = {
 'L', 'o', 'r', 'e', 'm', ' ', 'i', 'p', 's', 'u', 'm', ' ', 'd', 'o', 'l',
 'o', 'r', ' ', 's', 'i', 't', ' ', 'a', 'm', 'e', 't', ',', ' ', 'c', 'o',
 'n', 's', 'e', 'c', 't', 'e', 't', 'u', 'r', ' ', 'a', 'd', 'i', 'p', 'i',
 's', 'c', 'i', 'n', 'g', ' ', 'e', 'l', 'i', 't', ',', ' ', 's', 'e', 'd',
 ' ', 'd', 'o', ' ', 'e', 'i', 'u', 's', 'm', 'o', 'd', ' ', 't', 'e', 'm',
 'p', 'o', 'r', ' ', 'i', 'n', 'c', 'i', 'd', 'i', 'd', 'u', 'n', 't', ' ',
 'u', 't', ' ', 'l', 'a', 'b', 'o', 'r', 'e', ' ', 'e', 't', ' ', 'd', 'o',
 'l', 'o', 'r', 'e', ' ', 'm', 'a', 'g', 'n', 'a', ' ', 'a', 'l', 'i', 'q',
 'u', 'a', '.', ' ', 'U', 't', ' ', 'e', 'n', 'i', 'm', ' ', 'a', 'd', ' ',
 'm', 'i', 'n', 'i', 'm', ' ', 'v', 'e', 'n', 'i', 'a', 'm', ',', ' ', 'q',
 'u', 'i', 's', ' ', 'n', 'o', 's', 't', 'r', 'u', 'd', ' ', 'e', 'x', 'e',
 'r', 'c', 'i', 't', 'a', 't', 'i', 'o', 'n', ' ', 'u', 'l', 'l', 'a', 'm',
 'c', 'o', ' ', 'l', 'a', 'b', 'o', 'r', 'i', 's', ' ', 'n', 'i', 's', 'i',
 ' ', 'u', 't', ' ', 'a', 'l', 'i', 'q', 'u', 'i', 'p', ' ', 'e', 'x', ' ',
 'e', 'a', ' ', 'c', 'o', 'm', 'm', 'o', 'd', 'o', ' ', 'c', 'o', 'n', 's',
 'e', 'q', 'u', 'a', 't', '.', ' ', 'D', 'u', 'i', 's', ' ', 'a', 'u', 't',
 'e', ' ', 'i', 'r', 'u', 'r', 'e', ' ', 'd', 'o', 'l', 'o', 'r', ' ', 'i',
 'n', ' ', 'r', 'e', 'p', 'r', 'e', 'h', 'e', 'n', 'd', 'e', 'r', 'i', 't',
 ' ', 'i', 'n', ' ', 'v', 'o', 'l', 'u', 'p', 't', 'a', 't', 'e', ' ', 'v',
 'e', 'l', 'i', 't', ' ', 'e', 's', 's', 'e', ' ', 'c', 'i', 'l', 'l', 'u',
 'm', ' ', 'd', 'o', 'l', 'o', 'r', 'e', ' ', 'e', 'u', ' ', 'f', 'u', 'g',
 'i', 'a', 't', ' ', 'n', 'u', 'l', 'l', 'a', ' ', 'p', 'a', 'r', 'i', 'a',
 't', 'u', 'r', '.', ' ', 'E', 'x', 'c', 'e', 'p', 't', 'e', 'u', 'r', ' ',
 's', 'i', 'n', 't', ' ', 'o', 'c', 'c', 'a', 'e', 'c', 'a', 't', ' ', 'c',
 'u', 'p', 'i', 'd', 'a', 't', 'a', 't', ' ', 'n', 'o', 'n', ' ', 'p', 'r',
 'o', 'i', 'd', 'e', 'n', 't', ',', ' ', 's', 'u', 'n', 't', ' ', 'i', 'n',
 ' ', 'c', 'u', 'l', 'p', 'a', ' ', 'q', 'u', 'i', ' ', 'o', 'f', 'f', 'i',
 'c', 'i', 'a', ' ', 'd', 'e', 's', 'e', 'r', 'u', 'n', 't', ' ', 'm', 'o',
 'l', 'l', 'i', 't', ' ', 'a', 'n', 'i', 'm', ' ', 'i', 'd', ' ', 'e', 's',
 't', ' ', 'l', 'a', 'b', 'o', 'r', 'u', 'm', '.', ' ', 'I', 't', '\'', 's',
 ' ', '\"', 'q', 'u', 'o', 't', 'e', 'd', '\"', '\t', 'a', 'n', 'd', '\\',
 ' ', 'e', 's', 'c', 'a', 'p', 'e', 'd', ' ', '\101', '\102', '.', 0};
static struct zz1D_meta zz_zzzz_string2 = {zzzz_string2,476,477};

n = 3;
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

