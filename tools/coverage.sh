#!/usr/bin/env bash
# Runs each folder's tests with counters in the code, and prints how many lines and branches they reach: first of the
# folders without a toolkit, then of the forms. Fails where a share falls short. Which lines and branches were missed
# stands in build/coverage/missed.txt.
#
#   tools/coverage.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

core=(support hand ranges analysis results study shell)
forms=(toolkit range_dialogs screens)

tools/install_packages.sh coverage
[ -f build/coverage/build.ninja ] || cmake --preset coverage >/dev/null
cmake --build --preset coverage --target $(printf '%s_test ' "${core[@]}" "${forms[@]}") | tail -n 1

rm -f build/coverage/*.profraw
objects=()
for folder in "${core[@]}" "${forms[@]}"; do
  LLVM_PROFILE_FILE="$PWD/build/coverage/$folder-%p.profraw" "build/coverage/bin/${folder}_test" --gtest_brief=1
  objects+=(${objects[0]:+-object} "build/coverage/bin/${folder}_test")
done
llvm-profdata-14 merge -o build/coverage/all.profdata build/coverage/*.profraw

# report TITLE LEAST_LINES LEAST_BRANCHES FOLDER ..., shares in percent
report() {
  echo "== $1"
  mapfile -t sources < <(printf '%s\n' "${@:4}" | sed 's|.*|&/*.cpp &/*.h|' | xargs git ls-files |
    grep -vE '_test\.cpp$|^hand/equity_rows|_fixtures?\.h$|/(recorded|recording)_|/sample_')
  local profile=("${objects[@]}" -instr-profile build/coverage/all.profdata)
  llvm-cov-14 show "${profile[@]}" -show-branches=count "${sources[@]/#/$PWD/}" >>build/coverage/missed.txt
  llvm-cov-14 report "${profile[@]}" "${sources[@]/#/$PWD/}" | awk -v lines="$2" -v branches="$3" '
    $1 == "TOTAL" {
      printf "lines %s, %d of %d missed; branches %s, %d of %d missed\n", $10, $9, $8, $13, $12, $11
      bad = $10 + 0 < lines || $13 + 0 < branches
    }
    END { exit bad }'
}
rm -f build/coverage/missed.txt
report "Without a toolkit" 98 95 support hand ranges analysis results study shell
report "The forms" 90 90 toolkit ranges/dialogs shell/screens
