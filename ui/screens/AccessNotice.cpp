// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/AccessNotice.h"

#include "platform/Platform.h"
#include "ui/screens/PageLook.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

#include <QLabel>
#include <QVBoxLayout>

AccessNotice::AccessNotice(QWidget *parent) : Page(parent)
{
    style::setWhiteBackground(this);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(style::px(12));
    column->addStretch(1);
    auto *picture = new QLabel(this);
    images::setLabelImage(picture, QStringLiteral("img_Locked.png"));
    column->addWidget(picture, 0, Qt::AlignHCenter);
    m_pHeading = addText("m_pHeading", style::font(13));
    m_pHeading->setStyleSheet(style::BlackLabel);
    m_pReason = addText("m_pReason", style::font(10));
    m_pAdvice = addText("m_pAdvice", style::font(10));
    m_pCommand = addText("m_pCommand", style::font(10));
    m_pCommand->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pCommand->setCursor(Qt::IBeamCursor);
    m_pCommand->setStyleSheet(
        QStringLiteral("QLabel{color: #000000; background: #f5f5f5; border: 1px solid #d7dde3; "
                       "border-radius: %1px; padding: %2px;}")
            .arg(style::px(4))
            .arg(style::px(8)));
    column->addStretch(2);
    retranslate();
}

QLabel *AccessNotice::addText(const char *name, const QFont &font)
{
    constexpr int TextWidth = 520;
    auto *label = pagelook::named(new QLabel(this), name);
    pagelook::styleLabels({label}, font, style::GreyLabel);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setFixedWidth(style::px(TextWidth));
    static_cast<QVBoxLayout *>(layout())->addWidget(label, 0, Qt::AlignHCenter);
    return label;
}

void AccessNotice::retranslate()
{
    const QString command = Platform::current().AdministratorCommand();
    m_pHeading->setText(tr("No disk can be opened"));
    m_pReason->setText(tr("Velmora Halvane needs the rights of an administrator to open disks. Without them "
                          "nothing can be said of their health."));
    m_pAdvice->setText(
        command.isEmpty()
            ? tr("Close the program, right-click its icon and choose \"Run as administrator\".")
            : tr("Close the program and start it as root. This command does it in a terminal:"));
    m_pCommand->setText(command);
    m_pCommand->setHidden(command.isEmpty());
    for (QLabel *label : {m_pHeading, m_pReason, m_pAdvice, m_pCommand}) {
        label->ensurePolished();
        if (!label->text().isEmpty())
            label->setFixedHeight(label->heightForWidth(label->width()));
    }
}
