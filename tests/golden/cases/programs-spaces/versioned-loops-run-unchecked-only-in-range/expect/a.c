
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


static int zzzz_resize1(struct zz2D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1, unsigned sub2, int resize_num2, int resize_pct2);
static int zzzz_resize2(struct zz1D_meta *meta, unsigned sub1, int resize_num1, int resize_pct1);
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

void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
struct zz2D_meta g = {NULL};
struct zz2D_meta h = {NULL};
double e[3][20];
struct zz2D_meta zz_e = {NULL,3,20};
struct zz1D_meta v = {NULL};
int f[40];
struct zz1D_meta zz_f = {NULL,0,40};
int i;
int j;
int n;
double t;
int zzzz_int1;
static char zzzz_string1[10] = "sum %.2f\n";
static struct zz1D_meta zz_zzzz_string1 = {zzzz_string1,9,10};
static char zzzz_string2[37] = "g grew to %u x %u, g[22][24] = %.1f\n";
static struct zz1D_meta zz_zzzz_string2 = {zzzz_string2,36,37};
static char zzzz_string3[16] = "v sum %d of %u\n";
static struct zz1D_meta zz_zzzz_string3 = {zzzz_string3,15,16};
static char zzzz_string4[12] = "f %d of %u\n";
static struct zz1D_meta zz_zzzz_string4 = {zzzz_string4,11,12};
static char zzzz_string5[16] = "f[36] %d of %u\n";
static struct zz1D_meta zz_zzzz_string5 = {zzzz_string5,15,16};
static char zzzz_string6[26] = "f[36] %d, f[19] %d of %u\n";
static struct zz1D_meta zz_zzzz_string6 = {zzzz_string6,25,26};
static char zzzz_string7[18] = "not reached %.1f\n";
static struct zz1D_meta zz_zzzz_string7 = {zzzz_string7,17,18};
void *zzzz_actuals[2];

zz_e.ptr = e;
zz_f.ptr = f;
zzzz_actuals[0] = &(zzzz_exception);
status = 0;
n = 20;
if((signed)(n - 1) < 0 || (signed)(n - 1) < 0)
   zzzz_bounds_exceeded("g", 21, 4, (unsigned)(n - 1), (unsigned)(n - 1),
  (unsigned)(g.limit1), (unsigned)(g.limit2));
