#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Traces the companion on a loop device of its own: no block device is ever opened for writing, volumes are
# looked into by a collection only, and a disk without SMART is told as such.
#
# Usage: opens.sh FOLDER [SECONDS]     FOLDER has the executable; the resident one runs for so long, 5 s by default.
set -euo pipefail
skip() {
    echo "SKIP: $*"
    exit 77
}

[ "$(id -u)" = 0 ] || skip "only root makes loop devices"
strace -f -o /dev/null true 2> /dev/null || skip "there is no strace, or it may not trace"
if [ -z "${HALVANE_OWN_PLACES:-}" ]; then
    unshare --mount true 2> /dev/null || skip "no mounts of its own are to be had"
    HALVANE_OWN_PLACES=1 exec unshare --mount "$0" "$@"
fi
# Nobody else sees these, and what root's companion keeps on this PC is not touched.
made=()
for place in /etc /var/lib /run; do
    mkdir "$place/velmora-halvane" 2> /dev/null && made+=("$place/velmora-halvane")
    mount -t tmpfs -o mode=0700 tmpfs "$place/velmora-halvane"
done
scratch=$(mktemp -d)
export QT_QPA_PLATFORM=offscreen
truncate -s 64M "$scratch/image"
mkfs.ext2 -q -L Größe "$scratch/image" # a label that only the volume itself tells as it is
mkdir "$scratch/volume"
HALVANE_DISKS=
clean() {
    umount "$scratch/volume" 2> /dev/null || true
    [ -z "$HALVANE_DISKS" ] || losetup -d "$HALVANE_DISKS"
    umount /etc/velmora-halvane /var/lib/velmora-halvane /run/velmora-halvane
    rmdir "${made[@]}" 2> /dev/null || true
    rm -rf "$scratch"
}
trap clean EXIT
HALVANE_DISKS=$(losetup --find --show "$scratch/image" 2> /dev/null) || skip "there is no loop device to be had"
export HALVANE_DISKS
mount "$HALVANE_DISKS" "$scratch/volume"

traced() { # traced NAME COMMAND…: the opens and starts of the command and of all that it starts go to the file NAME
    strace -f -s 200 -e trace=execve,open,openat,openat2,creat -o "$scratch/$1" "${@:2}"
}

code=0
traced once "$1/VelmoraSMART" --once --json > "$scratch/told" || code=$?
state=$(jq -r '.disks[] | .state' "$scratch/told")
[ "$state $code" = "notSupported 3" ] || { echo "a disk without SMART is told as: $state, code $code"; exit 1; }
"$1/VelmoraSMART" --once --metrics > "$scratch/metrics" || true # the code tells of the disks
grep -q '^halvane_volume_size_bytes' "$scratch/metrics" || { echo "the metrics tell of no volume"; exit 1; }
traced collect "$1/VelmoraSMART" --collect "$scratch/collected" > "$scratch/told" || { echo "it cannot collect"; exit 1; }
code=0
traced resident timeout "${2:-5}" "$1/VelmoraSMART" Schedular || code=$?
[ $code = 124 ] || { echo "the resident one ended with $code"; exit 1; }

for name in once collect resident; do
    grep -q "\"$HALVANE_DISKS\"" "$scratch/$name" || { echo "$name: the disk was not looked at"; exit 1; }
    [ $name = collect ] || ! grep -q 'execve("[^"]*/blkid"' "$scratch/$name" || { echo "$name: a volume was looked into"; exit 1; }
    opened=0
    while read -r path flags; do
        [ -b "$path" ] || continue
        opened=$((opened + 1))
        [[ $flags != *O_WRONLY* && $flags != *O_RDWR* && $flags != creat* ]] ||
            { echo "$name: $path is opened with $flags"; exit 1; }
    done < <(sed -nE 's/^[0-9]+ +(open|openat|openat2|creat)\(([A-Z_]+, )?"([^"]*)", ?(.*)$/\3 \1 \4/p' "$scratch/$name")
    [ $name != collect ] || [ $opened -gt 0 ] || { echo "$name: nothing was read"; exit 1; }
    echo "$name: opens a block device $opened times, never for writing"
done
