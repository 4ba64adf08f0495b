
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

a = 1;
b = 0;
status = 1;
if(!(a)) goto zzzz_true2;
if(!(b)) goto zzzz_true2;
goto zzzz_false3;
zzzz_true2:
status = 2;
zzzz_false3:
if(a) goto zzzz_false5;
if(b) goto zzzz_false5;
status = 3;
zzzz_false5:

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


