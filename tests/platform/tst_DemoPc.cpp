// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

/// The demo PC as demo/make-pc makes it, with real partition tables and file systems.
class TestDemoPc : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void volumesLieOnPartitions();
    void fileSystems_data();
    void fileSystems();
    void historyEndsYesterday();

private:
    static QByteArray outputOfTool(const QString &tool, const QStringList &arguments)
    {
        QProcess process;
        process.start(tool, arguments);
        const bool done = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
        return done && process.exitCode() == 0 ? process.readAllStandardOutput() + ' ' : QByteArray();
    }
    QByteArray bytesOfDisk(int disk, qint64 offset, int count)
    {
        const auto handle = m_pc->CreateFileW(QStringLiteral("\\\\.\\PHYSICALDRIVE%1").arg(disk),
                                              io::GenericRead, 7, io::OpenExisting);
        QByteArray bytes(count, '?');
        const bool read = m_pc->SetFilePointer(handle, offset) &&
                          m_pc->ReadFile(handle, bytes.data(), static_cast<quint32>(count), nullptr);
        m_pc->CloseHandle(handle);
        return read ? bytes : QByteArray();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<SimulatedPlatform> m_pc;
};

void TestDemoPc::initTestCase()
{
    const QStringList folders{QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")};
    for (const char *tool : {"sfdisk", "mke2fs", "mkfs.vfat", "mkfs.ntfs"}) {
        if (QStandardPaths::findExecutable(QLatin1String(tool), folders).isEmpty())
            QSKIP("the makers of partition tables and file systems are not installed");
    }
    const QString pc = m_folder.path() + QStringLiteral("/pc");
    QVERIFY(!outputOfTool(QStringLiteral(HALVANE_SOURCE_DIR "/demo/make-pc"), {pc}).isNull());
    QString error;
    m_pc = SimulatedPlatform::open(pc, m_folder.path() + QStringLiteral("/state"), &error);
    QVERIFY2(m_pc, qPrintable(error));
}

void TestDemoPc::volumesLieOnPartitions()
{
    QSet<QString> partitions; // "disk offset length", all bytes
    for (const auto &disk : m_pc->description().disks) {
        const int number = disk.record.number;
        QCOMPARE(bytesOfDisk(number, 510, 2), QByteArray("\x55\xAA"));
        const QByteArray json =
            outputOfTool(QStringLiteral("/sbin/sfdisk"), {QStringLiteral("--json"), m_pc->imageFile(number)});
        const QJsonValue table =
            QJsonDocument::fromJson(json).object().value(QLatin1String("partitiontable"));
        for (const QJsonValue &row : table[QStringLiteral("partitions")].toArray())
            partitions.insert(QStringLiteral("%1 %2 %3")
                                  .arg(number)
                                  .arg(qint64(row[QStringLiteral("start")].toDouble()) * 512)
                                  .arg(qint64(row[QStringLiteral("size")].toDouble()) * 512));
    }
    QCOMPARE(partitions.size(), 17);
    for (const inventory::Volume &volume : m_pc->description().volumes) {
        for (const inventory::Extent &extent : volume.extents)
            QVERIFY2(partitions.contains(
                         QStringLiteral("%1 %2 %3").arg(extent.disk).arg(extent.offset).arg(extent.length)),
                     qPrintable(QString(volume.letter)));
    }
}

void TestDemoPc::fileSystems_data()
{
    QTest::addColumn<int>("disk");
    QTest::addColumn<qint64>("sector");
    QTest::addColumn<int>("at"); // offset in the partition
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("ext4, name") << 2 << qint64(151001088) << 1144 << QByteArray("/media\0", 7);
    QTest::newRow("ext4, place") << 3 << qint64(83888128) << 1160 << QByteArray("/home\0", 6);
    QTest::newRow("NTFS") << 3 << qint64(1246066688) << 3 << QByteArray("NTFS    ");
    QTest::newRow("NTFS, place") << 3 << qint64(1246066688) << 28 << QByteArray("\0\x78\x45\x4a", 4);
    QTest::newRow("FAT32, name") << 4 << qint64(2048) << 71 << QByteArray("STICK      FAT32   ");
}

void TestDemoPc::fileSystems()
{
    QFETCH(int, disk);
    QFETCH(qint64, sector);
    QFETCH(int, at);
    QFETCH(QByteArray, bytes);
    QCOMPARE(bytesOfDisk(disk, sector * 512 + at, bytes.size()), bytes);
}

void TestDemoPc::historyEndsYesterday()
{
    QFile dates(m_pc->HistoryFolder(QString()) + QStringLiteral("/OK-83H2F6610Date.txt"));
    QVERIFY(dates.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = dates.readAll().trimmed().split('\n');
    QCOMPARE(lines.size(), 10);
    QCOMPARE(QDate::fromString(QString::fromLatin1(lines.last()), QStringLiteral("dd-MM-yyyy")),
             QDate::currentDate().addDays(-1));
}

QTEST_GUILESS_MAIN(TestDemoPc)
#include "tst_DemoPc.moc"
