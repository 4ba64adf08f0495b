/* Files as small numbers: 0, 1 and 2 are standard input, output and error;
   fopen and tmpfile hand out the free numbers above them from a table of
   FOPEN_MAX entries. */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "ycrt_lib.h"

#define TABLE_SIZE 256 /* FOPEN_MAX in ycrt.h */

struct open_file {
   FILE *fp;
   char last; /* 'r' or 'w': the last transfer, or 0 */
   int error; /* a write error found by the flush before a read, for fclose */
};

static struct open_file table[TABLE_SIZE];
static int table_ready;

static void ready(void)
{
   if (table_ready)
      return;
   table[0].fp = stdin;
   table[1].fp = stdout;
   table[2].fp = stderr;
   table_ready = 1;
}

int ycrt_errno(void)
{
   return errno != 0 ? errno : EIO;
}

/* C requires a positioning call or a flush between reading and writing an
   update stream; the library makes it so the program need not. A failed
   flush is kept for fclose, so that a write error is never lost.
   YCRT_LOOKUP (fclose, fseek, ftell) only finds the file: those functions
   flush themselves and report what fails. */
void *ycrt_file(int file, int writing)
{
   struct open_file *f;
   ready();
   if (file < 0 || file >= TABLE_SIZE || table[file].fp == NULL)
      return NULL;
   f = &table[file];
   if (writing == YCRT_LOOKUP)
      return f->fp;
   if (file > 2) {
      if (writing && f->last == 'r') {
         fseek(f->fp, 0L, SEEK_CUR);
      } else if (!writing && f->last == 'w') {
         errno = 0;
         if (fflush(f->fp) != 0 && f->error == 0)
            f->error = ycrt_errno();
      }
   }
   f->last = writing ? 'w' : 'r';
   return f->fp;
}

void ycrt_files_close_all(void)
{
   int i;
   ready();
   for (i = 3; i < TABLE_SIZE; ++i)
      if (table[i].fp != NULL) {
         fclose(table[i].fp);
         table[i].fp = NULL;
      }
   fflush(NULL);
}

static int free_slot(void)
{
   int i;
   ready();
   for (i = 3; i < TABLE_SIZE; ++i)
      if (table[i].fp == NULL)
         return i;
   return -1;
}

/* A failure to open: every one is negative so it never looks like a file. */
static int open_failure(void)
{
   if (errno == EMFILE || errno == ENFILE)
      return YCRT_TOO_MANY_FILES;
   return YCRT_SYSTEM_BASE - ycrt_errno();
}

static int add_file(FILE *fp)
{
   int slot = free_slot();
   table[slot].fp = fp;
   table[slot].last = 0;
   table[slot].error = 0;
   return slot;
}

/* r, w or a, then at most one + and one b in either order. */
static int mode_valid(const char *mode)
{
   int plus = 0, binary = 0;
   if (*mode != 'r' && *mode != 'w' && *mode != 'a')
      return 0;
   for (++mode; *mode != 0; ++mode) {
      if (*mode == '+' && !plus)
         plus = 1;
      else if (*mode == 'b' && !binary)
         binary = 1;
      else
         return 0;
   }
   return 1;
}

void _yc__fopen(void *returns[], struct ycrt_meta1 *name, struct ycrt_meta1 *mode)
{
   int *file = returns[1];
   char *cname, *cmode;
   FILE *fp;
   if (free_slot() < 0) {
      *file = YCRT_TOO_MANY_FILES;
      return;
   }
   cname = ycrt_cstring(name);
   cmode = cname != NULL ? ycrt_cstring(mode) : NULL;
   if (cmode == NULL) {
      free(cname);
      ycrt_raise_memory(returns);
      return;
   }
   if (!mode_valid(cmode)) {
      *file = YCRT_INVALID;
   } else {
      errno = 0;
      fp = fopen(cname, cmode);
      *file = fp != NULL ? add_file(fp) : open_failure();
   }
   free(cname);
   free(cmode);
}

void _yc__tmpfile(void *returns[])
{
   int *file = returns[1];
   FILE *fp;
   if (free_slot() < 0) {
      *file = YCRT_TOO_MANY_FILES;
      return;
   }
   errno = 0;
   fp = tmpfile();
   *file = fp != NULL ? add_file(fp) : open_failure();
}

void _yc__fclose(void *returns[], int file)
{
   FILE *fp = ycrt_file(file, YCRT_LOOKUP);
   int *status = returns[1];
   if (fp == NULL) {
      *status = YCRT_BAD_FILE;
      return;
   }
   errno = 0;
   *status = fclose(fp) == 0 ? table[file].error : ycrt_errno();
   table[file].fp = NULL;
}

