// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/JsonReader.h"

#include <cmath>

namespace
{

constexpr int MostEntries = 65536;

} // namespace

JsonReader::JsonReader(const QJsonObject &object, const QString &path, QString *error)
    : m_object(object), m_path(path), m_error(error)
{
}

JsonReader JsonReader::below(const QString &key) const
{
    return JsonReader(object(key), path(key), m_error);
}

QString JsonReader::path(const QString &key) const
{
    return m_path.isEmpty() ? key : m_path + QLatin1Char('.') + key;
}

void JsonReader::fail(const QString &keyPath, const QString &what) const
{
    if (m_error->isEmpty()) {
        *m_error = keyPath + QLatin1String(": ") + what;
    }
}

QString JsonReader::text(const QString &key, const QString &fallback) const
{
    const QJsonValue value = m_object.value(key);
    if (value.isUndefined()) {
        return fallback;
    }
    if (!value.isString()) {
        fail(path(key), QStringLiteral("a text is wanted"));
    }
    return value.toString();
}

bool JsonReader::truth(const QString &key, bool fallback) const
{
    const QJsonValue value = m_object.value(key);
    if (!value.isUndefined() && !value.isBool()) {
        fail(path(key), QStringLiteral("true or false is wanted"));
    }
    return value.toBool(fallback);
}

qint64 JsonReader::whole(const QString &key, qint64 fallback, qint64 least, qint64 most) const
{
    const QJsonValue value = m_object.value(key);
    return value.isUndefined() ? fallback : wholeValue(value, path(key), least, most);
}

qint64 JsonReader::wholeValue(const QJsonValue &value, const QString &keyPath, qint64 least,
                              qint64 most) const
{
    const double number = value.toDouble(0.5);
    // Beyond 2^53 a JSON number is no longer exact.
    if (std::trunc(number) != number || std::abs(number) > 9007199254740992.0) {
        fail(keyPath, QStringLiteral("a whole number is wanted"));
        return least;
    }
    const qint64 result = static_cast<qint64>(number);
    if (result < least || result > most) {
        fail(keyPath, QStringLiteral("a number from %1 to %2 is wanted").arg(least).arg(most));
        return least;
    }
    return result;
}

double JsonReader::number(const QString &key, double fallback, double least, double most) const
{
    const QJsonValue value = m_object.value(key);
    if (value.isUndefined()) {
        return fallback;
    }
    const double result = value.toDouble();
    if (!value.isDouble()) {
        fail(path(key), QStringLiteral("a number is wanted"));
    } else if (result < least || result > most) {
        fail(path(key), QStringLiteral("a number from %1 to %2 is wanted").arg(least).arg(most));
    }
    return result;
}

int JsonReader::word(const QString &key, int fallback, const QStringList &words) const
{
    if (!has(key)) {
        return fallback;
    }
    const int place = words.indexOf(text(key));
    if (place < 0) {
        fail(path(key), QStringLiteral("one of \"%1\" is wanted").arg(words.join(QLatin1String("\", \""))));
    }
    return place;
}

QStringList JsonReader::texts(const QString &key) const
{
    QStringList result;
    const QJsonArray array = list(key);
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isString()) {
            fail(QStringLiteral("%1[%2]").arg(path(key)).arg(i), QStringLiteral("a text is wanted"));
        }
        result.append(array.at(i).toString());
    }
    return result;
}

QJsonObject JsonReader::object(const QString &key) const
{
    const QJsonValue value = m_object.value(key);
    if (!value.isUndefined() && !value.isObject()) {
        fail(path(key), QStringLiteral("an object is wanted"));
    }
    return value.toObject();
}

QJsonArray JsonReader::list(const QString &key) const
{
    const QJsonValue value = m_object.value(key);
    if (!value.isUndefined() && !value.isArray()) {
        fail(path(key), QStringLiteral("a list is wanted"));
    } else if (value.toArray().size() > MostEntries) {
        fail(path(key), QStringLiteral("at most %1 entries are wanted").arg(MostEntries));
        return {};
    }
    return value.toArray();
}

void JsonReader::each(const QString &key, const std::function<void(const JsonReader &)> &read) const
{
    const QJsonArray array = list(key);
    for (int i = 0; i < array.size(); ++i) {
        const QString place = QStringLiteral("%1[%2]").arg(path(key)).arg(i);
        if (!array.at(i).isObject()) {
            fail(place, QStringLiteral("an object is wanted"));
            return;
        }
        read(JsonReader(array.at(i).toObject(), place, m_error));
    }
}
