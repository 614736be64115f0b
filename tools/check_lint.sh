#!/usr/bin/env bash
# Runs clang-tidy 14 with the rules of .clang-tidy and fails on a finding.
#
#   tools/check_lint.sh            everything: each library as one source, which reads its headers once, and each test
#   tools/check_lint.sh FILE ...   these sources, one by one
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Tests are held to fewer rules: those that find faults. The analyzer would follow every path through their macros, for
# half a minute a file, and the sanitizers watch them anyway.
tests_checks='--checks=-*,bugprone-*,performance-*,readability-identifier-naming,-bugprone-easily-swappable-parameters,-bugprone-exception-escape'

log=$(mktemp)
trap 'rm -f "$log"' EXIT
failed=0

# lint TREE SOURCES [OPTION ...]
lint() {
  xargs --no-run-if-empty -P "$(nproc)" -n 1 clang-tidy-14 --quiet -p "$1" "${@:3}" <<<"$2" >>"$log" 2>&1 || failed=1
}

if [ $# -gt 0 ]; then
  [ -f build/dev/compile_commands.json ] || cmake --preset dev >/dev/null
  lint build/dev "$(printf '%s\n' "$@" | grep -v '_test\.cpp$')"
  lint build/dev "$(printf '%s\n' "$@" | grep '_test\.cpp$')" "$tests_checks"
else
  cmake --preset lint >/dev/null
  # The equity rows are data, and take longer to look at than all else together.
  sources=$(grep -o '"file": "[^"]*"' build/lint/compile_commands.json | cut -d '"' -f 4 |
    grep -vE '_autogen/|verify_interface_header_sets/|/\.rcc/|/equity_rows\.cpp$' | sort -u)
  lint build/lint "$(grep -v '_test\.cpp$' <<<"$sources")" --checks=-bugprone-suspicious-include
  lint build/lint "$(grep '_test\.cpp$' <<<"$sources")" "$tests_checks"
fi

if [ $failed -ne 0 ]; then
  grep -vE '^[0-9]+ warnings? generated|^Suppressed|^Use -header-filter' "$log" || true
  echo "clang-tidy has findings; they stand above." >&2
  exit 1
fi
