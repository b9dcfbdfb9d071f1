// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/Page.h"

#include "smart/Rating.h"
#include "ui/widgets/Style.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QLabel>

#include <algorithm>

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
    label->setStyleSheet(passed ? style::PassedLabel : style::FailedLabel);
}

void styleCard(QFrame *frame)
{
    frame->setStyleSheet(
        style::sheet(
            QStringLiteral(".QFrame{background: @white; border: 1px solid #dfe5eb; border-radius: %1px;}"))
            .arg(style::px(8)));
}

} // namespace pagelook
