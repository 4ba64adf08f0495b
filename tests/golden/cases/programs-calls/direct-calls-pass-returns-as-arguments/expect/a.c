
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


static int zzzz_resize1(struct zz1D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1);
static void zzzz_out_of_memory(int line);
static void zzzz_bounds_exceeded(char *name, int line, int additional_args, ...);
struct yc_argument {
   struct zz1D_meta text;
};

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args);
void _yc__exit(void *zzzz_return_ptr[], int status);
void _yc__getenv(void *zzzz_return_ptr[], struct zz1D_meta *name);
void _yc__system(void *zzzz_return_ptr[], struct zz1D_meta *command);
void _yc__rand(void *zzzz_return_ptr[]);
void _yc__printf(void *zzzz_return_ptr[], struct zz1D_meta *format, ...);
void _yc__fprintf(void *zzzz_return_ptr[], int file, struct zz1D_meta *format,
  ...);
void _yc__sprintf(void *zzzz_return_ptr[], struct zz1D_meta *target, struct 
 zz1D_meta *format, ...);
void _yc__scanf(void *zzzz_return_ptr[], struct zz1D_meta *format, ...);
void _yc__fscanf(void *zzzz_return_ptr[], int file, struct zz1D_meta *format,
  ...);
void _yc__sscanf(void *zzzz_return_ptr[], struct zz1D_meta *source, struct 
 zz1D_meta *format, ...);
void _yc__fopen(void *zzzz_return_ptr[], struct zz1D_meta *name, struct zz1D_meta 
 *mode);
void _yc__fclose(void *zzzz_return_ptr[], int file);
void _yc__fgetc(void *zzzz_return_ptr[], int file);
void _yc__fputc(void *zzzz_return_ptr[], int c, int file);
void _yc__fgets(void *zzzz_return_ptr[], struct zz1D_meta *line, int file);
void _yc__fputs(void *zzzz_return_ptr[], struct zz1D_meta *text, int file);
void _yc__fread(void *zzzz_return_ptr[], struct zz1D_meta *buffer, unsigned 
 count, int file);
void _yc__fwrite(void *zzzz_return_ptr[], struct zz1D_meta *buffer, unsigned 
 count, int file);
void _yc__fseek(void *zzzz_return_ptr[], int file, long offset, int whence);
void _yc__ftell(void *zzzz_return_ptr[], int file);
void _yc__fgetall(void *zzzz_return_ptr[], int file);
void _yc__fputall(void *zzzz_return_ptr[], int file, struct zz1D_meta *text);
void _yc__remove(void *zzzz_return_ptr[], struct zz1D_meta *name);
void _yc__rename(void *zzzz_return_ptr[], struct zz1D_meta *from, struct 
 zz1D_meta *to);
void _yc__tmpfile(void *zzzz_return_ptr[]);
void _yc__tmpnam(void *zzzz_return_ptr[]);
void _yc__strcpy(void *zzzz_return_ptr[], struct zz1D_meta *target, struct 
 zz1D_meta *source);
void _yc__strcat(void *zzzz_return_ptr[], struct zz1D_meta *target, struct 
 zz1D_meta *source);
void _yc__strcmp(void *zzzz_return_ptr[], struct zz1D_meta *a, struct zz1D_meta 
 *b);
void _yc__strncmp(void *zzzz_return_ptr[], struct zz1D_meta *a, struct zz1D_meta 
 *b, unsigned n);
void _yc__strpart(void *zzzz_return_ptr[], struct zz1D_meta *text, unsigned 
 start, unsigned length);
void _yc__stresc(void *zzzz_return_ptr[], struct zz1D_meta *text);
void _yc__strerror(void *zzzz_return_ptr[], int status);
void _yc__strtod(void *zzzz_return_ptr[], struct zz1D_meta *text);
void _yc__strtol(void *zzzz_return_ptr[], struct zz1D_meta *text, int base);
void _yc__strtoul(void *zzzz_return_ptr[], struct zz1D_meta *text, int base);
void _yc__strreg(void *zzzz_return_ptr[], struct zz1D_meta *expression);
void _yc__strfnd(void *zzzz_return_ptr[], struct zz1D_meta *machine, struct 
 zz1D_meta *text, unsigned start);
void _yc__strfndr(void *zzzz_return_ptr[], struct zz1D_meta *machine, struct 
 zz1D_meta *text, unsigned start);
