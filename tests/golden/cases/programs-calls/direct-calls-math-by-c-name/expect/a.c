
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


double sqrt(double);
double pow(double, double);
double floor(double);
float sqrtf(float);
long double fabsl(long double);
double atan2(double, double);
double fabs(double);
double cos(double);
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
void hypot3(void *zzzz_return_ptr[], double x, double y, double z);

static int zzzz_direct_hypot3(void *zzzz_return_ptr1, double x, double y,
  double z)
{

double r;
int zzzz_exception = 0;

r = sqrt(x * x + y * y + z * z);

zzzz_finish: ;

*((double *)(zzzz_return_ptr1)) = r;
return zzzz_exception;
}


void hypot3(void *zzzz_return_ptr[], double x, double y, double z)
{
*((int *)(zzzz_return_ptr[0])) = zzzz_direct_hypot3(zzzz_return_ptr[1], x,
  y, z);
}


void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
double d;
double v[3];
struct zz1D_meta zz_v = {NULL,0,3};
float f;
long double l;
int i;
double log;
static char zzzz_string1[6] = "%.3f\n";
static struct zz1D_meta zz_zzzz_string1 = {zzzz_string1,5,6};
int zzzz_int1;
static char zzzz_string2[22] = "%.1f %.1f %.4f %.1Lf\n";
static struct zz1D_meta zz_zzzz_string2 = {zzzz_string2,21,22};
static char zzzz_string3[11] = "%.6f %.6f\n";
static struct zz1D_meta zz_zzzz_string3 = {zzzz_string3,10,11};
static char zzzz_string4[4] = "%d\n";
static struct zz1D_meta zz_zzzz_string4 = {zzzz_string4,3,4};
void *zzzz_actuals[2];

zz_v.ptr = v;
zzzz_actuals[0] = &(zzzz_exception);
zzzz_exception = zzzz_direct_hypot3(&(d), 1.0, 2.0, 2.0);
if(zzzz_exception) {
   goto zzzz_finish;
}
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string1), (double)(d));
if(zzzz_exception) {
   zzzz_out_of_memory(21);
   goto zzzz_finish;
}
d = pow(2.0, 10.0);
if((signed)(2) < 0 || (unsigned)(2) >= (zz_v.limit1))
   zzzz_bounds_exceeded("v", 23, 2, (unsigned)(2), (unsigned)(zz_v.limit1));
if((unsigned)(2) + 1 > (zz_v.occurs))
   (zz_v.occurs) = (unsigned)(2) + 1;
(*(((double *)(zz_v.ptr)) + ((2)))) = floor(-2.5);
f = sqrtf(2.0);
l = fabsl(-1.5);
if((signed)(2) < 0 || (unsigned)(2) >= (zz_v.occurs))
   zzzz_bounds_exceeded("v", 26, 2, (unsigned)(2), (unsigned)(zz_v.occurs));
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string2), (double)(d), (double)((*(((double 
 *)(zz_v.ptr)) + ((2))))), (double)(((double)((f)))), (long double)(l));
if(zzzz_exception) {
   zzzz_out_of_memory(26);
   goto zzzz_finish;
}
log = (atan2(1.0, 1.0)) * 4.0;
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string3), (double)(log), (double)(sqrt(fabs(-16.0)) 
 + (cos(0.0))));
if(zzzz_exception) {
   zzzz_out_of_memory(28);
   goto zzzz_finish;
}
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(i);
_yc__abs(zzzz_actuals, -7);
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string4), i);
if(zzzz_exception) {
   zzzz_out_of_memory(30);
   goto zzzz_finish;
}
status = 0;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
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

