#!/usr/bin/env bash
# Runs clang-tidy 14 with the rules of .clang-tidy over every source of the build tree build/dev, and fails on a finding.
#
#   tools/check_lint.sh            all sources
#   tools/check_lint.sh FILE ...   these
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

[ -f build/dev/compile_commands.json ] || cmake --preset dev >/dev/null
log=$(mktemp)
trap 'rm -f "$log"' EXIT

# The table is data, and takes longer to look at than all else together.
if [ $# -gt 0 ]; then
  sources=$(printf '%s\n' "$@")
else
  sources=$(git ls-files --cached --others --exclude-standard '*.cpp' | grep -v '^hand/equity_rows.cpp$')
fi

# The analyzer follows every path through the test macros, for half a minute a file; the sanitizers watch the tests.
tests_checks=--checks=-clang-analyzer-*
lint() { xargs --no-run-if-empty -P "$(nproc)" -n 2 clang-tidy-14 --quiet -p build/dev "$@" >>"$log" 2>&1; }

failed=0
{ grep -v '_test\.cpp$' <<<"$sources" || true; } | lint || failed=1
{ grep '_test\.cpp$' <<<"$sources" || true; } | lint "$tests_checks" || failed=1
if [ $failed -ne 0 ]; then
  grep -vE '^[0-9]+ warnings? generated|^Suppressed|^Use -header-filter' "$log" || true
  echo "clang-tidy has findings; they stand above." >&2
  exit 1
fi
