
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
int c;

a = 1;
b = 0;
c = 1;
status = 0;
if(!(a)) goto zzzz_false1;
if(!(b)) goto zzzz_false1;
goto zzzz_true2;
zzzz_false1:
if(c) goto zzzz_true2;
goto zzzz_false3;
zzzz_true2:
status = 5;
zzzz_false3:

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


