#!/usr/bin/env bash
# All that proves Quillon on Windows, under Wine. What Wine alone gets wrong is told apart by each script, with the
# reason.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")"

echo "== Everything without a toolkit"
QUILLON_KILLS=${QUILLON_KILLS:-200} ./check_core.sh
echo "== The companion"
./check_companion.sh
echo "== The window"
./check_window.sh