if((unsigned)(n - 1) >= (g.limit1) || (unsigned)(n - 1) >= (g.limit2))
   if(!zzzz_resize1(&(g), (unsigned)(n - 1), 7, 15, (unsigned)(n - 1), 7,
  15)) {
      zzzz_out_of_memory(21);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
(*(((double *)(g.ptr)) + ((n - 1) * (g.limit2) + (n - 1)))) = 0.0;
if((signed)(n - 1) < 0 || (signed)(n - 1) < 0)
   zzzz_bounds_exceeded("h", 22, 4, (unsigned)(n - 1), (unsigned)(n - 1),
  (unsigned)(h.limit1), (unsigned)(h.limit2));
if((unsigned)(n - 1) >= (h.limit1) || (unsigned)(n - 1) >= (h.limit2))
   if(!zzzz_resize1(&(h), (unsigned)(n - 1), 7, 15, (unsigned)(n - 1), 7,
  15)) {
      zzzz_out_of_memory(22);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
(*(((double *)(h.ptr)) + ((n - 1) * (h.limit2) + (n - 1)))) = 0.0;
i = 0;
zzzz_cont4:
if(!(i < n)) goto zzzz_false1;
j = 0;
if((long long)(j) < (long long)(n) && !(((long long)(n) - 1) - (long long)(j) 
 >= 15 && (long long)(i) >= 0 && (long long)(i) < (long long)(g.limit1) && 
 (long long)(j) >= 0 && (long long)(j) < (long long)(g.limit2) && ((long 
 long)(n) - 1) >= 0 && ((long long)(n) - 1) < (long long)(g.limit2) && (long 
 long)(i) < (long long)(h.limit1) && (long long)(j) < (long long)(h.limit2) 
 && ((long long)(n) - 1) < (long long)(h.limit2))) goto zzzz_checked1;
zzzz_fast1:
if(!(j < n)) goto zzzz_false2;
(*(((double *)(g.ptr)) + ((i) * (g.limit2) + (j)))) = ((double)((i * n + 
 j)));
(*(((double *)(h.ptr)) + ((i) * (h.limit2) + (j)))) = -(*(((double *)(g.ptr)) 
 + ((i) * (g.limit2) + (j))));
zzzz_int1 = j;
j++;
goto zzzz_fast1;
zzzz_checked1:
zzzz_cont3:
if(!(j < n)) goto zzzz_false2;
if((signed)(i) < 0 || (signed)(j) < 0)
   zzzz_bounds_exceeded("g", 26, 4, (unsigned)(i), (unsigned)(j), (unsigned)(g.limit1),
  (unsigned)(g.limit2));
if((unsigned)(i) >= (g.limit1) || (unsigned)(j) >= (g.limit2))
   if(!zzzz_resize1(&(g), (unsigned)(i), 7, 15, (unsigned)(j), 7, 15)) {
      zzzz_out_of_memory(26);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
(*(((double *)(g.ptr)) + ((i) * (g.limit2) + (j)))) = ((double)((i * n + 
 j)));
if((signed)(i) < 0 || (signed)(j) < 0)
   zzzz_bounds_exceeded("h", 27, 4, (unsigned)(i), (unsigned)(j), (unsigned)(h.limit1),
  (unsigned)(h.limit2));
if((unsigned)(i) >= (h.limit1) || (unsigned)(j) >= (h.limit2))
   if(!zzzz_resize1(&(h), (unsigned)(i), 7, 15, (unsigned)(j), 7, 15)) {
      zzzz_out_of_memory(27);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((signed)(i) < 0 || (unsigned)(i) >= (g.limit1) || (signed)(j) < 0 || (unsigned)(j) 
 >= (g.limit2))
   zzzz_bounds_exceeded("g", 27, 4, (unsigned)(i), (unsigned)(j), (unsigned)(g.limit1),
  (unsigned)(g.limit2));
(*(((double *)(h.ptr)) + ((i) * (h.limit2) + (j)))) = -(*(((double *)(g.ptr)) 
 + ((i) * (g.limit2) + (j))));
zzzz_cont2:
zzzz_int1 = j;
j++;
goto zzzz_cont3;
zzzz_false2:
zzzz_cont1:
zzzz_int1 = i;
i++;
goto zzzz_cont4;
zzzz_false1:
i = 1;
zzzz_cont8:
if(!(i < n - 1)) goto zzzz_false3;
j = 1;
if((long long)(j) <= (long long)(n) - 2 && !(((long long)(n) - 2) - (long 
 long)(j) >= 15 && (long long)(i) >= 0 && (long long)(i) < (long long)(h.limit1) 
 && (long long)(j) >= 0 && (long long)(j) < (long long)(h.limit2) && ((long 
 long)(n) - 2) >= 0 && ((long long)(n) - 2) < (long long)(h.limit2) && (long 
 long)(i) - 1 >= 0 && (long long)(i) - 1 < (long long)(g.limit1) && (long 
 long)(j) < (long long)(g.limit2) && ((long long)(n) - 2) < (long long)(g.limit2) 
 && (long long)(i) + 1 >= 0 && (long long)(i) + 1 < (long long)(g.limit1) 
 && (long long)(i) < (long long)(g.limit1) && (long long)(j) - 1 >= 0 && 
 (long long)(j) - 1 < (long long)(g.limit2) && ((long long)(n) - 2) - 1 >= 
 0 && ((long long)(n) - 2) - 1 < (long long)(g.limit2) && (long long)(n) 
 - 1 - (long long)(j) >= 0 && (long long)(n) - 1 - (long long)(j) < (long 
 long)(g.limit2) && (long long)(n) - 1 - ((long long)(n) - 2) >= 0 && (long 
 long)(n) - 1 - ((long long)(n) - 2) < (long long)(g.limit2))) goto zzzz_checked2;
zzzz_fast2:
if(!(j <= n - 2)) goto zzzz_false4;
(*(((double *)(h.ptr)) + ((i) * (h.limit2) + (j)))) = 0.25 * ((*(((double 
 *)(g.ptr)) + ((i - 1) * (g.limit2) + (j)))) + (*(((double *)(g.ptr)) + ((i 
 + 1) * (g.limit2) + (j)))) + (*(((double *)(g.ptr)) + ((i) * (g.limit2) 
 + (j - 1)))) + (*(((double *)(g.ptr)) + ((i) * (g.limit2) + (n - 1 - j)))));
++j;
goto zzzz_fast2;
zzzz_checked2:
zzzz_cont7:
if(!(j <= n - 2)) goto zzzz_false4;
if((signed)(i) < 0 || (signed)(j) < 0)
   zzzz_bounds_exceeded("h", 32, 4, (unsigned)(i), (unsigned)(j), (unsigned)(h.limit1),
  (unsigned)(h.limit2));
if((unsigned)(i) >= (h.limit1) || (unsigned)(j) >= (h.limit2))
   if(!zzzz_resize1(&(h), (unsigned)(i), 7, 15, (unsigned)(j), 7, 15)) {
      zzzz_out_of_memory(32);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((signed)(i - 1) < 0 || (unsigned)(i - 1) >= (g.limit1) || (signed)(j) 
 < 0 || (unsigned)(j) >= (g.limit2))
   zzzz_bounds_exceeded("g", 32, 4, (unsigned)(i - 1), (unsigned)(j), (unsigned)(g.limit1),
  (unsigned)(g.limit2));
if((signed)(i + 1) < 0 || (unsigned)(i + 1) >= (g.limit1) || (signed)(j) 
 < 0 || (unsigned)(j) >= (g.limit2))
   zzzz_bounds_exceeded("g", 32, 4, (unsigned)(i + 1), (unsigned)(j), (unsigned)(g.limit1),
  (unsigned)(g.limit2));
if((signed)(i) < 0 || (unsigned)(i) >= (g.limit1) || (signed)(j - 1) < 0 
 || (unsigned)(j - 1) >= (g.limit2))
   zzzz_bounds_exceeded("g", 32, 4, (unsigned)(i), (unsigned)(j - 1), (unsigned)(g.limit1),
  (unsigned)(g.limit2));
if((signed)(i) < 0 || (unsigned)(i) >= (g.limit1) || (signed)(n - 1 - j) 
 < 0 || (unsigned)(n - 1 - j) >= (g.limit2))
   zzzz_bounds_exceeded("g", 32, 4, (unsigned)(i), (unsigned)(n - 1 - j),
  (unsigned)(g.limit1), (unsigned)(g.limit2));
(*(((double *)(h.ptr)) + ((i) * (h.limit2) + (j)))) = 0.25 * ((*(((double 
 *)(g.ptr)) + ((i - 1) * (g.limit2) + (j)))) + (*(((double *)(g.ptr)) + ((i 
 + 1) * (g.limit2) + (j)))) + (*(((double *)(g.ptr)) + ((i) * (g.limit2) 
 + (j - 1)))) + (*(((double *)(g.ptr)) + ((i) * (g.limit2) + (n - 1 - j)))));
zzzz_cont6:
++j;
goto zzzz_cont7;
zzzz_false4:
zzzz_cont5:
zzzz_int1 = i;
i++;
goto zzzz_cont8;
zzzz_false3:
t = 0.0;
i = 0;
zzzz_cont12:
if(!(i < n)) goto zzzz_false5;
j = 0;
if((long long)(j) < (long long)(n) && !(((long long)(n) - 1) - (long long)(j) 
 >= 15 && (long long)(i) >= 0 && (long long)(i) < (long long)(h.limit1) && 
 (long long)(j) >= 0 && (long long)(j) < (long long)(h.limit2) && ((long 
 long)(n) - 1) >= 0 && ((long long)(n) - 1) < (long long)(h.limit2))) goto 
 zzzz_checked3;
zzzz_fast3:
if(!(j < n)) goto zzzz_false6;
t = t + (*(((double *)(h.ptr)) + ((i) * (h.limit2) + (j))));
j += 1;
goto zzzz_fast3;
zzzz_checked3:
zzzz_cont11:
if(!(j < n)) goto zzzz_false6;
if((signed)(i) < 0 || (unsigned)(i) >= (h.limit1) || (signed)(j) < 0 || (unsigned)(j) 
 >= (h.limit2))
   zzzz_bounds_exceeded("h", 36, 4, (unsigned)(i), (unsigned)(j), (unsigned)(h.limit1),
  (unsigned)(h.limit2));
t = t + (*(((double *)(h.ptr)) + ((i) * (h.limit2) + (j))));
zzzz_cont10:
j += 1;
goto zzzz_cont11;
zzzz_false6:
zzzz_cont9:
zzzz_int1 = i;
i++;
goto zzzz_cont12;
zzzz_false5:
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string1), (double)(t));
if(zzzz_exception) {
   zzzz_out_of_memory(37);
   goto zzzz_finish;
}
j = 0;
if((long long)(j) < (long long)(n) + 5 && !(((long long)(n) + 5 - 1) - (long 
 long)(j) >= 15 && (long long)(n) + 2 >= 0 && (long long)(n) + 2 < (long 
 long)(g.limit1) && (long long)(j) >= 0 && (long long)(j) < (long long)(g.limit2) 
 && ((long long)(n) + 5 - 1) >= 0 && ((long long)(n) + 5 - 1) < (long long)(g.limit2))) 
 goto zzzz_checked4;
zzzz_fast4:
if(!(j < n + 5)) goto zzzz_false7;
(*(((double *)(g.ptr)) + ((n + 2) * (g.limit2) + (j)))) = ((double)(j));
zzzz_int1 = j;
j++;
goto zzzz_fast4;
zzzz_checked4:
zzzz_cont14:
if(!(j < n + 5)) goto zzzz_false7;
if((signed)(n + 2) < 0 || (signed)(j) < 0)
   zzzz_bounds_exceeded("g", 40, 4, (unsigned)(n + 2), (unsigned)(j), (unsigned)(g.limit1),
  (unsigned)(g.limit2));
if((unsigned)(n + 2) >= (g.limit1) || (unsigned)(j) >= (g.limit2))
   if(!zzzz_resize1(&(g), (unsigned)(n + 2), 7, 15, (unsigned)(j), 7, 15)) 
 {
      zzzz_out_of_memory(40);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
(*(((double *)(g.ptr)) + ((n + 2) * (g.limit2) + (j)))) = ((double)(j));
zzzz_cont13:
zzzz_int1 = j;
j++;
goto zzzz_cont14;
zzzz_false7:
if((signed)(22) < 0 || (unsigned)(22) >= (g.limit1) || (signed)(24) < 0 || 
 (unsigned)(24) >= (g.limit2))
   zzzz_bounds_exceeded("g", 41, 4, (unsigned)(22), (unsigned)(24), (unsigned)(g.limit1),
  (unsigned)(g.limit2));
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string2), g.limit1, g.limit2, (double)((*(((double 
 *)(g.ptr)) + ((22) * (g.limit2) + (24))))));
if(zzzz_exception) {
   zzzz_out_of_memory(41);
   goto zzzz_finish;
}
i = 0;
zzzz_cont15:
if(!(i < 20)) goto zzzz_false8;
if((signed)(i) < 0)
   zzzz_bounds_exceeded("v", 45, 2, (unsigned)(i), (unsigned)(v.limit1));
if((unsigned)(i) >= (v.limit1))
   if(!zzzz_resize2(&(v), (unsigned)(i), 50, 15)) {
      zzzz_out_of_memory(45);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(i) + 1 > (v.occurs))
   (v.occurs) = (unsigned)(i) + 1;
(*(((int *)(v.ptr)) + ((i)))) = i * 10;
zzzz_int1 = i;
i++;
goto zzzz_cont15;
zzzz_false8:
n = 0;
j = 0;
if((long long)(j) < (long long)(v.occurs) && !(((long long)(v.occurs) - 1) 
 - (long long)(j) >= 15 && (long long)(j) >= 0 && (long long)(j) < (long 
 long)(v.limit1) && (long long)(j) < (long long)(v.occurs) && ((long long)(v.occurs) 
 - 1) >= 0 && ((long long)(v.occurs) - 1) < (long long)(v.limit1) && ((long 
 long)(v.occurs) - 1) < (long long)(v.occurs))) goto zzzz_checked5;
zzzz_fast5:
if(!(j < v.occurs)) goto zzzz_false9;
n = n + (*(((int *)(v.ptr)) + ((j)))) / 10;
zzzz_int1 = j;
j++;
goto zzzz_fast5;
zzzz_checked5:
zzzz_cont17:
if(!(j < v.occurs)) goto zzzz_false9;
if((signed)(j) < 0 || (unsigned)(j) >= (v.occurs))
   zzzz_bounds_exceeded("v", 50, 2, (unsigned)(j), (unsigned)(v.occurs));
n = n + (*(((int *)(v.ptr)) + ((j)))) / 10;
zzzz_cont16:
zzzz_int1 = j;
j++;
goto zzzz_cont17;
zzzz_false9:
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string3), n, v.occurs);
if(zzzz_exception) {
   zzzz_out_of_memory(51);
   goto zzzz_finish;
}
j = 0;
if((long long)(j) < 20 && !((20 - 1) - (long long)(j) >= 15 && (long long)(j) 
 >= 0 && (long long)(j) < (long long)(zz_f.limit1) && (20 - 1) >= 0 && (20 
 - 1) < (long long)(zz_f.limit1))) goto zzzz_checked6;
