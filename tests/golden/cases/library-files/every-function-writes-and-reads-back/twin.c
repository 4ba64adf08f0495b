/* The same program in C stdio. Failures print as the library gives them:
   -1000 - errno from fopen, errno from remove; -2 at end of file. A line
   read with a NUL byte in it counts its characters up to the NUL. */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
static int openf(const char *name, const char *mode, int number)
{
   FILE *fp = fopen(name, mode);
   return fp ? number : -1000 - errno;
}
int main(void)
{
   FILE *f, *g;
   int c, k, n, st, count, i;
   unsigned got;
   char line[256], word[64], small[4], buf[128], all[256], name[L_tmpnam];
   char bytes[5] = {'x', 0, 'y', '\n', 'z'};
   size_t len;

   f = fopen("data.txt", "w");
   printf("fopen w: %d\n", 3);
   st = (fputc('A', f) == EOF) + (fputc(66 + 256, f) == EOF) + (fputs("first line\n", f) == EOF);
   count = fprintf(f, "%d %s %.2f\n", 42, "forty-two", 2.5);
   printf("puts %d, fprintf %d\n", st, count);
   printf("fwrite %u ", (unsigned) fwrite(bytes, 1, 4, f));
   printf("%u\n", (unsigned) fwrite(bytes, 1, 5, f));
   printf("ftell %ld\n", ftell(f));
   printf("fputall %d\n", fputs("last line, no newline", f) == EOF);
   printf("fclose %d\n", fclose(f));

   f = fopen("data.txt", "r");
   printf("fopen r: %d\n", 3);
   c = fgetc(f);
   printf("fgetc %d %d\n", c, fgetc(f));
   while (fgets(line, sizeof line, f)) {
      len = strlen(line);
      printf("fgets %u:", (unsigned) len);
      for (k = 0; k < (int) len; k++) printf(" %d", line[k]);
      printf("\n");
   }
   printf("fgets at the end %d %u\n", -2, 0u);
   printf("fgetc at the end %d\n", fgetc(f) == EOF ? -2 : 0);
   st = fseek(f, 3, SEEK_SET);
   printf("fseek %d ftell %ld\n", st, ftell(f));
   fgets(line, sizeof line, f);
   printf("after fseek [%s]\n", line);
   count = fscanf(f, "%d %63s %d", &n, word, &k);
   printf("fscanf %d: %d [%s]\n", count, n, word);
   fseek(f, -5, SEEK_END);
   got = fread(small, 1, 4, f);
   printf("fread fixed %u [%c%c%c%c]\n", got, small[0], small[1], small[2], small[3]);
   got = fread(buf, 1, 100, f);
   buf[got] = 0;
   printf("fread rest %u [%s]\n", got, buf);
   got = fread(buf, 1, 100, f);
   printf("fread at the end %u %u\n", got, got);
   fseek(f, 0, SEEK_SET);
   got = fread(all, 1, sizeof all, f);
   printf("fgetall %d %u %d\n", 0, got, all[33]);
   fseek(f, -4, SEEK_CUR);
   got = fread(all, 1, sizeof all, f);
   all[got] = 0;
   printf("fgetall after SEEK_CUR %d [%s]\n", 0, all);
   got = fread(all, 1, sizeof all, f);
   printf("fgetall at the end %d %u\n", 0, got);
   printf("fclose %d\n", fclose(f));

   f = fopen("data.txt", "r+");
   fputc('a', f);
   fseek(f, 0, SEEK_CUR);
   c = fgetc(f);
   fseek(f, 0, SEEK_CUR);
   fputc('!', f);
   printf("update: wrote, read %c, wrote\n", c);
   fseek(f, 0, SEEK_SET);
   fgets(line, sizeof line, f);
   printf("update [%s]", line);
   printf("fclose %d\n", fclose(f));

   f = fopen("data.txt", "a");
   fputs("\nappended\n", f);
   fclose(f);
   f = fopen("data.txt", "rb");
   fseek(f, -9, SEEK_END);
   fgets(line, sizeof line, f);
   printf("append [%s]", line);
   fclose(f);

   printf("rename %d\n", rename("data.txt", "moved.txt"));
   printf("old name %d\n", openf("data.txt", "r", 3));
   f = fopen("moved.txt", "r");
   printf("new name opens %d\n", f != NULL);
   fclose(f);
   printf("remove %d\n", remove("moved.txt"));
   i = remove("moved.txt");
   printf("remove again %d\n", i == 0 ? 0 : errno);

   f = tmpfile();
   g = tmpfile();
   printf("tmpfile %d %d\n", 3, 4);
   fprintf(f, "%s=%d\n", "seven", 7);
   fseek(f, 0, SEEK_SET);
   count = fscanf(f, "%63s", word);
   printf("tmpfile back %d [%s]\n", count, word);
   st = fclose(g);
   printf("fclose %d %d\n", st, fclose(f));

   if (!tmpnam(name)) return 1;
   printf("tmpnam: not empty %d, no such file %d\n", name[0] != 0, openf(name, "r", 3));
   f = fopen(name, "w");
   fclose(f);
   printf("tmpnam usable %d\n", remove(name));

   fputs("to standard error\n", stderr);
   fprintf(stderr, "%s %d\n", "count", 7);
   fputc('!', stderr);
   fputc('\n', stderr);
   fputs("fputs to standard output\n", stdout);
   fputc('.', stdout);
   fputs("\n", stdout);
   return 0;
}
