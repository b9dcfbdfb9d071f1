// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>

/// Reads typed values out of a JSON object and keeps the first thing that is wrong, with the path of its key
/// ("disks[1].sectors: a whole number is wanted"). A missing key gives the fallback. A list has an end.
class JsonReader
{
public:
    /// `error` is shared by all readers of one file and belongs to the caller.
    JsonReader(const QJsonObject &object, const QString &path, QString *error);

    bool has(const QString &key) const { return m_object.contains(key); }
    QJsonValue value(const QString &key) const { return m_object.value(key); }
    /// The same, for what lies below a key; an empty object where there is none.
    JsonReader below(const QString &key) const;
    QString path(const QString &key) const;
    void fail(const QString &keyPath, const QString &what) const;
    /// What was found wrong so far, by any reader of the file.
    const QString &error() const { return *m_error; }

    QString text(const QString &key, const QString &fallback = QString()) const;
    bool truth(const QString &key, bool fallback) const;
    qint64 whole(const QString &key, qint64 fallback, qint64 least, qint64 most) const;
    double number(const QString &key, double fallback, double least, double most) const;
    /// One of `words`; its place in them is the result.
    int word(const QString &key, int fallback, const QStringList &words) const;
    QStringList texts(const QString &key) const;
    QJsonObject object(const QString &key) const;
    QJsonArray list(const QString &key) const;
    /// Calls back for each object of a list.
    void each(const QString &key, const std::function<void(const JsonReader &)> &read) const;

    /// Checks a value that is no member of its own.
    qint64 wholeValue(const QJsonValue &value, const QString &keyPath, qint64 least, qint64 most) const;

private:
    QJsonObject m_object;
    QString m_path;
    QString *m_error;
};
