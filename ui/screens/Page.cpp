// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/Page.h"

#include "smart/Rating.h"
#include "ui/widgets/FittingTexts.h"
#include "ui/widgets/Style.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QShortcut>

#include <algorithm>
#include <typeinfo>

void Page::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

namespace pagelook
{

void styleLabels(std::initializer_list<QLabel *> labels, const QFont &font, const QString &sheet)
{
    for (QLabel *label : labels) {
        label->setFont(font);
        label->setStyleSheet(sheet);
    }
}

void makePage(QWidget *page)
{
    style::scaleForm(page);
    page->setFixedSize(style::px(764), style::px(452));
    style::setWhiteBackground(page);
}

void styleHeadings(std::initializer_list<QLabel *> labels)
{
    styleLabels(labels, style::font(13), style::BlackLabel);
}

void styleNames(std::initializer_list<QLabel *> labels)
{
    styleLabels(labels, style::semiBold(10), style::GreyLabel);
}

void styleValues(std::initializer_list<QLabel *> labels)
{
    styleLabels(labels, style::font(10), style::GreyLabel);
    for (QLabel *label : labels)
        label->setMinimumWidth(1); // set by hand it takes the place of the text's own width
    makeCopyable(labels);
}

QString copyText(const QLabel *label)
{
    if (label->hasSelectedText())
        return label->selectedText();
    if (!dynamic_cast<const DetailLabel *>(label))
        return label->text();
    const QString value = DetailLabel::parts(label->text()).value;
    return value.mid(1).trimmed();
}

void makeCopyable(std::initializer_list<QLabel *> labels)
{
    for (QLabel *label : labels) {
        if (label->contextMenuPolicy() == Qt::CustomContextMenu)
            continue;
        label->setContextMenuPolicy(Qt::CustomContextMenu);
        label->setFocusPolicy(Qt::ClickFocus);
        if (typeid(*label) == typeid(QLabel))
            label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto *copy = new QShortcut(QKeySequence::Copy, label);
        copy->setContext(Qt::WidgetShortcut);
        QObject::connect(copy, &QShortcut::activated, label,
                         [label] { QGuiApplication::clipboard()->setText(copyText(label)); });
        QObject::connect(label, &QWidget::customContextMenuRequested, label, [label](const QPoint &place) {
            auto *menu = new QMenu(label);
            menu->setAttribute(Qt::WA_DeleteOnClose);
            const QString text = copyText(label);
            menu->addAction(QCoreApplication::translate("m_pSmartWgt", "Copy"),
                            [text] { QGuiApplication::clipboard()->setText(text); })
                ->setDisabled(text.isEmpty());
            menu->popup(label->mapToGlobal(place));
        });
    }
}

QString shownText(const QWidget *page)
{
    using Place = std::pair<QPoint, const QLabel *>;
    QVector<Place> places;
    for (const QLabel *label : page->findChildren<QLabel *>()) {
        if (label->isVisible() && !label->text().isEmpty() && label->styleSheet() != style::UnseenLabel)
            places.append({label->mapTo(page, label->rect().center()), label});
    }
    std::sort(places.begin(), places.end(),
              [](const Place &left, const Place &right) { return left.first.y() < right.first.y(); });
    QStringList lines;
    for (auto row = places.begin(); row != places.end();) {
        const auto end = std::find_if(row, places.end(), [row](const Place &place) {
            return place.first.y() > row->first.y() + row->second->fontMetrics().height() / 2;
        });
        std::sort(row, end,
                  [](const Place &left, const Place &right) { return left.first.x() < right.first.x(); });
        QStringList texts;
        for (; row != end; ++row)
            texts << row->second->text().simplified();
        lines << texts.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n'));
}

void alignNames(std::initializer_list<QLabel *> labels)
{
    int widest = 0;
    for (QLabel *label : labels) {
        label->ensurePolished();
        // A label's size hint is at least its minimum width, so the old one goes first.
        label->setMinimumWidth(0);
        widest = std::max(widest, label->sizeHint().width());
    }
    for (QLabel *label : labels)
        label->setMinimumWidth(widest);
}

void showResult(QLabel *label, OverallResult result)
{
    const bool passed = result == OverallResult::Passed;
    label->setText(passed ? QCoreApplication::translate("MainWindow", "Passed")
                   : result == OverallResult::NotSupported
                       ? QCoreApplication::translate("MainWindow", "Not Supported")
                       : QCoreApplication::translate("MainWindow", "Failed"));
    label->setStyleSheet(passed                                  ? style::PassedLabel
                         : result == OverallResult::NotSupported ? style::GreyLabel
                                                                 : style::FailedLabel);
}

void styleCard(QFrame *frame)
{
    frame->setStyleSheet(
        style::sheet(
            QStringLiteral(".QFrame{background: @white; border: 1px solid #dfe5eb; border-radius: %1px;}"))
            .arg(style::px(8)));
}

} // namespace pagelook
