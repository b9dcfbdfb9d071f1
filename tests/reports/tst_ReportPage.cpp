// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/ReportPage.h"

#include "reports/SmartReport.h"
#include "smart/Temperature.h"
#include "tests/reports/PageRecorder.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

namespace
{

const QColor Black(Qt::black);
const QColor Red(Qt::red);
const QColor Green(Qt::darkGreen);

struct Line {
    int y;
    const char *label;
    const char *value;
    QColor ink = Black;
};

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

    void ataFields()
    {
        take("ata-seagate-st31500341as.txt");
        g_strLastTestType = QStringLiteral("Short Self-test");
        g_strLastTestResult = QStringLiteral("Aborted by User");
        compareFields(gatherSmartReport(),
                      {{1800, "Make:", "Seagate Barracuda 7200.11"},
                       {2000, "Model Number:", "ST31500341AS"},
                       {2200, "Serial Number:", "2GK0FJDW"},
                       {2400, "Firmware Version:", "LC1A"},
                       {2600, "Capacity:", "1,50 TB"},
                       {3000, "Rotation Rate:", "7200 rpm"},
                       {3200, "ATA Version:", "ATA8-ACS T13/1699-D revision 4"},
                       {3400, "SATA Version:", "SATA 2.6, 3.0 Gb/s"},
                       {3600, "Local  Time:", "Thu Jan 23 22:17:24 2014 CET"},
                       {3800, "SMART Status:", "Passed", Green},
                       {4000, "Current Temperature:", "40\302\260C"},
                       {4200, "Performance:", "100%", Green},
                       {4400, "Health:", "Good", Green},
                       {5200, "Short Self-test:", "Supported", Green},
                       {5600, "Extended Self-test:", "Supported", Green},
                       {5800, "Estimated Completion Time:", "294 minutes"},
                       {6000, "Last Run Self-test:", "Short Self-test"},
                       {6200, "Last Self-Test Result:", "Aborted by User"}},
                      3100);
    }

    void nvmeFields()
    {
        take("nvme-win-samsung-970evo-1tb.txt");
        compareFields(gatherSmartReport(),
                      {{1800, "Model Number:", "Samsung SSD 970 EVO 1TB"},
                       {2000, "Serial Number:", "xxx"},
                       {2200, "Firmware Version:", "2B2QEXE7"},
                       {2400, "Capacity:", "1,00 TB"},
                       {2600, "Sector Size:", "512 bytes"},
                       {2800, "Local  Time:", "Wed Mar 30 13:30:12 2022"},
                       {3000, "Maximum Data Transfer Size:", "512 Pages"},
                       {3200, "SMART Status:", "Passed", Green},
                       {3400, "Current Temperature:", "47\302\260C"},
                       {3600, "Performance:", "100%", Green},
                       {3800, "Health:", "Good", Green}},
                      4500);
    }

    void frame()
    {
        frameOf(false,
                "Disk Information:@0,1500;Self Test Details:@0,4900;S.M.A.R.T. Details@0,6700;"
                "ID@0,7000;Attribute Name@500,7000;Status@3100,7000;Value@4000,7000;"
                "Worst@4900,7000;Threshold@5800,7000;Raw Value@7000,7000",
                QRect(3125, 4249, 3500, 4500), "Velmora Halvane is a product of Velmora.");
        frameOf(true,
                "Disk Information:@0,1500;S.M.A.R.T. Details:@0,4300;ID@0,4600;"
                "Attribute Name@500,4600;Values@4500,4600",
                QRect(3125, 3849, 3500, 4500), "Velmora Halvane is a product of Korvane.");
    }

