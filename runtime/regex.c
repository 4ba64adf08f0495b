/* strreg: compiles a POSIX extended regular expression into a machine.

   The expression is read without recursion (operator-precedence parsing
   into postfix order), so deep nesting costs no stack. Counted repetitions
   are then written out as copies of their operand in the postfix sequence,
   and the sequence becomes two Thompson automata: one reading forwards, one
   reading backwards. Every stage is bounded by RE_MAX_STATES, so no
   expression can make the machine grow without end. */
#include <ctype.h>
#include <stdlib.h>
#include <string.h>

#include "ycrt_lib.h"
#include "ycrt_regex.h"

enum { T_CHAR, T_SET, T_ANY, T_BOL, T_EOL, T_EMPTY, T_CAT, T_ALT, T_STAR, T_PLUS, T_QUEST, T_REP, T_OPEN };

#define DUP_MAX 32767 /* the largest count in {m,n}, as RE_DUP_MAX */

enum { OK = 0, ERR_MEMORY = 1, ERR_MALFORMED = 2 };

struct tok {
   int op, a, b;
};

struct tokens {
   struct tok *t;
   size_t n, cap;
};

static int push_tok(struct tokens *v, int op, int a, int b)
{
   if (v->n >= RE_MAX_STATES)
      return ERR_MALFORMED;
   if (v->n == v->cap) {
      size_t cap = v->cap > 0 ? 2 * v->cap : 64;
      struct tok *t = ycrt_realloc(v->t, cap * sizeof *t);
      if (t == NULL)
         return ERR_MEMORY;
      v->t = t;
      v->cap = cap;
   }
   v->t[v->n].op = op;
   v->t[v->n].a = a;
   v->t[v->n].b = b;
   ++v->n;
   return OK;
}

struct parser {
   const unsigned char *s;
   size_t n, i;
   struct tokens out, ops;
   struct ycrt_buf sets; /* 32-byte bitmaps */
   int err;
   size_t open;
};

static void emit(struct parser *p, int op, int a, int b)
{
   if (p->err == OK)
      p->err = push_tok(&p->out, op, a, b);
}

/* Moves operators of at least the given precedence (ALT 1, CAT 2) from the
   operator stack to the output. */
static void pop_ops(struct parser *p, int precedence)
{
   while (p->ops.n > 0 && p->err == OK) {
      int op = p->ops.t[p->ops.n - 1].op;
      if (!((op == T_CAT && precedence <= 2) || (op == T_ALT && precedence <= 1)))
         break;
      emit(p, op, 0, 0);
      --p->ops.n;
   }
}

static void push_op(struct parser *p, int op)
{
   if (p->err == OK)
      p->err = push_tok(&p->ops, op, 0, 0);
}

/* An operand follows another: they are concatenated. */
static void operand_follows(struct parser *p, int *prev)
{
   if (*prev) {
      pop_ops(p, 2);
      push_op(p, T_CAT);
   }
   *prev = 1;
}

static int class_has(const char *name, size_t len, int c)
{
   static const struct {
      const char *name;
      int (*test)(int);
   } classes[] = {
      {"alnum", isalnum}, {"alpha", isalpha}, {"blank", NULL},  {"cntrl", iscntrl},
      {"digit", isdigit}, {"graph", isgraph}, {"lower", islower}, {"print", isprint},
      {"punct", ispunct}, {"space", isspace}, {"upper", isupper}, {"xdigit", isxdigit},
   };
   size_t k;
   for (k = 0; k < sizeof classes / sizeof classes[0]; ++k)
      if (strlen(classes[k].name) == len && memcmp(classes[k].name, name, len) == 0) {
         if (classes[k].test == NULL)
            return c == ' ' || c == '\t';
         return classes[k].test(c) != 0;
      }
   return -1;
}

static void set_bit(unsigned char *bits, int c)
{
   bits[c >> 3] = (unsigned char)(bits[c >> 3] | (1u << (c & 7)));
}

/* Reads "[.c.]" or "[=c=]" (one character) after its '['; the character, or
   -1 when malformed. */
static int bracket_symbol(struct parser *p, char kind)
{
   int c;
   if (p->i + 3 >= p->n || p->s[p->i + 2] != kind || p->s[p->i + 3] != ']')
      return -1;
   c = p->s[p->i + 1];
   p->i += 4;
   return c;
}

/* One element of a bracket expression: a character (its value) or a class
   (-2, added to bits). -1 when malformed. */
