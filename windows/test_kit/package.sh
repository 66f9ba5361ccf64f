#!/bin/sh
# Packs the tests for Windows machines: package.sh ZIP_FILE QT_VERSION VERSION TEST_LIST PROGRAM...
# The same build gives the same bytes.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
root=$(dirname "$(dirname "$here")")
. "$root/windows/packing.sh"
zip=$1
qt_version=$2
version=$3
tests=$4
shift 4

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
folder=$scratch/$(basename "$zip" .zip)
mkdir -p "$folder/programs"

text "$folder/README.txt" <"$here/README.txt"
text "$folder/run-tests.cmd" <"$here/run-tests.cmd"
cp "$tests" "$@" "$folder/programs"
printf 'Tarnwell GUI %s, commit %s\n' "$version" "$(git -C "$root" log -1 --format=%h --abbrev=12)" >"$folder/programs/build.txt"

add_licences "$folder" "$qt_version"
text "$folder/licences/GoogleTest.txt" </usr/share/doc/googletest/copyright

pack "$folder" "$zip"
