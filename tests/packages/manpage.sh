#!/usr/bin/env bash
# manpage.sh PROGRAM PAGE: the page knows every option that the program's --help tells.
set -euo pipefail
page=$(sed 's/\\-/-/g' "$2")
options=$("$1" --help | grep -oE '(^|, )? +--?[a-z][a-z-]*' | grep -oE -- '--[a-z-]+' | sort -u | grep -vx -e --help-all)
[ -n "$options" ]
missing=0
for option in $options; do
    grep -qE -- "^\.B[RI]? $option( |\$)" <<<"$page" || { echo "$option is not in $2" && missing=1; }
done
exit "$missing"
