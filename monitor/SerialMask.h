// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/// Puts made-up numbers in the place of serial numbers and worldwide names, always the same for the same.
/// They are as long as the real ones, so that tables keep their form. Without a mask nothing changes.
class SerialMask
{
public:
    explicit SerialMask(bool masks) : m_masks(masks) {}
    bool masks() const { return m_masks; }

    /// A serial number that is known as one.
    QString serial(const QString &serial);
    /// A text of the report tool: what it names as serial number, and each serial number that is known.
    QString report(const QString &text);
    /// A sector of a table, or the begin of a file system: the numbers that tell this one from every other.
    QByteArray sector(QByteArray bytes) const;

private:
    bool m_masks;
    QHash<QString, QString> m_known;
};
