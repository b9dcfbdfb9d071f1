// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/WmicInventory.h"
#include "platform/tools/StorageRecords.h"
#include "tests/support/HandMadeDisk.h"

#include <QtTest>

namespace
{

const QByteArray EfiSystem = QByteArray::fromHex("28732ac11ff8d211ba4b00a0c93ec93b");
const QByteArray Reserved = QByteArray::fromHex("16e3c9e35c0bb84d817df92df00215ae");
const QByteArray Recovery = QByteArray::fromHex("a4bb94ded106404da16abfd50179d6ac");

/// Entries of 4 KiB, each with its place and type.
QByteArray layoutOf(quint32 style, const QVector<QPair<quint64, QByteArray>> &entries)
{
    HandMadeDisk layout(4);
    layout.put(4, quint32(entries.size()));
    for (int i = 0, at = 48; i < entries.size(); ++i, at += 144) {
        layout.put(at, style).put(at + 8, entries.at(i).first).put(at + 16, quint64(4096));
        layout.text(at + 32, entries.at(i).second);
    }
    return layout.bytes;
}

} // namespace

/// Answers of Windows' storage interface, and the table that the disk list reads from them.
class tst_StorageRecords : public QObject
{
    Q_OBJECT

private slots:
    void disks()
    {
        // Vendor, product, number of the bus; then medium, interface, and model as the disk list cuts it.
        for (const auto &[vendor, product, bus, shown] : {
                 std::tuple("", "Quill Data 40     ", 11, "fixed IDE:Quill Data 40 "),
                 std::tuple("NVMe    ", "Marl NV 512", 17, "fixed SCSI:Marl NV 512 "), // the driver as vendor
                 std::tuple("Tarn    ", "Stick 3.0", 7, "removable USB:Tarn Stick 3.0 "),
                 std::tuple("", "", 0, "fixed SCSI:Disk 3 "), // refused
             }) {
            HandMadeDisk record(1);
            record.put(28, quint32(bus)).put(10, quint8(bus == 7)).put(12, quint32(40)).put(16, quint32(80));
            record.put(24, quint32(120)).text(120, "  QD40 17 ").text(40, vendor).text(80, product);
            const inventory::Disk disk = storage::readDisk(3, bus == 0 ? QByteArray() : record.bytes);
            const wmic::DiskDriveLine line =
                wmic::parseDiskDrive(QString("3  %1  %2  OK  ").arg(disk.interfaceType, disk.model));
            QCOMPARE(disk.media + ' ' + line.interfaceText + ':' + line.model, shown);
            QCOMPARE(disk.serial, bus == 0 ? QString() : "QD40 17");
            // An answer that ends in the middle; nothing behind its end may be read.
            QCOMPARE(storage::readDisk(3, record.bytes.left(18)).model, "Disk 3 HDD Device");
        }
    }

    void partitions()
    {
        const QByteArray gpt = layoutOf(
            1, {{900, HandMadeDisk::basicData()}, {100, EfiSystem}, {500, Reserved}, {990, Recovery}});
        const QByteArray mbr =
            layoutOf(0, {{1, "\x07"}, {9, "\x0f"}, {0, ""}, {0, ""}, {10, "\x0b"}, {20, "\x05"}});
        for (const auto &[layout, types] : {
                 std::pair(gpt, QStringList{"GPT: System", "GPT: Basic Data",
                                            "GPT: Unknown"}), // in the order of places
                 std::pair(mbr, QStringList{"Installable File System", "Extended w/Extended Int 13",
                                            "Win95 w/Extended Int 13"}),
                 std::pair(gpt.left(48 + 144 + 143), QStringList{"GPT: Basic Data"}),
             }) {
            const auto partitions = storage::readPartitions(2, layout);
            QCOMPARE(partitions.size(), types.size());
            for (int i = 0; i < types.size(); ++i) {
                QCOMPARE(partitions.at(i).name, QString("Disk #2, Partition #%1").arg(i));
                QCOMPARE(partitions.at(i).type, types.at(i));
                QCOMPARE(partitions.at(i).size, quint64(4096));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_StorageRecords)
#include "tst_StorageRecords.moc"
