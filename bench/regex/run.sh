#!/usr/bin/env bash
# Times strfnd and POSIX regexec on texts of growing length for patterns
# that make backtracking and position-by-position engines slow.
# usage: bench/regex/run.sh BUILD_DIR   (after building target regex_bench)
set -u
bench=$1/bench/regex/regex_bench
one() {  # engine pattern fill length tail
  /usr/bin/time -f "%e s" "$bench" "$@" 2>&1 | tr '\n' ' '
  echo
}
for spec in '(a|aa)*b;a;' '(a|aa)*b;a;b' '(x+x+)+y;x;'; do
  IFS=';' read -r pattern fill tail <<< "$spec"
  for n in 1024 16384 262144 1048576; do
    echo "$pattern on $fill x $n$tail: ycrt $(one ycrt "$pattern" "$fill" "$n" $tail)"
    # regexec takes minutes beyond 100 KB when nothing matches
    if [ -n "$tail" ] || [ "$n" -le 16384 ]; then
      echo "$pattern on $fill x $n$tail: posix $(one posix "$pattern" "$fill" "$n" $tail)"
    fi
  done
done
