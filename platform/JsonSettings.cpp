// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/JsonSettings.h"

#include "platform/Log.h"
#include "platform/OwnFiles.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

QVariant toVariant(const QJsonValue &value)
{
    if (value.isDouble()) {
        const double number = value.toDouble();
        if (std::trunc(number) != number || std::abs(number) > 9.0e15)
            return number;
        const qint64 whole = static_cast<qint64>(number);
        if (whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max())
            return static_cast<int>(whole);
        return static_cast<qlonglong>(whole);
    }
    return value.toVariant();
}

QJsonValue toJson(const QVariant &value)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return static_cast<qint64>(value.toLongLong());
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QStringList:
        return QJsonArray::fromStringList(value.toStringList());
    default:
        return value.toString();
    }
}

/// Tells at its end whether its values could be written.
class LoggedSettings : public QSettings
{
public:
    using QSettings::QSettings;
    ~LoggedSettings() override
    {
        if (format() != NativeFormat)
            sync(); // the registry is written at once
        if (status() != NoError)
            qCDebug(logs::platform) << "settings are not written or not readable:" << fileName();
    }
};

QSettings::Format format()
{
    static const QSettings::Format registered = QSettings::registerFormat(
        QStringLiteral("json"), jsonsettings::read, jsonsettings::write, Qt::CaseSensitive);
    return registered;
}

} // namespace

namespace jsonsettings
{

bool read(QIODevice &device, QSettings::SettingsMap &map)
{
    const QByteArray bytes = device.read(std::min(device.size(), ownfiles::MostBytes));
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return bytes.trimmed().isEmpty();
    const QJsonObject object = document.object();
    for (auto it = object.begin(); it != object.end(); ++it)
        map.insert(it.key(), toVariant(it.value()));
    return true;
}

bool write(QIODevice &device, const QSettings::SettingsMap &map)
{
    QJsonObject object;
    for (auto it = map.begin(); it != map.end(); ++it)
        object.insert(it.key(), toJson(it.value()));
    return device.write(QJsonDocument(object).toJson()) >= 0;
}

QString fileOf(const QString &folder, const QString &registryPath)
{
    QString path = registryPath;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    QString file = folder;
    for (QString part : path.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (part == QLatin1String(".") || part == QLatin1String(".."))
            continue;
        part.replace(QLatin1Char(':'), QLatin1Char('_'));
        file += QLatin1Char('/') + part;
    }
    return file + QLatin1String(".json");
}

std::unique_ptr<QSettings> open(const QString &file)
{
    return openAs(file, format());
}

std::unique_ptr<QSettings> openAs(const QString &path, QSettings::Format format)
{
    return std::make_unique<LoggedSettings>(path, format);
}

std::unique_ptr<QSettings> openNothing()
{
    // Nothing can be made among the compiled-in resources, so every write fails quietly.
    return std::make_unique<QSettings>(QStringLiteral(":/no-settings/none.json"), format());
}

void seed(const QString &file, const QJsonObject &values)
{
    if (values.isEmpty() || QFileInfo::exists(file))
        return;
    QDir().mkpath(QFileInfo(file).absolutePath());
    QSaveFile out(file);
    if (out.open(QIODevice::WriteOnly)) {
        out.write(QJsonDocument(values).toJson());
        out.commit();
    }
}

} // namespace jsonsettings
