// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/PartitionTexts.h"

#include <QtTest>

#include <limits>

namespace
{

constexpr qint64 Mega = 1048576;
constexpr qint64 Giga = 1024 * Mega;
constexpr qint64 Tera = 1024 * Giga;

LogicalDiskRecord volume(const QString &caption, qint64 freeBytes, qint64 sizeBytes,
                         const QString &bitLocker = QString())
{
    LogicalDiskRecord record;
    record.szCaption.assign(caption);
    record.szFileSystem.assign(QStringLiteral("NTFS"));
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
    void letters_data();
    void letters();
    void sizesGoByLetter();
    void names();
    void health_data();
    void health();
    void percentage_data();
    void percentage();
    void sizes_data();
    void sizes();
    void space();
};

void tst_PartitionTexts::letters_data()
{
    QTest::addColumn<QString>("drives");
    QTest::addColumn<QStringList>("letters");
    QTest::newRow("none") << "" << QStringList();
    QTest::newRow("head alone") << "Drive: " << QStringList();
    QTest::newRow("two") << "Drive: C: D: " << QStringList{"C:", "D:"};
}

void tst_PartitionTexts::letters()
{
    QFETCH(QString, drives);
    QTEST(partitiontexts::driveLetters(drives), "letters");
}

void tst_PartitionTexts::sizesGoByLetter()
{
    RecordList<LogicalDiskRecord> list;
    const struct {
        const char *caption;
        qint64 size;
    } rows[] = {{"", 7}, {"D:", 20}, {"C:", 10}, {"D:", 21}};
    for (const auto &row : rows) {
        LogicalDiskRecord &record = list.append();
        record.szCaption.assign(QLatin1String(row.caption));
        record.nSizeBytes = row.size;
    }
    QCOMPARE(partitiontexts::volumeSizes({"C:", "X:", "D:"}, list), (QList<qint64>{10, 20}));
    QCOMPARE(partitiontexts::volumeSizes({"C:"}, {}), QList<qint64>());
}

void tst_PartitionTexts::names()
{
    const QString mark = QStringLiteral("(BitLocker)");
    QCOMPARE(partitiontexts::volumeName(volume("C:", 0, 0, "YES"), mark),
             QStringLiteral("C: (NTFS)(BitLocker)"));
    QCOMPARE(partitiontexts::volumeName(volume("C:", 0, 0, "NO"), mark), QStringLiteral("C: (NTFS)"));
    QCOMPARE(partitiontexts::volumeName(volume("C:", 0, 0), mark), QStringLiteral("C: (NTFS)"));
}

void tst_PartitionTexts::health_data()
{
    QTest::addColumn<QVector<int>>("disks");
    QTest::addColumn<QString>("word");
    QTest::newRow("OK") << QVector<int>{1} << "Healthy";
    QTest::newRow("another word") << QVector<int>{2} << "Not Healthy";
    QTest::newRow("the last line counts") << QVector<int>{0} << "Not Healthy";
    QTest::newRow("no line") << QVector<int>{3} << "Not Healthy";
    QTest::newRow("no such disk") << QVector<int>{-1} << "Not Healthy";
    QTest::newRow("two sound ones") << QVector<int>{1, 4} << "Healthy";
    QTest::newRow("one of two") << QVector<int>{1, 2} << "Not Healthy";
}

void tst_PartitionTexts::health()
{
    RecordList<WmicDiskRecord> list;
    const struct {
        unsigned index;
        const char *status;
    } rows[] = {{0, "OK"}, {1, "Error"}, {1, "OK"}, {2, "Pred Fail"}, {0, ""}, {4, "OK"}};
    for (const auto &row : rows) {
        WmicDiskRecord &record = list.append();
        record.nIndex = row.index;
        record.szStatus.assign(QLatin1String(row.status));
    }
    QFETCH(QVector<int>, disks);
    QTEST(partitiontexts::healthWord(disks, list), "word");
}

void tst_PartitionTexts::percentage_data()
{
    QTest::addColumn<qint64>("freeBytes");
    QTest::addColumn<qint64>("sizeBytes");
    QTest::addColumn<QString>("text");
    constexpr qint64 Most = std::numeric_limits<qint64>::max();
    QTest::newRow("cut off") << qint64(2) << qint64(3) << "66% Free";
    QTest::newRow("1536 of 2048") << qint64(1536) << qint64(2048) << "75% Free";
    QTest::newRow("no size") << qint64(5) << qint64(0) << "0% Free";
    QTest::newRow("all free") << Tera << Tera << "100% Free";
    QTest::newRow("beyond the product") << Most / 2 << Most << "50% Free";
    QTest::newRow("more free than there is") << Most << qint64(1) << QString::number(Most) + "% Free";
}

void tst_PartitionTexts::percentage()
{
    QFETCH(qint64, freeBytes);
    QFETCH(qint64, sizeBytes);
    QTEST(partitiontexts::percentText(volume("C:", freeBytes, sizeBytes)), "text");
}

void tst_PartitionTexts::sizes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("freeText");
    QTest::addColumn<QString>("totalText");
    const auto row = [](const char *name, qint64 bytes, const char *freeText, const char *totalText) {
        QTest::newRow(name) << bytes << freeText << totalText;
    };
    row("none", 0, "", "");
    row("negative", -5000, "", "");
    row("one kilobyte", 1024, "", "");
    row("just above", 1025, "1 KB", "1 KB");
    row("whole kilobytes only", 1536, "1 KB", "1 KB");
    row("the border stays below", Mega, "1024 KB", "1024 KB");
    row("beyond the border", Mega + 1024, "1 MB", "1 MB");
    row("a tie goes to the even digit", Mega + Mega / 4, "1.2 MB", "1.2 MB");
    row("a tie goes up to the even digit", Mega + 3 * Mega / 4, "1.8 MB", "1.8 MB");
    row("each unit rounds what the last one left", 1024 * Mega + 512 * 1024, "1 GB", "1 GB");
    row("one decimal", 511496421376, "476.4 GB", "476.4 GB");
    row("two terabytes", 2000398934016, "1.8 TB", "1863 GB");
    row("the last border", Tera, "1024 GB", "1024 GB");
    row("six digits", 1000 * Tera, "1000 TB", "1.024e+06 GB");
    row("the last unit stays", 2000 * Tera, "2000 TB", "2.048e+06 GB");
}

void tst_PartitionTexts::sizes()
{
    QFETCH(qint64, bytes);
    QTEST(partitiontexts::sizeText(bytes, partitiontexts::UnitsOfFree), "freeText");
    QTEST(partitiontexts::sizeText(bytes, partitiontexts::UnitsOfTotal), "totalText");
}

void tst_PartitionTexts::space()
{
    QCOMPARE(partitiontexts::spaceText(volume("C:", 1536, 2048), false), QStringLiteral("1 KB Free of 2 KB"));
    QCOMPARE(partitiontexts::spaceText(volume("C:", 1536, 2048), true),
             QStringLiteral("1 KB Free of 2 KB Available"));
    QCOMPARE(partitiontexts::spaceText(volume("C:", 0, 2048), false), QStringLiteral(" Free of 2 KB"));
}

QTEST_APPLESS_MAIN(tst_PartitionTexts)
#include "tst_PartitionTexts.moc"