static int bracket_element(struct parser *p, unsigned char *bits)
{
   if (p->i + 1 < p->n && p->s[p->i] == '[') {
      char kind = (char)p->s[p->i + 1];
      if (kind == ':') {
         size_t start = p->i + 2, end = start;
         int c;
         while (end + 1 < p->n && !(p->s[end] == ':' && p->s[end + 1] == ']'))
            ++end;
         if (end + 1 >= p->n || class_has((const char *)p->s + start, end - start, 'a') < 0)
            return -1;
         for (c = 1; c < 256; ++c)
            if (class_has((const char *)p->s + start, end - start, c))
               set_bit(bits, c);
         p->i = end + 2;
         return -2;
      }
      if (kind == '.' || kind == '=') {
         ++p->i;
         return bracket_symbol(p, kind);
      }
   }
   return p->s[p->i++];
}

/* A bracket expression after its '['; emits the set. */
static void bracket(struct parser *p)
{
   unsigned char *bits = (unsigned char *)ycrt_buf_room(&p->sets, 32);
   size_t index;
   int negate = 0, first = 1, c;
   if (bits == NULL) {
      p->err = ERR_MEMORY;
      return;
   }
   memset(bits, 0, 32);
   index = p->sets.n / 32;
   if (p->i < p->n && p->s[p->i] == '^') {
      negate = 1;
      ++p->i;
   }
   for (;;) {
      int lo;
      if (p->i >= p->n) {
         p->err = ERR_MALFORMED;
         return;
      }
      if (p->s[p->i] == ']' && !first) {
         ++p->i;
         break;
      }
      first = 0;
      lo = bracket_element(p, bits);
      if (lo == -1) {
         p->err = ERR_MALFORMED;
         return;
      }
      if (lo == -2)
         continue;
      if (p->i + 1 < p->n && p->s[p->i] == '-' && p->s[p->i + 1] != ']') {
         int hi;
         ++p->i;
         hi = bracket_element(p, bits);
         if (hi < 0 || hi < lo) {
            p->err = ERR_MALFORMED;
            return;
         }
         for (c = lo; c <= hi; ++c)
            set_bit(bits, c);
      } else {
         set_bit(bits, lo);
      }
   }
   if (negate)
      for (c = 0; c < 32; ++c)
         bits[c] = (unsigned char)~bits[c];
   bits[0] &= (unsigned char)~1u; /* NUL ends every text */
   p->sets.n += 32;
   emit(p, T_SET, (int)index, 0);
}

static int read_count(struct parser *p, int *value)
{
   size_t start = p->i;
   long v = 0;
   while (p->i < p->n && isdigit(p->s[p->i])) {
      v = v * 10 + (p->s[p->i] - '0');
      if (v > DUP_MAX)
         return 0;
      ++p->i;
   }
   *value = (int)v;
   return p->i > start;
}

/* "{m}", "{m,}" or "{m,n}" after its '{'. */
static void interval(struct parser *p)
{
   int m, n;
   if (!read_count(p, &m)) {
      p->err = ERR_MALFORMED;
      return;
   }
   n = m;
   if (p->i < p->n && p->s[p->i] == ',') {
      ++p->i;
      if (!read_count(p, &n))
         n = -1;
   }
   if (p->i >= p->n || p->s[p->i] != '}' || (n >= 0 && n < m)) {
      p->err = ERR_MALFORMED;
      return;
   }
   ++p->i;
   emit(p, T_REP, m, n);
}

static void parse(struct parser *p)
{
   int prev = 0;
   while (p->i < p->n && p->err == OK) {
      int c = p->s[p->i++];
      switch (c) {
      case '|':
         if (!prev)
            emit(p, T_EMPTY, 0, 0);
         pop_ops(p, 1);
         push_op(p, T_ALT);
         prev = 0;
         break;
      case '(':
         operand_follows(p, &prev);
         push_op(p, T_OPEN);
         ++p->open;
         prev = 0;
         break;
      case ')':
         if (p->open == 0) {
            p->err = ERR_MALFORMED;
            break;
         }
         if (!prev)
            emit(p, T_EMPTY, 0, 0);
         pop_ops(p, 1);
         --p->ops.n; /* the T_OPEN */
         --p->open;
         prev = 1;
         break;
      case '*':
      case '+':
      case '?':
         if (!prev)
            p->err = ERR_MALFORMED;
         else
            emit(p, c == '*' ? T_STAR : c == '+' ? T_PLUS : T_QUEST, 0, 0);
         break;
      case '{':
         if (!prev)
            p->err = ERR_MALFORMED;
         else
            interval(p);
         break;
      default:
         operand_follows(p, &prev);
         if (c == '.')
            emit(p, T_ANY, 0, 0);
         else if (c == '^')
            emit(p, T_BOL, 0, 0);
         else if (c == '$')
            emit(p, T_EOL, 0, 0);
         else if (c == '[')
            bracket(p);
         else if (c != '\\')
            emit(p, T_CHAR, c, 0);
         else if (p->i >= p->n)
            p->err = ERR_MALFORMED;
         else
            emit(p, T_CHAR, p->s[p->i++], 0);
      }
   }
   if (p->err != OK)
      return;
   if (!prev)
      emit(p, T_EMPTY, 0, 0);
   pop_ops(p, 1);
   if (p->open > 0)
      p->err = ERR_MALFORMED;
}

