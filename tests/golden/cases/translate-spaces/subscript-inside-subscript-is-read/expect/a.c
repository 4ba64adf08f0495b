
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
static void zzzz_out_of_memory(int line);
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
void f(void *zzzz_return_ptr[], int i);

void f(void *zzzz_return_ptr[], int i)
{

int r;
int zzzz_exception = 0;
struct zz1D_meta v = {NULL};
struct zz1D_meta w = {NULL};
int zzzz_int1;

if((signed)(i) < 0 || (unsigned)(i) >= (w.occurs))
   zzzz_bounds_exceeded("w", 8, 2, (unsigned)(i), (unsigned)(w.occurs));
zzzz_int1 = (*(((int *)(w.ptr)) + ((i))));
if((signed)(zzzz_int1) < 0)
   zzzz_bounds_exceeded("v", 8, 2, (unsigned)(zzzz_int1), (unsigned)(v.limit1));
if((unsigned)(zzzz_int1) >= (v.limit1))
   if(!zzzz_resize1(&(v), (unsigned)(zzzz_int1), 50, 15)) {
      zzzz_out_of_memory(8);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(zzzz_int1) + 1 > (v.occurs))
   (v.occurs) = (unsigned)(zzzz_int1) + 1;
(*(((int *)(v.ptr)) + ((zzzz_int1)))) = 1;
if((signed)(i) < 0 || (unsigned)(i) >= (w.occurs))
   zzzz_bounds_exceeded("w", 9, 2, (unsigned)(i), (unsigned)(w.occurs));
zzzz_int1 = (*(((int *)(w.ptr)) + ((i)))) + 1;
if((signed)(zzzz_int1) < 0 || (unsigned)(zzzz_int1) >= (v.occurs))
   zzzz_bounds_exceeded("v", 9, 2, (unsigned)(zzzz_int1), (unsigned)(v.occurs));
r = (*(((int *)(v.ptr)) + ((zzzz_int1))));

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = r;
if(v.limit1 > 0) {
free(v.ptr);
;}
if(w.limit1 > 0) {
free(w.ptr);
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

