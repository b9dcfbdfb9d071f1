#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# planted.sh <root> <folder of widget headers…>: plants a fault of each kind in a small tree. Each check has to find its
# faults, and has to pass the same tree without them.
set -euo pipefail
checks=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$1
headers=("${@:2}")
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failures=0
licence='// SPDX-License-Identifier: GPL-3.0-or-later'
help=help/velmora-halvane-11-windows-standard

# The parts of the small tree in which a fault replaces a piece of text: a translation, a page of the help, and the table
# of decisions.
translation='<TS version="2.1"><context><name>MainWindow</name><message><source>ID#</source><translation>ID#</translation>
</message></context><context><name>Page</name><message><source> %1 of %n</source><translation> %n: %1</translation></message>
</context></TS>'
page='<!DOCTYPE html><html lang="en"><head><meta charset="utf-8"><title>About</title></head><body>
<p id="top"><a href="#top">up</a><br></p><figure><img src="images/a.png" alt="A"></figure></body></html>'
decisions=$'# Architecture\n\n## Where is it decided?\n\n| rule | file | function |\n|---|---|---|\n'
for rule in {1..25}; do decisions+="| rule $rule | \`smart/Health.cpp\` | \`health\` |"$'\n'; done
decisions+=$'\n## Next\n\n| other | `none` | `none` |'

# A tree in which nothing is wrong.
sound() {
    rm -rf "${tree:?}"/*
    mkdir -p "$tree"/{platform,app,companion,state,inventory,smart,scan,clone,update,monitor,reports,ui/forms,demo}
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
        printf '%s\n' "$translation" >"$tree/resources/translations/${path##*/}"
    done
    printf 'constexpr const char *table[][2] = {{"EN", "en"}, {"JA", "jp"}, {"CN", ""}};\n' >"$tree/state/Languages.cpp"
    printf 'constexpr std::array Pages{"about", "more"};\n' >"$tree/update/HelpLinks.cpp"
    printf '%s\n' "$page" | tee "$tree/$help-en-about.html" >"$tree/$help-en-more.html"
    printf '%s\n' "${page/lang=\"en\"/lang=\"ja\"}" >"$tree/$help-jp-about.html"
    : >"$tree/help/images/a.png"
    printf '{ "disks": [ 1.5, true, null ] }\n' >"$tree/demo/pc.json"
    printf '{ broken\n' >"$tree/tests/data/broken.json"
    printf 'the A''TA s''pec\n' >"$tree/tests/data/report.txt"
    mkdir -p "$tree/docs" "$tree/packaging/product"
    printf 'project(Halvane VERSION 11.0.0.8 LANGUAGES CXX)\n' >"$tree/CMakeLists.txt"
    printf '# Changelog\n\n## [11.0.0.8] - 2026-11-22\n' >"$tree/CHANGELOG.md"
    printf '{ "settings": { "rxVersion": "@VERSION@" } }\n' >"$tree/packaging/product/velmora.json"
    printf 'int health(int raw)\n{\n    return rate(raw);\n}\n' >"$tree/smart/Health.cpp"
    printf '%s\n' "$decisions" >"$tree/docs/architecture.md"
    mkdir -p "$tree"/packaging/{monitoring,linux/desktop}
    printf 'constexpr char Usage[] = "--once";\n' >"$tree/companion/CommandLine.cpp"
    printf '.B \\-\\-once\n' >"$tree/packaging/linux/desktop/VelmoraSMART.1.in"
    printf 'auto up = "halvane_disk_up";\n' >"$tree/monitor/Metrics.cpp"
    printf 'record: halvane:up:sum\nexpr: sum(halvane_disk_up)\n' >"$tree/packaging/monitoring/halvane.rules.yml"
    printf '{ "expr": "halvane:up:sum" }\n' >"$tree/packaging/monitoring/dashboard.json"
    printf '`halvane_disk_up`\n' >"$tree/docs/fleet.md"
    find "$tree" -name '*.cpp' -o -name '*.h' | xargs sed -i "1i $licence"
}

# fails <what was said>
fails() {
    printf '%s\n' "$1"
    failures=$((failures + 1))
}

# finds <what the complaint has to name> <file> <contents>: a fault for the check $check
finds() {
    local output status=0
    sound
    mkdir -p "$(dirname "$tree/$2")"
    printf '%b' "$3" >"$tree/$2"
    output=$("$checks/$check.sh" "$tree" "${headers[@]}" 2>&1) || status=$?
    if [ "$status" -ne 1 ] || ! grep -qF "$1" <<<"$output"; then
        fails "$check does not find $1 in $2 (status $status): $output"
    fi
}

# begins <check>: it has nothing against a sound tree. False where it cannot run here.
begins() {
    local status=0
    check=$1
    sound
    "$checks/$check.sh" "$tree" "${headers[@]}" >/dev/null 2>&1 || status=$?
    [ "$status" -eq 0 ] || [ "$status" -eq 77 ] || fails "$check complains about a sound tree"
    [ "$status" -ne 77 ] || { echo "$check cannot run here" && return 1; }
}

