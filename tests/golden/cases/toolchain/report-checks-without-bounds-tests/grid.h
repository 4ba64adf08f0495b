/* A check written by a macro counts at the line that uses it. */
#define CELL(g, r, c) g[r][c]
