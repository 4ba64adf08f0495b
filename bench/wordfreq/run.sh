#!/usr/bin/env bash
# The word counter of examples/wordfreq.yc against the same program written
# in C with a hash table (wordfreq.c), on a generated text of about MB
# megabytes (default 100). Both are built with gcc -O2 (the YARL C one with
# the run-time library compiled at -O2 too), their complete outputs (-n 0,
# every word) must be identical, and each is timed with /usr/bin/time: the
# least wall time of three runs, with its user time and peak memory.
# usage: bench/wordfreq/run.sh [build/ycc] [MB]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$here/../..
ycc=$(realpath "${1:-build/ycc}")
mb=${2:-100}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

mkdir lib
for source in "$root"/runtime/*.c; do
  gcc -O2 -std=c99 -w -c "$source" -o "lib/$(basename "$source" .c).o"
done
ar rcs libycrt.a lib/*.o
cp "$root/examples/wordfreq.yc" .
"$ycc" /I "$root/runtime" wordfreq.yc > ycc.out || { cat ycc.out; exit 1; }
gcc -O2 -std=c99 -w -I "$root/runtime" -o yarl wordfreq.c libycrt.a -lm
gcc -O2 -D_GNU_SOURCE -o plain "$here/wordfreq.c"
gcc -O2 -o gen "$here/gen.c"
./gen $((mb * 1000000)) > text

./yarl -n 0 text > yarl.out
./plain -n 0 text > plain.out
if ! cmp -s yarl.out plain.out; then
  echo "the outputs differ" >&2
  diff yarl.out plain.out | head >&2
  exit 1
fi

best() {  # label program... -> "label wall user kB"
  local label=$1 w bw=999999 bu=0 bm=0
  shift
  for _ in 1 2 3; do
    /usr/bin/time -f '%e %U %M' -o tm "$@" > /dev/null
    read -r w u m < tm
    if awk -v a="$w" -v b="$bw" 'BEGIN { exit !(a < b) }'; then bw=$w bu=$u bm=$m; fi
  done
  echo "$label $bw $bu $bm"
}
echo "text: $(stat -c %s text) bytes, $(wc -l < yarl.out) distinct words, outputs identical"
printf '%-8s %8s %8s %10s\n' program 'wall s' 'user s' 'peak kB'
{ best 'YARL C' ./yarl -n 10 text; best C ./plain -n 10 text; } |
  awk '{ label = $1; if (NF == 5) { label = $1 " " $2; $2 = $3; $3 = $4; $4 = $5 }
         printf "%-8s %8s %8s %10s\n", label, $2, $3, $4; w[NR] = $2 }
       END { printf "YARL C / C wall time: %.2f\n", w[1] / w[2] }'
