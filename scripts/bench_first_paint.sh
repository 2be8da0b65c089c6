#!/bin/bash
# How long it takes from the start of a program until a photograph of 12 megapixels is on the screen, beside viewers; alternately,
# medians of RUNS starts, without a session of the desktop. The picture has a square of one colour in its middle, by which
# it is known (bench/start).
#     scripts/bench_first_paint.sh BIN [RUNS [FORMAT...]]      make bench-first-paint RUNS=9 FORMATS="heic jpg"
set -eu
bin=$(realpath "$1") runs=${2:-9}
shift $(($# < 2 ? $# : 2))
formats=${*:-heic jpg}
for tool in Xvfb openbox convert heif-enc; do
    command -v $tool >/dev/null || { echo "$tool is missing" >&2; exit 1; }
done
scratch=$(mktemp -d "${TMPDIR:-/tmp}/first-paint-XXXXXX")
pids=
trap 'kill $pids 2>/dev/null || true; rm -rf "$scratch"' EXIT
mkdir "$scratch/bin" "$scratch/run" "$scratch/home"
chmod 700 "$scratch/run"
for program in studio open decode decode-all encode; do cp "$bin/velara-$program" "$scratch/bin"; done
# No bus: what the desktop's services take at their first call is nobody's start.
export DBUS_SESSION_BUS_ADDRESS=disabled: HOME=$scratch/home XDG_RUNTIME_DIR=$scratch/run NO_AT_BRIDGE=1 GSETTINGS_BACKEND=memory
unset WAYLAND_DISPLAY QT_QPA_PLATFORM

# Each start is a first one: no small copy of the picture is left from the one before.
cat >"$scratch/fresh" <<'END'
#!/bin/sh
rm -rf "$HOME"
mkdir "$HOME"
exec "$@"
END
chmod +x "$scratch/fresh"

convert -size 4000x3000 -seed 1 plasma:tan-steelblue -attenuate 0.15 +noise gaussian \
    -fill '#E010B0' -draw 'rectangle 1200,900 2800,2100' "PNG24:$scratch/a.png"
heif-enc -q 70 "$scratch/a.png" -o "$scratch/a.heic" >/dev/null
convert "$scratch/a.png" -quality 92 -sampling-factor 4:2:0 "$scratch/a.jpg"

Xvfb -noreset -displayfd 3 -screen 0 1920x1080x24 3>"$scratch/display" >/dev/null 2>&1 &
pids="$pids $!"
until [ -s "$scratch/display" ]; do sleep 0.05; done
DISPLAY=:$(cat "$scratch/display")
export DISPLAY
openbox >/dev/null 2>&1 &
pids="$pids $!"
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do sleep 0.05; done

for format in $formats; do
    file=$scratch/a.$format
    programs=("$scratch/fresh" "$scratch/bin/velara-studio" "$file")
    for viewer in eog gthumb; do
        command -v $viewer >/dev/null || continue
        programs+=(-- "$scratch/fresh" "$viewer" "$file")
    done
    echo "$format, $(stat -c %s "$file") bytes; velara-studio and then those of eog and gthumb that are installed"
    "$bin/velara-start" --runs "$runs" --until E010B0 "${programs[@]}" 2>"$scratch/said" || { cat "$scratch/said" >&2; exit 1; }
done
