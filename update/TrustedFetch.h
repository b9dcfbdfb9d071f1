// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"
#include "update/UpdateTrust.h"

#include <QFile>
#include <QString>

#include <memory>

namespace update
{

/// Loads an update of the publisher whose key is built in, and checks it. Any one thread.
class TrustedFetch
{
public:
    enum class Result {
        Verified,
        Interrupted, ///< what came stays, and the next call goes on behind it
        Refused      ///< it is not the publisher's, or not newer
    };

    /// Loads list, signature, versions and installer from the web folder at `link`. The installer may take
    /// `milliseconds`; its length is the publisher's. Blocks.
    Result load(const QString &link, const QString &installed, qint32 milliseconds);

    /// Where the installer lies, as this machine opens it. While this object lives the file is held.
    QString path() const { return m_path; }

    /// Whether the file at path() still is the one that was verified. To be asked right before it is started,
    /// as not every system keeps a held file from being replaced.
    bool isUnchanged() const;

private:
    bool takeList(const QString &link, const QString &installed);
    Result loadInstaller(const QString &link, qint32 milliseconds);

    Checksum m_installer;
    QString m_path;
    std::unique_ptr<QFile> m_held;
};

} // namespace update
