#!/bin/sh
# Generates inputs of 50,000, 100,000 and 200,000 lines and times the parser
# on each (wall time and peak memory from /usr/bin/time -v).
# Usage: bench/parser/run.sh [build directory]   (default: build)
set -e
build=${1:-build}
dir=$(mktemp -d)
for lines in 50000 100000 200000; do
  "$build/bench/parser/gen_source" $lines > "$dir/bench$lines.i"
  echo "== $lines lines ($(wc -c < "$dir/bench$lines.i") bytes)"
  /usr/bin/time -v "$build/bench/parser/parse_bench" "$dir/bench$lines.i" 2> "$dir/time.txt"
  grep -E "Elapsed|Maximum resident" "$dir/time.txt"
done
rm -rf "$dir"
