#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Each row of "Where is it decided?" in docs/architecture.md names a file that exists and functions that this file defines.
# A header may also only declare them.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

page=docs/architecture.md
least=25

# Of each row of the table: its line number, its file, and a function; a row with two functions gives two lines.
rows() {
    awk -F '|' '
        /^## / { inside = $0 == "## Where is it decided?" }
        inside && /^\| / && $2 !~ /^ (rule|-+) $/ {
            gsub(/[` ]/, "", $3)
            count = split($4, names, ",")
            for (i = 1; i <= count; ++i) {
                gsub(/[` ]/, "", names[i])
                print NR, ($3 == "" ? "-" : $3), (names[i] == "" ? "-" : names[i])
            }
        }' "$page"
}

# A definition begins at the left margin, or one step in if it is in a class. It has a type before the name; a call has
# nothing there, or a keyword.
defines() {
    # Not -q: the second grep would end first, and the broken pipe of the first one would count as a failure.
    grep -vE '^ *(//|return |else |throw |delete )' "$1" |
        grep -E "^( {4})?[A-Za-z][A-Za-z0-9_:<>*&, ]*[ *&>]$2\(" >/dev/null
}

{
    count=$(rows | cut -d ' ' -f 1 | uniq | wc -l)
    [ "$count" -ge "$least" ] || echo "$page: $count rules in the table, at least $least are wanted"
    while read -r line file name; do
        if [ ! -f "$file" ]; then
            echo "$page:$line: no file $file"
        elif ! defines "$file" "$name"; then
            echo "$page:$line: no function $name in $file"
        fi
    done < <(rows)
} | verdict "The table of decisions does not fit the code:"
