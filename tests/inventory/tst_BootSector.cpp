// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/BootSector.h"
#include "tests/support/DiskImage.h"
#include "tests/support/FakePlatform.h"

#include <QTest>

namespace
{

constexpr qint64 MiB = 1024 * 1024;
constexpr int LetterE = 4;

bootsector::Sector sectorOf(const QByteArray &volume, int sector)
{
    bootsector::Sector bytes{};
    const QByteArray piece = volume.mid(sector * 512, 512);
    std::copy(piece.cbegin(), piece.cend(), bytes.begin());
    return bytes;
}

bootsector::Sector superblock(const QByteArray &name, const QByteArray &mountPoint)
{
    QByteArray bytes(512, '\0');
    bytes.replace(120, name.size(), name);
    bytes.replace(136, mountPoint.size(), mountPoint);
    return sectorOf(bytes, 0);
}

} // namespace

class BootSectorTest : public QObject
{
    Q_OBJECT

private slots:
    void sniffsVolumes_data();
    void sniffsVolumes();
    void sniffsBytes_data();
    void sniffsBytes();
    void tellsFatWidth_data();
    void tellsFatWidth();
    void readsNamesOfTools_data();
    void readsNamesOfTools();
    void readsNames_data();
    void readsNames();
};

void BootSectorTest::sniffsVolumes_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("wiped"); ///< the first sector is lost
    QTest::addColumn<bool>("removable");
    QTest::addColumn<quint64>("totalBytes");
    QTest::addColumn<QString>("fileSystem");
    QTest::addColumn<quint64>("sniffedBytes");
    const QString ntfs = QStringLiteral("mkfs.ntfs -q -F -f");
    const QString exfat = QStringLiteral("mkfs.exfat");
    const QString vfat = QStringLiteral("mkfs.vfat -F 32");
    const QString ext = QStringLiteral("mke2fs -q -F -t ext4");
    const quint64 all = 40 * MiB;
    const auto row = [](const char *name, const QString &command, bool wiped, bool removable, quint64 total,
                        const char *fileSystem, quint64 sniffed) {
        QTest::newRow(name) << command << wiped << removable << total << QString::fromLatin1(fileSystem)
                            << sniffed;
    };
    row("exFAT without a size", exfat, false, false, 0, "exFAT", all);
    row("exFAT on a stick", exfat, false, true, 0, "exFAT", all);
    row("exFAT with a size", exfat, false, false, 1234, "exFAT", 1234);
    row("fixed NTFS", ntfs, false, false, all - 512, "FAT32", all - 512);
    row("NTFS on a stick, by its backup", ntfs, true, true, all - 1, "NTFS", all - 1);
    row("NTFS, backup elsewhere", ntfs, true, true, all - 1024, "FAT32", all - 1024);
    row("exFAT by its backup", exfat, true, true, all - 1, "EXFAT", all - 1);
    row("lost exFAT without a size", exfat, true, true, 0, "EXFAT", 0);
    row("fixed exFAT that is lost", exfat, true, false, all, "FAT32", all);
    row("FAT32", vfat, true, true, all - 1, "FAT32", all - 1);
    row("ext", ext, false, true, all - 1, "FAT32", all - 1);
}

void BootSectorTest::sniffsVolumes()
{
    const QString missing = DiskImage::missingTool();
    if (!missing.isEmpty())
        QSKIP(qPrintable(missing + QLatin1String(" is not installed")));
    QFETCH(QString, command);
    QFETCH(bool, wiped);
    QFETCH(bool, removable);
    QFETCH(quint64, totalBytes);
    QByteArray volume = madeBy(command, 40 * MiB);
    if (wiped)
        volume.replace(0, 512, QByteArray(512, '\0'));
    FakePlatform::install()->volumes[QLatin1Char('E')].raw.bytes = volume;
    const auto sniffed = bootsector::sniffFileSystem(LetterE, removable, totalBytes);
    QVERIFY(sniffed);
    QTEST(sniffed->fileSystem, "fileSystem");
    QTEST(sniffed->totalBytes, "sniffedBytes");
}

void BootSectorTest::sniffsBytes_data()
{
    QTest::addColumn<int>("letter");
    QTest::addColumn<bool>("removable");
    QTest::addColumn<int>("sector"); ///< that has the name
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("fileSystem"); ///< empty: no volume
    QTest::newRow("fixed A:") << 0 << false << 0 << QByteArray("NTFS") << QString();
    QTest::newRow("fixed A: with exFAT") << 0 << false << 0 << QByteArray("EXFAT") << QStringLiteral("exFAT");
    QTest::newRow("floppy") << 0 << true << 6 << QByteArray("MSDOS5.0") << QStringLiteral("FAT32");
    QTest::newRow("end before sector 12") << 4 << true << 20 << QByteArray("NTFS") << QStringLiteral("NTFS");
    QTest::newRow("sector 6 before sector 12")
        << 4 << true << 6 << QByteArray("MSDOS") << QStringLiteral("FAT32");
    QTest::newRow("sector 12") << 4 << true << 12 << QByteArray("EXFAT  ") << QStringLiteral("EXFAT");
    QTest::newRow("name in other case") << 4 << true << 12 << QByteArray("exFAT") << QStringLiteral("FAT32");
    QTest::newRow("NTFS at the start only")
        << 4 << true << 0 << QByteArray("NTFS") << QStringLiteral("FAT32");
    QTest::newRow("unreadable") << 25 << true << 0 << QByteArray("EXFAT") << QStringLiteral("FAT32");
    QTest::newRow("unreadable and fixed")
        << 25 << false << 0 << QByteArray("EXFAT") << QStringLiteral("FAT32");
}

