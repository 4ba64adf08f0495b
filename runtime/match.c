/* Matching with a machine made by strreg: strfnd, strfndr and strrpl.

   The automaton is simulated on all its states at once (Thompson), never
   by backtracking, so a search costs at most the text scanned times the
   number of states. Each live state remembers the earliest position where
   a match through it began; a state reached twice keeps the earlier start,
   which can only be better since what follows is the same. The search
   stops taking new starts once a match is found and runs on until every
   state that began no later has died, which gives the leftmost-longest
   match. The working lists live in the machine's scratch area, so
   searching needs no memory of its own. */
#include <limits.h>
#include <string.h>

#include "ycrt_lib.h"
#include "ycrt_regex.h"

#define ENTRY (RE_NUM + RE_POS)

/* The number codes of the hot loop, unrolled (RE_NUM and RE_POS bytes). */
static unsigned long get_num(const unsigned char *p)
{
   return (unsigned long)(p[0] & 127) | (unsigned long)(p[1] & 127) << 7 |
          (unsigned long)(p[2] & 127) << 14 | (unsigned long)(p[3] & 127) << 21;
}

static void put_num(unsigned char *p, unsigned long v)
{
   p[0] = (unsigned char)(0x80 | (v & 127));
   p[1] = (unsigned char)(0x80 | ((v >> 7) & 127));
   p[2] = (unsigned char)(0x80 | ((v >> 14) & 127));
   p[3] = (unsigned char)(0x80 | ((v >> 21) & 127));
}

static size_t get_pos(const unsigned char *p)
{
   return (size_t)get_num(p) | (size_t)(p[4] & 127) << 28;
}

static void put_pos(unsigned char *p, size_t v)
{
   put_num(p, (unsigned long)(v & 0xfffffffUL));
   p[4] = (unsigned char)(0x80 | ((v >> 28) & 127));
}

struct machine {
   int nfwd, nrev, nsets, fstart, rstart, scratch;
   const unsigned char *first, *fwd, *rev, *sets;
   unsigned char *sparse, *lists[2], *stack;
};

/* Checks the machine's layout; 0, YCRT_MACHINE_EMPTY or YCRT_INVALID. A
   machine holds no NUL byte, so it is all its occurs characters: looking for
   a NUL would cost a pass over the machine at every search. */
static int load(struct ycrt_meta1 *m, struct machine *mc)
{
   size_t len = ycrt_all_len(m), total;
   unsigned char *p = m->ptr;
   unsigned long f[RE_FIELDS];
   int k;
   if (len == 0)
      return YCRT_MACHINE_EMPTY;
   if (len < RE_HEADER || memcmp(p, RE_MAGIC, RE_MAGIC_LEN) != 0)
      return YCRT_INVALID;
   for (k = 0; k < RE_FIELDS; ++k)
      f[k] = ycrt_get7(p + RE_MAGIC_LEN + k * RE_NUM, RE_NUM);
   if (f[0] == 0 || f[1] == 0 || f[0] > RE_MAX_STATES + 1 || f[1] > RE_MAX_STATES + 1 ||
       f[2] > RE_MAX_STATES || f[3] >= f[0] || f[4] >= f[1] || f[5] < f[0] || f[5] < f[1] ||
       f[5] > RE_MAX_STATES + 1)
      return YCRT_INVALID;
   total = RE_HEADER + (f[0] + f[1]) * RE_STATE + f[2] * RE_SET + f[5] * RE_SCRATCH;
   if (total != len)
      return YCRT_INVALID;
   mc->nfwd = (int)f[0];
   mc->nrev = (int)f[1];
   mc->nsets = (int)f[2];
   mc->fstart = (int)f[3];
   mc->rstart = (int)f[4];
   mc->scratch = (int)f[5];
   mc->first = p + RE_MAGIC_LEN + RE_FIELDS * RE_NUM;
   mc->fwd = p + RE_HEADER;
   mc->rev = mc->fwd + (size_t)mc->nfwd * RE_STATE;
   mc->sets = mc->rev + (size_t)mc->nrev * RE_STATE;
   mc->sparse = p + (mc->sets + (size_t)mc->nsets * RE_SET - p);
   mc->lists[0] = mc->sparse + (size_t)mc->scratch * RE_NUM;
   mc->lists[1] = mc->lists[0] + (size_t)mc->scratch * ENTRY;
   mc->stack = mc->lists[1] + (size_t)mc->scratch * ENTRY;
   return 0;
}

static int in_set(const unsigned char *set, int c)
{
   return (set[c / 7] >> (c % 7)) & 1;
}

/* One simulation over a program. */
struct run {
   const struct machine *mc;
   const unsigned char *prog;
   unsigned long nstates;
   const unsigned char *text;
   size_t n;
   unsigned char *list; /* the list being built */
   size_t count;
   int bad;
   /* forwards: the best match so far; backwards: a match ends here */
   int found;
   size_t best_start, best_end;
};

