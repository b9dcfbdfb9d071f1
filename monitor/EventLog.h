// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The log file of the companion: lines of UTF-8, the newest last, with the line ends of the platform.
/// Nothing of it stays open between two calls.
class EventLog
{
public:
    enum class Outcome {
        Written,
        Busy,      ///< another program keeps the file from being opened or replaced
        Unwritable ///< the file cannot be made or opened
    };

    /// `path` as the settings hold it; `mostBytes` is a hard limit.
    EventLog(const QString &path, qint64 mostBytes);

    /// Adds a line, which comes without its end. At the limit the oldest whole lines go: the rest is written
    /// to a new file that takes the old one's place; a file of any size is copied in pieces.
    Outcome append(const QString &line) const;

    /// Whether the file has that line already.
    bool holds(const QString &line) const;

private:
    QByteArray withEnd(const QString &line) const;

    const QString m_path; ///< native
    const qint64 m_mostBytes;
};
