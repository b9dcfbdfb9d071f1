// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/simulated/SimulatedPlatform.h"
#include "state/GlobalApp.h"

#include <QByteArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <vector>

/// The disks of the benchmarks, and the tools that they compare with.
namespace bench
{

constexpr qint64 MiB = 1 << 20;
constexpr int SectorSize = 512;

/// Fills an image with noise, so that it has no holes.
inline void fill(const QString &image, qint64 bytes, quint32 seed)
{
    QDir().mkpath(QFileInfo(image).absolutePath());
    QFile file(image);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        qFatal("no image");
    QByteArray noise(static_cast<int>(8 * MiB), Qt::Uninitialized);
    QRandomGenerator(seed).fillRange(reinterpret_cast<quint32 *>(noise.data()), noise.size() / 4);
    for (qint64 done = 0; done < bytes; done += noise.size()) {
        const qint64 count = std::min<qint64>(noise.size(), bytes - done);
        if (file.write(noise.constData(), count) != count)
            qFatal("no room for the image");
    }
}

/// A node of the disk list for a disk of that size.
inline std::unique_ptr<DiskNode> makeNode(int number, qint64 bytes)
{
    auto node = std::make_unique<DiskNode>();
    node->nId = static_cast<quint16>(PhysicalDriveBase + number);
    node->pDetails = std::make_unique<DiskDetails>();
    node->pDetails->nDevice = static_cast<quint8>(PhysicalDriveBase + number);
    node->pDetails->nTotalSectors = static_cast<quint64>(bytes / SectorSize);
    return node;
}

/// The platform of this process: a simulated PC with disks of one size, full of noise.
class NoisyPc
{
public:
    /// `more`: further keys of each disk, after a comma.
    NoisyPc(int disks, qint64 bytes, const QByteArray &more = QByteArray())
    {
        QFile description(m_folder.filePath(QStringLiteral("pc.json")));
        if (!description.open(QIODevice::WriteOnly))
            qFatal("no description");
        QByteArrayList list;
        for (int number = 0; number < disks; ++number)
            list << "{\"number\": " + QByteArray::number(number) +
                        ", \"sectors\": " + QByteArray::number(bytes / SectorSize) + more + "}";
        description.write("{\"pauses\": false, \"disks\": [" + list.join(", ") + "]}");
        description.close();
        QString error;
        auto pc =
            SimulatedPlatform::open(m_folder.path(), m_folder.filePath(QStringLiteral("state")), &error);
        if (!pc)
            qFatal("%s", qPrintable(error));
        for (int number = 0; number < disks; ++number) {
            m_images << pc->imageFile(number);
            fill(m_images.last(), bytes, static_cast<quint32>(number) + 1);
            m_nodes.push_back(makeNode(number, bytes));
        }
        Platform::install(std::move(pc));
        g_App.m_strSystemFolder = Platform::current().GetSystemDirectoryW();
    }
    ~NoisyPc() { g_App.m_pCurrentDisk = g_App.m_pCloneDisk = nullptr; }
    NoisyPc(const NoisyPc &) = delete;
    NoisyPc &operator=(const NoisyPc &) = delete;

    QString image(int number) const { return m_images.at(number); }
    DiskNode *node(int number) const { return m_nodes.at(static_cast<std::size_t>(number)).get(); }

private:
    QTemporaryDir m_folder;
    QStringList m_images;
    std::vector<std::unique_ptr<DiskNode>> m_nodes;
};

inline double seconds(const QElapsedTimer &clock)
{
    return static_cast<double>(clock.nsecsElapsed()) / 1e9;
}

/// Seconds that a tool takes; negative if it is not installed or fails.
inline double toolTime(const QString &tool, const QStringList &arguments)
{
    QString program = QStandardPaths::findExecutable(tool);
    if (program.isEmpty())
        program =
            QStandardPaths::findExecutable(tool, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")});
    if (program.isEmpty())
        return -1;
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer clock;
    clock.start();
    process.start(program, arguments);
    const bool done = process.waitForFinished(-1) && process.exitCode() == 0;
    return done ? seconds(clock) : -1;
}

} // namespace bench
