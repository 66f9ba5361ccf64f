#!/bin/sh
# Looks at the packed program as someone who has downloaded it: check_package.sh BUILD_FOLDER ZIP_FILE QT_VERSION.
# Wants Wine and a display; prints what is wrong.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
build=$1
zip=$2
qt_version=$3
largest_program=$((20 * 1024 * 1024))
. "$here/archive_checks.sh"

TZ=UTC unzip -q "$zip" -d "$scratch/Program Files"
folder="$scratch/Program Files/$(basename "$zip" .zip)"
program=$folder/tarnwell-gui.exe

again=$scratch/$(basename "$zip")
SOURCE_DATE_EPOCH=$(stat -c %Y "$folder/README.txt") "$here/package.sh" "$build" "$again" "$qt_version"
cmp "$zip" "$again" || complain 'Packed twice, two files.'

expect_files "$folder" tarnwell-gui.exe README.txt LICENSE.txt demo/tarnwell.exe demo/tarnwell-samples.exe demo/start-demo.cmd \
    licences/README.txt licences/LGPL-3.txt licences/GPL-3.txt licences/Qt.txt licences/GCC.txt licences/mingw-w64.txt
[ "$(find "$folder" -type f | wc -l)" = 12 ] || complain 'There is more in the package than there should be.'

grep -q "^Qt $qt_version " "$folder/licences/README.txt" || complain 'The licences do not name the Qt that is linked in.'
! grep -rq '@QT' "$folder/licences/README.txt" || complain 'The licences have a gap.'

[ "$(stat -c %s "$program")" -le "$largest_program" ] || complain 'The program has grown too large.'
for exe in "$folder"/*.exe "$folder"/demo/*.exe; do
    expect_runs_anywhere "$exe"
done

inspect "$program" | grep -q '(Windows GUI)' || complain 'The program opens a console.'
for part in Common-Controls PerMonitorV2 asInvoker; do
    grep -q "$part" "$program" || complain "The manifest does not name $part."
done
! grep -q activeCodePage "$program" || complain 'The manifest sets a code page of its own.'
wrestool --list "$program" | grep -q "type=14 --name='IDI_ICON1'" || complain 'The program has no icon for its windows.'
wrestool --list "$program" | grep -q 'type=16' || complain 'The program tells no version.'

# A user's double clicks: the program comes up, finds the samples made, and ends when its window is closed; once more; and
# once more while it is open.
# Prints a line for each program that it has asked to end.
close_programs() { "$here/wine.sh" taskkill /im tarnwell-gui.exe 2>/dev/null | grep PID; }
gone() { ! close_programs >/dev/null; }
open=0
for start in first second third; do
    rm -f "$folder/demo/config.cfg"
    "$here/wine.sh" cmd /c "$folder/demo/start-demo.cmd" >/dev/null 2>&1 || complain "start-demo.cmd fails at its $start start."
    open=$((open + 1))
    wait_for test -f "$folder/demo/config.cfg" || complain "The program does not come up at its $start start."
    [ -f "$folder/demo/samples/cd-game.iso" ] || complain 'There are no sample images.'
    [ "$start" != second ] || continue
    [ "$(close_programs | wc -l)" = "$open" ] || complain "After the $start start $open of the program should be open."
    wait_for gone || complain "The program does not end when its window is closed after its $start start."
    open=0
done

exit "$wrong"