void _yc__strrpl(void *zzzz_return_ptr[], struct zz1D_meta *text, struct 
 zz1D_meta *machine, struct zz1D_meta *replacement);
void _yc__strknew(void *zzzz_return_ptr[]);
void _yc__strkey(void *zzzz_return_ptr[], struct zz1D_meta *table, struct 
 zz1D_meta *key, int value);
void _yc__strkfnd(void *zzzz_return_ptr[], struct zz1D_meta *table, struct 
 zz1D_meta *key);
void _yc__strkmap(void *zzzz_return_ptr[], struct zz1D_meta *keys);
void _yc__isalnum(void *zzzz_return_ptr[], int c);
void _yc__isalpha(void *zzzz_return_ptr[], int c);
void _yc__isdigit(void *zzzz_return_ptr[], int c);
void _yc__islower(void *zzzz_return_ptr[], int c);
void _yc__isspace(void *zzzz_return_ptr[], int c);
void _yc__isupper(void *zzzz_return_ptr[], int c);
void _yc__tolower(void *zzzz_return_ptr[], int c);
void _yc__toupper(void *zzzz_return_ptr[], int c);
void _yc__abs(void *zzzz_return_ptr[], int x);
void _yc__labs(void *zzzz_return_ptr[], long x);
void _yc__div(void *zzzz_return_ptr[], int a, int b);
void _yc__ldiv(void *zzzz_return_ptr[], long a, long b);
void _yc__merr(void *zzzz_return_ptr[], double x);
void _yc__merrf(void *zzzz_return_ptr[], float x);
void _yc__merrl(void *zzzz_return_ptr[], long double x);
void _yc__acos(void *zzzz_return_ptr[], double x);
void _yc__acosf(void *zzzz_return_ptr[], float x);
void _yc__acosl(void *zzzz_return_ptr[], long double x);
void _yc__asin(void *zzzz_return_ptr[], double x);
void _yc__asinf(void *zzzz_return_ptr[], float x);
void _yc__asinl(void *zzzz_return_ptr[], long double x);
void _yc__atan(void *zzzz_return_ptr[], double x);
void _yc__atanf(void *zzzz_return_ptr[], float x);
void _yc__atanl(void *zzzz_return_ptr[], long double x);
void _yc__atan2(void *zzzz_return_ptr[], double y, double x);
void _yc__atan2f(void *zzzz_return_ptr[], float y, float x);
void _yc__atan2l(void *zzzz_return_ptr[], long double y, long double x);
void _yc__ceil(void *zzzz_return_ptr[], double x);
void _yc__ceilf(void *zzzz_return_ptr[], float x);
void _yc__ceill(void *zzzz_return_ptr[], long double x);
void _yc__cos(void *zzzz_return_ptr[], double x);
void _yc__cosf(void *zzzz_return_ptr[], float x);
void _yc__cosl(void *zzzz_return_ptr[], long double x);
void _yc__exp(void *zzzz_return_ptr[], double x);
void _yc__expf(void *zzzz_return_ptr[], float x);
void _yc__expl(void *zzzz_return_ptr[], long double x);
void _yc__fabs(void *zzzz_return_ptr[], double x);
void _yc__fabsf(void *zzzz_return_ptr[], float x);
void _yc__fabsl(void *zzzz_return_ptr[], long double x);
void _yc__floor(void *zzzz_return_ptr[], double x);
void _yc__floorf(void *zzzz_return_ptr[], float x);
void _yc__floorl(void *zzzz_return_ptr[], long double x);
void _yc__fmod(void *zzzz_return_ptr[], double x, double y);
void _yc__fmodf(void *zzzz_return_ptr[], float x, float y);
void _yc__fmodl(void *zzzz_return_ptr[], long double x, long double y);
void _yc__log(void *zzzz_return_ptr[], double x);
void _yc__logf(void *zzzz_return_ptr[], float x);
void _yc__logl(void *zzzz_return_ptr[], long double x);
void _yc__log10(void *zzzz_return_ptr[], double x);
void _yc__log10f(void *zzzz_return_ptr[], float x);
void _yc__log10l(void *zzzz_return_ptr[], long double x);
void _yc__pow(void *zzzz_return_ptr[], double x, double y);
void _yc__powf(void *zzzz_return_ptr[], float x, float y);
void _yc__powl(void *zzzz_return_ptr[], long double x, long double y);
void _yc__sin(void *zzzz_return_ptr[], double x);
void _yc__sinf(void *zzzz_return_ptr[], float x);
void _yc__sinl(void *zzzz_return_ptr[], long double x);
void _yc__sqrt(void *zzzz_return_ptr[], double x);
void _yc__sqrtf(void *zzzz_return_ptr[], float x);
void _yc__sqrtl(void *zzzz_return_ptr[], long double x);
void _yc__tan(void *zzzz_return_ptr[], double x);
void _yc__tanf(void *zzzz_return_ptr[], float x);
void _yc__tanl(void *zzzz_return_ptr[], long double x);
struct tm {
   int tm_sec;
   int tm_min;
   int tm_hour;
   int tm_mday;
   int tm_mon;
   int tm_year;
   int tm_wday;
   int tm_yday;
   int tm_isdst;
};

