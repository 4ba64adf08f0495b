
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


struct pair {
   int a;
   double b;
};

struct named {
   int id;
   struct zz1D_meta name;
   int codes[2];
   struct zz1D_meta zz_codes;
};

void f(void *zzzz_return_ptr[], int i);

void f(void *zzzz_return_ptr[], int i)
{

int r;
int zzzz_exception = 0;
int fa[4];
struct zz1D_meta zz_fa = {NULL,0,4};
int fb[4];
struct zz1D_meta zz_fb = {NULL,0,4};
struct zz1D_meta va = {NULL};
struct zz1D_meta vb = {NULL};
struct pair p;
struct pair q;
struct named n;
struct named m;
char buf[32];
struct zz1D_meta zz_buf = {NULL,0,32};
unsigned zzzz_unsigned1;
int zzzz_int1;
unsigned added_length, zzzz_added_length_minus_one;

zz_fa.ptr = fa;
zz_fb.ptr = fb;
n.name.ptr = NULL;
n.name.occurs = 0;
n.name.limit1 = 0;
n.zz_codes.ptr = n.codes;
n.zz_codes.occurs = 0;
n.zz_codes.limit1 = 2;
m.name.ptr = NULL;
m.name.occurs = 0;
m.name.limit1 = 0;
m.zz_codes.ptr = m.codes;
m.zz_codes.occurs = 0;
m.zz_codes.limit1 = 2;
zz_buf.ptr = buf;
if(&(zz_fa) != &(zz_fb)) {
   zzzz_unsigned1 = sizeof(int) * zz_fa.limit1;
   memcpy(zz_fa.ptr, zz_fb.ptr, zzzz_unsigned1);
   zz_fa.occurs = zz_fb.occurs;
}
zzzz_int1 = 1;
if(&(va) != &(vb)) {
   if(va.limit1 > 0)
      free(va.ptr);
   va.ptr = NULL;
   va.occurs = 0;
   va.limit1 = 0;
   va = vb;
   if(vb.limit1 > 0) {
      zzzz_unsigned1 = sizeof(int) * vb.limit1;
      va.ptr = malloc(zzzz_unsigned1);
      if(va.ptr == NULL)
         zzzz_int1 = va.occurs = va.limit1 = 0;
      else
         memcpy(va.ptr, vb.ptr, zzzz_unsigned1);
   }
   else
      va.occurs = va.limit1 = 0;
}
if(!zzzz_int1) {
   zzzz_exception = 32000;
   goto zzzz_finish;
}
if(&(va) != &(vb)) {
   if(va.limit1 > 0)
      free(va.ptr);
   va.ptr = NULL;
   va.occurs = 0;
   va.limit1 = 0;
   va = vb;
   vb.ptr = NULL;
   vb.occurs = 0;
   vb.limit1 = 0;
}
if(&(p) != &(q)) {
   p = q;
}
zzzz_int1 = 1;
if(&(n) != &(m)) {
   if(n.name.limit1 > 0)
      free(n.name.ptr);
   n.name.ptr = NULL;
   n.name.occurs = 0;
   n.name.limit1 = 0;
   n = m;
   n.zz_codes.ptr = n.codes;
   if(m.name.limit1 > 0) {
      zzzz_unsigned1 = sizeof(char) * m.name.limit1;
      n.name.ptr = malloc(zzzz_unsigned1);
      if(n.name.ptr == NULL)
         zzzz_int1 = n.name.occurs = n.name.limit1 = 0;
      else
         memcpy(n.name.ptr, m.name.ptr, zzzz_unsigned1);
   }
   else
      n.name.occurs = n.name.limit1 = 0;
}
if(!zzzz_int1) {
   zzzz_exception = 32000;
   goto zzzz_finish;
}
if(&(n) != &(m)) {
   if(n.name.limit1 > 0)
      free(n.name.ptr);
   n.name.ptr = NULL;
   n.name.occurs = 0;
   n.name.limit1 = 0;
   n = m;
   n.zz_codes.ptr = n.codes;
   m.name.ptr = NULL;
   m.name.occurs = 0;
   m.name.limit1 = 0;
}
p.a = 0;
p.b = 0;
if(va.limit1)
   memset(va.ptr, 0,sizeof(int)* va.limit1);
zzzz_added_length_minus_one = sizeof(struct pair) - 1;
if((unsigned)(i) + zzzz_added_length_minus_one + 1 > (zz_buf.occurs))
   (zz_buf.occurs) = (unsigned)(i) + zzzz_added_length_minus_one + 1;
added_length = sizeof(struct pair);
*((struct pair *)(&((*(((char *)(zz_buf.ptr)) + ((i))))))) = p;
zzzz_added_length_minus_one = sizeof(struct pair) - 1;
added_length = sizeof(struct pair);
q = *((struct pair *)(&((*(((char *)(zz_buf.ptr)) + ((i)))))));
if(va.limit1 > 0)
   free(va.ptr);
va.ptr = NULL;
va.occurs = 0;
va.limit1 = 0;
zz_fa.occurs = 0;
if(n.name.limit1 > 0)
   free(n.name.ptr);
n.name.ptr = NULL;
n.name.occurs = 0;
n.name.limit1 = 0;
n.zz_codes.occurs = 0;
r = 0;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = r;
if(va.limit1 > 0) {
free(va.ptr);
;}
if(vb.limit1 > 0) {
free(vb.ptr);
;}
if(n.name.limit1 > 0) {
free(n.name.ptr);
;}
if(m.name.limit1 > 0) {
free(m.name.ptr);
;}
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


