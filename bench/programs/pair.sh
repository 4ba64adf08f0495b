#!/usr/bin/env bash
# Paired timings of two programs: A and B run alternately REPS times (CPU
# seconds, user + system); prints both medians and the median, minimum and
# maximum of the per-pair ratios A/B. Alternating keeps a drift of the shared
# machine out of the ratio; the range shows how much the pairs disagree.
#
# Usage: bench/programs/pair.sh A B [ARGS...]
#   A, B     programs (run with ARGS; ASan's leak check is off)
# Environment:
#   REPS     pairs to run (default 7)
# Both outputs must be the same in every pair; otherwise the script exits 1.
set -euo pipefail
if [ $# -lt 2 ]; then
  echo "usage: $0 A B [ARGS...]" >&2
  exit 2
fi
a=$1 b=$2
shift 2
reps=${REPS:-7}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export ASAN_OPTIONS=detect_leaks=0

cpu() {  # output-file program args... -> CPU seconds
  local out=$1
  shift
  /usr/bin/time -f '%U %S' -o "$work/time" "$@" > "$out" 2> /dev/null
  tail -n 1 "$work/time" | awk '{ printf "%.2f\n", $1 + $2 }'
}

: > "$work/pairs"
for ((r = 0; r < reps; r++)); do
  ta=$(cpu "$work/out.a" "$a" "$@")
  tb=$(cpu "$work/out.b" "$b" "$@")
  if ! cmp -s "$work/out.a" "$work/out.b"; then
    echo "outputs of $a and $b differ" >&2
    exit 1
  fi
  echo "$ta $tb" >> "$work/pairs"
done
awk '
  function median(v, n,   i, j, t) {
    for (i = 2; i <= n; i++) for (j = i; j > 1 && v[j - 1] > v[j]; j--) { t = v[j]; v[j] = v[j - 1]; v[j - 1] = t }
    return n % 2 ? v[(n + 1) / 2] : (v[n / 2] + v[n / 2 + 1]) / 2
  }
  { a[NR] = $1; b[NR] = $2; q[NR] = $2 > 0 ? $1 / $2 : 0
    lo = NR == 1 || q[NR] < lo ? q[NR] : lo; hi = NR == 1 || q[NR] > hi ? q[NR] : hi }
  END { printf "A %.2f s  B %.2f s  A/B %.2f (%.2f-%.2f)  %d pairs\n", median(a, NR), median(b, NR), median(q, NR), lo, hi, NR }
' "$work/pairs"
