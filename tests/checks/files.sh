# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Sourced by the checks. Goes to the root of the tree, which is the first argument.
set -euo pipefail
export LC_ALL=C.UTF-8
cd "$1"

# All files of the tree: those that git tracks, or all if the tree is not under git.
tree() {
    if [ -e .git ]; then
        git -c safe.directory='*' -c core.quotePath=false ls-files
    else
        find . -type f -not -path './build*' -not -path './out/*' -not -path './dist/*' -printf '%P\n'
    fi
}

# files <pattern…>: those that match a pattern; * also matches a slash. Fails if there are none, because the check then
# looks in the wrong place.
files() {
    local path pattern some=""
    while IFS= read -r path; do
        for pattern in "$@"; do
            # shellcheck disable=SC2053  # a pattern
            if [[ $path == $pattern && -f $path ]]; then
                printf '%s\n' "$path"
                some=1
                break
            fi
        done
    done < <(tree)
    [ -n "$some" ] || {
        echo "no file fits $*" >&2
        return 1
    }
}

# verdict <sentence>: ends the check. It fails if there are complaints on standard input.
verdict() {
    local complaints
    complaints=$(cat)
    [ -n "$complaints" ] || exit 0
    printf '%s\n%s\n' "$1" "$complaints" >&2
    exit 1
}
