// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/ThreadDriveClone.h"
#include "tests/ui/Named.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/dialogs/QCheckUpdate.h"
#include "ui/screens/CloneDisk.h"
#include "ui/widgets/QRoundProgressBar.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QPushButton>
#include <QRandomGenerator>

namespace
{

constexpr int SourceSectors = 5 * 32768 + 100;

/// Two slow disks of one size, one with a sector less, and a slow one with bad sectors.
const QByteArray Described = R"({"pauses": false, "settings": {"FirstTimeLaunch": 1}, "disks": [
    {"number": 0, "model": "A", "interface": "IDE", "sectors": 163940, "bytesPerSecond": 200000000},
    {"number": 1, "model": "B", "interface": "IDE", "sectors": 163940, "bytesPerSecond": 200000000},
    {"number": 2, "model": "C", "interface": "IDE", "sectors": 163939},
    {"number": 3, "model": "D", "interface": "IDE", "sectors": 163940, "bytesPerSecond": 40000000,
     "badSectors": [5, 70000]}]})";

QByteArray noise(int sectors, quint32 seed)
{
    QVector<quint32> words(sectors * 128);
    QRandomGenerator(seed).fillRange(words.data(), words.size());
    return QByteArray(reinterpret_cast<const char *>(words.constData()), words.size() * 4);
}

} // namespace

/// A clone through the real window.
class tst_CloneFlow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProgram(); }
    void init();
    void cleanup();

    void copiesTheDisk();
    void refuses_data();
    void refuses();
    void asksForATarget();
    void asksAnewWhenTheChoiceHasGone_data();
    void asksAnewWhenTheChoiceHasGone();
    void readsTheDisksAnewWhenOneIsAnother();
    void doubleClickAnswersOneQuestion();
    void stops();
    void goesOnBehindAnotherScreen();
    void diskThatDoesNotOpen();
    void diskPulledOutOnTheWay_data();
    void diskPulledOutOnTheWay();
    void tellsWhatWasLost();
    void startsAndStopsManyTimes();

private:
    void fill(int disk, int sectors) const;
    static SimulatedPlatform &pc() { return dynamic_cast<SimulatedPlatform &>(Platform::current()); }
    QByteArray image(int disk) const { return DescribedFolder::contents(pc().imageFile(disk)); }
    void choose(int source, int target);
    void start(int source, int target);
    void waitForEnd();
    void pullOut(int disk);
    bool shown(const char *name) const { return child<QWidget>(name)->isVisible(); }
    bool selecting() const;
    bool running() const;
    bool locked() const;
    QStringList boxTexts() const;
    template<typename Dialog>
    Dialog *dialog() const
    {
        const auto all = m_pWindow->findChildren<Dialog *>();
        for (Dialog *candidate : all)
            if (candidate->isVisible())
                return candidate;
        return nullptr;
    }
};

void tst_CloneFlow::init()
{
    g_bAbortJob = false;
    g_bCloneFailed = false;
    startPc(Described);
    makeWindow();
    waitForRead();
    press("CloneDiskButton");
}

void tst_CloneFlow::fill(int disk, int sectors) const
{
    QFile file(pc().imageFile(disk));
    const QByteArray bytes = noise(sectors, 7U + static_cast<quint32>(disk));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("an image cannot be written");
}

void tst_CloneFlow::cleanup()
{
    g_bAbortJob = true;
    QTRY_VERIFY_WITH_TIMEOUT(!g_Jobs.runs(JobState::Job::Clone), 20000);
    tearDown();
}

void tst_CloneFlow::choose(int source, int target)
{
    auto *from = child<QComboBox>("SourceComboBox");
    from->setCurrentIndex(from->findData(128 + source));
    auto *onto = child<QComboBox>("DestinationComboBox");
    const int row = onto->findData(128 + target);
    onto->setCurrentIndex(row);
    emit onto->activated(row);
}

void tst_CloneFlow::start(int source, int target)
{
    choose(source, target);
    child<QPushButton>("CloneButton")->click();
    QVERIFY(dialog<CloneWarning>());
    buttonOf(dialog<CloneWarning>(), "StartButton")->click();
    QVERIFY(!dialog<CloneWarning>());
}

void tst_CloneFlow::waitForEnd()
{
    QTRY_VERIFY_WITH_TIMEOUT(!g_Jobs.runs(JobState::Job::Clone), 20000);
    QVERIFY(!g_bJobRunning);
}