/* Whether the postfix sequence can match the empty text (anchors match it). */
static int nullable(const struct tokens *v, int *result)
{
   unsigned char *stack = ycrt_malloc(v->n + 1);
   size_t k, top = 0;
   if (stack == NULL)
      return ERR_MEMORY;
   for (k = 0; k < v->n; ++k) {
      const struct tok *t = &v->t[k];
      switch (t->op) {
      case T_CHAR: case T_SET: case T_ANY:
         stack[top++] = 0;
         break;
      case T_BOL: case T_EOL: case T_EMPTY:
         stack[top++] = 1;
         break;
      case T_CAT:
         --top;
         stack[top - 1] = (unsigned char)(stack[top - 1] && stack[top]);
         break;
      case T_ALT:
         --top;
         stack[top - 1] = (unsigned char)(stack[top - 1] || stack[top]);
         break;
      case T_STAR: case T_QUEST:
         stack[top - 1] = 1;
         break;
      case T_REP:
         if (t->a == 0)
            stack[top - 1] = 1;
         break;
      }
   }
   *result = stack[0];
   free(stack);
   return OK;
}

/* Writes out every counted repetition as copies of its operand. */
static int expand(const struct tokens *in, struct tokens *out)
{
   size_t *starts = ycrt_malloc((in->n + 1) * sizeof *starts);
   struct tokens copy = {NULL, 0, 0};
   size_t k, top = 0;
   int err = OK;
   if (starts == NULL)
      return ERR_MEMORY;
   for (k = 0; k < in->n && err == OK; ++k) {
      const struct tok *t = &in->t[k];
      size_t s, len, j;
      int i, m = t->a, n = t->b;
      switch (t->op) {
      case T_CAT: case T_ALT:
         --top;
         err = push_tok(out, t->op, 0, 0);
         break;
      case T_STAR: case T_PLUS: case T_QUEST:
         err = push_tok(out, t->op, 0, 0);
         break;
      case T_REP:
         s = starts[top - 1];
         len = out->n - s;
         copy.n = 0;
         for (j = 0; j < len && err == OK; ++j)
            err = push_tok(&copy, out->t[s + j].op, out->t[s + j].a, out->t[s + j].b);
         out->n = s;
         if (n == 0) {
            err = err != OK ? err : push_tok(out, T_EMPTY, 0, 0);
            break;
         }
         /* m copies, then n - m optional ones, or one more repeated */
         for (i = 0; i < (n < 0 ? (m > 0 ? m : 1) : n) && err == OK; ++i) {
            if ((size_t)(n < 0 ? m : n) * (len + 2) > RE_MAX_STATES) {
               err = ERR_MALFORMED;
               break;
            }
            for (j = 0; j < len && err == OK; ++j)
               err = push_tok(out, copy.t[j].op, copy.t[j].a, copy.t[j].b);
            if (err == OK && n < 0 && i == (m > 0 ? m : 1) - 1)
               err = push_tok(out, m > 0 ? T_PLUS : T_STAR, 0, 0);
            else if (err == OK && n >= 0 && i >= m)
               err = push_tok(out, T_QUEST, 0, 0);
            if (err == OK && i > 0)
               err = push_tok(out, T_CAT, 0, 0);
         }
         break;
      default:
         starts[top++] = out->n;
         err = push_tok(out, t->op, t->a, t->b);
      }
   }
   free(starts);
   free(copy.t);
   return err;
}

/* Thompson construction. The exits still to be connected are chained
   through the exits themselves: an entry is state * 2 + (0 for out1, 1 for
   out2), -1 ends the chain. */
struct state {
   int op, c, out[2];
};

struct frag {
   int start, head, tail;
};

struct nfa {
   struct state *st;
   int n;
};

static int new_state(struct nfa *a, int op, int c, int out1, int out2)
{
   struct state *s = &a->st[a->n];
   s->op = op;
   s->c = c;
   s->out[0] = out1;
   s->out[1] = out2;
   return a->n++;
}