void _yc__fgetc(void *returns[], int file)
{
   FILE *fp = ycrt_file(file, 0);
   int *c = returns[1];
   if (fp == NULL) {
      *c = YCRT_BAD_FILE;
      return;
   }
   errno = 0;
   *c = getc(fp);
   if (*c == EOF)
      *c = ferror(fp) ? YCRT_SYSTEM_BASE - ycrt_errno() : YCRT_END_OF_FILE;
}

void _yc__fputc(void *returns[], int c, int file)
{
   FILE *fp = ycrt_file(file, 1);
   int *status = returns[1];
   if (fp == NULL) {
      *status = YCRT_BAD_FILE;
      return;
   }
   errno = 0;
   *status = putc((unsigned char)c, fp) == EOF ? ycrt_errno() : 0;
}

/* Writes n characters; the status of the write. */
static int put_chars(FILE *fp, const char *s, size_t n)
{
   errno = 0;
   if (n > 0 && fwrite(s, 1, n, fp) != n)
      return ycrt_errno();
   return 0;
}

void _yc__fputs(void *returns[], struct ycrt_meta1 *text, int file)
{
   FILE *fp = ycrt_file(file, 1);
   int *status = returns[1];
   *status = fp == NULL ? YCRT_BAD_FILE : put_chars(fp, ycrt_chars(text), ycrt_len(text));
}

void _yc__fputall(void *returns[], int file, struct ycrt_meta1 *text)
{
   FILE *fp = ycrt_file(file, 1);
   int *status = returns[1];
   *status = fp == NULL ? YCRT_BAD_FILE : put_chars(fp, ycrt_chars(text), ycrt_all_len(text));
}

void _yc__fwrite(void *returns[], struct ycrt_meta1 *buffer, unsigned count, int file)
{
   FILE *fp = ycrt_file(file, 1);
   unsigned *put = returns[1];
   size_t n = ycrt_all_len(buffer);
   if (count < n)
      n = count;
   *put = fp == NULL || n == 0 ? 0 : (unsigned)fwrite(buffer->ptr, 1, n, fp);
}

/* Room for one more character in a target that is being filled directly: a
   varspace doubles, a fixed-space says no. 0, 1 (no room) or -1 (memory). */
static int target_room(struct ycrt_target *t, size_t used)
{
   size_t want;
   if (used < t->m->limit1)
      return 0;
   if (t->need != NULL)
      return 1;
   want = t->m->limit1 < 32 ? 64 : 2 * (size_t)t->m->limit1;
   if (want > 4294967295UL)
      want = 4294967295UL;
   if (want <= used)
      return -1;
   return ycrt_reserve(t->m, want, NULL);
}

void _yc__fgets(void *returns[], struct ycrt_meta1 *line, int file)
{
   FILE *fp = ycrt_file(file, 0);
   int *status = returns[1];
   struct ycrt_target t = ycrt_target_of(returns, 1, line);
   size_t n = 0;
   int c = 0;
   if (fp == NULL) {
      *status = YCRT_BAD_FILE;
      ycrt_target_finish(&t, 0);
      return;
   }
   errno = 0;
   while (c != '\n' && (c = getc(fp)) != EOF) {
      int room = target_room(&t, n);
      if (room < 0) {
         ycrt_target_finish(&t, n);
         ycrt_raise_memory(returns);
         return;
      }
      if (room == 0)
         ((char *)line->ptr)[n] = (char)c;
      ++n;
   }
   /* a varspace keeps room for the NUL after the line */
   if (t.need == NULL && target_room(&t, n) < 0) {
      ycrt_target_finish(&t, n);
      ycrt_raise_memory(returns);
      return;
   }
   ycrt_target_finish(&t, n);
   if (c == EOF && ferror(fp))
      *status = ycrt_errno();
   else
      *status = n == 0 ? YCRT_END_OF_FILE : 0;
}

void _yc__fread(void *returns[], struct ycrt_meta1 *buffer, unsigned count, int file)
{
   FILE *fp = ycrt_file(file, 0);
   unsigned *got = returns[1];
   struct ycrt_target t = ycrt_target_of(returns, 1, buffer);
   size_t n = 0;
   *got = 0;
   if (fp == NULL || count == 0) {
      ycrt_target_finish(&t, 0);
      return;
   }
   /* read in blocks as large as the space allows, growing a varspace only as
      the data keeps coming, so a large count on a small file costs little */
   while (n < count) {
      size_t chunk, r;
      int room = target_room(&t, n);
      if (room < 0) {
         ycrt_target_finish(&t, n);
         *got = (unsigned)n;
         ycrt_raise_memory(returns);
         return;
      }
      if (room > 0)
         break;
      chunk = t.m->limit1 - n;
      if (chunk > count - n)
         chunk = count - n;
      r = fread((char *)buffer->ptr + n, 1, chunk, fp);
      n += r;
      if (r < chunk)
         break;
   }
   *got = (unsigned)n;
   if (n < count && t.need != NULL && n == t.m->limit1) {
      /* the fixed-space is full: count what the call would have read */
      size_t more = 0;
      while (n + more < count && getc(fp) != EOF)
         ++more;
      ycrt_target_finish(&t, n + more);
      return;
   }
   ycrt_target_finish(&t, n);
}

