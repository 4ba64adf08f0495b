/* Key tables: texts mapped to ints, held in an ordinary character space.

   The table is NUL-free text, so it survives copying and storing like any
   other, and holds offsets, never pointers:

     "YCKT", count, slot count      (numbers of NUM bytes, 7 bits a byte)
     slots                          entry offset + 1, or 0 when empty
     entries                        value, key length, key characters

   Slots are found by hashing the key (FNV-1a) and probing linearly; the
   slot array doubles when half full, so lookups take constant expected
   time. An empty text is an empty table. */
#include <ctype.h>
#include <stdlib.h>
#include <string.h>

#include "ycrt_lib.h"

#define MAGIC "YCKT"
#define MAGIC_LEN 4
#define NUM 5 /* 35 bits: any unsigned offset and any int value */
#define HEADER (MAGIC_LEN + 2 * NUM)
#define ENTRY_HEAD (2 * NUM)
#define FIRST_SLOTS 8

struct table {
   unsigned char *p;
   size_t len, count, nslots;
   unsigned char *slots, *entries;
   size_t nentries; /* bytes of the entry area */
};

/* A table holds no NUL byte (every number byte has its top bit set), so its
   text is all its occurs characters: looking for a NUL would cost a pass
   over the whole table at every lookup. */
static size_t table_len(const struct ycrt_meta1 *m)
{
   return ycrt_all_len(m);
}

/* Reads a table's layout; 0, or YCRT_INVALID. */
static int open_table(const struct ycrt_meta1 *m, struct table *t)
{
   t->p = m->ptr;
   t->len = table_len(m);
   if (t->len < HEADER || memcmp(t->p, MAGIC, MAGIC_LEN) != 0)
      return YCRT_INVALID;
   t->count = ycrt_get7(t->p + MAGIC_LEN, NUM);
   t->nslots = ycrt_get7(t->p + MAGIC_LEN + NUM, NUM);
   if (t->nslots < FIRST_SLOTS || (t->nslots & (t->nslots - 1)) != 0 || t->count >= t->nslots ||
       t->nslots > (t->len - HEADER) / NUM)
      return YCRT_INVALID;
   t->slots = t->p + HEADER;
   t->entries = t->slots + t->nslots * NUM;
   t->nentries = t->len - HEADER - t->nslots * NUM;
   return 0;
}

static unsigned long hash(const unsigned char *key, size_t n)
{
   unsigned long h = 2166136261UL;
   size_t i;
   for (i = 0; i < n; ++i)
      h = ((h ^ key[i]) * 16777619UL) & 0xffffffffUL;
   return h;
}

/* The slot of key: the one holding it, or the empty one where it would go.
   -1 when the table is damaged. */
static long find_slot(const struct table *t, const unsigned char *key, size_t n)
{
   size_t i = hash(key, n) & (t->nslots - 1), probes;
   for (probes = 0; probes < t->nslots; ++probes, i = (i + 1) & (t->nslots - 1)) {
      size_t at = ycrt_get7(t->slots + i * NUM, NUM), klen;
      const unsigned char *e;
      if (at == 0)
         return (long)i;
      --at;
      if (at > t->nentries || t->nentries - at < ENTRY_HEAD)
         return -1;
      e = t->entries + at;
      klen = ycrt_get7(e + NUM, NUM);
      if (klen > t->nentries - at - ENTRY_HEAD)
         return -1;
      if (klen == n && memcmp(e + ENTRY_HEAD, key, n) == 0)
         return (long)i;
   }
   return -1;
}

void _yc__strknew(void *returns[])
{
   ycrt_clear(returns[1]);
}

void _yc__strkfnd(void *returns[], struct ycrt_meta1 *table, struct ycrt_meta1 *key)
{
   int *value = returns[1], *status = returns[2];
   struct table t;
   long slot;
   size_t at;
   *value = 0;
   if (table_len(table) == 0) {
      *status = YCRT_NOT_FOUND;
      return;
   }
   if (open_table(table, &t) != 0 ||
       (slot = find_slot(&t, (const unsigned char *)ycrt_chars(key), ycrt_len(key))) < 0) {
      *status = YCRT_INVALID;
      return;
   }
   at = ycrt_get7(t.slots + (size_t)slot * NUM, NUM);
   if (at == 0) {
      *status = YCRT_NOT_FOUND;
      return;
   }
   *value = (int)(unsigned)ycrt_get7(t.entries + at - 1, NUM);
   *status = 0;
}

/* Writes the header and n empty slots of a new table of that size. */
static void lay_out(unsigned char *p, size_t count, size_t nslots)
{
   memcpy(p, MAGIC, MAGIC_LEN);
   ycrt_put7(p + MAGIC_LEN, count, NUM);
   ycrt_put7(p + MAGIC_LEN + NUM, nslots, NUM);
   memset(p + HEADER, 0x80, nslots * NUM);
}

