// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/LoopDevice.h"
#include "tests/scan/ScanRecorder.h"
#include "tests/support/DiskImage.h"
#include "tests/support/WatchedPlatform.h"

#include <QtTest>

#include <algorithm>

constexpr qint64 Chunk = 16384;

/// A scan of a real block device, made for the test, whose end cannot be read any more.
class tst_LinuxScan : public QObject
{
    Q_OBJECT

private slots:
    /// Cut in a chunk, all of it, and of sectors of 4096 bytes.
    void findsWhatTheKernelRefuses()
    {
        constexpr qint64 Total = 40000;
        for (const auto &[readable, options] : {std::pair(qint64(20000), QStringList{"--direct-io=on"}),
                                                {0, {}},
                                                {20000, {"--sector-size", "4096"}}}) {
            const DiskImage image(0);
            image.put(0, QByteArray(Total * 512, 'x'));
            const LoopDevice loop(image.path(), options);
            if (loop.node().isEmpty())
                QSKIP("no loop devices here");
            QVERIFY(QFile::resize(image.path(), readable * 512));
            qputenv("HALVANE_DISKS", loop.node().toUtf8());
            const QTemporaryDir home;
            Platform::install(linuxPcIn(home.path()));

            forgetScans();
            const SelectedDisk disk(0, Total);
            const QStringList lines = scanned(Total);

            // All chunks fail from the one with the cut on. Each lists its own sectors and the one behind it.
            QVector<qint64> expected;
            for (qint64 first = readable / Chunk * Chunk; first < Total; first += Chunk) {
                for (qint64 sector = std::max(first, readable); sector <= std::min(first + Chunk, Total);
                     ++sector)
                    expected.append(sector);
            }
            QCOMPARE(sectorsOf(g_BadSectors), expected);
            QCOMPARE(lines.last(), QString("finish Pass"));
            QCOMPARE(lines.at(lines.size() - 2), QString("bad %1").arg(expected.size()));
            QCOMPARE(lines.filter("chunk ").size(), 3);
            QVERIFY(image.contents() == QByteArray(int(readable) * 512, 'x')); // nothing was written
        }
    }
};

QTEST_GUILESS_MAIN(tst_LinuxScan)
#include "tst_LinuxScan.moc"
