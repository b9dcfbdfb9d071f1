// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/PartitionTexts.h"

#include <QtTest>

#include <limits>

using namespace partitiontexts;

namespace
{

constexpr qint64 Mega = 1048576;
constexpr qint64 Giga = 1024 * Mega;
constexpr qint64 Tera = 1024 * Giga;

LogicalDiskRecord volume(qint64 freeBytes, qint64 sizeBytes, const QString &bitLocker = QString(),
                         const QString &caption = QStringLiteral("C:"))
{
    LogicalDiskRecord record;
    record.szCaption.assign(caption);
    record.szFileSystem.assign("NTFS");
    record.szBitLocker.assign(bitLocker);
    record.nFreeBytes = freeBytes;
    record.nSizeBytes = sizeBytes;
    return record;
}

} // namespace

/// The texts of volumes on Disk Partition.
class tst_PartitionTexts : public QObject
{
    Q_OBJECT

private slots:
    void letters()
    {
        QCOMPARE(driveLetters("Drive: "), QStringList());
        QCOMPARE(driveLetters("Drive: C: D: "), (QStringList{"C:", "D:"}));
    }

    void sizesGoByLetter()
    {
        RecordList<LogicalDiskRecord> list;
        for (const auto &[caption, size] : {std::pair("", 7), {"D:", 20}, {"C:", 10}, {"D:", 21}})
            list.append(volume(0, size, "", caption));
        QCOMPARE(volumeSizes({"C:", "X:", "D:"}, list), (QList<qint64>{10, 20}));
    }

    void names()
    {
        QCOMPARE(volumeName(volume(0, 0, "YES"), "(BitLocker)"), QStringLiteral("C: (NTFS)(BitLocker)"));
        QCOMPARE(volumeName(volume(0, 0, "NO"), "(BitLocker)"), QStringLiteral("C: (NTFS)"));
    }

    void disksOfVolumes()
    {
        RecordList<DiskNode> nodes;
        DiskNode &disk = nodes.append();
        disk.nId = 131;
        disk.pDetails = std::make_unique<DiskDetails>();
        disk.pDetails->szDrives = "Drive: C: D: ";
        DiskNode &d = nodes.append();
        d.nKind = RawVolume;
        d.pLogical = std::make_unique<LogicalDetails>();
        d.pLogical->nLetter = 3;
        QCOMPARE(disksOfVolume("D:", nodes), QVector<int>{3});
        d.pLogical->disks = {1, 2};
        QCOMPARE(disksOfVolume("D:", nodes), (QVector<int>{1, 2}));
        QCOMPARE(disksOfVolume("C:", nodes), QVector<int>{3});
        QCOMPARE(disksOfVolume("E:", nodes), QVector<int>());
    }

    void health()
    {
        RecordList<WmicDiskRecord> list;
        for (const auto &[index, status] :
             {std::pair(0u, "OK"), {1u, "Error"}, {1u, "OK"}, {4u, "OK"}, {0u, ""}}) {
            WmicDiskRecord &record = list.append();
            record.nIndex = index;
            record.szStatus.assign(status);
        }
        QCOMPARE(healthWord({1, 4}, list), QStringLiteral("Healthy"));
        QCOMPARE(healthWord({1, 0}, list), QStringLiteral("Not Healthy")); // the last line counts
        QCOMPARE(healthWord({3}, list), QStringLiteral("Not Healthy"));
        QCOMPARE(healthWord({}, list), QStringLiteral("Not Healthy"));
    }

    void percentage()
    {
        constexpr qint64 Most = std::numeric_limits<qint64>::max();
        QCOMPARE(percentText(volume(2, 3)), QStringLiteral("66% Free"));
        QCOMPARE(percentText(volume(5, 0)), QStringLiteral("0% Free"));
        QCOMPARE(percentText(volume(Tera, Tera)), QStringLiteral("100% Free"));
        QCOMPARE(percentText(volume(Most / 2, Most)), QStringLiteral("50% Free"));
        QCOMPARE(percentText(volume(Most, 1)), QString::number(Most) + "% Free");
    }

    void sizes()
    {
        const auto texts = [](qint64 bytes) {
            return sizeText(bytes, UnitsOfFree) + " of " + sizeText(bytes, UnitsOfTotal);
        };
        QCOMPARE(texts(1024), QStringLiteral(" of "));
        QCOMPARE(texts(1025), QStringLiteral("1 KB of 1 KB"));
        QCOMPARE(texts(Mega), QStringLiteral("1024 KB of 1024 KB"));
        QCOMPARE(texts(Mega + 1024), QStringLiteral("1 MB of 1 MB"));
        // A tie goes to the even digit, and each unit rounds what the last one left.
        QCOMPARE(texts(Mega + Mega / 4), QStringLiteral("1.2 MB of 1.2 MB"));
        QCOMPARE(texts(Mega + 3 * Mega / 4), QStringLiteral("1.8 MB of 1.8 MB"));
        QCOMPARE(texts(Giga + Mega / 2), QStringLiteral("1 GB of 1 GB"));
        QCOMPARE(texts(2000398934016), QStringLiteral("1.8 TB of 1863 GB"));
        // The last unit stays, with six digits.
        QCOMPARE(texts(2000 * Tera), QStringLiteral("2000 TB of 2.048e+06 GB"));
    }

    void space()
    {
        QCOMPARE(spaceText(volume(1536, 2048), false), QStringLiteral("1 KB Free of 2 KB"));
        QCOMPARE(spaceText(volume(1536, 2048), true), QStringLiteral("1 KB Free of 2 KB Available"));
    }
};

QTEST_APPLESS_MAIN(tst_PartitionTexts)
#include "tst_PartitionTexts.moc"
