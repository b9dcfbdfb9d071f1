// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/PcCollection.h"
#include "monitor/SerialMask.h"
#include "smart/AttributeHistory.h"
#include "state/GlobalApp.h"
#include "tests/platform/DescribedFolder.h"

#include <QDirIterator>
#include <QtTest>

/// A PC is collected, and opened again as one that comes from somebody else.
class TestPcCollection : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        g_App.m_bUse64BitTool = true;
        g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Velmora Halvane for Windows");
        m_pc = std::make_unique<DescribedFolder>();
        m_out = std::make_unique<QTemporaryDir>();
    }

    /// The drive's own text names no file, no sector of data goes along, and a folder in use is left alone.
    void nothingLeavesTheFolder()
    {
        open("../../../evil\\x");
        const HistoryPaths history = historyPaths("../../../evil\\x");
        QVERIFY(writeFile(history.dates, "21-11-2026\n") && writeFile(history.values, "[21-11-2026]\na=1\n"));
        QCOMPARE(collection::collect(folder(), false), QString());
        QCOMPARE(QDir(m_out->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
        QCOMPARE(QDir(folder() + "/history").entryList(QDir::Files).size(), 2);
        QVERIFY(!allBytes().contains("private"));
        QVERIFY(allBytes().contains("the boot code") && allBytes().contains("evil"));
        QString error;
        const DescribedFolder state;
        const auto opened = SimulatedPlatform::open(folder(), state.state(), &error);
        QVERIFY2(opened, qPrintable(error));
        QCOMPARE(opened->description().disks.size(), 1);
        QCOMPARE(opened->description().volumes.size(), 1);
        QCOMPARE(opened->description().settings.value("WarningValue").toInt(), 44);
        const QByteArray before = allBytes();
        QCOMPARE(collection::collect(folder(), false), folder() + ": is not empty");
        QCOMPARE(allBytes(), before);
    }

    void numbersOfSectors_data()
    {
        QTest::addColumn<int>("at");
        QTest::addColumn<QByteArray>("mark");
        QTest::addColumn<QVector<int>>("cleared"); // place, length, …
        QTest::addColumn<int>("size");
        const auto row = [](const char *name, int at, const char *mark, const QVector<int> &cleared,
                            int size = 512) {
            QTest::newRow(name) << at << QByteArray(mark) << cleared << size;
        };
        row("GPT header", 0, "EFI PART", {0x38, 16});
        row("GPT header of 4096 bytes", 0, "EFI PART", {0x38, 16}, 4096);
        row("GPT entries", 128, "", {16, 16, 144, 16, 272, 16, 400, 16});
        row("NTFS", 3, "NTFS    ", {0x48, 8});
        row("encrypted", 3, "-FVE-FS-", {0x48, 8});
        row("FAT32", 0x52, "FAT32   ", {0x43, 4});
        row("FAT", 0x36, "FAT16   ", {0x27, 4});
        row("exFAT", 3, "EXFAT   ", {0x64, 4});
        row("ext", 0x38, "\x53\xEF", {0x68, 16, 0x88, 64, 0xD0, 16, 0xEC, 16});
        row("MBR", 0x1FE, "\x55\xAA", {0x1B8, 4});
    }

    void numbersOfSectors()
    {
        QFETCH(int, at);
        QFETCH(QByteArray, mark);
        QFETCH(QVector<int>, cleared);
        QFETCH(int, size);
        const QByteArray sector = QByteArray(size, '/').replace(at, mark.size(), mark);
        QByteArray wanted = sector;
        for (int i = 0; i < cleared.size(); i += 2)
            wanted.replace(cleared.at(i), cleared.at(i + 1), QByteArray(cleared.at(i + 1), '\0'));
        if (mark == "\x53\xEF") // where it was mounted
            wanted.replace(0x88, 8, "/mounted");
        QCOMPARE(SerialMask(true).sector(sector), wanted);
        QCOMPARE(SerialMask(false).sector(sector), sector);
    }

    void anonymous()
    {
        open("SN-7788991");
        const HistoryPaths history = historyPaths("SN-7788991");
        QVERIFY(writeFile(history.dates, "21-11-2026\n") && writeFile(history.values, "[21-11-2026]\na=1\n"));
        QCOMPARE(collection::collect(folder(), true), QString());
        const QByteArray all = allBytes();
        for (const char *told :
             {"7788991", "5 000cca 123", "f00d", "WW-TABLE-1", "ID-556677", "Ada", "L:\\\\log", "TELL"})
            QVERIFY2(!all.contains(told), told);
        QVERIFY(all.contains("Serial Number:    ANON000002\n"));
        QCOMPARE(QDir(folder() + "/history").entryList(QDir::Files),
                 (QStringList{"dates-ANON000002.txt", "values-ANON000002"}));
        QVERIFY(all.contains("Model Family:     Kept"));
        QString error;
        const DescribedFolder state;
        auto opened = SimulatedPlatform::open(folder(), state.state(), &error);
        QVERIFY2(opened, qPrintable(error));
        Platform::install(std::move(opened));
        QCOMPARE(contentOf(historyPaths("ANON000002").dates), QByteArray("21-11-2026\n"));
    }

private:
    void open(const QByteArray &serial)
    {
        QByteArray disk(64 * 512, '\0');
        const auto put = [&disk](int at, const QByteArray &bytes) { disk.replace(at, bytes.size(), bytes); };
        put(0, "the boot code");
        put(0x1B8, "TELL"); // tells one disk from another
        // A partition of the type Linux, in which no file system is found.
        put(0x1BE, QByteArray::fromHex("00000000830000000400000010000000"));
        put(0x1FE, "\x55\xAA");
        put(4 * 512, "private");
        m_pc->add("disk.img", disk);
        m_pc->add("report.txt",
                  "smartctl 7.3\n=== START OF INFORMATION SECTION ===\nModel Family:     Kept\n"
                  "Serial Number:    " +
                      serial +
                      "\nLU WWN Device Id: 5 000cca 123\nNamespace 2 IEEE EUI-64:           f00d\n"
                      "=== START OF READ SMART DATA SECTION ===\n");
        Platform::install(m_pc->open(R"({"user": "Ada",
            "disks": [{"number": 0, "model": "M", "serial": "WW-TABLE-1", "sectors": 64, "image": "disk.img",
                       "report": "report.txt", "identity": {"model": "M", "serial": "ID-556677", "firmware": "F"}}],
            "volumes": [{"letter": "L", "fileSystem": "NTFS", "size": 8192, "extents": [{"disk": 0, "offset": 2048}]}],
            "settings": {"LogSavePath": "L:\\log.txt", "WarningValue": 44}})"));
    }

    QString folder() const { return m_out->path() + "/case"; }

    /// All files that were written, one behind the other.
    QByteArray allBytes() const
    {
        QByteArray all;
        QDirIterator each(folder(), QDir::Files, QDirIterator::Subdirectories);
        while (each.hasNext())
            all += contentOf(each.next());
        return all;
    }

    std::unique_ptr<DescribedFolder> m_pc;
    std::unique_ptr<QTemporaryDir> m_out;
};

QTEST_GUILESS_MAIN(TestPcCollection)
#include "tst_PcCollection.moc"
