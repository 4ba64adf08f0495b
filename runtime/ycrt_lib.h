/* The C side of the YARL C run-time library: the records the compiler passes,
   the C definitions of the library functions, and the helpers the library's
   files share. Programs never include this file; they see ycrt.h. */
#ifndef YCRT_LIB_H
#define YCRT_LIB_H

#include <stddef.h>

/* The meta record of every one-dimensional space. */
struct ycrt_meta1 {
   void *ptr;
   unsigned occurs;
   unsigned limit1;
};

/* The YARL C struct tm (programs never see the system's). */
struct ycrt_tm {
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

/* A YARL C comparison function: returns array, then the two elements. */
typedef void (*ycrt_compare)(void *[], void *, void *);

/* Library statuses. */
enum {
   YCRT_NOT_FOUND = -1,
   YCRT_END_OF_FILE = -2,
   YCRT_BAD_FILE = -3,
   YCRT_TOO_MANY_FILES = -4,
   YCRT_MACHINE_EMPTY = -5,
   YCRT_MATCHES_NOTHING = -6,
   YCRT_MALFORMED = -7,
   YCRT_INVALID = -8,
   /* a function whose result is a file number, a character or a position
      gives the system error e as YCRT_SYSTEM_BASE - e */
   YCRT_SYSTEM_BASE = -1000,
   YCRT_MEMORY = 32000
};

/* ---- text.c: memory, texts, results and checked targets ---- */

/* Allocations left before the next one fails; negative: unlimited. Tests set
   it to make every memory request of a function fail in turn. */
extern long ycrt_alloc_budget;
void *ycrt_malloc(size_t n);
void *ycrt_realloc(void *p, size_t n);
void ycrt_raise_memory(void *returns[]);

/* A character space's text: its first occurs characters, ending early at a
   NUL, never past limit1. */
const char *ycrt_chars(const struct ycrt_meta1 *m);
size_t ycrt_len(const struct ycrt_meta1 *m);
/* All occurs characters (NUL bytes included), never past limit1. */
size_t ycrt_all_len(const struct ycrt_meta1 *m);
/* A NUL-terminated heap copy of a text; NULL when memory fails. */
char *ycrt_cstring(const struct ycrt_meta1 *m);

/* Grows a varspace's block to hold at least `need` characters; when `alias`
   points into the old block it is moved along. 0, or -1 when memory fails. */
int ycrt_reserve(struct ycrt_meta1 *v, size_t need, const char **alias);
/* Makes a varspace hold exactly the n characters at s (s may lie in its own
   block) with a NUL after them. 0, or -1 when memory fails. */
int ycrt_set_text(struct ycrt_meta1 *v, const char *s, size_t n);
/* Empties a varspace result (no allocation). */
void ycrt_clear(struct ycrt_meta1 *v);

/* A checked target: argument 1 of fgets, fread, sprintf, strcat, strcpy and
   strrpl. need and limit are the two slots after the return variables, both
   NULL for a varspace. */
struct ycrt_target {
   struct ycrt_meta1 *m;
   unsigned *need;
   unsigned *limit;
};
struct ycrt_target ycrt_target_of(void *returns[], unsigned nreturns, struct ycrt_meta1 *m);
/* Makes the target hold its first `keep` characters followed by the n
   characters at s. A fixed-space takes what fits and reports the rest. 0, or
   -1 when memory fails (the target is then unchanged). */
int ycrt_target_put(struct ycrt_target *t, size_t keep, const char *s, size_t n);
/* Ends a target that was filled directly: total characters were produced of
   which the first min(total, limit1) are in its block. */
void ycrt_target_finish(struct ycrt_target *t, size_t total);

/* A growable byte buffer for results built piece by piece. */
struct ycrt_buf {
   char *p;
   size_t n, cap;
};
int ycrt_buf_add(struct ycrt_buf *b, const char *s, size_t n);
int ycrt_buf_fill(struct ycrt_buf *b, char c, size_t n);
char *ycrt_buf_room(struct ycrt_buf *b, size_t n);
void ycrt_buf_free(struct ycrt_buf *b);

/* Little NUL-free number codes for machines and key tables: 7 bits a byte,
   each byte with its top bit set. */
void ycrt_put7(unsigned char *p, unsigned long v, int bytes);
unsigned long ycrt_get7(const unsigned char *p, int bytes);

/* ---- files.c ---- */
/* The FILE of an open file number, ready for reading (writing 0) or writing
   (writing 1); NULL when the number is not open. */
#define YCRT_LOOKUP (-1) /* ycrt_file: find the file, switch nothing */
void *ycrt_file(int file, int writing);
void ycrt_files_close_all(void);
/* The system error in errno as a positive status (EIO when errno is 0). */
int ycrt_errno(void);

/* ---- the library functions ---- */
void _yc__main(void *returns[], struct ycrt_meta1 *args);

void _yc__printf(void *returns[], struct ycrt_meta1 *format, ...);
void _yc__fprintf(void *returns[], int file, struct ycrt_meta1 *format, ...);
void _yc__sprintf(void *returns[], struct ycrt_meta1 *target, struct ycrt_meta1 *format, ...);
void _yc__scanf(void *returns[], struct ycrt_meta1 *format, ...);
void _yc__fscanf(void *returns[], int file, struct ycrt_meta1 *format, ...);
void _yc__sscanf(void *returns[], struct ycrt_meta1 *source, struct ycrt_meta1 *format, ...);

void _yc__fopen(void *returns[], struct ycrt_meta1 *name, struct ycrt_meta1 *mode);
void _yc__fclose(void *returns[], int file);
void _yc__fgetc(void *returns[], int file);
void _yc__fputc(void *returns[], int c, int file);
void _yc__fgets(void *returns[], struct ycrt_meta1 *line, int file);
void _yc__fputs(void *returns[], struct ycrt_meta1 *text, int file);
void _yc__fread(void *returns[], struct ycrt_meta1 *buffer, unsigned count, int file);
void _yc__fwrite(void *returns[], struct ycrt_meta1 *buffer, unsigned count, int file);
void _yc__fseek(void *returns[], int file, long offset, int whence);
void _yc__ftell(void *returns[], int file);
void _yc__fgetall(void *returns[], int file);
void _yc__fputall(void *returns[], int file, struct ycrt_meta1 *text);
void _yc__remove(void *returns[], struct ycrt_meta1 *name);
void _yc__rename(void *returns[], struct ycrt_meta1 *from, struct ycrt_meta1 *to);
void _yc__tmpfile(void *returns[]);
void _yc__tmpnam(void *returns[]);

void _yc__strcpy(void *returns[], struct ycrt_meta1 *target, struct ycrt_meta1 *source);
void _yc__strcat(void *returns[], struct ycrt_meta1 *target, struct ycrt_meta1 *source);
void _yc__strcmp(void *returns[], struct ycrt_meta1 *a, struct ycrt_meta1 *b);
void _yc__strncmp(void *returns[], struct ycrt_meta1 *a, struct ycrt_meta1 *b, unsigned n);
void _yc__strpart(void *returns[], struct ycrt_meta1 *text, unsigned start, unsigned length);
void _yc__stresc(void *returns[], struct ycrt_meta1 *text);
void _yc__strerror(void *returns[], int status);
void _yc__strtod(void *returns[], struct ycrt_meta1 *text);
void _yc__strtol(void *returns[], struct ycrt_meta1 *text, int base);
void _yc__strtoul(void *returns[], struct ycrt_meta1 *text, int base);

void _yc__strreg(void *returns[], struct ycrt_meta1 *expression);
void _yc__strfnd(void *returns[], struct ycrt_meta1 *machine, struct ycrt_meta1 *text, unsigned start);
void _yc__strfndr(void *returns[], struct ycrt_meta1 *machine, struct ycrt_meta1 *text, unsigned start);
void _yc__strrpl(void *returns[], struct ycrt_meta1 *text, struct ycrt_meta1 *machine,
                 struct ycrt_meta1 *replacement);

void _yc__strknew(void *returns[]);
void _yc__strkey(void *returns[], struct ycrt_meta1 *table, struct ycrt_meta1 *key, int value);
void _yc__strkfnd(void *returns[], struct ycrt_meta1 *table, struct ycrt_meta1 *key);
void _yc__strkmap(void *returns[], struct ycrt_meta1 *keys);

void _yc__abs(void *returns[], int x);
void _yc__labs(void *returns[], long x);
void _yc__div(void *returns[], int a, int b);
void _yc__ldiv(void *returns[], long a, long b);
void _yc__merr(void *returns[], double x);
void _yc__merrf(void *returns[], float x);
void _yc__merrl(void *returns[], long double x);
#define YCRT_MATH1(name) \
   void _yc__##name(void *returns[], double x); \
   void _yc__##name##f(void *returns[], float x); \
   void _yc__##name##l(void *returns[], long double x);
#define YCRT_MATH2(name) \
   void _yc__##name(void *returns[], double x, double y); \
   void _yc__##name##f(void *returns[], float x, float y); \
   void _yc__##name##l(void *returns[], long double x, long double y);
YCRT_MATH1(acos)
YCRT_MATH1(asin)
YCRT_MATH1(atan)
YCRT_MATH2(atan2)
YCRT_MATH1(ceil)
YCRT_MATH1(cos)
YCRT_MATH1(exp)
YCRT_MATH1(fabs)
YCRT_MATH1(floor)
YCRT_MATH2(fmod)
YCRT_MATH1(log)
YCRT_MATH1(log10)
YCRT_MATH2(pow)
YCRT_MATH1(sin)
YCRT_MATH1(sqrt)
YCRT_MATH1(tan)

void _yc__isalnum(void *returns[], int c);
void _yc__isalpha(void *returns[], int c);
void _yc__isdigit(void *returns[], int c);
void _yc__islower(void *returns[], int c);
void _yc__isspace(void *returns[], int c);
void _yc__isupper(void *returns[], int c);
void _yc__tolower(void *returns[], int c);
void _yc__toupper(void *returns[], int c);

void _yc__time(void *returns[]);
void _yc__clock(void *returns[]);
void _yc__difftime(void *returns[], long t1, long t0);
void _yc__gmtime(void *returns[], long t);
void _yc__localtime(void *returns[], long t);
void _yc__mktime(void *returns[], struct ycrt_tm *when);
void _yc__ctime(void *returns[], long t);
void _yc__strftime(void *returns[], struct ycrt_meta1 *format, struct ycrt_tm *when);

void _yc__exit(void *returns[], int status);
void _yc__getenv(void *returns[], struct ycrt_meta1 *name);
void _yc__system(void *returns[], struct ycrt_meta1 *command);
void _yc__rand(void *returns[]);

void _yc__qsort(void *returns[], void *table, unsigned size, unsigned count, ycrt_compare compare);
void _yc__bsearch(void *returns[], void *table, unsigned size, void *key, ycrt_compare compare);

#endif
