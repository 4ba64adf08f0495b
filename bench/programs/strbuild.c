/* String building: each round appends N numbers in decimal, separated by
   blanks and a line end after every tenth, character by character to a
   growing buffer, then hashes the text and frees it. Prints the length, the
   lines and the hash of the last round and a hash of all rounds.
   Usage: strbuild [N] */
#include <stdio.h>
#include <stdlib.h>

struct text {
   char *ptr;
   size_t length, capacity;
};

static void append(struct text *t, char c)
{
   if (t->length == t->capacity) {
      t->capacity = t->capacity ? t->capacity * 2 : 64;
      t->ptr = realloc(t->ptr, t->capacity);
      if (t->ptr == NULL) exit(1);
   }
   t->ptr[t->length++] = c;
}

static void append_number(struct text *t, int value)
{
   char digits[12];
   int count = 0;
   do {
      digits[count++] = (char)('0' + value % 10);
      value /= 10;
   } while (value > 0);
   while (count > 0)
      append(t, digits[--count]);
}

int main(int argc, char **argv)
{
   int n = argc > 1 ? atoi(argv[1]) : 1000000;
   int round, i, lines = 0;
   size_t k;
   unsigned hash = 0, all = 0;
   struct text t = {NULL, 0, 0};
   for (round = 0; round < 20; round++) {
      for (i = 0; i < n; i++) {
         append_number(&t, (i * 7919 + round) % 1000003);
         append(&t, i % 10 == 9 ? '\n' : ' ');
      }
      hash = 2166136261u;
      lines = 0;
      for (k = 0; k < t.length; k++) {
         hash = (hash ^ (unsigned char)t.ptr[k]) * 16777619u;
         if (t.ptr[k] == '\n')
            lines++;
      }
      all = all * 31 + hash;
      if (round < 19) {
         free(t.ptr);
         t.ptr = NULL;
         t.length = t.capacity = 0;
      }
   }
   printf("length %d lines %d hash %u all %u\n", (int)t.length, lines, hash, all);
   free(t.ptr);
   return 0;
}
