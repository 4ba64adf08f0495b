#!/usr/bin/env bash
# Links the run-time entry with a stand-in main under every C compiler's
# build of the library and checks the status and the unhandled-exception
# reports.
set -u
libs=$1
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
built=0
check() {  # name expected-status expected-stderr command...
  local name=$1 want_status=$2 want_err=$3
  shift 3
  "$@" >"$work/out" 2>"$work/err"
  local status=$?
  if [ "$status" != "$want_status" ] || [ "$(cat "$work/err")" != "$want_err" ]; then
    echo "FAIL $name: status $status, stderr:"; cat "$work/err"; failures=$((failures + 1))
  fi
}
raised=$'\nmain() is returning with an unhandled exception:\n\n exception 7'
memory=$'\nmain() is returning with an unhandled exception:\n\n memory failure (not enough memory)'
for cc in gcc clang tcc; do
  command -v $cc >/dev/null 2>&1 || continue
  flags="-std=c99 -pedantic -Wall -Werror"
  [ $cc = tcc ] && flags="-Wall"
  $cc $flags -o "$work/prog" "$here/entry_main.c" "$libs/$cc/libycrt.a" -lm || { echo "FAIL $cc build"; failures=$((failures + 1)); continue; }
  built=$((built + 1))
  check "$cc no arguments" 0 "" "$work/prog"
  check "$cc two arguments" 2 "" "$work/prog" a ""
  check "$cc empty argument" 1 "" "$work/prog" ""
  check "$cc exception 7" 1 "$raised" "$work/prog" raise7
  check "$cc memory failure" 1 "$memory" "$work/prog" x memory
  if [ $cc = gcc ] && command -v valgrind >/dev/null 2>&1; then
    # the argument space and its copies are freed when main returns
    check "$cc under valgrind" 2 "" valgrind -q --error-exitcode=99 --leak-check=full \
      --errors-for-leak-kinds=definite,indirect --show-leak-kinds=all "$work/prog" a bb
  fi
done
[ $built = 0 ] && { echo "FAIL no C compiler built the entry"; failures=$((failures + 1)); }
[ $failures = 0 ] && echo "runtime entry: all passed"
exit $failures
