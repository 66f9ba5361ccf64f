#!/bin/sh
# Unpacks the program on clean systems, which have no Qt and no desktop, only the few libraries that every desktop has, and
# looks at it as its user: test_package.sh ARCHIVE BUILD_FOLDER [SUITE...], suites of Debian. The systems are kept in
# BUILD_FOLDER/clean-systems, beside the pictures of what was seen. Wants no rights but to make namespaces.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
archive=$1
build=$(cd "$2" && pwd)
shift 2
[ $# -gt 0 ] || set -- bookworm trixie

# What left-to-the-system.txt names, by Debian's names; keyboards and letters.
packages='libstdc++6,libx11-6,libx11-xcb1,libxcb1,libwayland-client0,libwayland-cursor0,libbrotli1,libfontconfig1'
packages="$packages,libfreetype6,libharfbuzz0b,libpng16-16,libdbus-1-3,libglib2.0-0,libuuid1,zlib1g,libzstd1"
packages="$packages,xkb-data,fonts-dejavu-core"

# shellcheck source=tests/support/package_check.sh
. "$here/../tests/support/package_check.sh"
# shellcheck source=tests/support/display.sh
. "$here/../tests/support/display.sh"

systems=$build/clean-systems
mkdir -p "$systems"
export XDG_RUNTIME_DIR="$scratch/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"

say() { printf '   %s\n' "$*"; }

# Where the system of a suite lies, packed. It is made anew if other packages are asked for.
clean_system() {
    system=$systems/$1-$(echo "$packages" | cksum | cut -d ' ' -f 1).tar
    if [ ! -f "$system" ]; then
        rm -f "$systems/$1"-*
        mmdebstrap --quiet --variant=minbase --format=tar --include="$packages" "$1" "$system.partial" >&2
        mv "$system.partial" "$system"
    fi
    echo "$system"
}

# The scenes are played by the tour, which is not in the package: it gets what the program has, and the demo's tool.
furnish() {
    mkdir -p "$1/home/user/PS2 tools" "$1/run/display" "$1/tmp/.X11-unix"
    tar -xzf "$archive" -C "$1/home/user/PS2 tools"
    mv "$1/home/user/PS2 tools"/* "$1/home/user/PS2 tools/Tarnwell"
    folder="$1/home/user/PS2 tools/Tarnwell"
    cp "$build/bin/tarnwell-tour" "$here/../tests/support/screens.json" "$folder/demo/"* "$folder"
    cp "$(ldd "$build/bin/tarnwell-tour" | awk '/libQt6Test/ { print $3 }')" "$folder/lib"
}

# Becomes a program of the folder in a system, with no other settings, no other network and the displays of this machine.
inside() {
    root=$1
    shift
    # shellcheck disable=SC2016
    exec env -i PATH="$PATH:/usr/sbin" unshare --map-root-user --mount --net sh -c '
        root=$1 runtime=$2
        shift 2
        ip link set lo up
        for place in proc dev sys tmp/.X11-unix; do
            mount --rbind "/$place" "$root/$place"
        done
        mount --bind "$runtime" "$root/run/display"
        cd "$root/home/user/PS2 tools/Tarnwell"
        exec chroot "$root" env HOME=/home/user LANG=C.UTF-8 XDG_RUNTIME_DIR=/run/display sh -c "cd \"/home/user/PS2 tools/Tarnwell\" && exec env \"\$@\"" sh "$@"
    ' sh "$root" "$XDG_RUNTIME_DIR" "$@"
}

play() {
    pictures=$systems/pictures/$suite-$1
    seen="$scratch/$suite/home/user/PS2 tools/Tarnwell/pictures"
    rm -rf "$pictures" "$seen"
    shift
    last=$1
    shift
    (inside "$scratch/$suite" "$@" ./tarnwell-tour pictures "$last") >"$scratch/words" 2>&1 ||
        complain "$suite: $(cat "$scratch/words")"
    mkdir -p "$systems/pictures"
    [ ! -d "$seen" ] || cp -R "$seen" "$pictures"
}

window_up() { xwininfo -root -tree | grep -q '" *Tarnwell GUI v'; }
window_gone() { ! window_up; }

open_demo() {
    inside "$scratch/$suite" DISPLAY="$DISPLAY" demo/start-demo >"$scratch/words" 2>&1 &
    program=$!
    wait_for window_up || complain "$suite: the demo opens no window: $(cat "$scratch/words")"
    kill "$program" || true
    wait_for window_gone || complain "$suite: the demo does not end."
}

# Nested, with a mouse and keys, which it does not have off screen: Qt counts on them. It takes the keys of its display, so
# it is up no longer than it is needed.
play_under_wayland() {
    weston --backend=x11-backend.so --use-pixman --socket=wayland-test --width=1500 --height=1100 --idle-time=0 \
        >"$scratch/weston" 2>&1 &
    compositor=$!
    wait_for test -S "$XDG_RUNTIME_DIR/wayland-test" || complain "$(cat "$scratch/weston")"
    play wayland image-read QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=wayland-test
    kill "$compositor"
    wait "$compositor" || true
    compositor=''
}

compositor=''
trap 'kill "$display" $compositor 2>/dev/null || true; rm -rf "$scratch"' EXIT
start_display

for suite in "$@"; do
    echo "== $suite"
    system=$(clean_system "$suite")
    mkdir "$scratch/$suite"
    tar -xf "$system" -C "$scratch/$suite" --no-same-owner --exclude='./dev/*'
    [ -z "$(find "$scratch/$suite" -name 'libQt*')" ] || complain "$suite has a Qt of its own."
    furnish "$scratch/$suite"
    say 'The tour off screen'
    play offscreen activity QT_QPA_PLATFORM=offscreen:configfile=screens.json
    say 'The tour under X11'
    play x11 activity QT_QPA_PLATFORM=xcb DISPLAY="$DISPLAY"
    say 'The tour under Wayland'
    play_under_wayland
    say 'The demo under X11'
    open_demo
    rm -rf "${scratch:?}/$suite"
done
exit "$wrong"
