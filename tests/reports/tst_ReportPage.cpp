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
    void initTestCase();
    void init();
    void ataFields();
    void nvmeFields();
    void frame_data();
    void frame();
    void ratings_data();
    void ratings();
    void selfTestsThatAreMissing();
    void ataRows_data();
    void ataRows();
    void statusOfTheDrive();
    void rowsGoOnToAnotherPage();
    void linesOfOneHeight();
    void emptyList();
    void picturesThatAreMissing();
    void fileNames();
    void realReports_data();
    void realReports();
    void unwritable();

private:
    static void take(const char *file);
    static void paint(PageRecorder &page, SmartReport report,
                      const QString &folder = QStringLiteral(":/images/Resources/96-DPI/"))
    {
        report.logo = folder + QStringLiteral("img_Velmora.png");
        report.watermark = folder + QStringLiteral("img_WaterMark.png");
        report.icon = QStringLiteral(":/images/Halvane48.png");
        QPainter painter(&page);
        paintReport(painter, report, [&page] { page.texts.append({"new page", 0, 0, {}, 0, false}); });
    }
    static void compareFields(const SmartReport &report, const QVector<Line> &lines, int valueX);
};

void tst_ReportPage::initTestCase()
{
    Q_INIT_RESOURCE(images);
    QFont::insertSubstitution(QStringLiteral("Segoe UI"), QStringLiteral("Open Sans"));
}

void tst_ReportPage::init()
{
    FakePlatform::install();
    samples::forget();
    g_App.m_fScale = 1.0F;
    g_App.m_bKorvaneBrand = false;
    g_strLastTestType.clear();
    g_strLastTestResult.clear();
}

/// Reads a report of tests/data/smart, as the window does.
void tst_ReportPage::take(const char *file)
{
    const QString path = samples::stage(samples::bytesOf(QLatin1String(file)));
    takeReportIn(path);
    g_strTemperatureText = loadTemperatureText(GetDiskTemperature(), QStringLiteral("C"));
    ratePerformance();
    rateHealth();
}

void tst_ReportPage::compareFields(const SmartReport &report, const QVector<Line> &lines, int valueX)
{
    PageRecorder page;
    paint(page, report);
    for (const Line &line : lines) {
        const auto found = page.within({0, line.y, 9000, 150});
        const QByteArray place = QByteArray::number(line.y) + ' ' + line.label;
        QVERIFY2(found.size() == 2, place.constData());
        QVERIFY2(found[0].text == QLatin1String(line.label) && found[0].x == 0 && found[0].ink == Black,
                 place.constData());
        QVERIFY2(found[1].text == QString::fromUtf8(line.value) && found[1].x == valueX, place.constData());
        QVERIFY2(found[1].ink == line.ink && found[1].points == 8 && !found[1].bold, place.constData());
    }
}

void tst_ReportPage::ataFields()
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

void tst_ReportPage::nvmeFields()
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

void tst_ReportPage::frame_data()
{
    QTest::addColumn<bool>("nvme");
    QTest::addColumn<bool>("secondBrand");
    QTest::addColumn<QString>("headings"); ///< "text@x,y"
    QTest::addColumn<QRect>("watermark");
    QTest::addColumn<QString>("credit");
    QTest::newRow("ATA") << false << false
                         << "Disk Information:@0,1500;Self Test Details:@0,4900;S.M.A.R.T. Details@0,6700;"
                            "ID@0,7000;Attribute Name@500,7000;Status@3100,7000;Value@4000,7000;"
                            "Worst@4900,7000;Threshold@5800,7000;Raw Value@7000,7000"
                         << QRect(3125, 4249, 3500, 4500) << "Velmora Halvane is a product of Velmora.";
    QTest::newRow("NVMe, second brand")
        << true << true
        << "Disk Information:@0,1500;S.M.A.R.T. Details:@0,4300;ID@0,4600;Attribute Name@500,4600;"
           "Values@4500,4600"
        << QRect(3125, 3849, 3500, 4500) << "Velmora Halvane is a product of Korvane.";
}

