// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/PartitionTexts.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace partitiontexts
{

namespace
{

constexpr std::array<const char *, UnitsOfFree> Units = {" KB", " MB", " GB", " TB"};

QString translated(const char *text)
{
    return QCoreApplication::translate("MainWindow", text);
}

/// Rounded to one decimal by way of its text: ties as C prints them, the result as C reads it.
float oneDecimal(float amount)
{
    std::array<char, 64> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), static_cast<double>(amount),
                                   std::chars_format::fixed, 1)
                         .ptr;
    std::from_chars(text.data(), end, amount);
    return amount;
}

/// The free part as a whole percentage, cut off; 0 for a volume without a size.
qint64 freePercent(qint64 freeBytes, qint64 sizeBytes)
{
    constexpr qint64 Whole = 100;
    if (sizeBytes <= 0 || freeBytes < 0)
        return 0;
    // Beyond this the product does not fit, and the hundredth part of the size is exact enough.
    if (freeBytes > std::numeric_limits<qint64>::max() / Whole)
        return freeBytes / std::max<qint64>(1, sizeBytes / Whole);
    return freeBytes * Whole / sizeBytes;
}

} // namespace

QStringList driveLetters(const QString &drives)
{
    QString letters = drives;
    return letters.remove(QLatin1String("Drive:")).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QList<qint64> volumeSizes(const QStringList &letters, const RecordList<LogicalDiskRecord> &volumes)
{
    QList<qint64> sizes;
    for (const QString &letter : letters) {
        const auto fits = [&letter](const LogicalDiskRecord &volume) {
            return volume.szCaption.text() == letter;
        };
        if (const LogicalDiskRecord *volume = volumes.find(fits))
            sizes.append(volume->nSizeBytes);
    }
    return sizes;
}

QString volumeName(const LogicalDiskRecord &volume, const QString &protectedMark)
{
    const QString name =
        volume.szCaption.text() + QStringLiteral(" (") + volume.szFileSystem.text() + QLatin1Char(')');
    return volume.szBitLocker.text() == QLatin1String("YES") ? name + protectedMark : name;
}

QVector<int> disksOfVolume(const QString &letter, const RecordList<DiskNode> &nodes)
{
    QVector<int> listing; // of a volume that is not fixed the disk alone knows
    for (const DiskNode &node : nodes) {
        if (node.pDetails && driveLetters(node.pDetails->szDrives).contains(letter))
            listing = {node.nId - PhysicalDriveBase};
        const bool isVolume = node.nKind == VolumeNode || node.nKind == RawVolume;
        if (isVolume && node.pLogical && !node.pLogical->disks.isEmpty() &&
            letter.startsWith(QChar(u'A' + node.pLogical->nLetter)))
            return node.pLogical->disks;
    }
    return listing;
}

QString healthWord(const QVector<int> &disks, const RecordList<WmicDiskRecord> &table)
{
    const auto isSound = [&table](int disk) {
        QString status;
        for (const WmicDiskRecord &record : table) {
            if (record.nIndex == static_cast<quint32>(disk))
                status = record.szStatus.text();
        }
        return status == QLatin1String("OK");
    };
    const bool sound = !disks.isEmpty() && std::all_of(disks.cbegin(), disks.cend(), isSound);
    return sound ? translated(QT_TRANSLATE_NOOP("MainWindow", "Healthy"))
                 : translated(QT_TRANSLATE_NOOP("MainWindow", "Not Healthy"));
}

QString percentText(const LogicalDiskRecord &volume)
{
    return QString::number(freePercent(volume.nFreeBytes, volume.nSizeBytes)) +
           translated(QT_TRANSLATE_NOOP("MainWindow", "% Free"));
}

QString sizeText(qint64 bytes, int unitCount)
{
    constexpr qint64 Kilo = 1024;
    constexpr float PerKilo = 0.0009765625F;
    constexpr int Digits = 6;
    if (bytes <= Kilo)
        return QString();
    float amount = oneDecimal(static_cast<float>(bytes / Kilo));
    int unit = 0;
    while (amount > static_cast<float>(Kilo) && unit + 1 < unitCount) {
        amount = oneDecimal(amount * PerKilo);
        ++unit;
    }
    return QString::number(static_cast<double>(amount), 'g', Digits) +
           QLatin1String(Units[static_cast<std::size_t>(unit)]);
}

QString ringText(const QList<qint64> &sizes)
{
    constexpr double Whole = 100;
    if (sizes.isEmpty())
        return translated(QT_TRANSLATE_NOOP("MainWindow", "No Partition Found"));
    double total = 0;
    for (const qint64 size : sizes)
        total += static_cast<double>(size);
    QStringList parts;
    for (const qint64 size : sizes)
        parts << QStringLiteral("%1 (%2 %)")
                     .arg(sizeText(size, UnitsOfTotal))
                     .arg(total > 0 ? qRound(static_cast<double>(size) / total * Whole) : 0);
    return translated(QT_TRANSLATE_NOOP("MainWindow", "%1 volumes: %2"))
        .arg(QString::number(sizes.size()), parts.join(QLatin1String(", ")));
}

QString spaceText(const LogicalDiskRecord &volume, bool korean)
{
    const QString text = sizeText(volume.nFreeBytes, UnitsOfFree) +
                         translated(QT_TRANSLATE_NOOP("MainWindow", " Free of ")) +
                         sizeText(volume.nSizeBytes, UnitsOfTotal);
    return korean ? text + translated(QT_TRANSLATE_NOOP("MainWindow", " Available")) : text;
}

} // namespace partitiontexts