void _yc__fseek(void *returns[], int file, long offset, int whence)
{
   FILE *fp = ycrt_file(file, YCRT_LOOKUP);
   int *status = returns[1];
   static const int origins[3] = {SEEK_SET, SEEK_CUR, SEEK_END};
   if (fp == NULL) {
      *status = YCRT_BAD_FILE;
      return;
   }
   if (whence < 0 || whence > 2) {
      *status = YCRT_INVALID;
      return;
   }
   errno = 0;
   *status = fseek(fp, offset, origins[whence]) == 0 ? 0 : ycrt_errno();
   table[file].last = 0;
}

void _yc__ftell(void *returns[], int file)
{
   FILE *fp = ycrt_file(file, YCRT_LOOKUP);
   long *position = returns[1];
   if (fp == NULL) {
      *position = YCRT_BAD_FILE;
      return;
   }
   errno = 0;
   *position = ftell(fp);
   if (*position < 0)
      *position = YCRT_SYSTEM_BASE - ycrt_errno();
}

void _yc__fgetall(void *returns[], int file)
{
   FILE *fp = ycrt_file(file, 0);
   struct ycrt_meta1 *text = returns[1];
   int *status = returns[2];
   struct ycrt_target t;
   size_t n = 0;
   t.m = text;
   t.need = t.limit = NULL;
   ycrt_clear(text);
   if (fp == NULL) {
      *status = YCRT_BAD_FILE;
      return;
   }
   errno = 0;
   for (;;) {
      size_t r;
      if (target_room(&t, n + 1) < 0) {
         ycrt_target_finish(&t, n);
         ycrt_raise_memory(returns);
         return;
      }
      r = fread((char *)text->ptr + n, 1, text->limit1 - 1 - n, fp);
      n += r;
      if (r == 0)
         break;
   }
   ycrt_target_finish(&t, n);
   *status = ferror(fp) ? ycrt_errno() : 0;
}

void _yc__remove(void *returns[], struct ycrt_meta1 *name)
{
   char *cname = ycrt_cstring(name);
   if (cname == NULL) {
      ycrt_raise_memory(returns);
      return;
   }
   errno = 0;
   *(int *)returns[1] = remove(cname) == 0 ? 0 : ycrt_errno();
   free(cname);
}

void _yc__rename(void *returns[], struct ycrt_meta1 *from, struct ycrt_meta1 *to)
{
   char *cfrom = ycrt_cstring(from);
   char *cto = cfrom != NULL ? ycrt_cstring(to) : NULL;
   if (cto == NULL) {
      free(cfrom);
      ycrt_raise_memory(returns);
      return;
   }
   errno = 0;
   *(int *)returns[1] = rename(cfrom, cto) == 0 ? 0 : ycrt_errno();
   free(cfrom);
   free(cto);
}

/* A name that no file has now, in TMPDIR or /tmp. The C library's tmpnam is
   not used: every program linking it would draw a linker warning. */
void _yc__tmpnam(void *returns[])
{
   static unsigned long serial;
   struct ycrt_meta1 *name = returns[1];
   const char *dir = getenv("TMPDIR");
   struct ycrt_buf b = {NULL, 0, 0};
   unsigned long seed = (unsigned long)time(NULL) ^ ((unsigned long)clock() << 16);
   if (dir == NULL || *dir == 0)
      dir = "/tmp";
   for (;;) {
      unsigned long v = seed + 7919UL * ++serial;
      FILE *probe;
      int i, failed;
      b.n = 0;
      failed = ycrt_buf_add(&b, dir, strlen(dir)) != 0 || ycrt_buf_add(&b, "/yc", 3) != 0;
      for (i = 0; i < 7 && !failed; ++i, v /= 36)
         failed = ycrt_buf_add(&b, &"abcdefghijklmnopqrstuvwxyz0123456789"[v % 36], 1) != 0;
      if (failed || ycrt_buf_add(&b, "", 1) != 0) {
         ycrt_buf_free(&b);
         ycrt_raise_memory(returns);
         return;
      }
      probe = fopen(b.p, "r");
      if (probe == NULL)
         break;
      fclose(probe);
   }
   if (ycrt_set_text(name, b.p, b.n - 1) != 0)
      ycrt_raise_memory(returns);
   ycrt_buf_free(&b);
}
