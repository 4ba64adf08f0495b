
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
struct inner {
   struct zz1D_meta text;
};

struct outer {
   struct inner one;
   struct inner many[3];
   struct zz1D_meta zz_many;
   int n;
};

void f(void *zzzz_return_ptr[]);

void f(void *zzzz_return_ptr[])
{

int zzzz_exception = 0;
unsigned zzzz_walk1;
struct outer o;
struct inner list[4];
struct zz1D_meta zz_list = {NULL,0,4};
struct zz1D_meta grow = {NULL};

o.one.text.ptr = NULL;
o.one.text.occurs = 0;
o.one.text.limit1 = 0;
for(zzzz_walk1 = 0; zzzz_walk1 < 3; ++zzzz_walk1) {
   o.many[zzzz_walk1].text.ptr = NULL;
   o.many[zzzz_walk1].text.occurs = 0;
   o.many[zzzz_walk1].text.limit1 = 0;
}
o.zz_many.ptr = o.many;
o.zz_many.occurs = 0;
o.zz_many.limit1 = 3;
zz_list.ptr = list;
for(zzzz_walk1 = 0; zzzz_walk1 < zz_list.limit1; ++zzzz_walk1) {
   list[zzzz_walk1].text.ptr = NULL;
   list[zzzz_walk1].text.occurs = 0;
   list[zzzz_walk1].text.limit1 = 0;
}

zzzz_finish: ;

if(o.one.text.limit1 > 0) {
free(o.one.text.ptr);
;}
for(zzzz_walk1 = 0; zzzz_walk1 < 3; ++zzzz_walk1) {
   if(o.many[zzzz_walk1].text.limit1 > 0) {
   free(o.many[zzzz_walk1].text.ptr);
   ;}
}
for(zzzz_walk1 = 0; zzzz_walk1 < zz_list.occurs; ++zzzz_walk1) {
   if(list[zzzz_walk1].text.limit1 > 0) {
   free(list[zzzz_walk1].text.ptr);
   ;}
}
for(zzzz_walk1 = 0; zzzz_walk1 < grow.occurs; ++zzzz_walk1) {
   if(((struct inner *)(grow.ptr))[zzzz_walk1].text.limit1 > 0) {
   free(((struct inner *)(grow.ptr))[zzzz_walk1].text.ptr);
   ;}
}
if(grow.limit1 > 0) {
free(grow.ptr);
;}
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

