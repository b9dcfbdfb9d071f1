// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/SerialMask.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <iterator>

namespace
{

constexpr int ShortSerial = 6; // a shorter one may stand in a text as something else
constexpr int GptEntry = 128;
constexpr int ExtMountPoint = 0x88;
const QByteArray Mounted = QByteArrayLiteral("/mounted");

struct Stretch {
    int from = 0;
    int count = 0;
};

/// Sectors that have a mark at a place, and what there tells one disk or file system from every other.
const struct Kind {
    int at;
    QByteArray mark;
    std::array<Stretch, 4> unique;
} Kinds[] = {
    {0, "EFI PART", {{{0x38, 16}}}},
    {3, "NTFS", {{{0x48, 8}}}},
    {3, "-FVE-FS-", {{{0x48, 8}}}},
    {0x52, "FAT32", {{{0x43, 4}}}},
    {0x36, "FAT", {{{0x27, 4}}}},
    {3, "EXFAT", {{{0x64, 4}}}},
    // The superblock of an ext file system: its number, where it was mounted, its journal, its names' hashes.
    {0x38, "\x53\xEF", {{{0x68, 16}, {ExtMountPoint, 64}, {0xD0, 16}, {0xEC, 16}}}},
    {0x1FE, "\x55\xAA", {{{0x1B8, 4}}}}, // a table of partitions
};

void clear(QByteArray *bytes, int from, int count)
{
    bytes->replace(from, count, QByteArray(count, '\0'));
}

} // namespace

QString SerialMask::serial(const QString &serial)
{
    const QString real = serial.trimmed();
    if (!m_masks || real.isEmpty())
        return serial;
    const auto known = m_known.constFind(real);
    if (known != m_known.cend())
        return *known;
    const QString made =
        QStringLiteral("ANON%1").arg(m_known.size() + 1, qMax(0, real.size() - 4), 10, QLatin1Char('0'));
    return *m_known.insert(real, made.right(real.size()));
}

QString SerialMask::report(const QString &text)
{
    if (!m_masks)
        return text;
    static const QRegularExpression named(
        QStringLiteral("^(?:Serial Number|Serial number|LU WWN Device Id|Logical Unit id|"
                       "Namespace [0-9]+ (?:IEEE EUI-64|NGUID)): +(\\S.*?)\\s*$"),
        QRegularExpression::MultilineOption);
    QString masked = text;
    for (int from = 0;;) {
        const QRegularExpressionMatch match = named.match(masked, from);
        if (!match.hasMatch())
            break;
        masked.replace(match.capturedStart(1), match.capturedLength(1), serial(match.captured(1)));
        from = match.capturedStart(1) + 1;
    }
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known) {
        if (known.key().size() >= ShortSerial)
            masked.replace(known.key(), known.value());
    }
    return masked;
}

QByteArray SerialMask::sector(QByteArray bytes) const
{
    if (!m_masks)
        return bytes;
    const auto kind = std::find_if(std::begin(Kinds), std::end(Kinds), [&bytes](const Kind &each) {
        return bytes.mid(each.at, each.mark.size()) == each.mark;
    });
    if (kind == std::end(Kinds)) { // entries of a GPT, each with a number of its own
        for (int entry = 0; entry < bytes.size(); entry += GptEntry)
            clear(&bytes, entry + 16, 16);
        return bytes;
    }
    const bool isShown = kind->unique[1].from == ExtMountPoint && bytes.at(ExtMountPoint) == '/';
    for (const Stretch &each : kind->unique)
        clear(&bytes, each.from, each.count);
    if (isShown) // the program shows the file system by this path
        bytes.replace(ExtMountPoint, Mounted.size(), Mounted);
    return bytes;
}
