#!/usr/bin/env bash
# Runs each folder's tests with counters in the code, and prints how many lines and branches of the folder they reach:
# first of the folders without a toolkit, then of the forms. Fails where a share falls short.
#
#   tools/coverage.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

core=(support hand ranges analysis results shell)
forms=(toolkit range_dialogs screens)

[ -f build/coverage/build.ninja ] || cmake --preset coverage >/dev/null
cmake --build --preset coverage --target $(printf '%s_test ' "${core[@]}" "${forms[@]}") | tail -n 1
find build/coverage -name '*.gcda' -delete
for folder in "${core[@]}" "${forms[@]}"; do
  "build/coverage/bin/${folder}_test" --gtest_brief=1
done

# report TITLE LEAST_LINES LEAST_BRANCHES FILTER [EXCLUDE ...], shares in percent
report() {
  echo "== $1"
  gcovr --root . --filter "$4" "${@:5}" --exclude '.*_test\.cpp' --exclude 'build/' \
    --exclude-unreachable-branches --exclude-throw-branches \
    --fail-under-line "$2" --fail-under-branch "$3" --print-summary build/coverage
}
report "Without a toolkit" 98 85 '(support|hand|ranges|analysis|results|shell)/' \
  --exclude 'ranges/dialogs/' --exclude 'shell/screens/' --exclude 'analysis/plain_reference\.cpp'
report "The forms" 90 80 '(toolkit|ranges/dialogs|shell/screens)/'