begins includes
finds 'points upwards' smart/Up.h '#  include <ui/Page.h>\n'
finds 'points upwards' reports/Up.cpp '#include "ui_Page.h"\n'
finds 'points upwards' ui/widgets/Up.cpp '#include "ui/dialogs/Question.h"\n'
finds 'tsort: state/State' platform/Seam.h '#include "state/State.h"\n'
finds 'a widget' state/Widget.h '#include <QtWidgets/QLabel>\n'
finds 'begin at the root' ui/Near.cpp '#include "Page.h"\n'
finds 'a widget' inventory/Chart.cpp '#include <QtCharts/QChart>\n'
finds 'what the companion does not know' companion/Up.cpp '#include "ui/window/MainWindow.h"\n'
begins platforms
finds 'smart/Os.cpp:1' smart/Os.cpp '#ifdef Q_OS_LINUX\n#endif\n'
begins format
finds 'smart/Ugly.cpp:2' smart/Ugly.cpp "$licence\\nint  main( ) {return 0;}\n"
finds 'smart/Free.cpp' smart/Free.cpp '// A line\n'
begins words
finds 'smart/Words.cpp:1' smart/Words.cpp '// see the s''pec\n'
finds 'README.md:2' README.md 'A line\nas in P''art 3.2\n'
begins colours
finds 'ui/Red.cpp:1' ui/Red.cpp 'auto red = "QLabel {color : #FF0000;}";\n'
finds 'ui/forms/Grey.ui:1' ui/forms/Grey.ui '<ui><string>color: gray;</string></ui>\n'
begins well-formed
finds 'ui/forms/Torn.ui:2' ui/forms/Torn.ui '<ui><class>\n'
finds 'demo/comma.json' demo/comma.json '{ "a": [ 1, ] }\n'
finds 'demo/two.json' demo/two.json '{} {}\n'
finds 'demo/nan.json' demo/nan.json '{ "a": nan }\n'
begins lengths
finds 'smart/Long.cpp: 501' smart/Long.cpp "$(printf '// line\n%.0s' {1..501})\n"
finds 'no reason' tests/checks/long-files.txt 'smart/Rating.cpp\n'
finds 'is not above' tests/checks/long-files.txt 'smart/Rating.cpp a table\n'

begins decisions
table=docs/architecture.md
finds 'no file smart/Gone.cpp' $table "${decisions/Health.cpp/Gone.cpp}\n"
finds 'no function gone' $table "${decisions/health\`/health\`, \`gone\`}\n"
finds '24 rules in the table' $table "${decisions/| rule 25/rule 25}\n"
finds 'no function health' smart/Health.cpp '// int health(int raw)\nint rate(int raw);\n'

begins metrics
finds 'there is no halvane_disk_gone' packaging/monitoring/other.json '{ "expr": "rate(halvane_disk_gone[1m])" }\n'
finds 'does not tell of halvane_disk_up' docs/fleet.md '`halvane_build`\n'

if begins translations; then
    german=resources/translations/LANG_DE.ts
    finds 'unfinished' $german "${translation/<translation> /<translation type=\"unfinished\"> }\n"
    finds 'empty' $german "${translation/ %n: %1</<}\n"
    finds 'placeholders' $german "${translation/ %n: %1</ %1: %1<}\n"
    finds 'blanks' $german "${translation/ %n: %1</%n: %1<}\n"
    finds 'stays English' $german "${translation/n>ID#</n>Nr.<}\n"
    finds "'Old': not in the code" $german "${translation/<message>/<message><source>Old</source><translation>Alt</translation></message><message>}\n"
    finds "'New': missing" ui/New.cpp 'auto c = QCoreApplication::translate("Page", "New");\n'
    finds 'no word of the reports' smart/ReportParser.cpp ''
    finds 'LANG_PT.ts: missing' resources/translations/update \
        "$(sed 's/languages=(/&[PT]=pt_PT /' "$root/resources/translations/update")\n"
fi

begins help
more=$help-en-more.html
finds "no page 'about' in 'de'" state/Languages.cpp '{"EN", "en"}, {"DE", "de"}\n'
finds 'no pages or no codes' update/HelpLinks.cpp '\n'
finds 'images/b.png: no page' help/images/b.png ''
finds 'mismatch' "$more" "${page/<\/p>/}\n"
finds 'lang is not' "$more" "${page/lang=\"en\"/lang=\"de\"}\n"
finds 'no title' "$more" "${page/About/ }\n"
finds 'without a description' "$more" "${page/ alt=\"A\"/}\n"
finds 'a script' "$more" "${page/<br>/<script>1</script>}\n"
finds "'images/c.png' leads nowhere" "$more" "${page/a.png/c.png}\n"
finds "'#end' has no such place" "$more" "${page/\#top/#end}\n"
finds 'lacks --json' companion/CommandLine.cpp 'auto usage = "--once [--json]";\n'
finds 'leads outside' "$more" "${page/\#top/https://halvane.example/}\n"
begins version
finds "'11.0.0.10' is not" CMakeLists.txt 'project(Halvane VERSION 11.0.0.10 LANGUAGES CXX)\n'
finds 'begins with' CHANGELOG.md '## [11.0.0.7] - 2026-11-22\n'
finds '11.0.0.9 is newer' CHANGELOG.md '## [Unreleased]\n\n## [11.0.0.9] - 2026-11-22\n'
finds 'rxVersion is not' packaging/product/korvane.json '{ "settings": { "rxVersion": "11.0.0.7" } }\n'
finds 'ui/About.cpp:1' ui/About.cpp 'auto version = "11.0.0.8";\n'
[ "$failures" -eq 0 ]
