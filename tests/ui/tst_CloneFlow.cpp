// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/ThreadDriveClone.h"
#include "tests/ui/WindowFixture.h"
#include "ui/screens/CloneDisk.h"
#include "ui/widgets/QRoundProgressBar.h"

/// A clone through the real window.
class tst_CloneFlow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        g_bAbortJob = false;
        g_bCloneFailed = false;
        m_sections = sectionsOf(QStringLiteral("Clone.txt"));
        openPc(QStringLiteral("four"));
        press("CloneDiskButton");
    }

    void cleanup()
    {
        g_bAbortJob = true;
        QTRY_VERIFY_WITH_TIMEOUT(!g_Jobs.runs(JobState::Job::Clone), 20000);
        tearDown();
    }

    void copiesTheDisk()
    {
        fill(0, SourceSectors);
        fill(2, SourceSectors - 1);
        const QByteArray bystander = image(2);
        const CloneWarning *warning = ask(0, 1);
        QCOMPARE(labelOf(warning, "SourceNameLbl")->text(), named("Source disk:     ", "SourceComboBox"));
        QCOMPARE(labelOf(warning, "DestinationNameLbl")->text(),
                 named("Destination disk:    ", "DestinationComboBox"));
        answer<CloneWarning>("CancelButton");
        QVERIFY(!warning->isVisible() && selecting());
        QCOMPARE(commands("diskpart"), 0);

        QSignalSpy ended(page(), &CloneDisk::OnCloneFinish);
        start(0, 1);
        QVERIFY(locked() && running() && !shown("TimeLabel2"));
        auto *gauge = child<QRoundProgressBar>("m_pRoundProgressBar");

        // None of these ends or disturbs the clone.
        m_pWindow->OnClose();
        QCOMPARE(refusal(), QStringLiteral("Cloning process running."));
        m_pWindow->Onyes();
        QCOMPARE(refusal(), QStringLiteral("Clone Running."));
        answer<DestinitionWarning>("CloseButton");
        m_pWindow->OnRefresh();
        QVERIFY(!g_bListsLoading && !shown("GifFrame"));
        m_pWindow->RefreshSelectedDisk();
        QVERIFY(!shown("CloneButton"));

        QTRY_COMPARE_WITH_TIMEOUT(gauge->Text(), QStringLiteral("59%\nComplete"), 20000);
        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("59 % - Velmora Halvane"));
        const InFront none(nullptr);
        QVERIFY(areShown(true, {"TimeLabel", "TimeLabel2"}));
        QCOMPARE(text("TimeLabel"), QStringLiteral("1 minutes"));
        waitForEnd();
        QCOMPARE(ended.count(), 1);
        QCOMPARE(logLines("notices.log"), QList<QByteArray>{"Disk Cloning complete.\tDisk cloning process "
                                                            "completed successfully."});
        QCOMPARE(outcome(), QStringLiteral("Clone Disk|Disk Cloning complete.|"
                                           "Disk cloning process completed successfully."));
        QVERIFY(running() && shown("CloneButton") && !shown("StopButton"));
        QCOMPARE(gauge->Text(), QStringLiteral("100%\nComplete"));
        QVERIFY(areShown(false, {"TimeLabel", "TimeLabel2"}));
        QVERIFY(image(1) == image(0));
        QVERIFY(image(2) == bystander);
        answer<InfoDialogClass>("OkButton");
        QVERIFY(selecting() && !dialog<InfoDialogClass>() && shellIs(true) && isDown("CloneDiskButton"));
    }

    /// Nothing is erased.
    void refuses()
    {
        click("CloneButton");
        QVERIFY(!dialog<CloneWarning>());
        QCOMPARE(refusal(), QStringLiteral("Select target disk."));
        answer<DestinitionWarning>("CloseButton");
        QVERIFY(!dialog<DestinitionWarning>());
        // A start without a question starts nothing either.
        m_pWindow->OnCloningStart();
        QVERIFY(shellIs(true) && dialog<DestinitionWarning>());
        answer<DestinitionWarning>("CloseButton");

        const auto askReadily = [this](int target) {
            const CloneWarning *question = ask(0, target);
            // For the time of a double click it takes no answer.
            QTRY_VERIFY(buttonOf(question, "StartButton")->isEnabled());
        };
        const std::tuple<int, int, QString> rows[] = {
            {2, 0, "Destination disk size is smaller than source disk."}, // by a sector
            {1, 1, "Source and destination disks are same."}};
        for (const auto &[target, sourceAtTheEnd, reason] : rows) {
            askReadily(target);
            // While the question is open, another source can be chosen.
            chooseSource(sourceAtTheEnd);
            answer<CloneWarning>("StartButton");
            QCOMPARE(outcome(), "Clone Disk|" + reason + "|Select different destination disk.");
            QVERIFY(shellIs(true) && shown("SourceComboBox") && shown("CloneButton"));
            answer<InfoDialogClass>("OkButton");
            QVERIFY(selecting());
        }

        // The chosen disks are not those of the question any more: another source, or new lists.
        for (const bool refresh : {false, true}) {
            askReadily(1);
            const auto *warning = dialog<CloneWarning>();
            if (refresh) {
                m_pWindow->OnRefresh();
                QVERIFY(!warning->isVisible());
                buttonOf(warning, "StartButton")->click(); // while the lists are rebuilt
                QVERIFY(!dialog<DestinitionWarning>() && !running());
                waitForRest();
            } else {
                chooseSource(2);
            }
            buttonOf(warning, "StartButton")->click();
            QVERIFY(shellIs(true) && dialog<DestinitionWarning>());
            answer<DestinitionWarning>("CloseButton");
        }
        QCOMPARE(commands("diskpart"), 0);
    }

    /// The number of the question belongs to a disk of another size by now.
    void readsTheDisksAnewWhenOneIsAnother()
    {
        ask(0, 1);
        const QByteArray pc = contentOf(m_pFolder->path() + "/pc.json").replace("163940", "163941");
        Platform::install(m_pFolder->open(pc));
        answer<CloneWarning>("StartButton");
        waitForEnd();
        QCOMPARE(outcome(), QStringLiteral("Clone Disk|The source disk is not the one that was chosen.|"
                                           "Nothing was written on any disk."));
        QVERIFY(!g_bListsLoading);
        answer<InfoDialogClass>("OkButton");
        QVERIFY(g_bListsLoading);
        waitForRest();
        QCOMPARE(commands("diskpart"), 0);
        start(0, 1);
        QVERIFY(locked());
    }

    void doubleClickAnswersOneQuestion()
    {
        const CloneWarning *warning = ask(2, 1);
        choosePair(2, 0);
        QPushButton *startButton = buttonOf(warning, "StartButton");
        QTest::mouseClick(startButton, Qt::LeftButton);
        QTest::mouseClick(startButton, Qt::LeftButton);
        QVERIFY(shellIs(true) && warning->isVisible());
        QCOMPARE(labelOf(warning, "DestinationNameLbl")->text(),
                 named("Destination disk:    ", "DestinationComboBox"));
        QCOMPARE(commands("diskpart"), 0);
        QTRY_VERIFY(startButton->isEnabled());
        QTest::mouseClick(startButton, Qt::LeftButton);
        QVERIFY(locked());
    }

    void goesOnBehindAnotherScreen()
    {
        fill(0, SourceSectors);
        start(0, 1);
        press("DiskStatusButton");
        answer<ScanSwitchClass>("NoButton");
        QVERIFY(locked() && running() && !dialog<ScanSwitchClass>());

        // Scan Disk starts no scan, and does not show the clone as one.
        leaveFor("ScanDiskButton");
        QVERIFY(!page()->isVisible() && !shown("StopButton"));
        QVERIFY(!enabled("ScanButton") && !enabled("DriveCombobox"));
        m_pWindow->OnScanStart();
        QVERIFY(!shown("StopButton"));
        m_pWindow->OnClose();
        QCOMPARE(refusal(), QStringLiteral("Cloning process running."));

        leaveFor("CloneDiskButton");
        QVERIFY(locked() && running());
        leaveFor("ScanDiskButton");
        waitForEnd();
        QVERIFY(image(1) == image(0));
        QVERIFY(!page()->isVisible() && !shown("CloneButton") && enabled("ScanButton"));
        answer<InfoDialogClass>("OkButton");
        QVERIFY(isDown("ScanDiskButton") && enabled("DriveCombobox"));
        press("CloneDiskButton");
        QVERIFY(!dialog<ScanSwitchClass>() && shown("CloneButton") && shown("SourceComboBox"));
    }

