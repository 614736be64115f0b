#!/usr/bin/env bash
# Measures the window on a virtual screen: bench/window_bench.cpp, and the time from the start of the real program to its
# visible window, over ten starts.
#
#   bench/window.sh [PRESET]    by default bench
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
bin=build/${1:-bench}/bin

scratch=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$scratch"' EXIT
mkfifo "$scratch/number"
Xvfb -displayfd 3 -screen 0 1400x900x24 -nolisten tcp 3>"$scratch/number" 2>/dev/null &
export DISPLAY=:$(head -n 1 "$scratch/number")
openbox 2>/dev/null &
export XDG_RUNTIME_DIR=$scratch QT_QPA_PLATFORM=xcb

"$bin/window_bench"

cp "$bin/quillon" "$scratch"
mkdir "$scratch/Ranges"
cp examples/Ranges/* "$scratch/Ranges"
for _ in $(seq 10); do
  start=$(date +%s%N)
  "$scratch/quillon" &
  program=$!
  until xdotool search --onlyvisible --pid "$program" >/dev/null 2>&1; do :; done
  echo $((($(date +%s%N) - start) / 1000000))
  kill "$program"
  wait "$program" 2>/dev/null || true
done | sort -n | awk '{ ms[NR] = $1 } END { print "Start to shown window: median " ms[int((NR + 1) / 2)] " ms, slowest " ms[NR] " ms" }'
