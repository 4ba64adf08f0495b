
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
struct rec {
   int id;
   struct zz1D_meta name;
   int codes[3];
   struct zz1D_meta zz_codes;
   struct zz1D_meta weights;
};


void _yc__main(void *zzzz_return_ptr[], struct zz1D_meta *args)
{

int status;
int zzzz_exception = 0;
struct zz1D_meta packed = {NULL};
struct rec r;
struct rec back;
int i;
int at;
int zzzz_int1;
static char zzzz_string1[10] = "record %d";
static struct zz1D_meta zz_zzzz_string1 = {zzzz_string1,9,10};
unsigned zzzz_unsigned1;
unsigned added_length, zzzz_added_length_minus_one;
char *zzzz_ccs_ptr;
static char zzzz_string2[17] = "packed %u bytes\n";
static struct zz1D_meta zz_zzzz_string2 = {zzzz_string2,16,17};
static char zzzz_string3[16] = "%d %s %d %u %f\n";
static struct zz1D_meta zz_zzzz_string3 = {zzzz_string3,15,16};
void *zzzz_actuals[4];

r.name.ptr = NULL;
r.name.occurs = 0;
r.name.limit1 = 0;
r.zz_codes.ptr = r.codes;
r.zz_codes.occurs = 0;
r.zz_codes.limit1 = 3;
r.weights.ptr = NULL;
r.weights.occurs = 0;
r.weights.limit1 = 0;
back.name.ptr = NULL;
back.name.occurs = 0;
back.name.limit1 = 0;
back.zz_codes.ptr = back.codes;
back.zz_codes.occurs = 0;
back.zz_codes.limit1 = 3;
back.weights.ptr = NULL;
back.weights.occurs = 0;
back.weights.limit1 = 0;
zzzz_actuals[0] = &(zzzz_exception);
at = 0;
i = 0;
zzzz_cont2:
if(!(i < 3)) goto zzzz_false1;
r.id = i;
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
zzzz_actuals[2] = zzzz_actuals[3] = NULL;
_yc__sprintf(zzzz_actuals, &(r.name), &(zz_zzzz_string1), i);
for(zzzz_unsigned1 = 0; zzzz_unsigned1 < r.name.limit1 && *(((unsigned char 
 *)r.name.ptr) + zzzz_unsigned1) != 0; ++zzzz_unsigned1)
   ;
r.name.occurs = zzzz_unsigned1;
if(zzzz_exception) {
   zzzz_out_of_memory(14);
   goto zzzz_finish;
}
if((signed)(i) < 0 || (unsigned)(i) >= (r.zz_codes.limit1))
   zzzz_bounds_exceeded("r.codes", 15, 2, (unsigned)(i), (unsigned)(r.zz_codes.limit1));
if((unsigned)(i) + 1 > (r.zz_codes.occurs))
   (r.zz_codes.occurs) = (unsigned)(i) + 1;
(*(((int *)(r.zz_codes.ptr)) + ((i)))) = i * 10;
if((signed)(i) < 0)
   zzzz_bounds_exceeded("r.weights", 16, 2, (unsigned)(i), (unsigned)(r.weights.limit1));
if((unsigned)(i) >= (r.weights.limit1))
   if(!zzzz_resize1(&(r.weights), (unsigned)(i), 50, 15)) {
      zzzz_out_of_memory(16);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(i) + 1 > (r.weights.occurs))
   (r.weights.occurs) = (unsigned)(i) + 1;
(*(((double *)(r.weights.ptr)) + ((i)))) = ((double)(i)) + 0.5;
zzzz_added_length_minus_one = sizeof(struct rec) + sizeof(struct zz1D_meta) 
 + sizeof(char) * r.name.occurs + sizeof(struct zz1D_meta) + sizeof(double) 
 * r.weights.occurs - 1;
if((signed)(at) < 0)
   zzzz_bounds_exceeded("packed", 17, 2, (unsigned)(at), (unsigned)(packed.limit1));
if((unsigned)(at) + zzzz_added_length_minus_one >= (packed.limit1))
   if(!zzzz_resize2(&(packed), (unsigned)(at) + zzzz_added_length_minus_one,
  50, 15)) {
      zzzz_out_of_memory(17);
      zzzz_exception = 32000;
      goto zzzz_finish;
   }
if((unsigned)(at) + zzzz_added_length_minus_one + 1 > (packed.occurs))
   (packed.occurs) = (unsigned)(at) + zzzz_added_length_minus_one + 1;
zzzz_ccs_ptr = &((*(((char *)(packed.ptr)) + ((at)))));
*((struct rec *)zzzz_ccs_ptr) = r;
zzzz_ccs_ptr += sizeof(struct rec);
*((struct zz1D_meta *)zzzz_ccs_ptr) = r.name;
zzzz_ccs_ptr += sizeof(struct zz1D_meta);
if(r.name.limit1 > 0)
   memcpy(zzzz_ccs_ptr, r.name.ptr, sizeof(char) * r.name.occurs);
zzzz_ccs_ptr += sizeof(char) * r.name.occurs;
*((struct zz1D_meta *)zzzz_ccs_ptr) = r.weights;
zzzz_ccs_ptr += sizeof(struct zz1D_meta);
if(r.weights.limit1 > 0)
   memcpy(zzzz_ccs_ptr, r.weights.ptr, sizeof(double) * r.weights.occurs);
zzzz_ccs_ptr += sizeof(double) * r.weights.occurs;
added_length = zzzz_ccs_ptr - &((*(((char *)(packed.ptr)) + ((at)))));
at = at + added_length;
zzzz_cont1:
zzzz_int1 = i;
i++;
goto zzzz_cont2;
zzzz_false1:
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string2), packed.occurs);
if(zzzz_exception) {
   zzzz_out_of_memory(20);
   goto zzzz_finish;
}
at = 0;
i = 0;
zzzz_cont4:
if(!(i < 3)) goto zzzz_false2;
zzzz_added_length_minus_one = sizeof(struct rec) - 1;
if((signed)(at) < 0 || (unsigned)(at) + zzzz_added_length_minus_one >= (packed.occurs))
   zzzz_bounds_exceeded("packed", 23, 2, (unsigned)(at) + zzzz_added_length_minus_one,
  (unsigned)(packed.occurs));