void BootSectorTest::sniffsBytes()
{
    QFETCH(int, letter);
    QFETCH(bool, removable);
    QFETCH(int, sector);
    QFETCH(QByteArray, name);
    QFETCH(QString, fileSystem);
    FakePlatform *fake = FakePlatform::install();
    QByteArray volume(21 * 512, '\0');
    if (fileSystem == QLatin1String("NTFS") || name == "MSDOS")
        volume.replace(12 * 512 + 3, 5, "EXFAT");
    volume.replace(sector * 512 + 3, name.size(), name);
    for (const char drive : {'A', 'E', 'Z'})
        fake->volumes[QLatin1Char(drive)].raw.bytes = volume;
    fake->volumes[QLatin1Char('Z')].raw.opens = false;
    const auto sniffed = bootsector::sniffFileSystem(letter, removable, 20 * 512);
    QCOMPARE(sniffed ? sniffed->fileSystem : QString(), fileSystem);
}

void BootSectorTest::tellsFatWidth_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("mebibytes");
    QTest::addColumn<bool>("is16");
    QTest::newRow("floppy") << QStringLiteral("mkfs.vfat -F 12") << 1 << false;
    QTest::newRow("large FAT12") << QStringLiteral("mkfs.vfat -a -F 12 -s 8") << 15 << false;
    QTest::newRow("small FAT16") << QStringLiteral("mkfs.vfat -F 16 -s 1") << 8 << true;
    QTest::newRow("large FAT16") << QStringLiteral("mkfs.vfat -F 16") << 60 << true;
}

void BootSectorTest::tellsFatWidth()
{
    const QString missing = DiskImage::missingTool();
    if (!missing.isEmpty())
        QSKIP(qPrintable(missing + QLatin1String(" is not installed")));
    QFETCH(QString, command);
    QFETCH(int, mebibytes);
    const QByteArray volume = madeBy(command, mebibytes * MiB);
    QTEST(bootsector::isFat16(sectorOf(volume, 0)), "is16");
    QVERIFY(!bootsector::isNtfs(sectorOf(volume, 0)));
    // The size at which FAT16 begins.
    QByteArray bytes = volume.left(512);
    bytes[22] = 12;
    bytes[23] = 0;
    QVERIFY(!bootsector::isFat16(sectorOf(bytes, 0)));
    bytes[22] = 13;
    QVERIFY(bootsector::isFat16(sectorOf(bytes, 0)));
    bytes[22] = 0;
    bytes[23] = 1;
    QVERIFY(bootsector::isFat16(sectorOf(bytes, 0)));
}

void BootSectorTest::readsNamesOfTools_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("name");
    QTest::newRow("no name") << QString() << QString();
    QTest::newRow("plain label") << QStringLiteral(" -L data") << QString();
    QTest::newRow("label that is a path") << QStringLiteral(" -L /data") << QStringLiteral("/data");
    QTest::newRow("mount point") << QStringLiteral(" -M /home") << QStringLiteral("/home");
    QTest::newRow("both") << QStringLiteral(" -L /data -M /home") << QStringLiteral("/home");
    QTest::newRow("long mount point")
        << QStringLiteral(" -M /srv/backup/weekly/2026") << QStringLiteral("/srv/backup/week");
}

void BootSectorTest::readsNamesOfTools()
{
    const QString missing = DiskImage::missingTool();
    if (!missing.isEmpty())
        QSKIP(qPrintable(missing + QLatin1String(" is not installed")));
    QFETCH(QString, arguments);
    const QByteArray volume = madeBy(QStringLiteral("mke2fs -q -F -t ext4") + arguments, MiB);
    QTEST(bootsector::extName(sectorOf(volume, 2)), "name");
    bootsector::ExtProbe probe;
    std::copy_n(volume.cbegin(), probe.size(), probe.begin());
    QVERIFY(bootsector::isExt(probe));
}

void BootSectorTest::readsNames_data()
{
    QTest::addColumn<QByteArray>("volumeName");
    QTest::addColumn<QByteArray>("mountPoint");
    QTest::addColumn<QString>("name");
    QTest::newRow("no terminator") << QByteArray("/sixteen-letters/and-more") << QByteArray()
                                   << QStringLiteral("/sixteen-letters");
    QTest::newRow("ends at a zero") << QByteArray() << QByteArray("/a\0b", 4) << QStringLiteral("/a");
    QTest::newRow("mount point that is no path")
        << QByteArray("/b") << QByteArray("a/b") << QStringLiteral("/b");
    QTest::newRow("not at the first byte") << QByteArray(" /b") << QByteArray() << QString();
}

void BootSectorTest::readsNames()
{
    QFETCH(QByteArray, volumeName);
    QFETCH(QByteArray, mountPoint);
    bootsector::Sector bytes = superblock(volumeName.left(16), mountPoint);
    QTEST(bootsector::extName(bytes), "name");
}

QTEST_GUILESS_MAIN(BootSectorTest)
#include "tst_BootSector.moc"
