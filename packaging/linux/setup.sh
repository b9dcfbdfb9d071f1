# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154
# Functions for scripts that install packages and build. $root is the root of the tree.

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# install_packages [system…]: installs the missing packages of packaging/<system>/packages.txt, by default those of linux.
# If it cannot, it names them and ends with 1.
install_packages() {
    local wanted missing as_root=() lists=()
    local system
    for system in "${@:-linux}"; do
        lists+=("$root/packaging/$system/packages.txt")
    done
    wanted=$(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "${lists[@]}")
    missing=$(comm -23 <(sort -u <<<"$wanted") \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' 2>/dev/null | sed -n 's/^installed //p' | sort -u) |
        tr '\n' ' ')
    [ -n "${missing// /}" ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "These Debian packages are missing: $missing
Install them as root: apt-get install --no-install-recommends $missing"
        as_root=(sudo)
    fi
    printf 'Installing %s\n' "$missing" >&2
    # shellcheck disable=SC2086  # one word per package
    quietly "The packages could not be installed." \
        "${as_root[@]}" sh -c 'apt-get update && DEBIAN_FRONTEND=noninteractive \
            apt-get install -y --no-install-recommends "$@"' sh $missing
}

# quietly <sentence> <command…>: shows the output of a command only if it fails, and then ends with 1.
quietly() {
    local sentence=$1 log
    shift
    log=$(mktemp)
    if ! "$@" >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        rm -f "$log"
        fail "$sentence"
    fi
    rm -f "$log"
}

# build <preset> <folder> [target…]: configures if that was not done yet, and builds. One build at a time per folder.
build() {
    local preset=$1 folder=$root/$2 lock
    shift 2
    mkdir -p "$folder"
    exec {lock}>"$folder/.lock"
    flock "$lock"
    if [ ! -f "$folder/build.ninja" ]; then
        printf 'Building into %s; the first time takes some minutes.\n' "$folder" >&2
        (cd "$root" && quietly "The build could not be configured." cmake --preset "$preset") || exit 1
    elif ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        # The tree was moved or copied together with its build.
        (cd "$root" && quietly "The build could not be configured." cmake --fresh --preset "$preset") || exit 1
    fi
    quietly "The build failed." ninja --quiet -C "$folder" "$@"
    exec {lock}>&-
}
