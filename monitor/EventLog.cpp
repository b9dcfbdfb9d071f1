// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/EventLog.h"

#include "platform/OwnFiles.h"
#include "platform/Platform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace
{

constexpr int Air = 64; ///< the part of the limit that is free again once the oldest lines went

/// Where the last whole lines begin that have so many bytes together.
qint64 lastLines(QFile *file, qint64 bytes)
{
    constexpr qint64 Piece = 64 * 1024;
    qint64 at = file->size() - std::max<qint64>(0, bytes) - 1;
    if (at < 0)
        return 0;
    for (file->seek(at); true; at += Piece) {
        const QByteArray piece = file->read(Piece);
        const int lineEnd = piece.indexOf('\n');
        if (lineEnd >= 0)
            return at + lineEnd + 1;
        if (piece.isEmpty())
            return file->size();
    }
}

} // namespace

EventLog::EventLog(const QString &path, qint64 mostBytes)
    : m_path(path.isEmpty() ? QString() : Platform::current().NativePath(path)), m_mostBytes(mostBytes)
{
}

QByteArray EventLog::withEnd(const QString &line) const
{
    return line.toUtf8() + Platform::current().LineEnd();
}

EventLog::Outcome EventLog::append(const QString &line) const
{
    const QString folder = QFileInfo(m_path).path();
    if (m_path.isEmpty() || !QDir().mkpath(folder))
        return Outcome::Unwritable;
    QByteArray added = withEnd(line);
    if (added.size() > m_mostBytes)
        return Outcome::Written; // no room for it alone
    QFile file;
    // Where others could lead an administrator's program to another file, nothing is written in place.
    const bool isOurs = !ownfiles::isElevated() || ownfiles::strangerOn(folder).isEmpty();
    if (isOurs || QFileInfo::exists(m_path)) {
        const auto mode = isOurs ? QIODevice::ReadWrite : QIODevice::ReadOnly;
        if (!ownfiles::openRegular(&file, m_path, mode | QIODevice::Unbuffered))
            return ownfiles::isHeld(m_path) ? Outcome::Busy : Outcome::Unwritable;
        const qint64 size = file.size();
        // A line that a power cut has left unfinished gets its end.
        if (size > 0 && file.seek(size - 1) && file.read(1) != "\n")
            added.prepend(Platform::current().LineEnd());
        if (isOurs && size + added.size() <= m_mostBytes) {
            if (file.seek(size) && file.write(added) == added.size())
                return Outcome::Written;
            file.resize(size); // no half a line stays where the disk is full
            return Outcome::Unwritable;
        }
        qint64 room = m_mostBytes - added.size();
        // A full file that is large is not copied for each line.
        if (size > room)
            room -= m_mostBytes / Air;
        if (!file.seek(lastLines(&file, room)))
            return Outcome::Busy;
    }
    if (isOurs)
        ownfiles::removeUnfinished(folder);
    return ownfiles::saveFile(m_path, file.isOpen() ? &file : nullptr, added) ? Outcome::Written
                                                                              : Outcome::Busy;
}

bool EventLog::holds(const QString &line) const
{
    QFile file;
    if (m_path.isEmpty() || !ownfiles::openRegular(&file, m_path, QIODevice::ReadOnly))
        return false;
    file.seek(std::max<qint64>(0, file.size() - ownfiles::MostBytes));
    const QByteArray wanted = withEnd(line);
    const QByteArray text = file.read(std::min(file.size(), ownfiles::MostBytes));
    return text.startsWith(wanted) || text.contains('\n' + wanted);
}
