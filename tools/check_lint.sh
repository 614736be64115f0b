#!/usr/bin/env bash
# Runs clang-tidy 14 with the rules of .clang-tidy and fails on a finding.
#
#   tools/check_lint.sh            the product, its programs and the test helpers
#   tools/check_lint.sh FILE ...   these sources
#
# Tests and test helpers get fewer rules, those that find bugs: the analyzer would follow every path in their macros.
# Unless named, tests, benchmarks and fuzz targets are not linted; they take three times as long as the rest.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

test_sources='_test\.cpp$|(^|/)(tests|testing|fuzz|bench)/'
test_checks='--checks=-*,bugprone-*,performance-*,readability-identifier-naming'
test_checks+=',-bugprone-easily-swappable-parameters,-bugprone-exception-escape'

cmake --preset dev >/dev/null
if [ $# -gt 0 ]; then
  sources=("$@")
else
  # The equity rows are data, and would take longer than everything else. This build has no Windows sources.
  mapfile -t sources < <(git ls-files '*.cpp' | grep -vE '_test\.cpp$|^(bench|fuzz|third_party)/|^hand/equity_rows\.cpp$|_windows\.cpp$')
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
for source in "${sources[@]}"; do
  [[ $source =~ $test_sources ]] && checks=$test_checks || checks=--checks=
  printf '%s\0%s\0' "$source" "$checks"
done | xargs -0 -P "$(nproc)" -n 2 clang-tidy-14 --quiet -p build/dev >"$log" 2>&1 || {
  grep -vE '^[0-9]+ warnings? generated|^Suppressed|^Use -header-filter' "$log" || true
  echo "clang-tidy has findings; they are above." >&2
  exit 1
}
