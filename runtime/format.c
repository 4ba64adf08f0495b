/* The printf family. Each conversion is handed to the C library's snprintf
   with the same flags, width and precision, so the output is the C
   library's byte for byte; %s prints a character space's text. The whole
   output is built in memory and then written or stored in one piece. */
#include <errno.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ycrt_lib.h"

struct spec {
   const char *flags;
   size_t nflags;
   int minus;
   int width_star, prec_star, has_prec;
   const char *width, *prec; /* digits in the format */
   size_t nwidth, nprec;
   char length; /* 0, 'l' or 'L' */
   char conv;
};

/* Reads one conversion after its '%'; the characters it used, or 0 when it
   is not one of the accepted forms. */
static size_t parse_spec(const char *f, size_t n, struct spec *s)
{
   size_t i = 0;
   memset(s, 0, sizeof *s);
   s->flags = f;
   while (i < n && strchr("-+ #0", f[i]) != NULL && f[i] != 0) {
      if (f[i] == '-')
         s->minus = 1;
      ++i;
   }
   s->nflags = i;
   if (i < n && f[i] == '*') {
      s->width_star = 1;
      ++i;
   } else {
      s->width = f + i;
      while (i < n && f[i] >= '0' && f[i] <= '9')
         ++i;
      s->nwidth = (size_t)(f + i - s->width);
   }
   if (i < n && f[i] == '.') {
      s->has_prec = 1;
      ++i;
      if (i < n && f[i] == '*') {
         s->prec_star = 1;
         ++i;
      } else {
         s->prec = f + i;
         while (i < n && f[i] >= '0' && f[i] <= '9')
            ++i;
         s->nprec = (size_t)(f + i - s->prec);
      }
   }
   if (i < n && (f[i] == 'l' || f[i] == 'L'))
      s->length = f[i++];
   if (i >= n || f[i] == 0 || strchr("diuxXfeEgGcs", f[i]) == NULL)
      return 0;
   s->conv = f[i++];
   return i;
}

/* The C text of a conversion for snprintf: stars stay stars, the length is
   the one the argument's C type needs. */
static int spec_text(struct ycrt_buf *t, const struct spec *s)
{
   t->n = 0;
   if (ycrt_buf_add(t, "%", 1) != 0 || ycrt_buf_add(t, s->flags, s->nflags) != 0)
      return -1;
   if (s->width_star ? ycrt_buf_add(t, "*", 1) : ycrt_buf_add(t, s->width, s->nwidth))
      return -1;
   if (s->has_prec && (ycrt_buf_add(t, ".", 1) != 0 ||
                       (s->prec_star ? ycrt_buf_add(t, "*", 1) : ycrt_buf_add(t, s->prec, s->nprec))))
      return -1;
   if (s->length != 0 && strchr("diuxX", s->conv) != NULL && ycrt_buf_add(t, "l", 1) != 0)
      return -1;
   if (s->length == 'L' && strchr("feEgG", s->conv) != NULL && ycrt_buf_add(t, "L", 1) != 0)
      return -1;
   return ycrt_buf_add(t, &s->conv, 1) != 0 || ycrt_buf_add(t, "", 1) != 0 ? -1 : 0;
}

/* Calls snprintf with 0, 1 or 2 star values before the value. */
#define CALL(dst, size, fmt, nstars, stars, value) \
   ((nstars) == 0 ? snprintf(dst, size, fmt, value) \
    : (nstars) == 1 ? snprintf(dst, size, fmt, (stars)[0], value) \
                    : snprintf(dst, size, fmt, (stars)[0], (stars)[1], value))

/* Formats one value twice: once to measure, once into the room made. */
#define FORMAT(out, fmt, nstars, stars, value, result) \
   do { \
      int need_ = CALL(NULL, 0, fmt, nstars, stars, value); \
      char *room_; \
      if (need_ < 0) { \
         result = -2; \
         break; \
      } \
      room_ = ycrt_buf_room(out, (size_t)need_ + 1); \
      if (room_ == NULL) { \
         result = -1; \
         break; \
      } \
      CALL(room_, (size_t)need_ + 1, fmt, nstars, stars, value); \
      (out)->n += (size_t)need_; \
      result = 0; \
   } while (0)

static size_t digits_value(const char *d, size_t n)
{
   size_t v = 0;
   for (; n > 0; ++d, --n)
      v = v > ((size_t)-1 - 9) / 10 ? (size_t)-1 : v * 10 + (size_t)(*d - '0');
   return v;
}

/* %s: the text of a character space, cut to the precision, padded to the
   width with blanks (the C library ignores the 0 flag here). */
static int put_text(struct ycrt_buf *out, const struct spec *s, int *stars, const struct ycrt_meta1 *m)
{
   size_t n = ycrt_len(m), width = 0, pad;
   int left = s->minus, k = 0;
   if (s->width_star) {
      int w = stars[k++];
      if (w < 0) {
         left = 1;
         width = (size_t)-(long)w;
      } else {
         width = (size_t)w;
      }
   } else {
      width = digits_value(s->width, s->nwidth);
   }
   if (s->has_prec) {
      if (s->prec_star) {
         int p = stars[k];
         if (p >= 0 && (size_t)p < n)
            n = (size_t)p;
      } else {
         size_t p = digits_value(s->prec, s->nprec);
         if (p < n)
            n = p;
      }
   }
   if (n > 2147483647 || width > 2147483647)
      return -2;
   pad = width > n ? width - n : 0;
   if (!left && ycrt_buf_fill(out, ' ', pad) != 0)
      return -1;
   if (ycrt_buf_add(out, ycrt_chars(m), n) != 0)
      return -1;
   if (left && ycrt_buf_fill(out, ' ', pad) != 0)
      return -1;
   return 0;
}

