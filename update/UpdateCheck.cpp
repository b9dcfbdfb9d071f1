#include "update/UpdateCheck.h"

#include "inventory/CommandRunner.h"
#include "update/UpdateFetch.h"
#include "update/UpdateGlobals.h"
#include "update/UpdateLink.h"
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

void beginCheck()
{
    g_strUpdateFile = nativePath(folder() + QLatin1Char('\\') + versionsName());
    removeVersions();
}

bool fetchVersions(const QString &link)
{
    g_strUpdateFile = fetch(link + versionsName(), versionsName());
    return QFileInfo(g_strUpdateFile).size() >= LeastBytes;
}

void removeVersions()
{
    // Empty where a file from before lies in the way.
    if (!g_strUpdateFile.isEmpty())
        QFile::remove(g_strUpdateFile);
}

QStringList readVersions()
{
    QStringList lines;
    QFile file(g_strUpdateFile);
    if (!file.open(QIODevice::ReadOnly))
        return lines;
    QTextStream stream(file.read(BytesOfTwoLines));
    while (lines.size() < 2 && !stream.atEnd())
        lines.append(stream.readLine().trimmed());
    return lines;
}

void compareVersions(const QString &installed)
{
    const version::Offer offer = version::offerOf(installed, readVersions());
    g_bMajorUpdate = offer.major;
    g_bMinorUpdate = offer.minor;
    g_strLatestMajor = offer.latestMajor;
    g_strLatestMinor = offer.latestMinor;
}

} // namespace update
