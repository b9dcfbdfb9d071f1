#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# count.sh <root>: prints lines of the sources by folder, the share of the tests, the longest file and the longest function. It
# never fails.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

list=$(files '*.cpp' '*.h' '*.ui')
# The length of a function is that of its body. Its braces are alone on their lines, like those of classes and namespaces.
# shellcheck disable=SC2086  # one word per file; none of ours has a blank
awk '
    function folderOf(path) {
        split(path, part, "/")
        return part[1] (part[1] == "ui" ? "/" part[2] : "")
    }
    FNR == 1 {
        folder = folderOf(FILENAME)
        ++files[folder]
        before = ""
        whose = folder ~ /^(tour|bench|fuzz|tests)$/ ? "the rest" : "the product"
    }
    {
        ++lines[folder]
        if (FNR > longest[whose]) { longest[whose] = FNR; longestFile[whose] = FILENAME }
    }
    FILENAME ~ /\.ui$/ { next }
    /^ *\{$/ && before !~ /^ *(namespace|class)( |$)/ { begin[index($0, "{")] = FNR }
    /^ *\};?$/ {
        place = index($0, "}")
        if (begin[place] && FNR - begin[place] - 1 > body[whose]) {
            body[whose] = FNR - begin[place] - 1
            bodyAt[whose] = FILENAME ":" begin[place] - 1
        }
        delete begin[place]
    }
    NF { before = $0 }
    END {
        order = "platform state inventory smart scan clone update monitor reports " \
            "ui/widgets ui/dialogs ui/screens ui/window ui/forms app companion = tour bench fuzz tests"
        count = split(order, names, " ")
        tests = lines["tests"]
        code = -tests
        for (folder in lines) code += folder ~ /^(bench|fuzz|ui\/forms)$/ ? 0 : lines[folder]
        printf "%-14s %7s %6s\n", "folder", "lines", "files"
        for (i = 1; i <= count; ++i) {
            if (names[i] == "=") {
                printf "%-14s %7d %6d\n", "the product", allLines, allFiles
                continue
            }
            printf "%-14s %7d %6d\n", names[i], lines[names[i]], files[names[i]]
            allLines += lines[names[i]]
            allFiles += files[names[i]]
            delete lines[names[i]]
        }
        for (other in lines) printf "%-14s %7d %6d\n", other, lines[other], files[other]
        printf "tests are %.2f %% of the code, which is all but tests, bench, fuzz and forms: %d of %d lines\n",
            100 * tests / code, tests, code
        for (whose in longest) {
            printf "longest file of %s: %s, %d lines\n", whose, longestFile[whose], longest[whose]
            printf "longest function of %s: %s, %d lines\n", whose, bodyAt[whose], body[whose]
        }
    }' $list
