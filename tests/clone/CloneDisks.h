// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/ThreadDriveClone.h"
#include "inventory/RawAccess.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QFile>
#include <QRandomGenerator>
#include <QStringList>

constexpr qint64 BlockSectors = 32768;
constexpr qint64 SectorBytes = 512;
constexpr qint64 BlockBytes = BlockSectors * SectorBytes;

/// Bytes without repetition; the same seed gives the same bytes.
inline QByteArray noise(qint64 sectors, quint32 seed)
{
    QVector<quint32> words(static_cast<int>(sectors * SectorBytes / 4));
    QRandomGenerator(seed).fillRange(words.data(), words.size());
    return QByteArray(reinterpret_cast<const char *>(words.constData()), words.size() * 4);
}

inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a test file cannot be written");
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Sets the two disks that a clone takes from the application's state, and records its thread's signals.
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
    }
    ~CloneDisks()
    {
        g_App.m_pCurrentDisk = nullptr;
        g_App.m_pCloneDisk = nullptr;
    }
    CloneDisks(const CloneDisks &) = delete;
    CloneDisks &operator=(const CloneDisks &) = delete;

    DiskDetails &source() { return *m_source.pDetails; }
    DiskDetails &destination() { return *m_destination.pDetails; }
    bool holdsHandles() const { return m_source.pDetails->hDisk != 0 || m_destination.pDetails->hDisk != 0; }

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