if((long long)(j) < 20 && (long long)(j) + 1 > (long long)(zz_f.occurs))
   (zz_f.occurs) = (unsigned)((long long)(j) + 1);
if((long long)(j) < 20 && (20 - 1) + 1 > (long long)(zz_f.occurs))
   (zz_f.occurs) = (unsigned)((20 - 1) + 1);
zzzz_fast6:
if(!(j < 20)) goto zzzz_false10;
(*(((int *)(zz_f.ptr)) + ((j)))) = j * j;
zzzz_int1 = j;
j++;
goto zzzz_fast6;
zzzz_checked6:
zzzz_cont19:
if(!(j < 20)) goto zzzz_false10;
if((signed)(j) < 0 || (unsigned)(j) >= (zz_f.limit1))
   zzzz_bounds_exceeded("f", 54, 2, (unsigned)(j), (unsigned)(zz_f.limit1));
if((unsigned)(j) + 1 > (zz_f.occurs))
   (zz_f.occurs) = (unsigned)(j) + 1;
(*(((int *)(zz_f.ptr)) + ((j)))) = j * j;
zzzz_cont18:
zzzz_int1 = j;
j++;
goto zzzz_cont19;
zzzz_false10:
if((signed)(19) < 0 || (unsigned)(19) >= (zz_f.occurs))
   zzzz_bounds_exceeded("f", 55, 2, (unsigned)(19), (unsigned)(zz_f.occurs));
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string4), (*(((int *)(zz_f.ptr)) + ((19)))),
  zz_f.occurs);
