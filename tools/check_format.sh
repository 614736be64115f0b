#!/usr/bin/env bash
# Fails, naming the places, if clang-format 14 would change a source. With --fix it formats them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mode=(--dry-run --Werror)
[ "${1:-}" != --fix ] || mode=(-i)
git ls-files --cached --others --exclude-standard '*.h' '*.cpp' | grep -vE '^(hand/equity_rows\.cpp$|third_party/)' |
  xargs clang-format-14 "${mode[@]}"
