/* The scanf family. Every conversion reads the longest run of characters
   that is, or begins, an item of its kind, with one character of look-ahead
   as the C library has; the run is then converted by strtol, strtoul or
   strtod. As in the GNU C library, a run that only begins an item ("1e",
   "0x") gives the number its longest valid start spells; a run with no
   valid start is a matching failure. */
#include <ctype.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ycrt_lib.h"

struct reader {
   FILE *fp;        /* a file, or */
   const char *s;   /* a text */
   size_t n, i;
};

static int get(struct reader *r)
{
   if (r->fp != NULL)
      return getc(r->fp);
   return r->i < r->n ? (unsigned char)r->s[r->i++] : EOF;
}

static void unget(struct reader *r, int c)
{
   if (c == EOF)
      return;
   if (r->fp != NULL)
      ungetc(c, r->fp);
   else
      --r->i;
}

/* Skips white space; the first other character (left unread), or EOF. */
static int skip_space(struct reader *r)
{
   int c;
   while ((c = get(r)) != EOF && isspace(c))
      ;
   unget(r, c);
   return c;
}

static int is_digit_of(int c, int base)
{
   if (c >= '0' && c <= '9')
      return c - '0' < base;
   if (base == 16)
      return isxdigit(c) != 0;
   return 0;
}

/* The integer states: 0 start, 1 after a sign, 2 a leading 0, 3 after 0x, 4
   digits. A base of 0 becomes 8 or 16 after the leading 0. */
static int integer_next(int *state, int *base, int c)
{
   switch (*state) {
   case 0:
      if (c == '+' || c == '-') {
         *state = 1;
         return 1;
      }
      /* fall through */
   case 1:
      if (c == '0' && (*base == 0 || *base == 16)) {
         *state = 2;
         return 1;
      }
      if (is_digit_of(c, *base == 0 ? 10 : *base)) {
         if (*base == 0)
            *base = 10;
         *state = 4;
         return 1;
      }
      return 0;
   case 2:
      if (c == 'x' || c == 'X') {
         *base = 16;
         *state = 3;
         return 1;
      }
      if (*base == 0)
         *base = 8;
      if (is_digit_of(c, *base)) {
         *state = 4;
         return 1;
      }
      return 0;
   case 3:
   case 4:
      if (is_digit_of(c, *base)) {
         *state = 4;
         return 1;
      }
      return 0;
   }
   return 0;
}

enum {
   F_START, F_SIGN, F_INT, F_DOT, F_FRAC, F_E, F_ESIGN, F_EXP, F_ZERO, F_0X, F_HEX, F_0XDOT,
   F_HEXFRAC, F_P, F_PSIGN, F_PEXP, F_WORD, F_NANCHARS, F_NANEND
};

struct float_state {
   int state;
   const char *word; /* "infinity" or "nan" while spelling one */
   size_t at;
};

static int float_next(struct float_state *f, int c)
{
   int lower = tolower(c);
   switch (f->state) {
   case F_START:
      if (c == '+' || c == '-') {
         f->state = F_SIGN;
         return 1;
      }
      /* fall through */
   case F_SIGN:
      if (lower == 'i' || lower == 'n') {
         f->word = lower == 'i' ? "infinity" : "nan";
         f->at = 1;
         f->state = F_WORD;
         return 1;
      }
      if (c == '0') {
         f->state = F_ZERO;
         return 1;
      }
      if (isdigit(c)) {
         f->state = F_INT;
         return 1;
      }
      if (c == '.') {
         f->state = F_DOT;
         return 1;
      }
      return 0;
   case F_ZERO:
      if (lower == 'x') {
         f->state = F_0X;
         return 1;
      }
      /* fall through */
   case F_INT:
      if (isdigit(c))
         return f->state = F_INT, 1;
      if (c == '.')
         return f->state = F_FRAC, 1;
      if (lower == 'e')
         return f->state = F_E, 1;
      return 0;
   case F_DOT:
      return isdigit(c) ? (f->state = F_FRAC, 1) : 0;
   case F_FRAC:
      if (isdigit(c))
         return 1;
      return lower == 'e' ? (f->state = F_E, 1) : 0;
   case F_E:
      if (c == '+' || c == '-')
         return f->state = F_ESIGN, 1;
      /* fall through */
   case F_ESIGN:
   case F_EXP:
      return isdigit(c) ? (f->state = F_EXP, 1) : 0;
   case F_0X:
      if (isxdigit(c))
         return f->state = F_HEX, 1;
      return c == '.' ? (f->state = F_0XDOT, 1) : 0;
   case F_HEX:
      if (isxdigit(c))
         return 1;
      if (c == '.')
         return f->state = F_HEXFRAC, 1;
      return lower == 'p' ? (f->state = F_P, 1) : 0;
   case F_0XDOT:
      return isxdigit(c) ? (f->state = F_HEXFRAC, 1) : 0;
   case F_HEXFRAC:
      if (isxdigit(c))
         return 1;
      return lower == 'p' ? (f->state = F_P, 1) : 0;
   case F_P:
      if (c == '+' || c == '-')
         return f->state = F_PSIGN, 1;
      /* fall through */
   case F_PSIGN:
   case F_PEXP:
      return isdigit(c) ? (f->state = F_PEXP, 1) : 0;
   case F_WORD:
      if (f->word[f->at] != 0 && lower == f->word[f->at]) {
         ++f->at;
         return 1;
      }
      if (f->word[0] == 'n' && f->at == 3 && c == '(')
         return f->state = F_NANCHARS, 1;
      return 0;
   case F_NANCHARS:
      if (isalnum(c) || c == '_')
         return 1;
      return c == ')' ? (f->state = F_NANEND, 1) : 0;
   }
   return 0;
}

