#!/bin/sh
# Makes the PNG icons from the SVG drawings. Needs rsvg-convert (librsvg2-bin).
set -eu
cd "$(dirname "$0")"

# Under 32 pixels the full maze turns to mush, so the small sizes have a
# drawing of their own, laid out on a grid that falls on whole pixels.
for size in 16 24; do
    rsvg-convert -w "$size" -h "$size" -o "trameli-$size.png" trameli-small.svg
done
for size in 32 48 64 128 256; do
    rsvg-convert -w "$size" -h "$size" -o "trameli-$size.png" trameli.svg
done
