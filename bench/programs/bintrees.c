/* Binary trees held as an array of structures linked by indices: builds
   complete trees of many depths in one pool (a temporary tree reuses the
   pool above the long-lived one) and counts their nodes by walking them.
   Usage: bintrees [MAX_DEPTH] */
#include <stdio.h>
#include <stdlib.h>

struct node {
   int left, right;
};

struct pool {
   struct node *nodes;
   int capacity;
};

static int make(struct pool *p, int top, int depth, int *next)
{
   int node = top, left, right;
   if (node >= p->capacity) {
      p->capacity = p->capacity ? p->capacity * 2 : 1024;
      p->nodes = realloc(p->nodes, sizeof(struct node) * p->capacity);
      if (p->nodes == NULL) exit(1);
   }
   *next = top + 1;
   if (depth > 0) {
      left = make(p, *next, depth - 1, next);
      right = make(p, *next, depth - 1, next);
      p->nodes[node].left = left;
      p->nodes[node].right = right;
   } else {
      p->nodes[node].left = -1;
      p->nodes[node].right = -1;
   }
   return node;
}

static int count(const struct node *tree, int node)
{
   if (tree[node].left < 0)
      return 1;
   return count(tree, tree[node].left) + count(tree, tree[node].right) + 1;
}

int main(int argc, char **argv)
{
   int min_depth = 4, max_depth = argc > 1 ? atoi(argv[1]) : 19;
   int depth, iterations, i, root, long_lived, top, next;
   long checked;
   struct pool p = {NULL, 0};
   if (max_depth < min_depth + 2)
      max_depth = min_depth + 2;
   root = make(&p, 0, max_depth + 1, &next);
   printf("stretch tree of depth %d\t check: %d\n", max_depth + 1, count(p.nodes, root));
   long_lived = make(&p, 0, max_depth, &top);
   for (depth = min_depth; depth <= max_depth; depth += 2) {
      iterations = 1 << (max_depth - depth + min_depth);
      checked = 0;
      for (i = 0; i < iterations; i++) {
         root = make(&p, top, depth, &next);
         checked += count(p.nodes, root);
      }
      printf("%d\t trees of depth %d\t check: %ld\n", iterations, depth, checked);
   }
   printf("long lived tree of depth %d\t check: %d\n", max_depth, count(p.nodes, long_lived));
   free(p.nodes);
   return 0;
}
