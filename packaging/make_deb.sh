#!/bin/sh
# Makes dist/velara-studio_VERSION_ARCHITECTURE.deb in the build folder.
set -eu
cd "$(dirname "$0")/.."
build=$1
scripts/setup.sh packaging/packages.txt
cmake -B "$build" -DCMAKE_INSTALL_PREFIX=/usr >/dev/null
cmake --build "$build" --target packaging
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null || date +%s)
export SOURCE_DATE_EPOCH
umask 022
(cd "$build" && cpack -G DEB >cpack.log) || { cat "$build/cpack.log" >&2; exit 1; }
rm -rf "$build/dist/_CPack_Packages"
ls "$build"/dist/*.deb
