
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
static void zzzz_out_of_memory(int line);
#ifdef __GNUC__
__attribute__((noreturn))
#endif
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
struct yc_argument {
   struct zz1D_meta text;
};

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args);

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
struct zz2D_meta g = {NULL};
int f[4];
struct zz1D_meta zz_f = {NULL,0,4};
int i;
int j;
int zzzz_int1;
unsigned zzzz_unsigned1;

zz_f.ptr = f;
status = 0;
i = 0;
zzzz_cont4:
if(!(i < 3)) goto zzzz_false1;
j = 0;
zzzz_cont3:
if(!(j < 3)) goto zzzz_false2;
if((signed)(i) < 0 || (signed)(j) < 0)
   zzzz_bounds_exceeded("g", 15, 4, (unsigned)(i), (unsigned)(j), (unsigned)(g.limit1),
  (unsigned)(g.limit2));
if((unsigned)(i) >= (g.limit1) || (unsigned)(j) >= (g.limit2))
   if(!zzzz_resize1(&(g), (unsigned)(i), 7, 15, (unsigned)(j), 7, 15)) {
      zzzz_out_of_memory(15);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
(*(((double *)(g.ptr)) + ((size_t)(i) * (g.limit2) + (size_t)(j)))) = ((double)((i 
 * 3 + j)));
zzzz_cont2:
zzzz_int1 = j;
j++;
goto zzzz_cont3;
zzzz_false2:
zzzz_cont1:
zzzz_int1 = i;
i++;
goto zzzz_cont4;
zzzz_false1:
if((signed)(2) < 0 || (unsigned)(2) >= (zz_f.limit1))
   zzzz_bounds_exceeded("f", 16, 2, (unsigned)(2), (unsigned)(zz_f.limit1));
if((unsigned)(2) + 1 > (zz_f.occurs))
   (zz_f.occurs) = (unsigned)(2) + 1;
if((signed)(2) < 0 || (unsigned)(2) >= (g.limit1) || (signed)(1) < 0 || (unsigned)(1) 
 >= (g.limit2))
   zzzz_bounds_exceeded("g", 16, 4, (unsigned)(2), (unsigned)(1), (unsigned)(g.limit1),
  (unsigned)(g.limit2));
(*(((int *)(zz_f.ptr)) + ((size_t)(2)))) = ((int)(((*(((double *)(g.ptr)) 
 + ((size_t)(2) * (g.limit2) + (size_t)(1)))))));
if((signed)(2) < 0 || (unsigned)(2) >= (zz_f.occurs))
   zzzz_bounds_exceeded("f", 17, 2, (unsigned)(2), (unsigned)(zz_f.occurs));
if(!((*(((int *)(zz_f.ptr)) + ((size_t)(2)))) != 7)) goto zzzz_false3;
status = 1;
zzzz_false3:
zzzz_unsigned1 = g.limit1;
if((signed)(zzzz_unsigned1) < 0 || (unsigned)(zzzz_unsigned1) >= (zz_f.occurs))
   zzzz_bounds_exceeded("f", 18, 2, (unsigned)(zzzz_unsigned1), (unsigned)(zz_f.occurs));
status = status + (*(((int *)(zz_f.ptr)) + ((size_t)(zzzz_unsigned1))));

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
if(g.limit1 > 0) {
free(g.ptr);
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