if(zzzz_exception) {
   zzzz_out_of_memory(55);
   goto zzzz_finish;
}
j = 0;
if((long long)(j) < 38 && !(2 >= 1 && (38 - 1) - (long long)(j) >= 15 * 2 
 && (long long)(j) >= 0 && (long long)(j) < (long long)(zz_f.limit1) && (38 
 - 1) >= 0 && (38 - 1) < (long long)(zz_f.limit1))) goto zzzz_checked7;
if((long long)(j) < 38 && (long long)(j) + 1 > (long long)(zz_f.occurs))
   (zz_f.occurs) = (unsigned)((long long)(j) + 1);
if((long long)(j) < 38 && ((long long)(j) + ((38 - 1) - (long long)(j)) / 
 2 * 2) + 1 > (long long)(zz_f.occurs))
   (zz_f.occurs) = (unsigned)(((long long)(j) + ((38 - 1) - (long long)(j)) 
 / 2 * 2) + 1);
zzzz_fast7:
if(!(j < 38)) goto zzzz_false11;
(*(((int *)(zz_f.ptr)) + ((j)))) = -j;
j += 2;
goto zzzz_fast7;
zzzz_checked7:
zzzz_cont21:
if(!(j < 38)) goto zzzz_false11;
if((signed)(j) < 0 || (unsigned)(j) >= (zz_f.limit1))
   zzzz_bounds_exceeded("f", 58, 2, (unsigned)(j), (unsigned)(zz_f.limit1));