void tst_ReportPage::frame()
{
    QFETCH(bool, nvme);
    QFETCH(bool, secondBrand);
    QFETCH(QString, headings);
    QFETCH(QRect, watermark);
    QFETCH(QString, credit);
    SmartReport report = made(nvme, 2);
    report.secondBrand = secondBrand;
    PageRecorder page;
    paint(page, report);

    QStringList bold;
    for (const PageRecorder::Text &text : qAsConst(page.texts)) {
        if (text.bold) {
            bold += QStringLiteral("%1@%2,%3").arg(text.text).arg(text.x).arg(text.y);
            QCOMPARE(text.points,
                     text.text.contains(QLatin1Char(':')) || text.text.startsWith("S.M") ? 10 : 8);
        }
    }
    QCOMPARE(bold, headings.split(QLatin1Char(';')));

    const QVector<QLineF> rulesOfARecord = {{0, 800, 9227, 800}, {0, 13150, 9227, 13150}};
    QCOMPARE(page.rules, rulesOfARecord + rulesOfARecord);
    QCOMPARE(page.find(credit).y, 13560);
    const auto note = page.find("The information contained in this report has been generated by the Velmora "
                                "Halvane profiling process.");
    QCOMPARE(QPoint(note.x, note.y), QPoint(1700, 13380));
    QCOMPARE(page.find("S.M.A.R.T. Report").points, 14);
    // The second brand's wider field moves the centred name.
    const int middle = secondBrand ? 1660 : 1550;
    const auto name = page.find("Velmora Halvane");
    QFont face(QStringLiteral("Segoe UI"), 14);
    const double width = QFontMetricsF(face, &page).horizontalAdvance(name.text);
    QVERIFY2(std::abs(name.x + width / 2 - middle) < 5, qPrintable(QString::number(name.x)));

    // The watermark, the brand's mark, the icon, and the mark once more, as it is painted twice.
    QCOMPARE(page.pictures.size(), 4);
    QCOMPARE(page.pictures[0].target, watermark);
    for (const int mark : {1, 3})
        QCOMPARE(page.pictures[mark].target, QRect(-100, 13220, 1700, 500));
    // The source begins 8 rows above the icon. These rows are empty, so the icon begins that much lower.
    QCOMPARE(page.pictures[2].target, QRect(-120, 107, 1650, 477));
}

void tst_ReportPage::ratings_data()
{
    QTest::addColumn<bool>("nvme");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QString>("health"); ///< empty: nothing is drawn
    QTest::addColumn<int>("healthX");
    QTest::addColumn<QColor>("ink");
    for (const bool nvme : {false, true}) {
        const QByteArray kind = nvme ? "NVMe " : "ATA ";
        QTest::newRow(kind + "41") << nvme << 41 << "Good" << (nvme ? 4500 : 3100) << Green;
        QTest::newRow(kind + "40") << nvme << 40 << "" << 0 << QColor();
        QTest::newRow(kind + "39") << nvme << 39 << "Bad" << (nvme ? 4000 : 3100) << Red;
        QTest::newRow(kind + "worn out") << nvme << -5 << "Bad" << (nvme ? 4000 : 3100) << Red;
    }
}

void tst_ReportPage::ratings()
{
    QFETCH(bool, nvme);
    QFETCH(int, percent);
    QFETCH(QString, health);
    QFETCH(int, healthX);
    QFETCH(QColor, ink);
    SmartReport report = made(nvme);
    report.performance = report.health = percent;
    report.performanceText = QStringLiteral("rated");
    PageRecorder page;
    paint(page, report);
    const QRect values(500, 0, 9000, 150);
    const auto shownPerformance = page.within(values.translated(0, nvme ? 3600 : 4200));
    const auto shownHealth = page.within(values.translated(0, nvme ? 3800 : 4400));
    QCOMPARE(shownHealth.size(), health.isEmpty() ? 0 : 1);
    QCOMPARE(shownPerformance.size(), health.isEmpty() ? 0 : 1);
    if (health.isEmpty())
        return;
    QCOMPARE(shownHealth[0].text, health);
    QCOMPARE(shownHealth[0].x, healthX);
    QCOMPARE(shownHealth[0].ink, ink);
    QCOMPARE(shownPerformance[0].text, QStringLiteral("rated"));
    QCOMPARE(shownPerformance[0].x, nvme ? 4500 : 3100);
    QCOMPARE(shownPerformance[0].ink, ink);
}

void tst_ReportPage::selfTestsThatAreMissing()
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