void tst_CloneFlow::pullOut(int disk)
{
    QVERIFY(pc().deviceNotifier()); // watches what is pulled out
    QFile unplugged(m_strState + QStringLiteral("/volumes-changed/remove-disk%1").arg(disk));
    QVERIFY(unplugged.open(QIODevice::WriteOnly));
    unplugged.close(); // Windows does not remove an open file
    QTRY_VERIFY(!unplugged.exists());
}

bool tst_CloneFlow::selecting() const
{
    return shown("SourceComboBox") && shown("DestinationComboBox") && shown("ModelNLbl") &&
           shown("TargetModelLbl") && !shown("ProgressLabel") && !shown("TimeLabel") &&
           !shown("TimeLabel2") && !shown("TimeSpaceLbl");
}

bool tst_CloneFlow::running() const
{
    return !shown("SourceComboBox") && !shown("DestinationComboBox") && !shown("ModelNLbl") &&
           !shown("TargetModelLbl") && shown("m_pRoundProgressBar") && shown("TimeLabel2");
}

/// Whether the buttons and menus are as during a clone.
bool tst_CloneFlow::locked() const
{
    for (const char *name : {"DiskStatusButton", "SmartStatusButton", "DiskPartitionButton", "ScanDiskButton",
                             "CloneDiskButton"})
        if (child<MyButton>(name)->isEnabled())
            return false;
    return child<MyButton>("CloneDiskButton")->isDown() && !child<QComboBox>("DriveCombobox")->isEnabled() &&
           !child<QAction>("m_pSettingsAction")->isEnabled() && shown("StopButton") != g_bAbortJob &&
           !shown("CloneButton");
}

QStringList tst_CloneFlow::boxTexts() const
{
    const auto *box = dialog<InfoDialogClass>();
    return box ? QStringList{labelOf(box, "HeaderLabel")->text(), labelOf(box, "label")->text(),
                             labelOf(box, "label_2")->text()}
               : QStringList();
}

void tst_CloneFlow::copiesTheDisk()
{
    fill(0, SourceSectors);
    fill(2, SourceSectors - 1);
    const QByteArray bystander = image(2);
    choose(0, 1);
    child<QPushButton>("CloneButton")->click();
    auto *warning = dialog<CloneWarning>();
    QVERIFY(warning);
    QCOMPARE(labelOf(warning, "SourceNameLbl")->text(),
             u8"Source disk:     \u2068" + child<QComboBox>("SourceComboBox")->currentText() + QChar(0x2069));
    QCOMPARE(labelOf(warning, "DestinationNameLbl")->text(),
             u8"Destination disk:    \u2068" + child<QComboBox>("DestinationComboBox")->currentText() +
                 QChar(0x2069));
    buttonOf(warning, "CancelButton")->click();
    QVERIFY(!warning->isVisible() && selecting());
    QCOMPARE(commands("diskpart"), 0);

    QSignalSpy progress(m_pWindow->findChild<CloneDisk *>(), &CloneDisk::OnCloneFinish);
    start(0, 1);
    QVERIFY(locked() && running());
    auto *gauge = child<QRoundProgressBar>("m_pRoundProgressBar");
    QCOMPARE(gauge->Text(), QStringLiteral("0%\nComplete"));
    QCOMPARE(text("TimeLabel"), QString());

    // None of these ends or disturbs the clone.
    m_pWindow->OnClose();
    QCOMPARE(labelOf(dialog<DestinitionWarning>(), "WarningTxtLbl")->text(),
             QStringLiteral("Cloning process running."));
    m_pWindow->Onyes();
    QCOMPARE(labelOf(dialog<DestinitionWarning>(), "WarningTxtLbl")->text(),
             QStringLiteral("Clone Running."));
    buttonOf(dialog<DestinitionWarning>(), "CloseButton")->click();
    m_pWindow->OnRefresh();
    QVERIFY(!g_bListsLoading && !shown("GifFrame"));
    m_pWindow->RefreshSelectedDisk();
    QVERIFY(!shown("CloneButton"));

    QTRY_COMPARE_WITH_TIMEOUT(gauge->Text(), QStringLiteral("59%\nComplete"), 20000);
    QCOMPARE(text("TimeLabel"), QStringLiteral("1 minutes"));
    waitForEnd();
    QCOMPARE(progress.count(), 1);
    QCOMPARE(boxTexts(), (QStringList{"Clone Disk", "Disk Cloning complete.",
                                      "Disk cloning process completed successfully."}));
    QVERIFY(running() && shown("CloneButton") && !shown("StopButton"));
    QCOMPARE(gauge->Text(), QStringLiteral("100%\nComplete"));
    QCOMPARE(text("TimeLabel"), QString());
    QVERIFY(image(1) == image(0));
    QVERIFY(image(2) == bystander);
    buttonOf(dialog<InfoDialogClass>(), "OkButton")->click();
    QVERIFY(selecting() && !dialog<InfoDialogClass>());
    QVERIFY(child<MyButton>("DiskStatusButton")->isEnabled() && child<MyButton>("CloneDiskButton")->isDown());
    QVERIFY(child<QComboBox>("DriveCombobox")->isEnabled() &&
            child<QAction>("m_pSettingsAction")->isEnabled());
}

