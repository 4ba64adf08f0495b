
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


struct yc_argument {
   struct zz1D_meta text;
};

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args);

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
int a;
int b;
int x;
int zzzz_int1;

a = 3;
b = 4;
zzzz_int1 = 0;
if(!(a)) goto zzzz_false1;
if(!(b)) goto zzzz_false1;
zzzz_int1 = 1;
zzzz_false1:
x = zzzz_int1;
status = x;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


