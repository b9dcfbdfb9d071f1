// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/WmicInventory.h"
#include "platform/AlignedBuffer.h"
#include "platform/tools/CommandInterpreter.h"
#include "platform/tools/MasterBootRecord.h"
#include "platform/tools/StorageRecords.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/HandMadeDisk.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

/// What several platforms use: command lines as they are carried out, records that tools answer from,
/// transfers.
class tst_Parts : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_runs = 0;
        m_folder.reset(new QTemporaryDir);
        m_interpreter = {};
        m_interpreter.addTool("Echo64", [this](const QStringList &arguments, const QByteArray &) {
            ++m_runs;
            return arguments.join('+').toUtf8() + '\n';
        });
        m_interpreter.addTool("upper", [](const QStringList &arguments, const QByteArray &input) {
            return input.toUpper() + arguments.join('+').toUtf8();
        });
    }

    /// Of a command line: the files that it leaves; lines end with a bar.
    void run()
    {
        compareRows("Parts/run", [this](const QString &command) {
            init();
            const QDir folder(m_folder->path());
            const bool isMade = folder.mkdir("John Doe") && writeFile(folder.filePath("out.txt"), "old ");
            if (!isMade || !runLine("C:\\Windows\\system32\\cmd.exe /c " + command.toUtf8()))
                return QString("not run");
            QStringList told;
            for (const QString &name : folder.entryList(QDir::Files))
                told << name + ": " + contentOf(folder.filePath(name)).replace('\n', '|');
            return told.join(", ");
        });
    }

    void namesTheFolder()
    {
        const std::wstring line = L"S\\cmd.exe /d /c tool.exe -a >> T\\out.txt ";
        QVERIFY(tools::CommandInterpreter::withFolder(line, "C:\\Halvane") ==
                L"S\\cmd.exe /d /c C:\\Halvane\\tool.exe -a >> T\\out.txt ");
        QVERIFY(tools::CommandInterpreter::withFolder(line, "C:\\A (x86) & B") ==
                L"S\\cmd.exe /d /s /c \"\"C:\\A (x86) & B\\tool.exe\" -a >> T\\out.txt \"");
    }

    void slowToolWritesInPieces()
    {
        const auto slow = [](const QStringList &, const QByteArray &) { return QByteArray(1000, 'x'); };
        m_interpreter.addTool("slow", slow, 1500);
        QFile first(m_folder->filePath("out.txt"));
        const std::unique_ptr<QThread> process(
            QThread::create([this] { runLine("cmd.exe /c slow >> %1/out.txt "); }));
        process->start();
        QTRY_VERIFY(first.size() > 0);
        QVERIFY(first.open(QIODevice::ReadOnly));
        QVERIFY(first.size() < 1000);
        // Windows does not remove a file that a process writes to.
        const bool removed = QFile::remove(first.fileName());
        QVERIFY(process->wait(10000));
        // The tool wrote the rest to the file that it had opened, not to a new one of that name.
        QCOMPARE(QFileInfo::exists(first.fileName()), !removed);
        QCOMPARE(first.size(), 1000);
    }

    void runsNothingOfAWrongLine()
    {
        QVERIFY(!runLine("cmd.exe echo64 a >> %1/out.txt"));
        // Nor does a tool run whose output has nowhere to go.
        QVERIFY(runLine("cmd.exe /c echo64 a >> %1/missing/out.txt "));
        QCOMPARE(m_runs, 0);
    }

    void knowsPathsThatBreakLines()
    {
        QVERIFY(!tools::CommandInterpreter::breaksCommands("C:\\Users\\ANNA-M~1.X_Y\\Temp\\"));
        for (const QChar letter : QString(" &%^(),;=\u007f\u6c34"))
            QVERIFY2(tools::CommandInterpreter::breaksCommands(QString("C:\\a%1b\\").arg(letter)),
                     qPrintable(QString(letter)));
    }

    /// Of vendor, product and the number of the bus: medium, interface, and model as the disk list cuts it.
    void storedDisks()
    {
        compareRows("Parts/storedDisks", [](const QString &row) {
            const QStringList told = row.split('|');
            const int bus = told[2].toInt();
            HandMadeDisk record(1);
            record.put(28, quint32(bus)).put(10, quint8(bus == 7)).put(12, quint32(40)).put(16, quint32(80));
            record.put(24, quint32(120)).text(120, "  QD40 17 ");
            record.text(40, told[0].toLatin1()).text(80, told[1].toLatin1());
            const inventory::Disk disk = storage::readDisk(3, bus == 0 ? QByteArray() : record.bytes);
            const wmic::DiskDriveLine line =
                wmic::parseDiskDrive(QString("3  %1  %2  OK  ").arg(disk.interfaceType, disk.model));
            // An answer that ends in the middle; nothing behind its end may be read.
            const QString cut = storage::readDisk(3, record.bytes.left(18)).model;
            return disk.media + ' ' + line.interfaceText + ':' + line.model + '|' + disk.serial + '|' + cut;
        });
    }

    /// Of the style, the bytes that are told, and the entries of 4 KiB, each with its place and type.
    void storedPartitions()
    {
        compareRows("Parts/storedPartitions", [](const QString &row) {
            const QStringList words = row.split(' ');
            HandMadeDisk layout(4);
            layout.put(4, quint32(words.size() - 2));
            for (int i = 2, at = 48; i < words.size(); ++i, at += 144) {
                layout.put(at, words[0].toUInt()).put(at + 8, words[i].section(':', 0, 0).toULongLong());
                layout.put(at + 16, quint64(4096));
                layout.text(at + 32, QByteArray::fromHex(words[i].section(':', 1).toLatin1()));
            }
            QStringList told;
            for (const auto &each : storage::readPartitions(2, layout.bytes.left(words[1].toInt())))
                told << joined(each.name, each.type, each.size);
            return told.join("; ");
        });
    }

    void largestPartition()
    {
        // 8 TiB: more than the table can count.
        const QByteArray record = mbr::withOnePartition(mbr::emptyTable(7), quint64(1) << 34, 512);
        QCOMPARE(record.mid(446, 16).toHex(), QByteArray("0020210007feffff00080000ffffffff"));
    }

    /// A raw device gets aligned memory and whole sectors, whatever the program reads and writes.
    void movesWholeSectors()
    {
        checkAligned(512, 1024, 512, true);                              // a sector
        checkAligned(4096, 512, 1024, false);                            // within a large sector
        checkAligned(4096, 512, int(AlignedBuffer::Size) + 1024, false); // more than the buffer
        checkAligned(1, 77, int(AlignedBuffer::Size) + 5, true);         // sectors of an unknown size
    }

