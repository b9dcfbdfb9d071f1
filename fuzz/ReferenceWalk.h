// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSet>
#include <QVector>

#include <array>

/// A simple recursive search for partitions. The program's own walk has to find the same. For small disks
/// only, as its depth is that of the tables.
class ReferenceWalk
{
public:
    using Partition = std::array<quint64, 3>; ///< start, count, end

    explicit ReferenceWalk(const QByteArray &disk) : m_disk(disk) { scan(0); }
    const QVector<Partition> &found() const { return m_found; }

private:
    bool readable(quint64 sector) const;
    QByteArray read(quint64 sector, int bytes) const;
    void scan(quint32 sector);
    bool scanGpt(QByteArray *table);
    void takeGptEntry(const QByteArray &entry);

    QByteArray m_disk;
    QVector<Partition> m_found;
    QSet<quint32> m_seen;
    quint32 m_currentBase = 0;
    quint32 m_extendedBase = 0;
};
