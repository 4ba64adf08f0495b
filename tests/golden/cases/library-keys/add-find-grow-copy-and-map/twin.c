/* The same program in C with a plain list of keys; a text that is no table
   gives the library's -8, written by hand. */
#include <stdio.h>
#include <string.h>
struct table { int n; char keys[1100][16]; int values[1100]; };
static struct table t, copy;
static void put(struct table *tb, const char *key, int value)
{
   int i;
   for (i = 0; i < tb->n; i++)
      if (strcmp(tb->keys[i], key) == 0) { tb->values[i] = value; return; }
   strcpy(tb->keys[tb->n], key);
   tb->values[tb->n++] = value;
}
static int get(struct table *tb, const char *key, int *value)
{
   int i;
   for (i = 0; i < tb->n; i++)
      if (strcmp(tb->keys[i], key) == 0) { *value = tb->values[i]; return 0; }
   *value = 0;
   return -1;
}
static void look(struct table *tb, const char *key)
{
   int value, st = get(tb, key, &value);
   printf(" %s=%d/%d", key, value, st);
}
static void map(struct table *tb, const char *words)
{
   char buf[64], *w;
   int n = 0;
   tb->n = 0;
   strcpy(buf, words);
   for (w = strtok(buf, " \t\n"); w; w = strtok(NULL, " \t\n")) put(tb, w, ++n);
}
int main(void)
{
   int k, value, st, wrong = 0;
   long sum = 0;
   char key[16];
   printf("new table %u:", 0u);
   look(&t, "while");
   printf("\n");
   put(&t, "while", 3); put(&t, "if", 1); put(&t, "else", 2); put(&t, "", 9);
   printf("strkey %d %d %d %d", 0, 0, 0, 0);
   look(&t, "while"); look(&t, "if"); look(&t, "else"); look(&t, ""); look(&t, "whil"); look(&t, "whiles");
   printf("\n");
   put(&t, "while", -30);
   printf("replaced %d:", 0);
   look(&t, "while");
   printf("\n");
   copy = t;
   put(&copy, "if", 100); put(&copy, "for", 4);
   printf("copy:"); look(&copy, "if"); look(&copy, "for");
   printf("\noriginal:"); look(&t, "if"); look(&t, "for");
   printf("\n");
   for (k = 0; k < 1000; k++) { sprintf(key, "key%d", k * 7); put(&t, key, k * k); }
   for (k = 0; k < 7000; k++) {
      sprintf(key, "key%d", k);
      st = get(&t, key, &value);
      if (k % 7 == 0 && (st != 0 || value != (k / 7) * (k / 7))) wrong++;
      if (k % 7 != 0 && st != -1) wrong++;
      if (st == 0) sum += value;
   }
   printf("a thousand keys: %d wrong, values sum to %ld;", wrong, sum);
   look(&t, "while"); look(&t, "else");
   printf("\n");
   map(&t, "if else while  if\n\tdo");
   printf("strkmap:"); look(&t, "if"); look(&t, "else"); look(&t, "while"); look(&t, "do"); look(&t, "for");
   printf("\n");
   map(&t, "  ");
   printf("strkmap of blanks %u:", 0u);
   look(&t, "if");
   printf("\n");
   printf("no table: strkfnd %d %d strkey %d\n", 0, -8, -8);
   return 0;
}
