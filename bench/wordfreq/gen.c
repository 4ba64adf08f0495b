/* Writes about BYTES bytes of text for the word-frequency benchmark: words
   drawn from a vocabulary of 50,000 made-up words with a skewed (roughly
   Zipf-like) frequency, some capitalised or in capitals, with punctuation,
   digits and line breaks. The same BYTES always give the same text.
   usage: gen BYTES > text */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define VOCABULARY 50000

static unsigned long long state = 88172645463325252ULL;

static unsigned long long next(void)
{
   state ^= state << 13;
   state ^= state >> 7;
   state ^= state << 17;
   return state;
}

/* uniform in [0, 1) */
static double uniform(void)
{
   return (double) (next() >> 11) / 9007199254740992.0;
}

int main(int argc, char **argv)
{
   static char words[VOCABULARY][16];
   static const char *marks[] = {",", ".", ";", ":", "!", "?", " --", "'s", "-"};
   long long bytes = argc > 1 ? atoll(argv[1]) : 100000000LL, written = 0;
   int i, k, column = 0;
   for (i = 0; i < VOCABULARY; i++) {
      int len = 2 + (int) (next() % 11);
      for (k = 0; k < len; k++)
         words[i][k] = (char) ('a' + next() % 26);
      words[i][len] = 0;
   }
   while (written < bytes) {
      double u = uniform();
      int w = (int) (VOCABULARY * u * u * u);
      char word[16];
      int len = (int) strlen(words[w]);
      unsigned long long r = next();
      memcpy(word, words[w], (size_t) len + 1);
      if (r % 10 == 0)
         word[0] = (char) (word[0] - 'a' + 'A');
      else if (r % 97 == 1)
         for (k = 0; k < len; k++)
            word[k] = (char) (word[k] - 'a' + 'A');
      written += fputs(word, stdout) >= 0 ? len : 0;
      if ((r >> 8) % 8 == 0)
         written += printf("%s", marks[(r >> 12) % 9]);
      if ((r >> 16) % 50 == 0)
         written += printf(" %d", (int) ((r >> 20) % 1000));
      column += len + 1;
      if (column > 70) {
         putchar('\n');
         column = 0;
      } else {
         putchar(' ');
      }
      written++;
   }
   return 0;
}
