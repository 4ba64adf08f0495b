
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

struct zz3D_meta {
   void *ptr;
   unsigned limit1;
   unsigned limit2;
   unsigned limit3;
};


static int zzzz_resize1(struct zz3D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1, unsigned sub2, int resize_num2, int resize_pct2, unsigned sub3, int resize_num3, int resize_pct3);
static void zzzz_out_of_memory(int line);
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
void f(void *zzzz_return_ptr[], int a, int b, int c);

void f(void *zzzz_return_ptr[], int a, int b, int c)
{

double r;
int zzzz_exception = 0;
struct zz3D_meta S = {NULL};

if((signed)(a) < 0 || (unsigned)(a) >= (S.limit1) || (signed)(b) < 0 || (unsigned)(b) 
 >= (S.limit2) || (signed)(c) < 0 || (unsigned)(c) >= (S.limit3))
   zzzz_bounds_exceeded("S", 7, 6, (unsigned)(a), (unsigned)(b), (unsigned)(c),
  (unsigned)(S.limit1), (unsigned)(S.limit2), (unsigned)(S.limit3));
r = (*(((double *)(S.ptr)) + ((a) * (S.limit2) * (S.limit3) + (b) * (S.limit3) 
 + (c))));

zzzz_finish: ;

*((double *)(zzzz_return_ptr[1])) = r;
if(S.limit1 > 0) {
free(S.ptr);
;}
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}




static int zzzz_resize1(struct zz3D_meta *meta, unsigned sub1, int resize_num1,
  int resize_pct1, unsigned sub2, int resize_num2, int resize_pct2, unsigned 
 sub3, int resize_num3, int resize_pct3)
{

unsigned zzzz_fcl1;
unsigned zzzz_fcl2;
unsigned zzzz_fcl3;
unsigned zzzz_fcl4;
unsigned zzzz_imw1;
unsigned zzzz_imw2;
unsigned zzzz_imw3;
unsigned new_size, lim_a, lim_b, lim_c;
void *new_ptr;
struct zz3D_meta old;
char use_realloc = 'y';
unsigned new_limit1;
unsigned new_limit2;
unsigned new_limit3;

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
if(sub3 >= meta->limit3) {
   use_realloc = 'n';
   lim_a = sub3 + 1;
   lim_b = resize_num3 + meta->limit3;
   lim_c = resize_pct3 * (meta->limit3 / 100) + meta->limit3;
   if(lim_a > lim_b)
      {if(lim_a > lim_c)
          new_limit3 = lim_a;
       else
          new_limit3 = lim_c;}
   else if(lim_b > lim_c)
       new_limit3 = lim_b;
   else
       new_limit3 = lim_c;
   }
else
   new_limit3 = meta->limit3;

new_size = sizeof(double);
if((new_size * new_limit1) / new_size != new_limit1)
   return FALSE;
new_size *= new_limit1;
if((new_size * new_limit2) / new_size != new_limit2)
   return FALSE;
new_size *= new_limit2;
if((new_size * new_limit3) / new_size != new_limit3)
   return FALSE;
new_size *= new_limit3;

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
   zzzz_fcl1 = (new_limit2 * new_limit3);
   zzzz_fcl2 = (new_limit3);
   zzzz_fcl3 = (meta->limit2 * meta->limit3);
   zzzz_fcl4 = (meta->limit3);
   for(zzzz_imw1 = 0; zzzz_imw1 < meta->limit1; ++zzzz_imw1) {
   for(zzzz_imw2 = 0; zzzz_imw2 < meta->limit2; ++zzzz_imw2) {
   for(zzzz_imw3 = 0; zzzz_imw3 < meta->limit3; ++zzzz_imw3) {
      *(((double *)(new_ptr)) + (zzzz_imw1 * zzzz_fcl1 + zzzz_imw2 * zzzz_fcl2 
 + zzzz_imw3)) = 
      *(((double *)(meta->ptr)) + (zzzz_imw1 * zzzz_fcl3 + zzzz_imw2 * zzzz_fcl4 
 + zzzz_imw3));
   }}}
   free(meta->ptr);
   }

meta->ptr = new_ptr;
old = *meta;
meta->limit1 = new_limit1;
meta->limit2 = new_limit2;
meta->limit3 = new_limit3;


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

