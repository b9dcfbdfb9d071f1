// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/clone/CloneDisks.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/WatchedPlatform.h"

#include <QtTest>

constexpr int Source = 1;
constexpr int Destination = 2;
constexpr int Bystander = 3;
constexpr int Sectors = 40000; ///< of a disk if the size does not matter: a block and a part of one
constexpr int BystanderSectors = 5000;
using Runs = QVector<QPair<int, int>>; ///< first sector and count
using End = CloneOutcome::End;

inline QByteArray describe(const QByteArray &more, qint64 sectors, int number)
{
    return "{\"number\":" + QByteArray::number(number) +
           ",\"media\":\"fixed\",\"sectors\":" + QByteArray::number(sectors) + more + "}";
}

/// A clone on a described PC of three disks.
class CloneFixture
{
protected:
    void setUp()
    {
        qputenv("COMSPEC", "x /c diskpart /s evil.txt |"); // must not be used
        g_bAbortJob = false;
        g_bJobRunning = false;
        g_bCloneFailed = false;
        m_commands = 0;
        m_source.clear();
        m_prepared.clear();
        m_folder.reset(new DescribedFolder);
    }

    /// Installs a PC of three disks.
    void openPc(qint64 sourceSectors, qint64 destinationSectors, const QByteArray &sourceMore = {},
                const QByteArray &destinationMore = {})
    {
        auto pc = m_folder->open("{\"name\":\"PC\",\"pauses\":false,\"disks\":[" +
                                 describe(sourceMore, sourceSectors, Source) + "," +
                                 describe(destinationMore, destinationSectors, Destination) + "," +
                                 describe({}, BystanderSectors, Bystander) + "]}");
        m_pc = pc.get();
        auto watched = std::make_unique<WatchedPlatform>(std::move(pc));
        m_watched = watched.get();
        m_watched->onCommand = [this](const QString &) { ++m_commands; };
        m_watched->onSleep = [this](quint32 milliseconds) {
            QCOMPARE(milliseconds, 4000u);
            m_prepared = readFile(m_pc->imageFile(Destination));
        };
        Platform::install(std::move(watched));
    }

    void fillImages(qint64 sourceSectors, qint64 destinationSectors)
    {
        m_source = noise(sourceSectors, 1);
        QDir().mkpath(QFileInfo(m_pc->imageFile(Source)).path());
        writeFile(m_pc->imageFile(Source), m_source);
        writeFile(m_pc->imageFile(Destination), noise(destinationSectors, 2));
        writeFile(m_pc->imageFile(Bystander), noise(BystanderSectors, 3));
    }

    void runClone(CloneDisks &disks)
    {
        ThreadDriveClone thread;
        disks.listen(thread);
        thread.start(QThread::InheritPriority);
        QVERIFY(thread.wait(60000));
        m_outcome = thread.outcome();
        QVERIFY(!g_bJobRunning);
        QCOMPARE(g_bCloneFailed.load(), m_outcome.end == End::Refused || m_outcome.end == End::Failed);
        QCOMPARE(m_watched->openHandles(), 0);
        QVERIFY(!disks.holdsHandles());
    }

    /// The content that the destination must have: the source, with zeros where it could not be read; zeros
    /// up to the end of the block; behind them what the preparation left.
    QByteArray expected(qint64 destinationSectors, const Runs &unread, const Runs &kept,
                        bool tail = true) const
    {
        QByteArray bytes = m_source;
        const auto put = [&bytes](const Runs &runs, const QByteArray &from) {
            for (const auto &run : runs) {
                const auto count = static_cast<int>(run.second * SectorBytes);
                bytes.replace(static_cast<int>(run.first * SectorBytes), count,
                              from.mid(static_cast<int>(run.first * SectorBytes), count));
            }
        };
        put(unread, QByteArray(m_source.size(), '\0'));
        put(kept, m_prepared);
        const int whole = static_cast<int>((m_source.size() + BlockBytes - 1) / BlockBytes * BlockBytes);
        if (tail)
            bytes.append(whole - bytes.size(), '\0');
        bytes.truncate(static_cast<int>(destinationSectors * SectorBytes));
        return bytes + m_prepared.mid(bytes.size());
    }

    QScopedPointer<DescribedFolder> m_folder;
    SimulatedPlatform *m_pc = nullptr;
    WatchedPlatform *m_watched = nullptr;
    QByteArray m_source;
    QByteArray m_prepared; ///< the destination at the pause
    CloneOutcome m_outcome;
    int m_commands = 0;
};
