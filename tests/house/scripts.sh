#!/usr/bin/env bash
# Every script explains itself in a screenful without doing anything, and refuses what it does not know.
set -euo pipefail
cd "$(dirname "$0")/../.."

screenful=25
failures=0
complain() {
    echo "$*"
    failures=$((failures + 1))
}

for script in scripts/*; do
    [ -x "$script" ] || continue
    lines=$(timeout 20 "$script" --help 2>&1 </dev/null | wc -l) || complain "$script --help fails"
    [ "$lines" -gt 0 ] && [ "$lines" -le "$screenful" ] || complain "$script --help prints $lines lines"
    if words=$(timeout 20 "$script" --no-such-word 2>&1 </dev/null); then
        complain "$script takes a word that it does not know"
    elif [[ $words != *no-such-word* && $words != *usage* ]]; then
        complain "$script does not say what is wrong with --no-such-word, but: $words"
    fi
done
[ "$failures" = 0 ]
