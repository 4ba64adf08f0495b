/* Files: every function, and the statuses for numbers that are not open,
   closed files, paths that cannot be opened and bad arguments. */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "check.h"

static int open_file(const char *name, const char *mode)
{
   struct ycrt_meta1 n = lit(name), m = lit(mode);
   int file = 99;
   struct call c;
   call_init(&c, &file, NULL);
   _yc__fopen(c.r, &n, &m);
   CHECK(c.exception == 0, "fopen raised");
   return file;
}

static int status_of(void (*f)(void *[], int), int file)
{
   int status = 99;
   struct call c;
   call_init(&c, &status, NULL);
   f(c.r, file);
   return status;
}

static void bad_numbers(void)
{
   static const int numbers[] = {-1, 3, 57, 255, 256, 100000, -1000};
   size_t k;
   for (k = 0; k < sizeof numbers / sizeof numbers[0]; ++k) {
      int file = numbers[k], status = 99;
      long position = 99;
      unsigned got = 99;
      struct ycrt_meta1 text = lit("x"), v = var();
      struct call c;
      CHECK(status_of(_yc__fclose, file) == -3, "fclose(%d)", file);
      CHECK(status_of(_yc__fgetc, file) == -3, "fgetc(%d)", file);
      call_init(&c, &status, NULL);
      _yc__fputc(c.r, 'a', file);
      CHECK(status == -3, "fputc(%d)", file);
      _yc__fputs(c.r, &text, file);
      CHECK(status == -3, "fputs(%d)", file);
      _yc__fputall(c.r, file, &text);
      CHECK(status == -3, "fputall(%d)", file);
      _yc__fseek(c.r, file, 0, 0);
      CHECK(status == -3, "fseek(%d)", file);
      _yc__fgets(c.r, &v, file);
      CHECK(status == -3 && v.occurs == 0, "fgets(%d)", file);
      call_init(&c, &position, NULL);
      _yc__ftell(c.r, file);
      CHECK(position == -3, "ftell(%d)", file);
      call_init(&c, &got, NULL);
      _yc__fread(c.r, &v, 10, file);
      CHECK(got == 0, "fread(%d)", file);
      _yc__fwrite(c.r, &text, 1, file);
      CHECK(got == 0, "fwrite(%d)", file);
      call_init(&c, &v, &status);
      _yc__fgetall(c.r, file);
      CHECK(status == -3 && v.occurs == 0, "fgetall(%d)", file);
      free_var(&v);
   }
}

static void opening(void)
{
   static const struct {
      const char *name, *mode;
      int status;
   } cases[] = {
      {"/nonexistent-dir/x", "r", -1000 - ENOENT},
      {"/nonexistent-dir/x", "w", -1000 - ENOENT},
      {"/", "w", -1000 - EISDIR},
      {"x", "", -8},
      {"x", "q", -8},
      {"x", "rw", -8},
      {"x", "r++", -8},
      {"x", "rbb", -8},
   };
   size_t k;
   for (k = 0; k < sizeof cases / sizeof cases[0]; ++k) {
      int file = open_file(cases[k].name, cases[k].mode);
      CHECK(file == cases[k].status, "fopen(\"%s\", \"%s\"): %d", cases[k].name, cases[k].mode, file);
   }
}

