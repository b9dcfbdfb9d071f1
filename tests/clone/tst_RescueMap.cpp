// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/CloneMessages.h"
#include "clone/RescueMap.h"
#include "tests/support/Files.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

/// The list of lost sectors, as the message tells it and as ddrescue reads it.
class tst_RescueMap : public QObject
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
    void text();
    void otherToolReadsIt();
    void unconfirmed();

private:
    LostSectors m_lost;
};

void tst_RescueMap::text()
{
    QCOMPARE(rescuemap::text(m_lost, 3000).split('#').last(), QByteArray("      pos        size  status\n"
                                                                         "0x00000000  0x00000400  -\n"
                                                                         "0x00000400  0x0000C400  +\n"
                                                                         "0x0000C800  0x00000200  -\n"
                                                                         "0x0000CA00  0x000ED600  +\n"
                                                                         "0x000FA000  0x00000800  -\n"
                                                                         "0x000FA800  0x0007C600  +\n"
                                                                         "0x00176E00  0x00000200  -\n"));
    CloneOutcome outcome;
    outcome.end = CloneOutcome::End::WithErrors;
    outcome.lost = m_lost;
    QCOMPARE(clonemessages::finished(outcome).second,
             QStringLiteral("4 sectors could not be read and were filled with zeros. "
                            "4 sectors could not be written."));
    outcome.end = CloneOutcome::End::Failed;
    outcome.fault = CloneFault::DestinationGone;
    const clonemessages::Message failed = clonemessages::finished(outcome);
    QCOMPARE(failed.text + '|' + failed.second,
             QStringLiteral("The destination disk does not answer any more.|"
                            "The destination disk holds no complete copy."));
}

/// With the map ddrescue copies the lost sectors and nothing else.
void tst_RescueMap::otherToolReadsIt()
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
    QCOMPARE(QProcess::execute(QStringLiteral("ddrescuelog"), {QStringLiteral("--done-status"), path("map")}),
             0);
}

void tst_RescueMap::unconfirmed()
{
    m_lost.unconfirmed = true;
    QVERIFY(rescuemap::text(m_lost, 3000).endsWith("\n0x00000000  0x00177000  ?\n"));
    QVERIFY(!rescuemap::save(QStringLiteral("/no/such/folder/map"), m_lost, 3000));
}

QTEST_GUILESS_MAIN(tst_RescueMap)
#include "tst_RescueMap.moc"
