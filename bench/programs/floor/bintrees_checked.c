/* bintrees as the fastest C that still does what the checked YARL C program
   must: every write tests the subscript's sign, grows the pool when the
   subscript passes its limit (by the same rule: the larger of 50 more and
   15% more) and raises `occurs`; every read tests the subscript against
   `occurs`. Everything else is as cheap as plain C: one test per node for
   the two members written together, results returned in registers, no test
   for an exception after a call (neither function can raise one here, as
   an out-of-memory report ends the program).
   Same output as bintrees.c. Usage: bintrees_checked [MAX_DEPTH] */
#include <stdio.h>
#include <stdlib.h>

struct node {
   int left, right;
};

struct space {
   struct node *ptr;
   unsigned occurs;
   unsigned limit;
};

static void bounds_exceeded(int sub, unsigned limit)
{
   fprintf(stderr, "subscript %d outside 0..%u\n", sub, limit);
   exit(1);
}

static void grow(struct space *s, unsigned sub)
{
   unsigned by_count = s->limit + 50, by_share = s->limit + 15 * (s->limit / 100);
   unsigned limit = sub + 1;
   if (by_count > limit) limit = by_count;
   if (by_share > limit) limit = by_share;
   s->ptr = realloc(s->ptr, sizeof(struct node) * limit);
   if (s->ptr == NULL) {
      fprintf(stderr, "memory request failed\n");
      exit(1);
   }
   s->limit = limit;
}

/* The checks of one written element. */
static struct node *written(struct space *s, int node)
{
   if (node < 0) bounds_exceeded(node, s->limit);
   if ((unsigned)node >= s->limit) grow(s, (unsigned)node);
   if ((unsigned)node + 1 > s->occurs) s->occurs = (unsigned)node + 1;
   return s->ptr + node;
}

/* The check of one read element. */
static const struct node *read(const struct space *s, int node)
{
   if (node < 0 || (unsigned)node >= s->occurs) bounds_exceeded(node, s->occurs);
   return s->ptr + node;
}

static int make(struct space *s, int top, int depth, int *next)
{
   int node = top, left, right;
   struct node *n;
   *next = top + 1;
   if (depth > 0) {
      left = make(s, *next, depth - 1, next);
      right = make(s, *next, depth - 1, next);
      n = written(s, node);
      n->left = left;
      n->right = right;
   } else {
      n = written(s, node);
      n->left = -1;
      n->right = -1;
   }
   return node;
}

static int count(const struct space *s, int node)
{
   const struct node *n = read(s, node);
   if (n->left < 0)
      return 1;
   return count(s, n->left) + count(s, n->right) + 1;
}

int main(int argc, char **argv)
{
   int min_depth = 4, max_depth = argc > 1 ? atoi(argv[1]) : 19;
   int depth, iterations, i, root, long_lived, top, next;
   long checked;
   struct space s = {NULL, 0, 0};
   if (max_depth < min_depth + 2)
      max_depth = min_depth + 2;
   root = make(&s, 0, max_depth + 1, &next);
   printf("stretch tree of depth %d\t check: %d\n", max_depth + 1, count(&s, root));
   long_lived = make(&s, 0, max_depth, &top);
   for (depth = min_depth; depth <= max_depth; depth += 2) {
      iterations = 1 << (max_depth - depth + min_depth);
      checked = 0;
      for (i = 0; i < iterations; i++) {
         root = make(&s, top, depth, &next);
         checked += count(&s, root);
      }
      printf("%d\t trees of depth %d\t check: %ld\n", iterations, depth, checked);
   }
   printf("long lived tree of depth %d\t check: %d\n", max_depth, count(&s, long_lived));
   free(s.ptr);
   return 0;
}
