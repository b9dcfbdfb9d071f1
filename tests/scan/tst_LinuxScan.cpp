// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/LoopDevice.h"
#include "tests/scan/ScanRecorder.h"
#include "tests/support/DiskImage.h"
#include "tests/support/LinuxPlaces.h"

#include <QtTest>

#include <algorithm>

namespace
{

constexpr qint64 Chunk = 16384;
constexpr int SectorSize = 512;

} // namespace

/// A scan of a real block device, made for the test, whose end cannot be read any more.
class tst_LinuxScan : public QObject
{
    Q_OBJECT

private slots:
    void findsWhatTheKernelRefuses_data();
    void findsWhatTheKernelRefuses();

private:
    QTemporaryDir m_home;
};

void tst_LinuxScan::findsWhatTheKernelRefuses_data()
{
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint64>("readable");
    QTest::addColumn<QStringList>("options");
    const QStringList direct{QStringLiteral("--direct-io=on")};
    const QStringList bigSectors{QStringLiteral("--sector-size"), QStringLiteral("4096")};
    QTest::newRow("whole") << qint64(40000) << qint64(40000) << QStringList();
    QTest::newRow("cut in a chunk") << qint64(40000) << qint64(20000) << QStringList();
    QTest::newRow("cut in a chunk, direct") << qint64(40000) << qint64(20000) << direct;
    QTest::newRow("cut at a chunk") << qint64(3 * Chunk) << qint64(2 * Chunk) << QStringList();
    QTest::newRow("cut in the last chunk") << qint64(40000) << qint64(39992) << QStringList();
    QTest::newRow("all of it") << qint64(2 * Chunk) << qint64(0) << QStringList();
    QTest::newRow("sectors of 4096 bytes") << qint64(40000) << qint64(20000) << bigSectors;
}

void tst_LinuxScan::findsWhatTheKernelRefuses()
{
    QFETCH(qint64, total);
    QFETCH(qint64, readable);
    QFETCH(QStringList, options);
    const DiskImage image(0);
    image.put(0, QByteArray(static_cast<int>(total) * SectorSize, 'x'));
    const LoopDevice loop(image.path(), options);
    if (loop.node().isEmpty())
        QSKIP("no loop devices here");
    QVERIFY(QFile::resize(image.path(), readable * SectorSize));
    qputenv("HALVANE_DISKS", loop.node().toUtf8());
    Platform::install(linuxPcIn(m_home.path()));

    forgetScans();
    const SelectedDisk disk(0, total);
    const QStringList lines = scanned(total);

    // All chunks fail from the one with the cut on. Each lists its own sectors and the one behind it.
    QVector<qint64> expected;
    for (qint64 first = readable / Chunk * Chunk; readable < total && first < total; first += Chunk) {
        for (qint64 sector = std::max(first, readable); sector <= std::min(first + Chunk, total); ++sector)
            expected.append(sector);
    }
    QCOMPARE(sectorsOf(g_BadSectors), expected);
    QCOMPARE(lines.last(), QStringLiteral("finish Pass"));
    QCOMPARE(lines.at(lines.size() - 2), QStringLiteral("bad %1").arg(expected.size()));
    QCOMPARE(lines.filter(QStringLiteral("chunk ")).size(), int((total + Chunk - 1) / Chunk));
}

QTEST_GUILESS_MAIN(tst_LinuxScan)
#include "tst_LinuxScan.moc"
