#!/bin/sh
# Times `ycc /P` against `cpp -P` (CPU time) on generated inputs of N and 2N lines.
# Usage: bench/preprocessor/bench.sh path/to/ycc [lines]
set -e
ycc=$(cd "$(dirname "$1")" && pwd)/$(basename "$1")
lines=${2:-100000}
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

best() {  # least CPU time (user + system, seconds) of five runs of the command
  b=""
  for _ in 1 2 3 4 5; do
    t=$(/usr/bin/time -f '%U %S' "$@" 2>&1 >/dev/null | tail -1 | awk '{print $1 + $2}')
    if [ -z "$b" ] || [ "$(echo "$t < $b" | bc)" = 1 ]; then b=$t; fi
  done
  echo "$b"
}

for n in "$lines" $((lines * 2)); do
  d="$work/n$n"
  python3 "$here/gen.py" "$d" "$n"
  cd "$d"
  y=$(best "$ycc" /P /I inc main.yc)
  c=$(best cpp -P -x c -I inc main.yc -o main.cpp.i)
  printf '%7d lines: ycc %.3fs  cpp %.3fs  ratio ycc/cpp %.2f  (%d KB out)\n' \
    "$n" "$y" "$c" "$(echo "$y / $c" | bc -l)" $(( $(wc -c < main.i) / 1024 ))
  eval "t$n=$y"
done
eval "a=\$t$lines; b=\$t$((lines * 2))"
printf 'linearity: time(2N)/time(N) = %.2f\n' "$(echo "$b / $a" | bc -l)"