static unsigned long entry_state(const unsigned char *list, size_t i)
{
   return get_num(list + i * ENTRY);
}

/* Adds state x to the list unless there; 1 when added. */
static int add(struct run *r, unsigned long x, size_t start)
{
   unsigned char *sparse = r->mc->sparse + x * RE_NUM;
   size_t i = get_num(sparse);
   if (i < r->count && entry_state(r->list, i) == x)
      return 0;
   put_num(sparse, (unsigned long)r->count);
   put_num(r->list + r->count * ENTRY, x);
   put_pos(r->list + r->count * ENTRY + RE_NUM, start);
   ++r->count;
   return 1;
}

/* Adds x and every state reached from it without reading, at text
   position pos, for a match begun at start. */
static void closure(struct run *r, unsigned long x, size_t start, size_t pos)
{
   unsigned char *stack = r->mc->stack;
   size_t top = 0;
   if (x >= r->nstates) {
      r->bad = 1;
      return;
   }
   if (add(r, x, start))
      put_num(stack + top++ * RE_NUM, x);
   while (top > 0) {
      const unsigned char *st;
      unsigned long next[2];
      int k, follow = 0;
      x = get_num(stack + --top * RE_NUM);
      st = r->prog + x * RE_STATE;
      switch (st[0]) {
      case OP_JUMP:
         follow = 1;
         break;
      case OP_FORK:
         follow = 2;
         break;
      case OP_BOL:
         follow = pos == 0;
         break;
      case OP_EOL:
         follow = pos == r->n;
         break;
      case OP_MATCH:
         if (!r->found || start < r->best_start || (start == r->best_start && pos > r->best_end)) {
            r->found = 1;
            r->best_start = start;
            r->best_end = pos;
         }
         break;
      }
      if (follow == 0)
         continue;
      next[0] = get_num(st + 2);
      next[1] = get_num(st + 2 + RE_NUM);
      for (k = 0; k < follow; ++k) {
         if (next[k] >= r->nstates) {
            r->bad = 1;
            return;
         }
         if (add(r, next[k], start))
            put_num(stack + top++ * RE_NUM, next[k]);
      }
   }
}

/* Whether state st reads character c; -1 for a bad set number. */
static int reads(const struct run *r, const unsigned char *st, int c)
{
   unsigned long set;
   switch (st[0]) {
   case OP_CHAR:
      return st[1] == c;
   case OP_ANY:
      return 1;
   case OP_SET:
      set = get_num(st + 2 + RE_NUM);
      if (set >= (unsigned long)r->mc->nsets)
         return -1;
      return in_set(r->mc->sets + set * RE_SET, c);
   }
   return 0;
}

/* Moves every live state of cur over character c into the list being
   built; forwards, states begun after the best match are dropped. */
static void step(struct run *r, const unsigned char *cur, size_t ncur, int c, size_t pos, int forwards)
{
   size_t i;
   for (i = 0; i < ncur && !r->bad; ++i) {
      unsigned long x = entry_state(cur, i);
      size_t start = get_pos(cur + i * ENTRY + RE_NUM);
      const unsigned char *st = r->prog + x * RE_STATE;
      int hit;
      if (forwards && r->found && start > r->best_start)
         continue;
      hit = reads(r, st, c);
      if (hit < 0)
         r->bad = 1;
      else if (hit)
         closure(r, get_num(st + 2), start, forwards ? pos + 1 : pos - 1);
   }
}

/* The leftmost-longest match at or after from (only at from when
   anchored). 1 found, 0 none, -1 the machine is damaged. */
static int search(const struct machine *mc, const unsigned char *text, size_t n, size_t from,
                  int anchored, size_t *position, size_t *length)
{
   struct run r;
   int which = 0;
   size_t i = from, ncur = 0;
   memset(&r, 0, sizeof r);
   r.mc = mc;
   r.prog = mc->fwd;
   r.nstates = (unsigned long)mc->nfwd;
   r.text = text;
   r.n = n;
   for (;;) {
      r.list = mc->lists[which];
      r.count = ncur;
      if (!r.found && i < n && (!anchored || i == from)) {
         if (ncur == 0 && !anchored) {
            /* nothing alive: go straight to a character that can begin */
            while (i < n && !in_set(mc->first, text[i]))
               ++i;
            if (i >= n)
               break;
         }
         closure(&r, (unsigned long)mc->fstart, i, i);
      }
      ncur = r.count;
      if (r.bad)
         return -1;
      if (ncur == 0 || i >= n)
         break;
      r.list = mc->lists[1 - which];
      r.count = 0;
      step(&r, mc->lists[which], ncur, text[i], i, 1);
      if (r.bad)
         return -1;
      ncur = r.count;
      which = 1 - which;
      ++i;
   }
   if (!r.found)
      return 0;
   *position = r.best_start;
   *length = r.best_end - r.best_start;
   return 1;
}