if((unsigned)(j) + 1 > (zz_f.occurs))
   (zz_f.occurs) = (unsigned)(j) + 1;
(*(((int *)(zz_f.ptr)) + ((j)))) = -j;
zzzz_cont20:
j += 2;
goto zzzz_cont21;
zzzz_false11:
if((signed)(36) < 0 || (unsigned)(36) >= (zz_f.occurs))
   zzzz_bounds_exceeded("f", 59, 2, (unsigned)(36), (unsigned)(zz_f.occurs));
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string5), (*(((int *)(zz_f.ptr)) + ((36)))),
  zz_f.occurs);
if(zzzz_exception) {
   zzzz_out_of_memory(59);
   goto zzzz_finish;
}
j = 36;
if((long long)(j) > 18 && !((long long)(j) - (18 + 1) >= 15 && (long long)(j) 
 >= 0 && (long long)(j) < (long long)(zz_f.limit1) && (18 + 1) >= 0 && (18 
 + 1) < (long long)(zz_f.limit1) && (long long)(j) - 2 >= 0 && (long long)(j) 
 - 2 < (long long)(zz_f.limit1) && (long long)(j) - 2 < (long long)(zz_f.occurs) 
 && (18 + 1) - 2 >= 0 && (18 + 1) - 2 < (long long)(zz_f.limit1) && (18 + 
 1) - 2 < (long long)(zz_f.occurs))) goto zzzz_checked8;
