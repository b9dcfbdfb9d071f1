// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/UpdateCheck.h"

#include "update/UpdateFetch.h"
#include "update/UpdateGlobals.h"
#include "update/UpdateTrust.h"
#include "update/VersionCompare.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace update
{

namespace
{

constexpr qint64 LeastBytes = 4;
constexpr qint64 BytesOfTwoLines = 4096; ///< more than any two versions take

} // namespace

bool fetchVersions(const QString &link)
{
    g_strUpdateFile = fetch(link + versionsName(), versionsName(), VersionsLimits);
    return QFileInfo(g_strUpdateFile).size() >= LeastBytes;
}

void removeVersions()
{
    // Without a file of versions, the folder may hold an installer that is being loaded.
    if (!g_strUpdateFile.isEmpty())
        removeLeftovers();
    g_strUpdateFile.clear();
}

QStringList versionLines(const QByteArray &text)
{
    QStringList lines;
    QTextStream stream(text);
    while (lines.size() < 2 && !stream.atEnd())
        lines.append(stream.readLine().trimmed());
    return lines;
}

void compareVersions(const QString &installed)
{
    QFile file(g_strUpdateFile);
    const bool opened = file.open(QIODevice::ReadOnly);
    const QStringList lines = opened ? versionLines(file.read(BytesOfTwoLines)) : QStringList();
    version::Offer offer = version::offerOf(installed, lines);
    if (!g_publisherKey.isEmpty() && !version::isUpgrade(installed, lines)) {
        // The download would refuse it. Nothing is to be gone on with either.
        offer = version::Offer();
        removeKept();
    }
    g_bMajorUpdate = offer.major;
    g_bMinorUpdate = offer.minor;
    g_strLatestMajor = offer.latestMajor;
    g_strLatestMinor = offer.latestMinor;
}

} // namespace update