void tst_CloneFlow::refuses_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("sourceAtTheEnd");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a sector too small") << 2 << 0 << "Destination disk size is smaller than source disk.";
    QTest::newRow("source became the target") << 1 << 1 << "Source and destination disks are same.";
}

void tst_CloneFlow::refuses()
{
    QFETCH(int, target);
    QFETCH(int, sourceAtTheEnd);
    QFETCH(QString, reason);
    choose(0, target);
    child<QPushButton>("CloneButton")->click();
    // While the question is open, another source can be chosen.
    auto *from = child<QComboBox>("SourceComboBox");
    from->setCurrentIndex(from->findData(128 + sourceAtTheEnd));
    buttonOf(dialog<CloneWarning>(), "StartButton")->click();
    QCOMPARE(boxTexts(), (QStringList{"Clone Disk", reason, "Select different destination disk."}));
    QVERIFY(!locked() && shown("SourceComboBox") && shown("CloneButton"));
    QVERIFY(child<QAction>("m_pSettingsAction")->isEnabled());
    buttonOf(dialog<InfoDialogClass>(), "OkButton")->click();
    QVERIFY(selecting());
    QCOMPARE(commands("diskpart"), 0);
}

void tst_CloneFlow::asksForATarget()
{
    child<QPushButton>("CloneButton")->click();
    QVERIFY(!dialog<CloneWarning>());
    QCOMPARE(labelOf(dialog<DestinitionWarning>(), "WarningTxtLbl")->text(),
             QStringLiteral("Select target disk."));
    buttonOf(dialog<DestinitionWarning>(), "CloseButton")->click();
    QVERIFY(!dialog<DestinitionWarning>());
    // A start without a question starts nothing either.
    m_pWindow->OnCloningStart();
    QVERIFY(!locked() && dialog<DestinitionWarning>());
    QCOMPARE(commands("diskpart"), 0);
}

void tst_CloneFlow::asksAnewWhenTheChoiceHasGone_data()
{
    QTest::addColumn<bool>("refresh");
    QTest::newRow("another source") << false;
    QTest::newRow("new lists") << true;
}

/// The chosen disks are not those of the question any more.
void tst_CloneFlow::asksAnewWhenTheChoiceHasGone()
{
    QFETCH(bool, refresh);
    choose(0, 1);
    child<QPushButton>("CloneButton")->click();
    auto *warning = dialog<CloneWarning>();
    if (refresh) {
        m_pWindow->OnRefresh();
        QVERIFY(!warning->isVisible());
        buttonOf(warning, "StartButton")->click(); // while the lists are rebuilt
        QVERIFY(!locked());
        QTRY_VERIFY_WITH_TIMEOUT(!g_bListsLoading, 10000);
    } else {
        auto *from = child<QComboBox>("SourceComboBox");
        from->setCurrentIndex(from->findData(128 + 2));
    }
    buttonOf(warning, "StartButton")->click();
    QVERIFY(!locked() && dialog<DestinitionWarning>());
    QCOMPARE(commands("diskpart"), 0);
}

/// The number of the question belongs to a disk of another size by now.
void tst_CloneFlow::readsTheDisksAnewWhenOneIsAnother()
{
    choose(0, 1);
    child<QPushButton>("CloneButton")->click();
    Platform::install(m_pFolder->open(QByteArray(Described).replace("163940", "163941")));
    buttonOf(dialog<CloneWarning>(), "StartButton")->click();
    waitForEnd();
    QCOMPARE(boxTexts(), (QStringList{"Clone Disk", "The source disk is not the one that was chosen.",
                                      "Nothing was written on any disk."}));
    QVERIFY(!g_bListsLoading);
    buttonOf(dialog<InfoDialogClass>(), "OkButton")->click();
    QVERIFY(g_bListsLoading);
    QTRY_VERIFY_WITH_TIMEOUT(!g_bListsLoading, 10000);
    QCOMPARE(commands("diskpart"), 0);
    start(0, 1);
    QVERIFY(locked());
}

