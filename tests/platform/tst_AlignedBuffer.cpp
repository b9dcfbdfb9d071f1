#include "platform/AlignedBuffer.h"

#include <QtTest>

#include <cstring>

/// What a raw device is handed: aligned memory and whole sectors, whatever the program reads and writes.
class tst_AlignedBuffer : public QObject
{
    Q_OBJECT

private slots:
    void movesWholeSectors_data();
    void movesWholeSectors();
};

void tst_AlignedBuffer::movesWholeSectors_data()
{
    QTest::addColumn<int>("sector");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("bytes");
    QTest::addColumn<bool>("writes");
    const int whole = int(AlignedBuffer::Size);
    QTest::newRow("a sector") << 512 << 1024 << 512 << true;
    QTest::newRow("within a large sector") << 4096 << 512 << 1024 << false;
    QTest::newRow("across two large sectors") << 4096 << 3584 << 1024 << false;
    QTest::newRow("more than the buffer") << 4096 << 4096 << 2 * whole + 4096 << true;
    QTest::newRow("more than the buffer, ragged") << 4096 << 512 << whole + 1024 << false;
    QTest::newRow("sectors of an unknown size") << 1 << 77 << 5 << true;
}

void tst_AlignedBuffer::movesWholeSectors()
{
    QFETCH(int, sector);
    QFETCH(int, position);
    QFETCH(int, bytes);
    QByteArray disk(3 * int(AlignedBuffer::Size), '\0');
    for (int i = 0; i < disk.size(); ++i)
        disk[i] = char(i * 31 + i / 509);
    bool whole = true;
    const auto check = [&](const char *memory, qint64 offset, qint64 count) {
        whole = whole && AlignedBuffer::takes(memory, offset, count, sector) && offset + count <= disk.size();
    };
    AlignedBuffer buffer;
    QByteArray ragged(bytes + 1, '\0');
    QVERIFY(
        buffer.read(ragged.data() + 1, position, bytes, sector, [&](char *memory, qint64 at, qint64 count) {
            check(memory, at, count);
            std::memcpy(memory, disk.constData() + at, size_t(count));
            return true;
        }));
    QVERIFY(whole);
    QCOMPARE(ragged.mid(1), disk.mid(position, bytes));

    QByteArray expected = disk;
    expected.replace(position, bytes, QByteArray(bytes, 'w'));
    ragged.fill('w');
    const bool written =
        buffer.write(ragged.data() + 1, position, bytes, sector, [&](char *memory, qint64 at, qint64 count) {
            check(memory, at, count);
            disk.replace(int(at), int(count), memory, int(count));
            return true;
        });
    QVERIFY(whole);
    QTEST(written, "writes");
    QCOMPARE(disk == expected, written);
}

QTEST_GUILESS_MAIN(tst_AlignedBuffer)
#include "tst_AlignedBuffer.moc"
