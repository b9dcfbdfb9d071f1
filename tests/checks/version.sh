#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# version.sh <root>: the version stands in CMakeLists.txt alone, in a form that the update understands. The changelog begins
# with it or with what is unreleased, and each brand's installer takes it from there. So About, the installers, --version and
# the changelog agree.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

version=$(sed -nE 's/^project\(.* VERSION ([^ )]+).*/\1/p' CMakeLists.txt)
{
    [[ $version =~ ^[0-9]{1,2}(\.[0-9]){3}$ ]] ||
        echo "CMakeLists.txt: '$version' is not M.m.r.b with one or two digits in the first field and one in each other"
    heading=$(grep -m 1 '^## \[' CHANGELOG.md || true)
    if [ "$heading" = "## [Unreleased]" ]; then
        # An older release below is in order, a newer one is not.
        last=$(sed -nE 's/^## \[([0-9.]+)\].*/\1/p' CHANGELOG.md | head -n 1)
        [ "$(printf '%s\n' "$last" "$version" | sort -V | tail -n 1)" = "$version" ] ||
            echo "CHANGELOG.md: $last is newer than $version of CMakeLists.txt"
    else
        [[ $heading =~ ^"## [$version] - "[0-9]{4}-[0-9]{2}-[0-9]{2}$ ]] ||
            echo "CHANGELOG.md: begins with '$heading', not with [Unreleased] or [$version] and its date"
    fi
    for path in $(files 'packaging/product/*.json'); do
        [ "$(jq -r '.settings.rxVersion' "$path")" = @VERSION@ ] || echo "$path: rxVersion is not @VERSION@"
    done
    # Examples in comments and documents do no harm; a value in quotes would be shown or written some day.
    list=$(files '*.cpp' '*.h' '*.in' '*.json' '*.nsi' '*.sh' | grep -vE '^(tests|fuzz)/')
    # shellcheck disable=SC2086  # one word per file; none of ours has a blank
    grep -nF "\"$version\"" $list | grep -v '///' || true
} | verdict "The version is not in one place:"
