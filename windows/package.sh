#!/bin/sh
# Packs what the preset `windows` has built: package.sh BUILD_FOLDER ZIP_FILE QT_VERSION, which is that of the Qt that was
# linked in. The same build gives the same bytes.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
root=$(dirname "$here")
. "$here/packing.sh"
bin=$(cd "$1/bin" && pwd)

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
folder=$scratch/$(basename "$2" .zip)
mkdir -p "$folder/demo"

cp "$bin/tarnwell-gui.exe" "$folder"
text "$folder/README.txt" <"$here/README.txt"
add_licences "$folder" "$3"

cp "$bin/tarnwell.exe" "$bin/tarnwell-samples.exe" "$folder/demo"
text "$folder/demo/start-demo.cmd" <"$here/start-demo.cmd"

pack "$folder" "$2"
