#!/bin/sh
# leaves_nothing.sh TEST [ARGUMENT...]: runs a test with a temporary folder and a runtime folder of its own. It fails if
# anything is left in the temporary folder at its end; what browsers and desktops keep in a runtime folder is their own.
own=$(mktemp -d) || exit
trap 'rm -rf "$own"' EXIT
trap 'exit 1' INT TERM
chmod 755 "$own"
mkdir -m 1777 "$own/tmp" # for everybody, as the system's: some tests are an ordinary user for a while
mkdir -m 700 "$own/runtime"

TMPDIR=$own/tmp XDG_RUNTIME_DIR=$own/runtime "$@"
result=$?

left=$(find "$own/tmp" -mindepth 1)
if [ -n "$left" ]; then
    printf 'The test has left behind:\n%s\n' "$left"
    [ $result -ne 0 ] || result=1
fi
exit $result
