// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/ReportPage.h"

#include "platform/OwnFiles.h"
#include "reports/SmartReport.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPixmap>

#include <algorithm>

namespace
{

constexpr int Centred = Qt::AlignCenter;
constexpr int RegularWeight = QFont::Normal;
constexpr int BoldWeight = QFont::Bold;
constexpr int BodyPoints = 8;
constexpr int RowStep = 250;
constexpr int FootRuleY = 13150;
constexpr int ColumnGap = 60; ///< between a text that is too long and what stands right of it
/// The later pages bear the table alone.
constexpr int LaterHeadingY = 1500;
constexpr int LaterTableY = 1800;
constexpr int LaterRowY = 2050;
constexpr int ImageDensity = 4; ///< the images for print are that many times their design size

enum class Ink { Black, Red, Green };

struct Value {
    QString text;
    Ink ink = Ink::Black;
    int shift = 0; ///< from the value column
};

struct Field {
    int y;
    const char *label;
    Value (*value)(const SmartReport &report);
};

struct Heading {
    int y;
    const char *text;
};

struct Column {
    int x;
    const char *text;
};

/// What sets one layout apart from the other.
struct Layout {
    int watermarkRise; ///< above the middle of the page
    int valueX;
    std::vector<Heading> headings;
    std::vector<Field> fields;
    int tableY;
    std::vector<Column> columns;
    int firstRowY;
};

/// The texts are translated in the context of the window that the report is saved from.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

template<QString SmartReport::*Text>
Value plain(const SmartReport &report)
{
    return {report.*Text};
}

template<QString SmartReport::*Text>
Value orNotAvailable(const SmartReport &report)
{
    return {(report.*Text).isEmpty() ? Texts::tr("Not Available") : report.*Text};
}

Value status(const SmartReport &report)
{
    return {report.smartStatus, report.smartFailed ? Ink::Red : Ink::Green};
}

/// A rating of exactly 40 is neither, and stays without a value.
Value rated(int percent, const QString &good, const QString &bad, int badShift)
{
    constexpr int Limit = 40;
    if (percent == Limit)
        return {};
    return percent > Limit ? Value{good, Ink::Green} : Value{bad, Ink::Red, badShift};
}

Value performance(const SmartReport &report)
{
    return rated(report.performance, report.performanceText, report.performanceText, 0);
}

Value health(const SmartReport &report)
{
    constexpr int NvmeBadShift = -500;
    if (!report.healthKnown)
        return {Texts::tr("Not Available")};
    return rated(report.health, Texts::tr("Good"), Texts::tr("Bad"), report.nvme ? NvmeBadShift : 0);
}

template<QString SmartReport::*Time>
Value supported(const SmartReport &report)
{
    return (report.*Time).isEmpty() ? Value{Texts::tr("Not Supported"), Ink::Red}
                                    : Value{Texts::tr("Supported"), Ink::Green};
}

template<QString SmartReport::*Time>
Value completionTime(const SmartReport &report)
{
    return {(report.*Time).isEmpty() ? Texts::tr("NA") : report.*Time};
}

const Layout &nvmeLayout()
{
    using R = SmartReport;
    static const Layout layout = {
        3000,
        4500,
        {{1500, QT_TRANSLATE_NOOP("MainWindow", "Disk Information:")},
         {4300, QT_TRANSLATE_NOOP("MainWindow", "S.M.A.R.T. Details:")}},
        {{1800, QT_TRANSLATE_NOOP("MainWindow", "Model Number:"), plain<&R::model>},
         {2000, QT_TRANSLATE_NOOP("MainWindow", "Serial Number:"), plain<&R::serial>},
         {2200, QT_TRANSLATE_NOOP("MainWindow", "Firmware Version:"), plain<&R::firmware>},
         {2400, QT_TRANSLATE_NOOP("MainWindow", "Capacity:"), plain<&R::capacity>},
         {2600, QT_TRANSLATE_NOOP("MainWindow", "Sector Size:"), plain<&R::sectorSize>},
         {2800, QT_TRANSLATE_NOOP("MainWindow", "Local  Time:"), plain<&R::localTime>},
         {3000, QT_TRANSLATE_NOOP("MainWindow", "Maximum Data Transfer Size:"), plain<&R::maxTransferSize>},
         {3200, QT_TRANSLATE_NOOP("MainWindow", "SMART Status:"), status},
         {3400, QT_TRANSLATE_NOOP("MainWindow", "Current Temperature:"), plain<&R::temperature>},
         {3600, QT_TRANSLATE_NOOP("MainWindow", "Performance:"), performance},
         {3800, QT_TRANSLATE_NOOP("MainWindow", "Health:"), health}},
        4600,
        {{0, QT_TRANSLATE_NOOP("MainWindow", "ID")},
         {500, QT_TRANSLATE_NOOP("MainWindow", "Attribute Name")},
         {4500, QT_TRANSLATE_NOOP("MainWindow", "Values")}},
        4850};
    return layout;
}

const Layout &ataLayout()
{
    using R = SmartReport;
    static const Layout layout = {
        2600,
        3100,
        {{1500, QT_TRANSLATE_NOOP("MainWindow", "Disk Information:")},
         {4900, QT_TRANSLATE_NOOP("MainWindow", "Self Test Details:")},
         {6700, QT_TRANSLATE_NOOP("MainWindow", "S.M.A.R.T. Details")}},
        {{1800, QT_TRANSLATE_NOOP("MainWindow", "Make:"), plain<&R::make>},
         {2000, QT_TRANSLATE_NOOP("MainWindow", "Model Number:"), plain<&R::model>},
         {2200, QT_TRANSLATE_NOOP("MainWindow", "Serial Number:"), plain<&R::serial>},
         {2400, QT_TRANSLATE_NOOP("MainWindow", "Firmware Version:"), plain<&R::firmware>},
         {2600, QT_TRANSLATE_NOOP("MainWindow", "Capacity:"), plain<&R::capacity>},
         {2800, QT_TRANSLATE_NOOP("MainWindow", "Sector Size:"), plain<&R::sectorSize>},
         {3000, QT_TRANSLATE_NOOP("MainWindow", "Rotation Rate:"), plain<&R::rotationRate>},
         {3200, QT_TRANSLATE_NOOP("MainWindow", "ATA Version:"), plain<&R::ataVersion>},
         {3400, QT_TRANSLATE_NOOP("MainWindow", "SATA Version:"), plain<&R::sataVersion>},
         {3600, QT_TRANSLATE_NOOP("MainWindow", "Local  Time:"), plain<&R::localTime>},
         {3800, QT_TRANSLATE_NOOP("MainWindow", "SMART Status:"), status},
         {4000, QT_TRANSLATE_NOOP("MainWindow", "Current Temperature:"), plain<&R::temperature>},
         {4200, QT_TRANSLATE_NOOP("MainWindow", "Performance:"), performance},
         {4400, QT_TRANSLATE_NOOP("MainWindow", "Health:"), health},
         {5200, QT_TRANSLATE_NOOP("MainWindow", "Short Self-test:"), supported<&R::shortTestTime>},
         {5400, QT_TRANSLATE_NOOP("MainWindow", "Estimated Completion Time:"),
          completionTime<&R::shortTestTime>},
         {5600, QT_TRANSLATE_NOOP("MainWindow", "Extended Self-test:"), supported<&R::extendedTestTime>},
         {5800, QT_TRANSLATE_NOOP("MainWindow", "Estimated Completion Time:"),
          completionTime<&R::extendedTestTime>},
         {6000, QT_TRANSLATE_NOOP("MainWindow", "Last Run Self-test:"), orNotAvailable<&R::lastTestType>},
         {6200, QT_TRANSLATE_NOOP("MainWindow", "Last Self-Test Result:"),
          orNotAvailable<&R::lastTestResult>}},
        7000,
        {{0, QT_TRANSLATE_NOOP("MainWindow", "ID")},
         {500, QT_TRANSLATE_NOOP("MainWindow", "Attribute Name")},
         {3100, QT_TRANSLATE_NOOP("MainWindow", "Status")},
         {4000, QT_TRANSLATE_NOOP("MainWindow", "Value")},
         {4900, QT_TRANSLATE_NOOP("MainWindow", "Worst")},
         {5800, QT_TRANSLATE_NOOP("MainWindow", "Threshold")},
         {7000, QT_TRANSLATE_NOOP("MainWindow", "Raw Value")}},
        7250};
    return layout;
}

/// An image for paper. What is transparent in it is white below: viewers that shrink the picture mix the two
/// at its edges, and black would give it an outline.
QImage printImage(const QString &path)
{
    QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::replace_if(
            line, line + image.width(), [](QRgb pixel) { return qAlpha(pixel) == 0; },
            qRgba(255, 255, 255, 0));
    }
    return image;
}

