/* The word-frequency counter of examples/wordfreq.yc written in C with an
   open-addressing hash table: the same words (runs of letters, lowered), the
   same order (count, then alphabetically), the same output.
   usage: wordfreq [-n N] [FILE...] */
#include <ctype.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

struct counted {
   char *word;
   int count;
};

static struct counted *words;
static size_t nwords, capacity;
static size_t *slots; /* index + 1 into words, 0 for a free slot */
static size_t nslots;

static size_t hash(const char *s, size_t n)
{
   size_t h = 14695981039346656037ULL;
   size_t i;
   for (i = 0; i < n; i++)
      h = (h ^ (unsigned char) s[i]) * 1099511628211ULL;
   return h;
}

static void grow(void)
{
   size_t i, n = nslots ? nslots * 2 : 1024;
   size_t *fresh = calloc(n, sizeof *fresh);
   if (!fresh) exit(3);
   for (i = 0; i < nwords; i++) {
      size_t h = hash(words[i].word, strlen(words[i].word)) & (n - 1);
      while (fresh[h]) h = (h + 1) & (n - 1);
      fresh[h] = i + 1;
   }
   free(slots);
   slots = fresh;
   nslots = n;
}

static void count(const char *w, size_t n)
{
   size_t h;
   if (2 * (nwords + 1) > nslots) grow();
   h = hash(w, n) & (nslots - 1);
   while (slots[h]) {
      struct counted *c = &words[slots[h] - 1];
      if (strncmp(c->word, w, n) == 0 && c->word[n] == 0) {
         c->count++;
         return;
      }
      h = (h + 1) & (nslots - 1);
   }
   if (nwords == capacity) {
      capacity = capacity ? capacity * 2 : 1024;
      words = realloc(words, capacity * sizeof *words);
      if (!words) exit(3);
   }
   words[nwords].word = malloc(n + 1);
   if (!words[nwords].word) exit(3);
   memcpy(words[nwords].word, w, n);
   words[nwords].word[n] = 0;
   words[nwords].count = 1;
   slots[h] = ++nwords;
}

static void count_file(FILE *f)
{
   char *line = NULL, *word = NULL;
   size_t size = 0, wsize = 0;
   ssize_t len;
   while ((len = getline(&line, &size, f)) >= 0) {
      ssize_t i = 0, start, k;
      while (i < len) {
         if (!isalpha((unsigned char) line[i])) {
            i++;
            continue;
         }
         start = i;
         while (i < len && isalpha((unsigned char) line[i])) i++;
         if ((size_t) (i - start) + 1 > wsize) {
            wsize = (size_t) (i - start) + 1;
            word = realloc(word, wsize);
            if (!word) exit(3);
         }
         for (k = start; k < i; k++) word[k - start] = (char) tolower((unsigned char) line[k]);
         count(word, (size_t) (i - start));
      }
   }
   free(line);
   free(word);
}

static int by_frequency(const void *pa, const void *pb)
{
   const struct counted *a = pa, *b = pb;
   if (a->count != b->count) return b->count - a->count;
   return strcmp(a->word, b->word);
}

int main(int argc, char **argv)
{
   int first = 1, status = 0, i;
   long shown = 10;
   if (argc > 2 && strcmp(argv[1], "-n") == 0) {
      char *end;
      shown = strtol(argv[2], &end, 10);
      if (end == argv[2] || *end || shown < 0) {
         fprintf(stderr, "wordfreq: '%s' is not a count\n", argv[2]);
         return 2;
      }
      first = 3;
   }
   if (first >= argc) count_file(stdin);
   for (i = first; i < argc; i++) {
      FILE *f = fopen(argv[i], "r");
      if (!f) {
         fprintf(stderr, "wordfreq: %s: ", argv[i]);
         perror(NULL);
         status = 1;
         continue;
      }
      count_file(f);
      fclose(f);
   }
   qsort(words, nwords, sizeof *words, by_frequency);
   if (shown == 0 || (size_t) shown > nwords) shown = (long) nwords;
   for (i = 0; i < shown; i++) printf("%7d %s\n", words[i].count, words[i].word);
   return status;
}