if(back.name.limit1 > 0)
   free(back.name.ptr);
back.name.ptr = NULL;
back.name.occurs = 0;
back.name.limit1 = 0;
if(back.weights.limit1 > 0)
   free(back.weights.ptr);
back.weights.ptr = NULL;
back.weights.occurs = 0;
back.weights.limit1 = 0;
zzzz_int1 = 1;
zzzz_ccs_ptr = &((*(((char *)(packed.ptr)) + ((at)))));
back = *((struct rec *)zzzz_ccs_ptr);
zzzz_ccs_ptr += sizeof(struct rec);
if((zzzz_ccs_ptr += sizeof(struct zz1D_meta)) > ((char *)(packed.ptr)) + 
 packed.occurs)
   zzzz_bounds_exceeded("\n extracting from the casted character space up to subscript",
  23, 2, (unsigned)(zzzz_ccs_ptr - (char *)(packed.ptr)), (unsigned)(packed.occurs));
back.name.occurs = ((struct zz1D_meta *)(zzzz_ccs_ptr - sizeof(struct zz1D_meta)))->occurs;
back.name.limit1 = back.name.occurs;
if((zzzz_ccs_ptr += sizeof(char) * back.name.limit1) > ((char *)(packed.ptr)) 
 + packed.occurs)
   zzzz_bounds_exceeded("\n extracting from the casted character space up to subscript",
  23, 2, (unsigned)(zzzz_ccs_ptr - (char *)(packed.ptr)), (unsigned)(packed.occurs));
