#!/usr/bin/env bash
# Translates a program that includes the library's YARL C header, takes the
# C prototypes ycc writes for the library functions, gives their record and
# structure types the library's names, and compiles them in one translation
# unit with the library's own declarations: the C compiler then refuses any
# prototype that does not agree with the library's definition.
set -u
ycc=$1
runtime=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cat > all.yc <<'YC'
#include <ycrt.h>
main(struct yc_argument args[]) int status { status = 0; }
YC
if ! "$ycc" /I "$runtime" all.yc >ycc.out 2>&1; then
  echo "FAIL ycc refused the header:"; cat ycc.out; exit 1
fi
if [ -s ycc.out ] && grep -v -e '^ YARL C' -e '^ Copyright' -e '^ preprocess' -e '^ compile' -e '^$' ycc.out; then
  echo "FAIL ycc had messages about the header"; exit 1
fi
# one statement a line, then the prototypes of library functions
tr '\n' ' ' < all.c | tr -s ' ' | sed 's/;/;\n/g' | sed 's/^ *//' |
  grep -E '^void _yc__[a-z0-9]+\(.*\);$' |
  sed -e 's/struct zz1D_meta/struct ycrt_meta1/g' -e 's/struct tm \*/struct ycrt_tm */g' > prototypes.h
count=$(wc -l < prototypes.h)
names=$(sed -E 's/^void _yc__([a-z0-9]+)\(.*/\1/' prototypes.h | sort -u | wc -l)
if [ "$count" != 118 ] || [ "$names" != 118 ]; then
  echo "FAIL expected 118 prototypes of 118 functions, found $count of $names"; exit 1
fi
printf '#include "ycrt_lib.h"\n#include "prototypes.h"\nint check_only;\n' > agree.c
failures=0
for cc in gcc clang; do
  command -v $cc >/dev/null 2>&1 || continue
  if ! $cc -std=c99 -pedantic-errors -Wall -Werror -I "$runtime" -I . -c agree.c -o agree.o; then
    echo "FAIL $cc: the header's prototypes disagree with the library"; failures=$((failures + 1))
  fi
done
[ $failures = 0 ] && echo "header prototypes: 118 agree"
exit $failures
