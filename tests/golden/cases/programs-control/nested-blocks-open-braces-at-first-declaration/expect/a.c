
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
int total;
int i;
int zzzz_int1;

total = 0;
i = 0;
zzzz_cont2:
if(!(i < 3)) goto zzzz_false1;
{
int square;
square = i * i;
{
int twice;
twice = square * 2;
total += twice;
}
}
zzzz_cont1:
zzzz_int1 = i;
i++;
goto zzzz_cont2;
zzzz_false1:
total = total + 1;
status = total;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


