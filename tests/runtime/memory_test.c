/* Failed memory requests: every function that may allocate raises 32000
   when a request fails and leaves its arguments valid (the sanitizers and
   valgrind see that nothing leaks); every other function works with no
   memory at all. */
#include <stdlib.h>
#include <string.h>

#include "check.h"

static struct ycrt_meta1 machine_of(const char *pattern)
{
   struct ycrt_meta1 m = var(), p = lit(pattern);
   int status;
   struct call c;
   call_init(&c, &m, &status);
   _yc__strreg(c.r, &p);
   return m;
}

static int file_with(const char *text)
{
   struct ycrt_meta1 t = lit(text);
   int file, status;
   struct call c;
   call_init(&c, &file, NULL);
   _yc__tmpfile(c.r);
   call_init(&c, &status, NULL);
   _yc__fputs(c.r, &t, file);
   _yc__fseek(c.r, file, 0, 0);
   return file;
}

static void close_file(int file)
{
   int status;
   struct call c;
   call_init(&c, &status, NULL);
   _yc__fclose(c.r, file);
}

/* One call of a raising function with fresh arguments; checks that they
   are valid afterwards and frees them. Returns the exception code. */
static int scenario(int which)
{
   struct ycrt_meta1 v = var(), w = var(), a = lit("some text"), b = lit("%d %s");
   int i1 = 0, i2 = 0, file, exception;
   long l;
   unsigned u;
   double d;
   struct ycrt_tm when = {1, 2, 3, 4, 5, 99, 0, 0, 0};
   struct call c;
   call_init(&c, &v, &i1);
   switch (which) {
   case 0: _yc__ctime(c.r, 0); break;
   case 1: file = file_with("abc"); _yc__fgetall(c.r, file); close_file(file); break;
   case 2: file = file_with("line\nx"); c.r[1] = &i1; _yc__fgets(c.r, &v, file); close_file(file); break;
   case 3: c.r[1] = &i1; _yc__fopen(c.r, &a, &b); break;
   case 4: c.r[1] = &i1; _yc__fprintf(c.r, 99, &b, 1, &a); break;
   case 5: file = file_with("abcdef"); c.r[1] = &u; _yc__fread(c.r, &v, 6, file); close_file(file); break;
   case 6: file = file_with("12 word"); c.r[1] = &i1; _yc__fscanf(c.r, file, &b, &i2, &v); close_file(file); break;
   case 7: a = lit("PATH"); _yc__getenv(c.r, &a); break;
   case 8: c.r[1] = &i1; b = lit("%.0d"); _yc__printf(c.r, &b, 0); break;
   case 9: {
      struct ycrt_meta1 words = lit("b a c"), table = var();
      call_init(&c, &table, NULL);
      _yc__strkmap(c.r, &words);
      exception = c.exception;
      CHECK(var_sane(&table), "strkmap leaves a valid table");
      free_var(&table);
      return exception;
   }
   case 10: c.r[1] = &i1; a = lit("/nonexistent-dir/x"); _yc__remove(c.r, &a); break;
   case 11: c.r[1] = &i1; a = lit("/nonexistent-dir/x"); _yc__rename(c.r, &a, &a); break;
   case 12: c.r[1] = &i1; _yc__sprintf(c.r, &v, &b, 5, &a); break;
   case 13: c.r[1] = &i1; _yc__sscanf(c.r, &a, &b, &i2, &v); break;
   case 14: c.r[1] = NULL; _yc__strcpy(c.r, &v, &a); _yc__strcat(c.r, &v, &a); break;
   case 15: _yc__strerror(c.r, -77); break;
   case 16: _yc__stresc(c.r, &a); break;
   case 17: b = lit("%Y %B"); _yc__strftime(c.r, &b, &when); break;
   case 18: c.r[1] = &i1; _yc__strkey(c.r, &v, &a, 1); _yc__strkey(c.r, &v, &b, 2); break;
   case 19: _yc__strpart(c.r, &a, 2, 3); break;
   case 20: _yc__strreg(c.r, &a); break;
   case 21: {
      struct ycrt_meta1 m, r = lit("E\\0");
      long budget = ycrt_alloc_budget;
      ycrt_alloc_budget = -1;
      m = machine_of("e");
      call_init(&c, NULL, NULL);
      _yc__strcpy(c.r, &v, &a);
      ycrt_alloc_budget = budget;
      call_init(&c, &i1, NULL);
      _yc__strrpl(c.r, &v, &m, &r);
      CHECK(c.exception != 0 || text_eq(&v, "somEe tEext"), "strrpl result");
      free_var(&m);
      break;
   }
   case 22: c.r[1] = &d; c.r[2] = &u; _yc__strtod(c.r, &a); break;
   case 23: c.r[1] = &l; c.r[2] = &u; _yc__strtol(c.r, &a, 10); break;
   case 24: c.r[1] = &l; c.r[2] = &u; _yc__strtoul(c.r, &a, 10); break;
   case 25: c.r[1] = &i1; a = lit("exit 0"); _yc__system(c.r, &a); break;
   case 26: _yc__tmpnam(c.r); break;
   case 27: {
      struct ycrt_meta1 table;
      int keys[3] = {3, 1, 2};
      table.ptr = keys;
      table.occurs = table.limit1 = 3;
      c.r[1] = NULL;
      _yc__qsort(c.r, &table, sizeof(int), 3, NULL);
      break;
   }
   default: return -1;
   }
   exception = c.exception;
   CHECK(var_sane(&v) && var_sane(&w), "scenario %d leaves valid spaces", which);
   free_var(&v);
   free_var(&w);
   return exception;
}

