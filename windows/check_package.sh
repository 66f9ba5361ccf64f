#!/bin/sh
# Looks at the packed program as someone who has downloaded it: check_package.sh BUILD_FOLDER ZIP_FILE QT_VERSION.
# Wants Wine and a display; prints what is wrong.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
build=$1
zip=$2
qt_version=$3
largest_program=$((20 * 1024 * 1024))
systems_own=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows

# shellcheck source=tests/support/package_check.sh
. "$here/../tests/support/package_check.sh"
inspect() { x86_64-w64-mingw32-objdump -p "$1"; }

TZ=UTC unzip -q "$zip" -d "$scratch/Program Files"
folder="$scratch/Program Files/$(basename "$zip" .zip)"
program=$folder/tarnwell-gui.exe

again=$scratch/$(basename "$zip")
SOURCE_DATE_EPOCH=$(stat -c %Y "$folder/README.txt") "$here/package.sh" "$build" "$again" "$qt_version"
cmp "$zip" "$again" || complain 'Packed twice, two files.'

for file in tarnwell-gui.exe README.txt LICENSE.txt demo/tarnwell.exe demo/tarnwell-samples.exe demo/start-demo.cmd \
    licences/README.txt licences/LGPL-3.txt licences/GPL-3.txt licences/Qt.txt licences/GCC.txt licences/mingw-w64.txt; do
    [ -s "$folder/$file" ] || complain "$file is missing."
done
[ "$(find "$folder" -type f | wc -l)" = 12 ] || complain 'There is more in the package than there should be.'

grep -q "^Qt $qt_version " "$folder/licences/README.txt" || complain 'The licences do not name the Qt that is linked in.'
! grep -rq '@QT' "$folder/licences/README.txt" || complain 'The licences have a gap.'

[ "$(stat -c %s "$program")" -le "$largest_program" ] || complain 'The program has grown too large.'
for exe in "$folder"/*.exe "$folder"/demo/*.exe; do
    inspect "$exe" | sed -n 's/.*DLL Name: //p' | tr '[:upper:]' '[:lower:]' | while read -r library; do
        [ -f "$systems_own/$library" ] || [ "${library#api-ms-win-}" != "$library" ] || echo "$(basename "$exe") needs $library, which is not part of Windows."
    done
done >"$scratch/libraries"
[ ! -s "$scratch/libraries" ] || complain "$(cat "$scratch/libraries")"

inspect "$program" | grep -q '(Windows GUI)' || complain 'The program opens a console.'
for part in Common-Controls PerMonitorV2 asInvoker; do
    grep -q "$part" "$program" || complain "The manifest does not name $part."
done
! grep -q activeCodePage "$program" || complain 'The manifest sets a code page of its own.'
wrestool --list "$program" | grep -q "type=14 --name='IDI_ICON1'" || complain 'The program has no icon for its windows.'
wrestool --list "$program" | grep -q 'type=16' || complain 'The program tells no version.'
! grep -qF "$(dirname "$here")" "$program" || complain 'The program names the folder that it was built in.'

# A user's double clicks: the program comes up, finds the samples made, and ends when its window is closed; and once more.
running() { "$here/wine.sh" tasklist 2>/dev/null | grep -q tarnwell-gui; }
gone() { ! running; }
for start in first second; do
    "$here/wine.sh" cmd /c "$folder/demo/start-demo.cmd" >/dev/null 2>&1 || complain "start-demo.cmd fails at its $start start."
    wait_for test -f "$folder/demo/config.cfg" || complain "The program does not come up at its $start start."
    [ -f "$folder/demo/samples/cd-game.iso" ] || complain 'There are no sample images.'
    "$here/wine.sh" taskkill /im tarnwell-gui.exe >/dev/null 2>&1
    wait_for gone || complain "The program does not end when its window is closed after its $start start."
    rm -f "$folder/demo/config.cfg"
done

exit "$wrong"
