#!/bin/sh
# Installed, the programs find each other, keep user data in the folders of the desktop alone, and take over what an earlier
# version has left in one folder.
. "$(dirname "$0")/lib.sh"
bin=$(cd "$bin" && pwd)
convert -size 60x40 gradient:red-blue -depth 8 -type truecolor "$scratch/in.png"
start # portable: its folder becomes the one of an earlier version
quit
old=$XDG_DATA_HOME/velara-studio
mkdir -p "$old"
mv "$folder/Vlaera.dat" "$folder/Stamps" "$old"
echo mine >"$old/Stamps/mine.bmp"
cksum <"$old/Vlaera.dat" >"$scratch/settings"

DESTDIR=$scratch/root cmake --install "$bin/.." >/dev/null || fail "cmake --install"
open=$(find "$scratch/root" -path '*/bin/velara-open')
place=${open%/bin/velara-open}
find "$scratch/root" -type f | sort | xargs cksum >"$scratch/before"
"$open" "$scratch/in.png" || fail "velara-open ended with $?"
editor=$(find "$XDG_RUNTIME_DIR" -name '*.socket' | sed 's/.*-\([0-9]*\)\.socket/\1/')
[ "$(readlink -f "/proc/$editor/exe")" = "$place/bin/velara-studio" ] || fail "editors: $editor"
pids="$pids $editor"
folder=$HOME/.local/state/velara-studio
until_true "the undo files are in $folder" documents 1
until_true "the frame" started
[ "$(cksum <"$XDG_CONFIG_HOME/velara-studio/Vlaera.dat")" = "$(cat "$scratch/settings")" ] || fail "the settings were not taken over"
[ ! -e "$old/Vlaera.dat" ] || fail "the old settings are still there"
[ -s "$old/Stamps/mine.bmp" ] || fail "a stamp went"
keys alt+l i
until_true "the snapshot of the filter" undo_files 2
convert "$scratch/in.png" -negate "$scratch/negative.png"
saves "$scratch/out.png" "$scratch/negative.png" "the filter's picture is wrong"
keys ctrl+q
until_true "the editor to end" gone
undo_files 0 || fail "undo files are left behind"
find "$scratch/root" -type f | sort | xargs cksum >"$scratch/after"
cmp -s "$scratch/before" "$scratch/after" || fail "something was written beside the installed programs"
