#!/usr/bin/env bash
# Prints the time for all files in a package: SOURCE_DATE_EPOCH if set, otherwise the day of the release.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
day=$(sed -n 's/^## \[.*\] - \([0-9-]*\)$/\1/p' CHANGELOG.md | head -n 1)
echo "${SOURCE_DATE_EPOCH:-$(date -u -d "$day" +%s)}"