void tst_CloneFlow::doubleClickAnswersOneQuestion()
{
    choose(2, 1);
    child<QPushButton>("CloneButton")->click();
    auto *warning = dialog<CloneWarning>();
    choose(2, 0);
    QTest::mouseClick(buttonOf(warning, "StartButton"), Qt::LeftButton);
    QTest::mouseClick(buttonOf(warning, "StartButton"), Qt::LeftButton);
    QVERIFY(!locked() && warning->isVisible());
    QCOMPARE(labelOf(warning, "DestinationNameLbl")->text(),
             u8"Destination disk:    \u2068" + child<QComboBox>("DestinationComboBox")->currentText() +
                 QChar(0x2069));
    QCOMPARE(commands("diskpart"), 0);
    QTRY_VERIFY(buttonOf(warning, "StartButton")->isEnabled());
    QTest::mouseClick(buttonOf(warning, "StartButton"), Qt::LeftButton);
    QVERIFY(locked());
}

void tst_CloneFlow::stops()
{
    start(0, 1);
    child<QPushButton>("StopButton")->click();
    auto *question = dialog<ConfarmetionClass>();
    QCOMPARE(labelOf(question, "CenterTitleLabel")->text(), QStringLiteral("Stop Clone"));
    buttonOf(question, "NoButton")->click();
    QVERIFY(!question->isVisible() && !g_bAbortJob);
    child<QPushButton>("StopButton")->click();
    QTRY_VERIFY_WITH_TIMEOUT(commands("diskpart") == 3, 10000); // prepared
    QTest::qWait(50);
    buttonOf(question, "YesButton")->click();
    // The clone runs until the disk is back in the system. Until then the lists do not change.
    m_pWindow->OnRefresh();
    m_pWindow->Onyes();
    QVERIFY(locked() && !g_bListsLoading);
    QVERIFY(!checkForUpdates(m_pWindow.get()));
    QCOMPARE(labelOf(dialog<DestinitionWarning>(), "WarningTxtLbl")->text(),
             QStringLiteral("Clone Running."));
    waitForEnd();
    QCOMPARE(commands("diskpart"), 5);
    QCOMPARE(boxTexts(),
             (QStringList{"Clone Disk", "Cloning aborted.", "Cloning process aborted by the user."}));
    buttonOf(dialog<InfoDialogClass>(), "OkButton")->click();
    QVERIFY(selecting() && !shown("StopButton") && shown("CloneButton"));
}

void tst_CloneFlow::goesOnBehindAnotherScreen()
{
    fill(0, SourceSectors);
    start(0, 1);
    const auto leaveFor = [this](const char *button) {
        press(button);
        QVERIFY(dialog<ScanSwitchClass>());
        buttonOf(dialog<ScanSwitchClass>(), "YesButton")->click();
    };
    press("DiskStatusButton");
    const auto *page = m_pWindow->findChild<CloneDisk *>();
    QVERIFY(dialog<ScanSwitchClass>());
    buttonOf(dialog<ScanSwitchClass>(), "NoButton")->click();
    QVERIFY(locked() && running() && !dialog<ScanSwitchClass>());

    // Scan Disk starts no scan, and does not show the clone as one.
    leaveFor("ScanDiskButton");
    QVERIFY(!page->isVisible() && !shown("StopButton"));
    QVERIFY(!child<QPushButton>("ScanButton")->isEnabled() &&
            !child<QComboBox>("DriveCombobox")->isEnabled());
    m_pWindow->OnScanStart();
    QVERIFY(!shown("StopButton"));
    m_pWindow->OnClose();
    QCOMPARE(labelOf(dialog<DestinitionWarning>(), "WarningTxtLbl")->text(),
             QStringLiteral("Cloning process running."));

    leaveFor("CloneDiskButton");
    QVERIFY(locked() && running());
    leaveFor("ScanDiskButton");
    waitForEnd();
    QVERIFY(image(1) == image(0));
    QVERIFY(!page->isVisible() && !shown("CloneButton") && child<QPushButton>("ScanButton")->isEnabled());
    buttonOf(dialog<InfoDialogClass>(), "OkButton")->click();
    QVERIFY(child<MyButton>("ScanDiskButton")->isDown() && child<QComboBox>("DriveCombobox")->isEnabled());
    press("CloneDiskButton");
    QVERIFY(!dialog<ScanSwitchClass>() && shown("CloneButton") && shown("SourceComboBox"));
}

