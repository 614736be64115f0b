#!/usr/bin/env bash
# Asks the companions for Windows, under Wine, and for this system the same questions and compares the answers.
#
#   tools/windows/check_companion.sh                      builds both (presets windows and release) and compares them
#   tools/windows/check_companion.sh LINUX WINDOWS.exe    compares these
#   QUILLON_QUESTIONS=50 tools/windows/check_companion.sh   fewer questions than 500
#
# Colours are not compared: the console of Wine 8 treats their sequences as characters.
#
# The folders have spaces, umlauts and Chinese characters in their names. Some are write-protected, which does not stop
# root, so root runs everything as the user nobody.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
programs=()
[ $# -eq 0 ] || programs=("$(readlink -f "$1")" "$(readlink -f "$2")")
cd "$here/../.."

if [ $# -eq 0 ]; then
  tools/install_packages.sh windows
  for preset in release windows; do
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
    cmake --build --preset "$preset" --target quillon-cli
  done
  programs=(build/release/bin/quillon-cli build/windows/bin/quillon-cli.exe)
fi

scratch=$(mktemp -d)
as=()
trap '"${as[@]}" env WINEPREFIX="$scratch/wine" wineserver -k 2>/dev/null || true; rm -rf "$scratch"' EXIT
cp "${programs[0]}" "$scratch/quillon-cli"
cp "${programs[1]}" "$scratch/quillon-cli.exe"
cp -r examples/Ranges "$scratch/Ranges"
cp "$here/run.sh" "$here/check_companion.py" "$scratch"

if [ "$(id -u)" -eq 0 ]; then
  chown -R nobody "$scratch"
  as=(setpriv --reuid nobody --clear-groups)
fi
cd "$scratch"
as+=(env HOME="$scratch" TMPDIR="$scratch" WINEPREFIX="$scratch/wine")
"${as[@]}" ./run.sh wineboot --init 2>/dev/null
"${as[@]}" python3 check_companion.py "${QUILLON_QUESTIONS:-500}"
