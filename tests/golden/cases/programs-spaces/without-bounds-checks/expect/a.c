
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
struct yc_argument {
   struct zz1D_meta text;
};

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args);

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
struct zz1D_meta v = {NULL};
int f[4];
struct zz1D_meta zz_f = {NULL,0,4};
int i;
int zzzz_int1;

zz_f.ptr = f;
i = 0;
zzzz_cont2:
if(!(i < 100)) goto zzzz_false1;
if((unsigned)(i) >= (v.limit1))
   if(!zzzz_resize1(&(v), (unsigned)(i), 50, 15)) {
      zzzz_out_of_memory(10);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(i) + 1 > (v.occurs))
   (v.occurs) = (unsigned)(i) + 1;
(*(((int *)(v.ptr)) + ((i)))) = i;
zzzz_cont1:
zzzz_int1 = i;
i++;
goto zzzz_cont2;
zzzz_false1:
if((unsigned)(1) + 1 > (zz_f.occurs))
   (zz_f.occurs) = (unsigned)(1) + 1;
(*(((int *)(zz_f.ptr)) + ((1)))) = (*(((int *)(v.ptr)) + ((99))));
status = (*(((int *)(zz_f.ptr)) + ((1)))) - v.occurs + (*(((int *)(v.ptr)) 
 + ((2))));

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
if(v.limit1 > 0) {
free(v.ptr);
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

