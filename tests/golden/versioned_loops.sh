#!/usr/bin/env bash
# Random programs of loops over a two-dimensional varspace, a fixed-space,
# a one-dimensional varspace and a varspace of structures, with calls of
# math functions now and then, whose subscripts follow the loop variable
# or stay put and now and then leave their range (a report ends the
# program, a write past a limit grows the varspace, a write past occurs
# raises it). Each is translated
# by default and with --direct-calls --versioned-loops, built with gcc, run, and must print
# the same output, report the same reference and end with the same status.
# The versioned program counts the passes through its copies without
# checks: at least a quarter of the programs must run some (a report ends a
# program early, so many never reach a loop in range).
# usage: versioned_loops.sh YCC RUNTIME_DIR VARIANTS_DIR [programs]
set -uo pipefail
ycc=$(realpath "$1")
runtime=$(cd "$2" && pwd)
lib=$(realpath "$3")/gcc/libycrt.a
count=${4:-60}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

generate() {  # seed -> a.yc
  awk -v seed="$1" '
  function pick(n) { return int(rand() * n) }
  function off(  c) {
    c = pick(7); c = c < 4 ? 0 : c < 6 ? 1 : 2
    if (rand() < 0.1) c = rand() < 0.5 ? 3 : 6
    return c == 0 ? "" : (rand() < 0.5 ? " + " : " - ") c
  }
  function subscript(inv,  k) {
    k = rand()
    if (k < 0.5) return "j" off()
    if (k < 0.6) return rand() < 0.5 ? "n + 2 - j" off() : "-j + n + 2" off()
    if (k < 0.9) return inv off()
    return pick(10)
  }
  function value(  v) {
    v = (rand() < 0.3 ? "t" : rand() < 0.5 ? "(double)j" : "1.0") " * 0.5 + e[" subscript("m") "][" subscript("i") "]"
    if (rand() < 0.3) v = v " + (double)v[" subscript("m") "]"
    if (rand() < 0.4) v = v " - g[" subscript("i") "][" subscript("m") "]"
    if (rand() < 0.3) v = v " + s[" subscript("m") "]." (rand() < 0.5 ? "x" : "in.y")
    if (rand() < 0.2) v = v " * (sqrt(fabs(" v ")))"
    if (rand() < 0.1) v = "(pow(" v ", 2.0))"
    return v
  }
  BEGIN {
    srand(seed)
    print "#include <ycrt.h>"
    print "struct inner {\n   double y;\n};\nstruct p {\n   double x;\n   int k;\n   struct inner in;\n};"
    print "main(struct yc_argument args[]) int status\n{"
    print "   double var g[][];\n   double e[40][40];\n   int var v[];\n   struct p var s[];"
    print "   int i;\n   int j;\n   int n;\n   int m;\n   double t;"
    print "   status = 0;\n   t = 0.0;"
    printf "   n = %d;\n   m = %d;\n", 16 + pick(14), 2 + pick(4)
    printf "   g[%d][%d] = 1.0;\n", 20 + pick(20), 28 + pick(12)
    # Set-up loops are while loops, which are never copied: every copy
    # that runs belongs to a random loop.
    printf "   i = 0;\n   while (i < %d) {\n      v[i] = i;\n      i++;\n   }\n", 28 + pick(12)
    printf "   i = 0;\n   while (i < %d) {\n      s[i].x = (double)i;\n      s[i].k = i;\n      s[i].in.y = 0.25;\n      i++;\n   }\n", 28 + pick(12)
    print "   for (i = 0; i < 40; i++) {\n      j = 0;\n      while (j < 40) {\n         e[i][j] = (double)(i - j);\n         j++;\n      }\n   }"
    split("0 2 m n-3", firsts, " "); split("n n-1 m+20 27 n+1 v.occurs", bounds, " ")
    split("j++|++j|j += 1|j += 2|j = j + m", steps, "|")
    loops = 3 + pick(4)
    for (l = 0; l < loops; l++) {
      printf "   i = %d;\n", 2 + pick(3)
      a = firsts[1 + pick(4)]; b = bounds[1 + pick(6)]; s = steps[1 + pick(5)]
      gsub(/-/, " - ", a); gsub(/[+]/, " + ", b); gsub(/-/, " - ", b)
      rel = rand() < 0.5 ? "<" : "<="
      if (rand() < 0.3) {  # counting down
        split("n|n + 1|m + 20|27", tops, "|"); split("0|1|m - 1|2", bottoms, "|")
        a = tops[1 + pick(4)]; b = bottoms[1 + pick(4)]; s = rand() < 0.5 ? "j--" : "--j"
        rel = rand() < 0.5 ? ">" : ">="
      }
      printf "   for (j = %s; j %s %s; %s) {\n", a, rel, b, s
      statements = 1 + pick(3)
      for (k = 0; k < statements; k++) {
        kind = rand()
        if (kind < 0.35) printf "      g[%s][%s] = %s;\n", subscript("i"), subscript("m"), value()
        else if (kind < 0.5) printf "      e[%s][%s] = %s;\n", subscript("m"), subscript("i"), value()
        else if (kind < 0.6) printf "      v[%s] = (int)(%s);\n", subscript("m"), value()
        else if (kind < 0.7) printf "      s[%s].%s = %s;\n", subscript("m"), rand() < 0.5 ? "x" : "in.y", value()
        else if (kind < 0.78) printf "      t = sqrt(fabs(%s));\n", value()
        else printf "      t = t + %s;\n", value()
      }
      print "   }"
      printf "   printf(\"%%d %%.3f %%u %%u %%u %%u\\n\", %d, t, g[this][].limit, g[][this].limit, v.occurs, s.occurs);\n", l
    }
    print "}"
  }' > a.yc
}

failed=0 copied=0
for seed in $(seq 1 "$count"); do
  generate "$seed"
  for form in checked versioned; do
    flags=()
    [ "$form" = versioned ] && flags=(--direct-calls --versioned-loops)
    if ! "$ycc" /L0 "${flags[@]}" /I "$runtime" a.yc > ycc.log 2>&1; then
      echo "FAIL seed $seed: ycc refused the program ($form)"; cat ycc.log a.yc; exit 1
    fi
    if [ "$form" = versioned ]; then
      # Count the passes through the copies, into a file of their own.
      sed -i -e '1i static long zz_fast_passes;' -e 's/^\(zzzz_fast[0-9]*:\)$/\1 ++zz_fast_passes;/' a.c
      printf '%s\n' '__attribute__((destructor)) static void zz_count(void)' \
        '{ FILE *f = fopen("fast.count", "w"); if (f) { fprintf(f, "%ld\n", zz_fast_passes); fclose(f); } }' >> a.c
    fi
    rm -f fast.count
    gcc -std=c99 -w -I "$runtime" -o "$form" a.c "$lib" -lm || { echo "FAIL seed $seed: $form does not build"; exit 1; }
    "./$form" > "$form.out" 2> "$form.err"
    echo "status $?" >> "$form.out"
    [ "$form" = versioned ] && [ "$(cat fast.count 2> /dev/null)" -gt 0 ] 2> /dev/null && copied=$((copied + 1))
  done
  if ! cmp -s checked.out versioned.out || ! cmp -s checked.err versioned.err; then
    echo "FAIL seed $seed: the versioned loops behave differently"
    cat a.yc; diff checked.out versioned.out; diff checked.err versioned.err
    failed=$((failed + 1))
  fi
done
echo "$count programs, $copied that ran copies without checks, $failed differ"
[ "$failed" -eq 0 ] && [ "$copied" -ge $((count / 4)) ]
