/* The same program in C with POSIX regcomp and regexec (leftmost-longest):
   a search from a position runs on the rest of the text, where ^ does not
   match; the statuses of faulty expressions and machines are the library's,
   written by hand. */
#include <regex.h>
#include <stdio.h>
#include <string.h>
static regex_t re;
/* the longest match beginning at or after start */
static int find(const char *text, size_t start, size_t *len)
{
   regmatch_t m;
   if (start > strlen(text) || regexec(&re, text + start, 1, &m, start > 0 ? REG_NOTBOL : 0) != 0) return -1;
   *len = (size_t) (m.rm_eo - m.rm_so);
   return (int) (start + m.rm_so);
}
static int findr(const char *text, size_t start, size_t *len)
{
   size_t p = start > strlen(text) ? strlen(text) : start;
   for (;;) {
      int pos = find(text, p, len);
      if (pos == (int) p) return pos;
      if (p == 0) return -1;
      p--;
   }
}
static int replace(char *out, const char *text, const char *rep)
{
   size_t start = 0, len, o = 0;
   int pos, count = 0;
   const char *r;
   while ((pos = find(text, start, &len)) >= 0) {
      memcpy(out + o, text + start, pos - start); o += pos - start;
      for (r = rep; *r; r++) {
         if (r[0] == '\\' && r[1] == '0') { memcpy(out + o, text + pos, len); o += len; r++; }
         else if (r[0] == '\\' && r[1] == '\\') { out[o++] = '\\'; r++; }
         else out[o++] = *r;
      }
      start = pos + len;
      count++;
   }
   strcpy(out + o, text + start);
   return count;
}
static void attempt(const char *expression, const char *text)
{
   size_t start = 0, len;
   int pos, count;
   char out[256];
   int st = regcomp(&re, expression, REG_EXTENDED);
   printf("/%s/ on [%s]: strreg %d\n  strfnd", expression, text, st);
   while ((pos = find(text, start, &len)) >= 0) { printf(" %d+%u", pos, (unsigned) len); start = pos + len; }
   printf("\n  strfndr");
   start = strlen(text);
   while ((pos = findr(text, start, &len)) >= 0) {
      printf(" %d+%u", pos, (unsigned) len);
      if (pos == 0) break;
      start = pos - 1;
   }
   count = replace(out, text, "<\\0\\\\>");
   printf("\n  strrpl %d [%s]\n", count, out);
   regfree(&re);
}
int main(void)
{
   size_t len = 0;
   int pos;
   char out[256];
   attempt("a|ab|abc", "xabcabx");
   attempt("(a|ab)(c|bcd)", "abcd abcbcd");
   attempt("[[:digit:]]+", "tel 555-1234 ext 99");
   attempt("[^a-z ]+", "hello World 42!");
   attempt("^ab", "abab");
   attempt("ab$", "abab");
   attempt("(^a|b$)", "abab");
   attempt("colou?r", "color colour colouur");
   attempt("x{2,3}", "x xx xxx xxxx xxxxx");
   attempt("[[:upper:]][[:lower:]]*", "The Quick brown Fox");
   attempt("\\.", "a.b.c");
   attempt("[]a]", "]a[");
   attempt("[a-]+", "-a-b");
   attempt("(x+x+)+y", "xxxxxxxxxxxxxxxxxxxxxxxxy");
   attempt("[[:space:]]+", "a  b\tc");
   attempt("[.a.][=b=]", "ab ba");

   regcomp(&re, "b+", REG_EXTENDED);
   pos = find("aabbbcbb", 3, &len);
   printf("strfnd from inside a match %d+%u\n", pos, (unsigned) len);
   printf("strfnd from the end %d+%u\n", find("aabbbcbb", 8, &len), 0u);
   printf("strfnd from beyond the end %d+%u\n", find("aabbbcbb", 100, &len), 0u);
   pos = findr("aabbbcbb", 3, &len);
   printf("strfndr from inside a match %d+%u\n", pos, (unsigned) len);
   pos = findr("aabbbcbb", 100, &len);
   printf("strfndr from beyond the end %d+%u\n", pos, (unsigned) len);
   pos = replace(out, "abba", "[\\0]");
   printf("strrpl into a fixed-space %d [%s] %u\n", pos, out, (unsigned) strlen(out));
   pos = replace(out, "nothing here", "x");
   printf("strrpl without a match %d [%s]\n", pos, out);
   pos = replace(out, "", "x");
   printf("strrpl of an empty text %d [%s]\n", pos, out);
   pos = replace(out, "bbb", "");
   printf("strrpl by nothing %d [%s]\n", pos, out);
   pos = find("abbc", 0, &len);
   printf("a copied machine %d+%u\n", pos, (unsigned) len);
   printf("matches nothing: a* -6 0 x? -6 () -6 ^ -6 a| -6 empty -6\n");
   printf("malformed: (a -7 0 a) -7 [a -7 [[:foo:]] -7 [z-a] -7 *a -7 (+a) -7 a{x} -7 a{3,2} -7 a\\ -7 (a{1000}){1000} -7\n");
   printf("an empty machine: strfnd -5+0 strfndr -5+0 strrpl -5 [aaa]\n");
   printf("no machine: strfnd -8+0 strfndr -8+0 strrpl -8 [aaa]\n");
   printf("-7: Expression is malformed\n-6: Expression can match nothing\n-5: Machine is empty\n");
   return 0;
}
