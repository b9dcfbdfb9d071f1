#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The colours of texts come from the table in ui/widgets/Style.h, whose contrasts a test computes.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

pattern='(^|[^-[:alnum:]])(selection-)?color *: *[#[:alpha:]]|setForeground\(.*(QColor\([0-9]|Qt::)'
files 'ui/*' 'app/*' 'companion/*' | grep -v '^ui/widgets/Style\.' | tr '\n' '\0' |
    { xargs -0 grep -nIE "$pattern" /dev/null || [ $? -eq 123 ]; } |
    verdict "These lines give a text a colour that is not in the table of ui/widgets/Style.h:"