void _yc__time(void *zzzz_return_ptr[]);
void _yc__clock(void *zzzz_return_ptr[]);
void _yc__difftime(void *zzzz_return_ptr[], long t1, long t0);
void _yc__gmtime(void *zzzz_return_ptr[], long t);
void _yc__localtime(void *zzzz_return_ptr[], long t);
void _yc__mktime(void *zzzz_return_ptr[], struct tm *when);
void _yc__ctime(void *zzzz_return_ptr[], long t);
void _yc__strftime(void *zzzz_return_ptr[], struct zz1D_meta *format, struct 
 tm *when);
void _yc__qsort(void *zzzz_return_ptr[], void *, unsigned, unsigned count,
  void (*compare) (void *[], void *, void *));
void _yc__bsearch(void *zzzz_return_ptr[], void *, unsigned, void *, void 
 (*compare) (void *[], void *, void *));
struct point {
   int x;
   int y;
};

void fib(void *zzzz_return_ptr[], int n);
void split(void *zzzz_return_ptr[], int a, int b);
void fill(void *zzzz_return_ptr[], struct zz1D_meta *buf, struct point *p,
  void (*v) (void *[], struct point *, int));
void keep_all(void *zzzz_return_ptr[], struct point *p, int depth);
void checked(void *zzzz_return_ptr[], int n);
void twice(void *zzzz_return_ptr[], int n);
static void nothing(void *zzzz_return_ptr[]);
int calls;

static int zzzz_direct_keep_all(void *zzzz_return_ptr1, struct point *p, 
 int depth)
{

int keep;
int zzzz_exception = 0;

keep = (*p).x + depth;

zzzz_finish: ;

*((int *)(zzzz_return_ptr1)) = keep;
return zzzz_exception;
}


void keep_all(void *zzzz_return_ptr[], struct point *p, int depth)
{
*((int *)(zzzz_return_ptr[0])) = zzzz_direct_keep_all(zzzz_return_ptr[1],
  p, depth);
}


static int zzzz_direct_twice(void *zzzz_return_ptr1, int n)
{

int r;
int zzzz_exception = 0;
int zzzz_int1;
void *zzzz_actuals[2];

zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
fib(zzzz_actuals, n);
if(zzzz_exception) {
   goto zzzz_finish;
}
r = 2 * zzzz_int1;

zzzz_finish: ;

*((int *)(zzzz_return_ptr1)) = r;
return zzzz_exception;
}


void twice(void *zzzz_return_ptr[], int n)
{
*((int *)(zzzz_return_ptr[0])) = zzzz_direct_twice(zzzz_return_ptr[1], n);
}


static int zzzz_direct_fib(void *zzzz_return_ptr1, int n)
{

int r;
int zzzz_exception = 0;
int zzzz_int1;
int zzzz_int2;

if(!(n < 2)) goto zzzz_false1;
r = n;
goto zzzz_skip1;
zzzz_false1:
zzzz_exception = zzzz_direct_fib(&(zzzz_int1), n - 1);
if(zzzz_exception) {
   goto zzzz_finish;
}
zzzz_exception = zzzz_direct_fib(&(zzzz_int2), n - 2);
if(zzzz_exception) {
   goto zzzz_finish;
}
r = (zzzz_int1) + (zzzz_int2);
zzzz_skip1:

zzzz_finish: ;

*((int *)(zzzz_return_ptr1)) = r;
return zzzz_exception;
}


