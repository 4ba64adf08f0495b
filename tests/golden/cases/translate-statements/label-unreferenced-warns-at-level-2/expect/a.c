
#define FALSE 0
#define TRUE 1
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

void f(void *zzzz_return_ptr[]);

void f(void *zzzz_return_ptr[])
{

int r;
int zzzz_exception = 0;

r = 0;
unused:
r = 1;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = r;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