    /// At exactly 40 nothing is drawn.
    void ratings()
    {
        for (const bool nvme : {false, true}) {
            for (const int percent : {41, 40, 39}) {
                SmartReport report = made(nvme);
                report.performance = report.health = percent;
                report.performanceText = QStringLiteral("rated");
                PageRecorder page;
                paint(page, report);
                const int x = nvme ? 4500 : 3100;
                const int badX = nvme ? 4000 : 3100;
                const int y = nvme ? 3600 : 4200;
                QStringList shown;
                for (const auto &text : page.within({500, y, 9000, 350}))
                    shown << QStringLiteral("%1 %2 at %3").arg(text.ink.name(), text.text).arg(text.x);
                const QStringList good{QStringLiteral("#008000 rated at %1").arg(x),
                                       QStringLiteral("#008000 Good at %1").arg(x)};
                const QStringList bad{QStringLiteral("#ff0000 rated at %1").arg(x),
                                      QStringLiteral("#ff0000 Bad at %1").arg(badX)};
                QCOMPARE(shown, percent > 40 ? good : percent < 40 ? bad : QStringList());
            }
        }
    }

    void selfTestsThatAreMissing()
    {
        SmartReport report = made(false);
        report.ata.ShortPollTime.assign(QStringLiteral("2 minutes"));
        compareFields(report,
                      {{5200, "Short Self-test:", "Supported", Green},
                       {5400, "Estimated Completion Time:", "2 minutes"},
                       {5600, "Extended Self-test:", "Not Supported", Red},
                       {5800, "Estimated Completion Time:", "NA"},
                       {6000, "Last Run Self-test:", "Not Available"},
                       {6200, "Last Self-Test Result:", "Not Available"}},
                      3100);
    }

    void ataRows()
    {
        const struct {
            quint32 id;
            const char *name;
            quint32 value;
            const char *raw;
            const char *shown; ///< "cell|cell|…", the red ones with a star
        } rows[] = {
            {1, "Raw_Read_Error_Rate", 5, "7", "1|Raw Read Error Rate|Failed|5*|77*|6*|7"},
            {1, "Raw_Read_Error_Rate", 6, "7", "1|Raw Read Error Rate|OK|6|77|6|7"},
            {197, "Current_Pending_Sector", 9, "1", "197|Current Pending Sector Count|OK|9|77|6|1*"},
            {197, "Current_Pending_Sector", 5, "0", "197|Current Pending Sector Count|Failed|5*|77*|6*|0"},
            {5, "REALLOCATED_SECTOR_CT", 9, "4095", "5|Reallocated Sector Count|OK|9|77|6|4095*"},
            {5, "Reallocated_Sector_Count", 9, "1", "5|Reallocated Sector Count|OK|9|77|6|1*"},
            {198, "Offline_Uncorrectable", 9, "9", "198|Offline Uncorrectable|OK|9|77|6|9"},
        };
        for (const auto &row : rows) {
            g_smartTable = {};
            SmartAttributeRecord &record = g_smartTable.rows.append();
            record.Id = row.id;
            record.AttributeName.assign(QLatin1String(row.name));
            record.Value = row.value;
            record.Worst = 77;
            record.Threshold = 6;
            record.RawValue.assign(QLatin1String(row.raw));
            g_smartTable.rows.append();
            PageRecorder page;
            paint(page, gatherSmartReport());

            const auto headings = page.within({0, 7000, 9000, 150});
            const auto cells = page.within({0, 7250, 9000, 150});
            QStringList shown;
            for (int i = 0; i < cells.size(); ++i) {
                shown << cells[i].text + (cells[i].ink == Red ? "*" : "");
                QCOMPARE(cells[i].x, headings.value(i).x);
            }
            QCOMPARE(shown.join('|'), QString(row.shown));
            // The next row is black again.
            for (const auto &text : page.within({0, 7500, 9000, 150}))
                QCOMPARE(text.ink, Black);
        }
    }

