
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
enum day {
   mon = 1,
   tue = 2,
   wed = 3
};

struct pair {
   int a;
   int b;
};

enum day d;
struct pair p;

d = wed;
status = 0;
if(!(d == wed)) goto zzzz_false1;
status = 3;
zzzz_false1:

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


