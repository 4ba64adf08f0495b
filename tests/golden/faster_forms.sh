#!/usr/bin/env bash
# Every golden case that runs its program is translated once more with all
# the faster forms of the generated C (--noreturn --wide-subscripts
# --direct-calls --versioned-loops), built with gcc and run as the runner
# runs it: the program must print run.stdout and run.stderr and end with
# run.status, exactly as the default translation does.
# usage: faster_forms.sh YCC CASES_DIR RUNTIME_DIR VARIANTS_DIR
set -uo pipefail
source "$(dirname "$0")/run_case.sh"
ycc=$(realpath "$1")
cases=$(cd "$2" && pwd)
runtime=$(cd "$3" && pwd)
lib=$(realpath "$4")/gcc/libycrt.a
failed=0 checked=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for marker in "$cases"/*/*/run; do
  dir=$(dirname "$marker")
  name=${dir#"$cases"/}
  rm -rf "$work/case" && mkdir "$work/case" && cp -r "$dir"/. "$work/case"/
  read -r -a words < "$dir/args"
  for i in "${!words[@]}"; do [ "${words[$i]}" = @RUNTIME@ ] && words[$i]=$runtime; done
  if ! (cd "$work/case" && "$ycc" --noreturn --wide-subscripts --direct-calls --versioned-loops "${words[@]}" > ycc.log 2>&1); then
    echo "FAIL $name: ycc refused the faster forms"; failed=$((failed + 1)); continue
  fi
  c_file=$(tr -d ' \n' < "$dir/run")
  if ! gcc -std=c99 -w -I "$runtime" -o "$work/prog" "$work/case/$c_file" "$lib" -lm; then
    echo "FAIL $name: the faster forms do not build"; failed=$((failed + 1)); continue
  fi
  if run_case "$name" "$dir" "$work" "$work/prog" "the program's"; then checked=$((checked + 1)); else failed=$((failed + 1)); fi
done
echo "$checked passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$checked" -gt 0 ]
