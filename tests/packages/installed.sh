#!/usr/bin/env bash
# installed.sh BUILD SOURCES: what `cmake --install` puts where, whatever the folder's name, and that none of it
# knows the folder in which it was built. installed.txt lists the files; a component's name stands before those that
# only a kind of package gets.
set -euo pipefail
build=$1 sources=$2
here=$(cd "$(dirname "$0")" && pwd)
target=$(mktemp -d)
trap 'rm -rf "$target"' EXIT
prefix="$target/Vermessung Süd"

# listed COMPONENT: what the list has of it, pictures of the manual included.
listed() {
    {
        sed -n "s/^$1 //p" "$here/installed.txt"
        [ "$1" != manual ] || (cd "$sources/docs" && find pictures -type f -printf 'share/doc/tal-vero-connect/manual/%p\n')
    } | sort
}
found() { (cd "$prefix" && find . ! -type d -printf '%P\n' | sort); }

cmake --install "$build" --prefix "$prefix" >/dev/null
diff <({ listed program && listed manual && listed license; } | sort) <(found) ||
    { echo "installed is something else than listed" && exit 1; }
! grep -rlF -e "$build" -e "$sources" "$prefix" || { echo "know where they were built" && exit 1; }
for program in "$prefix"/bin/*; do
    ! readelf -dW "$program" | grep -E 'RPATH|RUNPATH' || { echo "$program looks for libraries itself" && exit 1; }
done
for component in debian archive; do
    rm -rf "$prefix"
    cmake --install "$build" --prefix "$prefix" --component "$component" >/dev/null
    diff <(listed "$component") <(found) || { echo "$component: installed is something else than listed" && exit 1; }
done
