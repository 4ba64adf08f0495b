#!/usr/bin/env bash
# The golden runs of the examples hold copies of them: cases/programs-examples/
# NAME-*/a.yc is examples/NAME.yc. Checks that no copy has drifted, that
# wordfreq, grep and copy each have a golden run, and that hello's copy in
# programs-calls is current.
# usage: examples.sh EXAMPLES_DIR CASES_DIR
set -uo pipefail
examples=$1 cases=$2
failed=0 checked=0
for example in "$examples"/wordfreq.yc "$examples"/grep.yc "$examples"/copy.yc; do
  name=$(basename "$example" .yc)
  runs=0
  for copy in "$cases"/programs-examples/"$name"-*/a.yc; do
    [ -f "$copy" ] || continue
    runs=$((runs + 1))
    if ! cmp -s "$example" "$copy"; then
      echo "FAIL $copy differs from $example"
      failed=$((failed + 1))
    fi
  done
  if [ "$runs" -eq 0 ]; then
    echo "FAIL $example has no golden run"
    failed=$((failed + 1))
  fi
  checked=$((checked + runs))
done
if ! cmp -s "$examples/hello.yc" "$cases/programs-calls/example-hello/a.yc"; then
  echo "FAIL programs-calls/example-hello/a.yc differs from hello.yc"
  failed=$((failed + 1))
fi
echo "$checked passed, $failed failed"
[ "$failed" -eq 0 ]
