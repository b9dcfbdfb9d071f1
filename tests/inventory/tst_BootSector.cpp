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
    void sniffsVolumes()
    {
        const QString missing = DiskImage::missingTool();
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing + QLatin1String(" is not installed")));
        const auto sniffed = [](QByteArray volume, bool removable, quint64 totalBytes, bool firstIsLost) {
            if (firstIsLost)
                volume.replace(0, 512, QByteArray(512, '\0'));
            FakePlatform::install()->volumes['E'].raw.bytes = volume;
            const auto found = bootsector::sniffFileSystem(4, removable, totalBytes);
            return found ? found->fileSystem + ' ' + QString::number(found->totalBytes) : "no volume";
        };
        const quint64 all = 40 * MiB;
        const QByteArray exfat = madeBy("mkfs.exfat", all);
        QCOMPARE(sniffed(exfat, true, 0, false), QStringLiteral("exFAT 41943040"));
        QCOMPARE(sniffed(exfat, false, 1234, false), QStringLiteral("exFAT 1234"));
        QCOMPARE(sniffed(exfat, true, 0, true), QStringLiteral("EXFAT 0"));
        const QByteArray ntfs = madeBy("mkfs.ntfs -q -F -f", all);
        QCOMPARE(sniffed(ntfs, false, all - 1, false), QStringLiteral("FAT32 41943039"));
        QCOMPARE(sniffed(ntfs, true, all - 1, true), QStringLiteral("NTFS 41943039"));
        QCOMPARE(sniffed(madeBy("mke2fs -q -F -t ext4", all), true, all, false),
                 QStringLiteral("FAT32 41943040"));
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
