# Runs the shell's blocks of a page of the manual as they stand there. Sourced with the folder of the built programs as $1.
set -eu
bin=$(realpath "$1")
manual=$(realpath "$(dirname "$(realpath "$0")")/../../docs/manual")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
PATH=$bin:$PATH
fail() {
    echo "FAILED: $*" >&2
    cat log >&2 || true
    exit 1
}
# blocks PAGE: its blocks, up to the first heading of the third level
blocks() { awk '/^### /{exit} /^```sh$/{on=1; next} /^```/{on=0} on' "$manual/$1" >blocks.sh; }
run_blocks() { bash -eu blocks.sh >log 2>&1 || fail "a block of the manual"; }
# the kinds and sizes of pictures, a line each
shown() { identify -format '%m %wx%h\n' "$@"; }
