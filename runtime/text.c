/* What every area of the library shares: the one place memory is requested,
   reading texts out of character spaces, filling varspace results and
   checked targets, growable buffers and the NUL-free number code. */
#include <stdlib.h>
#include <string.h>
#include <limits.h>

#include "ycrt_lib.h"

long ycrt_alloc_budget = -1;

static int budget_spent(void)
{
   if (ycrt_alloc_budget < 0)
      return 0;
   if (ycrt_alloc_budget == 0)
      return 1;
   --ycrt_alloc_budget;
   return 0;
}

void *ycrt_malloc(size_t n)
{
   if (budget_spent())
      return NULL;
   return malloc(n > 0 ? n : 1);
}

void *ycrt_realloc(void *p, size_t n)
{
   if (budget_spent())
      return NULL;
   return realloc(p, n > 0 ? n : 1);
}

void ycrt_raise_memory(void *returns[])
{
   *(int *)returns[0] = YCRT_MEMORY;
}

size_t ycrt_all_len(const struct ycrt_meta1 *m)
{
   if (m == NULL || m->ptr == NULL)
      return 0;
   return m->occurs < m->limit1 ? m->occurs : m->limit1;
}

const char *ycrt_chars(const struct ycrt_meta1 *m)
{
   return m != NULL && m->ptr != NULL ? (const char *)m->ptr : "";
}

size_t ycrt_len(const struct ycrt_meta1 *m)
{
   size_t n = ycrt_all_len(m);
   const char *nul = n > 0 ? memchr(m->ptr, 0, n) : NULL;
   return nul != NULL ? (size_t)(nul - (const char *)m->ptr) : n;
}

char *ycrt_cstring(const struct ycrt_meta1 *m)
{
   size_t n = ycrt_len(m);
   char *s = ycrt_malloc(n + 1);
   if (s == NULL)
      return NULL;
   if (n > 0)
      memcpy(s, m->ptr, n);
   s[n] = 0;
   return s;
}

int ycrt_reserve(struct ycrt_meta1 *v, size_t need, const char **alias)
{
   char *old = v->limit1 > 0 ? v->ptr : NULL, *p;
   size_t offset = 0;
   int inside = 0;
   if (need <= v->limit1)
      return 0;
   if (need > UINT_MAX)
      return -1;
   if (alias != NULL && old != NULL && *alias >= old && *alias < old + v->limit1) {
      inside = 1;
      offset = (size_t)(*alias - old);
   }
   p = ycrt_realloc(old, need);
   if (p == NULL)
      return -1;
   if (inside)
      *alias = p + offset;
   v->ptr = p;
   v->limit1 = (unsigned)need;
   return 0;
}

int ycrt_set_text(struct ycrt_meta1 *v, const char *s, size_t n)
{
   if (n >= UINT_MAX || ycrt_reserve(v, n + 1, &s) != 0)
      return -1;
   if (n > 0)
      memmove(v->ptr, s, n);
   ((char *)v->ptr)[n] = 0;
   v->occurs = (unsigned)n;
   return 0;
}

void ycrt_clear(struct ycrt_meta1 *v)
{
   v->occurs = 0;
   if (v->limit1 > 0 && v->ptr != NULL)
      *(char *)v->ptr = 0;
}

struct ycrt_target ycrt_target_of(void *returns[], unsigned nreturns, struct ycrt_meta1 *m)
{
   struct ycrt_target t;
   t.m = m;
   t.need = returns[nreturns + 1];
   t.limit = returns[nreturns + 2];
   if (t.need == NULL || t.limit == NULL)
      t.need = t.limit = NULL;
   else
      *t.need = 0;
   return t;
}

void ycrt_target_finish(struct ycrt_target *t, size_t total)
{
   size_t limit = t->m->limit1;
   size_t kept = total < limit ? total : limit;
   t->m->occurs = (unsigned)kept;
   if (kept < limit)
      ((char *)t->m->ptr)[kept] = 0;
   if (t->need != NULL) {
      *t->limit = t->m->limit1;
      *t->need = total > limit ? (total > UINT_MAX ? UINT_MAX : (unsigned)total) : 0;
   }
}

int ycrt_target_put(struct ycrt_target *t, size_t keep, const char *s, size_t n)
{
   size_t total = keep + n, room;
   if (t->need == NULL) {
      /* appending to a varspace grows it geometrically so that repeated
         strcat stays linear */
      size_t want = total + 1;
      if (total >= UINT_MAX)
         return -1;
      if (keep > 0 && want > t->m->limit1 && want < 2 * (size_t)t->m->limit1)
         want = 2 * (size_t)t->m->limit1 > UINT_MAX ? UINT_MAX : 2 * (size_t)t->m->limit1;
      if (ycrt_reserve(t->m, want, &s) != 0)
         return -1;
   }
   room = t->m->limit1 > keep ? t->m->limit1 - keep : 0;
   if (n > 0 && room > 0)
      memmove((char *)t->m->ptr + keep, s, n < room ? n : room);
   ycrt_target_finish(t, total);
   return 0;
}

static int buf_grow(struct ycrt_buf *b, size_t n)
{
   size_t cap;
   char *p;
   if (b->cap - b->n >= n)
      return 0;
   if (n > (size_t)-1 / 2 - b->n)
      return -1;
   cap = b->cap > 0 ? b->cap : 64;
   while (cap - b->n < n)
      cap *= 2;
   p = ycrt_realloc(b->p, cap);
   if (p == NULL)
      return -1;
   b->p = p;
   b->cap = cap;
   return 0;
}

char *ycrt_buf_room(struct ycrt_buf *b, size_t n)
{
   return buf_grow(b, n) == 0 ? b->p + b->n : NULL;
}

int ycrt_buf_add(struct ycrt_buf *b, const char *s, size_t n)
{
   if (buf_grow(b, n) != 0)
      return -1;
   if (n > 0)
      memcpy(b->p + b->n, s, n);
   b->n += n;
   return 0;
}

int ycrt_buf_fill(struct ycrt_buf *b, char c, size_t n)
{
   if (n == 0)
      return 0;
   if (buf_grow(b, n) != 0)
      return -1;
   memset(b->p + b->n, c, n);
   b->n += n;
   return 0;
}

void ycrt_buf_free(struct ycrt_buf *b)
{
   free(b->p);
   b->p = NULL;
   b->n = b->cap = 0;
}

void ycrt_put7(unsigned char *p, unsigned long v, int bytes)
{
   int i;
   for (i = 0; i < bytes; ++i, v >>= 7)
      p[i] = (unsigned char)(0x80 | (v & 0x7f));
}

unsigned long ycrt_get7(const unsigned char *p, int bytes)
{
   unsigned long v = 0;
   int i;
   for (i = bytes - 1; i >= 0; --i)
      v = (v << 7) | (p[i] & 0x7f);
   return v;
}
