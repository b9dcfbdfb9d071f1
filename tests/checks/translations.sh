#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# translations.sh <root>: every text of the program has a finished translation in each language, with the placeholders and
# blanks of its source. Words that a drive's report is searched for stay English. The sources are those that
# resources/translations/update finds in the code.
. "$(dirname "${BASH_SOURCE[0]}")/files.sh"

if ! command -v /usr/lib/qt5/bin/lupdate lupdate >/dev/null || ! command -v python3 >/dev/null; then
    echo "the check of the translations needs lupdate (qttools5-dev-tools) and python3" >&2
    exit 77
fi
list=$(files 'resources/translations/*.ts')
parser=$(files 'smart/ReportParser*.cpp')
# A new folder, so that a tool that writes nothing is noticed.
fresh=$(mktemp -d)
trap 'rm -rf "$fresh"' EXIT
bash resources/translations/update "$fresh"

# shellcheck disable=SC2086  # one word per file; none of ours has a blank
python3 - "$fresh" "$parser" $list <<'CODE' | verdict "Translations that are not in order:"
import collections, os, re, sys
import xml.etree.ElementTree as tree

# What stands for a value: of Qt (%1, %L1, %n), of the chart formats (%v, %p, %m) and of printf.
PLACEHOLDER = re.compile(r"%(?:L?\d{1,2}|L?n|[vpm]|[-+#0]*\d*(?:\.\d+)?(?:hh|h|ll|l|z|j|t)?[sdiuoxXeEfFgGc])")
# Words that the parser looks for in a report.
MARKER = re.compile(r'(?:translate|TRANSLATE_NOOP)\(\s*"(\w+)"\s*,\s*"([^"]*)"')


def messages(path):
    for context in tree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name") or "", message.findtext("source") or "", message


def sources(path):
    return collections.Counter((context, source, message.findtext("comment") or "")
                               for context, source, message in messages(path))


def margins(text):
    bare = text.strip()
    return (text, "") if not bare else (text[:text.index(bare)], text[text.index(bare) + len(bare):])


def faults(source, text, kind):
    if kind:
        yield kind
    if not text.strip() and (source.strip() or text != source):
        yield "empty"
        return
    if sorted(PLACEHOLDER.findall(source)) != sorted(PLACEHOLDER.findall(text)):
        yield "other placeholders"
    if margins(source) != margins(text) or source.count("\n") != text.count("\n"):
        yield "other blanks or line feeds"


markers = set()
for path in sys.argv[2].split():
    with open(path, encoding="utf-8") as code:
        markers.update(MARKER.findall(code.read()))
if not markers:
    print("%s: no word of the reports is found" % sys.argv[2])

for name in set(os.listdir(sys.argv[1])) - {os.path.basename(path) for path in sys.argv[3:]}:
    print("resources/translations/%s: missing" % name)

for path in sys.argv[3:]:
    for context, source, message in messages(path):
        translation = message.find("translation")
        forms = [] if translation is None else [form.text or "" for form in translation.iter("numerusform")]
        if not forms:
            forms = [(translation.text if translation is not None else "") or ""]
        kind = None if translation is None else translation.get("type")
        for text in forms:
            for fault in faults(source, text, kind):
                print("%s: %s: %r: %s" % (path, context, source, fault))
            if (context, source) in markers and text != source:
                print("%s: %s: %r: reports are searched for it, it stays English" % (path, context, source))

    name = os.path.basename(path)
    if not name.startswith("LANG_"):
        continue
    have, want = sources(path), sources(os.path.join(sys.argv[1], name))
    for entry in sorted((have - want) + (want - have)):
        state = "not in the code" if have[entry] > want[entry] else "missing"
        print("%s: %s: %r: %s" % (path, entry[0], entry[1], state))
CODE
