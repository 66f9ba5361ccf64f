#!/bin/sh
# Draws the program's icon in the sizes that desktops ask for. Needs rsvg-convert (Debian: librsvg2-bin).
set -eu
cd "$(dirname "$0")"
for size in 16 20 24 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" --output "tarnwell-$size.png" tarnwell.svg
done
