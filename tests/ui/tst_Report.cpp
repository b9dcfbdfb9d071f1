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
    void init()
    {
        g_strLastTestType.clear();
        g_strLastTestResult.clear();
        g_strGraphTitle.clear();
        addReport("ata.txt", sample("ata-seagate-st31500341as.txt")
                                 .replace("Device Model:     ST31500341AS", "Device Model:     ST/500 AS"));
        addReport("nvme.txt", sample("nvme-win-samsung-970evo-1tb.txt"));
        addReport("log.txt", "# 1  Extended offline    Completed: read failure   90%   1587   8\n\n");
        openWindow(pcOf(R"(
            {"number": 0, "model": "A", "sectors": 2097152, "report": "ata.txt", "selfTestLog": "log.txt"},
            {"number": 1, "model": "B", "sectors": 2097152, "report": "nvme.txt", "selfTestLog": "log.txt"},
            {"number": 2, "model": "C", "sectors": 2097152})"));
        press("SmartStatusButton");
        waitForRest();
    }
    void cleanup() { tearDown(); }

    void report_data()
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
    }

    void report()
    {
        QFETCH(int, disk);
        select(disk);
        // The path is not changed.
        const QString path = newFile("report of today");
        const Asked asked = ask("ReportSaveButton", path);
        QVERIFY(asked.ofWindow);
        QCOMPARE(asked.title, QStringLiteral("Save File"));
        QCOMPARE(asked.filters, QStringList(QStringLiteral("*.pdf")));
        QTEST(asked.name, "name");
        QVERIFY(contentOf(path).startsWith("%PDF"));
        QTEST(commands(" -l selftest "), "logsRead");
        QTEST(g_strLastTestResult, "lastTest");
        QTEST(g_strHealthText, "health");
        QCOMPARE(logLines("opened.log"),
                 QList<QByteArray>{"url\t" + QUrl::fromLocalFile(path).toEncoded() + '\t'});
    }

    void reportThatCannotBeWritten()
    {
        // A path below a file cannot be written, not even by an administrator.
        QVERIFY(writeFile(newFile("blocker"), QByteArray()));
        const QString path = newFile("blocker/report.pdf");
        QVERIFY(ask("ReportSaveButton", path).came);
        QVERIFY(!QFile::exists(path));
        QVERIFY(nothingOpened() && !QApplication::activeModalWidget());
    }

    void screenshot()
    {
        g_strGraphTitle = QStringLiteral("Reads/Writes");
        const QString path = newFile("page.jpg");
        const Asked asked = ask("ScreenshotButton", path);
        QVERIFY(!asked.ofWindow);
        QCOMPARE(asked.title, QStringLiteral("Save File"));
        QCOMPARE(asked.name, QStringLiteral("Reads-Writes"));
        QCOMPARE(asked.filters, QStringList(QStringLiteral("JPEG (*.jpg);")));
        QVERIFY(contentOf(path).startsWith("\xff\xd8"));
        const auto *page = child<SmartStatus>();
        const QImage picture(path);
        QCOMPARE(picture.size(), page->size());
        // The picture has the page's texts, on white.
        QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() - 3), QColor(Qt::white));
        const auto *result = child<QLabel>("SmartResultLabel");
        const QRect place(result->mapTo(page, QPoint()), result->size());
        bool green = false;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                green = green || pixel.green() > pixel.red() + 80;
            }
        }
        QVERIFY(green);
    }

    void offeredNameGetsItsEnding()
    {
        const QString offered = newFile("Velmora Smart Report ST-500 AS");
        ask("ReportSaveButton", offered);
        QVERIFY(contentOf(offered + QStringLiteral(".pdf")).startsWith("%PDF"));
        QVERIFY(!QFile::exists(offered));
        g_strGraphTitle = QStringLiteral("Page");
        ask("ScreenshotButton", newFile("Page"));
        QVERIFY(contentOf(newFile("Page.jpg")).startsWith("\xff\xd8"));
    }

    void cancelled()
    {
        QVERIFY(ask("ReportSaveButton", QString()).came);
        QVERIFY(ask("ScreenshotButton", QString()).came);
        QVERIFY(nothingOpened());
        QCOMPARE(commands(" -l selftest "), 0);
    }

    void nothingToSave()
    {
        QVERIFY(enabled("ReportSaveButton") && enabled("ScreenshotButton"));
        press("SmartStatusButton"); // the disk is read once more
        QVERIFY(!enabled("ReportSaveButton") && !enabled("ScreenshotButton"));
        m_pWindow->SavePDFReport();
        waitForRest();
        QVERIFY(enabled("ReportSaveButton") && enabled("ScreenshotButton"));
        select(2); // a disk without SMART
        QVERIFY(!enabled("ReportSaveButton") && !enabled("ScreenshotButton"));
        m_pWindow->SavePDFReport();
        m_pWindow->TakeScreenshot();
        QVERIFY(nothingOpened() && !QApplication::activeModalWidget());
    }

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
    Asked ask(const char *button, const QString &path) const
    {
        Asked asked;
        QTimer answer;
        connect(&answer, &QTimer::timeout, this, [&] {
            auto *question = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!question)
                return;
            auto *name = question->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            if (!asked.came)
                asked = {true, question->windowTitle(), name->text(), question->nameFilters(),
                         question->parentWidget() == m_pWindow.get()};
            if (path.isEmpty()) {
                question->reject();
                return;
            }
            name->setText(path);
            question->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
        });
        answer.start(20);
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
        return asked;
    }

    QString newFile(const char *name) const { return m_strState + QLatin1Char('/') + QLatin1String(name); }
    bool nothingOpened() const { return !QFile::exists(newFile("opened.log")); }
};

QTEST_MAIN(tst_Report)
#include "tst_Report.moc"
