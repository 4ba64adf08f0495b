
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
int x;
int k;
int zzzz_int1;

x = 0;
k = 0;
zzzz_cont2:
if(!(k < 4)) goto zzzz_false1;
switch(k)
{
break;
case 1:
case 2:
x = x + 1;
break;
case 3:
x = x + 10;
;}
zzzz_cont1:
zzzz_int1 = k;
k++;
goto zzzz_cont2;
zzzz_false1:
status = x;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


