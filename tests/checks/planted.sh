#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# planted.sh <root> <folder of widget headers…>: plants faults in a small tree. Each check has to find its fault, and has to
# pass the same tree without it.
set -euo pipefail
checks=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$1
headers=("${@:2}")
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failures=0
licence='// SPDX-License-Identifier: GPL-3.0-or-later'
help=help/velmora-halvane-11-windows-standard

# translation <name> [what becomes which other text]: the translations of the small tree, with one fault at most.
translation() {
    local text
    text='<TS version="2.1"><context><name>MainWindow</name><message><source>ID#</source>'
    text+='<translation>ID#</translation></message></context><context><name>Page</name><message>'
    text+='<source> %1 of %n</source><translation> %n: %1</translation></message></context></TS>'
    printf '%s\n' "${text/"${2-}"/"${3-}"}" >"$tree/resources/translations/$1.ts"
}

# manual <what becomes> <which other text>: a page of the help, with one fault at most.
manual() {
    local text='<!DOCTYPE html><html lang="en"><head><meta charset="utf-8"><title>About</title></head><body>'
    text+='<p id="top"><a href="#top">up</a><br></p><figure><img src="images/a.png" alt="A"></figure></body></html>'
    printf '%s\n' "${text/"${1-}"/"${2-}"}"
}

# decisions <what becomes> <which other text>: the page of decisions, with one fault at most.
decisions() {
    local text=$'# Architecture\n\n## Where is it decided?\n\n| rule | file | function |\n|---|---|---|\n' rule
    for rule in {1..25}; do text+="| rule $rule | \`smart/Health.cpp\` | \`health\` |"$'\n'; done
    text+=$'\n## Next\n\n| other | `none` | `none` |\n'
    printf '%s\n' "${text/"${1-}"/"${2-}"}"
}

