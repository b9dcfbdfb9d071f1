// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVariant>
#include <QtTest>

/// Compares each "given -> expected" with what `made` makes of the given text.
template<typename Function>
void compareRows(const QStringList &rows, Function made)
{
    for (const QString &row : rows) {
        const QString given = row.section(QStringLiteral(" -> "), 0, 0);
        QCOMPARE(given + QStringLiteral(" -> ") + QVariant(made(given)).toString(), row);
    }
}
