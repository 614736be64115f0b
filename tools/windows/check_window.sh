#!/usr/bin/env bash
# The journeys through the window, with the program for Windows: tools/windows/build.sh makes it, Wine runs it on virtual
# screens, and the simulated user is that of the journeys on this system.
#
#   tools/windows/check_window.sh [GTEST_FILTER]
#
# Screens at 100% and 200% are compared with this system's pictures; those that differ are kept in
# build/dev/failed_screens.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../.."

without=(
  # POSIX: signals, the clipboard of X, window classes, where a Debian package keeps a user's data, names that are not
  # UTF-8, a terminal to write to.
  EndJourney.\* \*WindowIsKnownToDesktops\* \*Installed\* StartWithoutADisplay.\* \*FolderWhoseNameIsNotUtf8\*
  \*ArgumentsAreRefused\*
  # Wine: a window regains the focus only when it is raised above the other program's.
  \*AnotherProgramsWindow\*
)

tools/windows/build.sh
rm -rf build/windows-unpacked
unzip -q dist/Quillon-*-windows-x86_64.zip -d build/windows-unpacked
QUILLON_WINDOWS_FOLDER=$(echo "$PWD"/build/windows-unpacked/*)
export QUILLON_WINDOWS_FOLDER

[ -f build/dev/build.ninja ] || cmake --preset dev
cmake --build --preset dev --target window_journeys_test
export WINEPREFIX=${WINEPREFIX:-$PWD/build/wine} WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
wineboot --init
# Pages and pictures open in the desktop's browser: Wine's own would have to be downloaded.
for ending in .html .bmp; do
  wine reg add "HKLM\\Software\\Classes\\$ending" /ve /d htmlfile /f
done
wineserver --wait
build/dev/bin/window_journeys_test --gtest_brief=1 --gtest_filter="${1:-*}-$(IFS=: && echo "${without[*]}")"
