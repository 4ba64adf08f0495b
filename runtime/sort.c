/* Sorting and searching a space of structures with a YARL C comparison
   function, called through its returns array: slot 0 its exception code,
   slot 1 the order it returns. */
#include <stdlib.h>
#include <string.h>

#include "ycrt_lib.h"

/* Compares a with b; 0 and the order, or the exception the comparison
   raised. */
static int call(ycrt_compare compare, void *a, void *b, int *order)
{
   int exception = 0;
   void *r[2];
   r[0] = &exception;
   r[1] = order;
   *order = 0;
   compare(r, a, b);
   return exception;
}

/* Merges the sorted runs [lo, mid) and [mid, hi) through tmp. Equal
   elements keep their order. The table changes only once the merge is
   complete, so an exception leaves it a permutation of its elements. */
static int merge(char *table, char *tmp, size_t size, size_t lo, size_t mid, size_t hi,
                 ycrt_compare compare)
{
   size_t i = lo, j = mid, k = lo;
   int order, exception;
   exception = call(compare, table + (mid - 1) * size, table + mid * size, &order);
   if (exception != 0 || order <= 0)
      return exception;
   while (i < mid && j < hi) {
      exception = call(compare, table + j * size, table + i * size, &order);
      if (exception != 0)
         return exception;
      if (order < 0)
         memcpy(tmp + k++ * size, table + j++ * size, size);
      else
         memcpy(tmp + k++ * size, table + i++ * size, size);
   }
   memcpy(tmp + k * size, table + i * size, (mid - i) * size);
   k += mid - i;
   memcpy(tmp + k * size, table + j * size, (hi - j) * size);
   memcpy(table + lo * size, tmp + lo * size, (hi - lo) * size);
   return 0;
}

void _yc__qsort(void *returns[], void *table, unsigned size, unsigned count, ycrt_compare compare)
{
   struct ycrt_meta1 *m = table;
   size_t n = ycrt_all_len(m), width;
   char *tmp;
   if (count < n)
      n = count;
   if (n < 2 || size == 0)
      return;
   tmp = ycrt_malloc(n * size);
   if (tmp == NULL) {
      ycrt_raise_memory(returns);
      return;
   }
   for (width = 1; width < n; width *= 2) {
      size_t lo;
      for (lo = 0; lo + width < n; lo += 2 * width) {
         size_t hi = lo + 2 * width < n ? lo + 2 * width : n;
         int exception = merge(m->ptr, tmp, size, lo, lo + width, hi, compare);
         if (exception != 0) {
            *(int *)returns[0] = exception;
            free(tmp);
            return;
         }
      }
   }
   free(tmp);
}

/* bsearch cannot raise: a comparison that raises ends the search with -1
   and the exception is dropped. */
void _yc__bsearch(void *returns[], void *table, unsigned size, void *key, ycrt_compare compare)
{
   struct ycrt_meta1 *m = table;
   size_t lo = 0, hi = ycrt_all_len(m);
   int *index = returns[1];
   *index = -1;
   while (lo < hi) {
      size_t mid = lo + (hi - lo) / 2;
      int order;
      if (call(compare, key, (char *)m->ptr + mid * size, &order) != 0)
         return;
      if (order == 0) {
         *index = (int)mid;
         return;
      }
      if (order < 0)
         hi = mid;
      else
         lo = mid + 1;
   }
}
