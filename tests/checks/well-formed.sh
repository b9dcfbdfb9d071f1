#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Forms, drawings and translations are well-formed XML; described PCs and other settings are strict JSON.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

xml=$(files '*.ui' '*.svg' '*.svg.in' '*.ts' '*.qrc' '*.metainfo.xml' '*.policy.in')
# Data of the tests may be wrong on purpose.
json=$(files '*.json' | grep -v '^tests/data/')
{
    while IFS= read -r path; do
        errors=$(xmllint --nonet --noout "$path" 2>&1) || printf '%s\n' "$errors"
    done <<<"$xml"
    while IFS= read -r path; do
        # One value and nothing behind it; the tool would take nan for a number.
        errors=$(jq -es 'length == 1 and all(.[] | .. | numbers; isnan | not)' "$path" 2>&1) ||
            printf '%s: %s\n' "$path" "$errors"
    done <<<"$json"
} | verdict "Not well-formed:"
