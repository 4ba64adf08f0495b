#!/usr/bin/env bash
# ycc --run: the program's words and standard input, its exit status (also
# after a failed bounds check and a signal), a translation error, a failing
# or missing C compiler, a compiler that finds no run-time library; the
# temporary folder is gone after each. Also --depfile under /T.
# usage: run_test.sh YCC SOURCE_DIR [LINK_OPTIONS of an instrumented build]
set -u
ycc=$(cd "$(dirname "$1")" && pwd -P)/$(basename "$1")
src=$2
link=${3:+$3 }
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
work=$(cd "$work" && pwd -P)
cd "$work"
cp "$here"/run/*.yc .
mkdir tmp
failures=0
fail() {
  echo "FAIL $*"
  failures=$((failures + 1))
}

# check NAME STDIN STATUS STDOUT STDERR COMMAND...: exact streams and status;
# the folder names that mkdtemp chose read ycc-run-XXXXXX.
check() {
  local name=$1 input=$2 want_status=$3
  printf '%s' "$4" >want.out
  printf '%s' "$5" >want.err
  shift 5
  printf '%s' "$input" | env TMPDIR="$work/tmp" "$@" >got.out 2>got.err
  local status=$?
  sed -i 's/ycc-run-[A-Za-z0-9]\{6\}/ycc-run-XXXXXX/g' got.err
  [ "$status" = "$want_status" ] || fail "$name: status $status, expected $want_status"
  diff -u want.out got.out >/dev/null || { fail "$name: stdout"; diff -u want.out got.out; }
  diff -u want.err got.err >/dev/null || { fail "$name: stderr"; diff -u want.err got.err; }
  [ -z "$(ls -A tmp)" ] || { fail "$name: left in the temporary folder: $(ls -A tmp)"; rm -rf tmp/*; }
}

banner=$'\n YARL C (tm) Compiler Version 1.04\n Copyright (c) 2026 the YARL C project\n\n'
progress() {  # the progress lines of translating each named file
  local f
  for f; do printf " preprocess '%s'\n compile    '%s'\n" "$f" "$f"; done
}

check "words and input" $'x y\nlast' 3 \
  $'argument 0: [echo]\nargument 1: [a b]\nargument 2: []\nargument 3: [c]\nline 1: x y\nline 2: last' \
  "$banner$(progress echo.yc count.yc)"$'\n' \
  "$ycc" --run echo.yc count.yc -- "a b" "" c

check "bounds check" "" 1 $'before\n' \
  "$banner$(progress bounds.yc)"$'\n\nexecution aborted: space bounds exceeded:\n\n executed this reference: f[4],\n at line 10 in file bounds.yc,\n but current limit (or occurs) is [4]\n\n' \
  "$ycc" --run bounds.yc

check "signal" "" 143 "" "$banner$(progress signal.yc)"$'\n' "$ycc" --run signal.yc

check "translation error" "" 1 "" \
  "$banner$(progress broken.yc)"$'\n\n (line) in \'broken.yc\'\n (7) **error: \'missing\' is an undeclared identifier\n\n totals     1 error, 0 warnings\n' \
  "$ycc" --run broken.yc -- never

lib=$(dirname "$ycc")/runtime/libycrt.a
folder=$work/tmp/ycc-run-XXXXXX
check "compiler fails" "" 1 "" \
  "$banner$(progress echo.yc)"$'\n'"ycc: the C compiler failed ('false --pretend $link-std=c99 -o $folder/echo $folder/echo.c $lib -lm' ended with status 1)"$'\n' \
  CC="false  --pretend" "$ycc" --run echo.yc

check "compiler missing" "" 1 "" \
  "$banner$(progress echo.yc)"$'\n'"ycc: cannot run '$work/no-cc': No such file or directory"$'\n'"ycc: the C compiler failed ('$work/no-cc $link-std=c99 -o $folder/echo $folder/echo.c $lib -lm' ended with status 127)"$'\n' \
  CC="$work/no-cc" "$ycc" --run echo.yc

mkdir lonely
cp "$ycc" lonely/ycc
check "no run-time library" "" 1 "" \
  "${banner}ycc: cannot find the run-time library: neither '$work/lib/libycrt.a' with '$work/include/ycrt.h' nor '$work/lonely/runtime/libycrt.a' with '$src/runtime/ycrt.h' exists"$'\n' \
  lonely/ycc --run echo.yc

# /T: a file found up to date is not compiled again, but still gets its rule.
"$ycc" /T --depfile count.yc >/dev/null
rm -f count.d
"$ycc" /T --depfile count.yc >got.out
grep -q "compile    'count.yc'" got.out && fail "/T compiled an up-to-date file again"
[ "$(cat count.d 2>&1)" = "count.c: count.yc" ] || fail "/T dependency file: $(cat count.d 2>&1)"

[ $failures = 0 ] && echo "ycc --run: all passed"
exit $failures
