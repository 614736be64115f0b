#!/usr/bin/env bash
# Runs a program for Windows: tools/windows/run.sh PROGRAM.exe ARGUMENTS...
#
# Wine's folders are in build/wine, apart from the user's.
set -euo pipefail
export WINEPREFIX=${WINEPREFIX:-$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../../build/wine}
export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
exec wine "$@"
