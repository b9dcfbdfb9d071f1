#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# includes.sh <root> <folder of widget headers…>: an include never points to a higher floor, files do not include each other
# in a ring, the monitor and the floors below the reports include no header of QtWidgets or QtCharts, and every quoted include begins at
# the root of the tree.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"
shift

widgets=$(for folder in "$@"; do find "$folder/" -type f -printf '%f\n'; done | sort -u)
[ "$(wc -l <<<"$widgets")" -gt 100 ] || {
    echo "the widget headers of Qt are not in $*" >&2
    exit 1
}
floors='platform state inventory smart scan clone update monitor reports ui app companion tour'
patterns=()
for floor in $floors; do patterns+=("$floor/*.cpp" "$floor/*.h"); done
list=$(files "${patterns[@]}")

# A file and its header count as one. The header of a form is generated and left out.
# shellcheck disable=SC2086  # one word per file; none of ours has a blank
rings=$(awk '
    function unit(path) { sub(/\.(h|cpp)$/, "", path); return path }
    /^#include "/ {
        split($0, part, "\"")
        if (unit(part[2]) != unit(FILENAME) && part[2] !~ /^ui_|\.moc$/)
            print unit(FILENAME), unit(part[2])
    }' $list | tsort 2>&1 >/dev/null | grep -v 'contains a loop' || true)
[ -z "$rings" ] || printf '%s\n' "$rings" | verdict "Files that include each other in a ring:"

# shellcheck disable=SC2086  # one word per file; none of ours has a blank
awk -v widgets="$widgets" '
    function floorOf(path) {
        if (path ~ /^platform\//) return 1
        if (path ~ /^state\//) return 2
        if (path ~ /^inventory\//) return 3
        if (path ~ /^(smart|scan|clone|update)\//) return 4
        if (path ~ /^(monitor|reports)\//) return 5
        if (path ~ /^ui\/widgets\//) return 6.1
        if (path ~ /^ui\/dialogs\// || path ~ /^ui_[A-Za-z]+\.h$/) return 6.2
        if (path ~ /^ui\/screens\//) return 6.3
        if (path ~ /^ui\//) return 6.4
        if (path ~ /^(app|companion)\//) return 7
        if (path ~ /^tour\//) return 8
        return 0
    }
    BEGIN { n = split(widgets, names, "\n"); for (i = 1; i <= n; ++i) isWidget[names[i]] = 1 }
    !/^[ \t]*#[ \t]*include[ \t]*[<"]/ { next }
    {
        included = $0
        sub(/^[^<"]*[<"]/, "", included)
        sub(/[>"].*$/, "", included)
        where = FILENAME ":" FNR ": " included
        own = floorOf(FILENAME)
        its = floorOf(included)
        name = included
        sub(/.*\//, "", name)
        if (its > own)
            print where ": points upwards"
        if (FILENAME ~ /^companion\// && included ~ /^(app|ui\/(screens|window))\//)
            print where ": what the companion does not know"
        if ((own <= 4 || FILENAME ~ /^monitor\//) && (name in isWidget || included ~ /^(QtWidgets|QtCharts)\//))
            print where ": a widget below the reports"
        if (its == 0 && $0 ~ /include[ \t]*"/ && included !~ /^[A-Za-z_]+\.moc$/)
            print where ": does not begin at the root of the tree"
    }' $list | verdict "Includes that break the order of the floors (docs/architecture.md):"
