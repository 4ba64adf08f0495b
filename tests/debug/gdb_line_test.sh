#!/usr/bin/env bash
# With --line-directives a debugger shows YARL C lines: a program that fails
# a bounds check is stopped in exit under gdb, and the frame of the YARL C
# function that made the reference must stand at its .yc line, both for a
# statement of the source and for one of an include file.
# Usage: gdb_line_test.sh <ycc> <libycrt.a of gcc>
set -euo pipefail
ycc=$1
lib=$2
if ! command -v gdb >/dev/null 2>&1; then
  echo "gdb is not installed: skipped"
  exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cat > walk.h <<'YC'
/* The faulty function lies in an include file. */
walk(int v[], int n) int s
{
   int i;
   s = 0;
   for (i = 0; i <= n; i++)
      s += v[i];
}
YC
cat > prog.yc <<'YC'
struct yc_argument {
   char var text[];
};
main(struct yc_argument args[]) int status;
walk(int v[], int n) int s;

#include "walk.h"

main(struct yc_argument args[]) int status
{
   int f[4];
   int i;
   for (i = 0; i < 4; i++)
      f[i] = i;
   if (args.occurs > 1)
      status = walk(f, 4);
   f[i] = 0;
}
YC
"$ycc" --line-directives prog.yc > /dev/null
gcc -std=c99 -g -O0 -o prog prog.c "$lib" -lm

fail=0
# expect_frame <words for the program> <file:line>
expect_frame() {
  local want=$1
  shift
  local trace
  trace=$(gdb -nx -batch -ex "break exit" -ex "run" -ex "bt" --args ./prog "$@" 2>&1 || true)
  if ! grep -Eq "in (_yc__main|walk) .* at ([^ ]*/)?$want\$" <<<"$trace"; then
    echo "FAIL: no frame at $want for words '$*'; the backtrace was:"
    grep '^#' <<<"$trace" || echo "$trace"
    fail=1
  fi
}
expect_frame prog.yc:17
expect_frame walk.h:7 extra
exit $fail
