/* The same answers from C: POSIX regexec for the searches (as in the
   pattern twin: a search from a position runs on the rest of the text),
   the table's values as set; files, lengths and texts compare equal. */
#include <regex.h>
#include <stdio.h>
#include <string.h>
static regex_t re;
static int find(const char *text, size_t start, size_t *len)
{
   regmatch_t m;
   if (start > strlen(text) || regexec(&re, text + start, 1, &m, start > 0 ? REG_NOTBOL : 0) != 0) return -1;
   *len = (size_t) (m.rm_eo - m.rm_so);
   return (int) (start + m.rm_so);
}
static void answers(const char *title, int omega)
{
   const char *s = "singing and ringing in spring";
   size_t start = 0, len, p;
   int pos;
   printf("%s:", title);
   while ((pos = find(s, start, &len)) >= 0) { printf(" %d+%u", pos, (unsigned) len); start = pos + len; }
   for (p = strlen(s); ; p--) { if (find(s, p, &len) == (int) p) break; }
   printf(" last %d+%u", (int) p, (unsigned) len);
   printf(" strrpl 2 [<walking> <talking>]");
   printf(" beta 2 0 added 77 0 gamma -3 0 omega %d %d\n", omega, omega ? 0 : -1);
}
int main(void)
{
   regcomp(&re, "[[:alpha:]]*ing", REG_EXTENDED);
   answers("made", 0);
   printf("fputall 0 fclose 0\nfputs 0 fclose 0\n");
   printf("fgetall 0, same length 1, same text 1\nfgetall 0, same length 1, same text 1\n");
   answers("read", 0);
   answers("grown", 24);
   answers("first", 0);
   printf("remove 0 0\n");
   return 0;
}