static void round_trip(void)
{
   struct ycrt_meta1 name = var(), text = lit("first line\nsecond\n\nlast"), v = var();
   int file, status, c;
   long position;
   unsigned got;
   struct call call;
   call_init(&call, &name, NULL);
   _yc__tmpnam(call.r);
   CHECK(name.occurs > 0 && var_sane(&name), "tmpnam gives a name");
   file = open_file(name.ptr, "w+");
   CHECK(file >= 3, "fopen for writing: %d", file);
   call_init(&call, &status, NULL);
   _yc__fputs(call.r, &text, file);
   CHECK(status == 0, "fputs");
   _yc__fputc(call.r, '!', file);
   CHECK(status == 0, "fputc");
   call_init(&call, &position, NULL);
   _yc__ftell(call.r, file);
   CHECK(position == 24, "ftell: %ld", position);
   call_init(&call, &status, NULL);
   _yc__fseek(call.r, file, 0, 0);
   CHECK(status == 0, "fseek to the start");
   _yc__fseek(call.r, file, 0, 7);
   CHECK(status == -8, "fseek with a bad origin");
   call_init(&call, &status, NULL);
   _yc__fgets(call.r, &v, file);
   CHECK(status == 0 && text_eq(&v, "first line\n") && var_sane(&v), "fgets line 1");
   _yc__fgets(call.r, &v, file);
   CHECK(status == 0 && text_eq(&v, "second\n"), "fgets line 2");
   _yc__fgets(call.r, &v, file);
   CHECK(status == 0 && text_eq(&v, "\n"), "fgets an empty line");
   _yc__fgets(call.r, &v, file);
   CHECK(status == 0 && text_eq(&v, "last!"), "fgets the last line without newline");
   _yc__fgets(call.r, &v, file);
   CHECK(status == -2 && v.occurs == 0, "fgets at the end: %d", status);
   CHECK(status_of(_yc__fgetc, file) == -2, "fgetc at the end");
   _yc__fseek(call.r, file, -5, 2);
   c = status_of(_yc__fgetc, file);
   CHECK(c == 'l', "fgetc after fseek from the end: %d", c);
   /* reading then writing without a positioning call in between */
   call_init(&call, &status, NULL);
   _yc__fputc(call.r, 'L', file);
   _yc__fseek(call.r, file, 6, 0);
   call_init(&call, &got, NULL);
   _yc__fread(call.r, &v, 4, file);
   CHECK(got == 4 && text_eq(&v, "line"), "fread 4");
   call_init(&call, &status, NULL);
   _yc__fseek(call.r, file, 0, 0);
   call_init(&call, &v, &status);
   _yc__fgetall(call.r, file);
   CHECK(status == 0 && text_eq(&v, "first line\nsecond\n\nlLst!"), "fgetall: \"%.*s\"", (int)v.occurs,
         (char *)v.ptr);
   CHECK(status_of(_yc__fclose, file) == 0, "fclose");
   CHECK(status_of(_yc__fclose, file) == -3, "fclose again");
   CHECK(status_of(_yc__fgetc, file) == -3, "fgetc on a closed file");
   /* binary: NUL bytes pass through fputall, fwrite, fgetall and fread */
   file = open_file(name.ptr, "wb");
   {
      struct ycrt_meta1 bin = bytes("a\0b\0c", 5);
      call_init(&call, &status, NULL);
      _yc__fputall(call.r, file, &bin);
      call_init(&call, &got, NULL);
      _yc__fwrite(call.r, &bin, 3, file);
      CHECK(got == 3, "fwrite 3");
      _yc__fwrite(call.r, &bin, 100, file);
      CHECK(got == 5, "fwrite clipped to occurs: %u", got);
   }
   CHECK(status_of(_yc__fgetc, file) == -1000 - EBADF || status_of(_yc__fgetc, file) < -1000,
         "fgetc on a file open for writing");
   status_of(_yc__fclose, file);
   file = open_file(name.ptr, "rb");
   call_init(&call, &v, &status);
   _yc__fgetall(call.r, file);
   CHECK(status == 0 && text_is(&v, "a\0b\0ca\0ba\0b\0c", 13), "binary round trip");
   call_init(&call, &status, NULL);
   _yc__fputc(call.r, 'x', file);
   CHECK(status > 0, "fputc on a file open for reading: %d", status);
   status_of(_yc__fclose, file);
   /* rename and remove */
   {
      struct ycrt_meta1 other = var(), missing = lit("/nonexistent-dir/y");
      call_init(&call, &other, NULL);
      _yc__tmpnam(call.r);
      call_init(&call, &status, NULL);
      _yc__rename(call.r, &name, &other);
      CHECK(status == 0, "rename");
      _yc__remove(call.r, &name);
      CHECK(status == ENOENT, "remove of the old name: %d", status);
      _yc__rename(call.r, &other, &missing);
      CHECK(status == ENOENT, "rename into a missing directory");
      _yc__remove(call.r, &other);
      CHECK(status == 0, "remove");
      free_var(&other);
   }
   free_var(&v);
   free_var(&name);
}

