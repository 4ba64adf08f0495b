#!/usr/bin/env bash
# Every golden case that runs its program is translated once more with all
# the faster forms of the generated C (--noreturn --wide-subscripts
# --direct-calls), built with gcc and run as the runner runs it: the program
# must print run.stdout and run.stderr and end with run.status, exactly as
# the default translation does.
# usage: faster_forms.sh YCC CASES_DIR RUNTIME_DIR VARIANTS_DIR
set -uo pipefail
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
  if ! (cd "$work/case" && "$ycc" --noreturn --wide-subscripts --direct-calls "${words[@]}" > ycc.log 2>&1); then
    echo "FAIL $name: ycc refused the faster forms"; failed=$((failed + 1)); continue
  fi
  c_file=$(tr -d ' \n' < "$dir/run")
  if ! gcc -std=c99 -w -I "$runtime" -o "$work/prog" "$work/case/$c_file" "$lib" -lm; then
    echo "FAIL $name: the faster forms do not build"; failed=$((failed + 1)); continue
  fi
  input=/dev/null
  [ -f "$dir/run.stdin" ] && input=$dir/run.stdin
  args=()
  [ -f "$dir/run.args" ] && read -r -a args < "$dir/run.args"
  (cd "$work/case" && "$work/prog" "${args[@]}" < "$input" > "$work/stdout" 2> "$work/stderr")
  status=$?
  want=0
  [ -f "$dir/run.status" ] && want=$(tr -d ' \n' < "$dir/run.status")
  same=1
  if [ "$status" != "$want" ]; then
    echo "FAIL $name: exit status $status, run.status $want"
    same=0
  fi
  for stream in stdout stderr; do
    expected=/dev/null
    [ -f "$dir/run.$stream" ] && expected=$dir/run.$stream
    if ! cmp -s "$work/$stream" "$expected"; then
      echo "FAIL $name: $stream differs from run.$stream"
      diff "$expected" "$work/$stream" | head -20
      same=0
    fi
  done
  if [ $same = 1 ]; then checked=$((checked + 1)); else failed=$((failed + 1)); fi
done
echo "$checked passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$checked" -gt 0 ]
