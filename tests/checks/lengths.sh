#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# No file has more than 500 lines, unless tests/checks/long-files.txt gives a reason.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

allowed=tests/checks/long-files.txt
list=$(files '*.cpp' '*.h' '*.ui' '*.cmake' '*CMakeLists.txt' '*.sh' 'run' 'test' '.ci/run')
# shellcheck disable=SC2086  # one word per file; none of ours has a blank
wc -l $list /dev/null | awk -v allowed="$allowed" '
    FNR == NR { if ($2 != "total" && $1 > 500) lines[$2] = $1; next }
    /^#/ || !NF { next }
    NF < 2 { print allowed ": " $1 " has no reason"; next }
    !($1 in lines) { print allowed ": " $1 " is not above 500 lines" }
    { delete lines[$1] }
    END { for (path in lines) print path ": " lines[path] " lines" }' - "$allowed" |
    verdict "Files that are too long:"
