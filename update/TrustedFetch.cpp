// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/TrustedFetch.h"

#include "inventory/CommandRunner.h"
#include "platform/Log.h"
#include "platform/OwnFiles.h"
#include "update/Ed25519.h"
#include "update/UpdateCheck.h"
#include "update/UpdateFetch.h"
#include "update/VersionCompare.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFileInfo>

namespace update
{

namespace
{

constexpr int MostBreaks = 20; ///< of one transfer, each after some bytes came

QByteArray contentsAt(const QString &link, const QString &name)
{
    const QString path = fetch(link + name, name, VersionsLimits);
    return path.isEmpty() ? QByteArray() : ownfiles::contents(path);
}

} // namespace

bool TrustedFetch::takeList(const QString &link, const QString &installed)
{
    const QByteArray list = contentsAt(link, ChecksumsName);
    if (!ed25519::isSigned(list, contentsAt(link, SignatureName), g_publisherKey)) {
        qCDebug(logs::update) << "the list of checksums is not signed with the publisher's key";
        return false;
    }
    const auto ofVersions = checksumOf(list, versionsName());
    const auto ofInstaller = checksumOf(list, installerName());
    if (!ofVersions || !ofInstaller)
        return false;
    m_installer = *ofInstaller;
    QByteArray versions = contentsAt(link, versionsName());
    QBuffer buffer(&versions);
    const bool offers = buffer.open(QIODevice::ReadOnly) && fits(&buffer, *ofVersions);
    qCDebug(logs::update) << "the versions fit the list:" << offers;
    const QStringList lines = versionLines(versions);
    return offers && version::isUpgrade(installed, lines);
}

TrustedFetch::Result TrustedFetch::loadInstaller(const QString &link, qint32 milliseconds)
{
    const QString folder = keptFolder(QString::fromLatin1(m_installer.sha256));
    if (folder.isEmpty())
        return Result::Interrupted;
    m_path = nativePath(folder + QLatin1Char('\\') + installerName());
    const auto loaded = [this] { return QFileInfo(m_path + QLatin1String(".part")).size(); };
    QElapsedTimer clock;
    clock.start();
    for (int breaks = 0; breaks < MostBreaks; ++breaks) {
        const qint64 before = loaded();
        const auto left = static_cast<qint32>(milliseconds - clock.elapsed());
        const qint32 result = Platform::current().URLDownloadToFileW(link + installerName(), m_path,
                                                                     {left, m_installer.bytes, true, true});
        qCDebug(logs::update) << "the transfer ended with" << result << "and bytes:" << loaded();
        if (result == 0) {
            m_held = Platform::current().HoldFile(m_path);
            return m_held && fits(m_held.get(), m_installer) ? Result::Verified : Result::Refused;
        }
        if (left > 0 && result == Platform::DownloadRefused)
            return Result::Refused;
        if (left <= 0 || loaded() <= before)
            break;
    }
    return Result::Interrupted;
}

TrustedFetch::Result TrustedFetch::load(const QString &link, const QString &installed, qint32 milliseconds)
{
    if (!takeList(link, installed)) {
        removeLeftovers(); // list, signature or versions; what was kept of an installer stays
        return Result::Refused;
    }
    const Result result = loadInstaller(link, milliseconds);
    if (result == Result::Refused) {
        m_held.reset(); // an open file cannot be removed everywhere
        removeLeftovers();
    } else {
        leaveKeptFolder();
    }
    return result;
}

bool TrustedFetch::isUnchanged() const
{
    const std::unique_ptr<QFile> now = Platform::current().HoldFile(m_path);
    return m_held && now && fits(now.get(), m_installer);
}

} // namespace update
