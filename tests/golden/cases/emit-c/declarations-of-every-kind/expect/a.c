
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
struct shape shapes[2];
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


