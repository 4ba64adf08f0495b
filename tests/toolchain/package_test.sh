#!/usr/bin/env bash
# Installs the build into a temporary prefix, moves the prefix (the package
# must not remember where it was installed), runs the installed ycc --run, and
# builds tests/toolchain/project with find_package(YarlC) and Ninja: the
# program's output, then which commands a touched include sets off.
# usage: package_test.sh BUILD_DIR PROJECT_DIR [LINK_OPTIONS of an instrumented build]
set -u
build=$1
project=$2
link=${3:+$3 }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
work=$(cd "$work" && pwd -P)
failures=0
fail() {
  echo "FAIL $*"
  failures=$((failures + 1))
}
# expect NAME WANT GOT
expect() {
  [ "$2" = "$3" ] || { fail "$1"; printf -- '--- expected:\n%s\n--- actual:\n%s\n' "$2" "$3"; }
}

cmake --install "$build" --prefix "$work/first" >"$work/install.log" 2>&1 || { cat "$work/install.log"; fail "install"; }
mv "$work/first" "$work/prefix"
prefix=$work/prefix
for f in bin/ycc lib/libycrt.a include/ycrt.h lib/cmake/YarlC/YarlCConfig.cmake lib/cmake/YarlC/YarlCConfigVersion.cmake; do
  [ -f "$prefix/$f" ] || fail "not installed: $f"
done

cp -r "$project" "$work/src"
cd "$work/src"
tally_output=$'\'a  bc d\': 3\n\'\': 0\n\'x\': 1\ntotal: 4'

# The installed compiler finds the installed library and header.
got=$("$prefix/bin/ycc" --run /I include main.yc words.yc -- "a  bc d" "" x 2>/dev/null)
expect "installed ycc --run" "$tally_output" "$got"
mkdir "$work/tmp"
got=$(CC=false TMPDIR="$work/tmp" "$prefix/bin/ycc" --run /I include main.yc words.yc 2>&1 |
      grep "C compiler failed" | sed 's/ycc-run-[A-Za-z0-9]\{6\}/ycc-run-XXXXXX/g')
t=$work/tmp/ycc-run-XXXXXX
expect "installed ycc --run links the installed library" \
  "ycc: the C compiler failed ('false $link-std=c99 -o $t/main $t/main.c $t/words.c $prefix/lib/libycrt.a -lm' ended with status 1)" "$got"

cmake -S . -B "$work/b" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >"$work/configure.log" 2>&1 ||
  { cat "$work/configure.log"; fail "configure"; }
ninja -C "$work/b" >"$work/build.log" 2>&1 || { cat "$work/build.log"; fail "first build"; }
got=$("$work/b/tally" "a  bc d" "" x)
expect "the program built with the package" "$tally_output" "$got"
# Translations run --quiet: a build log holds no banner.
grep -q "YARL C (tm) Compiler" "$work/build.log" && fail "the build log shows ycc's banner"

# rebuild NAME TRANSLATED COMPILED: runs ninja and compares the sources it
# translated and the C files it compiled (names, in ninja's order, sorted).
rebuild() {
  ninja -C "$work/b" -v >"$work/rebuild.log" 2>&1 || { cat "$work/rebuild.log"; fail "$1: build"; }
  local translated compiled
  translated=$(grep -o '/bin/ycc .* --depfile [^ ]*' "$work/rebuild.log" | sed 's|.*/||' | sort | tr '\n' ' ')
  compiled=$(grep -o ' -c [^ ]*\.c$' "$work/rebuild.log" | sed 's|.*/||' | sort | tr '\n' ' ')
  expect "$1: translated" "$2" "$translated"
  expect "$1: compiled" "$3" "$compiled"
}
rebuild "nothing touched" "" ""
grep -q "no work to do" "$work/rebuild.log" || fail "nothing touched: ninja found work"
touch words.h
rebuild "include of words.yc alone touched" "words.yc " "words.c "
grep -q -- "-o tally" "$work/rebuild.log" || fail "the program was not linked again"
rebuild "nothing touched since" "" ""
touch include/shared.h
rebuild "shared include touched (from the target's include directories)" "main.yc words.yc " "main.c words.c "
touch "$prefix/include/ycrt.h"
rebuild "run-time header touched" "main.yc " "main.c "
touch main.yc
rebuild "source touched" "main.yc " "main.c "
got=$("$work/b/tally" one)
expect "the rebuilt program" $'\'one\': 1\ntotal: 1' "$got"

[ $failures = 0 ] && echo "YarlC package: all passed"
exit $failures
