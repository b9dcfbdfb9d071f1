// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QWaitClass.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "tests/platform/DescribedFolder.h"
#include "ui/window/MainWindow.h"

#include <QComboBox>
#include <QFrame>
#include <QtTest>

namespace
{

const QByteArray Described = R"({
  "name": "Test PC", "user": "tester", "dpi": 96, "pauses": false,
  "disks": [
    {"number": 0, "media": "fixed", "model": "Alpha One ATA Device", "interface": "IDE", "sectors": 1953525168},
    {"number": 4, "media": "removable", "model": "Gamma Stick USB Device", "interface": "USB", "sectors": 1001472},
    {"number": 6, "media": "removable", "model": "Delta Card USB Device", "interface": "USB", "sectors": 1001472,
     "present": false}
  ],
  "volumes": [
    {"letter": "C", "label": "c", "fileSystem": "NTFS", "size": 4096, "extents": [{"disk": 0, "length": 4096}]},
    {"letter": "L", "label": "l", "fileSystem": "FAT32", "type": "removable", "size": 4096,
     "extents": [{"disk": 4, "length": 4096}]},
    {"letter": "N", "label": "n", "fileSystem": "FAT32", "type": "removable", "size": 4096,
     "extents": [{"disk": 4, "offset": 4096, "length": 4096}]},
    {"letter": "P", "label": "p", "fileSystem": "FAT32", "type": "removable", "size": 4096,
     "extents": [{"disk": 6, "length": 4096}]}
  ],
  "settings": {"TempValue": "C", "FirstTimeLaunch": 1}
})";

} // namespace

/// Counts how often the watched widget is shown.
class ShowCounter : public QObject
{
public:
    int shows = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        shows += event->type() == QEvent::Show ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

/// The real splash and the real window on a PC whose disks come and go.
class tst_Plugging : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void removedDiskLeavesTheList();
    void arrivingDiskJoinsTheList();
    void noticeBehindARefreshCatchesUp();
    void volumeAloneRefreshes();
    void laterRefreshesRunNoMoreCommands();
    void jobsDropNotices_data();
    void jobsDropNotices();

private:
    void touch(const QString &name);
    void waitForRest();
    QVector<int> disks() const;
    QString letters(int disk) const;
    int loads() const;

    std::unique_ptr<DescribedFolder> m_pFolder;
    std::unique_ptr<QWaitClass> m_pSplash;
    MainWindow *m_pWindow = nullptr;
    QComboBox *m_pCombo = nullptr;
    QString m_strState;
};

void tst_Plugging::initTestCase()
{
    Q_INIT_RESOURCE(images);
    m_pFolder = std::make_unique<DescribedFolder>();
    auto pc = m_pFolder->open(Described);
    m_strState = pc->stateFolder();
    g_App.m_strSystemFolder = pc->GetSystemDirectoryW();
    g_App.m_bUse64BitTool = true;
    g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Velmora Halvane for Windows");
    languages::setFlag(0);
    Platform::install(std::move(pc));
    m_pSplash = std::make_unique<QWaitClass>();
    m_pSplash->show();
    QTRY_VERIFY_WITH_TIMEOUT(m_bMainWindowCreated, 20000);
    m_pWindow = ::m_pMainWindow;
    m_pCombo = m_pWindow->findChild<QComboBox *>(QStringLiteral("DriveCombobox"));
    waitForRest();
}

void tst_Plugging::init()
{
    QCOMPARE(disks(), (QVector<int>{128, 132}));
}

/// Leaves the PC as it was described.
void tst_Plugging::cleanup()
{
    g_bJobRunning = false;
    for (const char *name : {"arrive-L", "arrive-disk4", "remove-disk6", "arrive"}) {
        touch(QLatin1String(name));
        waitForRest();
    }
}

void tst_Plugging::cleanupTestCase()
{
    delete m_pWindow;
    m_pSplash.reset();
}

/// Makes the file and waits until the PC has acted on it.
void tst_Plugging::touch(const QString &name)
{
    const QString path = m_strState + QStringLiteral("/volumes-changed/") + name;
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    // Windows does not remove an open file.
    file.close();
    QTRY_VERIFY(!QFileInfo::exists(path));
    QCoreApplication::processEvents();
}

void tst_Plugging::waitForRest()
{
    const auto *busy = m_pWindow->findChild<QFrame *>(QStringLiteral("GifFrame"));
    QTRY_VERIFY_WITH_TIMEOUT(!busy->isVisible() && !g_bListsLoading, 10000);
}

