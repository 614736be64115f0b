#!/usr/bin/env bash
# Builds what needs no toolkit for Windows and runs its tests under Wine.
#
#   tools/windows/check_core.sh          everything: the tests that both systems share, and those of its own rules
#   tools/windows/check_core.sh system   the companion, and the tests of what lies nearest to the system: less than three
#                                        minutes on two cores, as a part of .ci/run
#   QUILLON_KILLS=200 tools/windows/check_core.sh    kills more processes while they save than usual
#
# What Wine 8 alone does: it leaves a file its letters where only their case is to change, and a connection that breaks
# reads as one that was closed once something has waited for it with select().
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../.."

targets=() tests=()
case "${1:-}" in
  '') ;;
  system)
    export QUILLON_KILLS=${QUILLON_KILLS:-10}
    programs=(support_test shell_test saving_journey_test)
    targets=(--target quillon-cli "${programs[@]}")
    tests=(--tests-regex "^($(IFS='|' && echo "${programs[*]}"))$")
    ;;
  *)
    echo "Usage: $0 [system]" >&2
    exit 2
    ;;
esac

tools/install_packages.sh windows
[ -f build/windows-tests/build.ninja ] || cmake --preset windows-tests
cmake --build --preset windows-tests "${targets[@]}"
# Wine makes its folders at its first start, which tests at the same time would all wait for.
tools/windows/run.sh wineboot --init
# \\localhost\C$, as Windows has it.
shares=${WINEPREFIX:-build/wine}/dosdevices/unc/localhost
mkdir -p "$shares"
ln -sfn ../../../drive_c "$shares/C$"
ctest --preset windows-tests "${tests[@]}" -j $((2 * $(nproc))) # they wait more than they compute
