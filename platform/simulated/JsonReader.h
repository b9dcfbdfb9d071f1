// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>

/// Reads typed values out of a JSON object and keeps the first thing that is wrong, with the path of its key
/// ("disks[1].sectors: a whole number is wanted"). A missing key gives the fallback.
class JsonReader
{
public:
    /// `error` is shared by all readers of one file and belongs to the caller.
    JsonReader(const QJsonObject &object, const QString &path, QString *error);

    bool has(const char *key) const { return m_object.contains(QLatin1String(key)); }
    QJsonValue value(const char *key) const { return m_object.value(QLatin1String(key)); }
    /// The same, for what lies below a key; an empty object where there is none.
    JsonReader below(const char *key) const;
    QString path(const char *key) const;
    void fail(const QString &keyPath, const QString &what) const;
    void wrong(const char *key, const QString &what) const;
    /// What was found wrong so far, by any reader of the file.
    const QString &error() const { return *m_error; }

    QString text(const char *key, const QString &fallback = QString()) const;
    bool truth(const char *key, bool fallback) const;
    qint64 whole(const char *key, qint64 fallback, qint64 least, qint64 most) const;
    double number(const char *key, double fallback, double least, double most) const;
    /// One of `words`; its place in them is the result.
    int word(const char *key, int fallback, const QStringList &words) const;
    QStringList texts(const char *key) const;
    QJsonObject object(const char *key) const;
    QJsonArray list(const char *key) const;
    /// Calls back for each object of a list.
    void each(const char *key, const std::function<void(const JsonReader &)> &read) const;

    /// Checks a value that is no member of its own.
    qint64 wholeValue(const QJsonValue &value, const QString &keyPath, qint64 least, qint64 most) const;

private:
    QJsonObject m_object;
    QString m_path;
    QString *m_error;
};
