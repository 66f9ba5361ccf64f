#!/bin/sh
# Prints the folder of the static Qt for Windows, and provides it first if it is not there yet. It lies in the user's
# cache and serves all checkouts. A ready archive is taken from the folder that TARNWELL_QT_WINDOWS names, or else from
# ../shared/qt-windows beside the checkout; without one, Qt is built from Debian's source package (about half an hour).
set -eu
here=$(cd "$(dirname "$0")" && pwd)
cache=${XDG_CACHE_HOME:-$HOME/.cache}/tarnwell-gui
# To be raised when what build_qt makes changes.
recipe=1

say() { printf '== %s\n' "$*" >&2; }

find_archive() {
    for file in ${TARNWELL_QT_WINDOWS:+"$TARNWELL_QT_WINDOWS"/*.tar.zst} "$here"/../../shared/qt-windows/*.tar.zst; do
        [ ! -f "$file" ] || break
    done
    [ ! -f "$file" ] || printf '%s\n' "$file"
}

unpack() {
    say "Unpacking the static Qt for Windows"
    zstd -qdc "$archive" | tar -x -C "$1" --strip-components=1
}

# The machine's own package sources name where source packages are. Lists of our own leave the machine's as they are.
fetch_source() {
    mkdir -p apt/parts apt/lists/partial apt/cache/archives/partial
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ ! -f "$file" ] || sed -n 's/^deb /deb-src /p' "$file"
    done >apt/sources.list
    for file in /etc/apt/sources.list.d/*.sources; do
        [ ! -f "$file" ] || sed 's/^Types:.*/Types: deb-src/' "$file" >"apt/parts/$(basename "$file")"
    done
    set -- -q -o Dir::Etc::SourceList="$PWD/apt/sources.list" -o Dir::Etc::SourceParts="$PWD/apt/parts" \
        -o Dir::State::Lists="$PWD/apt/lists" -o Dir::Cache="$PWD/apt/cache"
    # A source of packages that has none of source code is no reason to stop.
    apt-get "$@" update || true
    apt-get "$@" source --download-only qt6-base
    tar xf qt6-base_*.orig.tar.xz
    tar xf qt6-base_*.debian.tar.xz
    mv qtbase-everywhere-src-* source
    grep -i '^[^# ]*cve' debian/patches/series | while read -r patch; do
        patch -d source -p1 <"debian/patches/$patch"
    done
}

compile() {
    features=''
    for feature in sql dbus opengl dynamicgl opengl_dynamic vulkan printsupport xml concurrent tabletevent pdf icu openssl \
        system_zlib pkg_config; do
        features="$features -DFEATURE_$feature=OFF"
    done
    no_paths="-ffile-prefix-map=$PWD/source=."
    # shellcheck disable=SC2086
    cmake -G Ninja -S source -B build -DCMAKE_TOOLCHAIN_FILE="$here/mingw-w64.cmake" -DCMAKE_INSTALL_PREFIX="$1" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$(dirname "$(dirname "$(find /usr/lib -name Qt6Config.cmake)")")" \
        -DBUILD_SHARED_LIBS=OFF -DCMAKE_BUILD_TYPE=MinSizeRel -DCMAKE_C_FLAGS="$no_paths" -DCMAKE_CXX_FLAGS="$no_paths" \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DINPUT_opengl=no $features
    cmake --build build
    cmake --install build
}

# Two lines a minute are enough to see that it goes on.
tell_progress() {
    while sleep 30; do
        grep -o '^\[[0-9]*/[0-9]*\]' "$1" 2>/dev/null | tail -n 1 >&2 || true
    done
}

build_qt() {
    work=$1.build
    rm -rf "$work"
    mkdir "$work"
    say "Building the static Qt for Windows, about half an hour; the log is $work/log"
    tell_progress "$work/log" &
    progress=$!
    trap 'kill "$progress" 2>/dev/null' EXIT
    (cd "$work" && set -e && fetch_source && compile "$1") >"$work/log" 2>&1 </dev/null || {
        tail -n 30 "$work/log" >&2
        say "Building Qt failed; the log is $work/log"
        exit 1
    }
    rm -rf "$work"
}

archive=$(find_archive)
if [ -n "$archive" ]; then
    ready=$cache/qt-windows-$(sha256sum "$archive" | cut -c 1-12)
    provide=unpack
else
    ready=$cache/qt-windows-recipe-$recipe
    provide=build_qt
fi

mkdir -p "$cache"
# One at a time; and what was broken off is never taken for whole, because only what is complete gets the name.
exec 9>"$cache/qt-windows.lock"
flock 9
if [ ! -d "$ready" ]; then
    rm -rf "$ready.partial"
    mkdir "$ready.partial"
    "$provide" "$ready.partial"
    mv "$ready.partial" "$ready"
fi
printf '%s\n' "$ready"
