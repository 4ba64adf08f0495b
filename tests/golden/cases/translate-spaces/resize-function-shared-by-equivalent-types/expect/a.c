
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


static int zzzz_resize1(struct zz1D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1);
static int zzzz_resize2(struct zz1D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1);
static int zzzz_resize3(struct zz1D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1);
static void zzzz_out_of_memory(int line);
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
struct a {
   int n;
};

struct b {
   int n;
};

void f(void *zzzz_return_ptr[], int i);

void f(void *zzzz_return_ptr[], int i)
{

int r;
int zzzz_exception = 0;
struct zz1D_meta v = {NULL};
struct zz1D_meta w = {NULL};
struct zz1D_meta p = {NULL};
struct zz1D_meta q = {NULL};

if((signed)(i) < 0)
   zzzz_bounds_exceeded("v", 12, 2, (unsigned)(i), (unsigned)(v.limit1));
if((unsigned)(i) >= (v.limit1))
   if(!zzzz_resize1(&(v), (unsigned)(i), 50, 15)) {
      zzzz_out_of_memory(12);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(i) + 1 > (v.occurs))
   (v.occurs) = (unsigned)(i) + 1;
(*(((int *)(v.ptr)) + ((i)))) = 1;
if((signed)(i) < 0)
   zzzz_bounds_exceeded("w", 13, 2, (unsigned)(i), (unsigned)(w.limit1));
if((unsigned)(i) >= (w.limit1))
   if(!zzzz_resize1(&(w), (unsigned)(i), 50, 15)) {
      zzzz_out_of_memory(13);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(i) + 1 > (w.occurs))
   (w.occurs) = (unsigned)(i) + 1;
(*(((unsigned *)(w.ptr)) + ((i)))) = 2;
if((signed)(i) < 0)
   zzzz_bounds_exceeded("p", 14, 2, (unsigned)(i), (unsigned)(p.limit1));
if((unsigned)(i) >= (p.limit1))
   if(!zzzz_resize2(&(p), (unsigned)(i), 50, 15)) {
      zzzz_out_of_memory(14);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(i) + 1 > (p.occurs))
   (p.occurs) = (unsigned)(i) + 1;
(*(((struct a *)(p.ptr)) + ((i)))).n = 3;
if((signed)(i) < 0)
   zzzz_bounds_exceeded("q", 15, 2, (unsigned)(i), (unsigned)(q.limit1));
if((unsigned)(i) >= (q.limit1))
   if(!zzzz_resize3(&(q), (unsigned)(i), 50, 15)) {
      zzzz_out_of_memory(15);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(i) + 1 > (q.occurs))
   (q.occurs) = (unsigned)(i) + 1;
(*(((struct b *)(q.ptr)) + ((i)))).n = 4;
r = 0;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = r;
if(v.limit1 > 0) {
free(v.ptr);
;}
if(w.limit1 > 0) {
free(w.ptr);
;}
if(p.limit1 > 0) {
free(p.ptr);
;}
if(q.limit1 > 0) {
free(q.ptr);
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

new_size = sizeof(struct a);
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


static int zzzz_resize3(struct zz1D_meta *meta, unsigned sub1, int resize_num1,
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

new_size = sizeof(struct b);
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

