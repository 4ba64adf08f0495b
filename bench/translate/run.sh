#!/usr/bin/env bash
# Translation cost: a generated program of about N lines (functions of loops,
# switches, conditions with && || !, conditionals, increments and arithmetic)
# compiled by ycc; its C output compiled by gcc -O0 -c and tcc -c. Reports the
# least of three wall times and the peak memory of each, for every size given
# (default 100000 and 1000000 lines).
# Usage: bench/translate/run.sh [build/ycc] [lines...]
set -euo pipefail
ycc=$(realpath "${1:-build/ycc}")
shift || true
sizes=("$@")
[ ${#sizes[@]} -gt 0 ] || sizes=(100000 1000000)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

generate() {  # lines -> p.yc
  awk -v n="$1" 'BEGIN {
    print "struct yc_argument {\n   char var text[];\n};"
    print "main(struct yc_argument args[]) int status;"
    # A function with its prototype is 90 lines.
    f = int(n / 90) + 1
    for (i = 0; i < f; i++) printf "f%d(int a, int b) int r;\n", i
    for (i = 0; i < f; i++) {
      printf "f%d(int a, int b) int r\n{\n   int i;\n   int j;\n   long s;\n   double d;\n", i
      print  "   r = 0;\n   s = 0L;\n   d = 0.5;"
      for (k = 0; k < 4; k++) {
        print  "   for (i = 0; i < a; i++) {"
        print  "      if (i % 3 == 0 && b > i || !(a < b))"
        print  "         r += i;"
        print  "      else"
        print  "         r = r - (a > b ? a : b);"
        print  "   }"
        print  "   j = 0;"
        print  "   while (j < b) {"
        print  "      switch (j % 4) {"
        print  "      case 0:"
        print  "      case 1:"
        print  "         s = s + 2L * (long)j;"
        print  "         break;"
        print  "      default:"
        print  "         d = d * 1.5 + (double)j;"
        print  "      }"
        print  "      j++;"
        print  "   }"
        print  "   do r = r ^ (j << 1); while (--j > 0);"
        print  "   r = r + (int)(s % 7L) + (int)d;"
      }
      print "}"
    }
    print "main(struct yc_argument args[]) int status\n{\n   status = 0;\n}"
  }' > p.yc
}

best() {  # command... -> "seconds peak_kB" (least time of three runs)
  local t m bt=999999 bm=0
  for _ in 1 2 3; do
    /usr/bin/time -f '%e %M' -o tm "$@" > /dev/null 2>&1 || true
    read -r t m < tm
    if awk -v a="$t" -v b="$bt" 'BEGIN { exit !(a < b) }'; then bt=$t; bm=$m; fi
  done
  echo "$bt $bm"
}

printf '%8s %14s %14s %14s %10s\n' lines 'ycc s/kB' 'gcc -O0 s/kB' 'tcc s/kB' 'C lines'
for n in "${sizes[@]}"; do
  generate "$n"
  src=$(wc -l < p.yc)
  "$ycc" /L0 p.yc > /dev/null
  read -r ys ym < <(best "$ycc" /L0 p.yc)
  read -r gs gm < <(best gcc -O0 -c -w p.c -o p.o)
  tc="- -"
  if command -v tcc > /dev/null; then read -r ts tm < <(best tcc -c -w p.c -o p.o); tc="$ts $tm"; fi
  printf '%8d %14s %14s %14s %10d\n' "$src" "$ys/$ym" "$gs/$gm" "${tc// //}" "$(wc -l < p.c)"
done
