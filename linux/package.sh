#!/bin/sh
# Packs what the preset `release` has built, with the libraries of this machine that it needs: package.sh BUILD_FOLDER
# ARCHIVE. The same build gives the same bytes.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
root=$(dirname "$here")
build=$(cd "$1" && pwd)

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
name=$(basename "$2" .tar.gz)
folder=$scratch/$name
cmake --install "$build" --prefix "$folder" --strip >/dev/null

# Of the names of a library the one that programs ask for: not every disk can have links.
for library in "$folder"/lib/*; do
    [ ! -L "$library" ] || mv "$(readlink -f "$library")" "$library"
done

# Who holds the rights is told by the packages that the libraries come from.
licences=$folder/licences
mkdir "$licences"
cp "$here/licences.txt" "$licences/README.txt"
(cd "$folder" && find lib plugins -name '*.so*' ! -name 'libtarnwell*') | sed 's,^lib/,*/,; s,^plugins/,*/qt6/plugins/,' |
    xargs dpkg-query -S | cut -d : -f 1 | sort -u |
    xargs dpkg-query -W -f '${source:Package} ${source:Version} ${Package}\n' | LC_ALL=C sort -u >"$scratch/packages"
while read -r source version package; do
    [ ! -f "$licences/$source.txt" ] || continue
    cp "/usr/share/doc/$package/copyright" "$licences/$source.txt"
    printf '%-24s %s\n' "$source" "$version" >>"$licences/README.txt"
done <"$scratch/packages"
for licence in $(grep -ho '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$licences"/*.txt | sort -u); do
    cp "$licence" "$licences/$(basename "$licence").txt"
done

# The time of the last change stands for all files.
changed=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct)}
tar -C "$scratch" --sort=name --mtime="@$changed" --owner=0 --group=0 --numeric-owner --mode=u=rwX,go=rX \
    -cf "$scratch/package.tar" "$name"
gzip -n "$scratch/package.tar"
mv "$scratch/package.tar.gz" "$2"
