/* Key tables against a plain list of keys and values, through growth, and
   stored and read back. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "check.h"

#define KEYS 3000

static char keys[KEYS][12];
static int values[KEYS], present[KEYS];

static int lookup(struct ycrt_meta1 *table, const char *key, int *value)
{
   struct ycrt_meta1 k = lit(key);
   int status = 99;
   struct call c;
   call_init(&c, value, &status);
   _yc__strkfnd(c.r, table, &k);
   return status;
}

static void against_a_list(void)
{
   struct ycrt_meta1 table = var(), copy = var();
   int i, step, value;
   struct call c;
   call_init(&c, &table, NULL);
   _yc__strknew(c.r);
   CHECK(table.occurs == 0 && table.ptr == NULL, "strknew allocates nothing");
   CHECK(lookup(&table, "x", &value) == -1 && value == 0, "an empty table has no key");
   for (i = 0; i < KEYS; ++i) {
      sprintf(keys[i], "k%d%s", i * 7919 % 10007, i % 3 ? "" : "\x80\xff");
      present[i] = 0;
   }
   test_seed(7);
   for (step = 0; step < 20000; ++step) {
      int k = (int)(test_random() % KEYS), status = 99;
      struct ycrt_meta1 key = lit(keys[k]);
      if (test_random() % 3 != 0) {
         values[k] = (int)(test_random() - 2147483648UL);
         present[k] = 1;
         call_init(&c, &status, NULL);
         _yc__strkey(c.r, &table, &key, values[k]);
         CHECK(status == 0 && c.exception == 0 && var_sane(&table), "strkey %s", keys[k]);
      } else {
         status = lookup(&table, keys[k], &value);
         CHECK(present[k] ? status == 0 && value == values[k] : status == -1, "strkfnd %s", keys[k]);
      }
      if (memchr(table.ptr, 0, table.occurs) != NULL) {
         CHECK(0, "the table holds a NUL byte");
         break;
      }
   }
   /* a copy made as text answers the same */
   call_init(&c, NULL, NULL);
   _yc__strcpy(c.r, &copy, &table);
   for (i = 0; i < KEYS; ++i) {
      int status = lookup(&copy, keys[i], &value);
      CHECK(present[i] ? status == 0 && value == values[i] : status == -1, "copy %s", keys[i]);
   }
   {
      /* and so does the table written to a file and read back */
      struct ycrt_meta1 back = var();
      int file, status;
      call_init(&c, &file, NULL);
      _yc__tmpfile(c.r);
      call_init(&c, &status, NULL);
      _yc__fputall(c.r, file, &table);
      _yc__fseek(c.r, file, 0, 0);
      call_init(&c, &back, &status);
      _yc__fgetall(c.r, file);
      call_init(&c, &status, NULL);
      _yc__fclose(c.r, file);
      for (i = 0; i < KEYS; ++i) {
         int found = lookup(&back, keys[i], &value);
         CHECK(present[i] ? found == 0 && value == values[i] : found == -1, "read back %s", keys[i]);
      }
      free_var(&back);
   }
   {
      /* the empty key and a key that is the table itself */
      struct ycrt_meta1 empty = lit("");
      int status;
      call_init(&c, &status, NULL);
      _yc__strkey(c.r, &table, &empty, 5);
      CHECK(lookup(&table, "", &value) == 0 && value == 5, "the empty key");
      _yc__strkey(c.r, &copy, &copy, 6);
      CHECK(status == 0 && c.exception == 0, "a key that is its own table");
   }
   free_var(&table);
   free_var(&copy);
}

static void maps(void)
{
   struct ycrt_meta1 words = lit("  if else\twhile\n  for if  "), table = var();
   static const char *const expected[] = {"else", "while", "for", "if"};
   static const int numbers[] = {2, 3, 4, 5};
   int i, value;
   struct call c;
   call_init(&c, &table, NULL);
   _yc__strkmap(c.r, &words);
   for (i = 0; i < 4; ++i)
      CHECK(lookup(&table, expected[i], &value) == 0 && value == numbers[i], "strkmap %s: %d", expected[i],
            value);
   CHECK(lookup(&table, "do", &value) == -1, "strkmap has no other word");
   words = lit("   ");
   _yc__strkmap(c.r, &words);
   CHECK(table.occurs == 0, "no words, an empty table");
   {
      /* the table may be the variable holding the words */
      struct ycrt_meta1 same = var(), text = lit("a b c");
      call_init(&c, NULL, NULL);
      _yc__strcpy(c.r, &same, &text);
      call_init(&c, &same, NULL);
      _yc__strkmap(c.r, &same);
      CHECK(lookup(&same, "c", &value) == 0 && value == 3, "strkmap into its own words");
      free_var(&same);
   }
   free_var(&table);
}

static void damaged(void)
{
   static const char *const junk[] = {"not a table", "YCKT", "YCKT\x80\x80\x80\x80\x80\x81\x80\x80\x80\x80"};
   size_t k;
   for (k = 0; k < sizeof junk / sizeof junk[0]; ++k) {
      struct ycrt_meta1 t = lit(junk[k]), key = lit("a"), v = var();
      int value, status = 99;
      struct call c;
      CHECK(lookup(&t, "a", &value) == -8, "strkfnd in junk %u", (unsigned)k);
      call_init(&c, NULL, NULL);
      _yc__strcpy(c.r, &v, &t);
      call_init(&c, &status, NULL);
      _yc__strkey(c.r, &v, &key, 1);
      CHECK(status == -8, "strkey into junk %u", (unsigned)k);
      free_var(&v);
   }
}

/* A lookup costs the key, not the table: 100,000 keys are added and found
   again in well under the seconds that one pass over the table (megabytes)
   per call would take. */
static void lookups_do_not_scan_the_table(void)
{
   struct ycrt_meta1 table = var();
   char key[16];
   int i, wrong = 0, value, status;
   clock_t start = clock();
   double seconds;
   struct call c;
   for (i = 0; i < 100000; ++i) {
      struct ycrt_meta1 k;
      sprintf(key, "key%d", i);
      k = lit(key);
      call_init(&c, &status, NULL);
      _yc__strkey(c.r, &table, &k, i);
      wrong += status != 0;
   }
   for (i = 0; i < 100000; ++i) {
      sprintf(key, "key%d", i);
      wrong += lookup(&table, key, &value) != 0 || value != i;
   }
   seconds = (double)(clock() - start) / CLOCKS_PER_SEC;
   CHECK(wrong == 0, "%d keys wrong in a large table", wrong);
   CHECK(seconds < 5.0, "100,000 additions and lookups took %.1f s", seconds);
   free_var(&table);
}

void test_keys(void)
{
   lookups_do_not_scan_the_table();
   against_a_list();
   maps();
   damaged();
}
