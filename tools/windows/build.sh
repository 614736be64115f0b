#!/usr/bin/env bash
# Makes the zip for Windows, dist/Quillon-VERSION-windows-x86_64.zip. Builds are reproducible, byte for byte. The first
# one builds Qt (tools/windows/qt.sh).
#
#   tools/windows/build.sh
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../.."

tools/install_packages.sh windows
SOURCE_DATE_EPOCH=$(tools/release_time.sh)
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC # a zip's times are local

qt=$(tools/windows/qt.sh)
cmake --fresh --preset windows-package -DQUILLON_WINDOWS_QT="$qt"
cmake --build --preset windows-package --target quillon quillon-cli

version=$(sed -n 's/^project(Quillon VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
folder=Quillon-$version
zip=$PWD/dist/$folder-windows-x86_64.zip
staging=build/windows-package/staging
rm -rf "$staging" dist/Quillon-*-windows-x86_64.zip # of other versions
mkdir -p dist
cmake --install build/windows-package --component windows --prefix "$PWD/$staging/$folder"

cd "$staging"
chmod -R u=rwX,go=rX "$folder"
find "$folder" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
find "$folder" -type f | sort | zip -q9XD -@ "$zip"
ls -l "$zip"