/// One painting of a report.
class PagePainter
{
public:
    PagePainter(QPainter &painter, const SmartReport &report, const std::function<void()> &newPage)
        : m_painter(painter), m_report(report), m_newPage(newPage),
          m_layout(report.nvme ? nvmeLayout() : ataLayout()), m_logo(printImage(report.logo)),
          m_watermark(printImage(report.watermark)), m_icon(printImage(report.icon))
    {
    }

    void paint()
    {
        paintWatermark();
        int y = m_layout.firstRowY;
        for (std::size_t i = 0; i < m_report.rows.size(); ++i) {
            const bool full = y + RowStep > FootRuleY;
            if (full) {
                m_newPage();
                paintWatermark();
                y = LaterRowY;
            }
            paintFrame();
            if (i == 0)
                paintFixedParts();
            else if (full)
                paintLaterParts();
            paintRow(m_report.rows[i], y);
            y += RowStep;
        }
    }

private:
    /// `source` in pixels of the design size.
    void drawImage(const QRect &target, const QImage &image, const QRect &source)
    {
        if (!image.isNull())
            m_painter.drawImage(target, image,
                                QRect(source.topLeft() * ImageDensity, source.size() * ImageDensity));
    }

    void setInk(Ink ink)
    {
        if (ink == Ink::Black)
            m_painter.setPen(QPen(Qt::black, 6.0, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
        else
            m_painter.setPen(ink == Ink::Red ? Qt::red : Qt::darkGreen);
    }

    void setFont(int points, int weight)
    {
        QFont face(QStringLiteral("Segoe UI"), points, weight);
        // So that a text that is searched or copied out of the file is the one that was written: a spacing
        // too small to be seen keeps letters from being tied into ligatures, and readers take tight pairs for
        // two words.
        face.setLetterSpacing(QFont::AbsoluteSpacing, 0.02);
        face.setKerning(points > BodyPoints);
        m_painter.setFont(face);
    }

    /// One line with its top at `y`, cut with dots where there is less room. All lines of that height have
    /// one baseline, that of the page's own face: left to itself, a line sinks with the taller face of its
    /// script.
    void drawLine(int x, int y, int room, const QString &text)
    {
        const QFontMetricsF metrics(m_painter.font(), m_painter.device());
        m_painter.drawText(QPointF(x, y + metrics.ascent()), metrics.elidedText(text, Qt::ElideRight, room));
    }

    int roomFrom(int x) const { return m_painter.viewport().width() - x; }

    void paintWatermark()
    {
        const QRect page = m_painter.viewport();
        drawImage({page.width() / 2 - 1500, page.height() / 2 - m_layout.watermarkRise, 3500, 4500},
                  m_watermark, {0, 0, 250, 300});
    }

    void paintFrame()
    {
        setInk(Ink::Black);
        const int right = m_painter.viewport().width() - 24;
        m_painter.drawLine(0, 800, right, 800);
        m_painter.drawLine(0, FootRuleY, right, FootRuleY);
        drawImage({-100, 13220, 1700, 500}, m_logo, {0, 0, 170, 48});
    }

    void paintHeadAndFoot()
    {
        setFont(14, RegularWeight);
        m_painter.drawText(QRect(350, 4, m_report.secondBrand ? 2620 : 2400, 750), Centred,
                           Texts::tr("Velmora Halvane"));
        drawImage({-120, 4, 1650, 580}, m_icon, {0, -8, 160, 45});
        m_painter.drawText(QRect(2000, 1100, 5000, 300), Centred, Texts::tr("S.M.A.R.T. Report"));

        setFont(BodyPoints, RegularWeight);
        drawLine(1700, 13380, roomFrom(1700),
                 Texts::tr("The information contained in this report has been generated by the "
                           "Velmora Halvane profiling process."));
        drawLine(1700, 13560, roomFrom(1700),
                 m_report.secondBrand ? Texts::tr("Velmora Halvane is a product of Korvane.")
                                      : Texts::tr("Velmora Halvane is a product of Velmora."));
    }

    void paintFixedParts()
    {
        paintHeadAndFoot();
        for (const Heading &heading : m_layout.headings)
            paintHeading(heading.y, heading.text);
        setFont(BodyPoints, RegularWeight);
        for (const Field &field : m_layout.fields)
            paintField(field);
        paintTableHeading(m_layout.tableY);
    }

    void paintLaterParts()
    {
        paintHeadAndFoot();
        paintHeading(LaterHeadingY, m_layout.headings.back().text);
        paintTableHeading(LaterTableY);
    }

    void paintHeading(int y, const char *text)
    {
        setFont(10, BoldWeight);
        drawLine(0, y, roomFrom(0), Texts::tr(text));
    }

    void paintField(const Field &field)
    {
        drawLine(0, field.y, m_layout.valueX - ColumnGap, Texts::tr(field.label));
        const Value value = field.value(m_report);
        const int x = m_layout.valueX + value.shift;
        setInk(value.ink);
        drawLine(x, field.y, roomFrom(x), value.text);
        setInk(Ink::Black);
    }

    void paintTableHeading(int y)
    {
        setFont(BodyPoints, BoldWeight);
        for (std::size_t i = 0; i < m_layout.columns.size(); ++i)
            drawLine(m_layout.columns[i].x, y, columnRoom(i), Texts::tr(m_layout.columns[i].text));
        setFont(BodyPoints, RegularWeight);
    }

    void paintRow(const SmartReport::Row &row, int y)
    {
        for (std::size_t i = 0; i < row.size(); ++i) {
            setInk(row[i].red ? Ink::Red : Ink::Black);
            drawLine(m_layout.columns[i].x, y, columnRoom(i), row[i].text);
        }
    }

    /// Up to the next column, or the page's edge.
    int columnRoom(std::size_t column) const
    {
        const int x = m_layout.columns[column].x;
        return column + 1 < m_layout.columns.size() ? m_layout.columns[column + 1].x - ColumnGap - x
                                                    : roomFrom(x);
    }

    QPainter &m_painter;
    const SmartReport &m_report;
    const std::function<void()> &m_newPage;
    const Layout &m_layout;
    // One object each, so that the file holds it once.
    const QImage m_logo;
    const QImage m_watermark;
    const QImage m_icon;
};

} // namespace

void paintReport(QPainter &painter, const SmartReport &report, const std::function<void()> &newPage)
{
    PagePainter(painter, report, newPage).paint();
}

bool writeReport(const QString &path, const SmartReport &report)
{
    QBuffer pages;
    pages.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pages);
    writer.setTitle(suggestedReportName(report));
    writer.setCreator(QStringLiteral("Velmora Halvane"));
    writer.setPageSize(QPageSize(QPageSize::A4));
    // In the layout's own unit. The rows of the footer are set for a page with margins as narrow as these.
    writer.setPageMargins(QMarginsF(20, 10, 20, 10));
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    painter.setRenderHint(QPainter::LosslessImageRendering);
    paintReport(painter, report, [&writer] { writer.newPage(); });
    painter.end();
    return ownfiles::saveFile(path, pages.data());
}

bool writePicture(const QString &path, const QPixmap &picture)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    const QByteArray format = QFileInfo(path).suffix().toLatin1();
    return !format.isEmpty() && picture.save(&bytes, format.constData()) &&
           ownfiles::saveFile(path, bytes.data());
}
