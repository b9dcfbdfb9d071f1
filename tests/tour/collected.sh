#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# collected.sh <root> <folder of the programs>: the tour of a collected PC shows what that of the original shows. Three
# described PCs, one of them also without serial numbers, and this machine, which is collected once more from its own collection.
set -euo pipefail
root=$1
bin=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen

# screens <pc>: leaves in <pc>.json what the tour shows of it, but for the name.
screens() {
    HALVANE_PC=$work/$1 "$bin/halvane_tour" "$work/$1-out" >"$work/$1.log" 2>&1 || {
        cat "$work/$1.log"
        echo "the tour of $1 fails"
        exit 1
    }
    jq -e '(.steps | length > 3) and .failed == []' "$work/$1-out/screens.json" >/dev/null || {
        echo "the tour of $1 has failed steps, or hardly any"
        exit 1
    }
    jq -S 'del(.pc)' "$work/$1-out/screens.json" >"$work/$1.json"
}

# same <pc> <collected> [expected status]
same() {
    local status=0
    HALVANE_PC=$work/$1 "$bin/VelmoraSMART" --collect "$work/$2" || status=$?
    [ "$status" -eq "${3:-0}" ] || {
        echo "--collect of $1 ends with $status"
        exit 1
    }
    screens "$1"
    screens "$2"
    diff "$work/$1.json" "$work/$2.json" || {
        echo "the collection of $1 shows something else"
        exit 1
    }
}

"$root/demo/make-pc" "$work/demo"
# The tour of the demo also scans and clones, for which the content of the disks would be needed.
jq 'del(.tour)' "$work/demo/pc.json" >"$work/pc.json" && mv "$work/pc.json" "$work/demo/pc.json"
same demo demo-collected
HALVANE_PC=$work/demo "$bin/VelmoraSMART" --collect "$work/anonymous" --anonymous
screens anonymous
serials=$(sed -n 's/^Serial Number: *//p' "$root"/demo/reports/*.txt | paste -sd '|')
diff <(sed -E "s/$serials/S/g" "$work/demo.json") <(sed -E 's/ANON[0-9]+/S/g' "$work/anonymous.json") || {
    echo "the anonymous collection of the demo shows something else besides serial numbers"
    exit 1
}

mkdir "$work/japanese" "$work/closed"
cp "$root/demo/reports/disk0.txt" "$work/japanese"
printf '{"disks": [{"number": 0, "model": "N", "interface": "SCSI", "sectors": 4096, "report": "disk0.txt"},
    {"number": 3, "media": "removable", "model": "S", "interface": "USB", "serial": "A/B", "sectors": 4096}],
    "volumes": [{"letter": "C", "label": "ü \\"x\\"", "fileSystem": "NTFS", "size": 9000000, "free": 5, "bitLocker": "None",
        "extents": [{"disk": 0, "offset": 1024, "length": 9000000}]}, {"letter": "D", "type": "cdrom"}],
    "settings": {"LanguageType": "5", "TempValue": "F"}}' >"$work/japanese/pc.json"
same japanese japanese-collected

printf '{"disks": [{"number": 0, "model": "N", "sectors": 4096, "opens": false}], "smartctl": false}' >"$work/closed/pc.json"
same closed closed-collected 1 # no disk could be read

# What the companion reads of each disk, but for what may change in a minute.
disks() {
    { "$@" "$bin/VelmoraSMART" --once --json || true; } | # the exit code tells of the disks
        jq -sS '.[0].disks | map(del(.temperatureC, .powerOnHours, .lifeDays) | .attributes |= map({id, name, threshold, status}))'
}

status=0
env -u HALVANE_PC "$bin/VelmoraSMART" --collect "$work/machine" || status=$?
[ "$status" -le 1 ] # 1: without root's rights, or without a disk
disks env -u HALVANE_PC >"$work/machine.json"
disks env HALVANE_PC="$work/machine" >"$work/collected.json"
diff "$work/machine.json" "$work/collected.json" || {
    echo "the collection of this machine tells something else of its disks"
    exit 1
}
same machine machine-collected "$status"