back.name.ptr = NULL;
if(back.name.limit1 > 0) {
   back.name.ptr = malloc(sizeof(char) * back.name.limit1);
   if(back.name.ptr == NULL)
      zzzz_int1 = back.name.occurs = back.name.limit1 = 0;
   else
      memcpy(back.name.ptr, zzzz_ccs_ptr - (sizeof(char) * back.name.limit1),
  sizeof(char) * back.name.limit1);
}
if((zzzz_ccs_ptr += sizeof(struct zz1D_meta)) > ((char *)(packed.ptr)) + 
 packed.occurs)
   zzzz_bounds_exceeded("\n extracting from the casted character space up to subscript",
  23, 2, (unsigned)(zzzz_ccs_ptr - (char *)(packed.ptr)), (unsigned)(packed.occurs));
back.weights.occurs = ((struct zz1D_meta *)(zzzz_ccs_ptr - sizeof(struct 
 zz1D_meta)))->occurs;
back.weights.limit1 = back.weights.occurs;
if((zzzz_ccs_ptr += sizeof(double) * back.weights.limit1) > ((char *)(packed.ptr)) 
 + packed.occurs)
   zzzz_bounds_exceeded("\n extracting from the casted character space up to subscript",
  23, 2, (unsigned)(zzzz_ccs_ptr - (char *)(packed.ptr)), (unsigned)(packed.occurs));
back.weights.ptr = NULL;
if(back.weights.limit1 > 0) {
   back.weights.ptr = malloc(sizeof(double) * back.weights.limit1);
   if(back.weights.ptr == NULL)
      zzzz_int1 = back.weights.occurs = back.weights.limit1 = 0;
   else
      memcpy(back.weights.ptr, zzzz_ccs_ptr - (sizeof(double) * back.weights.limit1),
  sizeof(double) * back.weights.limit1);
}
back.zz_codes.ptr = back.codes;
if(!zzzz_int1) {
   zzzz_out_of_memory(23);
   zzzz_exception = 32000;
   goto zzzz_finish;
}
added_length = zzzz_ccs_ptr - &((*(((char *)(packed.ptr)) + ((at)))));
at = at + added_length;
if((signed)(i) < 0 || (unsigned)(i) >= (back.zz_codes.occurs))
   zzzz_bounds_exceeded("back.codes", 25, 2, (unsigned)(i), (unsigned)(back.zz_codes.occurs));
if((signed)(i) < 0 || (unsigned)(i) >= (back.weights.occurs))
   zzzz_bounds_exceeded("back.weights", 25, 2, (unsigned)(i), (unsigned)(back.weights.occurs));
zzzz_actuals[0] = &(zzzz_exception);
zzzz_actuals[1] = &(zzzz_int1);
_yc__printf(zzzz_actuals, &(zz_zzzz_string3), back.id, &(back.name), (*(((int 
 *)(back.zz_codes.ptr)) + ((i)))), back.weights.occurs, (double)((*(((double 
 *)(back.weights.ptr)) + ((i))))));
if(zzzz_exception) {
   zzzz_out_of_memory(25);
   goto zzzz_finish;
}
zzzz_cont3:
zzzz_int1 = i;
i++;
goto zzzz_cont4;
zzzz_false2:
zzzz_added_length_minus_one = sizeof(struct rec) - 1;
if((signed)(at - 4) < 0 || (unsigned)(at - 4) + zzzz_added_length_minus_one 
 >= (packed.occurs))
   zzzz_bounds_exceeded("packed", 27, 2, (unsigned)(at - 4) + zzzz_added_length_minus_one,
  (unsigned)(packed.occurs));
if(back.name.limit1 > 0)
   free(back.name.ptr);
back.name.ptr = NULL;
back.name.occurs = 0;
back.name.limit1 = 0;
if(back.weights.limit1 > 0)
   free(back.weights.ptr);
