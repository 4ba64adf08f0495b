
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
struct yc_argument {
   struct zz1D_meta text;
};

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args);
void sum(void *zzzz_return_ptr[], struct zz1D_meta *v);

void sum(void *zzzz_return_ptr[], struct zz1D_meta *v)
{

int s;
int zzzz_exception = 0;
int i;
int zzzz_int1;

#line 5 "sum.h"
s = 0;
#line 6 "sum.h"
i = 0;
#line 6 "sum.h"
zzzz_cont2:
#line 6 "sum.h"
if(!(i < (*v).occurs)) goto zzzz_false1;
#line 7 "sum.h"
if((signed)(i) < 0 || (unsigned)(i) >= ((*v).occurs))
#line 7 "sum.h"
   zzzz_bounds_exceeded("v", 7, 2, (unsigned)(i), (unsigned)((*v).occurs));
#line 7 "sum.h"
s += (*(((int *)((*v).ptr)) + ((i))));
#line 6 "sum.h"
zzzz_cont1:
#line 6 "sum.h"
zzzz_int1 = i;
#line 6 "sum.h"
i++;
#line 6 "sum.h"
goto zzzz_cont2;
#line 6 "sum.h"
zzzz_false1:
#line 57 "a.c"

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = s;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
struct zz1D_meta w = {NULL};
int f[4];
struct zz1D_meta zz_f = {NULL,0,4};
int i;
int zzzz_int1;
void *zzzz_actuals[2];

zz_f.ptr = f;
zzzz_actuals[0] = &(zzzz_exception);
#line 14 "a.yc"
i = 0;
#line 14 "a.yc"
zzzz_cont4:
#line 14 "a.yc"
if(!(i < 6)) goto zzzz_false2;
#line 15 "a.yc"
if((signed)(i) < 0)
#line 15 "a.yc"
   zzzz_bounds_exceeded("w", 1000015, 2, (unsigned)(i), (unsigned)(w.limit1));
#line 15 "a.yc"
if((unsigned)(i) >= (w.limit1))
#line 15 "a.yc"
   if(!zzzz_resize1(&(w), (unsigned)(i), 50, 15)) {
#line 15 "a.yc"
      zzzz_out_of_memory(1000015);
#line 15 "a.yc"
      zzzz_exception = 32000;
#line 15 "a.yc"
      goto zzzz_finish;
#line 15 "a.yc"
   }
#line 15 "a.yc"
if((unsigned)(i) + 1 > (w.occurs))
#line 15 "a.yc"
   (w.occurs) = (unsigned)(i) + 1;
#line 15 "a.yc"
(*(((int *)(w.ptr)) + ((i)))) = i * i;
#line 16 "a.yc"
if(!(i > 2)) goto zzzz_false3;
#line 17 "a.yc"
if((signed)(i - 3) < 0 || (unsigned)(i - 3) >= (zz_f.limit1))
#line 17 "a.yc"
   zzzz_bounds_exceeded("f", 1000017, 2, (unsigned)(i - 3), (unsigned)(zz_f.limit1));
#line 17 "a.yc"
if((unsigned)(i - 3) + 1 > (zz_f.occurs))
#line 17 "a.yc"
   (zz_f.occurs) = (unsigned)(i - 3) + 1;
#line 17 "a.yc"
if((signed)(i) < 0 || (unsigned)(i) >= (w.occurs))
#line 17 "a.yc"
   zzzz_bounds_exceeded("w", 1000017, 2, (unsigned)(i), (unsigned)(w.occurs));
#line 17 "a.yc"
(*(((int *)(zz_f.ptr)) + ((i - 3)))) = (*(((int *)(w.ptr)) + ((i))));
#line 16 "a.yc"
zzzz_false3:
#line 14 "a.yc"
zzzz_cont3:
#line 14 "a.yc"
zzzz_int1 = i;
#line 14 "a.yc"
i++;
#line 14 "a.yc"
goto zzzz_cont4;
#line 14 "a.yc"
zzzz_false2:
#line 19 "a.yc"
zzzz_actuals[0] = &(zzzz_exception);
#line 19 "a.yc"
zzzz_actuals[1] = &(status);
#line 19 "a.yc"
sum(zzzz_actuals, &(w));
#line 19 "a.yc"
if(zzzz_exception) {
#line 19 "a.yc"
   goto zzzz_finish;
#line 19 "a.yc"
}
#line 20 "a.yc"
if((signed)(status % 7) < 0 || (unsigned)(status % 7) >= (zz_f.limit1))
#line 20 "a.yc"
   zzzz_bounds_exceeded("f", 1000020, 2, (unsigned)(status % 7), (unsigned)(zz_f.limit1));
#line 20 "a.yc"
if((unsigned)(status % 7) + 1 > (zz_f.occurs))
#line 20 "a.yc"
   (zz_f.occurs) = (unsigned)(status % 7) + 1;
#line 20 "a.yc"
(*(((int *)(zz_f.ptr)) + ((status % 7)))) = 1;
#line 158 "a.c"

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
if(w.limit1 > 0) {
free(w.ptr);
;}
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}




static int zzzz_resize1(struct zz1D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1)
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
static char files[2][6] = {"sum.h", "a.yc"};

fprintf(stderr, "\nmemory request failed:\n");
fprintf(stderr, "\n failed when requested memory,\n");
fprintf(stderr, " at line %d in file %s\n\n",
       line % 1000000, files[line / 1000000]);

return;
}


#include <stdarg.h>


static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...)
{
int wrk1;
unsigned sub, limit;
static char files[2][6] = {"sum.h", "a.yc"};
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

