#!/bin/sh
# Looks at the packed program as someone who has downloaded it: check_package.sh ARCHIVE. Prints what is wrong.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
archive=$1
largest_archive=$((40 * 1024 * 1024))

# shellcheck source=tests/support/package_check.sh
. "$here/../tests/support/package_check.sh"

[ "$(stat -c %s "$archive")" -le "$largest_archive" ] || complain 'The archive has grown too large.'
[ "$(tar -tvzf "$archive" | awk '{ print $2, $4, $5 }' | sort -u | wc -l)" = 1 ] ||
    complain 'Not all files have one owner and one time.'

# A name that menus have to be told with care.
mkdir "$scratch/PS2 \"tools\" \$HOME"
cd "$scratch/PS2 \"tools\" \$HOME"
tar -xzf "$archive"
[ "$(ls)" = "$(basename "$archive" .tar.gz)" ] || complain 'The archive is not one folder.'
cd ./*/
folder=$PWD

names() { LC_ALL=C ls "$@" | paste -sd ' '; }
[ -z "$(find . -type l)" ] || complain 'There are links in the package, which not every disk can have.'
[ "$(names)" = 'LICENSE.txt README.txt demo lib licences plugins qt.conf share tarnwell-gui tarnwell-gui-menu' ] ||
    complain "There is something else in the package than there should be: $(names)"
[ "$(names demo)" = 'start-demo tarnwell-samples tarnwell.exe' ] || complain "The demo is not whole: $(names demo)"
for file in README.txt LICENSE.txt licences/README.txt licences/LGPL-3.txt licences/GPL-3.txt licences/qt6-base.txt \
    licences/qt6-wayland.txt licences/icu.txt licences/gcc-12.txt; do
    [ -s "$file" ] || complain "$file is missing."
done
for file in tarnwell-gui tarnwell-gui-menu demo/*; do
    [ -x "$file" ] || complain "$file is not marked as a program."
done

# What the parts need, against what is packed and what every desktop has: all of it, and nothing that nobody needs.
programs="tarnwell-gui demo/tarnwell.exe demo/tarnwell-samples $(find lib plugins -type f | paste -sd ' ')"
# shellcheck disable=SC2086
objdump -p $programs | sed -n 's/^ *NEEDED *//p' | grep -v '^ld-linux' | sort -u >"$scratch/needed"
grep -x 'lib[^ ]*' "$here/left-to-the-system.txt" | sort >"$scratch/left"
ls lib | cat - "$scratch/left" | sort >"$scratch/there"
difference=$(diff "$scratch/needed" "$scratch/there" | sed -n 's/^</Missing:/p; s/^>/Not needed:/p')
[ -z "$difference" ] || complain "$difference"

# shellcheck disable=SC2086
[ "$(objdump -p $programs | awk '/R(UN)?PATH/ { print $1, $2 }')" = 'RPATH $ORIGIN/lib' ] ||
    complain 'Libraries are looked for elsewhere than beside the program.'
! grep -rqF "$(dirname "$here")" . || complain 'Something in the package names the folder that it was built in.'

desktop-file-validate share/applications/tarnwell-gui.desktop || complain 'Desktops do not take the menu entry.'
appstreamcli validate --no-net share/metainfo/*.xml >"$scratch/words" || complain "$(cat "$scratch/words")"

# A user's clicks: the program comes up out of the menu and as a demo, with nothing of another Qt, and ends when it is told
# to; it is in the menu once, and then no longer. Nothing of whoever runs this is touched.
export HOME="$scratch/home" XDG_DATA_HOME="$scratch/home/own data" XDG_CONFIG_HOME="$scratch/home/config" QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="$scratch/runtime"
mkdir -m 700 "$HOME" "$XDG_RUNTIME_DIR"

running() { for exe in /proc/[0-9]*/exe; do [ "$(readlink "$exe")" != "$1" ] || basename "$(dirname "$exe")"; done; }
gone() { [ -z "$(running "$1")" ]; }
comes_up() {
    program=$1/tarnwell-gui
    wait_for test -s "$1/config.cfg" || complain "$2 does not come up."
    for process in $(running "$program"); do
        strange=$(grep -E '/(libQt6|libicu|plugins/)[^ ]*' "/proc/$process/maps" | grep -vF "$folder/") || true
        [ -z "$strange" ] || complain "$2 uses more than what is packed: $strange"
        kill "$process"
    done
    wait_for gone "$program" || complain "$2 does not end."
}

./tarnwell-gui-menu add >/dev/null
./tarnwell-gui-menu add >/dev/null
entry=$XDG_DATA_HOME/applications/tarnwell-gui.desktop
desktop-file-validate "$entry" || complain 'Desktops do not take the entry for this folder.'
[ -f "$XDG_DATA_HOME/icons/hicolor/48x48/apps/tarnwell-gui.png" ] || complain 'The menu has no icon.'
(cd / && gio launch "$entry" >/dev/null 2>&1) || complain 'The menu does not start the program.'
comes_up "$folder" 'The program out of the menu'
./tarnwell-gui-menu remove >/dev/null
./tarnwell-gui-menu remove >/dev/null
[ -z "$(find "$XDG_DATA_HOME" -type f)" ] || complain 'Something stays in the menu.'

(cd / && exec "$folder/demo/start-demo" >/dev/null 2>&1) &
comes_up "$folder/demo" 'The demo'
[ -f demo/samples/cd-game.iso ] || complain 'There are no sample images.'
[ -f demo/tool-settings/tarnwell.conf ] || complain 'The demo uses the settings of the real tool.'

exit "$wrong"
