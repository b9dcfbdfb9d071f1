// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/BootSector.h"
#include "tests/support/DiskImage.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/HandMadeDisk.h"

#include <QTest>

namespace
{

constexpr qint64 MiB = 1024 * 1024;

template<typename Bytes = bootsector::Sector>
Bytes taken(const QByteArray &volume, int sector = 0)
{
    Bytes bytes{};
    std::copy_n(volume.cbegin() + sector * 512, bytes.size(), bytes.begin());
    return bytes;
}

/// What is told of a volume of 21 sectors with such names in some of them.
QString told(int letter, bool removable, const QMap<int, const char *> &names)
{
    HandMadeDisk volume(21);
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        volume.text(name.key() * 512 + 3, name.value());
    FakePlatform::install()->volumes[QChar('A' + letter)].raw.bytes = volume.bytes;
    const auto sniffed = bootsector::sniffFileSystem(letter, removable, 20 * 512);
    return sniffed ? sniffed->fileSystem : QStringLiteral("no volume");
}

QString nameIn(const QByteArray &volumeName, const QByteArray &mountPoint)
{
    return bootsector::extName(
        taken(HandMadeDisk(1).text(120, volumeName.left(16)).text(136, mountPoint).bytes));
}

} // namespace

class BootSectorTest : public QObject
{
    Q_OBJECT

private slots:
    void sniffsVolumes_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("wiped"); ///< the first sector is lost
        QTest::addColumn<bool>("removable");
        QTest::addColumn<quint64>("totalBytes");
        QTest::addColumn<QString>("fileSystem");
        QTest::addColumn<quint64>("sniffedBytes");
        const quint64 all = 40 * MiB;
        QTest::newRow("exFAT without a size")
            << "mkfs.exfat" << false << true << quint64(0) << "exFAT" << all;
        QTest::newRow("exFAT with a size")
            << "mkfs.exfat" << false << false << quint64(1234) << "exFAT" << quint64(1234);
        QTest::newRow("exFAT by its backup")
            << "mkfs.exfat" << true << true << quint64(0) << "EXFAT" << quint64(0);
        const QString ntfs = QStringLiteral("mkfs.ntfs -q -F -f");
        QTest::newRow("fixed NTFS") << ntfs << false << false << all - 1 << "FAT32" << all - 1;
        QTest::newRow("NTFS by its backup") << ntfs << true << true << all - 1 << "NTFS" << all - 1;
        QTest::newRow("ext") << "mke2fs -q -F -t ext4" << false << true << all << "FAT32" << all;
    }

    void sniffsVolumes()
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
        const auto sniffed = bootsector::sniffFileSystem(4, removable, totalBytes);
        QVERIFY(sniffed);
        QTEST(sniffed->fileSystem, "fileSystem");
        QTEST(sniffed->totalBytes, "sniffedBytes");
    }

    void sniffsBytes()
    {
        QCOMPARE(told(0, false, {{0, "NTFS"}}), QStringLiteral("no volume"));
        QCOMPARE(told(0, false, {{0, "EXFAT"}}), QStringLiteral("exFAT"));
        QCOMPARE(told(0, true, {}), QStringLiteral("FAT32"));
        QCOMPARE(told(4, true, {{20, "NTFS"}, {6, "MSDOS"}}), QStringLiteral("NTFS"));
        QCOMPARE(told(4, true, {{6, "MSDOS5.0"}, {12, "EXFAT"}}), QStringLiteral("FAT32"));
        QCOMPARE(told(4, true, {{0, "NTFS"}, {12, "exFAT"}}), QStringLiteral("FAT32"));
    }

    void takesUnreadableSectorsAsZero()
    {
        FakePlatform::install()->volumes[QLatin1Char('E')].raw.opens = false;
        QCOMPARE(bootsector::readSector(4, 0), bootsector::Sector{});
    }

    void readsToolsVolumes()
    {
        const QString missing = DiskImage::missingTool();
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing + QLatin1String(" is not installed")));
        QVERIFY(!bootsector::isFat16(taken(madeBy(QStringLiteral("mkfs.vfat -a -F 12 -s 8"), 15 * MiB))));
        QVERIFY(bootsector::isFat16(taken(madeBy(QStringLiteral("mkfs.vfat -F 16 -s 1"), 8 * MiB))));
        QVERIFY(bootsector::isFat16(taken(HandMadeDisk(1).put(22, quint16(256)).bytes)));
        const QByteArray ext = madeBy(QStringLiteral("mke2fs -q -F -t ext4 -L /data -M /home"), MiB);
        QCOMPARE(bootsector::extName(taken(ext, 2)), QStringLiteral("/home"));
    }

    void tellsExtFromOthers()
    {
        HandMadeDisk disk(3);
        QVERIFY(!bootsector::isExt(taken<bootsector::ExtProbe>(disk.bytes)));
        disk.put(1080, quint16(0xEF53));
        QVERIFY(bootsector::isExt(taken<bootsector::ExtProbe>(disk.bytes)));
        for (const char *other : {"NTFS", "MSWIN4.1", "EXFAT"})
            QVERIFY(!bootsector::isExt(taken<bootsector::ExtProbe>(HandMadeDisk(disk).text(3, other).bytes)));
    }

    void readsNames()
    {
        QCOMPARE(nameIn("/sixteen-letters/and-more", "a/b"), QStringLiteral("/sixteen-letters"));
        QCOMPARE(nameIn("", QByteArray("/a\0b", 4)), QStringLiteral("/a"));
        QCOMPARE(nameIn(" /b", ""), QString());
    }
};

QTEST_GUILESS_MAIN(BootSectorTest)
#include "tst_BootSector.moc"
