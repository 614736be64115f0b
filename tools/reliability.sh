#!/usr/bin/env bash
# Stress-tests the program and measures the results: the rows of docs/reliability.md, in order.
#
#   tools/reliability.sh                 all of it, which takes some hours
#   tools/reliability.sh ROW ...         fuzz, files, kills, together, input, batch, web, soak, valgrind, mutation,
#                                        sanitizers, coverage
#
# Each fuzz target runs for FUZZ_SECONDS, by default 600, or until it has made FUZZ_RUNS runs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

tools/install_packages.sh reliability

# build PRESET TARGET ...
build() {
  [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >/dev/null
  cmake --build --preset "$1" --target "${@:2}" | tail -n 1
}

# fuzz_target NAME: mostly short inputs, which allow more runs, and long ones for a sixth of the time.
fuzz_target() {
  local log="build/fuzz/$1.log" runs="${FUZZ_RUNS:--1}" seconds="${FUZZ_SECONDS:-600}"
  mkdir -p "build/fuzz/corpus-$1"
  : >"$log"
  for part in 5:256 1:4096; do
    ASAN_OPTIONS=malloc_context_size=2:quarantine_size_mb=8 "build/fuzz/bin/$1" -timeout=10 -print_final_stats=1 \
      -max_len="${part#*:}" -max_total_time=$((seconds * ${part%:*} / 6 + 1)) \
      -runs=$((runs < 0 ? runs : runs * ${part%:*} / 6 + 1)) -artifact_prefix="build/fuzz/$1-" \
      "build/fuzz/corpus-$1" "fuzz/corpus/$1" >>"$log" 2>&1 || {
      tail -n 40 "$log"
      return 255
    }
  done
  echo "$1: $(awk '/^stat::number_of_executed_units/ { runs += $2 } END { print runs }' "$log") runs"
}

fuzz() {
  mapfile -t targets < <(sed -n 's/^quillon_fuzz(\([a-z0-9_]*\) .*/\1/p' fuzz/CMakeLists.txt)
  build fuzz "${targets[@]}"
  export -f fuzz_target
  printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -I '{}' bash -c 'fuzz_target {}'
}

files() {
  build dev support_test ranges_test shell_test
  build/dev/bin/support_test --gtest_brief=1 --gtest_filter='*AFile*:*Reading*:*Writing*:*Stale*:*Folder*'
  build/dev/bin/ranges_test --gtest_brief=1 --gtest_filter='*SaveRangeText*:*RenameRange*:*DeleteRange*'
  build/dev/bin/shell_test --gtest_brief=1 --gtest_filter='*FileFaults*:SettingsFile*'
}

kills() {
  build dev saving_journey_test
  QUILLON_KILLS=1000 build/dev/bin/saving_journey_test --gtest_brief=1 --gtest_filter='*Killed*'
}

together() {
  build dev saving_journey_test
  build/dev/bin/saving_journey_test --gtest_brief=1 --gtest_filter='*AtOnce*' --gtest_repeat=20
}

input() {
  build dev bad_input_test
  QUILLON_BAD_INPUTS=10000 build/dev/bin/bad_input_test --gtest_brief=1
}

batch() {
  build dev companion_journey_test
  QUILLON_BATCH_LINES=200000 build/dev/bin/companion_journey_test --gtest_brief=1 --gtest_filter='BatchJourney*'
}

web() {
  build dev web_journey_test screens_test
  build/dev/bin/web_journey_test --gtest_brief=1
  build/dev/bin/screens_test --gtest_brief=1 --gtest_filter='*Feedback*:*Upgrade*'
}

soak() {
  build dev soak_test
  QUILLON_SOAK=167 build/dev/bin/soak_test --gtest_brief=1
}

valgrind_soak() {
  build dev soak_test
  valgrind --quiet --leak-check=full --show-leak-kinds=definite --errors-for-leak-kinds=definite --error-exitcode=1 \
    --suppressions=tests/valgrind.supp build/dev/bin/soak_test --gtest_brief=1
}

for row in "${@:-fuzz files kills together input batch web soak valgrind mutation sanitizers coverage}"; do
  for part in $row; do
    echo "== $part"
    case "$part" in
      fuzz | files | kills | together | input | batch | web | soak) "$part" ;;
      valgrind) valgrind_soak ;;
      mutation) tools/mutate.py ;;
      sanitizers) ./check asan ;;
      coverage) tools/coverage.sh ;;
      *)
        sed -n '2,8s/^# \{0,1\}//p' "${BASH_SOURCE[0]}" >&2
        exit 2
        ;;
    esac
  done
done