void fib(void *zzzz_return_ptr[], int n)
{
*((int *)(zzzz_return_ptr[0])) = zzzz_direct_fib(zzzz_return_ptr[1], n);
}


static int zzzz_direct_split(void *zzzz_return_ptr1, void *zzzz_return_ptr2,
  int a, int b)
{

int q;
int m;
int zzzz_exception = 0;
int part;
int rest;

if(!(a >= b)) goto zzzz_false2;
zzzz_exception = zzzz_direct_split(&(part), &(rest), a - b, b);
if(zzzz_exception) {
   goto zzzz_finish;
}
q = part + 1;
m = rest;
goto zzzz_skip2;
zzzz_false2:
q = 0;
m = a;
zzzz_skip2:

zzzz_finish: ;

*((int *)(zzzz_return_ptr1)) = q;
*((int *)(zzzz_return_ptr2)) = m;
return zzzz_exception;
}


void split(void *zzzz_return_ptr[], int a, int b)
{
*((int *)(zzzz_return_ptr[0])) = zzzz_direct_split(zzzz_return_ptr[1], zzzz_return_ptr[2],
  a, b);
}


static int zzzz_direct_fill(void *zzzz_return_ptr1, void *zzzz_return_ptr2,
  void *zzzz_return_ptr3, struct zz1D_meta *buf, struct point *p, void (*v) 
 (void *[], struct point *, int))
{

struct zz1D_meta *out = (struct zz1D_meta *)zzzz_return_ptr1;
struct point *best = (struct point *)zzzz_return_ptr2;
int n;
int zzzz_exception = 0;
int i;
int zzzz_int1;
unsigned zzzz_unsigned1;
void *zzzz_actuals[2];

(*out).occurs = 0;
zzzz_actuals[0] = &(zzzz_exception);
n = 0;
i = 0;
zzzz_cont2:
if(!(i < (*buf).occurs)) goto zzzz_false3;
zzzz_unsigned1 = (*out).occurs;
if((signed)(zzzz_unsigned1) < 0)
   zzzz_bounds_exceeded("out", 49, 2, (unsigned)(zzzz_unsigned1), (unsigned)((*out).limit1));
if((unsigned)(zzzz_unsigned1) >= ((*out).limit1))
   if(!zzzz_resize1(&((*out)), (unsigned)(zzzz_unsigned1), 50, 15)) {
      zzzz_out_of_memory(49);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(zzzz_unsigned1) + 1 > ((*out).occurs))
   ((*out).occurs) = (unsigned)(zzzz_unsigned1) + 1;
if((signed)(i) < 0 || (unsigned)(i) >= ((*buf).occurs))
   zzzz_bounds_exceeded("buf", 49, 2, (unsigned)(i), (unsigned)((*buf).occurs));
(*(((char *)((*out).ptr)) + ((zzzz_unsigned1)))) = (*(((char *)((*buf).ptr)) 
 + ((i))));
zzzz_int1 = n;
n++;
zzzz_cont1:
zzzz_int1 = i;
i++;
goto zzzz_cont2;
zzzz_false3:
(*best).x = (*p).y;
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &((*best).y);
(*(v))(zzzz_actuals, &((*p)), n);
if(zzzz_exception) {
   goto zzzz_finish;
}

zzzz_finish: ;

*((int *)(zzzz_return_ptr3)) = n;
return zzzz_exception;
}


void fill(void *zzzz_return_ptr[], struct zz1D_meta *buf, struct point *p,
  void (*v) (void *[], struct point *, int))
{
*((int *)(zzzz_return_ptr[0])) = zzzz_direct_fill(zzzz_return_ptr[1], zzzz_return_ptr[2],
  zzzz_return_ptr[3], buf, p, v);
}


static int zzzz_direct_checked(void *zzzz_return_ptr1, int n)
{

int r;
int zzzz_exception = 0;

r = n;
if(!(n > 3)) goto zzzz_false4;
zzzz_exception = 9;
goto zzzz_finish;
zzzz_false4:

zzzz_finish: ;

*((int *)(zzzz_return_ptr1)) = r;
return zzzz_exception;
}


void checked(void *zzzz_return_ptr[], int n)
{
*((int *)(zzzz_return_ptr[0])) = zzzz_direct_checked(zzzz_return_ptr[1], 
 n);
}