static void patch(struct nfa *a, int list, int target)
{
   while (list >= 0) {
      int *slot = &a->st[list >> 1].out[list & 1];
      int next = *slot;
      *slot = target;
      list = next;
   }
}

static struct frag frag_of(int start, int exit)
{
   struct frag f;
   f.start = start;
   f.head = f.tail = exit;
   return f;
}

/* The exits of x followed by those of y. */
static struct frag chain(struct nfa *a, int start, struct frag x, struct frag y)
{
   struct frag f;
   a->st[x.tail >> 1].out[x.tail & 1] = y.head;
   f.start = start;
   f.head = x.head;
   f.tail = y.tail;
   return f;
}

/* Builds the automaton of a postfix sequence; backwards, concatenations
   are read right to left. The states array has room for v->n + 1. */
static void build(const struct tokens *v, int backwards, struct nfa *a, struct frag *stack, int *start)
{
   size_t k, top = 0;
   int s;
   a->n = 0;
   for (k = 0; k < v->n; ++k) {
      const struct tok *t = &v->t[k];
      struct frag x, y;
      switch (t->op) {
      case T_CHAR: case T_SET: case T_ANY: case T_BOL: case T_EOL: case T_EMPTY:
         s = new_state(a,
                       t->op == T_CHAR ? OP_CHAR : t->op == T_SET ? OP_SET : t->op == T_ANY ? OP_ANY
                       : t->op == T_BOL ? OP_BOL : t->op == T_EOL ? OP_EOL : OP_JUMP,
                       t->op == T_CHAR ? t->a : 0, -1, t->op == T_SET ? t->a : 0);
         stack[top++] = frag_of(s, s * 2);
         break;
      case T_CAT:
         y = stack[--top];
         x = stack[--top];
         if (backwards) {
            struct frag swap = x;
            x = y;
            y = swap;
         }
         patch(a, x.head, y.start);
         x.head = y.head;
         x.tail = y.tail;
         stack[top++] = x;
         break;
      case T_ALT:
         y = stack[--top];
         x = stack[--top];
         s = new_state(a, OP_FORK, 0, x.start, y.start);
         stack[top++] = chain(a, s, x, y);
         break;
      case T_STAR:
         x = stack[--top];
         s = new_state(a, OP_FORK, 0, x.start, -1);
         patch(a, x.head, s);
         stack[top++] = frag_of(s, s * 2 + 1);
         break;
      case T_PLUS:
         x = stack[--top];
         s = new_state(a, OP_FORK, 0, x.start, -1);
         patch(a, x.head, s);
         stack[top++] = frag_of(x.start, s * 2 + 1);
         break;
      case T_QUEST:
         x = stack[--top];
         s = new_state(a, OP_FORK, 0, x.start, -1);
         stack[top++] = chain(a, s, x, frag_of(s, s * 2 + 1));
         break;
      }
   }
   s = new_state(a, OP_MATCH, 0, 0, 0);
   patch(a, stack[0].head, s);
   *start = stack[0].start;
}

/* The bytes that can begin a match (anchors are passed over). */
static int first_bytes(const struct nfa *a, int start, const unsigned char *sets, unsigned char *first)
{
   int *todo = ycrt_malloc(((size_t)a->n * 2 + 2) * sizeof *todo);
   unsigned char *seen = ycrt_malloc((size_t)a->n);
   int top = 0, c;
   if (todo == NULL || seen == NULL) {
      free(todo);
      free(seen);
      return ERR_MEMORY;
   }
   memset(seen, 0, (size_t)a->n);
   memset(first, 0, 32);
   todo[top++] = start;
   while (top > 0) {
      int x = todo[--top];
      const struct state *s = &a->st[x];
      if (seen[x])
         continue;
      seen[x] = 1;
      switch (s->op) {
      case OP_CHAR:
         set_bit(first, s->c);
         break;
      case OP_SET:
         for (c = 0; c < 32; ++c)
            first[c] |= sets[32 * s->out[1] + c];
         break;
      case OP_ANY:
         memset(first, 0xff, 32);
         break;
      case OP_FORK:
         todo[top++] = s->out[1];
         /* fall through */
      case OP_JUMP: case OP_BOL: case OP_EOL:
         todo[top++] = s->out[0];
         break;
      }
   }
   first[0] &= (unsigned char)~1u;
   free(todo);
   free(seen);
   return OK;
}