static void int_compare(void *returns[], void *a, void *b)
{
   *(int *)returns[1] = *(int *)a - *(int *)b;
}

static void raising(void)
{
   int which;
   for (which = 0; which < 28; ++which) {
      long budget;
      int failures = 0, exception = 0;
      for (budget = 0; budget < 64; ++budget) {
         ycrt_alloc_budget = budget;
         if (which == 27) {
            /* qsort needs a real comparison */
            struct ycrt_meta1 table;
            int keys[3] = {3, 1, 2};
            struct call c;
            table.ptr = keys;
            table.occurs = table.limit1 = 3;
            call_init(&c, NULL, NULL);
            _yc__qsort(c.r, &table, sizeof(int), 3, int_compare);
            exception = c.exception;
            CHECK(exception != 0 || (keys[0] == 1 && keys[2] == 3), "qsort sorted");
         } else {
            exception = scenario(which);
         }
         ycrt_alloc_budget = -1;
         if (exception == 0)
            break;
         CHECK(exception == 32000, "scenario %d raised %d", which, exception);
         ++failures;
      }
      CHECK(exception == 0, "scenario %d never succeeds", which);
      /* fprintf to a bad file allocates nothing before it notices */
      CHECK(failures > 0 || which == 4, "scenario %d never asked for memory", which);
   }
}

/* Functions that cannot raise work without any memory. */
static void non_raising(void)
{
   struct ycrt_meta1 m = machine_of("b+"), text = lit("abbbc"), table = var(), key = lit("k"), v = var();
   int pos, status, value, file, order;
   unsigned len;
   struct call c;
   call_init(&c, &status, NULL);
   _yc__strkey(c.r, &table, &key, 4);
   ycrt_alloc_budget = 0;
   call_init(&c, &pos, &len);
   _yc__strfnd(c.r, &m, &text, 0);
   CHECK(c.exception == 0 && pos == 1 && len == 3, "strfnd with no memory");
   _yc__strfndr(c.r, &m, &text, 4);
   CHECK(c.exception == 0 && pos == 3 && len == 1, "strfndr with no memory");
   call_init(&c, &value, &status);
   _yc__strkfnd(c.r, &table, &key);
   CHECK(c.exception == 0 && value == 4 && status == 0, "strkfnd with no memory");
   call_init(&c, &v, NULL);
   _yc__strknew(c.r);
   CHECK(c.exception == 0 && v.occurs == 0, "strknew with no memory");
   call_init(&c, &order, NULL);
   _yc__strcmp(c.r, &text, &key);
   CHECK(c.exception == 0 && order == -1, "strcmp with no memory");
   call_init(&c, &file, NULL);
   _yc__tmpfile(c.r);
   CHECK(c.exception == 0 && file >= 3, "tmpfile with no memory");
   call_init(&c, &status, NULL);
   _yc__fputs(c.r, &text, file);
   _yc__fputall(c.r, file, &text);
   _yc__fputc(c.r, 'x', file);
   _yc__fseek(c.r, file, 1, 0);
   call_init(&c, &value, NULL);
   _yc__fgetc(c.r, file);
   CHECK(c.exception == 0 && value == 'b', "file functions with no memory");
   call_init(&c, &status, NULL);
   _yc__fclose(c.r, file);
   ycrt_alloc_budget = -1;
   free_var(&m);
   free_var(&table);
}

void test_memory(void)
{
   raising();
   non_raising();
}