static int zzzz_direct_nothing(void)
{

int zzzz_exception = 0;
int zzzz_int1;

zzzz_int1 = calls;
calls++;

zzzz_finish: ;

return zzzz_exception;
}


static void nothing(void *zzzz_return_ptr[])
{
*((int *)(zzzz_return_ptr[0])) = zzzz_direct_nothing();
}


void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
struct zz1D_meta text = {NULL};
struct zz1D_meta copy = {NULL};
struct point p = {3, 4};
struct point b;
void (*v) (void *[], struct point *, int);
int q;
int m;
int n;
int pair[2];
struct zz1D_meta zz_pair = {NULL,0,2};
int i;
static char zzzz_string1[7] = "direct";
static struct zz1D_meta zz_zzzz_string1 = {zzzz_string1,6,7};
unsigned zzzz_unsigned1;
static char zzzz_string2[13] = "%s %d %d %d\n";
static struct zz1D_meta zz_zzzz_string2 = {zzzz_string2,12,13};
int zzzz_int1;
static char zzzz_string3[4] = "%d\n";
static struct zz1D_meta zz_zzzz_string3 = {zzzz_string3,3,4};
int zzzz_int2;
static char zzzz_string4[13] = "%d %d %d %d\n";
static struct zz1D_meta zz_zzzz_string4 = {zzzz_string4,12,13};
static char zzzz_string5[7] = "%d %d\n";
static struct zz1D_meta zz_zzzz_string5 = {zzzz_string5,6,7};
int zzzz_int3;
static char zzzz_string6[12] = "checked %d\n";
static struct zz1D_meta zz_zzzz_string6 = {zzzz_string6,11,12};
static char zzzz_string7[24] = "9 after %d calls, n %d\n";
static struct zz1D_meta zz_zzzz_string7 = {zzzz_string7,23,24};
void *zzzz_actuals[3];

zz_pair.ptr = pair;
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = zzzz_actuals[2] = NULL;
_yc__strcpy(zzzz_actuals, &(text), &(zz_zzzz_string1));
for(zzzz_unsigned1 = 0; zzzz_unsigned1 < text.limit1 && *(((unsigned char 
 *)text.ptr) + zzzz_unsigned1) != 0; ++zzzz_unsigned1)
   ;
text.occurs = zzzz_unsigned1;
if(zzzz_exception) {
   zzzz_out_of_memory(76);
   goto zzzz_finish;
}
zzzz_exception = zzzz_direct_fill(&(copy), &(b), &(n), &(text), &(p), keep_all);
if(zzzz_exception) {
   if(zzzz_exception == 9) {
      zzzz_exception = 0;
      goto zzzz_exception9;
   }
   goto zzzz_finish;
}
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string2), &(copy), b.x, b.y, n);
if(zzzz_exception) {
   zzzz_out_of_memory(78);
   goto zzzz_finish;
}
v = keep_all;
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
(*(v))(zzzz_actuals, &(p), 1);
if(zzzz_exception) {
   if(zzzz_exception == 9) {
      zzzz_exception = 0;
      goto zzzz_exception9;
   }
   goto zzzz_finish;
}
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int2);
_yc__printf(zzzz_actuals, &(zz_zzzz_string3), zzzz_int1);
if(zzzz_exception) {
   zzzz_out_of_memory(80);
   goto zzzz_finish;
}
zzzz_exception = zzzz_direct_split(&(q), &(m), 47, 5);
if(zzzz_exception) {
   if(zzzz_exception == 9) {
      zzzz_exception = 0;
      goto zzzz_exception9;
   }
   goto zzzz_finish;
}
if((signed)(0) < 0 || (unsigned)(0) >= (zz_pair.limit1))
   zzzz_bounds_exceeded("pair", 82, 2, (unsigned)(0), (unsigned)(zz_pair.limit1));
if((unsigned)(0) + 1 > (zz_pair.occurs))
   (zz_pair.occurs) = (unsigned)(0) + 1;
if((signed)(1) < 0 || (unsigned)(1) >= (zz_pair.limit1))
   zzzz_bounds_exceeded("pair", 82, 2, (unsigned)(1), (unsigned)(zz_pair.limit1));
