// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/ReportPage.h"

#include "reports/SmartReport.h"
#include "smart/Temperature.h"
#include "tests/reports/PageRecorder.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

#include <QProcess>
#include <QStandardPaths>

namespace
{

/// A report with this many rows; each text names the field that it is from.
SmartReport made(bool nvme, int rows = 1)
{
    SmartReport report;
    report.nvme = nvme;
    report.performance = report.health = 100;
    report.performanceText = QStringLiteral("100%");
    report.smartStatus = QStringLiteral("Passed");
    for (int i = 0; i < rows; ++i)
        report.rows.push_back({{QString::number(i)}, {QStringLiteral("row %1").arg(i)}, {"cell"}});
    return report;
}

} // namespace

/// The places of texts and pictures on the printed page, and the text of a real PDF file.
class tst_ReportPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Q_INIT_RESOURCE(images);
        QFont::insertSubstitution(QStringLiteral("Segoe UI"), QStringLiteral("Open Sans"));
    }

    void init()
    {
        FakePlatform::install();
        samples::forget();
        g_App.m_fScale = 1.0F;
        g_App.m_bKorvaneBrand = false;
        g_strLastTestType.clear();
        g_strLastTestResult.clear();
    }

    /// All of a page, against tests/data/reports.
    void pages()
    {
        for (const char *sample : {"ata-seagate-st31500341as", "nvme-win-samsung-970evo-1tb"}) {
            take(sample);
            g_App.m_bKorvaneBrand = g_App.m_bNVMe;
            g_strLastTestType = QStringLiteral("Short Self-test");
            g_strLastTestResult = QStringLiteral("Aborted by User");
            PageRecorder page;
            paint(page, gatherSmartReport());
            page.marks.removeDuplicates(); // each row paints the frame again
            QStringList lines{page.marks};
            for (auto line = page.pages[0].cbegin(); line != page.pages[0].cend(); ++line)
                lines << QString::number(line.key()) + '\t' + line.value();
            const QString file = QStringLiteral(HALVANE_TEST_DATA "/reports/%1.tsv").arg(sample);
            // A tool's text is of the locale; this is how it reads what stands between groups of digits.
            const QString separator = QString::fromLocal8Bit("\xEF\xBF\xBD");
            const QString expected = QString::fromUtf8(contentOf(file)).replace(QChar(0xFFFD), separator);
            QCOMPARE(lines, QStringList(expected.split('\n', Qt::SkipEmptyParts).mid(1)));
        }
    }

    /// At exactly 40 nothing is drawn.
    void ratings()
    {
        for (const bool nvme : {false, true}) {
            compareRows({"41 -> rated green|Good green", "40 -> |",
                         nvme ? "39 -> rated red|Bad red, to the left" : "39 -> rated red|Bad red"},
                        [nvme](const QString &percent) {
                            SmartReport report = made(nvme);
                            report.performance = report.health = percent.toInt();
                            report.performanceText = QStringLiteral("rated");
                            PageRecorder page;
                            paint(page, report);
                            const auto value = [&page](int y) { return page.pages[0][y].section('\t', 1); };
                            const QString health = value(nvme ? 3800 : 4400);
                            return value(nvme ? 3600 : 4200).section(':', 1) + '|' + health.section(':', 1) +
                                   (health.startsWith("4000:") ? ", to the left" : "");
                        });
        }
    }

    void whatIsNotKnown()
    {
        SmartReport report = made(false);
        report.ata.ShortPollTime.assign(QStringLiteral("2 minutes"));
        report.healthKnown = false;
        PageRecorder page;
        paint(page, report);
        compareRows({"4400 -> 0:Health:\t3100:Not Available",
                     "5200 -> 0:Short Self-test:\t3100:Supported green",
                     "5400 -> 0:Estimated Completion Time:\t3100:2 minutes",
                     "5600 -> 0:Extended Self-test:\t3100:Not Supported red",
                     "5800 -> 0:Estimated Completion Time:\t3100:NA",
                     "6000 -> 0:Last Run Self-test:\t3100:Not Available"},
                    [&page](const QString &top) { return page.pages[0][top.toInt()]; });
    }

    void ataRows()
    {
        // Number, name, raw value and value; the worst is 77 and the threshold 6.
        compareRows({"1 Raw_Read_Error_Rate=7@5 -> 1|Raw Read Error Rate|Failed|5 red|77 red|6 red|7",
                     "1 Raw_Read_Error_Rate=7@6 -> 1|Raw Read Error Rate|OK|6|77|6|7",
                     "197 Current_Pending_Sector=1@9 -> 197|Current Pending Sector Count|OK|9|77|6|1 red",
                     "197 Current_Pending_Sector=0@9 -> 197|Current Pending Sector Count|OK|9|77|6|0",
                     "5 REALLOCATED_SECTOR_CT=4095@9 -> 5|Reallocated Sector Count|OK|9|77|6|4095 red",
                     "5 Reallocated_Sector_Count=1@9 -> 5|Reallocated Sector Count|OK|9|77|6|1 red",
                     "198 Offline_Uncorrectable=9@9 -> 198|Offline Uncorrectable|OK|9|77|6|9"},
                    [](const QString &row) {
                        g_smartTable.rows = samples::ataList(row.section(' ', 1));
                        SmartAttributeRecord &record = *g_pSmartAttributeHead;
                        record.Id = row.section(' ', 0, 0).toUInt();
                        record.Worst = 77;
                        record.Threshold = 6;
                        PageRecorder page;
                        paint(page, gatherSmartReport());
                        QStringList cells;
                        for (const QString &cell : page.pages[0][7250].split('\t'))
                            cells << cell.section(':', 1);
                        return cells.join('|');
                    });
    }

    void statusOfTheDrive()
    {
        g_smartTable.rows.append();
        const auto status = [](const char *support) {
            g_smartTable.drive.SmartSupport.assign(support);
            PageRecorder page;
            paint(page, gatherSmartReport());
            return page.pages[0][3800].section(':', -1);
        };
        QCOMPARE(status("Disabled"), QStringLiteral("Disabled green"));
        QCOMPARE(status("Enabled, in part"), QStringLiteral("Passed green"));
        g_driveVerdict = DriveVerdict::Failed;
        QCOMPARE(status("Enabled"), QStringLiteral("Failed red"));
    }

    void rowsGoOnToAnotherPage()
    {
        for (const bool nvme : {false, true}) {
            const int fitting = nvme ? 33 : 23;
            PageRecorder page;
            paint(page, made(nvme, 80));
            QCOMPARE(page.pages.size(), 3);
            const auto rowAt = [&page](int number, int y) {
                return page.pages[number][y].section('\t', 1, 1).section(':', 1);
            };
            QCOMPARE(rowAt(0, nvme ? 12850 : 12750), QStringLiteral("row %1").arg(fitting - 1));
            QCOMPARE(rowAt(1, 2050), QStringLiteral("row %1").arg(fitting));
            QCOMPARE(rowAt(2, 2050), QStringLiteral("row %1").arg(fitting + 44));
            // Head, foot and the header of the table are on each page, the fields on the first one.
            QCOMPARE(page.pages[2].size(), 80 - fitting - 44 + 4);
            QCOMPARE(page.pages[2][1500], page.pages[0][nvme ? 4300 : 6700]);
            QCOMPARE(page.pages[2][1800], page.pages[0][nvme ? 4600 : 7000]);
            QCOMPARE(page.pages[2][13560], QString("1700:Velmora Halvane is a product of Velmora."));
            const auto count = [&page](const char *kind) { return page.marks.filter(kind).size(); };
            QCOMPARE(count("title"), 6);
            QCOMPARE(count("rule"), 160);
            QCOMPARE(count("picture"), 80 + 2 * 3);
        }
    }

    /// Taller letters of another font do not lower their line, and no text covers the one beside it.
    void linesOfOneHeight()
    {
        SmartReport report = made(false);
        report.ata.DeviceModel.assign(QString(200, QLatin1Char('W')));
        report.ata.SerialNumber.assign(QStringLiteral("\u78C1\u76D8 \u0921\u093F\u0938\u094D\u0915"));
        PageRecorder page;
        paint(page, report);
        QVERIFY(page.pages[0][2000].endsWith(QChar(0x2026)));
        QVERIFY(page.pages[0][2200].startsWith(QStringLiteral("0:Serial Number:\t3100:\u78C1\u76D8")));
    }

    void emptyList()
    {
        SmartReport report = gatherSmartReport();
        QCOMPARE(suggestedReportName(report), QStringLiteral("Velmora Smart Report "));
        PageRecorder page;
        paint(page, report);
        QVERIFY(page.pages[0].isEmpty());
        QCOMPARE(page.marks, QStringList("picture 3125,4249 3500,4500"));
        // Pictures that are missing leave their places empty.
        PageRecorder bare;
        paint(bare, made(true), QStringLiteral("missing/"));
        QCOMPARE(bare.marks.filter("picture"), QStringList("picture -120,107 1650,477"));
        report.ata.DeviceModel.assign(QStringLiteral("A/B\\C:D 500GB"));
        report.secondBrand = true;
        QCOMPARE(suggestedReportName(report), QStringLiteral("Korvane Smart Report A-B-C-D 500GB"));
    }

    /// Another program reads the text of the file: it has the identity and, line by line, all rows.
    void realReports()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext is not installed");
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("report"));
        for (const char *file : {"ata-noname-ssd-A-only", "nvme-wdc-sn850-1tb"}) {
            take(file);
            const SmartReport report = gatherSmartReport();
            QVERIFY(writeReport(path, report));
            QProcess reader;
            reader.start(QStringLiteral("pdftotext"), {"-layout", path, "-"});
            QVERIFY(reader.waitForFinished());
            const QString text = QString::fromUtf8(reader.readAllStandardOutput());
            QCOMPARE(text.count(QLatin1Char('\f')), report.nvme ? 1 : 2);
            QStringList parts{g_strModelName, g_strSerialNumber, g_strFirmware, report.log.LocalTime.text()};
            parts << "Velmora Halvane profiling process."
                  << "Velmora Halvane is a product of Velmora.";
            for (const SmartReport::Row &cells : report.rows) {
                QString row;
                for (const SmartReport::Cell &cell : cells)
                    row += cell.text + QLatin1Char(' ');
                parts += row;
            }
            for (const QString &part : qAsConst(parts))
                QVERIFY2(text.simplified().contains(part.simplified()), qPrintable(part));
        }
        QVERIFY(!writeReport(folder.filePath(QStringLiteral("missing/report.pdf")), made(false)));
    }

private:
    static void take(const char *file)
    {
        samples::read(samples::bytesOf(QLatin1String(file) + ".txt"));
        g_strTemperatureText = loadTemperatureText(GetDiskTemperature(), QStringLiteral("C"));
        ratePerformance();
        rateHealth();
    }

    static void paint(PageRecorder &page, SmartReport report,
                      const QString &folder = QStringLiteral(":/images/Resources/96-DPI/"))
    {
        report.logo = folder + QStringLiteral("img_Velmora.png");
        report.watermark = folder + QStringLiteral("img_WaterMark.png");
        report.icon = QStringLiteral(":/images/Halvane48.png");
        QPainter painter(&page);
        paintReport(painter, report, [&page] { page.pages.append(QMap<int, QString>()); });
    }
};

QTEST_MAIN(tst_ReportPage)
#include "tst_ReportPage.moc"