void tst_ReportPage::ataRows_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<quint32>("value");
    QTest::addColumn<quint32>("threshold");
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("shownName");
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("redRaw");
    const struct {
        const char *tag;
        quint32 id;
        const char *name;
        quint32 value;
        quint32 threshold;
        const char *raw;
        const char *shownName;
        const char *status;
        bool redRaw;
    } rows[] = {
        {"below", 1, "Raw_Read_Error_Rate", 5, 6, "7", "Raw Read Error Rate", "Failed", false},
        {"equal", 1, "Raw_Read_Error_Rate", 6, 6, "7", "Raw Read Error Rate", "OK", false},
        {"50 degrees", 194, "Temperature_Celsius", 100, 0, "50", "Temperature Celsius", "Failed", false},
        {"49 degrees", 194, "Temperature_Celsius", 1, 6, "49", "Temperature Celsius", "OK", false},
        {"pending", 197, "Current_Pending_Sector", 100, 0, "1", "Current Pending Sector Count", "OK", true},
        {"none pending", 197, "Current_Pending_Sector", 1, 6, "0", "Current Pending Sector Count", "Failed",
         false},
        {"reallocated", 5, "Reallocated_Sector_Ct", 1, 6, "4095", "Reallocated Sector Count", "Failed", true},
        {"other count", 198, "Offline_Uncorrectable", 100, 0, "9", "Offline Uncorrectable", "OK", false},
        {"by number", 170, "Unknown_Attribute", 100, 0, "0", "Available Reserved Space", "OK", false},
        {"unknown", 231, "My_Own_Count", 100, 0, "0", "My Own Count", "OK", false},
    };
    for (const auto &row : rows)
        QTest::newRow(row.tag) << row.id << QString(row.name) << row.value << row.threshold
                               << QString(row.raw) << QString(row.shownName) << QString(row.status)
                               << row.redRaw;
}

void tst_ReportPage::ataRows()
{
    QFETCH(quint32, id);
    QFETCH(QString, name);
    QFETCH(quint32, value);
    QFETCH(quint32, threshold);
    QFETCH(QString, raw);
    QFETCH(QString, shownName);
    QFETCH(QString, status);
    QFETCH(bool, redRaw);
    SmartAttributeRecord record;
    record.Id = id;
    record.AttributeName.assign(name);
    record.Value = value;
    record.Worst = 77;
    record.Threshold = threshold;
    record.RawValue.assign(raw);
    g_smartTable.rows.append(record);
    g_smartTable.rows.append();
    PageRecorder page;
    paint(page, gatherSmartReport());

    const auto row = page.within({0, 7250, 9000, 150});
    const QStringList texts = {QString::number(id),        shownName, status, QString::number(value), "77",
                               QString::number(threshold), raw};
    constexpr int xs[] = {0, 500, 3100, 4000, 4900, 5800, 7000};
    QCOMPARE(row.size(), texts.size());
    const QColor behind = status == QLatin1String("Failed") ? Red : Black;
    const QColor inks[] = {Black, Black, Black, behind, behind, behind, redRaw ? Red : Black};
    for (int i = 0; i < row.size(); ++i) {
        QCOMPARE(row[i].text, texts[i]);
        QCOMPARE(row[i].x, xs[i]);
        QCOMPARE(row[i].ink, inks[i]);
    }
    // The next row is black again.
    for (const auto &text : page.within({0, 7500, 9000, 150}))
        QCOMPARE(text.ink, Black);
}

void tst_ReportPage::statusOfTheDrive()
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

void tst_ReportPage::rowsGoOnToAnotherPage()
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
void tst_ReportPage::linesOfOneHeight()
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

void tst_ReportPage::emptyList()
{
    const SmartReport report = gatherSmartReport();
    QCOMPARE(suggestedReportName(report), QStringLiteral("Velmora Smart Report "));
    PageRecorder page;
    paint(page, report);
    QVERIFY(page.texts.isEmpty() && page.rules.isEmpty());
    QCOMPARE(page.pictures.size(), 1);
}

void tst_ReportPage::picturesThatAreMissing()
{
    PageRecorder page;
    paint(page, made(true), QStringLiteral("missing/"));
    QCOMPARE(page.pictures.size(), 1);
}

void tst_ReportPage::fileNames()
{
    SmartReport report;
    report.ata.DeviceModel.assign(QStringLiteral("A/B\\C:D 500GB"));
    QCOMPARE(suggestedReportName(report), QStringLiteral("Velmora Smart Report A-B-C-D 500GB"));
    report.secondBrand = true;
    QCOMPARE(suggestedReportName(report), QStringLiteral("Korvane Smart Report A-B-C-D 500GB"));
}

void tst_ReportPage::realReports_data()
{
    QTest::addColumn<QString>("file");
    for (const samples::Sample &sample : samples::all()) {
        if (sample.rows > 0)
            QTest::newRow(qPrintable(sample.file)) << sample.file;
    }
}

/// Another program reads the text of the file: it has the identity and, line by line, all rows.
void tst_ReportPage::realReports()
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

void tst_ReportPage::unwritable()
{
    QTemporaryDir folder;
    QVERIFY(!writeReport(folder.filePath(QStringLiteral("missing/report.pdf")), made(false)));
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("missing"))));
}

QTEST_MAIN(tst_ReportPage)
#include "tst_ReportPage.moc"
