/* Text functions: copying and appending into checked targets, comparing,
   taking parts, escaping, and the texts of statuses. */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ycrt_lib.h"

void _yc__strcpy(void *returns[], struct ycrt_meta1 *target, struct ycrt_meta1 *source)
{
   struct ycrt_target t = ycrt_target_of(returns, 0, target);
   if (ycrt_target_put(&t, 0, ycrt_chars(source), ycrt_len(source)) != 0)
      ycrt_raise_memory(returns);
}

void _yc__strcat(void *returns[], struct ycrt_meta1 *target, struct ycrt_meta1 *source)
{
   struct ycrt_target t = ycrt_target_of(returns, 0, target);
   /* measured first: target and source may be the same space */
   size_t keep = ycrt_len(target), n = ycrt_len(source);
   if (ycrt_target_put(&t, keep, ycrt_chars(source), n) != 0)
      ycrt_raise_memory(returns);
}

static int compare(const struct ycrt_meta1 *a, const struct ycrt_meta1 *b, size_t limit)
{
   size_t na = ycrt_len(a), nb = ycrt_len(b);
   int d;
   if (na > limit)
      na = limit;
   if (nb > limit)
      nb = limit;
   d = memcmp(ycrt_chars(a), ycrt_chars(b), na < nb ? na : nb);
   if (d == 0)
      return na < nb ? -1 : na > nb;
   return d < 0 ? -1 : 1;
}

void _yc__strcmp(void *returns[], struct ycrt_meta1 *a, struct ycrt_meta1 *b)
{
   *(int *)returns[1] = compare(a, b, (size_t)-1);
}

void _yc__strncmp(void *returns[], struct ycrt_meta1 *a, struct ycrt_meta1 *b, unsigned n)
{
   *(int *)returns[1] = compare(a, b, n);
}

void _yc__strpart(void *returns[], struct ycrt_meta1 *text, unsigned start, unsigned length)
{
   struct ycrt_meta1 *part = returns[1];
   size_t n = ycrt_len(text);
   if (start > n)
      start = (unsigned)n;
   if (length > n - start)
      length = (unsigned)(n - start);
   if (ycrt_set_text(part, ycrt_chars(text) + start, length) != 0)
      ycrt_raise_memory(returns);
}

/* The C escape of a character, or NULL when it stands for itself. */
static const char *escape_of(unsigned char c)
{
   switch (c) {
   case '\a': return "\\a";
   case '\b': return "\\b";
   case '\f': return "\\f";
   case '\n': return "\\n";
   case '\r': return "\\r";
   case '\t': return "\\t";
   case '\v': return "\\v";
   case '"': return "\\\"";
   case '\'': return "\\'";
   case '\\': return "\\\\";
   }
   return NULL;
}

void _yc__stresc(void *returns[], struct ycrt_meta1 *text)
{
   struct ycrt_meta1 *escaped = returns[1];
   const char *s = ycrt_chars(text);
   size_t n = ycrt_len(text), i;
   struct ycrt_buf b = {NULL, 0, 0};
   int failed = 0;
   for (i = 0; i < n && !failed; ++i) {
      unsigned char c = (unsigned char)s[i];
      const char *e = escape_of(c);
      if (e != NULL) {
         failed = ycrt_buf_add(&b, e, 2);
      } else if (c < 0x20 || c == 0x7f) {
         /* always three octal digits, so a following digit cannot join */
         char *room = ycrt_buf_room(&b, 4);
         failed = room == NULL;
         if (!failed) {
            room[0] = '\\';
            room[1] = (char)('0' + (c >> 6));
            room[2] = (char)('0' + ((c >> 3) & 7));
            room[3] = (char)('0' + (c & 7));
            b.n += 4;
         }
      } else {
         failed = ycrt_buf_add(&b, s + i, 1);
      }
   }
   if (failed || ycrt_set_text(escaped, b.p != NULL ? b.p : "", b.n) != 0)
      ycrt_raise_memory(returns);
   ycrt_buf_free(&b);
}

static const char *const library_texts[] = {
   "Not found",
   "At end of file",
   "File number is invalid",
   "Too many open files",
   "Machine is empty",
   "Expression can match nothing",
   "Expression is malformed",
   "Invalid argument",
};

void _yc__strerror(void *returns[], int status)
{
   struct ycrt_meta1 *text = returns[1];
   const char *s;
   char *own = NULL;
   int nlibrary = (int)(sizeof library_texts / sizeof library_texts[0]);
   if (status < 0 && status >= -nlibrary) {
      s = library_texts[-status - 1];
   } else if (status >= 0 || status < YCRT_SYSTEM_BASE) {
      /* 0 and the system's numbers, also as given by the value-returning
         functions: YCRT_SYSTEM_BASE - e */
      s = strerror(status >= 0 ? status : YCRT_SYSTEM_BASE - status);
   } else {
      int n = snprintf(NULL, 0, "Unknown status %d", status);
      own = ycrt_malloc((size_t)n + 1);
      if (own == NULL) {
         ycrt_raise_memory(returns);
         return;
      }
      snprintf(own, (size_t)n + 1, "Unknown status %d", status);
      s = own;
   }
   if (ycrt_set_text(text, s, strlen(s)) != 0)
      ycrt_raise_memory(returns);
   free(own);
}
