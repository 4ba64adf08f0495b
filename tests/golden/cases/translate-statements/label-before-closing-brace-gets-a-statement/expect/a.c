
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
int zzzz_int1;

a = 1;
status = 0;
zzzz_cont1:
if(!(a < 3)) goto zzzz_false1;
{
int y;
y = a;
if(!(y > 1)) goto zzzz_false2;
status = status + y;
zzzz_false2:
zzzz_int1 = a;
a++;
{
int z;
z = 2;
if(!(z)) goto zzzz_false3;
zzzz_int1 = status;
status++;
zzzz_false3:
;
}
}
goto zzzz_cont1;
zzzz_false1:

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