static unsigned char *put_set(unsigned char *p, const unsigned char *bits)
{
   int k;
   memset(p, 0, RE_SET);
   for (k = 0; k < 256; ++k)
      if (bits[k >> 3] & (1u << (k & 7)))
         p[k / 7] = (unsigned char)(p[k / 7] | (1u << (k % 7)));
   for (k = 0; k < RE_SET; ++k)
      p[k] |= 0x80;
   return p + RE_SET;
}

static unsigned char *put_program(unsigned char *p, const struct nfa *a)
{
   int k;
   for (k = 0; k < a->n; ++k, p += RE_STATE) {
      const struct state *s = &a->st[k];
      p[0] = (unsigned char)s->op;
      p[1] = (unsigned char)(s->op == OP_CHAR ? s->c : 0x80);
      ycrt_put7(p + 2, (unsigned long)(s->out[0] < 0 ? 0 : s->out[0]), RE_NUM);
      ycrt_put7(p + 2 + RE_NUM, (unsigned long)(s->out[1] < 0 ? 0 : s->out[1]), RE_NUM);
   }
   return p;
}

/* Writes the machine of the postfix sequence into the result. */
static int assemble(void *returns[], const struct tokens *v, const unsigned char *sets, size_t nsets)
{
   struct ycrt_meta1 *machine = returns[1];
   struct nfa fwd = {NULL, 0}, rev = {NULL, 0};
   struct frag *stack = ycrt_malloc((v->n + 1) * sizeof *stack);
   unsigned char first[32], *p;
   int fstart = 0, rstart = 0, err = ERR_MEMORY, scratch, k;
   size_t total;
   fwd.st = ycrt_malloc((v->n + 1) * sizeof *fwd.st);
   rev.st = ycrt_malloc((v->n + 1) * sizeof *rev.st);
   if (stack == NULL || fwd.st == NULL || rev.st == NULL)
      goto done;
   build(v, 0, &fwd, stack, &fstart);
   build(v, 1, &rev, stack, &rstart);
   if (first_bytes(&fwd, fstart, sets, first) != OK)
      goto done;
   scratch = fwd.n > rev.n ? fwd.n : rev.n;
   total = RE_HEADER + (size_t)(fwd.n + rev.n) * RE_STATE + nsets * RE_SET + (size_t)scratch * RE_SCRATCH;
   if (ycrt_reserve(machine, total + 1, NULL) != 0)
      goto done;
   p = machine->ptr;
   memcpy(p, RE_MAGIC, RE_MAGIC_LEN);
   p += RE_MAGIC_LEN;
   {
      const unsigned long fields[RE_FIELDS] = {
         (unsigned long)fwd.n, (unsigned long)rev.n, (unsigned long)nsets, (unsigned long)fstart,
         (unsigned long)rstart, (unsigned long)scratch, 0};
      for (k = 0; k < RE_FIELDS; ++k, p += RE_NUM)
         ycrt_put7(p, fields[k], RE_NUM);
   }
   p = put_set(p, first);
   p = put_program(p, &fwd);
   p = put_program(p, &rev);
   for (k = 0; k < (int)nsets; ++k)
      p = put_set(p, sets + 32 * k);
   /* scratch starts as encoded zeros, like every other byte never NUL */
   memset(p, 0x80, (size_t)scratch * RE_SCRATCH);
   p[(size_t)scratch * RE_SCRATCH] = 0;
   machine->occurs = (unsigned)total;
   err = OK;
done:
   free(stack);
   free(fwd.st);
   free(rev.st);
   return err;
}

void _yc__strreg(void *returns[], struct ycrt_meta1 *expression)
{
   struct ycrt_meta1 *machine = returns[1];
   int *status = returns[2];
   struct parser p;
   struct tokens expanded = {NULL, 0, 0};
   int empty = 0;
   memset(&p, 0, sizeof p);
   p.s = (const unsigned char *)ycrt_chars(expression);
   p.n = ycrt_len(expression);
   /* the machine is touched only after parsing: it may be the expression */
   parse(&p);
   if (p.err == OK)
      p.err = nullable(&p.out, &empty);
   if (p.err == OK && !empty)
      p.err = expand(&p.out, &expanded);
   if (p.err == OK && !empty)
      p.err = assemble(returns, &expanded, (const unsigned char *)p.sets.p, p.sets.n / 32);
   if (p.err != OK || empty)
      ycrt_clear(machine);
   if (p.err == ERR_MEMORY) {
      ycrt_raise_memory(returns);
   } else {
      *status = p.err == ERR_MALFORMED ? YCRT_MALFORMED : empty ? YCRT_MATCHES_NOTHING : 0;
   }
   free(p.out.t);
   free(p.ops.t);
   free(expanded.t);
   ycrt_buf_free(&p.sets);
}
