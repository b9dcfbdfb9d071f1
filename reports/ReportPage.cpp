// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/ReportPage.h"

#include "platform/OwnFiles.h"
#include "reports/SmartReport.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPixmap>

#include <algorithm>

namespace
{

constexpr int BodyPoints = 8;
constexpr int RowStep = 250;
constexpr int FootRuleY = 13150;
constexpr int ColumnGap = 60; ///< between a text that is too long and what stands right of it
/// The later pages bear the table alone.
constexpr int LaterHeadingY = 1500;
constexpr int LaterTableY = 1800;
constexpr int LaterRowY = 2050;
constexpr int ImageDensity = 4; ///< the images for print are that many times their design size

struct Value {
    QString text;
    Qt::GlobalColor ink = Qt::black;
    int shift = 0; ///< from the value column
};

/// A line of a label and its value, at its place in each layout; 0: the layout does not have it.
struct Field {
    int ataY;
    int nvmeY;
    const char *label;
    Value (*value)(const SmartReport &report);
};

struct Caption {
    int place; ///< y of a heading, x of a column
    const char *text;
};

/// What sets one layout apart from the other.
struct Layout {
    int watermarkRise; ///< above the middle of the page
    int valueX;
    std::vector<Caption> headings;
    int tableY;
    std::vector<Caption> columns;
    int firstRowY;
};

template<auto Field>
Value ata(const SmartReport &report)
{
    return {(report.ata.*Field).text()};
}

template<auto Ata, auto Nvme>
Value told(const SmartReport &report)
{
    return {report.nvme ? (report.log.*Nvme).text() : (report.ata.*Ata).text()};
}

template<QString SmartReport::*Text>
Value orNotAvailable(const SmartReport &report)
{
    return {(report.*Text).isEmpty() ? ReportTexts::tr("Not Available") : report.*Text};
}

Value temperature(const SmartReport &report)
{
    return {report.temperature};
}

Value largestTransfer(const SmartReport &report)
{
    return {report.log.MaxTransferSize.text()};
}

Value status(const SmartReport &report)
{
    return {report.smartStatus, report.smartFailed ? Qt::red : Qt::darkGreen};
}

/// A rating of exactly 40 is neither, and stays without a value.
Value rated(int percent, const QString &good, const QString &bad, int badShift)
{
    constexpr int Limit = 40;
    if (percent == Limit)
        return {};
    return percent > Limit ? Value{good, Qt::darkGreen} : Value{bad, Qt::red, badShift};
}

Value performance(const SmartReport &report)
{
    return rated(report.performance, report.performanceText, report.performanceText, 0);
}

Value health(const SmartReport &report)
{
    constexpr int NvmeBadShift = -500;
    if (!report.healthKnown)
        return {ReportTexts::tr("Not Available")};
    return rated(report.health, ReportTexts::tr("Good"), ReportTexts::tr("Bad"),
                 report.nvme ? NvmeBadShift : 0);
}

template<auto Time>
Value supported(const SmartReport &report)
{
    return (report.ata.*Time).isEmpty() ? Value{ReportTexts::tr("Not Supported"), Qt::red}
                                        : Value{ReportTexts::tr("Supported"), Qt::darkGreen};
}

template<auto Time>
Value completionTime(const SmartReport &report)
{
    return {(report.ata.*Time).isEmpty() ? ReportTexts::tr("NA") : (report.ata.*Time).text()};
}

const std::vector<Field> &fields()
{
    using A = SmartIdentity;
    using N = NvmeIdentity;
    static const std::vector<Field> all = {
        {1800, 0, QT_TRANSLATE_NOOP("MainWindow", "Make:"), ata<&A::ModelFamily>},
        {2000, 1800, QT_TRANSLATE_NOOP("MainWindow", "Model Number:"),
         told<&A::DeviceModel, &N::ModelNumber>},
        {2200, 2000, QT_TRANSLATE_NOOP("MainWindow", "Serial Number:"),
         told<&A::SerialNumber, &N::SerialNumber>},
        {2400, 2200, QT_TRANSLATE_NOOP("MainWindow", "Firmware Version:"), told<&A::Firmware, &N::Firmware>},
        {2600, 2400, QT_TRANSLATE_NOOP("MainWindow", "Capacity:"), told<&A::UserCapacity, &N::Capacity>},
        {2800, 2600, QT_TRANSLATE_NOOP("MainWindow", "Sector Size:"), told<&A::SectorSize, &N::LbaSize>},
        {3000, 0, QT_TRANSLATE_NOOP("MainWindow", "Rotation Rate:"), ata<&A::RotationRate>},
        {3200, 0, QT_TRANSLATE_NOOP("MainWindow", "ATA Version:"), ata<&A::AtaVersion>},
        {3400, 0, QT_TRANSLATE_NOOP("MainWindow", "SATA Version:"), ata<&A::SataVersion>},
        {3600, 2800, QT_TRANSLATE_NOOP("MainWindow", "Local  Time:"), told<&A::LocalTime, &N::LocalTime>},
        {0, 3000, QT_TRANSLATE_NOOP("MainWindow", "Maximum Data Transfer Size:"), largestTransfer},
        {3800, 3200, QT_TRANSLATE_NOOP("MainWindow", "SMART Status:"), status},
        {4000, 3400, QT_TRANSLATE_NOOP("MainWindow", "Current Temperature:"), temperature},
        {4200, 3600, QT_TRANSLATE_NOOP("MainWindow", "Performance:"), performance},
        {4400, 3800, QT_TRANSLATE_NOOP("MainWindow", "Health:"), health},
        {5200, 0, QT_TRANSLATE_NOOP("MainWindow", "Short Self-test:"), supported<&A::ShortPollTime>},
        {5400, 0, QT_TRANSLATE_NOOP("MainWindow", "Estimated Completion Time:"),
         completionTime<&A::ShortPollTime>},
        {5600, 0, QT_TRANSLATE_NOOP("MainWindow", "Extended Self-test:"), supported<&A::ExtendedPollTime>},
        {5800, 0, QT_TRANSLATE_NOOP("MainWindow", "Estimated Completion Time:"),
         completionTime<&A::ExtendedPollTime>},
        {6000, 0, QT_TRANSLATE_NOOP("MainWindow", "Last Run Self-test:"),
         orNotAvailable<&SmartReport::lastTestType>},
        {6200, 0, QT_TRANSLATE_NOOP("MainWindow", "Last Self-Test Result:"),
         orNotAvailable<&SmartReport::lastTestResult>},
    };
    return all;
}

const Layout &layoutOf(bool nvme)
{
    static const Layout ofNvme = {3000,
                                  4500,
                                  {{1500, QT_TRANSLATE_NOOP("MainWindow", "Disk Information:")},
                                   {4300, QT_TRANSLATE_NOOP("MainWindow", "S.M.A.R.T. Details:")}},
                                  4600,
                                  {{0, QT_TRANSLATE_NOOP("MainWindow", "ID")},
                                   {500, QT_TRANSLATE_NOOP("MainWindow", "Attribute Name")},
                                   {4500, QT_TRANSLATE_NOOP("MainWindow", "Values")}},
                                  4850};
    static const Layout ofAta = {2600,
                                 3100,
                                 {{1500, QT_TRANSLATE_NOOP("MainWindow", "Disk Information:")},
                                  {4900, QT_TRANSLATE_NOOP("MainWindow", "Self Test Details:")},
                                  {6700, QT_TRANSLATE_NOOP("MainWindow", "S.M.A.R.T. Details")}},
                                 7000,
                                 {{0, QT_TRANSLATE_NOOP("MainWindow", "ID")},
                                  {500, QT_TRANSLATE_NOOP("MainWindow", "Attribute Name")},
                                  {3100, QT_TRANSLATE_NOOP("MainWindow", "Status")},
                                  {4000, QT_TRANSLATE_NOOP("MainWindow", "Value")},
                                  {4900, QT_TRANSLATE_NOOP("MainWindow", "Worst")},
                                  {5800, QT_TRANSLATE_NOOP("MainWindow", "Threshold")},
                                  {7000, QT_TRANSLATE_NOOP("MainWindow", "Raw Value")}},
                                 7250};
    return nvme ? ofNvme : ofAta;
}

/// An image for paper. Its transparent pixels are white: a viewer that shrinks the image mixes them into its
/// edges, and black ones would give it an outline.
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
        : m_painter(painter), m_report(report), m_newPage(newPage), m_layout(layoutOf(report.nvme)),
          m_logo(printImage(report.logo)), m_watermark(printImage(report.watermark)),
          m_icon(printImage(report.icon))
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

