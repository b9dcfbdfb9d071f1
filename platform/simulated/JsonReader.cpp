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

JsonReader JsonReader::below(const char *key) const
{
    return JsonReader(object(key), path(key), m_error);
}

QString JsonReader::path(const char *key) const
{
    return m_path.isEmpty() ? QString::fromLatin1(key) : m_path + QLatin1Char('.') + QLatin1String(key);
}

void JsonReader::wrong(const char *key, const QString &what) const
{
    fail(path(key), what);
}

void JsonReader::fail(const QString &keyPath, const QString &what) const
{
    if (m_error->isEmpty())
        *m_error = keyPath + QLatin1String(": ") + what;
}

QString JsonReader::text(const char *key, const QString &fallback) const
{
    const QJsonValue found = value(key);
    if (found.isUndefined())
        return fallback;
    if (!found.isString())
        wrong(key, QStringLiteral("a text is wanted"));
    return found.toString();
}

bool JsonReader::truth(const char *key, bool fallback) const
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isBool())
        wrong(key, QStringLiteral("true or false is wanted"));
    return found.toBool(fallback);
}

qint64 JsonReader::whole(const char *key, qint64 fallback, qint64 least, qint64 most) const
{
    const QJsonValue found = value(key);
    return found.isUndefined() ? fallback : wholeValue(found, path(key), least, most);
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

double JsonReader::number(const char *key, double fallback, double least, double most) const
{
    const QJsonValue found = value(key);
    if (found.isUndefined())
        return fallback;
    const double result = found.toDouble();
    if (!found.isDouble())
        wrong(key, QStringLiteral("a number is wanted"));
    else if (result < least || result > most)
        wrong(key, QStringLiteral("a number from %1 to %2 is wanted").arg(least).arg(most));
    return result;
}

int JsonReader::word(const char *key, int fallback, const QStringList &words) const
{
    if (!has(key))
        return fallback;
    const int place = words.indexOf(text(key));
    if (place < 0)
        wrong(key, QStringLiteral("one of \"%1\" is wanted").arg(words.join(QLatin1String("\", \""))));
    return place;
}

QStringList JsonReader::texts(const char *key) const
{
    QStringList result;
    const QJsonArray array = list(key);
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isString())
            fail(QStringLiteral("%1[%2]").arg(path(key)).arg(i), QStringLiteral("a text is wanted"));
        result.append(array.at(i).toString());
    }
    return result;
}

QJsonObject JsonReader::object(const char *key) const
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isObject())
        wrong(key, QStringLiteral("an object is wanted"));
    return found.toObject();
}

QJsonArray JsonReader::list(const char *key) const
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isArray()) {
        wrong(key, QStringLiteral("a list is wanted"));
    } else if (found.toArray().size() > MostEntries) {
        wrong(key, QStringLiteral("at most %1 entries are wanted").arg(MostEntries));
        return {};
    }
    return found.toArray();
}

void JsonReader::each(const char *key, const std::function<void(const JsonReader &)> &read) const
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
