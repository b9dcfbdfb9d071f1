// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/VersionCompare.h"

#include <QtTest>

/// Which versions count as newer. Fields are read at fixed positions, so some results are odd.
class VersionCompareTest : public QObject
{
    Q_OBJECT

private slots:
    void comparesByPositions_data();
    void comparesByPositions();
    void offersFromTwoLines_data();
    void offersFromTwoLines();
};

void VersionCompareTest::comparesByPositions_data()
{
    QTest::addColumn<QString>("installed");
    QTest::addColumn<QString>("offered");
    QTest::addColumn<QString>("newer"); ///< "major", "minor" or empty
    const auto row = [](const char *name, const char *installed, const char *offered, const char *newer) {
        QTest::newRow(name) << QString(installed) << QString(offered) << QString(newer);
    };
    row("equal", "11.0.0.8", "11.0.0.8", "");
    row("major", "11.0.0.8", "12.0.0.0", "major");
    row("one digit against two", "9.0.0.1", "10.0.0.0", "major");
    row("second field", "11.0.0.8", "11.1.0.0", "minor");
    row("third field", "11.0.0.8", "11.0.1.0", "minor");
    row("last field", "11.0.0.8", "11.0.0.9", "minor");
    row("older in all", "11.1.1.8", "11.0.0.7", "");
    row("a smaller field does not end it", "11.5.0.8", "11.0.0.9", "minor");
    row("a smaller first field neither", "12.0.0.0", "11.0.0.1", "minor");
    row("two digits count as their first", "11.0.0.8", "11.0.0.10", "");
    row("two digits, the first greater", "11.0.0.1", "11.0.0.20", "minor");
    row("two digits in the middle move the rest", "11.0.0.8", "11.10.0.9", "minor");
    row("one digit each", "9.0.0.1", "9.0.0.2", "minor");
    row("lengths differ, the digits stay in place", "10.0.0.5", "9.0.0.3", "");
    row("three digits", "11.0.0.8", "100.9.9.9", "");
    row("three digits installed", "100.0.0.8", "101.0.0.0", "");
    row("words", "11.0.0.8", "ab.c.d.e", "");
    row("a page", "11.0.0.8", "<!DOCTYPE html>", "");
    row("short", "11.0.0.8", "11", "");
    row("short and newer", "11.0.0.8", "12", "major");
    row("empty", "11.0.0.8", "", "");
    row("installed is no version", "x.0.0.0", "1.0.0.0", "major");
}

void VersionCompareTest::comparesByPositions()
{
    QFETCH(QString, installed);
    QFETCH(QString, offered);
    const version::Newer newer = version::compare(installed, offered);
    const QString word = newer == version::Newer::Major   ? QStringLiteral("major")
                         : newer == version::Newer::Minor ? QStringLiteral("minor")
                                                          : QString();
    QTEST(word, "newer");
}

void VersionCompareTest::offersFromTwoLines_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<bool>("major");
    QTest::addColumn<bool>("minor");
    QTest::addColumn<QString>("latestMajor");
    QTest::addColumn<QString>("latestMinor");
    QTest::newRow("both") << QStringList{"12.0.0.0", "11.0.0.9"} << true << true << "12.0.0.0"
                          << "11.0.0.9";
    QTest::newRow("minor on the first") << QStringList{"11.2.0.0"} << false << true << "11.2.0.0"
                                        << "";
    QTest::newRow("major on the second") << QStringList{"11.0.0.8", "12.0.0.0"} << true << false << ""
                                         << "12.0.0.0";
    QTest::newRow("cut") << QStringList{"12.0.0.0 beta", "x"} << true << false << "12.0.0.0"
                         << "";
    QTest::newRow("third line") << QStringList{"x", "y", "12.0.0.0"} << false << false << ""
                                << "";
    QTest::newRow("none") << QStringList() << false << false << ""
                          << "";
}

void VersionCompareTest::offersFromTwoLines()
{
    QFETCH(QStringList, lines);
    const version::Offer offer = version::offerOf(QStringLiteral("11.0.0.8"), lines);
    QTEST(offer.major, "major");
    QTEST(offer.minor, "minor");
    QTEST(offer.latestMajor, "latestMajor");
    QTEST(offer.latestMinor, "latestMinor");
}

QTEST_APPLESS_MAIN(VersionCompareTest)

#include "tst_VersionCompare.moc"
