#include "inventory/WmicInventory.h"
#include "platform/tools/StorageRecords.h"
#include "tests/support/HandMadeDisk.h"

#include <QtTest>

/// What Windows' storage interface answers, up to the line that the disk list reads.
class tst_StorageRecords : public QObject
{
    Q_OBJECT

private slots:
    void disks_data();
    void disks();
    void partitions_data();
    void partitions();
};

namespace
{

const QByteArray EfiSystem = QByteArray::fromHex("28732ac11ff8d211ba4b00a0c93ec93b");
const QByteArray Reserved = QByteArray::fromHex("16e3c9e35c0bb84d817df92df00215ae");
const QByteArray Recovery = QByteArray::fromHex("a4bb94ded106404da16abfd50179d6ac");

struct Entry {
    quint32 style;
    quint64 start;
    QByteArray type;
};

QByteArray layoutOf(const QVector<Entry> &entries)
{
    HandMadeDisk layout(4);
    layout.bytes.resize(48 + 144 * entries.size());
    layout.bytes.fill('\0');
    layout.put(4, quint32(entries.size()));
    for (int i = 0; i < entries.size(); ++i) {
        const int at = 48 + 144 * i;
        layout.put(at, entries.at(i).style).put(at + 8, entries.at(i).start).put(at + 16, quint64(4096));
        layout.text(at + 32, entries.at(i).type);
    }
    return layout.bytes;
}

} // namespace

void tst_StorageRecords::disks_data()
{
    QTest::addColumn<QByteArray>("vendor");
    QTest::addColumn<QByteArray>("product");
    QTest::addColumn<int>("bus");
    QTest::addColumn<QString>("shown"); ///< interface, and model as the disk list cuts it
    QTest::newRow("SATA") << QByteArray() << QByteArray("Quill Data 40     ") << 11
                          << QStringLiteral("IDE:Quill Data 40 ");
    QTest::newRow("driver as vendor")
        << QByteArray("NVMe    ") << QByteArray("Marl NV 512") << 17 << QStringLiteral("SCSI:Marl NV 512 ");
    QTest::newRow("stick") << QByteArray("Tarn    ") << QByteArray("Stick 3.0") << 7
                           << QStringLiteral("USB:Tarn Stick 3.0 ");
    QTest::newRow("card") << QByteArray() << QByteArray("SD64G") << 12 << QStringLiteral("SD:SD64G ");
    QTest::newRow("behind a controller")
        << QByteArray("Marl") << QByteArray("Volume 0") << 8 << QStringLiteral("SCSI:Marl Volume 0 ");
    QTest::newRow("nothing told") << QByteArray() << QByteArray() << 0 << QStringLiteral("SCSI:Disk 3 ");
}

void tst_StorageRecords::disks()
{
    QFETCH(QByteArray, vendor);
    QFETCH(QByteArray, product);
    QFETCH(int, bus);
    HandMadeDisk record(1);
    record.put(28, quint32(bus));
    record.bytes[10] = char(bus == 7);
    if (!vendor.isEmpty())
        record.put(12, quint32(40)).text(40, vendor);
    if (!product.isEmpty())
        record.put(16, quint32(80)).text(80, product);
    const inventory::Disk disk = storage::readDisk(3, record.bytes);
    QCOMPARE(disk.media, bus == 7 ? QStringLiteral("removable") : QStringLiteral("fixed"));
    const wmic::DiskDriveLine line =
        wmic::parseDiskDrive(QStringLiteral("3  %1  %2  OK  ").arg(disk.interfaceType, disk.model));
    QTEST(line.interfaceText + QLatin1Char(':') + line.model, "shown");

    // An answer that ends in the middle tells less, and nothing behind it is read.
    const inventory::Disk cut = storage::readDisk(3, record.bytes.left(14));
    QCOMPARE(cut.model, QStringLiteral("Disk 3 HDD Device"));
}

void tst_StorageRecords::partitions_data()
{
    QTest::addColumn<QByteArray>("layout");
    QTest::addColumn<QStringList>("types");
    const QByteArray gpt = layoutOf(
        {{1, 900, HandMadeDisk::basicData()}, {1, 100, EfiSystem}, {1, 500, Reserved}, {1, 990, Recovery}});
    QTest::newRow("GPT, in the order of places")
        << gpt
        << QStringList{QStringLiteral("GPT: System"), QStringLiteral("GPT: Basic Data"),
                       QStringLiteral("GPT: Unknown")};
    QTest::newRow("MBR with logical drives")
        << layoutOf(
               {{0, 1, "\x07"}, {0, 9, "\x0f"}, {0, 0, ""}, {0, 0, ""}, {0, 10, "\x0b"}, {0, 20, "\x05"}})
        << QStringList{QStringLiteral("Installable File System"),
                       QStringLiteral("Extended w/Extended Int 13"),
                       QStringLiteral("Win95 w/Extended Int 13")};
    QTest::newRow("cut short") << gpt.left(48 + 144 + 143) << QStringList{QStringLiteral("GPT: Basic Data")};
    QTest::newRow("refused") << QByteArray() << QStringList();
}

void tst_StorageRecords::partitions()
{
    QFETCH(QByteArray, layout);
    QFETCH(QStringList, types);
    const auto partitions = storage::readPartitions(2, layout);
    QCOMPARE(partitions.size(), types.size());
    for (int i = 0; i < types.size(); ++i) {
        QCOMPARE(partitions.at(i).type, types.at(i));
        QCOMPARE(partitions.at(i).name, QStringLiteral("Disk #2, Partition #%1").arg(i));
        QCOMPARE(partitions.at(i).size, quint64(4096));
    }
}

QTEST_GUILESS_MAIN(tst_StorageRecords)
#include "tst_StorageRecords.moc"
