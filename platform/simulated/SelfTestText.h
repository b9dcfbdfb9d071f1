// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// How `smartctl` tells of a drive's self-tests. Statuses are the drive's own numbers, 0 to 9 and 15.
namespace simulated::selftext
{

constexpr int inProgress = 15;

/// The text with its "Self-test execution status:" replaced; unchanged where it has none.
QByteArray withStatus(const QByteArray &text, int status, int remainingTenths);

/// A row of the log behind its number.
QByteArray logRow(const QString &kind, int status, int remainingTenths, qint64 hours, const QString &lba);

/// The text with rows put on top of its self-test log; the older ones move down, and the log keeps 21.
/// Unchanged where it has no log.
QByteArray withLogRows(const QByteArray &text, const QList<QByteArray> &rows);

/// The minutes that the capabilities recommend for a test, "Short" or "Extended"; empty where they name none.
std::optional<int> pollingMinutes(const QByteArray &capabilities, const QByteArray &kind);

/// The power-on time that a report tells in attribute 9, as far as the drive's log can hold it; 0 if none.
qint64 powerOnHours(const QByteArray &report);

} // namespace simulated::selftext
