/* qsort and bsearch with a comparison in the YARL C calling convention:
   stable against a reference sort, stopped by an exception. */
#include <stdlib.h>
#include <string.h>

#include "check.h"

struct record {
   int key;
   int serial;
};

static int raise_after = -1;

static void compare(void *returns[], void *a, void *b)
{
   const struct record *x = a, *y = b;
   if (raise_after == 0) {
      *(int *)returns[0] = 77;
      return;
   }
   if (raise_after > 0)
      --raise_after;
   *(int *)returns[1] = x->key < y->key ? -1 : x->key > y->key;
}

/* Insertion sort: stable, obviously right. */
static void reference(struct record *r, size_t n)
{
   size_t i, j;
   for (i = 1; i < n; ++i) {
      struct record x = r[i];
      for (j = i; j > 0 && r[j - 1].key > x.key; --j)
         r[j] = r[j - 1];
      r[j] = x;
   }
}

static void sorting(void)
{
   static const size_t sizes[] = {0, 1, 2, 3, 7, 64, 1000, 3001};
   size_t s, i;
   test_seed(3);
   for (s = 0; s < sizeof sizes / sizeof sizes[0]; ++s) {
      size_t n = sizes[s];
      struct record *a = malloc((n + 1) * sizeof *a), *b = malloc((n + 1) * sizeof *b);
      struct ycrt_meta1 table;
      unsigned count;
      struct call c;
      for (count = 0; count < 3; ++count) {
         size_t sorted = count == 0 ? n : count == 1 ? n / 2 : n + 5;
         for (i = 0; i < n; ++i) {
            a[i].key = (int)(test_random() % (n / 4 + 1));
            a[i].serial = (int)i;
         }
         memcpy(b, a, n * sizeof *a);
         reference(b, sorted < n ? sorted : n);
         table.ptr = a;
         table.occurs = (unsigned)n;
         table.limit1 = (unsigned)n;
         call_init(&c, NULL, NULL);
         _yc__qsort(c.r, &table, sizeof(struct record), (unsigned)sorted, compare);
         CHECK(c.exception == 0 && memcmp(a, b, n * sizeof *a) == 0, "qsort of %u, count %u", (unsigned)n,
               (unsigned)sorted);
      }
      for (i = 0; i < n; ++i) {
         int index;
         struct record key;
         key.key = a[i].key;
         call_init(&c, &index, NULL);
         _yc__bsearch(c.r, &table, sizeof(struct record), &key, compare);
         CHECK(index >= 0 && a[index].key == a[i].key, "bsearch %d", key.key);
      }
      {
         int index;
         struct record key = {-5, 0};
         call_init(&c, &index, NULL);
         _yc__bsearch(c.r, &table, sizeof(struct record), &key, compare);
         CHECK(index == -1, "bsearch of a missing key");
      }
      free(a);
      free(b);
   }
}

static void exceptions(void)
{
   size_t n = 500, i;
   struct record *a = malloc(n * sizeof *a);
   int seen[500] = {0}, k;
   struct ycrt_meta1 table;
   struct call c;
   for (k = 0; k < 3; ++k) {
      for (i = 0; i < n; ++i) {
         a[i].key = (int)((i * 37) % 101);
         a[i].serial = (int)i;
      }
      table.ptr = a;
      table.occurs = table.limit1 = (unsigned)n;
      raise_after = k == 0 ? 0 : k == 1 ? 100 : 3000;
      call_init(&c, NULL, NULL);
      _yc__qsort(c.r, &table, sizeof *a, (unsigned)n, compare);
      CHECK(c.exception == 77, "the comparison's exception is passed on (after %d)", k);
      memset(seen, 0, sizeof seen);
      for (i = 0; i < n; ++i)
         seen[a[i].serial]++;
      for (i = 0; i < n && seen[i] == 1; ++i)
         ;
      CHECK(i == n, "the table is a permutation after the exception");
   }
   {
      int index = 5;
      struct record key = {3, 0};
      raise_after = 0;
      call_init(&c, &index, NULL);
      _yc__bsearch(c.r, &table, sizeof *a, &key, compare);
      CHECK(index == -1 && c.exception == 0, "bsearch drops the exception");
   }
   raise_after = -1;
   free(a);
}

void test_sort(void)
{
   sorting();
   exceptions();
}
