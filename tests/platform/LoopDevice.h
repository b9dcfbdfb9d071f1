// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QProcess>
#include <QStringList>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

/// Runs a tool to its end; true if it ended with 0.
inline bool runs(const QString &program, const QStringList &arguments, QByteArray *output = nullptr,
                 const QByteArray &input = QByteArray())
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    if (output)
        *output = process.readAllStandardOutput().trimmed();
    return ended && process.exitCode() == 0;
}

/// Gives the process a mount table of its own, so that its mounts end with it, however it ends. Call it
/// before any thread is started. False without the rights for it.
inline bool keepMountsToOurselves()
{
    return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// A loop device on an image of the test's own. The kernel detaches it when the process ends, however it
/// ends. Without root or loop devices node() is empty.
class LoopDevice
{
public:
    explicit LoopDevice(const QString &image, const QStringList &options = {})
    {
        QByteArray node;
        // Another program may take the free device first.
        for (int attempt = 0; attempt < 5 && m_node.isEmpty() && geteuid() == 0; ++attempt) {
            if (runs("losetup", options + QStringList{"-f", "--show", image}, &node))
                m_node = QString::fromLatin1(node);
        }
        if (m_node.isEmpty())
            return;
        // Detached while it is open, it stays until it is closed.
        m_held = ::open(QFile::encodeName(m_node).constData(), O_RDONLY | O_CLOEXEC);
        runs("losetup", {"-d", m_node});
    }
    ~LoopDevice()
    {
        if (m_node.isEmpty())
            return;
        runs("partx", {"-d", m_node});
        ::close(m_held);
    }
    LoopDevice(const LoopDevice &) = delete;
    LoopDevice &operator=(const LoopDevice &) = delete;

    QString node() const { return m_node; }
    QString partition(int number) const { return QStringLiteral("%1p%2").arg(m_node).arg(number); }
    /// Tells the kernel the partitions of the image, even if it cannot read their table.
    bool showPartitions() const { return runs("partx", {"-u", m_node}); }

private:
    QString m_node;
    int m_held = -1;
};

/// A mounted file system; unmount() or the destructor unmounts it.
class Mount
{
public:
    Mount(const QString &node, const QString &folder)
        : m_folder(folder), m_mounted(runs("mount", {node, folder}))
    {
    }
    ~Mount() { unmount(); }
    Mount(const Mount &) = delete;
    Mount &operator=(const Mount &) = delete;

    bool isMounted() const { return m_mounted; }
    bool unmount()
    {
        const bool done = m_mounted && runs("umount", {m_folder});
        m_mounted = m_mounted && !done;
        return done;
    }

private:
    QString m_folder;
    bool m_mounted;
};
