#!/bin/sh
# A picture printed to a PDF file with a real mouse; another program's rendering of it is compared with the picture.
. "$(dirname "$0")/lib.sh"

convert -size 384x192 'xc:#0000ff' -fill '#ff0000' -draw 'rectangle 0,0 191,191' "BMP3:$scratch/in.bmp"
export CUPS_SERVER="$scratch/run/no-server" # there are no printers here

start
open_file "$scratch/in.bmp"
brings Print ctrl+p
if [ -n "${E2E_SHOTS:-}" ]; then import -window root "$E2E_SHOTS/print.png"; fi
brings 'Print to file' Return
enter "$scratch/page"
until_true "the page" test -s "$scratch/page.pdf"
until_true "the dialog to close" no_window '^Print$'

# At 96 dpi a picture of 384 by 192 has its natural size on a landscape page.
pdftoppm -r 96 -png -singlefile "$scratch/page.pdf" "$scratch/page"
size=$(convert "$scratch/page.png" -format '%wx%h' info:)
case $size in 1123x794 | 1056x816) ;; *) fail "the page is $size" ;; esac
box=$(convert "$scratch/page.png" -format '%@' info:)
case $box in 38[3-6]x19[1-4]+*) ;; *) fail "the picture is $box on the page" ;; esac
colours=$(convert "$scratch/page.png" -trim +repage -format '%[hex:p{90,90}] %[hex:p{290,90}]' info:)
[ "$colours" = 'FF0000 0000FF' ] || fail "colours $colours"

# The picture was printed, not changed: closing doesn't ask; the clipboard keeps it.
xclip -selection clipboard -t image/png -o >"$scratch/clip.png"
same "$scratch/clip.png" "$scratch/in.bmp" || fail "the clipboard has something else"
quit