if((long long)(j) > 18 && (long long)(j) + 1 > (long long)(zz_f.occurs))
   (zz_f.occurs) = (unsigned)((long long)(j) + 1);
if((long long)(j) > 18 && (18 + 1) + 1 > (long long)(zz_f.occurs))
   (zz_f.occurs) = (unsigned)((18 + 1) + 1);
zzzz_fast8:
if(!(j > 18)) goto zzzz_false12;
(*(((int *)(zz_f.ptr)) + ((j)))) = (*(((int *)(zz_f.ptr)) + ((j - 2)))) + 
 100;
zzzz_int1 = j;
j--;
goto zzzz_fast8;
zzzz_checked8:
zzzz_cont23:
if(!(j > 18)) goto zzzz_false12;
if((signed)(j) < 0 || (unsigned)(j) >= (zz_f.limit1))
   zzzz_bounds_exceeded("f", 62, 2, (unsigned)(j), (unsigned)(zz_f.limit1));
if((unsigned)(j) + 1 > (zz_f.occurs))
   (zz_f.occurs) = (unsigned)(j) + 1;
if((signed)(j - 2) < 0 || (unsigned)(j - 2) >= (zz_f.occurs))
   zzzz_bounds_exceeded("f", 62, 2, (unsigned)(j - 2), (unsigned)(zz_f.occurs));
(*(((int *)(zz_f.ptr)) + ((j)))) = (*(((int *)(zz_f.ptr)) + ((j - 2)))) + 
 100;
zzzz_cont22:
zzzz_int1 = j;
j--;
goto zzzz_cont23;
zzzz_false12:
if((signed)(36) < 0 || (unsigned)(36) >= (zz_f.occurs))
   zzzz_bounds_exceeded("f", 63, 2, (unsigned)(36), (unsigned)(zz_f.occurs));
if((signed)(19) < 0 || (unsigned)(19) >= (zz_f.occurs))
   zzzz_bounds_exceeded("f", 63, 2, (unsigned)(19), (unsigned)(zz_f.occurs));
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string6), (*(((int *)(zz_f.ptr)) + ((36)))),
  (*(((int *)(zz_f.ptr)) + ((19)))), zz_f.occurs);
if(zzzz_exception) {
   zzzz_out_of_memory(63);
   goto zzzz_finish;
}
j = 0;
if((long long)(j) < 20 && !((20 - 1) - (long long)(j) >= 15 && 2 >= 0 && 
 2 < (long long)(zz_e.limit1) && (long long)(j) >= 0 && (long long)(j) < 
 (long long)(zz_e.limit2) && (20 - 1) >= 0 && (20 - 1) < (long long)(zz_e.limit2))) 
 goto zzzz_checked9;
zzzz_fast9:
if(!(j < 20)) goto zzzz_false13;
(*(((double *)(zz_e.ptr)) + ((2) * (zz_e.limit2) + (j)))) = 0.5 * ((double)(j));
zzzz_int1 = j;
j++;
goto zzzz_fast9;
zzzz_checked9:
zzzz_cont25:
if(!(j < 20)) goto zzzz_false13;
if((signed)(2) < 0 || (unsigned)(2) >= (zz_e.limit1) || (signed)(j) < 0 || 
 (unsigned)(j) >= (zz_e.limit2))
   zzzz_bounds_exceeded("e", 66, 4, (unsigned)(2), (unsigned)(j), (unsigned)(zz_e.limit1),
  (unsigned)(zz_e.limit2));
(*(((double *)(zz_e.ptr)) + ((2) * (zz_e.limit2) + (j)))) = 0.5 * ((double)(j));
zzzz_cont24:
zzzz_int1 = j;
j++;
goto zzzz_cont25;
zzzz_false13:
t = 0.0;
j = 0;
if((long long)(j) <= 20 && !((20) - (long long)(j) >= 15 && 2 >= 0 && 2 < 
 (long long)(zz_e.limit1) && (long long)(j) >= 0 && (long long)(j) < (long 
 long)(zz_e.limit2) && (20) >= 0 && (20) < (long long)(zz_e.limit2))) goto 
 zzzz_checked10;
