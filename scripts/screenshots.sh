#!/bin/sh
# Retakes the pictures of docs/screenshots: every window, light and dark, at single and double size.
set -eu
bin=$1
out=$2
for palette in light dark; do
    for scale in 1 2; do
        QT_LOGGING_RULES="*.warning=false" QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$scale "$bin/screenshots" "$out" $palette 2>/dev/null
    done
done
echo "$out"