private:
    static constexpr int SourceSectors = 5 * 32768 + 100;

    static QString imageFile(int disk)
    {
        return dynamic_cast<SimulatedPlatform &>(Platform::current()).imageFile(disk);
    }
    static QByteArray image(int disk) { return contentOf(imageFile(disk)); }

    static void fill(int disk, int sectors)
    {
        QVERIFY(writeFile(imageFile(disk), noise(sectors, quint32(disk))));
    }

    CloneDisk *page() const { return child<CloneDisk>(); }
    QString named(const char *caption, const char *combo) const
    {
        return QLatin1String(caption) + QChar(0x2068) + child<QComboBox>(combo)->currentText() +
               QChar(0x2069);
    }

    void chooseSource(int disk) const
    {
        auto *from = child<QComboBox>("SourceComboBox");
        from->setCurrentIndex(from->findData(128 + disk));
    }

    void choosePair(int source, int target) const
    {
        chooseSource(source);
        const QString onto = QStringLiteral("DestinationComboBox");
        choose(m_pWindow->findChild<QComboBox *>(onto)->findData(128 + target), onto);
    }

    /// The question about a clone of this disk onto that one.
    const CloneWarning *ask(int source, int target) const
    {
        choosePair(source, target);
        click("CloneButton");
        return dialog<CloneWarning>();
    }

    void start(int source, int target) const
    {
        QVERIFY(ask(source, target));
        answer<CloneWarning>("StartButton");
        QVERIFY(!dialog<CloneWarning>());
    }

    void leaveFor(const char *button) const
    {
        press(button);
        QVERIFY(dialog<ScanSwitchClass>());
        answer<ScanSwitchClass>("YesButton");
    }

    static void waitForEnd()
    {
        QTRY_VERIFY_WITH_TIMEOUT(!g_Jobs.runs(JobState::Job::Clone), 20000);
        QVERIFY(!g_bJobRunning);
    }

    bool selecting(bool expected = true) const
    {
        return areShown(expected, {"SourceComboBox", "DestinationComboBox", "ModelNLbl", "TargetModelLbl"}) &&
               areShown(!expected, {"ProgressLabel", "m_pRoundProgressBar"});
    }
    bool running() const { return selecting(false); }

    /// Whether the buttons and menus are as during a clone.
    bool locked() const
    {
        return shellIs(false) && isDown("CloneDiskButton") && shown("StopButton") != g_bAbortJob &&
               !shown("CloneButton");
    }
};

QTEST_MAIN(tst_CloneFlow)
#include "tst_CloneFlow.moc"