    void setInk(Qt::GlobalColor ink)
    {
        if (ink == Qt::black)
            m_painter.setPen(QPen(Qt::black, 6.0, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
        else
            m_painter.setPen(ink);
    }

    void setFont(int points, int weight)
    {
        QFont face(QStringLiteral("Segoe UI"), points, weight);
        // A text that is searched in the file or copied from it has to be the one that was written. A
        // spacing too small to be seen prevents ligatures. Kerned pairs would be read as two words.
        face.setLetterSpacing(QFont::AbsoluteSpacing, 0.02);
        face.setKerning(points > BodyPoints);
        m_painter.setFont(face);
    }

    /// One line with its top at `y`, cut with dots where there is less room. All lines at one height share
    /// the baseline of the page's own font. Else a line in a script with taller letters would stand lower.
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
        setInk(Qt::black);
        const int right = m_painter.viewport().width() - 24;
        m_painter.drawLine(0, 800, right, 800);
        m_painter.drawLine(0, FootRuleY, right, FootRuleY);
        drawImage({-100, 13220, 1700, 500}, m_logo, {0, 0, 170, 48});
    }

    void paintHeadAndFoot()
    {
        setFont(14, QFont::Normal);
        m_painter.drawText(QRect(350, 4, m_report.secondBrand ? 2620 : 2400, 750), Qt::AlignCenter,
                           ReportTexts::tr("Velmora Halvane"));
        drawImage({-120, 4, 1650, 580}, m_icon, {0, -8, 160, 45});
        m_painter.drawText(QRect(2000, 1100, 5000, 300), Qt::AlignCenter,
                           ReportTexts::tr("S.M.A.R.T. Report"));

        setFont(BodyPoints, QFont::Normal);
        drawLine(1700, 13380, roomFrom(1700),
                 ReportTexts::tr("The information contained in this report has been generated by the "
                                 "Velmora Halvane profiling process."));
        drawLine(1700, 13560, roomFrom(1700),
                 m_report.secondBrand ? ReportTexts::tr("Velmora Halvane is a product of Korvane.")
                                      : ReportTexts::tr("Velmora Halvane is a product of Velmora."));
    }

    void paintFixedParts()
    {
        paintHeadAndFoot();
        for (const Caption &heading : m_layout.headings)
            paintHeading(heading.place, heading.text);
        setFont(BodyPoints, QFont::Normal);
        for (const Field &field : fields())
            paintField(field, m_report.nvme ? field.nvmeY : field.ataY);
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
        setFont(10, QFont::Bold);
        drawLine(0, y, roomFrom(0), ReportTexts::tr(text));
    }

    void paintField(const Field &field, int y)
    {
        if (y == 0)
            return;
        drawLine(0, y, m_layout.valueX - ColumnGap, ReportTexts::tr(field.label));
        const Value value = field.value(m_report);
        const int x = m_layout.valueX + value.shift;
        setInk(value.ink);
        drawLine(x, y, roomFrom(x), value.text);
        setInk(Qt::black);
    }

    void paintTableHeading(int y)
    {
        setFont(BodyPoints, QFont::Bold);
        for (std::size_t i = 0; i < m_layout.columns.size(); ++i)
            drawLine(m_layout.columns[i].place, y, columnRoom(i), ReportTexts::tr(m_layout.columns[i].text));
        setFont(BodyPoints, QFont::Normal);
    }

    void paintRow(const SmartReport::Row &row, int y)
    {
        for (std::size_t i = 0; i < row.size(); ++i) {
            setInk(row[i].red ? Qt::red : Qt::black);
            drawLine(m_layout.columns[i].place, y, columnRoom(i), row[i].text);
        }
    }

    /// Up to the next column, or the page's edge.
    int columnRoom(std::size_t column) const
    {
        const int x = m_layout.columns[column].place;
        return column + 1 < m_layout.columns.size() ? m_layout.columns[column + 1].place - ColumnGap - x
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
    // The footer's rows are set for margins as narrow as these.
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
