// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scan/QScanDriveThread.h"
#include "scan/ScanGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QEventLoop>
#include <QStringList>
#include <QVariant>

#include <functional>

inline QVector<qint64> sectorsOf(const BadSectorList &list)
{
    QVector<qint64> sectors;
    list.forEachRun([&sectors](const SectorRun &run) {
        for (qint64 i = 0; i < run.count; ++i)
            sectors.append(run.first + i);
    });
    return sectors;
}

/// Makes a disk the selected one for as long as it lives.
class SelectedDisk
{
public:
    SelectedDisk(int number, qint64 sectors)
    {
        node.nId = static_cast<quint16>(PhysicalDriveBase + number);
        node.pDetails = std::make_unique<DiskDetails>();
        node.pDetails->nDevice = static_cast<quint8>(PhysicalDriveBase + number);
        node.pDetails->nTotalSectors = static_cast<quint64>(sectors);
        g_App.m_pCurrentDisk = &node;
    }
    ~SelectedDisk() { g_App.m_pCurrentDisk = nullptr; }
    SelectedDisk(const SelectedDisk &) = delete;
    SelectedDisk &operator=(const SelectedDisk &) = delete;

    DiskNode node;
};

/// Records the signals of a scan in the order in which this thread gets them.
class ScanRecorder
{
public:
    /// `hear` is called on the scan's own thread with each line except the counts, so it can act during the
    /// scan.
    explicit ScanRecorder(QScanDriveThread &thread, std::function<void(const QString &)> hear = {})
        : m_hear(std::move(hear))
    {
        using T = QScanDriveThread;
        on(thread, &T::ExactBadSectorCount, "bad");
        on(thread, &T::MaximumBadBlockScanProgress, "begin");
        on(thread, &T::AllBlockProcessed, "all");
        on(thread, &T::ScanProgressValue, "progress");
        on(thread, &T::OnFinish, "finish");
        on(thread, &T::BadBockCount, "blocks");
        on(thread, &T::TotalBlockCount, "chunk");
        on(thread, &T::setRemainingTime, "first");
    }

    QStringList lines;

private:
    template<typename... Args>
    void on(QScanDriveThread &thread, void (QScanDriveThread::*sign)(Args...), const char *name)
    {
        const auto take = [this, name, &thread](Args... args) {
            const QString line = QStringList{name, QVariant(args).toString()...}.join(' ');
            if (m_hear && QThread::currentThread() == &thread)
                m_hear(line);
            QMetaObject::invokeMethod(&thread, [this, line] { lines.append(line); });
        };
        QObject::connect(&thread, sign, &thread, take, Qt::DirectConnection);
    }

    std::function<void(const QString &)> m_hear;
};

/// Scans the selected disk to the end of the thread.
inline QStringList scanned(qint64 total, const std::function<void(const QString &)> &hear = {})
{
    QScanDriveThread thread;
    ScanRecorder recorder(thread, hear);
    QEventLoop loop;
    QObject::connect(&thread, &QScanDriveThread::OnFinish, &loop, &QEventLoop::quit);
    thread.SetRange(0, total);
    thread.StartScan(nullptr, 3);
    loop.exec();
    thread.wait();
    return recorder.lines;
}

/// Sets the globals of the scan as they are before the first one.
inline void forgetScans()
{
    g_BadSectors.clear();
    g_bAbortJob = false;
    g_nBlockStep = 0;
}
