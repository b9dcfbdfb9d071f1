// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/LastScan.h"

#include "platform/Log.h"
#include "platform/OwnFiles.h"
#include "platform/Platform.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace
{

constexpr int MostDisks = 256;
constexpr double MostNumber = 9007199254740992.0; // what a JSON number tells exactly

QString path()
{
    const QString folder = Platform::current().StateFolder();
    return folder.isEmpty() ? QString() : folder + QLatin1String("/scans.json");
}

qint64 numberIn(const QJsonArray &pair, int place)
{
    return static_cast<qint64>(std::clamp(pair.at(place).toDouble(), 0.0, MostNumber));
}

} // namespace

namespace lastscan
{

void keep(const ScanRecord &record, qint64 badSectors)
{
    const QString serial = record.serial.trimmed();
    if (record.end != ScanRecord::End::Complete || serial.isEmpty() || path().isEmpty())
        return;
    QHash<QString, LastScan> scans = load();
    scans.insert(serial, {Platform::current().Now().toMSecsSinceEpoch(), badSectors});
    while (scans.size() > MostDisks)
        scans.erase(
            std::min_element(scans.begin(), scans.end(), [](const LastScan &one, const LastScan &other) {
                return one.when < other.when;
            }));
    QJsonObject all;
    for (auto scan = scans.cbegin(); scan != scans.cend(); ++scan)
        all.insert(scan.key(), QJsonArray{scan->when, scan->badSectors});
    if (!ownfiles::saveFile(path(), QJsonDocument(all).toJson(QJsonDocument::Compact)))
        qCDebug(logs::scan) << "the result of the scan is not kept";
}

QHash<QString, LastScan> load()
{
    QHash<QString, LastScan> scans;
    const QJsonObject all = QJsonDocument::fromJson(ownfiles::contents(path())).object();
    for (auto scan = all.begin(); scan != all.end(); ++scan)
        scans.insert(scan.key(), {numberIn(scan->toArray(), 0), numberIn(scan->toArray(), 1)});
    return scans;
}

} // namespace lastscan
