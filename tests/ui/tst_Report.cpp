// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/DiskFigures.h"
#include "smart/SmartGlobals.h"
#include "tests/ui/WindowFixture.h"
#include "ui/screens/SmartStatus.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>

/// The two buttons of SMART Status: their dialogs, their files, and when they do nothing.
class tst_Report : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProgram(); }
    void init();
    void cleanup();

    void report_data();
    void report();
    void reportThatCannotBeWritten();
    void screenshot();
    void offeredNameGetsItsEnding();
    void cancelled();
    void nothingToSave();

private:
    /// What the file dialog asked, and whether one came up at all.
    struct Asked {
        bool came = false;
        QString title;
        QString name;
        QStringList filters;
        bool ofWindow = false;
    };
    /// Clicks the button and answers its dialog with `path`; an empty one cancels.
    Asked click(const char *button, const QString &path);
    QString newFile(const char *name) const { return m_strState + QLatin1Char('/') + QLatin1String(name); }
    bool nothingOpened() const { return !QFile::exists(m_strState + QLatin1String("/opened.log")); }
};

void tst_Report::init()
{
    g_strLastTestType.clear();
    g_strLastTestResult.clear();
    g_strGraphTitle.clear();
    QByteArray ata = sample("ata-seagate-st31500341as.txt");
    ata.replace("Device Model:     ST31500341AS", "Device Model:     ST/500 AS");
    addReport("ata.txt", ata);
    addReport("nvme.txt", sample("nvme-win-samsung-970evo-1tb.txt"));
    addReport("failed.txt", sample("ata-seagate-st31500341as-failed.txt"));
    addReport("log.txt", "# 1  Extended offline    Completed: read failure   90%   1587   8\n\n");
    startPc(R"({"pauses": false, "settings": {"TempValue": "C", "FirstTimeLaunch": 1}, "disks": [
        {"number": 0, "model": "A ATA Device", "interface": "IDE", "sectors": 2097152,
         "report": "ata.txt", "selfTestLog": "log.txt"},
        {"number": 1, "model": "B Device", "interface": "SCSI", "sectors": 2097152,
         "report": "nvme.txt", "selfTestLog": "log.txt"},
        {"number": 2, "model": "C Device", "interface": "SCSI", "sectors": 2097152},
        {"number": 3, "model": "D ATA Device", "interface": "IDE", "sectors": 2097152,
         "report": "failed.txt"}]})");
    makeWindow();
    waitForRead();
    press("SmartStatusButton");
    waitForRead();
}

void tst_Report::cleanup()
{
    tearDown();
}

tst_Report::Asked tst_Report::click(const char *button, const QString &path)
{
    Asked asked;
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [this, &asked, &path] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (!asked.came)
            asked = {true, dialog->windowTitle(), name->text(), dialog->nameFilters(),
                     dialog->parentWidget() == m_pWindow.get()};
        if (path.isEmpty()) {
            dialog->reject();
            return;
        }
        name->setText(path);
        dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });
    answer.start(20);
    QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
    return asked;
}

void tst_Report::report_data()
{
    QTest::addColumn<int>("disk");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("logsRead");
    QTest::addColumn<QString>("lastTest");
    QTest::addColumn<QString>("health");
    QTest::newRow("ATA") << 0 << "Velmora Smart Report ST-500 AS" << 1 << "Failed by Read Element"
                         << "71%";
    QTest::newRow("NVMe") << 1 << "Velmora Smart Report Samsung SSD 970 EVO 1TB" << 0 << ""
                          << "100%";
    QTest::newRow("failing") << 3 << "Velmora Smart Report ST31500341AS" << 1 << ""
                             << "30%";
}

void tst_Report::report()
{
    QFETCH(int, disk);
    select(disk);
    // The path is not changed.
    const QString path = newFile("report of today");
    const Asked asked = click("ReportSaveButton", path);
    QVERIFY(asked.ofWindow);
    QCOMPARE(asked.title, QStringLiteral("Save File"));
    QCOMPARE(asked.filters, QStringList(QStringLiteral("*.pdf")));
    QTEST(asked.name, "name");
    QVERIFY(DescribedFolder::contents(path).startsWith("%PDF"));
    QTEST(commands(" -l selftest "), "logsRead");
    QTEST(g_strLastTestResult, "lastTest");
    QTEST(g_strHealthText, "health");
    QCOMPARE(logLines("opened.log"),
             QList<QByteArray>{"url\t" + QUrl::fromLocalFile(path).toEncoded() + '\t'});
}

void tst_Report::reportThatCannotBeWritten()
{
    // A path below a file cannot be written, not even by an administrator.
    const QString blocker = newFile("blocker");
    QFile file(blocker);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const QString path = blocker + QStringLiteral("/report.pdf");
    QVERIFY(click("ReportSaveButton", path).came);
    QVERIFY(!QFile::exists(path));
    QVERIFY(nothingOpened());
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_Report::screenshot()
{
    g_strGraphTitle = QStringLiteral("Reads/Writes");
    const QString path = newFile("page.jpg");
    const Asked asked = click("ScreenshotButton", path);
    QVERIFY(!asked.ofWindow);
    QCOMPARE(asked.title, QStringLiteral("Save File"));
    QCOMPARE(asked.name, QStringLiteral("Reads-Writes"));
    QCOMPARE(asked.filters, QStringList(QStringLiteral("JPEG (*.jpg);")));
    QVERIFY(DescribedFolder::contents(path).startsWith("\xff\xd8"));
    const QImage picture(path);
    QCOMPARE(picture.size(), m_pWindow->findChild<SmartStatus *>()->size());
    // The picture has the page's texts, on white.
    QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() - 3), QColor(Qt::white));
    const QLabel *result = child<QLabel>("SmartResultLabel");
    const QImage part =
        picture.copy(QRect(result->mapTo(m_pWindow->findChild<SmartStatus *>(), QPoint()), result->size()));
    bool green = false;
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x) {
            const QColor pixel = part.pixelColor(x, y);
            green = green || pixel.green() > pixel.red() + 80;
        }
    }
    QVERIFY(green);
}

void tst_Report::offeredNameGetsItsEnding()
{
    const QString offered = newFile("Velmora Smart Report ST-500 AS");
    click("ReportSaveButton", offered);
    QVERIFY(DescribedFolder::contents(offered + QStringLiteral(".pdf")).startsWith("%PDF"));
    QVERIFY(!QFile::exists(offered));
    g_strGraphTitle = QStringLiteral("Page");
    click("ScreenshotButton", newFile("Page"));
    QVERIFY(DescribedFolder::contents(newFile("Page.jpg")).startsWith("\xff\xd8"));
}

void tst_Report::cancelled()
{
    QVERIFY(click("ReportSaveButton", QString()).came);
    QVERIFY(click("ScreenshotButton", QString()).came);
    QVERIFY(nothingOpened());
    QCOMPARE(commands(" -l selftest "), 0);
}

void tst_Report::nothingToSave()
{
    const auto enabled = [this] {
        return child<QPushButton>("ReportSaveButton")->isEnabled() ||
               child<QPushButton>("ScreenshotButton")->isEnabled();
    };
    QVERIFY(enabled());
    press("SmartStatusButton"); // the disk is read once more
    QVERIFY(!enabled());
    m_pWindow->SavePDFReport();
    waitForRead();
    QVERIFY(enabled());
    select(2); // a disk without SMART
    QVERIFY(!enabled());
    m_pWindow->SavePDFReport();
    m_pWindow->TakeScreenshot();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(nothingOpened());
}

QTEST_MAIN(tst_Report)
#include "tst_Report.moc"
