// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/LayoutCheck.h"

#include "tour/WidgetTexts.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QHeaderView>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{

/// A text that does not fit: what it needs and what its widget leaves for it.
struct Cut {
    QSize need;
    QSize have;
};

constexpr int Unlimited = 1 << 20;
constexpr int OverlapTolerance = 1; ///< pixels

QString withoutTrailingBlanks(const QString &text)
{
    int length = text.size();
    while (length > 0 && text.at(length - 1).isSpace())
        --length;
    return text.left(length);
}

QRect labelArea(const QLabel *label)
{
    const int margin = label->margin();
    QRect area = label->contentsRect().adjusted(margin, margin, -margin, -margin);
    int indent = label->indent();
    if (indent < 0)
        indent = label->frameWidth() > 0 ? label->fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 : 0;
    const Qt::Alignment side = QStyle::visualAlignment(label->layoutDirection(), label->alignment());
    if (side & Qt::AlignLeft)
        area.setLeft(area.left() + indent);
    else if (side & Qt::AlignRight)
        area.setRight(area.right() - indent);
    return area;
}

std::optional<Cut> richCut(const QLabel *label, const QSize &have)
{
    QTextDocument document;
    document.setDefaultFont(label->font());
    document.setDocumentMargin(0);
    document.setHtml(label->text());
    if (label->wordWrap())
        document.setTextWidth(have.width());
    const QSize need = document.size().toSize();
    if (need.width() <= have.width() && need.height() <= have.height())
        return std::nullopt;
    return Cut{need, have};
}

/// The line height has blank parts that may reach beyond the widget; only the letters have to fit. The edge
/// of the widget cuts, not that of the `area` for its text.
bool inkFits(const QWidget *widget, const QString &text, const QRect &area, Qt::Alignment alignment)
{
    const QFontMetrics metrics = widget->fontMetrics();
    const QRect ink = metrics.tightBoundingRect(text);
    int top = (area.height() - metrics.height()) / 2;
    if (alignment & Qt::AlignTop)
        top = 0;
    else if (alignment & Qt::AlignBottom)
        top = area.height() - metrics.height();
    const int baseline = area.top() + top + metrics.ascent();
    return baseline + ink.top() >= 0 && baseline + ink.bottom() < widget->height();
}

/// The part of a widget that its parents do not cut off. A scroll area counts as a whole, as it can be
/// scrolled.
QRect inSight(const QWidget *widget)
{
    QRect sight = widget->rect();
    QPoint offset;
    for (const QWidget *inner = widget; !inner->isWindow(); inner = inner->parentWidget()) {
        const QWidget *outer = inner->parentWidget();
        if (qobject_cast<const QAbstractScrollArea *>(outer->parentWidget()))
            return sight;
        offset += inner->pos();
        sight &= outer->rect().translated(-offset);
    }
    return sight;
}

bool isRich(const QLabel *label)
{
    return label->textFormat() == Qt::RichText ||
           (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
}

/// The place of a widget's text: the lines of a plain label, else the whole widget.
QRect textRect(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (!label || isRich(label))
        return widget->rect();
    const int wrap = label->wordWrap() ? Qt::TextWordWrap : 0;
    const int flags = static_cast<int>(label->alignment()) | Qt::TextExpandTabs | wrap;
    return label->fontMetrics().boundingRect(labelArea(label), flags, withoutTrailingBlanks(label->text()));
}

std::optional<Cut> cutByParents(const QWidget *widget)
{
    const QRect text = textRect(widget) & widget->rect();
    const QRect seen = text & inSight(widget);
    if (seen == text)
        return std::nullopt;
    return Cut{text.size(), seen.isEmpty() ? QSize(0, 0) : seen.size()};
}

std::optional<Cut> labelCut(const QLabel *label)
{
    const QRect area = labelArea(label);
    const QSize have = area.size();
    if (isRich(label))
        return richCut(label, have);

    const QFontMetrics metrics = label->fontMetrics();
    const QString text = withoutTrailingBlanks(label->text());
    const int flags = Qt::TextExpandTabs | (label->wordWrap() ? Qt::TextWordWrap : 0);
    const int room = label->wordWrap() ? have.width() : Unlimited;
    const QSize need = metrics.boundingRect(QRect(0, 0, room, Unlimited), flags, text).size();
    const bool oneLine = need.height() < 2 * metrics.height();
    const bool high =
        oneLine ? !inkFits(label, text, area, label->alignment()) : need.height() > have.height();
    if (need.width() <= have.width() && !high)
        return std::nullopt;
    return Cut{need, have};
}

/// A text on one line in the middle of `area`, for which `need` was measured.
std::optional<Cut> lineCut(const QWidget *widget, const QString &text, const QRect &area, const QSize &need)
{
    if (need.width() <= area.width() && inkFits(widget, text, area, Qt::AlignVCenter))
        return std::nullopt;
    return Cut{need, area.size()};
}

std::optional<Cut> buttonCut(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = button->iconSize();

    const bool radio = button->inherits("QRadioButton");
    const bool check = button->inherits("QCheckBox");
    QStyle::SubElement element = QStyle::SE_PushButtonContents;
    if (radio || check)
        element = radio ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents;
    const QRect area = button->style()->subElementRect(element, &option, button);

    constexpr int IconGap = 4;
    const QFontMetrics metrics = button->fontMetrics();
    QSize need = metrics.size(Qt::TextShowMnemonic, withoutTrailingBlanks(button->text()));
    const int iconWidth = button->icon().isNull() ? 0 : button->iconSize().width() + IconGap;
    need.setWidth(need.width() + iconWidth);
    return lineCut(button, button->text(), area, need);
}

QSize sizeOf(const QWidget *widget, const QString &text)
{
    const qreal width = QFontMetricsF(widget->font()).horizontalAdvance(text);
    return {static_cast<int>(std::ceil(width)), widget->fontMetrics().height()};
}

/// It takes dots where the whole text does not fit between the margins.
std::optional<Cut> comboCut(const QComboBox *combo)
{
    QStyleOptionComboBox option;
    option.initFrom(combo);
    const QRect field =
        combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
    return lineCut(combo, combo->currentText(), field.adjusted(1, 0, -1, 0),
                   sizeOf(combo, combo->currentText()));
}

std::optional<Cut> spinCut(const QAbstractSpinBox *box)
{
    const auto *field = box->findChild<QLineEdit *>();
    QStyleOptionFrame option;
    option.initFrom(field);
    constexpr int CursorMargin = 2; // on each side of a field's text
    const QRect area = field->style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, field)
                           .adjusted(CursorMargin, 0, -CursorMargin, 0);
    return lineCut(field, box->text(), area, sizeOf(field, box->text()));
}

