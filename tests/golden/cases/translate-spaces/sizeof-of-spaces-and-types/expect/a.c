
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

struct zz2D_meta {
   void *ptr;
   unsigned limit1;
   unsigned limit2;
};


static int zzzz_resize1(struct zz2D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1, unsigned sub2, int resize_num2, int resize_pct2);
static int zzzz_resize2(struct zz1D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1);
static void zzzz_out_of_memory(int line);
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
struct pair {
   int a;
   int b;
};

struct zz4_tag {
   int a;
};

void f(void *zzzz_return_ptr[], int i);

void f(void *zzzz_return_ptr[], int i)
{

unsigned r;
int zzzz_exception = 0;
struct zz2D_meta m = {NULL};
struct zz1D_meta v = {NULL};
struct pair p;
void (*h) (void *[], int);
struct local {
   char c;
};

struct local l;
unsigned zzzz_unsigned1;

if((signed)(1) < 0 || (unsigned)(1) >= (m.limit1))
   zzzz_bounds_exceeded("m", 14, 2, (unsigned)(1), (unsigned)(m.limit1));
zzzz_unsigned1 = sizeof(double)* m.limit2;
r = sizeof(double)* m.limit1* m.limit2 + zzzz_unsigned1 + sizeof(struct pair) 
 + sizeof(void(*)()) + sizeof(struct pair) + sizeof(unsigned long);
if((signed)(i) < 0 || (unsigned)(i) >= (v.occurs))
   zzzz_bounds_exceeded("v", 15, 2, (unsigned)(i), (unsigned)(v.occurs));
zzzz_unsigned1 = sizeof(int);
r = zzzz_unsigned1;
r = sizeof(struct zz4_tag) + sizeof(struct local);
l.c = 'a';

zzzz_finish: ;

*((unsigned *)(zzzz_return_ptr[1])) = r;
if(m.limit1 > 0) {
free(m.ptr);
;}
if(v.limit1 > 0) {
free(v.ptr);
;}
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}




static int zzzz_resize1(struct zz2D_meta *meta, unsigned sub1, int resize_num1,
  int resize_pct1, unsigned sub2, int resize_num2, int resize_pct2)
{

unsigned zzzz_fcl1;
unsigned zzzz_fcl2;
unsigned zzzz_imw1;
unsigned zzzz_imw2;
unsigned new_size, lim_a, lim_b, lim_c;
void *new_ptr;
struct zz2D_meta old;
char use_realloc = 'y';
unsigned new_limit1;
unsigned new_limit2;

if(sub1 >= meta->limit1) {
   lim_a = sub1 + 1;
   lim_b = resize_num1 + meta->limit1;
   lim_c = resize_pct1 * (meta->limit1 / 100) + meta->limit1;
   if(lim_a > lim_b)
      {if(lim_a > lim_c)
          new_limit1 = lim_a;
       else
          new_limit1 = lim_c;}
   else if(lim_b > lim_c)
       new_limit1 = lim_b;
   else
       new_limit1 = lim_c;
   }
else
   new_limit1 = meta->limit1;
if(sub2 >= meta->limit2) {
   use_realloc = 'n';
   lim_a = sub2 + 1;
   lim_b = resize_num2 + meta->limit2;
   lim_c = resize_pct2 * (meta->limit2 / 100) + meta->limit2;
   if(lim_a > lim_b)
      {if(lim_a > lim_c)
          new_limit2 = lim_a;
       else
          new_limit2 = lim_c;}
   else if(lim_b > lim_c)
       new_limit2 = lim_b;
   else
       new_limit2 = lim_c;
   }
else
   new_limit2 = meta->limit2;

new_size = sizeof(double);
if((new_size * new_limit1) / new_size != new_limit1)
   return FALSE;
new_size *= new_limit1;
if((new_size * new_limit2) / new_size != new_limit2)
   return FALSE;
new_size *= new_limit2;

if(meta->limit1 == 0) {
   new_ptr = malloc(new_size);
   if(new_ptr == NULL)
      return FALSE;
   }
else if(use_realloc == 'y')
   {
   new_ptr = realloc(meta->ptr, new_size);
   if(new_ptr == NULL)
      return FALSE;
   }
else
   {
   new_ptr = malloc(new_size);
   if(new_ptr == NULL)
      return FALSE;
   zzzz_fcl1 = (new_limit2);
   zzzz_fcl2 = (meta->limit2);
   for(zzzz_imw1 = 0; zzzz_imw1 < meta->limit1; ++zzzz_imw1) {
   for(zzzz_imw2 = 0; zzzz_imw2 < meta->limit2; ++zzzz_imw2) {
      *(((double *)(new_ptr)) + (zzzz_imw1 * zzzz_fcl1 + zzzz_imw2)) = 
      *(((double *)(meta->ptr)) + (zzzz_imw1 * zzzz_fcl2 + zzzz_imw2));
   }}
   free(meta->ptr);
   }

meta->ptr = new_ptr;
old = *meta;
meta->limit1 = new_limit1;
meta->limit2 = new_limit2;


return TRUE;
}


static int zzzz_resize2(struct zz1D_meta *meta, unsigned sub1, int resize_num1,
  int resize_pct1)
{

unsigned new_size, lim_a, lim_b, lim_c;
void *new_ptr;
struct zz1D_meta old;
unsigned new_limit1;

if(sub1 >= meta->limit1) {
   lim_a = sub1 + 1;
   lim_b = resize_num1 + meta->limit1;
   lim_c = resize_pct1 * (meta->limit1 / 100) + meta->limit1;
   if(lim_a > lim_b)
      {if(lim_a > lim_c)
          new_limit1 = lim_a;
       else
          new_limit1 = lim_c;}
   else if(lim_b > lim_c)
       new_limit1 = lim_b;
   else
       new_limit1 = lim_c;
   }
else
   new_limit1 = meta->limit1;

new_size = sizeof(int);
if((new_size * new_limit1) / new_size != new_limit1)
   return FALSE;
new_size *= new_limit1;

if(meta->limit1 == 0) {
   new_ptr = malloc(new_size);
   if(new_ptr == NULL)
      return FALSE;
   }
else
   {
   new_ptr = realloc(meta->ptr, new_size);
   if(new_ptr == NULL)
      return FALSE;
   }

meta->ptr = new_ptr;
old = *meta;
meta->limit1 = new_limit1;


return TRUE;
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

