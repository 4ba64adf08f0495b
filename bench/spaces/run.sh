#!/usr/bin/env bash
# Checked YARL C kernels against the same kernels in plain C: each YARL C
# program is translated by ycc and built with gcc -O2; the C twin is built
# with gcc -O2 and once more with -fsanitize=address. Every program's exit
# status is its checksum, compared across the three. Prints the least of
# five wall times of each and the ratios.
# Usage: bench/spaces/run.sh [build/ycc]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
ycc=$(realpath "${1:-build/ycc}")
runtime=$here/../../runtime
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

best() {  # program -> "seconds status"
  local t bt=999999 st=0
  for _ in 1 2 3 4 5; do
    set +e
    /usr/bin/time -f '%e' -o tm "$@" > /dev/null 2>&1
    st=$?
    set -e
    t=$(tail -n 1 tm)
    if awk -v a="$t" -v b="$bt" 'BEGIN { exit !(a < b) }'; then bt=$t; fi
  done
  echo "$bt $st"
}

printf '%-8s %10s %10s %10s %12s %12s\n' kernel 'YARL C s' 'C s' 'C+ASan s' 'YARL C / C' 'YARL / ASan'
for k in sieve matmul stencil; do
  cp "$here/$k.yc" "$here/$k.c" .
  "$ycc" /L0 "$k.yc" > /dev/null
  mv "$k.c" "y_$k.c" && cp "$here/$k.c" .
  gcc -O2 -w -o "y_$k" "y_$k.c" "$runtime"/ycrt.c
  gcc -O2 -w -o "c_$k" "$k.c"
  gcc -O2 -w -fsanitize=address -o "a_$k" "$k.c"
  read -r ys yst < <(ASAN_OPTIONS=detect_leaks=0 best "./y_$k")
  read -r cs cst < <(best "./c_$k")
  read -r as ast < <(ASAN_OPTIONS=detect_leaks=0 best "./a_$k")
  if [ "$yst" != "$cst" ] || [ "$cst" != "$ast" ]; then
    echo "$k: checksums differ ($yst $cst $ast)" >&2
    exit 1
  fi
  printf '%-8s %10s %10s %10s %12s %12s\n' "$k" "$ys" "$cs" "$as" \
    "$(awk -v a="$ys" -v b="$cs" 'BEGIN { printf "%.2f", (b > 0 ? a / b : 0) }')" \
    "$(awk -v a="$ys" -v b="$as" 'BEGIN { printf "%.2f", (b > 0 ? a / b : 0) }')"
done