QString headerText(const QHeaderView *header, int section)
{
    return header->model()->headerData(section, header->orientation()).toString();
}

std::optional<Cut> sectionCut(const QHeaderView *header, int section)
{
    QStyleOptionHeader option;
    option.initFrom(header);
    option.rect =
        QRect(header->sectionViewportPosition(section), 0, header->sectionSize(section), header->height());
    const QString text = headerText(header, section);
    QRect area = header->style()->subElementRect(QStyle::SE_HeaderLabel, &option, header);
    // For its dots a header leaves these margins, and counts blanks at the end as letters.
    const bool dots = header->textElideMode() != Qt::ElideNone;
    if (dots)
        area.setWidth(area.width() -
                      2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header));
    return lineCut(header, text, area, sizeOf(header, dots ? text : withoutTrailingBlanks(text)));
}

std::optional<Cut> cutOf(const QWidget *widget)
{
    if (const std::optional<Cut> cut = cutByParents(widget))
        return cut;
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return labelCut(label);
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return buttonCut(button);
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return comboCut(combo);
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(widget))
        return spinCut(box);
    return std::nullopt;
}

bool bearsText(const QWidget *widget)
{
    return !widgettexts::text(widget).trimmed().isEmpty();
}

QJsonArray asArray(const QSize &size)
{
    return {size.width(), size.height()};
}

} // namespace

namespace layoutcheck
{

QJsonArray clipped(const QWidget *window, const QString &step)
{
    QJsonArray found;
    const auto tell = [&](const QWidget *widget, const QString &text, const std::optional<Cut> &cut) {
        if (!cut)
            return;
        found.append(QJsonObject{{QStringLiteral("step"), step},
                                 {QStringLiteral("name"), widgettexts::name(widget)},
                                 {QStringLiteral("text"), text},
                                 {QStringLiteral("need"), asArray(cut->need)},
                                 {QStringLiteral("have"), asArray(cut->have)}});
    };
    for (const QWidget *widget : widgettexts::visibleChildren(window)) {
        if (bearsText(widget))
            tell(widget, widgettexts::text(widget), cutOf(widget));
    }
    for (const QHeaderView *header : window->findChildren<QHeaderView *>()) {
        for (int section = 0; header->isVisible() && section < header->count(); ++section) {
            if (!header->isSectionHidden(section))
                tell(header, headerText(header, section), sectionCut(header, section));
        }
    }
    return found;
}

QJsonArray overlaps(const QWidget *window, const QString &step)
{
    QVector<const QWidget *> texts;
    for (const QWidget *widget : widgettexts::visibleChildren(window)) {
        if (bearsText(widget))
            texts.append(widget);
    }
    QJsonArray found;
    for (int i = 0; i < texts.size(); ++i) {
        for (int j = i + 1; j < texts.size(); ++j) {
            const QWidget *one = texts.at(i);
            const QWidget *other = texts.at(j);
            const QRect common = one->geometry() & other->geometry();
            const int depth = std::min(common.width(), common.height());
            if (one->parent() != other->parent() || depth <= OverlapTolerance)
                continue;
            found.append(QJsonObject{
                {QStringLiteral("step"), step},
                {QStringLiteral("names"), QJsonArray{widgettexts::name(one), widgettexts::name(other)}},
                {QStringLiteral("texts"), QJsonArray{widgettexts::text(one), widgettexts::text(other)}},
                {QStringLiteral("rectangle"),
                 QJsonArray{common.x(), common.y(), common.width(), common.height()}}});
        }
    }
    return found;
}

} // namespace layoutcheck
