#!/usr/bin/env bash
# Checked YARL C kernels against their twins in plain C.
#
# Usage: bench/programs/run.sh [YCC] [COMPILER]
#   YCC        the compiler (default build-rel/ycc)
#   COMPILER   gcc, clang, ... (default: gcc, and clang when installed)
# Environment:
#   YCC_FLAGS  extra ycc options for every kernel (e.g. "/B", or "--" options)
#   REPS       runs of each program (default 5); the median is printed
#   KERNELS    the kernels to run (default: all, in the order below)
#   CFLAGS     optimisation flags of both sides (default -O2)
#   KEEP       a directory to keep the programs and outputs in, for
#              profiling (KEEP/COMPILER/KERNEL/{yarl,c,asan}); else a
#              temporary directory, removed at the end
#   YCRT_LIB   the run-time library to link (default: the one built for
#              COMPILER beside YCC, build-rel/runtime/COMPILER/libycrt.a,
#              else build-rel/runtime/libycrt.a)
#
# Each YARL C kernel is translated by ycc and built with COMPILER; its C twin
# is built with the same compiler and flags, and once more with
# -fsanitize=address. The three run in turn REPS times (CPU time, user +
# system, from /usr/bin/time: steadier than wall time on a shared machine). Every run's output must equal the first YARL C run's;
# otherwise the script says which differ and exits 1 after the table.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
ycc=$(realpath "${1:-$root/build-rel/ycc}")
reps=${REPS:-5}
cflags=${CFLAGS:--O2}
read -r -a ycc_flags <<< "${YCC_FLAGS:-}"
read -r -a opt <<< "$cflags"
kernels=${KERNELS:-"sieve matmul quicksort nbody spectralnorm fannkuch mandelbrot strbuild stencil bintrees"}
if [ $# -ge 2 ]; then
  compilers=("$2")
else
  compilers=(gcc)
  command -v clang > /dev/null 2>&1 && compilers+=(clang)
fi
if [ -n "${KEEP:-}" ]; then
  mkdir -p "$KEEP"
  work=$(realpath "$KEEP")
else
  work=$(mktemp -d)
  trap 'rm -rf "$work"' EXIT
fi

library_for() {  # compiler -> the run-time library to link
  local base
  base=$(dirname "$ycc")/runtime
  if [ -n "${YCRT_LIB:-}" ]; then echo "$YCRT_LIB"
  elif [ -f "$base/$1/libycrt.a" ]; then echo "$base/$1/libycrt.a"
  else echo "$base/libycrt.a"
  fi
}

timed() {  # output-file program -> CPU seconds (user + system) on stdout
  local out=$1
  shift
  /usr/bin/time -f '%U %S' -o "$work/time" "$@" > "$out" 2> /dev/null || {
    echo "$* failed" >&2
    return 1
  }
  tail -n 1 "$work/time" | awk '{ printf "%.2f\n", $1 + $2 }'
}

median() {
  sort -n | awk '{ v[NR] = $1 } END { if (NR % 2) print v[(NR + 1) / 2]; else printf "%.3f\n", (v[NR / 2] + v[NR / 2 + 1]) / 2 }'
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", (b > 0 ? a / b : 0) }'; }

differ=0
for cc in "${compilers[@]}"; do
  lib=$(library_for "$cc")
  echo "== $cc $cflags (ycc ${YCC_FLAGS:-default}; $reps runs, median CPU seconds)"
  printf '%-13s %9s %9s %9s %9s %11s\n' kernel 'YARL C' C 'C+ASan' 'YARL/C' 'YARL/ASan'
  logs_c=() logs_a=()
  for k in $kernels; do
    d=$work/$cc/$k
    mkdir -p "$d/y"
    "$ycc" "${ycc_flags[@]}" /I "$root/runtime" /O "$d/y" "$here/$k.yc" > "$d/ycc.log" 2>&1 || {
      cat "$d/ycc.log" >&2
      exit 1
    }
    "$cc" "${opt[@]}" -w -o "$d/yarl" "$d/y/$k.c" "$lib" -lm
    "$cc" "${opt[@]}" -w -o "$d/c" "$here/$k.c" -lm
    "$cc" "${opt[@]}" -w -fsanitize=address -o "$d/asan" "$here/$k.c" -lm
    : > "$d/ty" ; : > "$d/tc" ; : > "$d/ta"
    for ((r = 0; r < reps; r++)); do
      timed "$d/out.y$r" "$d/yarl" >> "$d/ty"
      timed "$d/out.c$r" "$d/c" >> "$d/tc"
      ASAN_OPTIONS=detect_leaks=0 timed "$d/out.a$r" "$d/asan" >> "$d/ta"
      for f in "$d/out.y$r" "$d/out.c$r" "$d/out.a$r"; do
        if ! cmp -s "$d/out.y0" "$f"; then
          echo "$k ($cc): output of ${f##*/} differs from the first YARL C run" >&2
          differ=1
        fi
      done
    done
    ty=$(median < "$d/ty")
    tc=$(median < "$d/tc")
    ta=$(median < "$d/ta")
    rc=$(ratio "$ty" "$tc")
    ra=$(ratio "$ty" "$ta")
    logs_c+=("$rc") logs_a+=("$ra")
    printf '%-13s %9s %9s %9s %9s %11s\n' "$k" "$ty" "$tc" "$ta" "$rc" "$ra"
  done
  gm() { printf '%s\n' "$@" | awk '$1 > 0 { s += log($1); n++ } END { printf "%.2f", n ? exp(s / n) : 0 }'; }
  printf '%-13s %9s %9s %9s %9s %11s\n' 'geo. mean' '' '' '' "$(gm "${logs_c[@]}")" "$(gm "${logs_a[@]}")"
  echo
done
exit $differ
