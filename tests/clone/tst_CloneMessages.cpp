// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/CloneMessages.h"
#include "clone/GaugeGeometry.h"
#include "clone/RescueMap.h"
#include "tests/support/Files.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

/// What the clone screen says without a disk, and the list of lost sectors as ddrescue reads it.
class tst_CloneMessages : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_lost = {};
        for (const int sector : {0, 1, 2000, 2999})
            m_lost.unread.add(sector, 1);
        m_lost.unwritten.add(2001, 3);
        m_lost.unwritten.add(100, 1);
    }
    void text()
    {
        QCOMPARE(rescuemap::text(m_lost, 3000).split('#').last(), QByteArray("      pos        size  status\n"
                                                                             "0x00000000  0x00000400  -\n"
                                                                             "0x00000400  0x0000C400  +\n"
                                                                             "0x0000C800  0x00000200  -\n"
                                                                             "0x0000CA00  0x000ED600  +\n"
                                                                             "0x000FA000  0x00000800  -\n"
                                                                             "0x000FA800  0x0007C600  +\n"
                                                                             "0x00176E00  0x00000200  -\n"));
        QVERIFY(!rescuemap::save(QStringLiteral("/no/such/folder/map"), m_lost, 3000));
        CloneOutcome outcome;
        outcome.end = CloneOutcome::End::WithErrors;
        outcome.lost = m_lost;
        QCOMPARE(clonemessages::finished(outcome).second,
                 QStringLiteral("4 sectors could not be read and were filled with zeros. "
                                "4 sectors could not be written."));
        QCOMPARE(clonemessages::jobEnd(outcome).result, JobEnd::Result::WithFaults);
        outcome.end = CloneOutcome::End::Failed;
        outcome.fault = CloneFault::DestinationGone;
        const clonemessages::Message failed = clonemessages::finished(outcome);
        QCOMPARE(failed.text + '|' + failed.second,
                 QStringLiteral("The destination disk does not answer any more.|"
                                "The destination disk holds no complete copy."));
        QCOMPARE(clonemessages::jobEnd(outcome).detail, failed.text);
        m_lost.unconfirmed = true;
        QVERIFY(rescuemap::text(m_lost, 3000).endsWith("\n0x00000000  0x00177000  ?\n"));
    }

    /// With the map ddrescue copies the lost sectors and nothing else.
    void otherToolReadsIt()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("ddrescue")).isEmpty())
            QSKIP("ddrescue is not installed");
        const QTemporaryDir folder;
        const auto path = [&folder](const char *name) { return folder.filePath(QLatin1String(name)); };
        constexpr int Total = 3000;
        QVERIFY(writeFile(path("source"), QByteArray(Total * 512, 's')));
        QVERIFY(writeFile(path("copy"), QByteArray(Total * 512, 'c')));
        QVERIFY(rescuemap::save(path("map"), m_lost, Total));
        QCOMPARE(QProcess::execute(QStringLiteral("ddrescue"), {QStringLiteral("--retry-passes=1"),
                                                                path("source"), path("copy"), path("map")}),
                 0);
        QByteArray expected(Total * 512, 'c');
        for (const int sector : {0, 1, 100, 2000, 2001, 2002, 2003, 2999})
            expected.replace(sector * 512, 512, QByteArray(512, 's'));
        QVERIFY(contentOf(path("copy")) == expected);
        QCOMPARE(
            QProcess::execute(QStringLiteral("ddrescuelog"), {QStringLiteral("--done-status"), path("map")}),
            0);
    }

    void tellsTimeAndPercent()
    {
        QStringList told;
        // The last is more than 32 bits of ms.
        for (const qint64 remaining : {qint64(-5000), qint64(119999), qint64(120000), qint64(3599999),
                                       qint64(3600000), qint64(7200000000)})
            told << clonemessages::remainingText(remaining);
        QCOMPARE(told,
                 QStringList({"1 minutes", "1 minutes", "2 minutes", "59 minutes", "1 hours", "2000 hours"}));
        QCOMPARE(clonemessages::gaugeText(42), QStringLiteral("42 % of the disk copied"));
        QCOMPARE(clonemessages::percentDone(999999, 1000000), 99); // cut, not rounded
        QCOMPARE(clonemessages::percentDone(40000000000, 80000000000), 50);
        QCOMPARE(clonemessages::percentDone(32768, 0), 0); // the size is not known
    }

    void refuses()
    {
        const auto refusal = [](const clonemessages::Side &destination) {
            const auto message = clonemessages::refusal({1, 1000}, destination);
            return message ? message->text : QString();
        };
        QCOMPARE(refusal({1, 1}), QStringLiteral("Source and destination disks are same.")); // smaller by now
        QCOMPARE(refusal({2, 999}), QStringLiteral("Destination disk size is smaller than source disk."));
        QCOMPARE(refusal({2, 1000}), QString());
        QCOMPARE(refusal({0, 5000000000}), QString());
    }

    void paintsTheGauge()
    {
        const QRectF base = gauge::baseRect(gauge::DesignSide);
        QCOMPARE(base, QRectF(1, 1, 208, 208));
        QCOMPARE(gauge::baseArc(base).rect, QRect(9, 9, 192, 193));
        QCOMPARE(gauge::innerRect(210, 190), QRectF(10, 10, 190, 190));
        QCOMPARE(gauge::sweep(50, 100, 75), 405.0); // the minimum stays in
        QCOMPARE(gauge::sweep(5, 5, 5), 0.0);
        const auto filled = [](const QString &format, int decimals) {
            return gauge::text(format, gauge::placeholders(format), {20, 70, 35, decimals});
        };
        QCOMPARE(filled(QStringLiteral("%p%"), 0), QStringLiteral("30%"));
        QCOMPARE(filled(QStringLiteral("%v of %m: %x"), 1), QStringLiteral("35.0 of 51.0: %x"));
        QCOMPARE(gauge::percent(5, 5, 5), 0.0);
    }

private:
    LostSectors m_lost;
};

QTEST_GUILESS_MAIN(tst_CloneMessages)
#include "tst_CloneMessages.moc"
