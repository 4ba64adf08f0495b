
#define FALSE 0
#define TRUE 1
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
struct ab1D_meta {
   void *ptr;
   unsigned occurs;
   unsigned limit1;
};


struct ab1D_meta text = {NULL};
int fixed[3];
struct ab1D_meta ab_fixed = {(void *)fixed,0,3};
struct ab3_tag {
   int a;
};

struct ab3_tag anon;
void f(void *abab_return_ptr[], int a);

void f(void *abab_return_ptr[], int a)
{

int r;
int abab_exception = 0;


abab_finish: ;

*((int *)(abab_return_ptr[1])) = r;
*((int *)(abab_return_ptr[0])) = abab_exception;
}


