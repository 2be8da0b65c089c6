#!/bin/bash
# The image of packaging/kubernetes/Containerfile, made and run without a container engine: its lines are followed one by one in a
# root by mmdebstrap, and the pods of job.yaml run in it by bubblewrap, without a net and with the pictures' volume alone to write
# to. What they make has to be what a plain run on this machine makes. Needs root or sudo, and about 1.5 GB below $TMPDIR.
#     scripts/test_container.sh BUILD    which has bin/velara-batch and the package in dist/
set -eu
build=$(realpath "$1")
cd "$(dirname "$0")/../packaging/kubernetes"
package=$(ls "$build"/dist/velara-studio_*.deb)
if [ "$(id -u)" = 0 ]; then as_root=""; else as_root=sudo; fi
missing=""
for tool in mmdebstrap:mmdebstrap bwrap:bubblewrap convert:imagemagick; do
    command -v "${tool%:*}" >/dev/null || missing="$missing ${tool#*:}"
done
# shellcheck disable=SC2086
[ -z "$missing" ] || $as_root apt-get install -y -q --no-install-recommends $missing
sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian')
[ -n "$sources" ] || { echo "apt knows no archive of Debian: apt-get update" >&2; exit 1; }

scratch=$(mktemp -d "${TMPDIR:-/var/tmp}/velara-container.XXXXXX")
chmod 755 "$scratch" # apt downloads as a user of its own
trap '$as_root rm -rf --one-file-system "$scratch"' EXIT
trap 'exit 130' INT TERM HUP
fail() {
    echo "FAILED: $*" >&2
    exit 1
}
root=$scratch/root
uid=0
entry=""
# shellcheck disable=SC2016
inside() { # A shell's command in the root. The mounts are in a namespace of their own, and end with it.
    $as_root unshare --mount --pid --fork --kill-child sh -euc '
        mount -t proc proc "$1/proc"
        mount --bind /dev "$1/dev"
        exec env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive chroot "$1" sh -c "$2"
    ' sh "$root" "$1" </dev/null >"$scratch/log" 2>&1 || { tail -n 20 "$scratch/log" >&2; fail "RUN $1"; }
}
from() {
    [ "$1" = debian:12-slim ] || fail "FROM $1: what is that in mmdebstrap's words?"
    echo "$sources" | $as_root mmdebstrap --quiet --variant=minbase \
        --customize-hook='cp -L /etc/resolv.conf /etc/hosts "$1/etc"' bookworm "$root" - </dev/stdin
}
follow() { # One line of the Containerfile.
    case $1 in
    FROM) from "$2" ;;
    COPY) # The build context is this folder with the package beside the file.
        [ "$2" = "velara-studio_*.deb /tmp/" ] || fail "COPY $2: what is that here?"
        $as_root cp "$package" "$root/tmp/"
        ;;
    RUN) inside "$2" ;;
    USER) uid=${2%:*} ;;
    ENTRYPOINT) entry=$(echo "$2" | tr -d '[]" ') ;;
    *) fail "$1 isn't known here" ;;
    esac
    echo "$1 $2"
}
while read -r -u 3 word rest; do follow "$word" "$rest"; done 3< <(grep -v '^#' Containerfile | sed -e ':a' -e '/\\$/{N;s/ *\\\n */ /;ba' -e '}')
[ "$uid" != 0 ] || fail "the pods would run as root"

$as_root mkdir -p "$root/pictures" # a container engine makes the places of mounts

# The volume, and what a plain run makes of it
cd "$scratch"
mkdir volume volume/holiday
for i in $(seq 24); do convert -size $((300 + 10 * i))x200 plasma:red-blue -quality 90 "volume/holiday/$i.jpg"; done
printf 'velara recipe 1\n50\nLIGHTSHARPEN\nTEXT("(c) 2026, anna",Nimbus Sans,12,bold,0x00ffffff,bottom-right,5,5)\n' >volume/small.recipe
"$build/bin/velara-batch" volume/holiday --recipe volume/small.recipe --into wanted --format jpg 2>plain.log || fail "the plain run: $(cat plain.log)"
mkdir volume/web
$as_root chown root volume/web # whom the sandbox shows as the image's user
pod() { # pod INDEX COMMAND...
    index=$1
    shift
    $as_root bwrap --unshare-all --unshare-user --uid "$uid" --gid "$uid" --cap-drop ALL --die-with-parent --new-session \
        --ro-bind "$root" / --bind "$scratch/volume" /pictures --tmpfs /tmp --proc /proc --dev /dev \
        --clearenv --setenv PATH /usr/local/bin:/usr/bin:/bin --setenv JOB_COMPLETION_INDEX "$index" "$@"
}
pod 0 "$entry" --help >help.log 2>&1 || fail "the entry point: $(cat help.log)"
job=$OLDPWD/job.yaml
command=$(sed -n '/>-$/,/resources:/p' "$job" | sed '1d;$d' | tr -s ' \n' ' ')
pods=$(sed -n 's/^ *completions: //p' "$job")
for index in $(seq 0 $((pods - 1))); do
    pod "$index" sh -c "$command" 2>>pods.log || fail "pod $index: $(cat pods.log)"
done
diff -r wanted volume/web || fail "the pods have made something else"
echo "The image, and the $pods pods of the job in it: $(find wanted -type f | wc -l) pictures, the same as in a plain run"
