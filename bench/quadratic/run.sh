#!/usr/bin/env bash
# Paths that were quadratic in the input, each timed at N and 2N so that the
# growth shows: linear work doubles, quadratic work quadruples.
#   switch-enum   N functions, each a switch over one enumeration without default
#   call-args     one call with N arguments that carry code (a && b)
#   fun-compare   N globals, then N comparisons of two function pointers
#   extern-ranges N extern includes, then N global declarations
# Usage: bench/quadratic/run.sh [build/ycc] [N]
set -euo pipefail
ycc=$(realpath "${1:-build/ycc}")
n=${2:-8000}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

gen() {  # case count -> p.yc (and e.h)
  case "$1" in
    switch-enum) awk -v n="$2" 'BEGIN {
      print "enum colour { red, green, blue };"
      for (i = 0; i < n; i++) printf "f%d(enum colour c) int r;\n", i
      for (i = 0; i < n; i++)
        printf "f%d(enum colour c) int r\n{\n   r = 0;\n   switch (c) { case red: r = 1; case green: r = 2; case blue: r = 3; }\n}\n", i
    }' > p.yc ;;
    call-args) awk -v n="$2" 'BEGIN {
      print "f(int a, int b) int r;\nf(int a, int b) int r\n{"
      printf "   g(a && b"
      for (i = 1; i < n; i++) printf ", a && b"
      print ");\n   r = 0;\n}"
    }' > p.yc ;;
    fun-compare) awk -v n="$2" 'BEGIN {
      print "fun op(int a) int r;\ntwice(int a) int r;"
      for (i = 0; i < n; i++) printf "int g%d;\n", i
      print "f() int r;\nf() int r\n{\n   fun op p;\n   p = twice;\n   r = 0;"
      for (i = 0; i < n; i++) print "   if (p == twice) r = r + 1;"
      print "}"
    }' > p.yc ;;
    extern-ranges)
      echo "/* nothing */" > e.h
      awk -v n="$2" 'BEGIN {
        for (i = 0; i < n; i++) print "#include extern \"e.h\""
        for (i = 0; i < n; i++) printf "int g%d;\n", i
      }' > p.yc ;;
  esac
}

best() {  # command... -> "seconds" (least of three runs)
  local t bt=999999
  for _ in 1 2 3; do
    /usr/bin/time -f '%e' -o tm "$@" > /dev/null 2>&1 || true
    t=$(tail -n 1 tm)
    if awk -v a="$t" -v b="$bt" 'BEGIN { exit !(a < b) }'; then bt=$t; fi
  done
  echo "$bt"
}

printf '%-14s %8s %10s %8s %10s %8s\n' case N 'seconds' 2N 'seconds' ratio
for c in switch-enum call-args fun-compare extern-ranges; do
  gen "$c" "$n"; a=$(best "$ycc" /L0 p.yc)
  gen "$c" $((n * 2)); b=$(best "$ycc" /L0 p.yc)
  printf '%-14s %8d %10s %8d %10s %8s\n' "$c" "$n" "$a" $((n * 2)) "$b" \
    "$(awk -v a="$a" -v b="$b" 'BEGIN { printf "%.1f", (a > 0 ? b / a : 0) }')"
done
