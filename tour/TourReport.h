// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/// The results of the tour so far. They are written after every step, so that they stay whatever happens to
/// the program. Tour thread only.
class TourReport
{
public:
    /// `folder` is made; what an earlier tour left in it is removed.
    TourReport(const QString &folder, const QString &pcName);

    /// The contents of one window.
    struct Screen {
        QString step;
        int disk = -1; ///< -1: none
        QString language;
        double scale = 0;
        QImage picture;
        QJsonObject contents;
        QJsonArray clipped;
        QJsonArray overlaps;
    };

    void add(const Screen &screen);

    /// Names a step that could not be done; `reason` goes to the log.
    void addFailure(const QString &step, const QString &reason);

    /// Names something that the described PC asks for and this tour does not know.
    void addSkipped(const QString &key);

    bool hasFailures() const { return !m_failed.isEmpty(); }

    /// Writes screens.json anew. False if that fails.
    bool write() const;

    /// One line on standard error.
    static void log(const QString &line);

private:
    QString pictureName(const Screen &screen) const;
    void warn(const QJsonArray &found, const char *what) const;

    QString m_strFolder;
    QString m_strPcName;
    QString m_strLanguage;
    double m_dScale = 0;
    QJsonArray m_steps;
    QJsonArray m_failed;
    QJsonArray m_skipped;
    QJsonArray m_clipped;
    QJsonArray m_overlaps;
};
