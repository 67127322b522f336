#!/usr/bin/env bash
# Builds everything and runs every test: the checks of the tree, then unit,
# session and desktop tests of the release build, then unit and session tests
# under the sanitizers. The last line counts.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

passed=0 failed=0 skipped=0

# Whatever ends the script, its last line is the count, and an end before the
# last test is a failure.
finished=
close() {
  local status=$?
  [ -n "$finished" ] || failed=$((failed + 1))
  [ "$skipped" -gt 0 ] && echo "$passed passed, $failed failed, $skipped skipped" || echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ] && exit "$status"
  exit 1
}
trap close EXIT

check_tree() {
  local count
  count=$(bash scripts/check.sh | tee /dev/stderr | tail -n 1) || true
  if [[ $count =~ ^([0-9]+)\ passed,\ ([0-9]+)\ failed$ ]]; then
    passed=$((passed + BASH_REMATCH[1]))
    failed=$((failed + BASH_REMATCH[2]))
  else
    failed=$((failed + 1))
  fi
}

# attribute NAME: a number from the head of the report.
head_of_report=
attribute() { grep -oE " $1=\"[0-9]+\"" <<<"$head_of_report" | grep -oE '[0-9]+'; }

# run_tests PRESET [CTEST_ARGUMENT...]
run_tests() {
  local report=$PWD/build/$1/report.xml bad unrun
  echo "Tests of the build \"$1\""
  rm -f "$report"
  ctest --preset "$1" --output-junit "$report" "${@:2}" </dev/null | grep -vE ' (Start +[0-9]+:|Passed +[0-9])' || true
  if [ ! -s "$report" ]; then
    echo "No tests were run."
    failed=$((failed + 1))
    return
  fi
  head_of_report=$(tr '\n\t' '  ' <"$report" | grep -oE '<testsuite [^>]*>')
  bad=$(attribute failures)
  unrun=$(($(attribute skipped) + $(attribute disabled)))
  failed=$((failed + bad))
  skipped=$((skipped + unrun))
  passed=$((passed + $(attribute tests) - bad - unrun))
}

require "${build_packages[@]}" "${test_packages[@]}"
build release all -DORVANE_STAGED=ON -DORVANE_TESTS=ON -DORVANE_BENCH=ON
check_tree
run_tests release
build asan all
run_tests asan -L 'unit|session'
finished=yes
