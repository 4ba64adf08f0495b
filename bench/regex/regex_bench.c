/* Times one search for a pattern in a generated text, with the library's
   machine (strfnd) or with POSIX regexec, so the two can be compared run
   for run.

   usage: regex_bench ycrt|posix PATTERN FILL LENGTH [TAIL]
   The text is LENGTH copies of the character FILL, then TAIL. Prints the
   match found (position and length, or -1) so both engines can be seen to
   agree. */
#include <regex.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ycrt_lib.h"

int main(int argc, char **argv)
{
   size_t n, tail;
   char *text;
   if (argc < 5) {
      fprintf(stderr, "usage: regex_bench ycrt|posix PATTERN FILL LENGTH [TAIL]\n");
      return 2;
   }
   n = strtoul(argv[4], NULL, 10);
   tail = argc > 5 ? strlen(argv[5]) : 0;
   text = malloc(n + tail + 1);
   memset(text, argv[3][0], n);
   memcpy(text + n, argc > 5 ? argv[5] : "", tail + 1);
   if (strcmp(argv[1], "posix") == 0) {
      regex_t re;
      regmatch_t m;
      if (regcomp(&re, argv[2], REG_EXTENDED) != 0)
         return 2;
      if (regexec(&re, text, 1, &m, 0) == 0)
         printf("%ld %ld\n", (long)m.rm_so, (long)(m.rm_eo - m.rm_so));
      else
         printf("-1\n");
      regfree(&re);
   } else {
      struct ycrt_meta1 pattern, machine = {NULL, 0, 0}, t;
      int status = 0, exception = 0, position = 0;
      unsigned length = 0;
      void *r[3];
      pattern.ptr = argv[2];
      pattern.occurs = (unsigned)strlen(argv[2]);
      pattern.limit1 = pattern.occurs + 1;
      t.ptr = text;
      t.occurs = (unsigned)(n + tail);
      t.limit1 = t.occurs + 1;
      r[0] = &exception;
      r[1] = &machine;
      r[2] = &status;
      _yc__strreg(r, &pattern);
      if (status != 0 || exception != 0)
         return 2;
      r[1] = &position;
      r[2] = &length;
      _yc__strfnd(r, &machine, &t, 0);
      if (position >= 0)
         printf("%d %u\n", position, length);
      else
         printf("-1\n");
      free(machine.ptr);
   }
   free(text);
   return 0;
}
