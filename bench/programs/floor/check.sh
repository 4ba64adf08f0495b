#!/usr/bin/env bash
# Checks that each hand-written floor program prints exactly what the C twin
# of its kernel prints, at a small size (8), with gcc and clang where
# installed.
# Usage: bench/programs/floor/check.sh
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
status=0
for floor in "$here"/*_checked.c; do
  k=$(basename "$floor" _checked.c)
  for cc in gcc clang; do
    command -v "$cc" > /dev/null 2>&1 || continue
    "$cc" -O2 -o "$work/floor" "$floor" -lm
    "$cc" -O2 -w -o "$work/twin" "$here/../$k.c" -lm
    if cmp -s <("$work/floor" 8) <("$work/twin" 8); then
      echo "ok $k ($cc)"
    else
      echo "FAIL $k ($cc): the floor program's output differs from the twin's"
      status=1
    fi
  done
done
exit $status
