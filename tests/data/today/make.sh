#!/bin/sh
# Makes the pictures of this folder anew: the motif of four fields, 48 by 32, in the formats that
# cameras and phones of today write. Needs the Debian packages imagemagick, libheif-examples,
# libavif-bin, libopenjp2-tools, webp and libimage-exiftool-perl.
set -eu
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
convert=/usr/bin/convert
plain="-define png:exclude-chunk=gAMA,cHRM,date"  # one encoder takes a gamma to heart

fields() { # name, size of a field, four colours from the top left
  $convert \( -size "$2" "xc:$3" "xc:$4" +append \) \( -size "$2" "xc:$5" "xc:$6" +append \) -append "$plain" "PNG32:$1"
}
fields "$work/motif32.png" 24x16 'rgb(255,0,0)' 'rgb(0,160,0)' 'rgb(0,0,255)' 'rgb(128,128,128)'
fields "$work/clear.png" 24x16 'rgb(255,0,0)' 'rgb(0,160,0)' 'rgb(0,0,255)' 'rgba(128,128,128,0)'
$convert "$work/motif32.png" -alpha off "$plain" "PNG24:$work/motif.png"
$convert "$work/motif.png" -colorspace gray -depth 8 "$plain" "PNG:$work/grey.png"
$convert "$work/motif.png" -depth 16 "$plain" "PNG48:$work/deep.png"
fields "$work/large32.png" 64x64 'rgb(255,0,0)' 'rgb(0,160,0)' 'rgb(0,0,255)' 'rgb(128,128,128)'
$convert "$work/large32.png" -alpha off "$plain" "PNG24:$work/large.png"
# As the sensor had it before it is turned or mirrored upright.
$convert "$work/motif.png" -rotate 90 "$plain" "PNG24:$work/rotated.png"
$convert "$work/motif.png" -flop "$plain" "PNG24:$work/flopped.png"
$convert "$work/motif.png" -rotate 180 "$plain" "PNG24:$work/second.png"

heif-enc -L "$work/motif.png" -o lossless.heic
heif-enc -q 95 "$work/motif.png" -o lossy.heic
heif-enc -q 95 -b 10 -p chroma=444 "$work/deep.png" -o deep.heic
heif-enc -q 95 -p chroma=422 "$work/motif.png" -o half.heic
heif-enc -L "$work/clear.png" -o clear.heic
heif-enc -q 95 "$work/grey.png" -o grey.heic
cp lossless.heic exif.heic
exiftool -q -n -overwrite_original -Orientation=6 exif.heic

avif() { avifenc -s 6 --min 0 --max 4 --minalpha 0 --maxalpha 0 "$@" >/dev/null; }
avif --yuv 444 "$work/motif.png" plain.avif
avif --yuv 420 "$work/motif.png" half.avif
avif --yuv 444 --depth 10 "$work/deep.png" deep.avif
avif --yuv 400 "$work/grey.png" grey.avif
avif --yuv 444 "$work/clear.png" clear.avif
avif --yuv 444 --premultiply "$work/clear.png" mixed.avif
avif --yuv 444 --grid 2x2 "$work/large.png" tiles.avif
printf 'II*\000\010\000\000\000\001\000\022\001\003\000\001\000\000\000\006\000\000\000\000\000\000\000' >"$work/turned.exif"
avif --yuv 444 --irot 1 --exif "$work/turned.exif" "$work/rotated.png" turned.avif
avif --yuv 444 --imir 1 "$work/flopped.png" mirrored.avif
# The same numbers in the wider colours of today's screens.
avif --yuv 444 --cicp 12/13/6 "$work/motif.png" wide.avif

# A profile by which red is blue and blue is red.
python3 - "$work/swapped.icc" <<'PROFILE'
import struct, sys
def s15(*values): return b"".join(struct.pack(">i", round(v * 65536)) for v in values)
curve = b"curv" + struct.pack(">IIH", 0, 1, round(2.2 * 256)) + b"\0\0"
xyz = lambda *v: b"XYZ " + bytes(4) + s15(*v)
text = lambda t: b"text" + bytes(4) + t + b"\0"
desc = b"desc" + struct.pack(">II", 0, 2) + b"s\0" + bytes(8 + 3 + 67)
tags = [(b"cprt", text(b"none")), (b"desc", desc), (b"wtpt", xyz(0.9642, 1, 0.8249)),
        (b"rXYZ", xyz(0.1431, 0.0606, 0.7141)), (b"gXYZ", xyz(0.3851, 0.7169, 0.0971)),
        (b"bXYZ", xyz(0.4360, 0.2225, 0.0139)), (b"rTRC", curve), (b"gTRC", curve), (b"bTRC", curve)]
at, table, body = 128 + 4 + 12 * len(tags), b"", b""
for name, data in tags:
    table += name + struct.pack(">II", at + len(body), len(data))
    body += data + bytes(-len(data) % 4)
head = struct.pack(">I4sI4s4s4s", at + len(body), b"none", 0x02400000, b"mntr", b"RGB ", b"XYZ ")
head += struct.pack(">6H", 2026, 1, 1, 0, 0, 0) + b"acsp" + bytes(28) + s15(0.9642, 1, 0.8249)
open(sys.argv[1], "wb").write(head.ljust(128, b"\0") + struct.pack(">I", len(tags)) + table + body)
PROFILE
avif --yuv 444 --icc "$work/swapped.icc" "$work/motif.png" profile.avif
$convert "$work/motif.png" -profile "$work/swapped.icc" "$work/profile.jpg"
heif-enc -q 95 -p chroma=444 "$work/profile.jpg" -o profile.heic

opj_compress -i "$work/motif.png" -o plain.jp2 >/dev/null
opj_compress -i "$work/motif.png" -o plain.j2k >/dev/null
opj_compress -i "$work/clear.png" -o clear.jp2 >/dev/null
opj_compress -i "$work/grey.png" -o grey.jp2 >/dev/null
opj_compress -i "$work/deep.png" -o deep.jp2 >/dev/null
opj_compress -i "$work/large.png" -o tiles.jp2 -t 50,50 >/dev/null
# Luma, and a quarter of the chroma.
# shellcheck disable=SC2086 # two words
plane() { $convert "$work/motif.png" -colorspace YCbCr -channel "$1" -separate +channel ${2:-} -depth 8 gray:-; }
{ plane R; plane G "-sample 24x16"; plane B "-sample 24x16"; } >"$work/motif.yuv"
opj_compress -i "$work/motif.yuv" -F 48,32,3,8,u@1x1:2x2:2x2 -o half.jp2 >/dev/null

cwebp -quiet -lossless -exact "$work/motif.png" -o plain.webp
cwebp -quiet -lossless "$work/clear.png" -o clear.webp
img2webp -lossless "$work/motif.png" "$work/second.png" -o moving.webp >/dev/null

$convert "$work/motif.png" plain.gif
$convert "$work/motif.png" -interlace GIF interlaced.gif
$convert "$work/clear.png" clear.gif
$convert -delay 10 "$work/motif.png" "$work/second.png" moving.gif
