#!/usr/bin/env bash
# Prints the folder of Qt for Windows. If there is none yet, builds it first from Debian's own sources, in half an
# hour on two cores.
#
#   tools/windows/qt.sh
#
# The version is that of the installed Qt, whose tools the build uses. The folder is in ~/.cache/quillon or
# $XDG_CACHE_HOME/quillon, or in $QUILLON_CACHE. Its name depends on version, options, compiler and toolchain
# file; another combination is another build.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../.."

version=$(dpkg-query --show --showformat='${source:Version}' qt6-base-dev)
compiler=$(dpkg-query --show g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 mingw-w64-x86-64-dev)

# Without unused features. DirectWrite, which comes with Direct2D, lays out scaled texts; the newer Direct2D is only for
# another way to draw windows. Debian's sources lack the header for pen tablets. Precompiled headers would defeat a
# compiler cache.
options=(-DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/quillon-qt -DBUILD_SHARED_LIBS=ON
  -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DBUILD_WITH_PCH=OFF -DINPUT_opengl=no)
for feature in concurrent dbus network opengl printsupport sql testlib xml direct2d1_1 tabletevent \
  mimetype_database gif ico jpeg pdf textmarkdownreader textmarkdownwriter textodfwriter pkg_config; do
  options+=("-DFEATURE_$feature=OFF")
done
# The time that linker and strip write into each file, so that builds are reproducible.
export SOURCE_DATE_EPOCH=0
build_folder=qt # what Qt's binaries call the build folder, wherever that is

cache=${QUILLON_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/quillon}
hash=$({
  printf '%s\n' "$compiler" "${options[@]}" "$SOURCE_DATE_EPOCH" "$build_folder"
  grep -v '^#' cmake/windows.cmake
} | sha256sum | cut -c 1-12)
qt=$cache/qt-$version-$hash
mkdir -p "$cache"
exec {lock}>"$cache/lock"
flock "$lock" # one at a time
if [ -d "$qt" ]; then
  echo "$qt"
  exit 0
fi

making=$cache/making
log=$making/log
rm -rf "$making"
mkdir -p "$making"/apt/{lists,cache}

# quietly COMMAND ...: sends its output to the log, whose end a failure prints.
quietly() {
  if ! "$@" >>"$log" 2>&1; then
    tail -n 30 "$log" >&2
    echo "Failed: $* (full log: $log)" >&2
    exit 1
  fi
}

# Sources and lists have a separate folder; the system's configuration is untouched.
signed=signed-by=/usr/share/keyrings/debian-archive-keyring.gpg
cat >"$making/apt/sources.list" <<SOURCES
deb-src [$signed] http://deb.debian.org/debian bookworm main
deb-src [$signed] http://deb.debian.org/debian-security bookworm-security main
SOURCES
apt=(apt-get -o "Dir::Etc::SourceList=$making/apt/sources.list" -o Dir::Etc::SourceParts=/dev/null
  -o "Dir::State::Lists=$making/apt/lists" -o "Dir::Cache=$making/apt/cache")

echo "Building Qt $version for Windows in $qt" >&2
quietly "${apt[@]}" update
(cd "$making/apt" && quietly "${apt[@]}" --download-only source "qt6-base=$version")
quietly dpkg-source --no-check --extract "$making"/apt/qt6-base_*.dsc "$making/src"

quietly cmake -S "$making/src" -B "$making/build" -G Ninja "${options[@]}" \
  -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/windows.cmake" \
  -DCMAKE_C_FLAGS="-ffile-prefix-map=$making=$build_folder" \
  -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$making=$build_folder"
quietly cmake --build "$making/build"
quietly env DESTDIR="$making/made" cmake --install "$making/build" --strip

# The libraries compiled into Qt, with versions and licences.
made=$making/made/quillon-qt
echo "$version" >"$made/version"
cp "$making/src/debian/copyright" "$made/copyright"
mkdir "$made/attributions"
for attribution in "$making"/src/src/3rdparty/*/qt_attribution.json; do
  cp "$attribution" "$made/attributions/$(basename "$(dirname "$attribution")").json"
done

# Renamed only once complete.
mv "$made" "$qt"
rm -rf "$making"
echo "$qt"
