#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Only platform/ and its tests may have code for one operating system.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

list=$(files '*.cpp' '*.h' | grep -vE '^(tests/)?platform/')
pattern='^[[:space:]]*#[[:space:]]*(el)?if.*\b(Q_OS_[A-Z0-9_]+|Q_CC_[A-Z0-9_]+|_?_?(WIN32|WIN64|linux|unix|APPLE|MINGW32|MINGW64|MSC_VER)(__)?)\b'
# shellcheck disable=SC2086
{ grep -nE "$pattern" /dev/null $list || [ $? -eq 1 ]; } |
    verdict "The operating system is tested for outside platform/:"
