#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Rules and dashboard ask only for metrics that monitor/Metrics.cpp writes, and docs/fleet.md lists each of these.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

# names <pattern> <file…>: there may be none.
names() {
    { grep -ohE "$@" || true; } | sort -u
}

written=$(names '"halvane_[a-z_]+"' monitor/Metrics.cpp | tr -d '"')
recorded=$(names 'record: halvane:[a-z_:]+' packaging/monitoring/halvane.rules.yml | cut -d' ' -f2)
{
    for path in $(files 'packaging/monitoring/*.yml' 'packaging/monitoring/*.json' docs/fleet.md); do
        names '\bhalvane[_:][a-z_:]+\b' "$path" |
            comm -23 - <(printf '%s\n' "$written" "$recorded" | sort -u) | sed "s|^|$path: there is no |"
    done
    names '`halvane_[a-z_]+`' docs/fleet.md | tr -d '`' | comm -13 - <(printf '%s\n' "$written") |
        sed 's|^|docs/fleet.md: does not tell of |'
} | verdict "Metrics that are asked for and written differ:"
