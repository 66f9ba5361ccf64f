# What the archives for Windows have in common. To be included; wants `root`, the folder of the sources.
# shellcheck shell=sh

# Notepad of older systems shows lines only if they end this way.
text() { sed 's/$/\r/' >"$1"; }

# add_licences FOLDER QT_VERSION: of what is linked into every program.
add_licences() {
    # The machine's own Qt tells more, if it is the same one.
    qt_source=$(dpkg-query -W -f '${source:Package} ${source:Version}' qt6-base-dev)
    case $qt_source in
    "qt6-base $2"*) ;;
    *) qt_source="qt6-base $2" ;;
    esac
    mkdir "$1/licences"
    text "$1/LICENSE.txt" <"$root/LICENSE"
    sed "s/@QT_VERSION@/$2/; s/@QT_SOURCE@/$qt_source/" "$root/windows/licences.txt" | text "$1/licences/README.txt"
    text "$1/licences/LGPL-3.txt" </usr/share/common-licenses/LGPL-3
    text "$1/licences/GPL-3.txt" </usr/share/common-licenses/GPL-3
    for licence in Qt:qt6-base-dev GCC:gcc-mingw-w64-x86-64-posix-runtime mingw-w64:mingw-w64-x86-64-dev; do
        text "$1/licences/${licence%%:*}.txt" <"/usr/share/doc/${licence#*:}/copyright"
    done
}

# pack FOLDER ZIP_FILE: the same files give the same bytes.
pack() (
    # The time of the last change stands for all files; zip knows no zone.
    export TZ=UTC
    changed=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct)}
    find "$1" -exec touch -h -d "@$changed" {} +
    find "$1" -type f -exec chmod 644 {} +
    rm -f "$2"
    cd "$1/.."
    find "$(basename "$1")" -type f | LC_ALL=C sort | zip -q -9 -X -@ package.zip
    mv package.zip "$2"
)
