// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AlignedBuffer.h"

#include <QtTest>

#include <cstring>

/// A raw device gets aligned memory and whole sectors, whatever the program reads and writes.
class tst_AlignedBuffer : public QObject
{
    Q_OBJECT

private slots:
    void movesWholeSectors_data()
    {
        QTest::addColumn<int>("sector");
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("bytes");
        QTest::addColumn<bool>("writes");
        QTest::newRow("a sector") << 512 << 1024 << 512 << true;
        QTest::newRow("within a large sector") << 4096 << 512 << 1024 << false;
        QTest::newRow("more than the buffer") << 4096 << 512 << int(AlignedBuffer::Size) + 1024 << false;
        QTest::newRow("sectors of an unknown size") << 1 << 77 << int(AlignedBuffer::Size) + 5 << true;
    }

    void movesWholeSectors()
    {
        QFETCH(int, sector);
        QFETCH(int, position);
        QFETCH(int, bytes);
        QByteArray disk(3 * int(AlignedBuffer::Size), '\0');
        for (int i = 0; i < disk.size(); ++i)
            disk[i] = char(i * 31 + i / 509);
        const auto isFit = [&](const char *memory, qint64 at, qint64 count) {
            return AlignedBuffer::takes(memory, at, count, sector);
        };
        AlignedBuffer buffer;
        QByteArray ragged(bytes + 1, '\0');
        QVERIFY(buffer.read(ragged.data() + 1, position, bytes, sector,
                            [&](char *memory, qint64 at, qint64 count) {
                                std::memcpy(memory, disk.constData() + at, size_t(count));
                                return isFit(memory, at, count);
                            }));
        QCOMPARE(ragged.mid(1), disk.mid(position, bytes));

        const QByteArray before = disk;
        const QByteArray after = disk.replace(position, bytes, QByteArray(bytes, 'w'));
        disk = before;
        ragged.fill('w');
        const bool written = buffer.write(ragged.data() + 1, position, bytes, sector,
                                          [&](char *memory, qint64 at, qint64 count) {
                                              disk.replace(int(at), int(count), memory, int(count));
                                              return isFit(memory, at, count);
                                          });
        QTEST(written, "writes");
        QVERIFY(disk == (written ? after : before));
    }
};

QTEST_GUILESS_MAIN(tst_AlignedBuffer)
#include "tst_AlignedBuffer.moc"
