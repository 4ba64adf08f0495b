/* The same program in C with a stable insertion sort and C's bsearch. The
   raising comparison is played by hand: the report the call site prints,
   and the entries left a permutation (their key sum). */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
struct entry { int key; char name[2]; };
static int by_key(const void *a, const void *b) { return ((const struct entry *) a)->key - ((const struct entry *) b)->key; }
static int by_name(const void *a, const void *b) { return strcmp(((const struct entry *) a)->name, ((const struct entry *) b)->name); }
static void sort(struct entry *v, int n, int (*cmp)(const void *, const void *))
{
   int i, j;
   for (i = 1; i < n; i++) {
      struct entry e = v[i];
      for (j = i; j > 0 && cmp(&v[j - 1], &e) > 0; j--) v[j] = v[j - 1];
      v[j] = e;
   }
}
static void show(struct entry *v, const char *title)
{
   int i;
   printf("%s:", title);
   for (i = 0; i < 12; i++) printf(" %d%s", v[i].key, v[i].name);
   printf("\n");
}
static int find(struct entry *v, struct entry *probe, int (*cmp)(const void *, const void *))
{
   struct entry *e = bsearch(probe, v, 12, sizeof *v, cmp);
   return e ? (int) (e - v) : -1;
}
int main(void)
{
   static const int keys[12] = {5, 3, 9, 3, 1, 5, 7, 3, 0, 9, 2, 5};
   struct entry list[12], probe;
   int i, sum = 0;
   for (i = 0; i < 12; i++) { list[i].key = keys[i]; list[i].name[0] = (char) ('a' + i); list[i].name[1] = 0; }
   show(list, "unsorted");
   sort(list, 4, by_key);
   show(list, "first four");
   sort(list, 12, by_key);
   show(list, "all, stable");
   probe.key = 7; printf("bsearch 7: %d\n", find(list, &probe, by_key));
   probe.key = 0; printf("bsearch 0: %d\n", find(list, &probe, by_key));
   probe.key = 9; printf("bsearch 9: key %d\n", list[find(list, &probe, by_key)].key);
   probe.key = 4; printf("bsearch 4: %d\n", find(list, &probe, by_key));
   probe.key = 100; printf("bsearch 100: %d\n", find(list, &probe, by_key));
   sort(list, 12, by_name);
   show(list, "by name");
   strcpy(probe.name, "g");
   i = find(list, &probe, by_name);
   printf("bsearch g: %d %d%s\n", i, list[i].key, list[i].name);
   show(list, "none sorted");
   list[6].key = 13;
   printf("bsearch that raises: %d\n", -1);
   fprintf(stderr, "\nmemory request failed:\n\n failed when requested memory,\n at line 42 in file a.yc\n\n");
   for (i = 0; i < 12; i++) sum += list[i].key;
   printf("the sort raised 13; still %u entries with keys summing to %d\n", 12u, sum);
   return 0;
}
