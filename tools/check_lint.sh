#!/usr/bin/env bash
# Runs clang-tidy 14 with the rules of .clang-tidy and fails on a finding.
#
#   tools/check_lint.sh            everything: each library and test program as one source, its headers read once
#   tools/check_lint.sh FILE ...   these sources, one by one
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Tests and benchmarks, and what only they are made of, are held to fewer rules: those that find faults. The analyzer
# would follow every path through their macros, for half a minute a file.
test_sources='_test\.cpp$|(^|/)(tests_as_one|testing|tests|fuzz|bench)/'
test_checks='--checks=-*,bugprone-*,performance-*,readability-identifier-naming'
test_checks+=',-bugprone-easily-swappable-parameters,-bugprone-exception-escape'

log=$(mktemp)
trap 'rm -f "$log"' EXIT
failed=0

# lint TREE SOURCES [CHECKS]
lint() {
  local source
  while read -r source; do
    [ -n "$source" ] || continue
    if [[ $source =~ $test_sources ]]; then
      printf '%s\0%s\0' "$source" "$test_checks${3:-}"
    else
      printf '%s\0%s\0' "$source" "--checks=${3:-}"
    fi
  done <<<"$2" | xargs --no-run-if-empty -0 -P "$(nproc)" -n 2 clang-tidy-14 --quiet -p "$1" >>"$log" 2>&1 || failed=1
}

if [ $# -gt 0 ]; then
  # Clang cannot read the headers that GCC has precompiled.
  cmake --preset dev -B build/lint-files -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
  lint build/lint-files "$(printf '%s\n' "$@")"
else
  cmake --preset lint >/dev/null
  # The equity rows are data, and take longer to look at than all else together.
  sources=$(grep -o '"file": "[^"]*"' build/lint/compile_commands.json | cut -d '"' -f 4 |
    grep -vE '_autogen/|verify_interface_header_sets/|/\.rcc/|/equity_rows\.cpp$|_test_headers' | sort -u)
  # Sources are read as one by including them.
  lint build/lint "$sources" ,-bugprone-suspicious-include
fi

if [ $failed -ne 0 ]; then
  grep -vE '^[0-9]+ warnings? generated|^Suppressed|^Use -header-filter' "$log" || true
  echo "clang-tidy has findings; see above." >&2
  exit 1
fi
