// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/AttributeHistory.h"
#include "tests/support/FakePlatform.h"

#include <QDateTime>

/// A machine that keeps its history in a folder of the test.
class HistoryMachine : public FakePlatform
{
public:
    explicit HistoryMachine(QString folder) : m_history(std::move(folder)) {}
    QString HistoryFolder(const QString &) override { return m_history; }

private:
    QString m_history;
};

/// The days of a disk that ages: the values of a day are calculated from its date.
namespace days
{

const QString key = QStringLiteral("Power On Hours");

inline qint64 valueOn(const QDate &day)
{
    return day.toJulianDay() * 24;
}

inline void record(const QString &serial, const QDate &first, int count)
{
    for (int i = 0; i < count; ++i) {
        const QDate day = first.addDays(i);
        recordHistory(serial, QDateTime(day, QTime(9, 30)), {{key, QString::number(valueOn(day))}});
    }
}

} // namespace days
