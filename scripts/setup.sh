#!/bin/sh
# Installs the Debian packages of packages.txt, or of the given list, that are missing; prints nothing when all are there.
set -eu
cd "$(dirname "$0")/.."
list=${1:-packages.txt}
missing=""
for package in $(grep -v '^#' "$list"); do
    status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0
if [ "$(id -u)" = 0 ]; then as_root=""; else as_root=sudo; fi
echo "Installing:$missing"
$as_root apt-get update -q
# shellcheck disable=SC2086
DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -q --no-install-recommends $missing
