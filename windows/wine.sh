#!/bin/sh
# Runs a program built for Windows, in a prefix of Wine's that belongs to the build alone: wine.sh PROGRAM ARGUMENTS...
set -eu
: "${TARNWELL_WINEPREFIX:=$(cd "$(dirname "$0")/.." && pwd)/build/windows/wine}"
export WINEPREFIX="$TARNWELL_WINEPREFIX" WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
exec wine "$@"
