#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The tree refers to its own code and documents only, never to papers that a reader does not have.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

# The licence and the reports that real tools wrote stay as they are.
list=$(files '*' | grep -vE '^(LICENSE|tests/data/)')
# The brackets keep the pattern from finding itself.
pattern='\b(the |this )?s[p]ec(ification)?\b|\bp[a]rts? [1-8]\.[1-9]\b|a[s] specified|\bC[E]O\b'
{ tr '\n' '\0' <<<"$list" | xargs -0 grep -nIiE "$pattern" /dev/null || [ $? -eq 123 ]; } |
    verdict "These lines refer to something outside the tree:"
