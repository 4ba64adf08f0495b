
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


struct yc_argument {
   struct ab1D_meta text;
};

void _yc__main(void *abab_return_ptr[], struct ab1D_meta *args);

void _yc__main(void *abab_return_ptr[], struct ab1D_meta *args)
{

int status;
int abab_exception = 0;
int i;
int abab_int1;
static char abab_string1[3] = "ab";
static struct ab1D_meta ab_abab_string1 = {abab_string1,2,3};

status = 0;
i = 0;
abab_cont2:
if(!(i < 6)) goto abab_false1;
if(i % 2 == 0) goto abab_true2;
if(i == 5) goto abab_true2;
goto abab_false3;
abab_true2:
status = status + i;
goto abab_skip1;
abab_false3:
status = status - 1;
abab_skip1:
abab_cont1:
abab_int1 = i;
i++;
goto abab_cont2;
abab_false1:
abab_cont4:
abab_int1 = status;
status++;
abab_cont3:
if(!(status < 3)) goto abab_false4;
goto abab_cont4;
abab_false4:

abab_finish: ;

*((int *)(abab_return_ptr[1])) = status;
*((int *)(abab_return_ptr[0])) = abab_exception;
}


