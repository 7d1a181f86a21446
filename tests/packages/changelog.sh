#!/usr/bin/env bash
# changelog.sh FORM: changelog/sample.md in a form of linux/changelog.awk is what changelog/FORM holds.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
awk -f "$here/../../linux/changelog.awk" -v form="$1" -v today=2027-01-01 -v who='Who <who@where.example>' \
    "$here/changelog/sample.md" | diff "$here/changelog/$1" -
# An unreleased version has today's day, and no time of its own.
case $1 in
day) expected=2027-01-01 ;;
epoch) expected= ;;
*) exit 0 ;;
esac
told=$(printf '## 2.0 (unreleased)\n' |
    awk -f "$here/../../linux/changelog.awk" -v form="$1" -v today=2027-01-01)
[ "$told" = "$expected" ] || { echo "unreleased: \"$told\" instead of \"$expected\"" && exit 1; }
