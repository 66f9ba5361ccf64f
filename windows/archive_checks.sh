# What the checks of the archives have in common. To be included; wants `here`, the folder of this file.
# shellcheck shell=sh

# shellcheck source=tests/support/package_check.sh
. "$here/../tests/support/package_check.sh"

# expect_files FOLDER FILE...
expect_files() {
    folder_of_files=$1
    shift
    for file; do
        [ -s "$folder_of_files/$file" ] || complain "$file is missing."
    done
}

inspect() { x86_64-w64-mingw32-objdump -p "$1"; }

# Of Windows' own libraries alone, and of no folder of the machine that has built it.
expect_runs_anywhere() {
    for library in $(inspect "$1" | sed -n 's/.*DLL Name: //p' | tr '[:upper:]' '[:lower:]'); do
        [ -f "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/$library" ] || [ "${library#api-ms-win-}" != "$library" ] ||
            complain "$(basename "$1") needs $library, which is not part of Windows."
    done
    ! grep -qF "$(dirname "$here")" "$1" || complain "$(basename "$1") names the folder that it was built in."
}