back.weights.ptr = NULL;
back.weights.occurs = 0;
back.weights.limit1 = 0;
zzzz_int1 = 1;
zzzz_ccs_ptr = &((*(((char *)(packed.ptr)) + ((at - 4)))));
back = *((struct rec *)zzzz_ccs_ptr);
zzzz_ccs_ptr += sizeof(struct rec);
if((zzzz_ccs_ptr += sizeof(struct zz1D_meta)) > ((char *)(packed.ptr)) + 
 packed.occurs)
   zzzz_bounds_exceeded("\n extracting from the casted character space up to subscript",
  27, 2, (unsigned)(zzzz_ccs_ptr - (char *)(packed.ptr)), (unsigned)(packed.occurs));
back.name.occurs = ((struct zz1D_meta *)(zzzz_ccs_ptr - sizeof(struct zz1D_meta)))->occurs;
back.name.limit1 = back.name.occurs;
if((zzzz_ccs_ptr += sizeof(char) * back.name.limit1) > ((char *)(packed.ptr)) 
 + packed.occurs)
   zzzz_bounds_exceeded("\n extracting from the casted character space up to subscript",
  27, 2, (unsigned)(zzzz_ccs_ptr - (char *)(packed.ptr)), (unsigned)(packed.occurs));
back.name.ptr = NULL;
if(back.name.limit1 > 0) {
   back.name.ptr = malloc(sizeof(char) * back.name.limit1);
   if(back.name.ptr == NULL)
      zzzz_int1 = back.name.occurs = back.name.limit1 = 0;
   else
      memcpy(back.name.ptr, zzzz_ccs_ptr - (sizeof(char) * back.name.limit1),
  sizeof(char) * back.name.limit1);
}
if((zzzz_ccs_ptr += sizeof(struct zz1D_meta)) > ((char *)(packed.ptr)) + 
 packed.occurs)
   zzzz_bounds_exceeded("\n extracting from the casted character space up to subscript",
  27, 2, (unsigned)(zzzz_ccs_ptr - (char *)(packed.ptr)), (unsigned)(packed.occurs));
back.weights.occurs = ((struct zz1D_meta *)(zzzz_ccs_ptr - sizeof(struct 
 zz1D_meta)))->occurs;
back.weights.limit1 = back.weights.occurs;
if((zzzz_ccs_ptr += sizeof(double) * back.weights.limit1) > ((char *)(packed.ptr)) 
 + packed.occurs)
   zzzz_bounds_exceeded("\n extracting from the casted character space up to subscript",
  27, 2, (unsigned)(zzzz_ccs_ptr - (char *)(packed.ptr)), (unsigned)(packed.occurs));
back.weights.ptr = NULL;
if(back.weights.limit1 > 0) {
   back.weights.ptr = malloc(sizeof(double) * back.weights.limit1);
   if(back.weights.ptr == NULL)
      zzzz_int1 = back.weights.occurs = back.weights.limit1 = 0;
   else
      memcpy(back.weights.ptr, zzzz_ccs_ptr - (sizeof(double) * back.weights.limit1),
  sizeof(double) * back.weights.limit1);
}
back.zz_codes.ptr = back.codes;
if(!zzzz_int1) {
   zzzz_out_of_memory(27);
   zzzz_exception = 32000;
   goto zzzz_finish;
}
added_length = zzzz_ccs_ptr - &((*(((char *)(packed.ptr)) + ((at - 4)))));
status = 0;

zzzz_finish: ;

*((int *)(zzzz_return_ptr[1])) = status;
if(packed.limit1 > 0) {
free(packed.ptr);
;}
if(r.name.limit1 > 0) {
free(r.name.ptr);
;}
if(r.weights.limit1 > 0) {
free(r.weights.ptr);
;}
if(back.name.limit1 > 0) {
free(back.name.ptr);
;}
if(back.weights.limit1 > 0) {
free(back.weights.ptr);
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

new_size = sizeof(double);
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

