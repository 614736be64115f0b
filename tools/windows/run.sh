#!/usr/bin/env bash
# Runs a program for Windows: tools/windows/run.sh PROGRAM.exe ARGUMENTS...
#
# Wine keeps its own folders in build/wine, so that nothing of the user's is touched.
set -euo pipefail
export WINEPREFIX=${WINEPREFIX:-$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../../build/wine}
export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
exec wine "$@"
