#!/bin/sh
# Runs what was built for Windows under Wine, in a prefix that belongs to the build alone.
#   wine.sh PROGRAM ARGUMENTS...    one program
#   wine.sh --session COMMAND...    a command, with the prefix and a display at hand for all programs that it runs;
#                                   both are gone when it has ended
set -eu
here=$(cd "$(dirname "$0")" && pwd)
export WINEPREFIX="$here/../build/windows/wine" WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'

# The display is a file that the server writes its number into. It has no GLX: with it, every process loads a renderer of
# a hundred megabytes that nothing here draws with, and on a slow disk takes so long to leave it that Wine ends it by
# force: a process has half a second between its end on Windows and its end on the system.
start_display() {
    number=$(mktemp)
    Xvfb -displayfd 1 -extension GLX -screen 0 1600x1200x24 -nolisten tcp >"$number" 2>/dev/null &
    display=$!
    tries=0
    until [ -s "$number" ]; do
        tries=$((tries + 1))
        [ "$tries" -le 100 ] || { echo 'Xvfb does not start.' >&2 && exit 1; }
        sleep 0.1
    done
    DISPLAY=:$(cat "$number")
    export DISPLAY
    rm "$number"
}

end_session() {
    wineserver -k 2>/dev/null || true
    kill "$display" 2>/dev/null || true
}

if [ "${1:-}" != --session ]; then
    exec wine "$@"
fi
shift
display=''
trap end_session EXIT
trap 'exit 1' INT TERM HUP
start_display
mkdir -p "$WINEPREFIX"
wine wineboot -i 2>/dev/null
wine regedit "$here/wine.reg"
# Wine knows fonts of the system, but not where Debian keeps Wine's own, Tahoma among them.
cp -u /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts"
wineserver -k # what runs by now knows the fonts of before
"$@"
