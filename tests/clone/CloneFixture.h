// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/BlockReader.h"
#include "clone/ThreadDriveClone.h"
#include "inventory/RawAccess.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Files.h"

#include <QtTest>

constexpr qint64 BlockSectors = BlockReader::BlockSectors;
constexpr int Source = 1;
constexpr int Destination = 2;
constexpr int Bystander = 3;
constexpr int Sectors = 40000; ///< of a disk if the size does not matter: a block and a part of one
constexpr int BystanderSectors = 5000;
using Set = QSet<qint64>; ///< of sectors
using End = CloneOutcome::End;

inline Set range(qint64 first, qint64 count)
{
    Set sectors;
    for (qint64 sector = first; sector < first + count; ++sector)
        sectors << sector;
    return sectors;
}

/// The two disks that a clone takes from the application's state, with what its thread tells.
class CloneDisks
{
public:
    CloneDisks(int from, qint64 sectors, int onto)
    {
        fill(m_source, from, sectors);
        fill(m_destination, onto, sectors);
        g_App.m_pCurrentDisk = &m_source;
        g_App.m_pCloneDisk = &m_destination;
        g_App.m_strSystemFolder = Platform::current().GetSystemDirectoryW();
        g_bAbortJob = g_bJobRunning = g_bCloneFailed = false;
    }
    ~CloneDisks() { g_App.m_pCurrentDisk = g_App.m_pCloneDisk = nullptr; }
    CloneDisks(const CloneDisks &) = delete;
    CloneDisks &operator=(const CloneDisks &) = delete;

    DiskDetails &source() { return *m_source.pDetails; }
    DiskDetails &destination() { return *m_destination.pDetails; }
    bool holdHandles() const { return m_source.pDetails->hDisk != 0 || m_destination.pDetails->hDisk != 0; }

    /// Records the thread's signals in their order, progress in `positions`.
    void listen(ThreadDriveClone &thread)
    {
        const auto note = [this](const char *event) {
            return [this, event] {
                events << QLatin1String(event) + QLatin1String(g_bJobRunning ? " (running)" : "");
            };
        };
        QObject::connect(&thread, &ThreadDriveClone::OnCloningFinish, note("finish"));
        QObject::connect(&thread, &ThreadDriveClone::CloningFailed, note("failed"));
        QObject::connect(&thread, &ThreadDriveClone::CloningAbort, note("abort"));
        QObject::connect(&thread, &ThreadDriveClone::SetProgressValue,
                         [this](qlonglong position, qlonglong remaining) {
                             positions << position;
                             remainders << remaining;
                         });
    }

    CloneOutcome clone()
    {
        events.clear();
        ThreadDriveClone thread;
        listen(thread);
        thread.start(QThread::InheritPriority);
        if (!thread.wait(60000))
            qFatal("the clone does not end");
        return thread.outcome();
    }

    QStringList events;
    QVector<qlonglong> positions;
    QVector<qlonglong> remainders;

private:
    static void fill(DiskNode &node, int number, qint64 sectors)
    {
        node.nId = static_cast<quint16>(PhysicalDriveBase + number);
        node.pDetails = std::make_unique<DiskDetails>();
        node.pDetails->nDevice = static_cast<quint8>(node.nId);
        const DiskMark mark = ReadDiskMark(node.nId);
        node.pDetails->nTotalSectors = mark.sectors > 0 ? mark.sectors : static_cast<quint64>(sectors);
        node.pDetails->szSerial = mark.serial;
    }

    DiskNode m_source;
    DiskNode m_destination;
};

const QStringList Finished{"finish (running)"};
const QStringList Failed{"failed", "finish"};

/// A clone on a machine of three disks.
class CloneFixture
{
protected:
    void openPc(qint64 sourceSectors, qint64 destinationSectors)
    {
        m_pc = FakePlatform::install();
        m_pc->disks[Source].bytes = noise(sourceSectors, 1);
        m_pc->disks[Destination].bytes = noise(destinationSectors, 2);
        m_pc->disks[Bystander].bytes = noise(BystanderSectors, 3);
        m_prepared.clear();
        m_pc->onSleep = [this](quint32 milliseconds) {
            QCOMPARE(milliseconds, 4000u);
            m_prepared = m_pc->disks[Destination].bytes.replace(0, 4, "made");
            m_pc->disks[Destination].bytes.detach(); // else the first write copies all, and takes long
        };
        m_disks.reset(); // it clears what the next one sets
        m_disks = std::make_unique<CloneDisks>(Source, sourceSectors, Destination);
    }

    void runClone()
    {
        m_outcome = m_disks->clone();
        QVERIFY(!g_bJobRunning);
        QCOMPARE(g_bCloneFailed.load(), m_outcome.end == End::Refused || m_outcome.end == End::Failed);
        QCOMPARE(m_pc->openHandles(), 0);
        QVERIFY(!m_disks->holdHandles());
    }

    /// The content that the destination must have: the source, with zeros where it could not be read; zeros
    /// up to the end of the block; behind them what the preparation left.
    QByteArray expected(const Set &unread, const Set &kept, bool tail = true) const
    {
        constexpr int unit = SectorSize;
        constexpr int block = BlockSectors * SectorSize;
        QByteArray bytes = m_pc->disks[Source].bytes;
        for (const qint64 sector : unread)
            bytes.replace(int(sector) * unit, unit, QByteArray(unit, '\0'));
        for (const qint64 sector : kept)
            bytes.replace(int(sector) * unit, unit, m_prepared.mid(int(sector) * unit, unit));
        if (tail)
            bytes.append((bytes.size() + block - 1) / block * block - bytes.size(), '\0');
        bytes.truncate(m_prepared.size());
        return bytes + m_prepared.mid(bytes.size());
    }

    FakePlatform *m_pc = nullptr;
    std::unique_ptr<CloneDisks> m_disks;
    QByteArray m_prepared; ///< the destination at the pause
    CloneOutcome m_outcome;
};
