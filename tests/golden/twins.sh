#!/usr/bin/env bash
# A golden case may carry twin.c: the same program written in C, from which
# its expected output was taken. Builds every twin, runs it as the runner runs
# the YARL C program (in a copy of the case, with run.args and run.stdin) and
# checks that it still prints run.stdout and run.stderr and ends with
# run.status, so the expected files stay tied to an independent source.
# usage: twins.sh CASES_DIR
set -uo pipefail
source "$(dirname "$0")/run_case.sh"
cases=$(cd "$1" && pwd)
failed=0 checked=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for twin in "$cases"/*/*/twin.c; do
  [ -f "$twin" ] || continue
  dir=$(dirname "$twin")
  name=${dir#"$cases"/}
  rm -rf "$work/case" && mkdir "$work/case" && cp -r "$dir"/. "$work/case"/
  if ! cc -std=c99 -D_GNU_SOURCE -o "$work/twin" "$twin" -lm; then
    echo "FAIL $name: twin.c does not build"; failed=$((failed + 1)); continue
  fi
  if run_case "$name" "$dir" "$work" "$work/twin" "the C twin's"; then checked=$((checked + 1)); else failed=$((failed + 1)); fi
done
echo "$checked passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$checked" -gt 0 ]
