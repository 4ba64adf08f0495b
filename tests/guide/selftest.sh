#!/usr/bin/env bash
# Feeds check.sh small guides, one fault each, and checks that it fails
# naming the fault; the fault-free guide must pass. Without this a checker
# that compares nothing would pass the real guide too.
# usage: selftest.sh CHECK_SH YCC RUNTIME_DIR VARIANTS_DIR
set -uo pipefail
check=$1 ycc=$2 runtime=$3 variants=$4
work=$(mktemp -d /tmp/ycc-guide-self-XXXXXX)
trap 'rm -rf "$work"' EXIT
failures=0
fence='```'

program() {  # NAME OPTIONS-ON-THE-INFO-STRING: a program printing "n = 3", status 4
  printf '%sc example=%s%s\n#include <ycrt.h>\n\nmain(struct yc_argument args[]) int status\n{\n   int n;\n   n = args.occurs;\n   printf("n = %%d\\n", n);\n   status = 4;\n}\n%s\n' \
    "$fence" "$1" "${2:-}" "$fence"
}
block() {  # INFO LINES...
  local info=$1
  shift
  printf '%s%s\n' "$fence" "$info"
  [ $# -gt 0 ] && printf '%s\n' "$@"
  printf '%s\n' "$fence"
}
good() { program two " args=a,b"; block "text output=two status=4" "n = 3"; }
refused() {
  block "c example=bad" "#include <ycrt.h>" "" "main(struct yc_argument args[]) int status" \
    "{" "   int var v[4];" "   v[0] = 1;" "   status = 0;" "}"
  block "text messages=bad status=1" "" " (line) in 'bad.yc'" \
    " (5) **error: for each dimension of variable 'v', the var qualifier" \
    "              requires an empty dimension size: '[]'"
}

# NAME WANT < GUIDE: check.sh must fail reporting WANT ("": must pass)
expect() {
  local name=$1 want=$2
  cat > "$work/$name.md"
  "$check" "$work/$name.md" "$ycc" "$runtime" "$variants" > "$work/$name.out" 2>&1
  local status=$?
  if [ -z "$want" ]; then
    [ $status = 0 ] && return
    echo "FAIL $name: the checker refused a correct guide:"
  elif [ $status != 0 ] && grep -qF -- "$want" "$work/$name.out"; then
    return
  else
    echo "FAIL $name: expected a failure reporting: $want"
  fi
  sed 's/^/    /' "$work/$name.out"
  failures=$((failures + 1))
}

expect correct "" < <(good; refused; echo 'Shell lines are free:'; block sh 'build/ycc prog.yc')
expect output-changed "example 'two' (gcc): the program's standard output differs" \
  < <(program two " args=a,b"; block "text output=two status=4" "n = 4")
expect output-extra-line "example 'two' (gcc): the program's standard output differs" \
  < <(program two " args=a,b"; block "text output=two status=4" "n = 3" "")
expect status-changed "example 'two' (gcc): the program ended with status 4, expected 0" \
  < <(program two " args=a,b"; block "text output=two" "n = 3")
expect args-ignored "example 'two' (gcc): the program's standard output differs" \
  < <(program two " args=a"; block "text output=two status=4" "n = 3")
expect stderr-expected "example 'two' (gcc): the program's standard error differs" \
  < <(good; block "text stderr=two" "nothing")
expect no-output "example 'two' has no expected output" < <(program two; block "text console=two" "")
expect messages-only "example 'two' is translated but has no output block" \
  < <(program two; block "text messages=two")
expect orphan-output "the output block names no example: \"three\"" < <(good; block "text output=three" "n = 1")
expect duplicate-example "a second example block for \"two\"" < <(good; program two)
expect unnamed-c-block "a c block that names no example" < <(good; block c "int x;")
expect unknown-attribute "unknown attribute \"colour\"" < <(good; block "text output=two colour=red" "x")
expect unclosed-block "the block is never closed" < <(good; printf '%sc example=open\nint x;\n' "$fence")
expect messages-for-a-clean-program "example 'bad': ycc's standard error differs" \
  < <(program bad; block "text messages=bad status=1" "" " (line) in 'bad.yc'")
expect output-for-a-refused-program "example 'bad' is refused by ycc but has an output or stderr block" \
  < <(refused; block "text output=bad" "x")
expect refused-status "example 'bad': ycc ended with status 1, expected 0" \
  < <(refused | sed 's/status=1/status=0/'; block "text output=bad" "x")
expect console-changed "example 'two': ycc's standard output differs" \
  < <(program two " options=/B"; block "text output=two status=4" "n = 1"; block "text console=two" "changed")
expect empty-guide "the guide holds no example" < <(printf 'no examples at all\n')

[ $failures = 0 ] && echo "guide checker: every fault found"
exit $failures