    void statusOfTheDrive()
    {
        g_smartTable.drive.SmartSupport.assign(QStringLiteral("Disabled"));
        g_smartTable.rows.append();
        QCOMPARE(gatherSmartReport().smartStatus, QStringLiteral("Disabled"));
        g_smartTable.drive.SmartSupport.assign(QStringLiteral("Enabled, in part"));
        QCOMPARE(gatherSmartReport().smartStatus, QStringLiteral("Passed"));
        g_driveVerdict = DriveVerdict::Failed;
        g_bHealthKnown = false;
        PageRecorder page;
        paint(page, gatherSmartReport());
        g_driveVerdict = DriveVerdict::NotTold;
        g_bHealthKnown = true;
        const auto values = page.within({3100, 3800, 100, 700}); // status and health
        QCOMPARE(values.first().text, QStringLiteral("Failed"));
        QCOMPARE(values.first().ink, Red);
        QCOMPARE(values.last().text, QStringLiteral("Not Available"));
    }

    void rowsGoOnToAnotherPage()
    {
        for (const bool nvme : {false, true}) {
            const int fitting = nvme ? 33 : 23;
            PageRecorder page;
            paint(page, made(nvme, 80));
            QCOMPARE(page.find(QStringLiteral("row %1").arg(fitting - 1)).y, nvme ? 12850 : 12750);
            QCOMPARE(page.find(QStringLiteral("row %1").arg(fitting)).y, 2050);
            QCOMPARE(page.find(QStringLiteral("row %1").arg(fitting + 44)).y, 2050);
            // Head, foot and the header of the table are on each page, the fields on the first one.
            const auto count = [&page](const char *text) {
                return std::count_if(page.texts.cbegin(), page.texts.cend(),
                                     [text](const auto &shown) { return shown.text == QLatin1String(text); });
            };
            for (const char *text : {"S.M.A.R.T. Report", "Velmora Halvane is a product of Velmora.", "ID"})
                QCOMPARE(count(text), 3);
            QCOMPARE(count("Health:"), 1);
            QCOMPARE(page.rules.size(), 160);
            QCOMPARE(page.pictures.size(), 80 + 2 * 3);
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
        const auto model = page.within({3100, 2000, 6000, 20});
        QVERIFY(model.size() == 1 && model[0].text.endsWith(QChar(0x2026)));
        QVERIFY(!page.within({3100, 2200, 6000, 1}).isEmpty());
    }

    void emptyList()
    {
        const SmartReport report = gatherSmartReport();
        QCOMPARE(suggestedReportName(report), QStringLiteral("Velmora Smart Report "));
        PageRecorder page;
        paint(page, report);
        QVERIFY(page.texts.isEmpty() && page.rules.isEmpty());
        QCOMPARE(page.pictures.size(), 1);
        // Pictures that are missing leave their places empty.
        PageRecorder bare;
        paint(bare, made(true), QStringLiteral("missing/"));
        QCOMPARE(bare.pictures.size(), 1);
    }

    void fileNames()
    {
        SmartReport report;
        report.ata.DeviceModel.assign(QStringLiteral("A/B\\C:D 500GB"));
        QCOMPARE(suggestedReportName(report), QStringLiteral("Velmora Smart Report A-B-C-D 500GB"));
        report.secondBrand = true;
        QCOMPARE(suggestedReportName(report), QStringLiteral("Korvane Smart Report A-B-C-D 500GB"));
    }

    void realReports_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *file :
             {"ata-seagate-st31500341as.txt", "ata-noname-ssd-A-only.txt", "nvme-wdc-sn850-1tb.txt"})
            QTest::newRow(file) << file;
    }

    /// Another program reads the text of the file: it has the identity and, line by line, all rows.
    void realReports()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext is not installed");
        QFETCH(QString, file);
        take(qPrintable(file));
        const SmartReport report = gatherSmartReport();
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("report"));
        QVERIFY(writeReport(path, report));

        QProcess reader;
        reader.start(QStringLiteral("pdftotext"), {"-layout", path, "-"});
        QVERIFY(reader.waitForFinished());
        const QString text = QString::fromUtf8(reader.readAllStandardOutput());
        QCOMPARE(text.count(QLatin1Char('\f')), report.rows.size() <= (report.nvme ? 33u : 23u) ? 1 : 2);
        const QString flat = text.simplified();
        const QString time = (report.nvme ? report.log.LocalTime : report.ata.LocalTime).text();
        QStringList parts = {g_strModelName, g_strSerialNumber, g_strFirmware, time};
        parts += {"Velmora Halvane profiling process.", "Velmora Halvane is a product of Velmora."};
        for (const SmartReport::Row &cells : report.rows) {
            QString row;
            for (const SmartReport::Cell &cell : cells)
                row += cell.text + QLatin1Char(' ');
            parts += row;
        }
        for (const QString &part : qAsConst(parts))
            QVERIFY2(flat.contains(part.simplified()), qPrintable(part));
    }

    void unwritable()
    {
        QTemporaryDir folder;
        QVERIFY(!writeReport(folder.filePath(QStringLiteral("missing/report.pdf")), made(false)));
        QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("missing"))));
    }

