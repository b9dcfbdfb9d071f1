// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/VersionCompare.h"

#include <QtTest>

/// Which versions count as newer. Fields are read at fixed positions, so some results are odd.
class VersionCompareTest : public QObject
{
    Q_OBJECT

private slots:
    /// The newest of the first line|of the second, and which they are.
    void offers()
    {
        const auto row = [](const char *name, const char *installed, const QStringList &lines,
                            const char *offered) {
            const version::Offer offer = version::offerOf(installed, lines);
            QCOMPARE(name + (": " + offer.latestMajor) + '|' + offer.latestMinor +
                         (offer.major ? " major" : "") + (offer.minor ? " minor" : ""),
                     QString("%1: %2").arg(name, offered));
        };
        row("equal", "11.0.0.8", {"11.0.0.8"}, "|");
        row("one digit against two", "9.0.0.1", {"10.0.0.0"}, "10.0.0.0| major");
        row("second field", "11.0.0.8", {"11.1.0.0"}, "11.1.0.0| minor");
        row("third field", "11.0.0.8", {"11.0.1.0"}, "11.0.1.0| minor");
        row("last field", "11.0.0.8", {"11.0.0.9"}, "11.0.0.9| minor");
        row("older in all", "11.1.1.8", {"11.0.0.7"}, "|");
        row("a smaller field does not end it", "11.5.0.8", {"11.0.0.9"}, "11.0.0.9| minor");
        row("a smaller first field neither", "12.0.0.0", {"11.0.0.1"}, "11.0.0.1| minor");
        row("two digits count as their first", "11.0.0.8", {"11.0.0.10"}, "|");
        row("two digits in the middle move the rest", "11.0.0.8", {"11.10.0.9"}, "11.10.0.| minor");
        row("lengths differ, the digits stay in place", "10.0.0.5", {"9.0.0.3"}, "|");
        row("one digit each", "9.0.0.1", {"9.0.0.2"}, "9.0.0.2| minor");
        row("three digits", "11.0.0.8", {"100.9.9.9"}, "|");
        row("three digits installed", "100.0.0.8", {"101.0.0.0"}, "|");
        row("words", "11.0.0.8", {"ab.c.d.e"}, "|");
        row("short and newer", "11.0.0.8", {"12"}, "12| major");
        row("empty", "11.0.0.8", {""}, "|");
        row("installed is no version", "x.0.0.0", {"1.0.0.0"}, "1.0.0.0| major");
        row("both", "11.0.0.8", {"12.0.0.0 beta", "11.0.0.9"}, "12.0.0.0|11.0.0.9 major minor");
        row("major on the second", "11.0.0.8", {"11.0.0.8", "12.0.0.0"}, "|12.0.0.0 major");
        row("third line", "11.0.0.8", {"x", "y", "12.0.0.0"}, "|");
        row("none", "11.0.0.8", {}, "|");
    }
};

QTEST_APPLESS_MAIN(VersionCompareTest)

#include "tst_VersionCompare.moc"
