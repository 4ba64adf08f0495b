
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


enum color {
   red = 1,
   green = 2,
   blue = 3
};

struct yc_argument {
   struct zz1D_meta text;
};

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args);

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
enum color k;

k = blue;
status = 0;
switch(k)
{
break;
case red:
status = 1;
break;
break;
case green:
status = 2;
break;
break;
default:
status = 3;
;}
switch(k)
{
break;
case 0:
status = status + 10;
break;
break;
case red:
case green:
status = status + 20;
break;
break;
case blue:
status = status + 40;
;}

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