enum { GOT_ITEM, NO_MATCH, NO_INPUT, NO_MEMORY };

/* Collects a numeric item into t (NUL-terminated). */
static int collect_number(struct reader *r, struct ycrt_buf *t, size_t width, int floating, int *base)
{
   struct float_state fs = {F_START, NULL, 0};
   int state = 0, c = EOF;
   t->n = 0;
   if (skip_space(r) == EOF)
      return NO_INPUT;
   while (t->n < width && (c = get(r)) != EOF) {
      char ch = (char)c;
      if (!(floating ? float_next(&fs, c) : integer_next(&state, base, c)))
         break;
      if (ycrt_buf_add(t, &ch, 1) != 0)
         return NO_MEMORY;
      c = EOF;
   }
   unget(r, c);
   if (ycrt_buf_add(t, "", 1) != 0)
      return NO_MEMORY;
   /* the GNU C library refuses a floating "0x" that no digit follows */
   if (floating && fs.state == F_0X)
      return NO_MATCH;
   return t->n > 1 ? GOT_ITEM : NO_MATCH;
}

struct conversion {
   int suppress;
   size_t width; /* (size_t)-1 when none */
   char length, conv;
};

static size_t parse_conversion(const char *f, size_t n, struct conversion *cv)
{
   size_t i = 0;
   cv->suppress = 0;
   cv->width = (size_t)-1;
   cv->length = 0;
   if (i < n && f[i] == '*') {
      cv->suppress = 1;
      ++i;
   }
   while (i < n && f[i] != 0 && strchr("-+ #0", f[i]) != NULL)
      ++i;
   if (i < n && isdigit((unsigned char)f[i])) {
      cv->width = 0;
      while (i < n && isdigit((unsigned char)f[i])) {
         if (cv->width < (size_t)-1 / 20)
            cv->width = cv->width * 10 + (size_t)(f[i] - '0');
         ++i;
      }
   }
   if (i < n && f[i] == '.')
      for (++i; i < n && isdigit((unsigned char)f[i]); ++i)
         ;
   if (i < n && (f[i] == 'l' || f[i] == 'L'))
      cv->length = f[i++];
   if (i >= n || f[i] == 0 || strchr("diuxXfeEgGcs", f[i]) == NULL)
      return 0;
   cv->conv = f[i];
   return i + 1;
}

/* Whether the run begins with a number of the conversion's kind. */
static int number_starts(const struct conversion *cv, const char *text, int base)
{
   char *end;
   if (strchr("feEgG", cv->conv) != NULL)
      strtod(text, &end);
   else
      strtoul(text, &end, base);
   return end > text;
}

static void store_number(const struct conversion *cv, const char *text, int base, va_list *ap)
{
   switch (cv->conv) {
   case 'd':
   case 'i':
      if (cv->length != 0)
         *va_arg(*ap, long *) = strtol(text, NULL, base);
      else
         *va_arg(*ap, int *) = (int)(unsigned)strtoul(text, NULL, base);
      break;
   case 'u':
   case 'x':
   case 'X':
      if (cv->length != 0)
         *va_arg(*ap, unsigned long *) = strtoul(text, NULL, base);
      else
         *va_arg(*ap, unsigned *) = (unsigned)strtoul(text, NULL, base);
      break;
   default:
      if (cv->length == 'L')
         *va_arg(*ap, long double *) = strtold(text, NULL);
      else if (cv->length == 'l')
         *va_arg(*ap, double *) = strtod(text, NULL);
      else
         *va_arg(*ap, float *) = strtof(text, NULL);
   }
}

/* Scans the input; the count of stored items, EOF (-2) when the input ended
   before the first conversion, or -1 when memory failed. */
