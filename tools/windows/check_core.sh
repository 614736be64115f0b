#!/usr/bin/env bash
# Builds everything that needs no toolkit for Windows and runs the tests that both systems share, and those of its own
# rules, under Wine.
#
#   QUILLON_KILLS=200 tools/windows/check_core.sh    kills more processes while they save than usual
#
# What Wine 8 alone does: it leaves a file its letters where only their case is to change, and a connection that breaks
# reads as one that was closed once something has waited for it with select().
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../.."

tools/install_packages.sh windows
[ -f build/windows-tests/build.ninja ] || cmake --preset windows-tests
cmake --build --preset windows-tests
# Wine makes its folders at its first start, which tests at the same time would all wait for.
tools/windows/run.sh wineboot --init
ctest --preset windows-tests -j "$(nproc)"
