// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/ReportPage.h"

#include "reports/SmartReport.h"
#include "smart/Temperature.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>

namespace
{

/// A report on pages that record what is painted on them.
class PageRecorder : public QPdfWriter, private QPaintEngine
{
public:
    explicit PageRecorder(SmartReport report, const QString &folder = ":/images/Resources/96-DPI/")
        : QPdfWriter(QString()), QPaintEngine(AllFeatures)
    {
        setPageSize(QPageSize(QPageSize::A4));
        setPageMargins(QMarginsF(20, 10, 20, 10));
        report.logo = folder + "img_Velmora.png";
        report.watermark = folder + "img_WaterMark.png";
        report.icon = ":/images/Halvane48.png";
        QPainter painter(this);
        paintReport(painter, report, [this] { pages.append(QMap<int, QString>()); });
    }

    /// The lines by their tops: "x:text", tab by tab. Behind a text stands what is not black, of 8 points and
    /// plain.
    QVector<QMap<int, QString>> pages{1};
    /// "title" with the middle of a text of 14 points, to the next ten; "rule" from and to; "picture" with
    /// its place and size.
    QStringList marks;

    QString value(int top) const { return pages[0][top].section('\t', 1); }
    QPaintEngine *paintEngine() const override { return const_cast<PageRecorder *>(this); }

private:
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF &p, const QTextItem &item) override
    {
        const QFont face = painter()->font();
        const QFontMetricsF metrics(face, this);
        if (face.pointSize() == 14) {
            const int middle = qRound((p.x() + metrics.horizontalAdvance(item.text()) / 2) / 10) * 10;
            marks << QStringLiteral("title %1 %2").arg(middle).arg(item.text());
            return;
        }
        QString &line = pages.last()[qRound(p.y() - metrics.ascent())];
        line += (line.isEmpty() ? "" : "\t") + QString::number(qRound(p.x())) + ':' + item.text();
        const QColor ink = painter()->pen().color();
        if (ink != Qt::black)
            line += ink == Qt::red ? " red" : ink == Qt::darkGreen ? " green" : " another ink";
        if (face.pointSize() != 8)
            line += QStringLiteral(" %1 points").arg(face.pointSize());
        if (face.bold())
            line += " bold";
    }
    void drawLines(const QLineF *lines, int count) override
    {
        const QPen pen(Qt::black, 6.0, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin);
        for (const QLineF *line = lines; line != lines + count; ++line)
            mark(painter()->pen() == pen ? "rule" : "another line", line->p1(), line->p2());
    }
    void drawImage(const QRectF &target, const QImage &, const QRectF &, Qt::ImageConversionFlags) override
    {
        const QRect place = target.toRect();
        mark("picture", place.topLeft(), {double(place.width()), double(place.height())});
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    using QPaintEngine::drawLines;

    void mark(const char *kind, const QPointF &a, const QPointF &b)
    {
        marks << QStringLiteral("%1 %2,%3 %4,%5").arg(kind).arg(a.x()).arg(a.y()).arg(b.x()).arg(b.y());
    }
};

/// A report with this many rows; each text names the field that it is from.
SmartReport made(bool nvme, int rows = 1)
{
    SmartReport report;
    report.nvme = nvme;
    report.performance = report.health = 100;
    report.performanceText = "100%";
    report.smartStatus = "Passed";
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
        QFont::insertSubstitution("Segoe UI", "Open Sans");
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
            g_strLastTestType = "Short Self-test";
            g_strLastTestResult = "Aborted by User";
            PageRecorder page(gatherSmartReport());
            page.marks.removeDuplicates(); // each row paints the frame again
            QStringList lines{page.marks};
            for (auto line = page.pages[0].cbegin(); line != page.pages[0].cend(); ++line)
                lines << QString::number(line.key()) + '\t' + line.value();
            const QString file = QStringLiteral(HALVANE_TEST_DATA "/reports/%1.tsv").arg(sample);
            // A tool's text is of the locale; this is how it reads what stands between groups of digits.
            const QString separator = QString::fromLocal8Bit("\xEF\xBF\xBD");
            QCOMPARE(lines, linesOf(file).replaceInStrings(QString(QChar(0xFFFD)), separator));
        }
    }

    /// Performance and health of each layout. At exactly 40 nothing is drawn.
    void ratings()
    {
        compareRows("ReportPage/ratings", [](const QString &row) {
            SmartReport report = made(row.startsWith('N'));
            report.performance = report.health = row.section(' ', 1).toInt();
            report.performanceText = "rated";
            const PageRecorder page(report);
            return page.value(report.nvme ? 3600 : 4200) + '|' + page.value(report.nvme ? 3800 : 4400);
        });
    }

    /// What is not known or failed. Taller letters of another font do not lower their line, and no text
    /// covers the one beside it.
    void fields()
    {
        SmartReport report = made(false);
        report.ata.ShortPollTime.assign("2 minutes");
        report.healthKnown = false;
        report.smartFailed = true;
        report.ata.DeviceModel.assign(QString(200, 'W'));
        report.ata.SerialNumber.assign("\u78C1\u76D8 \u0921\u093F\u0938\u094D\u0915");
        const PageRecorder page(report);
        compareRows("ReportPage/fields", [&page](const QString &top) { return page.value(top.toInt()); });
        QVERIFY(page.value(2000).endsWith(QChar(0x2026)));
        QVERIFY(page.value(2200).startsWith("3100:\u78C1\u76D8"));
    }

    void ataRows()
    {
        // Number, name, raw value and value; the worst is 77 and the threshold 6.
        compareRows("ReportPage/ataRows", [](const QString &row) {
            g_smartTable.rows = samples::ataList(row.section(' ', 1));
            SmartAttributeRecord &record = *g_pSmartAttributeHead;
            record.Id = row.section(' ', 0, 0).toUInt();
            record.Worst = 77;
            record.Threshold = 6;
            QStringList cells;
            const SmartReport report = gatherSmartReport();
            for (const SmartReport::Cell &cell : report.rows.front())
                cells << cell.text + (cell.red ? " red" : "");
            return cells.join('|');
        });
    }

    void statusOfTheDrive()
    {
        const auto status = [](const char *support) {
            g_smartTable.drive.SmartSupport.assign(support);
            const SmartReport report = gatherSmartReport();
            return report.smartStatus + (report.smartFailed ? " red" : "");
        };
        QCOMPARE(status("Disabled"), "Disabled");
        QCOMPARE(status("Enabled, in part"), "Passed");
        g_driveVerdict = DriveVerdict::Failed;
        QCOMPARE(status("Enabled"), "Failed red");
    }

    void rowsGoOnToAnotherPage()
    {
        for (const bool nvme : {false, true}) {
            const PageRecorder page(made(nvme, 80));
            const auto count = [&page](const char *kind) { return page.marks.filter(kind).size(); };
            const QMap<int, QString> last = page.pages.value(2);
            QCOMPARE(
                joined(page.pages.size(), page.pages[0][nvme ? 12850 : 12750].section('\t', 1, 1),
                       page.pages[1][2050].section('\t', 1, 1), last[2050].section('\t', 1, 1)),
                QString(nvme ? "3|500:row 32|500:row 33|500:row 77" : "3|500:row 22|500:row 23|500:row 67"));
            // Head, foot and the header of the table are on each page, the fields on the first one.
            QCOMPARE(joined(last.size(), count("title"), count("rule"), count("picture")),
                     QString(nvme ? "7|6|160|86" : "17|6|160|86"));
            QCOMPARE(joined(last[1500], last[1800], last[13560]),
                     joined(page.pages[0][nvme ? 4300 : 6700], page.pages[0][nvme ? 4600 : 7000],
                            "1700:Velmora Halvane is a product of Velmora."));
        }
    }

    void emptyList()
    {
        SmartReport report = gatherSmartReport();
        QCOMPARE(suggestedReportName(report), "Velmora Smart Report ");
        const PageRecorder page(report);
        QVERIFY(page.pages[0].isEmpty());
        QCOMPARE(page.marks, QStringList("picture 3125,4249 3500,4500"));
        // Pictures that are missing leave their places empty.
        const PageRecorder bare(made(true), "missing/");
        QCOMPARE(bare.marks.filter("picture"), QStringList("picture -120,107 1650,477"));
        report.ata.DeviceModel.assign("A/B\\C:D 500GB");
        report.secondBrand = true;
        QCOMPARE(suggestedReportName(report), "Korvane Smart Report A-B-C-D 500GB");
    }

    /// Another program reads the text of the file: it has the identity and, line by line, all rows.
    void realReports()
    {
        if (QStandardPaths::findExecutable("pdftotext").isEmpty())
            QSKIP("pdftotext is not installed");
        const QTemporaryDir folder;
        const QString path = folder.filePath("report");
        for (const char *file : {"ata-noname-ssd-A-only", "nvme-wdc-sn850-1tb"}) {
            take(file);
            const SmartReport report = gatherSmartReport();
            QVERIFY(writeReport(path, report));
            QProcess reader;
            reader.start("pdftotext", {"-layout", path, "-"});
            QVERIFY(reader.waitForFinished());
            const QString text = QString::fromUtf8(reader.readAllStandardOutput());
            QCOMPARE(text.count('\f'), report.nvme ? 1 : 2);
            QStringList parts{"Velmora Halvane profiling process.",
                              "Velmora Halvane is a product of Velmora."};
            parts << g_strModelName << g_strSerialNumber << g_strFirmware << report.log.LocalTime.text();
            for (const SmartReport::Row &cells : report.rows) {
                parts << QString();
                for (const SmartReport::Cell &cell : cells)
                    parts.last() += cell.text + ' ';
            }
            for (const QString &part : qAsConst(parts))
                QVERIFY2(text.simplified().contains(part.simplified()), qPrintable(part));
        }
        QVERIFY(!writeReport(folder.filePath("missing/report.pdf"), made(false)));
    }

private:
    static void take(const char *file)
    {
        samples::read(samples::bytesOf(QLatin1String(file) + ".txt"));
        g_strTemperatureText = loadTemperatureText(GetDiskTemperature(), "C");
        ratePerformance();
        rateHealth();
    }
};

QTEST_MAIN(tst_ReportPage)
#include "tst_ReportPage.moc"
