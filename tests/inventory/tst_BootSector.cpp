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

/// "file system bytes" of a volume with such content.
QString sniffed(int letter, const QByteArray &volume, bool removable, quint64 totalBytes)
{
    FakePlatform::install()->volumes[QChar('A' + letter)].raw.bytes = volume;
    const auto found = bootsector::sniffFileSystem(letter, removable, totalBytes);
    return found ? found->fileSystem + ' ' + QString::number(found->totalBytes) : "no volume";
}

} // namespace

class BootSectorTest : public QObject
{
    Q_OBJECT

private slots:
    void readsToolsVolumes()
    {
        const QString missing = DiskImage::missingTool();
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing + QLatin1String(" is not installed")));
        const auto told = [](QByteArray volume, bool removable, quint64 totalBytes, bool firstIsLost) {
            if (firstIsLost)
                volume.replace(0, 512, QByteArray(512, '\0'));
            return sniffed(4, volume, removable, totalBytes);
        };
        const quint64 all = 40 * MiB;
        const QByteArray exfat = madeBy("mkfs.exfat", all);
        QCOMPARE(told(exfat, true, 0, false), QStringLiteral("exFAT 41943040"));
        QCOMPARE(told(exfat, false, 1234, false), QStringLiteral("exFAT 1234"));
        QCOMPARE(told(exfat, true, 0, true), QStringLiteral("EXFAT 0"));
        const QByteArray ntfs = madeBy("mkfs.ntfs -q -F -f", all);
        QCOMPARE(told(ntfs, false, all - 1, false), QStringLiteral("FAT32 41943039"));
        QCOMPARE(told(ntfs, true, all - 1, true), QStringLiteral("NTFS 41943039"));

        QVERIFY(!bootsector::isFat16(taken(madeBy(QStringLiteral("mkfs.vfat -a -F 12 -s 8"), 15 * MiB))));
        QVERIFY(bootsector::isFat16(taken(madeBy(QStringLiteral("mkfs.vfat -F 16 -s 1"), 8 * MiB))));
        const QByteArray ext = madeBy(QStringLiteral("mke2fs -q -F -t ext4 -L /data -M /home"), MiB);
        QCOMPARE(bootsector::extName(taken(ext, 2)), QStringLiteral("/home"));
    }

    void sniffsBytes()
    {
        const auto told = [](int letter, bool removable, const QMap<int, const char *> &names) {
            HandMadeDisk volume(21);
            for (auto name = names.cbegin(); name != names.cend(); ++name)
                volume.text(name.key() * 512 + 3, name.value());
            return sniffed(letter, volume.bytes, removable, 20 * 512).section(' ', 0, 0);
        };
        QCOMPARE(told(0, false, {{0, "NTFS"}}), QStringLiteral("no"));
        QCOMPARE(told(0, false, {{0, "EXFAT"}}), QStringLiteral("exFAT"));
        QCOMPARE(told(0, true, {{0, "NTFS"}, {12, "exFAT"}}), QStringLiteral("FAT32"));
        QCOMPARE(told(4, true, {{20, "NTFS"}, {6, "MSDOS"}}), QStringLiteral("NTFS"));
        QCOMPARE(told(4, true, {{6, "MSDOS5.0"}, {12, "EXFAT"}}), QStringLiteral("FAT32"));
        QVERIFY(bootsector::isFat16(taken(HandMadeDisk(1).put(22, quint16(256)).bytes)));
    }

    void tellsExtFromOthers()
    {
        const auto isExt = [](quint16 magic, const char *name) {
            return bootsector::isExt(
                taken<bootsector::ExtProbe>(HandMadeDisk(3).put(1080, magic).text(3, name).bytes));
        };
        QVERIFY(isExt(0xEF53, "") && !isExt(0, ""));
        for (const char *other : {"NTFS", "MSWIN4.1", "EXFAT"})
            QVERIFY(!isExt(0xEF53, other));
        const auto nameIn = [](const QByteArray &volumeName, const QByteArray &mountPoint) {
            return bootsector::extName(
                taken(HandMadeDisk(1).text(120, volumeName).text(136, mountPoint).bytes));
        };
        QCOMPARE(nameIn("/sixteen-letters", "a/b"), QStringLiteral("/sixteen-letters"));
        QCOMPARE(nameIn("", QByteArray("/a\0b", 4)), QStringLiteral("/a"));
    }
};

QTEST_GUILESS_MAIN(BootSectorTest)
#include "tst_BootSector.moc"
