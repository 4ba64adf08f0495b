#!/usr/bin/env bash
# Declaration cost: N global declarations (scalars, spaces, structures) in one
# scope, and N locals in nested blocks; reports seconds and peak memory for
# doubling N. Usage: bench/declarations/run.sh [build/ycc]
set -euo pipefail
ycc=$(realpath "${1:-build/ycc}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
printf '%8s %10s %10s\n' N seconds peak_kB
for n in 25000 50000 100000 200000; do
  awk -v n="$n" 'BEGIN {
    for (i = 0; i < n; i++) {
      if (i % 4 == 0) printf "int v%d;\n", i;
      else if (i % 4 == 1) printf "char var s%d[];\n", i;
      else if (i % 4 == 2) printf "struct t%d { int a; double b[4]; } x%d;\n", i, i;
      else printf "unsigned long u%d[3][2];\n", i;
    }
  }' > d.yc
  /usr/bin/time -f '%e %M' -o t "$ycc" /L0 d.yc > /dev/null 2>&1 || true
  read -r secs mem < t
  printf '%8d %10s %10s\n' "$n" "$secs" "$mem"
done