private:
    /// Of an ATA disk, or of an NVMe disk with the second brand. The headings are "text@x,y".
    void frameOf(bool second, const QString &headings, const QRect &watermark, const char *credit)
    {
        SmartReport report = made(second, 2);
        report.secondBrand = second;
        PageRecorder page;
        paint(page, report);

        QStringList bold;
        for (const PageRecorder::Text &text : qAsConst(page.texts)) {
            if (text.bold) {
                bold += QStringLiteral("%1@%2,%3").arg(text.text).arg(text.x).arg(text.y);
                QCOMPARE(text.points, text.x == 0 && text.text != "ID" ? 10 : 8);
            }
        }
        QCOMPARE(bold, headings.split(QLatin1Char(';')));

        const QVector<QLineF> rulesOfARecord = {{0, 800, 9227, 800}, {0, 13150, 9227, 13150}};
        QCOMPARE(page.rules, rulesOfARecord + rulesOfARecord);
        QCOMPARE(page.find(credit).y, 13560);
        const auto note =
            page.find("The information contained in this report has been generated by the Velmora "
                      "Halvane profiling process.");
        QCOMPARE(QPoint(note.x, note.y), QPoint(1700, 13380));
        QCOMPARE(page.find("S.M.A.R.T. Report").points, 14);
        // The second brand's wider field moves the centred name.
        const int middle = second ? 1660 : 1550;
        const auto name = page.find("Velmora Halvane");
        QFont face(QStringLiteral("Segoe UI"), 14);
        const double width = QFontMetricsF(face, &page).horizontalAdvance(name.text);
        QVERIFY2(std::abs(name.x + width / 2 - middle) < 5, qPrintable(QString::number(name.x)));

        // The watermark, the brand's mark, the icon, and the mark once more, as it is painted twice.
        QCOMPARE(page.pictures.size(), 4);
        QCOMPARE(page.pictures[0], watermark);
        for (const int mark : {1, 3})
            QCOMPARE(page.pictures[mark], QRect(-100, 13220, 1700, 500));
        // The source begins 8 rows above the icon. These rows are empty, so the icon begins that much lower.
        QCOMPARE(page.pictures[2], QRect(-120, 107, 1650, 477));
    }

    static void take(const char *file)
    {
        samples::read(samples::bytesOf(QLatin1String(file)));
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
        paintReport(painter, report, [&page] { page.texts.append({"new page", 0, 0, {}, 0, false}); });
    }
    static void compareFields(const SmartReport &report, const QVector<Line> &lines, int valueX)
    {
        PageRecorder page;
        paint(page, report);
        for (const Line &line : lines) {
            const auto found = page.within({0, line.y, 9000, 150});
            const QByteArray place = QByteArray::number(line.y) + ' ' + line.label;
            QVERIFY2(found.size() == 2, place.constData());
            QVERIFY2(found[0].text == QLatin1String(line.label) && found[0].x == 0 && found[0].ink == Black,
                     place.constData());
            QVERIFY2(found[1].text == QString::fromUtf8(line.value) && found[1].x == valueX,
                     place.constData());
            QVERIFY2(found[1].ink == line.ink && found[1].points == 8 && !found[1].bold, place.constData());
        }
    }
};

QTEST_MAIN(tst_ReportPage)
#include "tst_ReportPage.moc"
