#!/usr/bin/env bash
# Builds the folders without a toolkit for Windows and runs their tests under Wine.
#
#   tools/windows/check_core.sh          everything: the tests shared by both systems, and those for Windows only
#   tools/windows/check_core.sh system   the companion, and the tests closest to the system: less than three
#                                        minutes on two cores, as a part of .ci/run
#   QUILLON_KILLS=200 tools/windows/check_core.sh    kills more processes while they save than usual
#
# Differences of Wine 8: it does not rename a file if only the case of letters changes, and a reset connection reads as a
# closed one after select() has waited for it.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../.."

targets=() tests=()
case "${1:-}" in
  '') ;;
  system)
    export QUILLON_KILLS=${QUILLON_KILLS:-10}
    programs=(support_test ranges_test shell_test saving_journey_test)
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
# Wine creates its folders at its first start, for which parallel tests would all wait.
tools/windows/run.sh wineboot --init
# \\localhost\C$, as Windows has it.
shares=${WINEPREFIX:-build/wine}/dosdevices/unc/localhost
mkdir -p "$shares"
ln -sfn ../../../drive_c "$shares/C$"
ctest --preset windows-tests "${tests[@]}" -j $((2 * $(nproc))) # they wait more than they compute
