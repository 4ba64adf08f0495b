/* Numbers read from texts (strtod, strtol, strtoul) and the character
   classes. Both follow the C library in the "C" locale; a character outside
   0..255 belongs to no class and maps to itself. */
#include <ctype.h>
#include <stdlib.h>

#include "ycrt_lib.h"

void _yc__strtod(void *returns[], struct ycrt_meta1 *text)
{
   char *s = ycrt_cstring(text), *end;
   if (s == NULL) {
      ycrt_raise_memory(returns);
      return;
   }
   *(double *)returns[1] = strtod(s, &end);
   *(unsigned *)returns[2] = (unsigned)(end - s);
   free(s);
}

static int base_valid(int base)
{
   return base == 0 || (base >= 2 && base <= 36);
}

void _yc__strtol(void *returns[], struct ycrt_meta1 *text, int base)
{
   char *s, *end;
   if (!base_valid(base)) {
      *(long *)returns[1] = 0;
      *(unsigned *)returns[2] = 0;
      return;
   }
   s = ycrt_cstring(text);
   if (s == NULL) {
      ycrt_raise_memory(returns);
      return;
   }
   *(long *)returns[1] = strtol(s, &end, base);
   *(unsigned *)returns[2] = (unsigned)(end - s);
   free(s);
}

void _yc__strtoul(void *returns[], struct ycrt_meta1 *text, int base)
{
   char *s, *end;
   if (!base_valid(base)) {
      *(unsigned long *)returns[1] = 0;
      *(unsigned *)returns[2] = 0;
      return;
   }
   s = ycrt_cstring(text);
   if (s == NULL) {
      ycrt_raise_memory(returns);
      return;
   }
   *(unsigned long *)returns[1] = strtoul(s, &end, base);
   *(unsigned *)returns[2] = (unsigned)(end - s);
   free(s);
}

#define CLASS(name) \
   void _yc__##name(void *returns[], int c) \
   { \
      *(int *)returns[1] = c >= 0 && c <= 255 && name(c) ? 1 : 0; \
   }
CLASS(isalnum)
CLASS(isalpha)
CLASS(isdigit)
CLASS(islower)
CLASS(isspace)
CLASS(isupper)

void _yc__tolower(void *returns[], int c)
{
   *(int *)returns[1] = c >= 0 && c <= 255 ? tolower(c) : c;
}

void _yc__toupper(void *returns[], int c)
{
   *(int *)returns[1] = c >= 0 && c <= 255 ? toupper(c) : c;
}
