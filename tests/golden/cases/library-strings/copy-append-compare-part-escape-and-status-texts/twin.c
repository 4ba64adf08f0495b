/* The same program in C. Parts are cut by hand, escapes follow the C
   escape table (octal for other control characters, high characters kept),
   and the library's own statuses print their texts from its table. */
#include <stdio.h>
#include <string.h>
static int sign(int v) { return (v > 0) - (v < 0); }
static void part(const char *what, const char *text, size_t start, size_t length)
{
   size_t n = strlen(text);
   char buf[64];
   if (start > n) start = n;
   if (length > n - start) length = n - start;
   memcpy(buf, text + start, length);
   buf[length] = 0;
   printf("strpart%s [%s] %zu\n", what, buf, length);
}
static size_t escape(const unsigned char *t, size_t n, char *out)
{
   static const char from[] = "\a\b\f\n\r\t\v\"'\\", to[] = "abfnrtv\"'\\";
   size_t k, o = 0;
   for (k = 0; k < n; k++) {
      const char *e = t[k] ? strchr(from, t[k]) : NULL;
      if (e) { out[o++] = '\\'; out[o++] = to[e - from]; }
      else if (t[k] < 32 || t[k] == 127) o += sprintf(out + o, "\\%03o", t[k]);
      else out[o++] = (char) t[k];
   }
   out[o] = 0;
   return o;
}
int main(void)
{
   static const char *names[] = {"Unknown status -9", "Invalid argument", "Expression is malformed",
      "Expression can match nothing", "Machine is empty", "Too many open files", "File number is invalid",
      "At end of file", "Not found"};
   char s[64] = "hello", fixed[16], t[8] = "";
   unsigned char controls[] = {7, 8, 12, 10, 13, 9, 11, '"', 39, 92, 27, 127, 200, 'A'};
   char esc[128];
   size_t n, k;
   int i;
   printf("strcpy [%s] %zu\n", s, strlen(s));
   strcpy(fixed, s);
   printf("strcpy fixed [%s] %zu\n", fixed, strlen(fixed));
   strcat(s, ", world");
   printf("strcat [%s] %zu\n", s, strlen(s));
   memcpy(s + 12, s, 12); s[24] = 0;
   printf("strcat itself [%s] %zu\n", s, strlen(s));
   printf("strcpy empty [%s] %zu\n", t, strlen(t));
   printf("strcat empty [%s] %zu\n", t, strlen(t));
   strcat(fixed, "!!!");
   printf("strcat fixed [%s] %zu\n", fixed, strlen(fixed));
   printf("stops at a NUL [%s] %zu\n", "ab", strlen("ab"));
   printf("strcmp %d %d %d %d %d %d\n", sign(strcmp("abc", "abd")), sign(strcmp("abc", "abc")),
          sign(strcmp("b", "a")), sign(strcmp("a", "ab")), sign(strcmp("", "")), sign(strcmp("ab", "ab")));
   printf("strcmp unsigned %d %d\n", sign(strcmp("\351", "z")), sign(strcmp("z", "\351")));
   printf("strncmp %d %d %d %d\n", sign(strncmp("abc", "abd", 2)), sign(strncmp("abc", "abd", 3)),
          sign(strncmp("x", "y", 0)), sign(strncmp("abc", "ab", 10)));
   part("", "hello world", 6, 5);
   part(" clipped", "hello world", 6, 100);
   part(" at the end", "hello world", 11, 3);
   part(" past the end", "hello world", 40, 3);
   part(" of nothing", "hello world", 0, 0);
   n = escape(controls, sizeof controls, esc);
   printf("stresc %zu:", n);
   for (k = 0; k < n; k++) printf(" %d", (unsigned char) esc[k]);
   printf("\n");
   escape((const unsigned char *) "plain text", 10, esc);
   printf("stresc [%s]\n", esc);
   for (i = -9; i < 0; i++) printf("strerror(%d) [%s]\n", i, names[i + 9]);
   printf("strerror(0) [%s]\n", strerror(0));
   printf("strerror(2) [%s]\n", strerror(2));
   printf("strerror(-1002) [%s]\n", strerror(2));
   printf("strerror(-1013) [%s]\n", strerror(13));
   printf("strerror(-12345) [%s]\n", strerror(11345));
   return 0;
}