/* Builds the whole output. 0; -1 memory failed; -2 the C library refused a
   conversion (errno says why). */
static int build(struct ycrt_buf *out, const struct ycrt_meta1 *format, va_list ap)
{
   const char *f = ycrt_chars(format);
   size_t n = ycrt_len(format), i = 0;
   struct ycrt_buf t = {NULL, 0, 0};
   int result = 0;
   while (i < n && result == 0) {
      struct spec s;
      size_t used;
      int stars[2], nstars = 0;
      const char *pct = memchr(f + i, '%', n - i);
      size_t plain = pct != NULL ? (size_t)(pct - (f + i)) : n - i;
      if (ycrt_buf_add(out, f + i, plain) != 0) {
         result = -1;
         break;
      }
      i += plain;
      if (i >= n)
         break;
      if (i + 1 < n && f[i + 1] == '%') {
         result = ycrt_buf_add(out, "%", 1);
         i += 2;
         continue;
      }
      used = parse_spec(f + i + 1, n - i - 1, &s);
      if (used == 0) {
         /* not a conversion: kept as written, no argument taken */
         result = ycrt_buf_add(out, "%", 1);
         ++i;
         continue;
      }
      i += 1 + used;
      if (s.width_star)
         stars[nstars++] = va_arg(ap, int);
      if (s.prec_star)
         stars[nstars++] = va_arg(ap, int);
      if (s.conv == 's') {
         result = put_text(out, &s, stars, va_arg(ap, struct ycrt_meta1 *));
         continue;
      }
      if (spec_text(&t, &s) != 0) {
         result = -1;
         break;
      }
      errno = 0;
      /* the value is taken once: FORMAT uses it twice */
      if (strchr("di", s.conv) != NULL && s.length != 0) {
         long v = va_arg(ap, long);
         FORMAT(out, t.p, nstars, stars, v, result);
      } else if (strchr("uxX", s.conv) != NULL && s.length != 0) {
         unsigned long v = va_arg(ap, unsigned long);
         FORMAT(out, t.p, nstars, stars, v, result);
      } else if (strchr("uxX", s.conv) != NULL) {
         unsigned v = va_arg(ap, unsigned);
         FORMAT(out, t.p, nstars, stars, v, result);
      } else if (strchr("dic", s.conv) != NULL) {
         int v = va_arg(ap, int);
         FORMAT(out, t.p, nstars, stars, v, result);
      } else if (s.length == 'L') {
         long double v = va_arg(ap, long double);
         FORMAT(out, t.p, nstars, stars, v, result);
      } else {
         double v = va_arg(ap, double);
         FORMAT(out, t.p, nstars, stars, v, result);
      }
   }
   ycrt_buf_free(&t);
   if (result == 0 && out->n > 2147483647) {
      errno = ERANGE;
      result = -2;
   }
   return result;
}

/* The count of a failed call: the system error as a negative value. */
static int failed_count(void)
{
   return YCRT_SYSTEM_BASE - ycrt_errno();
}

static void to_file(void *returns[], int file, const struct ycrt_meta1 *format, va_list ap)
{
   int *count = returns[1];
   struct ycrt_buf out = {NULL, 0, 0};
   FILE *fp = ycrt_file(file, 1);
   int result;
   if (fp == NULL) {
      *count = YCRT_BAD_FILE;
      return;
   }
   result = build(&out, format, ap);
   if (result == -1) {
      ycrt_raise_memory(returns);
   } else if (result == -2) {
      *count = failed_count();
   } else {
      errno = 0;
      *count = out.n == 0 || fwrite(out.p, 1, out.n, fp) == out.n ? (int)out.n : failed_count();
   }
   ycrt_buf_free(&out);
}

void _yc__printf(void *returns[], struct ycrt_meta1 *format, ...)
{
   va_list ap;
   va_start(ap, format);
   to_file(returns, 1, format, ap);
   va_end(ap);
}

void _yc__fprintf(void *returns[], int file, struct ycrt_meta1 *format, ...)
{
   va_list ap;
   va_start(ap, format);
   to_file(returns, file, format, ap);
   va_end(ap);
}

void _yc__sprintf(void *returns[], struct ycrt_meta1 *target, struct ycrt_meta1 *format, ...)
{
   int *count = returns[1];
   struct ycrt_target t = ycrt_target_of(returns, 1, target);
   struct ycrt_buf out = {NULL, 0, 0};
   int result;
   va_list ap;
   va_start(ap, format);
   result = build(&out, format, ap);
   va_end(ap);
   if (result == 0 && ycrt_target_put(&t, 0, out.p, out.n) != 0)
      result = -1;
   if (result == -1)
      ycrt_raise_memory(returns);
   else if (result == -2)
      *count = failed_count();
   else
      *count = (int)out.n;
   ycrt_buf_free(&out);
}
