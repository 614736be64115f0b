#!/usr/bin/env bash
# Runs every test with counters in the code and prints the line and branch coverage of the toolkit-free folders. Fails
# where fewer lines are reached than the least share, in percent (98 unless one is given).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

least=${1:-98}
[ -f build/coverage/build.ninja ] || cmake --preset coverage >/dev/null
cmake --build --preset coverage | tail -n 1
find build/coverage -name '*.gcda' -delete
ctest --preset coverage -j "$(nproc)" --output-on-failure | tail -n 3

gcovr --root . --filter '(support|hand|ranges|analysis|results|shell)/' \
  --exclude '.*_test\.cpp' --exclude 'ranges/dialogs/' --exclude 'shell/screens/' \
  --exclude-unreachable-branches --exclude-throw-branches \
  --fail-under-line "$least" --print-summary build/coverage