QVector<int> tst_Plugging::disks() const
{
    QVector<int> ids;
    for (int i = 0; i < m_pCombo->count(); ++i)
        ids << m_pCombo->itemData(i).toInt();
    return ids;
}

/// The letters of a disk in the list that the screens read.
QString tst_Plugging::letters(int disk) const
{
    const DiskNode *node = findPhysicalDisk(disk);
    return node != nullptr ? node->pDetails->szDrives : QStringLiteral("no disk");
}

/// How often the lists have been built.
int tst_Plugging::loads() const
{
    return DescribedFolder::contents(m_strState + QStringLiteral("/commands.log"))
        .count("diskdrive get Model");
}

void tst_Plugging::removedDiskLeavesTheList()
{
    m_pCombo->setCurrentIndex(1);
    emit m_pCombo->activated(1);
    waitForRest();
    QCOMPARE(g_nCurrentDiskIndex, 4);
    // The busy frame may be hidden again before the test can look at it.
    ShowCounter busy;
    m_pWindow->findChild<QFrame *>(QStringLiteral("GifFrame"))->installEventFilter(&busy);
    touch(QStringLiteral("remove-disk4"));
    waitForRest();
    QVERIFY(busy.shows > 0);
    QCOMPARE(disks(), QVector<int>{128});
    QCOMPARE(m_pCombo->currentIndex(), 0);
    QCOMPARE(g_nCurrentDiskIndex, 0);
    QCOMPARE(findPhysicalDisk(132), nullptr);
}

void tst_Plugging::arrivingDiskJoinsTheList()
{
    touch(QStringLiteral("arrive-disk6"));
    waitForRest();
    QCOMPARE(disks(), (QVector<int>{128, 132, 134}));
    QCOMPARE(m_pCombo->currentIndex(), 0);
    QVERIFY(letters(134).contains(QLatin1String("P:")));
}

void tst_Plugging::noticeBehindARefreshCatchesUp()
{
    // Two notices for the volumes of one disk and one for the other. All but the first come during a refresh,
    // which may not show their changes.
    touch(QStringLiteral("remove-disk4"));
    touch(QStringLiteral("arrive-disk6"));
    waitForRest();
    touch(QStringLiteral("arrive"));
    waitForRest();
    QCOMPARE(disks(), (QVector<int>{128, 134}));
}

void tst_Plugging::volumeAloneRefreshes()
{
    const int before = loads();
    QVERIFY(letters(132).contains(QLatin1String("L:")));
    touch(QStringLiteral("remove-L"));
    waitForRest();
    QCOMPARE(loads(), before + 1);
    QCOMPARE(disks(), (QVector<int>{128, 132}));
    QVERIFY(!letters(132).contains(QLatin1String("L:")));
    QVERIFY(letters(132).contains(QLatin1String("N:")));
}

void tst_Plugging::laterRefreshesRunNoMoreCommands()
{
    const auto commandsOfARefresh = [this] {
        const QString log = m_strState + QStringLiteral("/commands.log");
        const int before = DescribedFolder::contents(log).size();
        m_pWindow->OnRefresh();
        waitForRest();
        return DescribedFolder::contents(log).mid(before);
    };
    commandsOfARefresh();
    const QByteArray second = commandsOfARefresh();
    QCOMPARE(second.count("TASKKILL"), 1);
    QByteArray last;
    for (int refresh = 3; refresh <= 20; ++refresh)
        last = commandsOfARefresh();
    QCOMPARE(last, second);
}

void tst_Plugging::jobsDropNotices_data()
{
    QTest::addColumn<QString>("touched");
    for (const char *name : {"remove-disk4", "arrive-disk6", "remove-L", "remove", "arrive"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_Plugging::jobsDropNotices()
{
    QFETCH(QString, touched);
    const auto *busy = m_pWindow->findChild<QFrame *>(QStringLiteral("GifFrame"));
    const int before = loads();
    const QVector<int> listed = disks();
    g_bJobRunning = true;
    touch(touched);
    QTest::qWait(200);
    QVERIFY(!busy->isVisible());
    g_bJobRunning = false;
    QTest::qWait(300); // no refresh is waiting
    QVERIFY(!busy->isVisible());
    QCOMPARE(loads(), before);
    QCOMPARE(disks(), listed);
    // The end of a job reads the lists anew if a listed volume or disk has gone.
    QCOMPARE(g_bListsStale, touched.startsWith(QLatin1String("remove")));
    m_pWindow->OnFinishScanDisk();
    QCOMPARE(g_bListsLoading.load(), touched.startsWith(QLatin1String("remove")));
    waitForRest();
}

QTEST_MAIN(tst_Plugging)
#include "tst_Plugging.moc"