private:
    static void checkAligned(int sector, int position, int bytes, bool writes)
    {
        QByteArray disk = pattern(3 * int(AlignedBuffer::Size) / 512);
        const auto isFit = [sector](const char *memory, qint64 at, qint64 count) {
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
        const QByteArray after = QByteArray(disk).replace(position, bytes, QByteArray(bytes, 'w'));
        ragged.fill('w');
        const bool written = buffer.write(ragged.data() + 1, position, bytes, sector,
                                          [&](char *memory, qint64 at, qint64 count) {
                                              disk.replace(int(at), int(count), memory, int(count));
                                              return isFit(memory, at, count);
                                          });
        QCOMPARE(written, writes);
        QVERIFY(disk == (written ? after : before));
    }

    /// Runs a line that the program widened: each byte became one character. "%1" is the test's folder.
    bool runLine(QByteArray line)
    {
        line.replace("%1", m_folder->path().toUtf8());
        return m_interpreter.run(QString::fromLatin1(line).toStdWString(),
                                 [](QString path) { return path.replace('\\', '/'); });
    }

    tools::CommandInterpreter m_interpreter;
    QScopedPointer<QTemporaryDir> m_folder;
    int m_runs = 0;
};

QTEST_GUILESS_MAIN(tst_Parts)
#include "tst_Parts.moc"
