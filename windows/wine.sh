#!/bin/sh
# Runs what was built for Windows under Wine, in a prefix that belongs to the build alone.
#   wine.sh PROGRAM ARGUMENTS...    one program
#   wine.sh --session COMMAND...    a command, with the prefix and a display at hand for all programs that it runs;
#                                   both are gone when it has ended
set -eu
here=$(cd "$(dirname "$0")" && pwd)
export WINEPREFIX="$here/../build/windows/wine" WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'

# shellcheck source=tests/support/display.sh
. "$here/../tests/support/display.sh"

# Waits for as long as the session lasts. With the first program come services and desktop of Wine, which hold its streams
# until no program runs any more: a test would seem to last until the others have ended, too, and run out of its time.
start_first_program() {
    never=$(mktemp -u)
    mkfifo "$never"
    exec 8<>"$never"
    rm "$never"
    wine cmd <&8 8<&- >/dev/null 2>&1 &
    wine rundll32 user32.dll,GetDesktopWindow 8<&- >/dev/null 2>&1 # when it has ended, both are there
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
start_first_program
"$@" 8<&-
