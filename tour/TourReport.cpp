// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/TourReport.h"

#include <QDir>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSaveFile>

#include <cstdio>

namespace
{

QString dataFile()
{
    return QStringLiteral("screens.json");
}

QString joined(const QJsonValue &value)
{
    QStringList parts;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &part : array)
        parts.append(part.isString() ? part.toString() : QString::number(part.toInt()));
    return value.isArray() ? parts.join(QStringLiteral(" x ")) : value.toString();
}

void appendAll(QJsonArray *to, const QJsonArray &from)
{
    for (const QJsonValue &value : from)
        to->append(value);
}

} // namespace

TourReport::TourReport(const QString &folder, const QString &pcName)
    : m_strFolder(folder), m_strPcName(pcName)
{
    QDir dir(folder);
    dir.mkpath(QStringLiteral("."));
    static const QRegularExpression ours(
        QStringLiteral("^(\\d\\d+-.*\\.png|report-disk\\d+\\.pdf|screenshot-disk\\d+\\.jpg)$"));
    const QStringList old = dir.entryList(QDir::Files).filter(ours);
    for (const QString &name : old)
        dir.remove(name);
    dir.remove(dataFile());
}

void TourReport::log(const QString &line)
{
    std::fprintf(stderr, "[tour] %s\n", qPrintable(line));
    std::fflush(stderr);
}

QString TourReport::pictureName(const Screen &screen) const
{
    // File names cannot have the colon of "dialog:<class>" on all systems.
    QString name = QStringLiteral("%1-%2")
                       .arg(m_steps.size() + 1, 2, 10, QLatin1Char('0'))
                       .arg(QString(screen.step).replace(QLatin1Char(':'), QLatin1Char('-')));
    if (screen.disk >= 0)
        name += QStringLiteral("-disk%1").arg(screen.disk);
    return name + QStringLiteral(".png");
}

void TourReport::warn(const QJsonArray &found, const char *what) const
{
    for (const QJsonValue &value : found) {
        const QJsonObject entry = value.toObject();
        QStringList parts;
        for (const char *key : {"name", "names", "text", "texts", "need", "have", "rectangle"}) {
            if (entry.contains(QLatin1String(key)))
                parts.append(QLatin1String(key) + QLatin1Char(' ') + joined(entry[QLatin1String(key)]));
        }
        log(QStringLiteral("   warning: %1: %2").arg(QLatin1String(what), parts.join(QStringLiteral(", "))));
    }
}

void TourReport::add(const Screen &screen)
{
    const QString picture = pictureName(screen);
    log(picture);
    if (!screen.picture.save(QDir(m_strFolder).filePath(picture)))
        addFailure(screen.step, QStringLiteral("cannot write ") + picture);

    QJsonObject step = screen.contents;
    step[QStringLiteral("step")] = screen.step;
    step[QStringLiteral("disk")] = screen.disk;
    step[QStringLiteral("language")] = screen.language;
    step[QStringLiteral("picture")] = picture;
    m_steps.append(step);

    // The language of the tour is the one that it began in.
    if (m_strLanguage.isEmpty()) {
        m_strLanguage = screen.language;
        m_dScale = screen.scale;
    }
    warn(screen.clipped, "clipped");
    warn(screen.overlaps, "overlap");
    appendAll(&m_clipped, screen.clipped);
    appendAll(&m_overlaps, screen.overlaps);
    write();
}

void TourReport::addFailure(const QString &step, const QString &reason)
{
    log(QStringLiteral("FAILED %1: %2").arg(step, reason));
    m_failed.append(step);
    write();
}

void TourReport::addSkipped(const QString &key)
{
    log(QStringLiteral("skipped: the described PC asks for \"%1\"").arg(key));
    m_skipped.append(key);
}

bool TourReport::write() const
{
    const QJsonObject data{
        {QStringLiteral("pc"), m_strPcName},    {QStringLiteral("language"), m_strLanguage},
        {QStringLiteral("scale"), m_dScale},    {QStringLiteral("failed"), m_failed},
        {QStringLiteral("skipped"), m_skipped}, {QStringLiteral("steps"), m_steps},
        {QStringLiteral("clipped"), m_clipped}, {QStringLiteral("overlaps"), m_overlaps}};
    QSaveFile file(QDir(m_strFolder).filePath(dataFile()));
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(data).toJson()) > 0 && file.commit();
}
