#!/usr/bin/env bash
# Checks that a kernel's YARL C program prints exactly what its C twin
# prints, at a small size, with every C compiler installed (gcc, clang, tcc),
# and once more with the generated C under AddressSanitizer and
# UndefinedBehaviorSanitizer; both as the default translation and with every
# faster form of the generated C (the "--" options) at once.
# Usage: bench/programs/check.sh YCC VARIANTS_DIR KERNEL...
#   VARIANTS_DIR holds the run-time library built per compiler
#   (build/runtime: gcc/libycrt.a, clang/libycrt.a, tcc/libycrt.a,
#   gcc-sanitized/libycrt.a).
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
ycc=$(realpath "$1")
variants=$(realpath "$2")
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

small_size() {
  case $1 in
    sieve) echo 100000 ;;
    matmul) echo 60 ;;
    quicksort) echo 50000 ;;
    nbody) echo 1000 ;;
    spectralnorm) echo 100 ;;
    fannkuch) echo 7 ;;
    mandelbrot) echo 203 ;;
    strbuild) echo 3000 ;;
    stencil) echo 40 ;;
    bintrees) echo 8 ;;
    *) echo "no small size for kernel '$1'" >&2; return 1 ;;
  esac
}

failed=0
checked=0
for k in "$@"; do
  size=$(small_size "$k")
  for form in default faster; do
    d=$work/$k/$form
    mkdir -p "$d/y"
    forms=()
    [ "$form" = faster ] && forms=(--noreturn --wide-subscripts --direct-calls --versioned-loops)
    if ! "$ycc" "${forms[@]}" /I "$root/runtime" /O "$d/y" "$here/$k.yc" > "$d/ycc.log" 2>&1; then
      cat "$d/ycc.log"
      echo "FAIL $k ($form): ycc refused the kernel"
      failed=$((failed + 1))
      continue
    fi
    for variant in gcc clang tcc gcc-sanitized; do
      cc=${variant%-sanitized}
      lib=$variants/$variant/libycrt.a
      command -v "$cc" > /dev/null 2>&1 && [ -f "$lib" ] || continue
      flags=(-O2)
      [ "$cc" = tcc ] && flags=()
      [ "$variant" = gcc-sanitized ] && flags=(-O1 -g -fsanitize=address,undefined -fno-sanitize-recover=undefined)
      if ! "$cc" "${flags[@]}" -w -o "$d/yarl-$variant" "$d/y/$k.c" "$lib" -lm > "$d/build.log" 2>&1 ||
         ! "$cc" "${flags[@]}" -w -o "$d/c-$variant" "$here/$k.c" -lm >> "$d/build.log" 2>&1; then
        cat "$d/build.log"
        echo "FAIL $k ($form, $variant): does not build"
        failed=$((failed + 1))
        continue
      fi
      status=0
      ASAN_OPTIONS=detect_leaks=1 "$d/yarl-$variant" "$size" > "$d/yarl.out" 2> "$d/yarl.err" || status=$?
      "$d/c-$variant" "$size" > "$d/c.out" 2> /dev/null || true
      checked=$((checked + 1))
      if [ "$status" != 0 ] || ! cmp -s "$d/yarl.out" "$d/c.out"; then
        echo "FAIL $k ($form, $variant): YARL C (status $status) and C print differently"
        diff "$d/yarl.out" "$d/c.out" | head -n 20 || true
        head -n 20 "$d/yarl.err"
        failed=$((failed + 1))
      else
        echo "ok   $k ($form, $variant, size $size): $(head -n 1 "$d/c.out")"
      fi
    done
  done
done
echo "$((checked - failed)) passed, $failed failed"
[ "$failed" = 0 ] && [ "$checked" -gt 0 ]
