# Shell functions that count what passes. Sourced by scripts that end with `finish`.

passed=0
failed=0

# check NAME COMMAND...: adds one check that is a whole command; its output is shown only if it
# fails.
check() {
  local name=$1 log
  shift
  log=$(mktemp)
  if "$@" >"$log" 2>&1; then
    passed=$((passed + 1))
    echo "  ok      $name"
  else
    failed=$((failed + 1))
    cat "$log"
    echo "  FAILED  $name"
  fi
  rm -f "$log"
}

# run_suite NAME COMMAND...: adds the cases of a GoogleTest program, which the command starts.
run_suite() {
  local name=$1 report log count bad skipped
  shift
  report=$(mktemp)
  log=$(mktemp)
  "$@" --gtest_brief=1 --gtest_output=json:"$report" >"$log" 2>&1 || true
  count=$(sed -n 's/^  "tests": \([0-9]*\),\r\?$/\1/p' "$report" | head -n 1)
  bad=$(sed -n 's/^  "failures": \([0-9]*\),\r\?$/\1/p' "$report" | head -n 1)
  skipped=$(grep -c '"result": "SKIPPED"' "$report" || true)
  if [ -z "$count" ]; then # it died before it could report
    cat "$log"
    failed=$((failed + 1))
    echo "  FAILED  $name ended early"
  else
    [ "$bad" -eq 0 ] || cat "$log"
    passed=$((passed + count - bad))
    failed=$((failed + bad))
    echo "  $((count - bad)) of $count passed: $name"
    [ "$skipped" -eq 0 ] || echo "  ($skipped of them were skipped)"
  fi
  rm -f "$report" "$log"
}

finish() {
  echo
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}