static int scan(struct reader *r, const struct ycrt_meta1 *format, va_list *ap)
{
   const char *f = ycrt_chars(format);
   size_t n = ycrt_len(format), i = 0;
   struct ycrt_buf t = {NULL, 0, 0};
   int count = 0, converted = 0, outcome = GOT_ITEM;
   while (i < n && outcome == GOT_ITEM) {
      struct conversion cv;
      size_t used;
      int c;
      if (isspace((unsigned char)f[i])) {
         skip_space(r);
         ++i;
         continue;
      }
      if (f[i] != '%' || (i + 1 < n && f[i + 1] == '%')) {
         if (f[i] == '%') {
            skip_space(r);
            ++i;
         }
         c = get(r);
         if (c == EOF)
            outcome = NO_INPUT;
         else if (c != (unsigned char)f[i]) {
            unget(r, c);
            outcome = NO_MATCH;
         }
         ++i;
         continue;
      }
      used = parse_conversion(f + i + 1, n - i - 1, &cv);
      if (used == 0) {
         outcome = NO_MATCH;
         break;
      }
      i += 1 + used;
      if (cv.conv == 'c') {
         if (cv.width != (size_t)-1 && cv.width != 1) {
            outcome = NO_MATCH;
            break;
         }
         c = get(r);
         if (c == EOF) {
            outcome = NO_INPUT;
            break;
         }
         if (!cv.suppress)
            *va_arg(*ap, char *) = (char)c;
      } else if (cv.conv == 's') {
         size_t got = 0;
         if (skip_space(r) == EOF) {
            outcome = NO_INPUT;
            break;
         }
         t.n = 0;
         while (got < cv.width && (c = get(r)) != EOF) {
            char ch = (char)c;
            if (isspace(c)) {
               unget(r, c);
               break;
            }
            if (ycrt_buf_add(&t, &ch, 1) != 0) {
               outcome = NO_MEMORY;
               break;
            }
            ++got;
         }
         if (outcome == GOT_ITEM && !cv.suppress &&
             ycrt_set_text(va_arg(*ap, struct ycrt_meta1 *), t.p, t.n) != 0)
            outcome = NO_MEMORY;
      } else {
         int floating = strchr("feEgG", cv.conv) != NULL;
         int base = cv.conv == 'i' ? 0 : cv.conv == 'x' || cv.conv == 'X' ? 16 : 10;
         outcome = collect_number(r, &t, cv.width, floating, &base);
         if (outcome == GOT_ITEM && !number_starts(&cv, t.p, cv.conv == 'i' ? 0 : base))
            outcome = NO_MATCH;
         if (outcome == GOT_ITEM && !cv.suppress)
            store_number(&cv, t.p, cv.conv == 'i' ? 0 : base, ap);
      }
      if (outcome == GOT_ITEM) {
         converted = 1;
         if (!cv.suppress)
            ++count;
      }
   }
   ycrt_buf_free(&t);
   if (outcome == NO_MEMORY)
      return -1;
   if (outcome == NO_INPUT && !converted && count == 0)
      return YCRT_END_OF_FILE;
   return count;
}

static void finish(void *returns[], int result)
{
   if (result == -1)
      ycrt_raise_memory(returns);
   else
      *(int *)returns[1] = result;
}

void _yc__scanf(void *returns[], struct ycrt_meta1 *format, ...)
{
   struct reader r = {NULL, NULL, 0, 0};
   va_list ap;
   r.fp = ycrt_file(0, 0);
   if (r.fp == NULL) {
      *(int *)returns[1] = YCRT_BAD_FILE;
      return;
   }
   va_start(ap, format);
   finish(returns, scan(&r, format, &ap));
   va_end(ap);
}

void _yc__fscanf(void *returns[], int file, struct ycrt_meta1 *format, ...)
{
   struct reader r = {NULL, NULL, 0, 0};
   va_list ap;
   r.fp = ycrt_file(file, 0);
   if (r.fp == NULL) {
      *(int *)returns[1] = YCRT_BAD_FILE;
      return;
   }
   va_start(ap, format);
   finish(returns, scan(&r, format, &ap));
   va_end(ap);
}

void _yc__sscanf(void *returns[], struct ycrt_meta1 *source, struct ycrt_meta1 *format, ...)
{
   struct reader r = {NULL, NULL, 0, 0};
   /* read from a copy: a %s argument may be the source itself */
   char *copy = ycrt_cstring(source);
   va_list ap;
   if (copy == NULL) {
      ycrt_raise_memory(returns);
      return;
   }
   r.s = copy;
   r.n = strlen(copy);
   va_start(ap, format);
   finish(returns, scan(&r, format, &ap));
   va_end(ap);
   free(copy);
}
