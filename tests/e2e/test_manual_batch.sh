#!/bin/bash
# The twenty recipes of docs/manual/batch.md are run as they stand there, and make what they say.
. "$(dirname "$0")/manual.sh"
blocks batch.md
[ "$(grep -c '^\*\*[0-9]*\.\*\* ' "$manual/batch.md")" = 20 ] || fail "the page has no twenty recipes"
mkdir album
convert -seed 1 -size 400x300 plasma:red-blue photo.jpg
# a photo of a camera: its make, before the first table
python3 - photo.jpg <<'END'
import sys
data = open(sys.argv[1], "rb").read()
exif = b"Exif\0\0II*\0\x08\0\0\0\x01\0\x0f\x01\x02\0\x06\0\0\0\x1a\0\0\0\0\0\0\0Lumen\0"
open(sys.argv[1], "wb").write(data[:2] + b"\xff\xe1" + (len(exif) + 2).to_bytes(2, "big") + exif + data[2:])
END
convert -size 160x120 xc:white -fill navy -draw 'circle 80,60 80,20' +antialias drawing.png
cp photo.jpg album/beach.jpg
cp photo.jpg album/boat.jpg
sha256sum photo.jpg drawing.png album/* >before
run_blocks
sha256sum --quiet -c before >>log 2>&1 || fail "the originals have changed"

wants() { # a line a picture: name, kind, size
    while read -r name kind; do
        [ "$(shown "$name")" = "$kind" ] || fail "$name is $(shown "$name"), not $kind"
    done
}
wants <<'END'
half.jpg JPEG 200x150
small.jpg JPEG 320x240
large.png PNG 480x360
part.jpg JPEG 160x120
upright.jpg JPEG 300x400
bright.jpg JPEG 400x300
grey.jpg JPEG 400x300
old.jpg JPEG 400x300
hidden.jpg JPEG 400x300
middle.jpg JPEG 400x300
photo.png PNG 400x300
form.jpg JPEG 400x300
few.gif GIF 400x300
clean.jpg JPEG 400x300
mirrored.png PNG 400x300
web/beach.webp WEBP 200x150
web/boat.webp WEBP 200x150
numbered/summer-001.jpg JPEG 400x300
numbered/summer-002.jpg JPEG 400x300
nightly/beach.jpg JPEG 200x150
nightly/boat.jpg JPEG 200x150
END
of() { convert "$1" -crop "${3:-400x300+0+0}" +repage -format "%[fx:$2]" info:; } # of a part of a picture
holds() { [ "$(convert xc: -format "%[fx:$1]" info:)" = 1 ] || fail "$2: $1"; }
[ "$(identify -format %k large.png)" -le "$(identify -format %k drawing.png)" ] || fail "enlarged squares have new colours"
holds "$(of bright.jpg mean) > $(of photo.jpg mean)" "brighter"
holds "$(of grey.jpg 'abs(mean.r-mean.b)') < 0.01" "black and white"
holds "$(of old.jpg mean.r) > $(of old.jpg mean.b)+0.05" "brown"
apart() { compare -metric MAE -extract "$3" "$1" "$2" null: 2>&1 | sed 's/.*(\(.*\))/\1/' || true; } # two pictures, in a part
holds "$(apart hidden.jpg photo.jpg 60x60+0+0) < 0.02" "the rest is as it was"
holds "$(apart hidden.jpg photo.jpg 60x60+130+90) > $(apart hidden.jpg photo.jpg 60x60+0+0)*1.5" "the face is hidden"
holds "$(apart middle.jpg photo.jpg 60x60+170+120) < 0.02" "the middle is as it was"
holds "$(of middle.jpg 'abs(mean.r-mean.b)' 40x40+0+0) < 0.02" "grey around it"
convert photo.jpg -flop flopped.png
holds "$(apart mirrored.png flopped.png 400x300+0+0) < 0.02" "mirrored"
[ "$(stat -c %s form.jpg)" -le 20000 ] || fail "the form takes less"
[ "$(identify -format %k few.gif)" -le 16 ] || fail "more than 16 colors"
grep -q Lumen photo.png && grep -q Lumen bright.jpg || fail "what the camera wrote is lost"
! grep -q Lumen clean.jpg || fail "what the camera wrote is in it"
[ "$(od -An -tx1 -N8 program.ico | tr -d ' \n')" = 0000010001002020 ] || fail "no icon of 32 x 32"
[ "$(od -An -tx1 -N2 photo.jxl | tr -d ' ')" = ff0a ] || [ "$(od -An -tx1 -j4 -N4 photo.jxl | tr -d ' ')" = 4a584c20 ] || fail "no JPEG XL"
grep -q '0 done, 2 skipped' log || fail "the second run found something to do"
