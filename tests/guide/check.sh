#!/usr/bin/env bash
# Runs every example of the user's guide and compares what it prints.
#
# usage: check.sh GUIDE.md YCC RUNTIME_DIR VARIANTS_DIR
#   RUNTIME_DIR holds ycrt.h; VARIANTS_DIR holds the run-time library built
#   per C compiler (VARIANTS_DIR/gcc/libycrt.a, clang/..., tcc/...).
#
# Conventions of the guide (a fenced block's info string is its first line
# after the backticks; GitHub highlights by its first word):
#   ```c example=NAME [args=a,b] [options=/B,/M]
#        a complete program; it is written to NAME.yc in a fresh directory
#        and translated with `ycc /I RUNTIME_DIR OPTIONS NAME.yc`, ycc being
#        invoked under the name "ycc". args are the program's words (commas
#        between them); its standard input is empty.
#   ```text output=NAME [status=N]     the program's stdout and exit status
#   ```text stderr=NAME                the program's stderr (absent: empty)
#   ```text messages=NAME [status=N]   ycc's stderr and exit status (absent:
#                                      empty and 0)
#   ```text console=NAME               ycc's stdout
# An example that ycc must refuse (messages status not 0) has no output or
# stderr block; every other example needs an output block. Every fenced
# block of language c must be an example, so no untested program slips in.
# A block's text is its lines, each ending in a newline.
set -uo pipefail
if [ $# -ne 4 ]; then
  echo "usage: check.sh GUIDE.md YCC RUNTIME_DIR VARIANTS_DIR" >&2
  exit 2
fi
guide=$(realpath "$1") ycc=$(realpath "$2") runtime=$(realpath "$3") variants=$(realpath "$4")
work=$(mktemp -d /tmp/ycc-guide-XXXXXX)
trap 'rm -rf "$work"' EXIT
blocks=$work/blocks
mkdir -p "$blocks"
failures=0
fail() {
  echo "FAIL $*"
  failures=$((failures + 1))
}

# Split the guide: each named block becomes blocks/KIND.NAME, and the
# manifest gets "KIND NAME LINE ATTRIBUTES...". Faults of the markup itself
# are printed as FAIL lines.
awk -v dir="$blocks" '
  function fault(text) { print "FAIL line " start ": " text; faults++ }
  !open && /^```/ {
    open = 1; start = NR; kind = ""; name = ""; attrs = ""; file = ""
    n = split(substr($0, 4), word, /[ \t]+/)
    lang = (n > 0 && word[1] !~ /=/) ? word[1] : ""
    for (i = 1; i <= n; i++) {
      if (word[i] !~ /=/) continue
      key = word[i]; sub(/=.*/, "", key)
      value = word[i]; sub(/^[^=]*=/, "", value)
      if (key ~ /^(example|output|stderr|messages|console)$/) {
        if (kind != "") fault("the block names two examples")
        else if (value !~ /^[A-Za-z0-9_-]+$/) fault("invalid example name \"" value "\"")
        else { kind = key; name = value }
      } else if (key ~ /^(args|options|status)$/) {
        attrs = attrs " " key "=" value
      } else fault("unknown attribute \"" key "\"")
    }
    if (kind == "" && lang == "c") fault("a c block that names no example (add example=NAME)")
    if (kind != "") {
      file = dir "/" kind "." name
      if (file in seen) { fault("a second " kind " block for \"" name "\""); file = "" }
      else { seen[file] = 1; printf "" > file; print kind, name, start attrs > (dir "/manifest") }
    }
    next
  }
  open && /^```[ \t]*$/ { open = 0; if (file != "") close(file); next }
  open && file != "" { print > file }
  END {
    if (open) { print "FAIL line " start ": the block is never closed"; faults++ }
    exit faults > 0
  }
' "$guide" || failures=$((failures + 1))
touch "$blocks/manifest"

attr() {  # KIND NAME KEY DEFAULT: an attribute of a named block
  local value
  value=$(awk -v k="$1" -v n="$2" -v key="$3" '$1 == k && $2 == n {
    for (i = 4; i <= NF; i++) if (index($i, key "=") == 1) print substr($i, length(key) + 2) }' "$blocks/manifest")
  echo "${value:-$4}"
}
has() { [ -f "$blocks/$1.$2" ]; }
same() {  # EXPECTED ACTUAL WHAT: compare exactly, show the difference
  if ! cmp -s "$1" "$2"; then
    fail "$3 differs (expected, then actual):"
    diff -u --label expected --label actual "$1" "$2" | head -n 40
    return 1
  fi
}

examples=$(awk '$1 == "example" { print $2 }' "$blocks/manifest")
while read -r kind name line _; do
  [ -n "$kind" ] || continue
  [ "$kind" = example ] && continue
  has example "$name" || fail "line $line: the $kind block names no example: \"$name\""
done < "$blocks/manifest"

compilers=()
for cc in gcc clang tcc; do
  command -v "$cc" > /dev/null 2>&1 || continue
  if [ ! -f "$variants/$cc/libycrt.a" ]; then
    fail "$cc is installed but $variants/$cc/libycrt.a was not built"
    continue
  fi
  compilers+=("$cc")
done
[ ${#compilers[@]} -gt 0 ] || fail "no C compiler is installed: no example was run"

checked=0
for name in $examples; do
  dir=$work/run/$name
  mkdir -p "$dir"
  cp "$blocks/example.$name" "$dir/$name.yc"
  ycc_status=$(attr messages "$name" status 0)
  if ! has output "$name" && ! has messages "$name"; then
    fail "example '$name' has no expected output (no output or messages block)"
    continue
  fi
  if [ "$ycc_status" = 0 ] && ! has output "$name"; then
    fail "example '$name' is translated but has no output block"
    continue
  fi
  if [ "$ycc_status" != 0 ] && { has output "$name" || has stderr "$name"; }; then
    fail "example '$name' is refused by ycc but has an output or stderr block"
    continue
  fi
  IFS=, read -r -a options <<< "$(attr example "$name" options "")"
  IFS=, read -r -a args <<< "$(attr example "$name" args "")"
  (cd "$dir" && exec -a ycc "$ycc" /I "$runtime" "${options[@]}" "$name.yc") \
    > "$dir/ycc.out" 2> "$dir/ycc.err"
  status=$?
  checked=$((checked + 1))
  if has messages "$name"; then
    same "$blocks/messages.$name" "$dir/ycc.err" "example '$name': ycc's standard error"
  else
    same /dev/null "$dir/ycc.err" "example '$name': ycc's standard error"
  fi
  if has console "$name"; then
    same "$blocks/console.$name" "$dir/ycc.out" "example '$name': ycc's standard output"
  fi
  if [ "$status" != "$ycc_status" ]; then
    fail "example '$name': ycc ended with status $status, expected $ycc_status"
    continue
  fi
  [ "$ycc_status" = 0 ] || continue
  want_status=$(attr output "$name" status 0)
  for cc in "${compilers[@]}"; do
    mkdir -p "$dir/$cc"
    flags=(-std=c99 -pedantic-errors)
    [ "$cc" = tcc ] && flags=()
    if ! "$cc" "${flags[@]}" -o "$dir/$cc/$name" "$dir/$name.c" "$variants/$cc/libycrt.a" -lm \
         > "$dir/$cc/build.log" 2>&1; then
      fail "example '$name': $cc does not build the generated C:"
      head -n 20 "$dir/$cc/build.log"
      continue
    fi
    (cd "$dir/$cc" && exec timeout 60 "./$name" "${args[@]}") < /dev/null \
      > "$dir/$cc/stdout" 2> "$dir/$cc/stderr"
    got=$?
    same "$blocks/output.$name" "$dir/$cc/stdout" "example '$name' ($cc): the program's standard output"
    if has stderr "$name"; then
      same "$blocks/stderr.$name" "$dir/$cc/stderr" "example '$name' ($cc): the program's standard error"
    else
      same /dev/null "$dir/$cc/stderr" "example '$name' ($cc): the program's standard error"
    fi
    [ "$got" = "$want_status" ] ||
      fail "example '$name' ($cc): the program ended with status $got, expected $want_status"
  done
done

[ "$checked" -gt 0 ] || fail "the guide holds no example"
echo "$checked examples checked with ${compilers[*]:-no compiler}, $failures failures"
[ "$failures" = 0 ]
