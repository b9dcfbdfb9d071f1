// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class FileLock;

namespace simulated
{

/// The real processes that run on a described PC: each holds a lock in the state folder for as long as it
/// lives, so one that was killed is gone at once. Any thread.
class RunningPrograms
{
public:
    /// `folder` is there already.
    explicit RunningPrograms(const QString &folder);
    ~RunningPrograms();

    /// This process runs on the PC from here on. To be called once.
    void addThis();
    /// Image names, with ".exe" on every system.
    QStringList names() const;
    /// Ends a program at once, and waits until it is gone. This process never ends itself.
    void end(const QString &imageName) const;
    void endAll() const;

    /// The file of a program that lies beside this one; empty where there is none.
    static QString fileOf(const QString &imageName);

private:
    QString lockOf(const QString &imageName) const;

    const QString m_folder;
    std::unique_ptr<FileLock> m_own;
};

} // namespace simulated
