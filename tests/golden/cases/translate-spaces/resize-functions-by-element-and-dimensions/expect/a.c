
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


static int zzzz_resize1(struct zz1D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1);
static int zzzz_resize2(struct zz2D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1, unsigned sub2, int resize_num2, int resize_pct2);
static int zzzz_resize3(struct zz3D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1, unsigned sub2, int resize_num2, int resize_pct2, unsigned sub3, int resize_num3, int resize_pct3);
static int zzzz_resize4(struct zz1D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1);
static void zzzz_out_of_memory(int line);
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
struct point {
   int x;
   int y;
};

void f(void *zzzz_return_ptr[], int i);

void f(void *zzzz_return_ptr[], int i)
{

int r;
int zzzz_exception = 0;
struct zz1D_meta text = {NULL};
struct zz2D_meta grid = {NULL};
struct zz3D_meta cube = {NULL};
struct zz1D_meta path = {NULL};

if((signed)(i) < 0)
   zzzz_bounds_exceeded("text", 11, 2, (unsigned)(i), (unsigned)(text.limit1));
if((unsigned)(i) >= (text.limit1))
   if(!zzzz_resize1(&(text), (unsigned)(i), 50, 15)) {
      zzzz_out_of_memory(11);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(i) + 1 > (text.occurs))
   (text.occurs) = (unsigned)(i) + 1;
(*(((char *)(text.ptr)) + ((i)))) = 'a';
if((signed)(i) < 0 || (signed)(i) < 0)
   zzzz_bounds_exceeded("grid", 12, 4, (unsigned)(i), (unsigned)(i), (unsigned)(grid.limit1),
  (unsigned)(grid.limit2));
if((unsigned)(i) >= (grid.limit1) || (unsigned)(i) >= (grid.limit2))
   if(!zzzz_resize2(&(grid), (unsigned)(i), 7, 15, (unsigned)(i), 7, 15)) 
 {
      zzzz_out_of_memory(12);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
(*(((int *)(grid.ptr)) + ((i) * (grid.limit2) + (i)))) = 1;
if((signed)(i) < 0 || (signed)(i) < 0 || (signed)(i) < 0)
   zzzz_bounds_exceeded("cube", 13, 6, (unsigned)(i), (unsigned)(i), (unsigned)(i),
  (unsigned)(cube.limit1), (unsigned)(cube.limit2), (unsigned)(cube.limit3));
if((unsigned)(i) >= (cube.limit1) || (unsigned)(i) >= (cube.limit2) || (unsigned)(i) 
 >= (cube.limit3))
   if(!zzzz_resize3(&(cube), (unsigned)(i), 3, 15, (unsigned)(i), 3, 15, 
 (unsigned)(i), 3, 15)) {
      zzzz_out_of_memory(13);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
(*(((double *)(cube.ptr)) + ((i) * (cube.limit2) * (cube.limit3) + (i) * 
 (cube.limit3) + (i)))) = 1.5;
if((signed)(i) < 0)
   zzzz_bounds_exceeded("path", 14, 2, (unsigned)(i), (unsigned)(path.limit1));
if((unsigned)(i) >= (path.limit1))
   if(!zzzz_resize4(&(path), (unsigned)(i), 50, 15)) {
      zzzz_out_of_memory(14);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(i) + 1 > (path.occurs))
   (path.occurs) = (unsigned)(i) + 1;
(*(((struct point *)(path.ptr)) + ((i)))).x = 2;
r = 0;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = r;
if(text.limit1 > 0) {
free(text.ptr);
;}
if(grid.limit1 > 0) {
free(grid.ptr);
;}
if(cube.limit1 > 0) {
free(cube.ptr);
;}
if(path.limit1 > 0) {
free(path.ptr);
;}
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}




static int zzzz_resize1(struct zz1D_meta *meta, unsigned sub1, int resize_num1,
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

new_size = new_limit1;

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


static int zzzz_resize2(struct zz2D_meta *meta, unsigned sub1, int resize_num1,
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

new_size = sizeof(int);
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
      *(((int *)(new_ptr)) + (zzzz_imw1 * zzzz_fcl1 + zzzz_imw2)) = 
      *(((int *)(meta->ptr)) + (zzzz_imw1 * zzzz_fcl2 + zzzz_imw2));
   }}
   free(meta->ptr);
   }

meta->ptr = new_ptr;
old = *meta;
meta->limit1 = new_limit1;
meta->limit2 = new_limit2;


return TRUE;
}


static int zzzz_resize3(struct zz3D_meta *meta, unsigned sub1, int resize_num1,
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


static int zzzz_resize4(struct zz1D_meta *meta, unsigned sub1, int resize_num1,
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

new_size = sizeof(struct point);
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

