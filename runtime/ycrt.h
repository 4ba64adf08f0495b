/* The YARL C run-time library: every function a program can call, the
   structure and constants they use. runtime/README.md describes each one. */

/* ---- statuses: 0 success, a library status below, or a system error
   number (positive; strerror gives its text). Functions whose result is a
   file number, a character, a position or a count give a system error e as
   YC_SYSTEM_ERROR - e instead, so that every failure is negative. ---- */
#define YC_NOT_FOUND (-1)
#define YC_END_OF_FILE (-2)
#define YC_BAD_FILE (-3)
#define YC_TOO_MANY_FILES (-4)
#define YC_MACHINE_EMPTY (-5)
#define YC_MATCHES_NOTHING (-6)
#define YC_MALFORMED (-7)
#define YC_INVALID_ARGUMENT (-8)
#define YC_SYSTEM_ERROR (-1000)
#define EOF (-2)

/* the exception a failed memory request raises */
#define YC_NO_MEMORY 32000

/* files */
#define stdin 0
#define stdout 1
#define stderr 2
#define FOPEN_MAX 256
#define SEEK_SET 0
#define SEEK_CUR 1
#define SEEK_END 2

#define CLOCKS_PER_SEC 1000
#define RAND_MAX 2147483647

/* ---- program ---- */

/* One command-line argument: its text (occurs characters, NUL after them). */
struct yc_argument {
   char var text[];
};

/* The program's main receives every argument, the program name first, and
   hands its status back through its return variable. */
main(struct yc_argument args[]) int status;

exit(int status);
getenv(char name[]) char var value[], int status;
system(char command[]) int status;
rand() int r;

/* ---- formatted input and output ---- */
printf(char format[], ...) int count;
fprintf(int file, char format[], ...) int count;
sprintf(char target[], char format[], ...) int count;
scanf(char format[], ...) int count;
fscanf(int file, char format[], ...) int count;
sscanf(char source[], char format[], ...) int count;

/* ---- files ---- */
fopen(char name[], char mode[]) int file;
fclose(int file) int status;
fgetc(int file) int c;
fputc(int c, int file) int status;
fgets(char line[], int file) int status;
fputs(char text[], int file) int status;
fread(char buffer[], unsigned count, int file) unsigned got;
fwrite(char buffer[], unsigned count, int file) unsigned put;
fseek(int file, long offset, int whence) int status;
ftell(int file) long position;
fgetall(int file) char var text[], int status;
fputall(int file, char text[]) int status;
remove(char name[]) int status;
rename(char from[], char to[]) int status;
tmpfile() int file;
tmpnam() char var name[];

/* ---- strings ---- */
strcpy(char target[], char source[]);
strcat(char target[], char source[]);
strcmp(char a[], char b[]) int order;
strncmp(char a[], char b[], unsigned n) int order;
strpart(char text[], unsigned start, unsigned length) char var part[];
stresc(char text[]) char var escaped[];
strerror(int status) char var text[];
strtod(char text[]) double value, unsigned used;
strtol(char text[], int base) long value, unsigned used;
strtoul(char text[], int base) unsigned long value, unsigned used;

/* ---- pattern matching ---- */
strreg(char expression[]) char var machine[], int status;
strfnd(char machine[], char text[], unsigned start) int position, unsigned length;
strfndr(char machine[], char text[], unsigned start) int position, unsigned length;
strrpl(char text[], char machine[], char replacement[]) int count;

/* ---- key tables ---- */
strknew() char var table[];
strkey(char var table[], char key[], int value) int status;
strkfnd(char table[], char key[]) int value, int status;
strkmap(char keys[]) char var table[];

/* ---- characters ---- */
isalnum(int c) int r;
isalpha(int c) int r;
isdigit(int c) int r;
islower(int c) int r;
isspace(int c) int r;
isupper(int c) int r;
tolower(int c) int r;
toupper(int c) int r;

/* ---- arithmetic ---- */
abs(int x) int y;
labs(long x) long y;
div(int a, int b) int quot, int rem;
ldiv(long a, long b) long quot, long rem;
merr(double x) int status;
merrf(float x) int status;
merrl(long double x) int status;

acos(double x) double r;
acosf(float x) float r;
acosl(long double x) long double r;
asin(double x) double r;
asinf(float x) float r;
asinl(long double x) long double r;
atan(double x) double r;
atanf(float x) float r;
atanl(long double x) long double r;
atan2(double y, double x) double r;
atan2f(float y, float x) float r;
atan2l(long double y, long double x) long double r;
ceil(double x) double r;
ceilf(float x) float r;
ceill(long double x) long double r;
cos(double x) double r;
cosf(float x) float r;
cosl(long double x) long double r;
exp(double x) double r;
expf(float x) float r;
expl(long double x) long double r;
fabs(double x) double r;
fabsf(float x) float r;
fabsl(long double x) long double r;
floor(double x) double r;
floorf(float x) float r;
floorl(long double x) long double r;
fmod(double x, double y) double r;
fmodf(float x, float y) float r;
fmodl(long double x, long double y) long double r;
log(double x) double r;
logf(float x) float r;
logl(long double x) long double r;
log10(double x) double r;
log10f(float x) float r;
log10l(long double x) long double r;
pow(double x, double y) double r;
powf(float x, float y) float r;
powl(long double x, long double y) long double r;
sin(double x) double r;
sinf(float x) float r;
sinl(long double x) long double r;
sqrt(double x) double r;
sqrtf(float x) float r;
sqrtl(long double x) long double r;
tan(double x) double r;
tanf(float x) float r;
tanl(long double x) long double r;

/* ---- time ---- */
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

time() long t;
clock() long ticks;
difftime(long t1, long t0) double s;
gmtime(long t) struct tm when;
localtime(long t) struct tm when;
mktime(struct tm when) long t;
ctime(long t) char var text[];
strftime(char format[], struct tm when) char var text[];

/* ---- sorting: over a space of structures; the compiler passes the
   element size after the first parameter ---- */
fun yc_compare(any, any) int order;
qsort(any, unsigned count, fun yc_compare compare);
bsearch(any, any, fun yc_compare compare) int index;
