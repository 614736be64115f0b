#!/usr/bin/env bash
# Opens web pages and pictures of the companion in a headless browser: they may fetch nothing and log no errors, keyboard
# and sorting must work, and all must look as in tests/golden and in the guide. Pictures that differ are kept in
# FOLDER/failed_pages.
#
#   tools/check_pages.sh           with the companion of the preset dev
#   tools/check_pages.sh FOLDER    with that of another build folder
#   QUILLON_WRITE_GOLDEN=1 tools/check_pages.sh    rewrites the pictures; look at them before you commit
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=${1:-build/dev}
tools/install_packages.sh pages
if [ ! -f "$build/build.ninja" ]; then
  cmake --preset dev -B "$build"
fi
cmake --build "$build" --target quillon-cli

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
complain() {
  echo "$1" >&2
  failed=1
}

# browse NAME WIDTH HEIGHT: opens $work/NAME, a page or a picture, and writes NAME.png, NAME.console (its log) and
# NAME.requests (its other requests) next to it. No host name is resolved, since the browser makes requests of its own.
# A page's requests have the annotation of the page loader, a constant of Chromium.
browse() {
  local file=$work/$1
  local sandbox=()
  [ "$(id -u)" -ne 0 ] || sandbox=(--no-sandbox)
  timeout 120 chromium --headless=new "${sandbox[@]}" --disable-gpu --user-data-dir="$work/profile" --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync --disable-extensions \
    --host-resolver-rules="MAP * ~NOTFOUND" --log-net-log="$file.net" --enable-logging=stderr \
    --hide-scrollbars --force-device-scale-factor=1 --window-size="$2,$3" --screenshot="$file.png" \
    "file://$file" >"$file.log" 2>&1
  grep -o 'CONSOLE.*' "$file.log" >"$file.console" || true
  grep -o '"traffic_annotation":101845102,"url":"[^"]*"' "$file.net" >"$file.requests" || true
}

# expect_look NAME GOLDEN: compares NAME.png with a golden picture like the window's: by the share of noticeably
# different pixels in any tile of 32 by 32. Over a whole picture a missing word would hardly count.
expect_look() {
  local seen=$work/$1.png golden=$2
  if [ -n "${QUILLON_WRITE_GOLDEN:-}" ]; then
    convert "$seen" -strip +dither -colors 255 "PNG8:$golden"
    return
  fi
  local size worst
  size=$(identify -format '%wx%h' "$seen")
  if [ "$size" != "$(identify -format '%wx%h' "$golden")" ]; then
    complain "$1 is $size, and not as large as $golden"
    return
  fi
  worst=$(convert "$seen" "$golden" -alpha off -compose difference -composite -separate -evaluate-sequence max \
    -threshold 25% -scale "$((${size%x*} / 32))x$((${size#*x} / 32))!" -format '%[fx:maxima<=0.05]' info:)
  if [ "$worst" != 1 ]; then
    mkdir -p "$build/failed_pages"
    cp "$seen" "$build/failed_pages/"
    complain "$1 looks different from $golden: $build/failed_pages/$1.png"
  fi
}

# Checks that the check itself can fail.
cat >"$work/bad.html" <<'END'
<!DOCTYPE html><link rel="icon" href="data:,"><script>console.error("trouble")</script>
<img src="http://quillon.invalid/x.png">
END
browse bad.html 200 200
grep -q trouble "$work/bad.html.console" || complain "An error on the console goes unnoticed"
grep -q quillon.invalid "$work/bad.html.requests" || complain "A request goes unnoticed"

# check_page NAME GOLDEN WIDTH HEIGHT ARGUMENT...: checks the companion's output for the arguments.
check_page() {
  local name=$1 golden=$2 width=$3 height=$4
  shift 4
  "$build/bin/quillon-cli" "$@" --format "${name##*.}" >"$work/$name"
  browse "$name" "$width" "$height"
  [ ! -s "$work/$name.console" ] || complain "$name: $(cat "$work/$name.console")"
  [ ! -s "$work/$name.requests" ] || complain "$name asks for $(cat "$work/$name.requests")"
  expect_look "$name" "$golden"
  [ "${name##*.}" = html ] || return 0
  { cat "$work/$name" && echo "<script>" && cat tests/pages/use_page.js && echo "</script>"; } >"$work/used_$name"
  for _ in 1 2 3 4 5; do
    browse "used_$name" "$width" "$height"
    grep -q 'no focus' "$work/used_$name.console" || break
  done
  if [ "$(wc -l <"$work/used_$name.console")" -ne 1 ] || ! grep -q 'checks of the page' "$work/used_$name.console"; then
    complain "$name in use: $(cat "$work/used_$name.console")"
  fi
}

golden=tests/golden
ours=(--folder examples --range "Button Shove")
shove=("${ours[@]}" --pot 150 --call 50 --calling-range "Big Blind Call")
check_page call.html $golden/call_page.png 1180 700 call --pot 110 --call 90 "${ours[@]}"
check_page equity.html $golden/equity_page.png 420 1000 equity "${ours[@]}"
check_page raise.svg $golden/raise_grid.png 760 580 raise --shove 400 "${shove[@]}"
check_page limits.html $golden/limits_page.png 1180 900 limits raise "${shove[@]}"
check_page limits.svg $golden/limits_grid.png 760 610 limits raise "${shove[@]}"
check_page chart.html $golden/chart_page.png 1180 1500 chart
check_page chart.svg $golden/chart_grids.png 1510 660 chart

# The guide's pictures.
guide=(raise --pot 1.5 --call 0.5 --hands any --calling-hands "top 30%")
check_page raise.html docs/screens/page.png 1180 1000 "${guide[@]}" --shove 9
check_page sweep.svg $golden/sweep.png 820 520 sweep "${guide[@]}" --shove 1:20:0.5 --hand AA A5s 22 K9o T8s 72o
if [ -n "${QUILLON_WRITE_GOLDEN:-}" ]; then
  cp "$work/sweep.svg" docs/screens/sweep.svg
fi
cmp "$work/sweep.svg" docs/screens/sweep.svg || complain "The picture of the guide is another one"
exit "$failed"