# A tree in which nothing is wrong.
sound() {
    rm -rf "${tree:?}"/*
    mkdir -p "$tree"/{platform,app,state,inventory,smart,scan,clone,update,reports,ui/forms,demo}
    mkdir -p "$tree"/{resources/translations,help/images}
    mkdir -p "$tree"/tests/{checks,data}
    cp "$root/.clang-format" "$tree"
    cp "$checks/long-files.txt" "$tree/tests/checks"
    sed -i '/^[^#]/d' "$tree/tests/checks/long-files.txt"
    printf '#ifdef Q_OS_WIN\n#endif\n' >"$tree/platform/Seam.h"
    printf '#include "platform/Seam.h"\n' >"$tree/state/State.h"
    printf '#include "state/State.h"\n\n#include <QString>\n' >"$tree/smart/Rating.cpp"
    printf '#include "smart/Rating.h"\n#include "ui_Page.h"\n\n#include <QWidget>\n' >"$tree/ui/Page.h"
    printf '<ui version="4.0"><class>Page</class></ui>\n' >"$tree/ui/forms/Page.ui"
    printf 'auto a = QCoreApplication::translate("MainWindow", "ID#");\n' >"$tree/smart/ReportParser.cpp"
    printf 'auto b = QCoreApplication::translate("Page", " %%1 of %%n");\n' >"$tree/ui/Page.cpp"
    cp "$root/resources/translations/update" "$tree/resources/translations"
    for path in "$root"/resources/translations/LANG_*.ts; do
        translation "$(basename "$path" .ts)"
    done
    printf 'constexpr const char *table[][2] = {{"EN", "en"}, {"JA", "jp"}, {"CN", ""}};\n' >"$tree/state/Languages.cpp"
    printf 'constexpr std::array Pages{"about", "more"};\n' >"$tree/update/HelpLinks.cpp"
    manual >"$tree/$help-en-about.html"
    manual >"$tree/$help-en-more.html"
    manual 'lang="en"' 'lang="ja"' >"$tree/$help-jp-about.html"
    : >"$tree/help/images/a.png"
    printf '{ "disks": [ 1.5, true, null ] }\n' >"$tree/demo/pc.json"
    printf '{ broken\n' >"$tree/tests/data/broken.json"
    printf 'the A''TA s''pec\n' >"$tree/tests/data/report.txt"
    mkdir "$tree/docs"
    printf 'int health(int raw)\n{\n    return rate(raw);\n}\n' >"$tree/smart/Health.cpp"
    decisions '' '' >"$tree/docs/architecture.md"
    find "$tree" -name '*.cpp' -o -name '*.h' | xargs sed -i "1i $licence"
}

# finds <check> <what the complaint has to name> <file> <contents>
finds() {
    local check=$1 named=$2 output status=0
    sound
    "$checks/$check.sh" "$tree" "${headers[@]}" >/dev/null 2>&1 || {
        echo "$check complains about a sound tree"
        failures=$((failures + 1))
    }
    mkdir -p "$(dirname "$tree/$3")"
    printf '%b' "$4" >"$tree/$3"
    output=$("$checks/$check.sh" "$tree" "${headers[@]}" 2>&1) || status=$?
    if [ "$status" -ne 1 ] || ! grep -qF "$named" <<<"$output"; then
        printf '%s does not find %s in %s (status %d)\n%s\n' "$check" "$named" "$3" "$status" "$output"
        failures=$((failures + 1))
    fi
}

long=$(printf '// line\n%.0s' {1..501})
finds includes 'points upwards' platform/Up.cpp '#include "state/State.h"\n'
finds includes 'points upwards' smart/Up.h '#  include <ui/Page.h>\n'
finds includes 'points upwards' reports/Up.cpp '#include "ui_Page.h"\n'
finds includes 'points upwards' ui/Up.cpp '#include "app/Splash.h"\n'
finds includes 'points upwards' ui/widgets/Up.cpp '#include "ui/dialogs/Question.h"\n'
finds includes 'tsort: state/State' platform/Seam.h '#include "state/State.h"\n'
finds includes 'a widget' smart/Widget.cpp '#include <QPushButton>\n'
finds includes 'a widget' state/Widget.h '#include <QtWidgets/QLabel>\n'
finds includes 'a widget' inventory/Chart.cpp '#include <QtCharts/QChart>\n'
finds includes 'begin at the root' ui/Near.cpp '#include "Page.h"\n'
finds platforms 'smart/Os.cpp:1' smart/Os.cpp '#ifdef Q_OS_LINUX\n#endif\n'
finds platforms 'ui/Os.cpp:1' ui/Os.cpp '#if defined(_WIN32)\n#endif\n'
finds platforms 'tests/Os.cpp:1' tests/Os.cpp '#if defined(__linux__)\n#endif\n'
finds format 'smart/Ugly.cpp:2' smart/Ugly.cpp "$licence\\nint  main( ) {return 0;}\n"
finds format 'smart/Free.cpp' smart/Free.cpp '// A line\n'
finds words 'smart/Words.cpp:1' smart/Words.cpp '// see the s''pec\n'
finds words 'README.md:2' README.md 'A line\nas in P''art 3.2\n'
finds words 'README.md:1' README.md 'The C''EO asks\n'
finds well-formed 'ui/forms/Torn.ui:2' ui/forms/Torn.ui '<ui><class>\n'
finds well-formed 'a.svg:1' resources/a.svg '<svg width=1/>\n'
finds well-formed 'demo/comma.json' demo/comma.json '{ "a": [ 1, ] }\n'
finds well-formed 'demo/comment.json' demo/comment.json '{ "a": 1 } // why\n'
finds well-formed 'demo/two.json' demo/two.json '{} {}\n'
finds well-formed 'demo/nan.json' demo/nan.json '{ "a": nan }\n'
finds well-formed 'demo/empty.json' demo/empty.json ''
finds lengths 'smart/Long.cpp: 501' smart/Long.cpp "$long\n"
finds lengths 'no reason' tests/checks/long-files.txt 'smart/Rating.cpp\n'
finds lengths 'is not above' tests/checks/long-files.txt 'smart/Rating.cpp a table\n'

# misplaces <what the complaint has to name> <what becomes> <which other text>
misplaces() { finds decisions "$1" docs/architecture.md "$(decisions "$2" "$3")\n"; }
misplaces 'no file smart/Gone.cpp' 'smart/Health.cpp' 'smart/Gone.cpp'
misplaces 'no function gone' 'health`' 'health`, `gone`'
misplaces 'no function rate' 'health` |' 'rate` |'
misplaces '24 rules in the table' $'\n| rule 25' $'\nrule 25'
finds decisions 'no function health' smart/Health.cpp '// int health(int raw)\nint rate(int raw);\n'

# mistranslates <what the complaint has to name> <what becomes> <which other text>
mistranslates() {
    sound
    translation LANG_DE "$2" "$3"
    finds translations "$1" resources/translations/LANG_DE.ts "$(cat "$tree/resources/translations/LANG_DE.ts")\n"
}
sound
status=0
"$checks/translations.sh" "$tree" >/dev/null 2>&1 || status=$?
if [ "$status" -ne 77 ]; then
    mistranslates 'unfinished' '<translation> ' '<translation type="unfinished"> '
    mistranslates 'vanished' '<translation> ' '<translation type="vanished"> '
    mistranslates 'empty' ' %n: %1<' '<'
    mistranslates 'placeholders' ' %n: %1<' ' %1: %1<'
    mistranslates 'placeholders' ' %n: %1<' ' %n<'
    mistranslates 'blanks' ' %n: %1<' '%n: %1<'
    mistranslates 'blanks' ' %n: %1<' ' %n: %1\n<'
    mistranslates 'stays English' 'n>ID#<' 'n>Nr.<'
    mistranslates "'Old': not in the code" '<message>' '<message><source>Old</source><translation>Alt</translation></message><message>'
    finds translations "'New': missing" ui/New.cpp 'auto c = QCoreApplication::translate("Page", "New");\n'
    finds translations 'no word of the reports' smart/ReportParser.cpp ''
fi

# misguides <what the complaint has to name> <what becomes> <which other text>
misguides() { finds help "$1" "$help-en-more.html" "$(manual "$2" "$3")\n"; }
finds help "no page 'about' in 'de'" state/Languages.cpp '{"EN", "en"}, {"DE", "de"}\n'
finds help "no page 'third' in 'en'" update/HelpLinks.cpp 'Pages{"about", "more", "third"};\n'
finds help 'no pages or no codes' update/HelpLinks.cpp '\n'
finds help 'images/b.png: no page' help/images/b.png ''
misguides 'mismatch' '</p>' ''
misguides 'lang is not' 'lang="en"' 'lang="de"'
misguides 'lang is not' ' lang="en"' ''
misguides 'no title' 'About' ' '
misguides 'without a description' ' alt="A"' ''
misguides 'without a description' '"A"' '" "'
misguides 'a script' '<br>' '<script>1</script>'
misguides "'images/c.png' leads nowhere" 'a.png' 'c.png'
misguides "'#end' has no such place" '#top' '#end'
misguides 'leads outside' '#top' 'https://halvane.example/'
[ "$failures" -eq 0 ]