zzzz_fast10:
if(!(j <= 20)) goto zzzz_false14;
t = t + (*(((double *)(zz_e.ptr)) + ((2) * (zz_e.limit2) + (j))));
zzzz_int1 = j;
j++;
goto zzzz_fast10;
zzzz_checked10:
zzzz_cont27:
if(!(j <= 20)) goto zzzz_false14;
if((signed)(2) < 0 || (unsigned)(2) >= (zz_e.limit1) || (signed)(j) < 0 || 
 (unsigned)(j) >= (zz_e.limit2))
   zzzz_bounds_exceeded("e", 69, 4, (unsigned)(2), (unsigned)(j), (unsigned)(zz_e.limit1),
  (unsigned)(zz_e.limit2));
t = t + (*(((double *)(zz_e.ptr)) + ((2) * (zz_e.limit2) + (j))));
zzzz_cont26:
zzzz_int1 = j;
j++;
goto zzzz_cont27;
zzzz_false14:
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string7), (double)(t));
if(zzzz_exception) {
   zzzz_out_of_memory(70);
   goto zzzz_finish;
}

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
if(g.limit1 > 0) {
free(g.ptr);
;}
if(h.limit1 > 0) {
free(h.ptr);
;}
if(v.limit1 > 0) {
free(v.ptr);
;}
*((int *)(zzzz_return_ptr[0])) = zzzz_exception;
}




static int zzzz_resize1(struct zz2D_meta *meta, unsigned sub1, int resize_num1,
  int resize_pct1, unsigned sub2, int resize_num2, int resize_pct2)
{

unsigned zzzz_fcl1;
unsigned zzzz_fcl2;
unsigned zzzz_imw1;
unsigned zzzz_imw2;
unsigned new_size, lim_a, lim_b, lim_c;
void *new_ptr;
struct zz2D_meta old;
char use_realloc = 'y';
unsigned new_limit1;
unsigned new_limit2;

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
if(sub2 >= meta->limit2) {
   use_realloc = 'n';
   lim_a = sub2 + 1;
   lim_b = resize_num2 + meta->limit2;
   lim_c = resize_pct2 * (meta->limit2 / 100) + meta->limit2;
   if(lim_a > lim_b)
      {if(lim_a > lim_c)
          new_limit2 = lim_a;
       else
          new_limit2 = lim_c;}
   else if(lim_b > lim_c)
       new_limit2 = lim_b;
   else
       new_limit2 = lim_c;
   }
else
   new_limit2 = meta->limit2;

new_size = sizeof(double);
if((new_size * new_limit1) / new_size != new_limit1)
   return FALSE;
new_size *= new_limit1;
if((new_size * new_limit2) / new_size != new_limit2)
   return FALSE;
new_size *= new_limit2;

if(meta->limit1 == 0) {
   new_ptr = malloc(new_size);
   if(new_ptr == NULL)
      return FALSE;
   }
else if(use_realloc == 'y')
   {
   new_ptr = realloc(meta->ptr, new_size);
   if(new_ptr == NULL)
      return FALSE;
   }
else
   {
   new_ptr = malloc(new_size);
   if(new_ptr == NULL)
      return FALSE;
   zzzz_fcl1 = (new_limit2);
   zzzz_fcl2 = (meta->limit2);
   for(zzzz_imw1 = 0; zzzz_imw1 < meta->limit1; ++zzzz_imw1) {
   for(zzzz_imw2 = 0; zzzz_imw2 < meta->limit2; ++zzzz_imw2) {
      *(((double *)(new_ptr)) + (zzzz_imw1 * zzzz_fcl1 + zzzz_imw2)) = 
      *(((double *)(meta->ptr)) + (zzzz_imw1 * zzzz_fcl2 + zzzz_imw2));
   }}
   free(meta->ptr);
   }

meta->ptr = new_ptr;
old = *meta;
meta->limit1 = new_limit1;
meta->limit2 = new_limit2;


return TRUE;
}


static int zzzz_resize2(struct zz1D_meta *meta, unsigned sub1, int resize_num1,
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

new_size = sizeof(int);
if((new_size * new_limit1) / new_size != new_limit1)
   return FALSE;
new_size *= new_limit1;

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