if((unsigned)(1) + 1 > (zz_pair.occurs))
   (zz_pair.occurs) = (unsigned)(1) + 1;
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &((*(((int *)(zz_pair.ptr)) + ((0)))));
zzzz_actuals[2] = &((*(((int *)(zz_pair.ptr)) + ((1)))));
split(zzzz_actuals, 23, 4);
if(zzzz_exception) {
   if(zzzz_exception == 9) {
      zzzz_exception = 0;
      goto zzzz_exception9;
   }
   goto zzzz_finish;
}
if((signed)(0) < 0 || (unsigned)(0) >= (zz_pair.occurs))
   zzzz_bounds_exceeded("pair", 83, 2, (unsigned)(0), (unsigned)(zz_pair.occurs));
if((signed)(1) < 0 || (unsigned)(1) >= (zz_pair.occurs))
   zzzz_bounds_exceeded("pair", 83, 2, (unsigned)(1), (unsigned)(zz_pair.occurs));
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string4), q, m, (*(((int *)(zz_pair.ptr)) 
 + ((0)))), (*(((int *)(zz_pair.ptr)) + ((1)))));
if(zzzz_exception) {
   zzzz_out_of_memory(83);
   goto zzzz_finish;
}
zzzz_exception = zzzz_direct_fib(&(zzzz_int1), 20);
if(zzzz_exception) {
   if(zzzz_exception == 9) {
      zzzz_exception = 0;
      goto zzzz_exception9;
   }
   goto zzzz_finish;
}
zzzz_exception = zzzz_direct_twice(&(zzzz_int2), 10);
if(zzzz_exception) {
   if(zzzz_exception == 9) {
      zzzz_exception = 0;
      goto zzzz_exception9;
   }
   goto zzzz_finish;
}
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int3);
_yc__printf(zzzz_actuals, &(zz_zzzz_string5), zzzz_int1, zzzz_int2);
if(zzzz_exception) {
   zzzz_out_of_memory(84);
   goto zzzz_finish;
}
i = 2;
zzzz_cont4:
if(!(i < 6)) goto zzzz_false5;
zzzz_exception = zzzz_direct_checked(&(n), i);
if(zzzz_exception) {
   if(zzzz_exception == 9) {
      zzzz_exception = 0;
      goto zzzz_exception9;
   }
   goto zzzz_finish;
}
zzzz_exception = zzzz_direct_nothing();
if(zzzz_exception) {
   if(zzzz_exception == 9) {
      zzzz_exception = 0;
      goto zzzz_exception9;
   }
   goto zzzz_finish;
}
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string6), n);
if(zzzz_exception) {
   zzzz_out_of_memory(88);
   goto zzzz_finish;
}
zzzz_cont3:
zzzz_int1 = i;
i++;
goto zzzz_cont4;
zzzz_false5:
status = 1;
zzzz_exception9:
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string7), calls, n);
if(zzzz_exception) {
   zzzz_out_of_memory(92);
   goto zzzz_finish;
}
status = 0;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
if(text.limit1 > 0) {
free(text.ptr);
;}
if(copy.limit1 > 0) {
free(copy.ptr);
;}
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}




static int zzzz_resize1(struct zz1D_meta *meta, unsigned sub1, int resize_num1,
  int resize_pct1)
{

unsigned new_size, lim_a, lim_b, lim_c;
void *new_ptr;
struct zz1D_meta old;
unsigned new_limit1;

if(sub1 >= meta->limit1) {
   lim_a = sub1 + 1;
   lim_b = resize_num1 + meta->limit1;
   lim_c = resize_pct1 * (meta->limit1 / 100) + meta->limit1;
   if(lim_a > lim_b)
      {if(lim_a > lim_c)
          new_limit1 = lim_a;
       else
          new_limit1 = lim_c;}
   else if(lim_b > lim_c)
       new_limit1 = lim_b;
   else
       new_limit1 = lim_c;
   }
else
   new_limit1 = meta->limit1;

new_size = new_limit1;

if(meta->limit1 == 0) {
   new_ptr = malloc(new_size);
   if(new_ptr == NULL)
      return FALSE;
   }
else
   {
   new_ptr = realloc(meta->ptr, new_size);
   if(new_ptr == NULL)
      return FALSE;
   }

meta->ptr = new_ptr;
old = *meta;
meta->limit1 = new_limit1;


return TRUE;
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

