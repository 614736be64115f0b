#!/usr/bin/env bash
# Prints how many lines and branches each library's tests reach: first for the libraries without a toolkit, then for
# those of the forms. Only a library's own sources count, not test helpers. Fails if a share is too low. The missed lines and
# branches are in build/coverage/missed.txt.
#
#   tools/coverage.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

core=(support hand ranges analysis results study shell)
forms=(toolkit range_dialogs study_window screens)

tools/install_packages.sh coverage
[ -f build/coverage/build.ninja ] || cmake --preset coverage >/dev/null
cmake --build --preset coverage --target $(printf '%s_test ' "${core[@]}" "${forms[@]}") | tail -n 1

rm -f build/coverage/*.profraw
objects=()
for library in "${core[@]}" "${forms[@]}"; do
  LLVM_PROFILE_FILE="$PWD/build/coverage/$library-%p.profraw" "build/coverage/bin/${library}_test" --gtest_brief=1
  objects+=(${objects[0]:+-object} "build/coverage/bin/${library}_test")
done
llvm-profdata-14 merge -o build/coverage/all.profdata build/coverage/*.profraw

# report TITLE LEAST_LINES LEAST_BRANCHES LIBRARY ..., shares in percent
report() {
  echo "== $1"
  mapfile -t sources < <(printf 'build/coverage/product/%s.txt\n' "${@:4}" | xargs cat)
  local profile=("${objects[@]}" -instr-profile build/coverage/all.profdata)
  llvm-cov-14 show "${profile[@]}" -show-branches=count "${sources[@]}" >>build/coverage/missed.txt
  llvm-cov-14 report "${profile[@]}" "${sources[@]}" | awk -v lines="$2" -v branches="$3" '
    $1 == "TOTAL" {
      printf "lines %s, %d of %d missed; branches %s, %d of %d missed\n", $10, $9, $8, $13, $12, $11
      bad = $10 + 0 < lines || $13 + 0 < branches
    }
    END { exit bad }'
}
rm -f build/coverage/missed.txt
report "Without a toolkit" 98 95 "${core[@]}"
report "The forms" 90 90 "${forms[@]}"
