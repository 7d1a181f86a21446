#!/usr/bin/env bash
# versions.sh SOURCES TEXTS VERSION DAY: whatever tells the version or the day tells the same as CMakeLists.txt.
# TEXTS is the folder of the build with what linux/ was filled in to.
set -euo pipefail
sources=$1 texts=$2 version=$3 day=$4
failures=0
# expect WHERE TOLD: complains unless the version is told.
expect() {
    [ "$2" = "$version" ] || { echo "$1 says \"$2\", CMakeLists.txt $version" && failures=$((failures + 1)); }
}
first() { sed -n "s/$1/\\1/p" "$2" | head -n 1; }

expect CHANGELOG.md "$(awk -f "$sources/linux/changelog.awk" -v form=version "$sources/CHANGELOG.md")"
expect docs/manual.md "$(first '.*`TAL-VERO Connect Version: \([0-9.]*\)`.*' "$sources/docs/manual.md")"
expect "Debian's changelog" "$(first 'tal-vero-connect (\(.*\)-1) .*' "$texts/changelog.Debian")"
expect "the rpm's changelog" "$(first '\* .*> \(.*\)-1$' "$texts/changelog.rpm")"
expect "the metainfo" "$(first '.*<release version="\([^"]*\)" date="'"$day"'".*' "$texts"/*.metainfo.xml)"
expect README.txt "$(first 'TAL-VERO Connect \([^ ]*\) for Linux.*' "$texts/README.txt")"
for page in "$texts"/*.1; do
    expect "$(basename "$page")" "$(first '^\.TH .* "'"$day"'" "TAL\\-VERO Connect \([^"]*\)".*' "$page")"
done
[ "$failures" = 0 ]
