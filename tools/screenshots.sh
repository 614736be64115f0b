#!/usr/bin/env bash
# Remakes the pictures of every screen: those of the documents, docs/screens at 100%, and more for the tests,
# tests/screens at 200%. Look at the differences before you commit them.
#
#   tools/screenshots.sh           with the program of the preset dev
#   tools/screenshots.sh FOLDER    with that of another build folder
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=${1:-build/dev}
tools/install_packages.sh screens
if [ ! -f "$build/build.ninja" ]; then
  cmake --preset dev -B "$build"
fi
cmake --build "$build" --target window_journeys_test
QUILLON_WRITE_SCREENS=1 "$build/bin/window_journeys_test" --gtest_filter='*ScreensJourney*'
optipng -quiet -o2 -strip all docs/screens/*.png tests/screens/*.png
du -ch docs/screens/*.png tests/screens/*.png
