#!/bin/sh
# Installs the package into a fresh Debian in a scratch folder, lets an ordinary user edit a picture there while /usr can't be
# written to, removes the package, and looks for what it leaves behind. Needs root or sudo, and about 1.5 GB below $TMPDIR.
#
# The mounts are in a namespace of their own: they and every process inside end with it, however this script ends.
set -eu
cd "$(dirname "$0")/.."
package=$(ls "$1"/dist/velara-studio_*.deb)
lintian --fail-on error,warning --suppress-tags initial-upload-closes-no-bugs "$package" || exit 1
if [ "$(id -u)" = 0 ]; then as_root=""; else as_root=sudo; fi
sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian')
[ -n "$sources" ] || { echo "apt knows no archive of Debian: apt-get update" >&2; exit 1; }
suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
needs=$(dpkg-deb -f "$package" Depends | sed 's/ *([^)]*)//g; s/ *|[^,]*//g; s/ //g')

scratch=$(mktemp -d "${TMPDIR:-/var/tmp}/velara-package.XXXXXX")
chmod 755 "$scratch" # apt downloads as a user of its own

trap 'exit 130' INT TERM HUP
root=$scratch/root
echo "A fresh Debian ..."
echo "$sources" | $as_root mmdebstrap --quiet --variant=minbase \
    --include="$needs,xvfb,openbox,xdotool,desktop-file-utils,shared-mime-info,hicolor-icon-theme" \
    --customize-hook='chroot "$1" useradd --create-home person' \
    --customize-hook="copy-in '$package' packaging/in_package.sh /root" "$suite" "$root" -
$as_root mv "$root/root/in_package.sh" "$root/usr/local/bin/in_package"
# All files but those that dpkg and its triggers keep for themselves
everything() {
    $as_root find "$root" -xdev \( -path "$root/var/lib/dpkg" -o -path "$root/var/log" -o -path "$root/var/cache" -o -path "$root/home" \
        -o -path "$root/tmp" -o -path "$root/usr/share/mime" -o -path "$root/dev" -o -path "$root/root" \) -prune -o -print |
        grep -Ev '/(mimeinfo\.cache|icon-theme\.cache)$' | sort
}
everything >"$scratch/before"
$as_root chroot "$root" sh -c 'dpkg -i /root/velara-studio_*.deb' >"$scratch/log" || { cat "$scratch/log" >&2; exit 1; }
echo "An ordinary user ..."
# shellcheck disable=SC2016
$as_root unshare --mount --pid --fork --kill-child sh -euc '
    mount -t proc proc "$1/proc"
    mount --bind /dev "$1/dev"
    mount -t tmpfs -o mode=1777 tmpfs "$1/dev/shm"
    mount -t tmpfs -o mode=1777 tmpfs "$1/tmp"
    mount --bind "$1/usr" "$1/usr"
    mount -o remount,ro,bind "$1/usr"
    exec env -i HOME=/home/person USER=person PATH=/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin LANG=C.UTF-8 \
        chroot --userspec=person:person "$1" in_package
' sh "$root"
$as_root chroot "$root" dpkg --purge velara-studio >"$scratch/log" || { cat "$scratch/log" >&2; exit 1; }
everything >"$scratch/after"
diff "$scratch/before" "$scratch/after" || { echo "the removed package has left these behind" >&2; exit 1; }
echo "installed, used by an ordinary user with /usr read-only, and removed without a trace"
