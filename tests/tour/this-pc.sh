#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Collects this machine, with two loop devices as its disks: the tour of the collection shows what that of the machine shows.
#
# Usage: this-pc.sh FOLDER     FOLDER has the programs.
set -euo pipefail
skip() {
    echo "SKIP: $*"
    exit 77
}

[ "$(id -u)" = 0 ] || skip "only root makes loop devices"
if [ -z "${HALVANE_OWN_PLACES:-}" ]; then
    own=(unshare --mount --mount-proc --pid --fork --kill-child)
    "${own[@]}" true 2>/dev/null || skip "no mounts and processes of its own are to be had"
    HALVANE_OWN_PLACES=1 exec "${own[@]}" bash "$0" "$@"
fi
bin=$1
work=$(mktemp -d)
# Nobody else sees these: settings and history begin anew, and those of this machine are not touched. Nor is a companion: the
# program of a fresh machine ends those that it sees.
places=({/etc,/var/lib,/run}/velmora-halvane "$bin/history")
made=()
loops=()
clean() {
    set +e
    mountpoint -q "$work/volume" && umount "$work/volume"
    for loop in "${loops[@]}"; do losetup --detach "$loop"; done
    for place in "${places[@]}"; do mountpoint -q "$place" && umount --lazy "$place"; done
    for place in "${made[@]}"; do rmdir "$place"; done
    rm -rf "$work"
}
trap clean EXIT
for place in "${places[@]}"; do
    [ -d "$place" ] || { mkdir "$place" && made+=("$place"); }
    mount -t tmpfs -o mode=0700 tmpfs "$place"
done

# disk <name> <size> <script of sfdisk>: sets $loop.
disk() {
    truncate -s "$2" "$work/$1"
    [ -z "$3" ] || printf '%b' "$3" | sfdisk --quiet "$work/$1"
    loop=$(losetup --find --show --partscan "$work/$1" 2>/dev/null) || skip "there is no loop device to be had"
    loops+=("$loop")
}

# One volume is in use.
disk one 96M ''
mkfs.ext2 -q -L Größe "$loop"
mkdir "$work/volume"
mount "$loop" "$work/volume"
disk two 48M 'label: dos\nsize=20M,type=83\ntype=5\nsize=8M,type=7\n'
udevadm settle 2>/dev/null || true
unset HALVANE_PC
HALVANE_DISKS=$(IFS=:; echo "${loops[*]}")
export HALVANE_DISKS QT_QPA_PLATFORM=offscreen

# shown <name> <argument of the tour…>
shown() {
    "$bin/halvane_tour" "${@:2}" "$work/$1-out" >"$work/log" 2>&1 || {
        cat "$work/log"
        echo "the tour of the $1 fails"
        exit 1
    }
    jq -e '(.steps | length > 3) and .failed == []' "$work/$1-out/screens.json" >/dev/null || {
        echo "the tour of the $1 has failed steps, or hardly any"
        exit 1
    }
    jq -S 'del(.pc)' "$work/$1-out/screens.json" >"$work/$1.json"
}

"$bin/VelmoraSMART" --collect "$work/case"
shown machine --this-pc
shown collection --pc "$work/case"
diff "$work/machine.json" "$work/collection.json" || {
    echo "the collection shows something else"
    exit 1
}
jq -e '[.steps[].combos[].items[].data | numbers] | unique == [128, 129]' "$work/machine.json" >/dev/null || {
    echo "the tour does not show the two disks"
    exit 1
}
