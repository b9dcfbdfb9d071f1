// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PlainText.h"

namespace plaintext
{

namespace
{

struct Range {
    ushort first;
    ushort last;
};

constexpr Range Commanding[] = {
    {0x0000, 0x001F},                   // controls
    {0x007F, 0x009F}, {0x061C, 0x061C}, // marks of direction
    {0x200E, 0x200F}, {0x2028, 0x2029}, // ends of lines and paragraphs
    {0x202A, 0x202E},                   // turns of direction
    {0x2066, 0x206F},                   // isolates, and marks that nobody uses any more
    {0xFEFF, 0xFEFF},                   // a blank without width
    {0xFFF9, 0xFFFB},                   // notes between the lines
};

bool commands(QChar letter)
{
    for (const Range &range : Commanding) {
        if (letter.unicode() >= range.first && letter.unicode() <= range.last)
            return true;
    }
    return false;
}

} // namespace

QString line(QString text)
{
    for (QChar &letter : text) {
        if (commands(letter))
            letter = QChar::ReplacementCharacter;
    }
    return text;
}

QString lines(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        const bool lineEnd = letter == QLatin1Char('\n') ||
                             (letter == QLatin1Char('\r') && text.mid(i + 1, 1) == QLatin1String("\n"));
        if (!lineEnd && letter != QLatin1Char('\t') && commands(letter))
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

QString isolated(const QString &name)
{
    return QChar(0x2068) + name + QChar(0x2069);
}

} // namespace plaintext
