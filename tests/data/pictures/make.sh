#!/bin/sh
# Makes the small pictures of this folder anew: one motif in every format and kind of pixel that
# the program reads. Top left red, top right green, bottom left blue, bottom right grey.
# shellcheck disable=SC2086 # some of its words are several options
set -e
cd "$(dirname "$0")"
convert=/usr/bin/convert
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
src="$work/motif.png"
$convert \( -size 24x16 xc:'rgb(255,0,0)' xc:'rgb(0,160,0)' +append \) \
         \( -size 24x16 xc:'rgb(0,0,255)' xc:'rgb(128,128,128)' +append \) -append PNG24:"$src"
grey="$src -colorspace Gray"
bare="+set date:create +set date:modify"

$convert "$src" $bare BMP3:rgb24.bmp
$convert "$src" -type Palette -compress none BMP3:palette8.bmp
$convert "$src" -type Palette -compress RLE BMP3:packed8.bmp
$convert "$src" -alpha set -channel A -region 24x16+24+16 -evaluate set 0 +channel BMP:alpha32.bmp
$convert $grey -threshold 40% -type Bilevel BMP3:bilevel.bmp
$convert "$src" BMP2:os2.bmp

jpeg="-quality 95 -sampling-factor"
$convert "$src" -strip $jpeg 1x1 rgb444.jpg
$convert "$src" -strip $jpeg 2x2 rgb420.jpg
$convert "$src" -strip $jpeg 2x2 -interlace JPEG progressive.jpg
$convert $grey -strip -quality 95 grey.jpg
$convert "$src" -strip -colorspace CMYK -quality 95 cmyk.jpg

$convert "$src" $bare PNG24:rgb8.png
$convert "$src" $bare PNG48:rgb16.png
$convert "$src" $bare -interlace PNG PNG24:interlaced.png
$convert "$src" $bare PNG8:palette.png
$convert $grey $bare -define png:color-type=0 -define png:bit-depth=8 grey8.png
$convert $grey $bare -define png:color-type=0 -define png:bit-depth=16 grey16.png
$convert $grey $bare -threshold 40% -define png:color-type=0 -define png:bit-depth=1 bilevel.png
clear="-alpha set -channel A -region 24x16+24+16 -evaluate set 0 +channel"
$convert "$src" $clear $bare PNG32:alpha8.png
$convert "$src" $clear $bare PNG64:alpha16.png

for kind in none lzw zip rle jpeg; do
    $convert "$src" -compress $kind -quality 95 rgb8-$kind.tif
done
$convert "$src" -depth 16 -compress lzw rgb16.tif
$convert "$src" -endian MSB -compress none bigendian.tif
$convert $grey -depth 8 -compress lzw grey8.tif
$convert $grey -depth 16 grey16.tif
$convert "$src" -type Palette -compress lzw palette.tif
$convert $grey -threshold 40% -type Bilevel -compress Group4 group4.tif
$convert "$src" $clear -compress lzw alpha.tif
$convert "$src" -define tiff:tile-geometry=16x16 -compress lzw tiled.tif
$convert "$src" -colorspace CMYK -compress lzw cmyk8.tif
$convert "$src" -colorspace CMYK -depth 16 -compress lzw cmyk16.tif
$convert "$src" -colorspace Lab -compress lzw lab.tif
$convert "$src" -depth 32 -define quantum:format=floating-point float.tif
$convert "$src" -rotate -90 -orient RightTop -compress lzw turned.tif

$convert "$src" rgb8.psd
$convert "$src" -depth 16 rgb16.psd
$convert $grey grey8.psd
$convert "$src" -colorspace CMYK cmyk.psd
$convert "$src" $clear alpha.psd
$convert "$src" \( "$src" -flop \) \( "$src" -flip \) layers.psd

$convert "$src" -orient TopLeft -compress none TGA:top24.tga
$convert "$src" -flip -orient BottomLeft -compress none TGA:bottom24.tga
$convert "$src" -orient TopLeft -compress RLE TGA:packed24.tga
$convert "$src" -orient TopLeft -type Palette TGA:palette.tga
$convert $grey -orient TopLeft TGA:grey.tga
$convert "$src" $clear -orient TopLeft TGA:alpha32.tga

$convert "$src" rgb24.pcx
$convert "$src" -type Palette palette8.pcx
$convert $grey -threshold 40% -type Bilevel bilevel.pcx
$convert $grey -threshold 40% -type Bilevel bilevel.wbmp
