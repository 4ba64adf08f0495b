
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

struct zz2D_meta {
   void *ptr;
   unsigned limit1;
   unsigned limit2;
};


static void zzzz_out_of_memory(int line);
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
struct point {
   int x;
   int y;
};

struct shape {
   struct point corner;
   struct zz1D_meta name;
   int sides[4];
   struct zz1D_meta zz_sides;
   struct zz1D_meta path;
};

enum colour {
   red = 1,
   green = 2,
   blue = 3
};

unsigned long counter;
struct point origin = {0, 0};
static int table[3][2];
static struct zz2D_meta zz_table = {(void *)table,3,2};
struct zz1D_meta text = {NULL};
struct zz2D_meta grid = {NULL};
int primes[4] = {2, 3, 5, 7};
struct zz1D_meta zz_primes = {(void *)primes,4,4};
char greeting[4] = "hi\101";
struct zz1D_meta zz_greeting = {(void *)greeting,3,4};
char high[2] = "\377";
struct zz1D_meta zz_high = {(void *)high,1,2};
extern int shared[2];
extern struct zz1D_meta zz_shared;
extern struct zz1D_meta log_text;
enum colour paint = green;
void (*on_visit) (void *[], struct point *, int);
struct shape shapes[2] = {[0].zz_sides = {(void *)shapes[0].sides,0,4}, [1].zz_sides 
 = {(void *)shapes[1].sides,0,4}};
struct zz1D_meta zz_shapes = {(void *)shapes,0,2};
void divide(void *zzzz_return_ptr[], int a, int b);
void max(void *zzzz_return_ptr[], int a, int b);
void nothing(void *zzzz_return_ptr[]);
void fill(void *zzzz_return_ptr[], struct zz1D_meta *buf, struct point *p,
  void (*v) (void *[], struct point *, int));
void _yc__printf(void *zzzz_return_ptr[], struct zz1D_meta *fmt, ...);

void divide(void *zzzz_return_ptr[], int a, int b)
{

int q;
int r;
int zzzz_exception = 0;
int local;
int squares[10];
struct zz1D_meta zz_squares = {NULL,0,10};
struct zz1D_meta work = {NULL};
struct shape s;

zz_squares.ptr = squares;
s.name.ptr = NULL;
s.name.occurs = 0;
s.name.limit1 = 0;
s.zz_sides.ptr = s.sides;
s.zz_sides.occurs = 0;
s.zz_sides.limit1 = 4;
s.path.ptr = NULL;
s.path.occurs = 0;
s.path.limit1 = 0;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = q;
*((int *)(zzzz_return_ptr[2])) = r;
if(work.limit1 > 0) {
free(work.ptr);
;}
if(s.name.limit1 > 0) {
free(s.name.ptr);
;}
if(s.path.limit1 > 0) {
free(s.path.ptr);
;}
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


void nothing(void *zzzz_return_ptr[])
{

int zzzz_exception = 0;


zzzz_finish: ;

*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}


void fill(void *zzzz_return_ptr[], struct zz1D_meta *buf, struct point *p,
  void (*v) (void *[], struct point *, int))
{

struct zz1D_meta *out = (struct zz1D_meta *)zzzz_return_ptr[1];
struct point *best = (struct point *)zzzz_return_ptr[2];
int n;
int zzzz_exception = 0;
struct point mid = {1, 2};

(*out).occurs = 0;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[3])) = n;
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}




static void zzzz_out_of_memory(int line)
{
static char files[1][5] = {"a.yc"};

fprintf(stderr, "\nmemory request failed:\n");
fprintf(stderr, "\n failed when requested memory,\n");
fprintf(stderr, " at line %d in file %s\n\n",
       line % 1000000, files[line / 1000000]);

return;
}


#include <stdarg.h>


static void zzzz_bounds_exceeded(char *name, int line, int additional_args,
  ...)
{
int wrk1;
unsigned sub, limit;
static char files[1][5] = {"a.yc"};
va_list ap;
va_start(ap, additional_args);

fprintf(stderr, "\nexecution aborted: space bounds exceeded:\n\n");
fprintf(stderr, " executed this reference: %s", name);
for(wrk1 = 0; wrk1 < additional_args / 2; ++wrk1)
    {sub = va_arg(ap, unsigned);
     fprintf(stderr, "[%u]", sub);}
fprintf(stderr, ",\n at line %d in file %s,\n",
        line % 1000000, files[line / 1000000]);
fprintf(stderr, " but current limit%s ",
        additional_args > 2 ? "s are" : " (or occurs) is");
for(wrk1 = additional_args / 2; wrk1 < additional_args; ++wrk1)
    {limit = va_arg(ap, unsigned);
     fprintf(stderr, "[%u]", limit);}
fprintf(stderr, "\n\n");

va_end(ap);
exit(1);
}

