# Sourced by the scripts that run a golden case's program outside the runner.
# run_case NAME DIR WORK PROGRAM WHAT: runs PROGRAM as the runner does (in the case
# copy WORK/case, with DIR's run.args and run.stdin), then checks that it
# printed run.stdout and run.stderr and ended with run.status. Prints what
# differs, naming the case NAME and the program WHAT; returns 1 when anything does.
run_case() {
  local name=$1 dir=$2 work=$3 program=$4 what=$5
  local input=/dev/null words=() status want=0 same=0 stream expected
  [ -f "$dir/run.stdin" ] && input=$dir/run.stdin
  [ -f "$dir/run.args" ] && read -r -a words < "$dir/run.args"
  (cd "$work/case" && "$program" "${words[@]}" < "$input" > "$work/stdout" 2> "$work/stderr")
  status=$?
  [ -f "$dir/run.status" ] && want=$(tr -d ' \n' < "$dir/run.status")
  if [ "$status" != "$want" ]; then
    echo "FAIL $name: $what exit status $status is not run.status $want"
    same=1
  fi
  for stream in stdout stderr; do
    expected=/dev/null
    [ -f "$dir/run.$stream" ] && expected=$dir/run.$stream
    if ! cmp -s "$work/$stream" "$expected"; then
      echo "FAIL $name: $what $stream differs from run.$stream"
      diff "$expected" "$work/$stream" | head -20
      same=1
    fi
  done
  return $same
}
