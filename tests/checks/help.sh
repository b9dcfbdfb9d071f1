#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The help: every page that the program can open exists and is well-formed. It names its language and title, describes its
# pictures, and has no link to something missing or outside. Every picture is used. The manual has each option that --help has.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

list=$(files 'help/*')
# words <file> <pattern, with line ends as blanks>: the words of small letters in quotes that stand in it.
words() { { tr -s ' \n' ' ' <"$1" | grep -oE "$2" | grep -oE '"[a-z-]+"' || true; } | tr -d '"'; }
codes=$(words state/Languages.cpp '"[A-Z]{2}", "[a-z]+"') # folder of a language and its code
pages=$(words update/HelpLinks.cpp 'Pages\{[^}]*')

there() { grep -qxF "$1" <<<"$list"; }

# as_xml <page>: the same with void elements closed.
as_xml() { sed -zE 's#<(meta|link|img|br|hr|col|wbr)\b([^>]*[^/>])?>#<\1\2/>#g' "$1"; }

# All languages have the first page, only English has the others.
pages_complete() {
    local code page number=0
    for page in $pages; do
        for code in $codes; do
            [ "$number" -eq 0 ] || [ "$code" = en ] || continue
            there "help/velmora-halvane-11-windows-standard-$code-$page.html" ||
                echo "help/: no page '$page' in '$code'"
        done
        number=$((number + 1))
    done
    [ "$number" -gt 0 ] && [ -n "$codes" ] || echo "update/HelpLinks.cpp: no pages or no codes found"
}

# page_is_sound <page> <the same as XML>
page_is_sound() {
    local errors code
    errors=$(xmllint --nonet --noout "$2" 2>&1) || {
        printf '%s\n' "${errors//$2/$1}"
        return
    }
    value() { xmllint --nonet --xpath "$1" "$2" 2>/dev/null || true; }
    code=$(grep -oP 'standard-\K[a-z]+' <<<"$1" || true)
    [ "$code" != jp ] || code=ja
    [[ $(value 'string(/html/@lang)' "$2") =~ ^${code:-..}(-[A-Z]+)?$ ]] || echo "$1: lang is not '$code'"
    [ -n "$(value 'normalize-space(/html/head/title)' "$2")" ] || echo "$1: no title"
    [ "$(value 'count(//img[not(@alt)] | //figure//img[normalize-space(@alt) = ""])' "$2")" = 0 ] ||
        echo "$1: a picture without a description"
    [ "$(value 'count(//script | //@style | //style)' "$2")" = 0 ] || echo "$1: a script or a style of its own"
}

# references <page as XML>: one a line.
references() { xmllint --nonet --xpath '//@href | //@src' "$1" 2>/dev/null | grep -oP '="\K[^"]*' || true; }

# targets_exist <page> <the same as XML>
targets_exist() {
    local reference path anchor
    while IFS= read -r reference; do
        if [[ $reference =~ ^([a-zA-Z]+:|//) ]]; then
            echo "$1: '$reference' leads outside"
            continue
        fi
        path=${reference%%#*}
        path=${path:+help/$path}
        path=${path:-$1}
        there "$path" || {
            echo "$1: '$reference' leads nowhere"
            continue
        }
        [[ $reference == *"#"* ]] || continue
        anchor=${reference#*#}
        grep -qF "id=\"$anchor\"" "$path" || echo "$1: '$reference' has no such place"
    done < <(references "$2")
}

options() { grep -oE -- '--[a-z]+' | sort -u; }

manual_complete() {
    comm -23 <(options <companion/CommandLine.cpp) <(tr -d '\\' <packaging/linux/desktop/VelmoraSMART.1.in | options) |
        sed 's/^/VelmoraSMART.1.in: lacks /'
}

xml=$(mktemp)
used=$(mktemp)
trap 'rm -f "$xml" "$used"' EXIT
{
    pages_complete
    manual_complete
    while IFS= read -r page; do
        as_xml "$page" >"$xml"
        page_is_sound "$page" "$xml"
        targets_exist "$page" "$xml"
        references "$xml" >>"$used"
    done < <(grep '\.html$' <<<"$list")
    while IFS= read -r picture; do
        grep -qxF "${picture#help/}" "$used" || echo "$picture: no page shows it"
    done < <(grep '^help/images/' <<<"$list")
} | verdict "The help is not complete or not sound:"
