#!/bin/sh
# Packs what the preset `windows` has built: package.sh BUILD_FOLDER ZIP_FILE QT_VERSION, which is that of the Qt that was
# linked in. The same build gives the same bytes.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
root=$(dirname "$here")
bin=$(cd "$1/bin" && pwd)
qt_version=$3
# The machine's own Qt tells more, if it is the same one.
qt_source=$(dpkg-query -W -f '${source:Package} ${source:Version}' qt6-base-dev)
case $qt_source in
"qt6-base $qt_version"*) ;;
*) qt_source="qt6-base $qt_version" ;;
esac

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
name=$(basename "$2" .zip)
folder=$scratch/$name
mkdir -p "$folder/demo" "$folder/licences"

# Notepad of older systems shows lines only if they end this way.
text() { sed 's/$/\r/' >"$1"; }

cp "$bin/tarnwell-gui.exe" "$folder"
text "$folder/README.txt" <"$here/README.txt"
text "$folder/LICENSE.txt" <"$root/LICENSE"

cp "$bin/tarnwell.exe" "$bin/tarnwell-samples.exe" "$folder/demo"
text "$folder/demo/start-demo.cmd" <"$here/start-demo.cmd"

sed "s/@QT_VERSION@/$qt_version/; s/@QT_SOURCE@/$qt_source/" "$here/licences.txt" | text "$folder/licences/README.txt"
text "$folder/licences/LGPL-3.txt" </usr/share/common-licenses/LGPL-3
text "$folder/licences/GPL-3.txt" </usr/share/common-licenses/GPL-3
for licence in Qt:qt6-base-dev GCC:gcc-mingw-w64-x86-64-posix-runtime mingw-w64:mingw-w64-x86-64-dev; do
    text "$folder/licences/${licence%%:*}.txt" <"/usr/share/doc/${licence#*:}/copyright"
done

# The time of the last change stands for all files; zip knows no zone.
export TZ=UTC
changed=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct)}
find "$folder" -exec touch -h -d "@$changed" {} +
find "$folder" -type f -exec chmod 644 {} +
rm -f "$2"
(cd "$scratch" && find "$name" -type f | LC_ALL=C sort | zip -q -9 -X -@ package.zip)
mv "$scratch/package.zip" "$2"