void tst_CloneFlow::diskThatDoesNotOpen()
{
    QSignalSpy failed(m_pWindow->findChild<CloneDisk *>(), &CloneDisk::CloningProcesFailed);
    choose(0, 1);
    pullOut(1);
    start(0, 1);
    waitForEnd();
    QCOMPARE(failed.count(), 1);
    QCOMPARE(boxTexts(), (QStringList{"Clone Disk", "The destination disk cannot be opened.",
                                      "Nothing was written on any disk."}));
    QVERIFY(child<QComboBox>("DriveCombobox")->isEnabled());
    QCOMPARE(commands("diskpart"), 0);
    buttonOf(dialog<InfoDialogClass>(), "OkButton")->click();
    QTRY_VERIFY_WITH_TIMEOUT(!g_bListsLoading && !shown("GifFrame"), 10000);
    QCOMPARE(child<QComboBox>("DestinationComboBox")->findData(128 + 1), -1);
}

void tst_CloneFlow::diskPulledOutOnTheWay_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<QString>("text");
    QTest::newRow("source") << 3 << "The source disk does not answer any more.";
    QTest::newRow("destination") << 0 << "The destination disk does not answer any more.";
}

void tst_CloneFlow::diskPulledOutOnTheWay()
{
    QFETCH(int, source);
    QFETCH(QString, text);
    start(source, 3 - source);
    // In the middle of the copy. At its begin the disk would not open, which is another fault.
    QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->findChild<QRoundProgressBar *>()->Value() > 0, 10000);
    pullOut(3);
    waitForEnd();
    QCOMPARE(boxTexts(),
             (QStringList{"Cloning Failed", text, "The destination disk holds no complete copy."}));
}

void tst_CloneFlow::tellsWhatWasLost()
{
    fill(3, SourceSectors);
    start(3, 1);
    waitForEnd();
    QCOMPARE(boxTexts(),
             (QStringList{
                 "Clone Disk", "Disk Cloning complete with errors.",
                 "2 sectors could not be read and were filled with zeros. 0 sectors could not be written."}));
    QCOMPARE(child<QRoundProgressBar>("m_pRoundProgressBar")->Text(), QStringLiteral("100%\nComplete"));
    auto *box = dialog<InfoDialogClass>();
    QVERIFY(buttonOf(box, "SaveButton")->isVisible());
    QTimer::singleShot(0, box, [this] {
        auto *save = m_pWindow->findChild<QFileDialog *>();
        QVERIFY(save);
        save->selectFile(m_pFolder->path() + QStringLiteral("/lost.map"));
        QMetaObject::invokeMethod(save, "accept");
    });
    buttonOf(box, "SaveButton")->click();
    QVERIFY(DescribedFolder::contents(m_pFolder->path() + QStringLiteral("/lost.map"))
                .contains("\n0x00000A00  0x00000200  -\n"));
    buttonOf(box, "OkButton")->click();
    m_pWindow->findChild<CloneDisk *>()->ShowMessage({"a", "b", "c"});
    QVERIFY(!buttonOf(box, "SaveButton")->isVisible());
}

void tst_CloneFlow::startsAndStopsManyTimes()
{
    bool enough = false;
    const int rounds = qEnvironmentVariableIntValue("HALVANE_CLONE_ROUNDS", &enough);
    for (int round = 0; round < (enough ? rounds : 3); ++round) {
        start(0, 1);
        QVERIFY(locked());
        QTest::qWait(round * 7 % 60);
        m_pWindow->OnStop();
        m_pWindow->OnStopConfirm();
        m_pWindow->OnRefresh();
        waitForEnd();
        QCOMPARE(boxTexts().at(1), QStringLiteral("Cloning aborted."));
        buttonOf(dialog<InfoDialogClass>(), "OkButton")->click();
        QVERIFY(selecting());
        m_pWindow->OnRefresh();
        QTRY_VERIFY_WITH_TIMEOUT(!g_bListsLoading && !shown("GifFrame"), 10000);
    }
}

QTEST_MAIN(tst_CloneFlow)
#include "tst_CloneFlow.moc"
