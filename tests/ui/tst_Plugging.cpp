// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QWaitClass.h"
#include "tests/ui/WindowFixture.h"

namespace
{

const QByteArray Described = R"({
  "pauses": false, "settings": {"TempValue": "C", "FirstTimeLaunch": 1},
  "disks": [
    {"number": 0, "model": "Alpha One ATA Device", "interface": "IDE", "sectors": 1953525168},
    {"number": 4, "media": "removable", "model": "Gamma Stick", "interface": "USB", "sectors": 1001472},
    {"number": 6, "media": "removable", "model": "Delta Card", "interface": "USB", "sectors": 1001472, "present": false}
  ],
  "volumes": [
    {"letter": "C", "size": 4096, "extents": [{"disk": 0, "length": 4096}]},
    {"letter": "L", "type": "removable", "size": 4096, "extents": [{"disk": 4, "length": 4096}]},
    {"letter": "N", "type": "removable", "size": 4096, "extents": [{"disk": 4, "offset": 4096, "length": 4096}]},
    {"letter": "P", "type": "removable", "size": 4096, "extents": [{"disk": 6, "length": 4096}]}
  ]
})";

} // namespace

/// The real splash and the real window on a PC whose disks come and go.
class tst_Plugging : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        startPc(Described);
        m_pSplash = std::make_unique<QWaitClass>();
        m_pSplash->show();
        QTRY_VERIFY_WITH_TIMEOUT(m_bMainWindowCreated, 20000);
        m_pWindow.reset(::m_pMainWindow);
        waitForRest();
    }
    void cleanupTestCase()
    {
        tearDown();
        m_pSplash.reset();
    }

    /// The PC is as it was described.
    void init() { QCOMPARE(disks(), (QVector<int>{128, 132})); }
    void cleanup()
    {
        g_bJobRunning = false;
        for (const char *name : {"arrive-L", "arrive-disk4", "remove-disk6", "arrive"})
            plug(name);
    }

    void disksLeaveAndJoinTheList()
    {
        select(1);
        QCOMPARE(g_nCurrentDiskIndex, 4);
        // The busy frame may be hidden again before the test can look at it.
        EventCounter busy(child<QFrame>("GifFrame"), QEvent::Show);
        plug("remove-disk4");
        QVERIFY(busy.count > 0);
        QCOMPARE(disks(), QVector<int>{128});
        QVERIFY(enabled("ScanButton") && !enabled("CloneButton")); // there is nothing to clone to
        QCOMPARE(child<QComboBox>("DriveCombobox")->currentIndex(), 0);
        QCOMPARE(g_nCurrentDiskIndex, 0);
        plug("arrive-disk6");
        QCOMPARE(disks(), (QVector<int>{128, 134}));
        QVERIFY(enabled("CloneButton"));
        QVERIFY(letters(134).contains(QLatin1String("P:")));
    }

    void volumeAloneRefreshes()
    {
        const int before = loads();
        QVERIFY(letters(132).contains(QLatin1String("L:")));
        plug("remove-L");
        QCOMPARE(loads(), before + 1);
        QVERIFY(!letters(132).contains("L:") && letters(132).contains("N:"));
    }

    void laterRefreshesRunNoMoreCommands()
    {
        QList<QByteArray> second;
        for (int refresh = 1; refresh <= 6; ++refresh) {
            const int before = logLines("commands.log").size();
            m_pWindow->OnRefresh();
            waitForRest();
            const QList<QByteArray> run = logLines("commands.log").mid(before);
            if (refresh == 2)
                second = run;
            else if (refresh > 2)
                QCOMPARE(run, second);
        }
        QCOMPARE(second.join().count("TASKKILL"), 1);
    }

    void jobsDropNotices()
    {
        const std::pair<const char *, bool> notices[] = {
            {"remove-disk4", true}, {"remove-L", true}, {"arrive-disk6", false}};
        for (const auto &[notice, stale] : notices) {
            const int before = loads();
            const QVector<int> listed = disks();
            g_bJobRunning = true;
            touch(QLatin1String(notice));
            g_bJobRunning = false;
            QVERIFY(!g_bListsLoading && !shown("GifFrame"));
            QCOMPARE(loads(), before);
            QCOMPARE(disks(), listed);
            // The end of a job reads the lists anew if a listed volume or disk has gone.
            QCOMPARE(g_bListsStale, stale);
            m_pWindow->OnFinishScanDisk();
            QCOMPARE(g_bListsLoading.load(), stale);
            waitForRest();
            cleanup();
        }
    }

private:
    void plug(const char *name) const
    {
        touch(QLatin1String(name));
        waitForRest();
    }

    QVector<int> disks() const
    {
        QVector<int> ids;
        const auto *combo = child<QComboBox>("DriveCombobox");
        for (int i = 0; i < combo->count(); ++i)
            ids << combo->itemData(i).toInt();
        return ids;
    }

    /// The letters of a disk in the list that the screens read.
    static QString letters(int disk)
    {
        const DiskNode *node = findPhysicalDisk(disk);
        return node ? node->pDetails->szDrives : QStringLiteral("no disk");
    }

    /// How often the lists have been built.
    int loads() const { return commands("diskdrive get Model"); }

    std::unique_ptr<QWaitClass> m_pSplash;
};

QTEST_MAIN(tst_Plugging)
#include "tst_Plugging.moc"
