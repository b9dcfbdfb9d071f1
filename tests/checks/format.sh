#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Every source file begins with its licence and has the format of clang-format 14, Debian 12's. Other versions differ.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

clang-format --version | grep -q 'version 14\.' || {
    echo "skipped: this is not clang-format 14"
    exit 77
}
list=$(files '*.cpp' '*.h')
# shellcheck disable=SC2086  # one word per file; none of ours has a blank
awk -v licence='// SPDX-License-Identifier: GPL-3.0-or-later' 'FNR == 1 && $0 != licence { print FILENAME }' $list |
    verdict "These do not begin with their licence:"
xargs -P "$(nproc)" -n 20 clang-format --style=file --dry-run --Werror <<<"$list" 2>&1 |
    { grep -E ': error:' || [ $? -eq 1 ]; } | verdict "Not formatted (clang-format -i mends it):"
