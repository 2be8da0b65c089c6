#!/bin/sh
# Makes dist/velara-studio-VERSION-MACHINE.tar.xz in the build folder: one folder with programs, helpers and documents, which
# runs wherever it is unpacked, and keeps its user data there (that is what the file "portable" says).
set -eu
cd "$(dirname "$0")/.."
build=$1
scripts/setup.sh packaging/packages.txt
version=$("$build/bin/velara-open" --version | sed 's/.* //')
name=velara-studio-$version-$(uname -m)
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
folder=$stage/$name
mkdir -p "$folder" "$build/dist"
for program in velara-studio velara-batch velara-batch-all velara-open velara-decode velara-decode-all velara-encode velara-scan; do
    install -m 755 "$build/bin/$program" "$folder/$program"
    strip "$folder/$program"
done
mkdir "$folder/manual" "$folder/screenshots"
install -m 644 docs/manual/*.md "$folder/manual"
for picture in $(grep -oh 'screenshots/[A-Za-z0-9_]*\.png' docs/manual/*.md | sort -u); do install -m 644 "docs/$picture" "$folder/screenshots"; done
install -m 644 LICENSE CHANGELOG.md resources/velara.svg "$folder"
# Whatever the programs are linked with, by the names of its packages; icons and fonts beside
mkdir "$stage/debian"
printf 'Source: velara-studio\n\nPackage: velara-studio\nArchitecture: any\n' >"$stage/debian/control"
needs=$( (cd "$stage" && dpkg-shlibdeps -O "$name"/velara-* 2>/dev/null) | sed -n 's/^shlibs:Depends=//p' | sed 's/ ([^)]*)//g; s/,//g')
[ -n "$needs" ] || { echo "dpkg-shlibdeps finds no libraries" >&2; exit 1; }
echo "sudo apt install breeze-icon-theme fonts-urw-base35 libcups2 qt6-translations-l10n $needs" | fold -s -w 118 | sed 's/^/  /; $!s/$/\\/' >"$stage/needs"
sed -e "/@PACKAGES@/{r $stage/needs" -e 'd}' packaging/README.portable >"$folder/README"
install -m 644 /dev/null "$folder/portable"
mkdir "$folder/man" "$folder/completions"
install -m 644 "$build"/packaging/velara-*.1 "$folder/man"
install -m 644 "$build"/packaging/*.bash "$build"/packaging/*.fish "$build"/packaging/_velara-* "$folder/completions"
when=$(git log -1 --format=%ct 2>/dev/null || date +%s)
tar -C "$stage" --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$when" -cJf "$build/dist/$name.tar.xz" "$name"
ls "$build/dist/$name.tar.xz"
