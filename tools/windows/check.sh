#!/usr/bin/env bash
# Tests Quillon for Windows, under Wine. Each script names what Wine alone gets wrong, with the reason.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")"

echo "== Everything without a toolkit"
QUILLON_KILLS=${QUILLON_KILLS:-200} ./check_core.sh
echo "== The companion"
./check_companion.sh
echo "== The window"
./check_window.sh
