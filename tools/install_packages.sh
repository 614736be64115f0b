#!/usr/bin/env bash
# Installs missing Debian packages, and prints nothing if there are none.
#
#   tools/install_packages.sh run      what ./run needs: to build the programs and to run them
#   tools/install_packages.sh check    what ./check needs: that, and the packages for tests and benchmarks
#   tools/install_packages.sh lint     what .ci/run needs on top of ./check
#   tools/install_packages.sh windows  what the presets for Windows and tools/windows/build.sh need on top of ./check
#   tools/install_packages.sh newer    what the nightly check of a newer compiler needs on top of ./check
#   tools/install_packages.sh fuzz     what the presets asan and fuzz need on top of ./check
#   tools/install_packages.sh coverage what tools/coverage.sh needs on top of ./check
#   tools/install_packages.sh pages    what tools/check_pages.sh needs on top of ./check
#   tools/install_packages.sh package  what ./package needs: what ./run needs, and packaging tools
#   tools/install_packages.sh bare     what tools/try_packages.sh needs on top of ./check and ./package
#   tools/install_packages.sh screens  what tools/screenshots.sh needs on top of ./check
#   tools/install_packages.sh reliability  what tools/reliability.sh needs: all of that except for screens, and more
#
# This is the only place that names packages.
set -euo pipefail

run=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev)
# The user guide as a page for the browser.
run+=(cmark-gfm)
# The window, the fonts compiled into it, and the opener of its links and pictures.
run+=(qt6-base-dev qt6-svg-dev libxcb1-dev pkg-config xdg-utils)
run+=(fonts-liberation2 fonts-dejavu-core fonts-dejavu-extra)
check=("${run[@]}" libgtest-dev libgmock-dev libbenchmark-dev)
# Distributes a batch over workers.
check+=(parallel)
# A virtual screen for tests.
check+=(xvfb xauth openbox xdotool xclip x11-utils dbus at-spi2-core imagemagick)
# Shells for testing completions, and a reader of manual pages.
check+=(bash zsh fish groff-base)
# Validators of the menu entry and of the description for software centres.
check+=(desktop-file-utils appstream)
lint=(git clang-format-14 clang-tidy-14)
fuzz=(clang-14 libclang-rt-14-dev)
# The compiler for Windows, and Wine to run its programs.
windows=(g++-mingw-w64-x86-64-posix googletest python3 wine wine64)
# The zip: Qt from its sources, the icon, the archive.
windows+=(dpkg-dev librsvg2-bin icoutils zip unzip)
newer=(clang-16)
coverage=("${fuzz[@]}" llvm-14)
pages=(chromium)
screens=(optipng)
reliability=(valgrind python3)
# Debian packages and the portable archive: tools that compute dependencies, check packages, render the icon, and set
# where libraries are looked for.
package=(dpkg-dev lintian librsvg2-bin qt6-wayland patchelf xz-utils binutils)
# A bare Debian for the packages to be tried in.
bare=(debootstrap)

case "${1:-}" in
  run) wanted=("${run[@]}") ;;
  check) wanted=("${check[@]}") ;;
  lint) wanted=("${check[@]}" "${lint[@]}") ;;
  fuzz) wanted=("${check[@]}" "${fuzz[@]}") ;;
  windows) wanted=("${check[@]}" "${windows[@]}") ;;
  newer) wanted=("${check[@]}" "${newer[@]}") ;;
  coverage) wanted=("${check[@]}" "${coverage[@]}") ;;
  reliability) wanted=("${check[@]}" "${lint[@]}" "${coverage[@]}" "${reliability[@]}") ;;
  bare) wanted=("${check[@]}" "${package[@]}" "${bare[@]}") ;;
  package) wanted=("${run[@]}" "${package[@]}") ;;
  pages) wanted=("${check[@]}" "${pages[@]}") ;;
  screens) wanted=("${check[@]}" "${screens[@]}") ;;
  *)
    echo "Usage: $0 run|check|lint|newer|windows|fuzz|coverage|pages|screens|package|bare|reliability" >&2
    exit 2
    ;;
esac

if ! command -v apt-get >/dev/null; then
  echo "This is not a Debian system, so nothing is installed. Required packages: ${wanted[*]}" >&2
  exit 0
fi

missing=()
for package in "${wanted[@]}"; do
  status=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Packages are missing, and only root can install them: apt-get install ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi

echo "Installing missing packages: ${missing[*]}" >&2
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { "${as_root[@]}" apt-get update -qq &&
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"; } \
  >"$log" 2>&1; then
  cat "$log" >&2
  echo "The packages could not be installed; the reason is above." >&2
  exit 1
fi
