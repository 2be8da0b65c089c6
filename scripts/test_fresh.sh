#!/bin/sh
# make test as on a Debian that has nothing but make: a minimal root in a scratch folder, a clone of HEAD, and
# "make test" (or the given command) in it. Needs root or sudo, mmdebstrap, about 5 GB below $TMPDIR (/var/tmp).
#
# The mounts are in a namespace of their own: they and every process inside end with it, however this script ends.
set -eu
cd "$(dirname "$0")/.."
if [ "$(id -u)" = 0 ]; then as_root=""; else as_root=sudo; fi
command -v mmdebstrap >/dev/null || $as_root apt-get install -y -q --no-install-recommends mmdebstrap

# The archives from which this machine installs Debian packages
sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian')
[ -n "$sources" ] || { echo "apt knows no archive of Debian: apt-get update" >&2; exit 1; }
suite=$(. /etc/os-release && echo "$VERSION_CODENAME")

scratch=$(mktemp -d "${TMPDIR:-/var/tmp}/velara-fresh.XXXXXX")
chmod 755 "$scratch" # apt downloads as a user of its own
trap '$as_root rm -rf --one-file-system "$scratch"' EXIT
trap 'exit 130' INT TERM HUP
root=$scratch/root
git clone -q --no-hardlinks . "$scratch/velara-studio"
# Services are not started inside: they would listen on this machine's ports.
echo "$sources" | $as_root mmdebstrap --variant=minbase --include=make,git,ca-certificates \
    --customize-hook="copy-in '$scratch/velara-studio' /root" \
    --customize-hook='chown -R 0:0 "$1/root"' \
    --customize-hook='printf "#!/bin/sh\nexit 101\n" >"$1/usr/sbin/policy-rc.d" && chmod 755 "$1/usr/sbin/policy-rc.d"' \
    --customize-hook='cp -L /etc/resolv.conf /etc/hosts "$1/etc"' \
    "$suite" "$root" -

[ $# -gt 0 ] || set -- make test
# shellcheck disable=SC2016
$as_root unshare --mount --pid --fork --kill-child sh -euc '
    root=$1
    shift
    mount -t proc proc "$root/proc"
    mount -t sysfs -o ro sysfs "$root/sys"
    mkdir -p "$root/dev/pts" "$root/dev/shm"
    mount -t devpts -o newinstance,ptmxmode=0666 devpts "$root/dev/pts"
    mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
    exec env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 ${JOBS:+JOBS="$JOBS"} \
        ${http_proxy:+http_proxy="$http_proxy"} \
        chroot "$root" sh -c "cd /root/velara-studio && exec \"\$@\"" sh "$@"
' sh "$root" "$@"
