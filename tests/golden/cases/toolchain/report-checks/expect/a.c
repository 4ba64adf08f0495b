
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
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
struct yc_argument {
   struct zz1D_meta text;
};

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args);
void fill(void *zzzz_return_ptr[], struct zz2D_meta *g, int n);
void total(void *zzzz_return_ptr[], struct zz2D_meta *g);
void plain(void *zzzz_return_ptr[], int a, int b);

void fill(void *zzzz_return_ptr[], struct zz2D_meta *g, int n)
{

int zzzz_exception = 0;
int r;
int c;
int zzzz_int1;

r = 0;
zzzz_cont4:
if(!(r < n)) goto zzzz_false1;
c = 0;
zzzz_cont3:
if(!(c < n)) goto zzzz_false2;
if((signed)(r) < 0 || (signed)(c) < 0)
   zzzz_bounds_exceeded("g", 15, 4, (unsigned)(r), (unsigned)(c), (unsigned)((*g).limit1),
  (unsigned)((*g).limit2));
if((unsigned)(r) >= ((*g).limit1) || (unsigned)(c) >= ((*g).limit2))
   if(!zzzz_resize1(&((*g)), (unsigned)(r), 7, 15, (unsigned)(c), 7, 15)) 
 {
      zzzz_out_of_memory(15);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
(*(((int *)((*g).ptr)) + ((r) * ((*g).limit2) + (c)))) = r * c;
zzzz_cont2:
zzzz_int1 = c;
c++;
goto zzzz_cont3;
zzzz_false2:
zzzz_cont1:
zzzz_int1 = r;
r++;
goto zzzz_cont4;
zzzz_false1:
if(!(n > 100)) goto zzzz_false3;
zzzz_exception = 7;
goto zzzz_finish;
zzzz_false3:

zzzz_finish: ;

*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


void total(void *zzzz_return_ptr[], struct zz2D_meta *g)
{

int t;
int zzzz_exception = 0;
int r;
int c;
int zzzz_int1;

t = 0;
r = 0;
zzzz_cont8:
if(!(r < (*g).limit1)) goto zzzz_false4;
c = 0;
zzzz_cont7:
if(!(c < (*g).limit2)) goto zzzz_false5;
if((signed)(r) < 0 || (unsigned)(r) >= ((*g).limit1) || (signed)(c) < 0 || 
 (unsigned)(c) >= ((*g).limit2))
   zzzz_bounds_exceeded("g", 26, 4, (unsigned)(r), (unsigned)(c), (unsigned)((*g).limit1),
  (unsigned)((*g).limit2));
t += (*(((int *)((*g).ptr)) + ((r) * ((*g).limit2) + (c))));
zzzz_cont6:
zzzz_int1 = c;
c++;
goto zzzz_cont7;
zzzz_false5:
zzzz_cont5:
zzzz_int1 = r;
r++;
goto zzzz_cont8;
zzzz_false4:

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = t;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


void plain(void *zzzz_return_ptr[], int a, int b)
{

int c;
int zzzz_exception = 0;

c = a + b;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = c;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
struct zz2D_meta g = {NULL};
void *zzzz_actuals[2];

zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[0] = &(zzzz_exception);
fill(zzzz_actuals, &(g), 4);
if(zzzz_exception) {
   if(zzzz_exception == 7) {
      zzzz_exception = 0;
      goto zzzz_exception7;
   }
   goto zzzz_finish;
}
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(status);
total(zzzz_actuals, &(g));
if(zzzz_exception) {
   if(zzzz_exception == 7) {
      zzzz_exception = 0;
      goto zzzz_exception7;
   }
   goto zzzz_finish;
}
goto zzzz_finish;
zzzz_exception7:
status = 2;

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

