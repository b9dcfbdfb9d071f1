// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Files.h"

#include <QStringList>
#include <QTextStream>
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

/// The lines of a file of test data, without remarks.
inline QStringList linesOf(const QString &file)
{
    const QStringList lines = QString::fromUtf8(contentOf(file)).split('\n', Qt::SkipEmptyParts);
    const QStringList rows = lines.filter(QRegularExpression(QStringLiteral("^[^#]")));
    if (rows.isEmpty())
        qFatal("no test data: %s", qPrintable(file));
    return rows;
}

/// The values as texts, with bars between them.
template<typename... Values>
QString joined(const Values &...values)
{
    QString text;
    QTextStream out(&text);
    ((out << values << '|'), ...);
    out.flush();
    text.chop(1);
    return text;
}

/// Compares the rows "FILE/TABLE": below "== TABLE" in tests/data/rules/FILE.txt, less its remarks.
template<typename Function>
void compareRows(const char *table, Function made)
{
    const QString file = HALVANE_TEST_DATA "/rules/" + QString(table).section('/', 0, 0) + ".txt";
    const QString rows =
        QString::fromUtf8(contentOf(file)).section("== " + QString(table).section('/', 1) + '\n', 1, 1);
    QVERIFY2(!rows.isEmpty(), table);
    const QStringList lines = rows.section("\n\n", 0, 0).split('\n').filter(QRegularExpression("^(?!//)."));
    QVERIFY2(!lines.isEmpty(), table);
    compareRows(lines, made);
}

/// The numbers of a row, between blanks.
inline QVector<qint64> numbersOf(const QString &row)
{
    QVector<qint64> numbers;
    for (const QString &number : row.split(' '))
        numbers << number.toLongLong();
    return numbers;
}