static void long_lines(void)
{
   size_t n = 100000, i;
   char *line = malloc(n + 2);
   struct ycrt_meta1 text, v = var();
   int file, status;
   unsigned need = 0, limit = 0, got;
   struct call c;
   for (i = 0; i < n; ++i)
      line[i] = (char)('a' + i % 26);
   line[n] = '\n';
   text = bytes(line, n + 1);
   call_init(&c, &file, NULL);
   _yc__tmpfile(c.r);
   call_init(&c, &status, NULL);
   _yc__fputall(c.r, file, &text);
   _yc__fputall(c.r, file, &text);
   _yc__fseek(c.r, file, 0, 0);
   _yc__fgets(c.r, &v, file);
   CHECK(status == 0 && text_is(&v, line, n + 1) && var_sane(&v), "a 100,000-character line");
   {
      /* a fixed-space takes what fits and reports the whole line */
      char block[10];
      struct ycrt_meta1 fixed;
      fixed.ptr = block;
      fixed.occurs = 0;
      fixed.limit1 = 10;
      call_init(&c, &status, NULL);
      c.r[2] = &need;
      c.r[3] = &limit;
      _yc__fgets(c.r, &fixed, file);
      CHECK(status == 0 && need == n + 1 && limit == 10 && fixed.occurs == 10 && memcmp(block, line, 10) == 0,
            "fgets into a fixed-space: need %u", need);
      _yc__fseek(c.r, file, 0, 0);
      call_init(&c, &got, NULL);
      c.r[2] = &need;
      c.r[3] = &limit;
      _yc__fread(c.r, &fixed, 50, file);
      CHECK(got == 10 && need == 50 && limit == 10, "fread into a fixed-space: got %u need %u", got, need);
      _yc__fread(c.r, &fixed, 5, file);
      CHECK(got == 5 && need == 0 && fixed.occurs == 5 && memcmp(block, line + 50, 5) == 0, "fread that fits");
   }
   call_init(&c, &got, NULL);
   _yc__fread(c.r, &v, 4000000000u, file);
   CHECK(got == 2 * (n + 1) - 55 && v.occurs == got && var_sane(&v), "fread of a large count reads the rest: %u", got);
   call_init(&c, &status, NULL);
   _yc__fclose(c.r, file);
   free_var(&v);
   free(line);
}

static void many_files(void)
{
   int files[300], n = 0, file, k;
   do {
      file = open_file("/dev/null", "r");
      if (file >= 0)
         files[n++] = file;
   } while (file >= 0 && n < 300);
   CHECK(file == -4, "opening too many files: %d after %d", file, n);
   CHECK(n <= 253, "the table holds FOPEN_MAX files: %d opened", n);
   {
      struct call c;
      call_init(&c, &file, NULL);
      _yc__tmpfile(c.r);
      CHECK(file == -4, "tmpfile with the table full");
   }
   for (k = 0; k < n; ++k)
      CHECK(status_of(_yc__fclose, files[k]) == 0, "fclose %d", files[k]);
}

/* A write error shows at fclose even when a read, a seek or ftell came
   between the write and the close. */
static void write_errors_reach_fclose(void)
{
   static const char *between[] = {"nothing", "fgetc", "fseek", "ftell"};
   struct ycrt_meta1 text = lit("lost unless reported");
   int file, status, k;
   long position;
   struct call c;
   for (k = 0; k < 4; ++k) {
      file = open_file("/dev/full", "r+");
      CHECK(file >= 3, "fopen /dev/full");
      call_init(&c, &status, NULL);
      _yc__fputs(c.r, &text, file);
      CHECK(status == 0, "fputs is buffered");
      if (k == 1)
         status_of(_yc__fgetc, file);
      if (k == 2) {
         _yc__fseek(c.r, file, 0, 0);
         CHECK(status == ENOSPC, "fseek reports the write error it flushes: %d", status);
      }
      if (k == 3) {
         call_init(&c, &position, NULL);
         _yc__ftell(c.r, file);
      }
      status = status_of(_yc__fclose, file);
      CHECK(status == ENOSPC || k == 2,
            "fclose after %s reports the write error: %d", between[k], status);
   }
}

void test_files(void)
{
   write_errors_reach_fclose();
   bad_numbers();
   opening();
   round_trip();
   long_lines();
   many_files();
}
