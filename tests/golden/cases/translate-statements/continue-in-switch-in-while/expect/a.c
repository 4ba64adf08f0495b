
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
int i;
int n;
int zzzz_int1;

i = 0;
n = 0;
zzzz_cont1:
if(!(i < 5)) goto zzzz_false1;
zzzz_int1 = i;
i++;
switch(i)
{
break;
case 2:
goto zzzz_cont1;
break;
default:
n = n + i;
break;
;}
n = n + 100;
goto zzzz_cont1;
zzzz_false1:
status = n;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


