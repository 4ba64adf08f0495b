/* The same program in C. A number that is not open gives -3, a mode that
   is not C's or a bad whence -8, and a full table -4 (after 253 numbers,
   3 to 255): the library's statuses, written here by hand. System failures
   come from C: -1000 - errno where the function's value is a file number or
   a character, errno elsewhere. */
#include <errno.h>
#include <stdio.h>
#include <string.h>
static void tryall(int f)
{
   printf("%d: fclose -3 fgetc -3 fputc -3 fgets -3 fputs -3 fread 0 fwrite 0 fseek -3 ftell -3"
          " fgetall -3 0 fputall -3 fprintf -3 fscanf -3\n", f);
}
static int opened(const char *name, const char *mode, FILE **fp)
{
   *fp = fopen(name, mode);
   return *fp ? 3 : -1000 - errno;
}
int main(void)
{
   FILE *f, *g;
   int st, st2, n, failed;
   char buf[16];
   tryall(-1); tryall(3); tryall(99); tryall(255); tryall(256); tryall(-1003);
   f = fopen("f.txt", "w");
   fputs("some text\n", f);
   printf("fclose %d\n", fclose(f));
   tryall(3);
   printf("bad modes %d %d %d %d %d %d\n", -8, -8, -8, -8, -8, -8);
   f = fopen("f.txt", "rb+");
   g = fopen("f.txt", "w+b");
   printf("good modes %d %d\n", f ? 3 : -1, g ? 4 : -1);
   fclose(f);
   fclose(g);
   st = opened("no/such/directory/f.txt", "w", &f);
   st2 = opened("missing.txt", "r", &g);
   printf("cannot open %d %d: %s\n", st, st2, strerror(-1000 - st2));
   st = opened(".", "w", &f);
   printf("a directory for writing %d: %s\n", st, strerror(-1000 - st));
   st = opened("f.txt/below", "r", &f);
   printf("below a file %d: %s\n", st, strerror(-1000 - st));
   f = fopen(".", "r");
   printf("a directory for reading opens %d\n", f != NULL);
   errno = 0;
   printf("fgetc %d\n", fgetc(f) == EOF ? -1000 - errno : 0);
   errno = 0;
   printf("fgets %d\n", fgets(buf, sizeof buf, f) ? 0 : errno);
   errno = 0;
   n = (int) fread(buf, 1, sizeof buf, f);
   printf("fgetall %d %d: %s\n", errno, n, strerror(errno));
   fclose(f);
   f = fopen("f.txt", "r");
   errno = 0;
   st = fputc('x', f) == EOF ? errno : 0;
   printf("fputc on a file for reading %d: %s\n", st, strerror(st));
   errno = 0;
   st = fputs("x", f) == EOF ? errno : 0;
   errno = 0;
   st2 = fwrite("x", 1, 1, f) == 1 && fflush(f) == 0 ? 0 : errno;
   printf("fputs %d fputall %d\n", st, st2);
   fclose(f);
   f = fopen("f.txt", "a");
   errno = 0;
   printf("fgetc on a file for appending %d\n", fgetc(f) == EOF ? -1000 - errno : 0);
   printf("fseek with a bad whence %d %d\n", -8, -8);
   errno = 0;
   printf("fseek before the start %d\n", fseek(f, -10, SEEK_SET) == 0 ? 0 : errno);
   fclose(f);
   errno = 0;
   st = remove("missing.txt") == 0 ? 0 : errno;
   errno = 0;
   st2 = rename("missing.txt", "other.txt") == 0 ? 0 : errno;
   printf("remove %d rename %d\n", st, st2);
   errno = 0;
   printf("remove a directory that is not empty %d\n", remove("..") == 0 ? 0 : errno);
   for (n = 0; n < 253; n++) {
      if (!fopen("f.txt", "r")) return 1;
   }
   failed = -4;
   printf("opened %d, then %d: %s\n", n, failed, "Too many open files");
   printf("tmpfile %d\n", -4);
   printf("a freed number is reused: %d\n", 3);
   printf("open files stay open until the end; remove %d\n", remove("f.txt"));
   fflush(stdout);
   st = fclose(stdout);
   fprintf(stderr, "standard output closed %d, then printf %d fputs %d\n", st, -3, -3);
   return 0;
}