/* The last position at or before upto where a match begins, found by
   running the backward automaton from the end of the text. */
static int last_start(const struct machine *mc, const unsigned char *text, size_t n, size_t upto,
                      size_t *position)
{
   struct run r;
   int which = 0;
   size_t q = n, ncur = 0;
   memset(&r, 0, sizeof r);
   r.mc = mc;
   r.prog = mc->rev;
   r.nstates = (unsigned long)mc->nrev;
   r.text = text;
   r.n = n;
   for (;;) {
      r.list = mc->lists[which];
      r.count = ncur;
      closure(&r, (unsigned long)mc->rstart, 0, q);
      if (r.bad)
         return -1;
      if (r.found && q <= upto) {
         *position = q;
         return 1;
      }
      if (q == 0)
         return 0;
      ncur = r.count;
      r.list = mc->lists[1 - which];
      r.count = 0;
      r.found = 0;
      step(&r, mc->lists[which], ncur, text[q - 1], q, 0);
      if (r.bad)
         return -1;
      ncur = r.count;
      which = 1 - which;
      --q;
   }
}

static void answer(void *returns[], int position, size_t length)
{
   *(int *)returns[1] = position;
   *(unsigned *)returns[2] = (unsigned)length;
}

void _yc__strfnd(void *returns[], struct ycrt_meta1 *machine, struct ycrt_meta1 *text, unsigned start)
{
   struct machine mc;
   size_t n = ycrt_len(text), position, length;
   int status = load(machine, &mc), found;
   if (status != 0) {
      answer(returns, status, 0);
      return;
   }
   if (start > n) {
      answer(returns, YCRT_NOT_FOUND, 0);
      return;
   }
   found = search(&mc, (const unsigned char *)ycrt_chars(text), n, start, 0, &position, &length);
   if (found > 0)
      answer(returns, (int)position, length);
   else
      answer(returns, found < 0 ? YCRT_INVALID : YCRT_NOT_FOUND, 0);
}

void _yc__strfndr(void *returns[], struct ycrt_meta1 *machine, struct ycrt_meta1 *text, unsigned start)
{
   struct machine mc;
   const unsigned char *s = (const unsigned char *)ycrt_chars(text);
   size_t n = ycrt_len(text), position = 0, at, length = 0;
   int status = load(machine, &mc), found;
   if (status != 0) {
      answer(returns, status, 0);
      return;
   }
   found = last_start(&mc, s, n, start, &position);
   if (found > 0)
      found = search(&mc, s, n, position, 1, &at, &length);
   if (found > 0)
      answer(returns, (int)position, length);
   else
      answer(returns, found < 0 ? YCRT_INVALID : YCRT_NOT_FOUND, 0);
}

/* The replacement for one match: "\0" stands for the match and "\\" for
   one backslash; every other character stands for itself. */
static int replace(struct ycrt_buf *out, const char *rep, size_t nrep, const char *match, size_t nmatch)
{
   size_t i;
   for (i = 0; i < nrep; ++i) {
      int failed;
      if (rep[i] == '\\' && i + 1 < nrep && rep[i + 1] == '0') {
         failed = ycrt_buf_add(out, match, nmatch);
         ++i;
      } else if (rep[i] == '\\' && i + 1 < nrep && rep[i + 1] == '\\') {
         failed = ycrt_buf_add(out, "\\", 1);
         ++i;
      } else {
         failed = ycrt_buf_add(out, rep + i, 1);
      }
      if (failed)
         return -1;
   }
   return 0;
}

void _yc__strrpl(void *returns[], struct ycrt_meta1 *text, struct ycrt_meta1 *machine,
                 struct ycrt_meta1 *replacement)
{
   int *count = returns[1];
   struct ycrt_target t = ycrt_target_of(returns, 1, text);
   struct machine mc;
   struct ycrt_buf out = {NULL, 0, 0};
   const char *s = ycrt_chars(text), *rep = ycrt_chars(replacement);
   size_t n = ycrt_len(text), nrep = ycrt_len(replacement), from = 0, position, length;
   int status = load(machine, &mc), found, matches = 0, failed = 0;
   if (status != 0) {
      *count = status;
      return;
   }
   while (!failed && (found = search(&mc, (const unsigned char *)s, n, from, 0, &position, &length)) > 0) {
      failed = ycrt_buf_add(&out, s + from, position - from) != 0 ||
               replace(&out, rep, nrep, s + position, length) != 0;
      from = position + length;
      if (matches < INT_MAX)
         ++matches;
   }
   if (!failed && found < 0) {
      *count = YCRT_INVALID;
      ycrt_buf_free(&out);
      return;
   }
   if (!failed)
      failed = ycrt_buf_add(&out, s + from, n - from) != 0 || ycrt_target_put(&t, 0, out.p, out.n) != 0;
   if (failed)
      ycrt_raise_memory(returns);
   else
      *count = matches;
   ycrt_buf_free(&out);
}
