#!/usr/bin/env bash
# includes.sh <root> <folder of widget headers…>: an include never points upwards, the floors without widgets include no
# header of QtWidgets or QtCharts, and every quoted include begins at the root of the tree.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"
shift

widgets=$(for folder in "$@"; do find "$folder/" -type f -printf '%f\n'; done | sort -u)
[ "$(wc -l <<<"$widgets")" -gt 100 ] || {
    echo "the widget headers of Qt are not in $*" >&2
    exit 1
}
list=$(files 'platform/*.cpp' 'platform/*.h' 'app/*.cpp' 'app/*.h' 'inventory/*.cpp' 'inventory/*.h' 'smart/*.cpp' \
    'smart/*.h' 'scan/*.cpp' 'scan/*.h' 'clone/*.cpp' 'clone/*.h' 'update/*.cpp' 'update/*.h' 'reports/*.cpp' \
    'reports/*.h' 'ui/*.cpp' 'ui/*.h')

# shellcheck disable=SC2086  # one word per file; none of ours has a blank
awk -v widgets="$widgets" '
    function floorOf(path) {
        if (path ~ /^platform\//) return 1
        if (path ~ /^app\/state\//) return 2
        if (path ~ /^inventory\//) return 3
        if (path ~ /^(smart|scan|clone|update)\//) return 4
        if (path ~ /^reports\//) return 5
        if (path ~ /^ui\// || path ~ /^ui_[A-Za-z]+\.h$/) return 6
        if (path ~ /^app\//) return 7
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
        if (own <= 4 && (name in isWidget || included ~ /^(QtWidgets|QtCharts)\//))
            print where ": a widget below the reports"
        if (its == 0 && $0 ~ /include[ \t]*"/ && included !~ /^[A-Za-z_]+\.moc$/)
            print where ": does not begin at the root of the tree"
    }' $list | verdict "Includes that break the order of the floors (docs/architecture.md):"