/* Doubles the slot array of a table whose block has room for it, and puts
   every entry in its new slot. */
static void double_slots(struct ycrt_meta1 *m, struct table *t)
{
   size_t at = 0, nslots = 2 * t->nslots;
   memmove(t->p + HEADER + nslots * NUM, t->entries, t->nentries);
   lay_out(t->p, t->count, nslots);
   t->nslots = nslots;
   t->slots = t->p + HEADER;
   t->entries = t->slots + nslots * NUM;
   t->len += t->nslots / 2 * NUM;
   m->occurs = (unsigned)t->len;
   while (at < t->nentries) {
      size_t klen = ycrt_get7(t->entries + at + NUM, NUM);
      long slot = find_slot(t, t->entries + at + ENTRY_HEAD, klen);
      ycrt_put7(t->slots + (size_t)slot * NUM, at + 1, NUM);
      at += ENTRY_HEAD + klen;
   }
}

/* Adds or replaces; 0, YCRT_INVALID, or -1 when memory failed (the table is
   then unchanged). */
static int put_key(struct ycrt_meta1 *m, const unsigned char *key, size_t n, int value)
{
   struct table t;
   size_t need, grow = 0;
   long slot;
   if (table_len(m) == 0) {
      if (ycrt_reserve(m, HEADER + FIRST_SLOTS * NUM + 1, NULL) != 0)
         return -1;
      lay_out(m->ptr, 0, FIRST_SLOTS);
      m->occurs = HEADER + FIRST_SLOTS * NUM;
      ((char *)m->ptr)[m->occurs] = 0;
   }
   if (open_table(m, &t) != 0 || (slot = find_slot(&t, key, n)) < 0)
      return YCRT_INVALID;
   if (ycrt_get7(t.slots + (size_t)slot * NUM, NUM) != 0) {
      size_t at = ycrt_get7(t.slots + (size_t)slot * NUM, NUM) - 1;
      ycrt_put7(t.entries + at, (unsigned long)(unsigned)value, NUM);
      return 0;
   }
   if (2 * (t.count + 1) > t.nslots)
      grow = t.nslots * NUM;
   need = t.len + grow + ENTRY_HEAD + n + 1;
   if (need > 4294967295UL)
      return -1;
   if (need > m->limit1) {
      /* doubling keeps a run of additions linear */
      size_t want = 2 * (size_t)m->limit1 > need ? 2 * (size_t)m->limit1 : need;
      if (want > 4294967295UL)
         want = need;
      if (ycrt_reserve(m, want, NULL) != 0)
         return -1;
      open_table(m, &t);
   }
   if (grow > 0) {
      double_slots(m, &t);
      slot = find_slot(&t, key, n);
   }
   ycrt_put7(t.slots + (size_t)slot * NUM, t.nentries + 1, NUM);
   ycrt_put7(t.p + t.len, (unsigned long)(unsigned)value, NUM);
   ycrt_put7(t.p + t.len + NUM, n, NUM);
   memcpy(t.p + t.len + ENTRY_HEAD, key, n);
   t.len += ENTRY_HEAD + n;
   ycrt_put7(t.p + MAGIC_LEN, t.count + 1, NUM);
   m->occurs = (unsigned)t.len;
   t.p[t.len] = 0;
   return 0;
}

void _yc__strkey(void *returns[], struct ycrt_meta1 *table, struct ycrt_meta1 *key, int value)
{
   /* a key inside the table's own block would move when the table grows */
   char *copy = key->ptr != NULL && key->ptr == table->ptr ? ycrt_cstring(key) : NULL;
   int result;
   if (copy == NULL && key->ptr != NULL && key->ptr == table->ptr) {
      ycrt_raise_memory(returns);
      return;
   }
   result = copy != NULL ? put_key(table, (const unsigned char *)copy, strlen(copy), value)
                         : put_key(table, (const unsigned char *)ycrt_chars(key), ycrt_len(key), value);
   free(copy);
   if (result == -1)
      ycrt_raise_memory(returns);
   else
      *(int *)returns[1] = result;
}

void _yc__strkmap(void *returns[], struct ycrt_meta1 *keys)
{
   struct ycrt_meta1 *table = returns[1];
   size_t n = ycrt_len(keys), i = 0;
   /* the words are read from a copy: the table may be the keys variable */
   char *copy = ycrt_cstring(keys);
   const unsigned char *s = (const unsigned char *)copy;
   int number = 0;
   if (copy == NULL) {
      ycrt_raise_memory(returns);
      return;
   }
   ycrt_clear(table);
   while (i < n) {
      size_t start;
      while (i < n && isspace(s[i]))
         ++i;
      if (i >= n)
         break;
      start = i;
      while (i < n && !isspace(s[i]))
         ++i;
      if (put_key(table, s + start, i - start, ++number) != 0) {
         ycrt_clear(table);
         ycrt_raise_memory(returns);
         break;
      }
   }
   free(copy);
}
