#!/bin/sh
# Completes dist in the build folder: the list of what the programs are linked with, and the checksums of all.
set -eu
build=$1
sbom=$2
version=$("$build/bin/velara-open" --version | sed 's/.* //')
cp "$sbom" "$build/dist/velara-studio-$version.spdx.json"
cd "$build/dist"
rm -f -- *.sha256
sha256sum "velara-studio-$version"* "velara-studio_${version}"*.deb >"velara-studio-$version.sha256"
sha256sum --quiet -c "velara-studio-$version.sha256"
ls -l
