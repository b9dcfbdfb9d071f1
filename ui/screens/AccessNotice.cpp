// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/AccessNotice.h"

#include "platform/Platform.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

AccessNotice::AccessNotice(QWidget *parent) : Page(parent)
{
    m_ui.setupUi(this);
    pagelook::makePage(this);
    m_ui.NoticeColumn->setContentsMargins(9, 9, 9, 9); // at every scale
    images::setLabelImage(m_ui.PictureLabel, QStringLiteral("img_Locked.png"));
    pagelook::styleLabels({m_ui.m_pHeading}, style::font(13), style::BlackLabel);
    pagelook::styleLabels({m_ui.m_pReason, m_ui.m_pAdvice}, style::font(10), style::GreyLabel);
    pagelook::styleLabels(
        {m_ui.m_pCommand}, style::font(10),
        style::sheet(QStringLiteral("QLabel{color: @text; background: @pale; border: 1px solid "
                                    "#d7dde3; border-radius: %1px; padding: %2px;}"))
            .arg(style::px(4))
            .arg(style::px(8)));
    retranslate();
}

void AccessNotice::retranslate()
{
    const QString command = Platform::current().AdministratorCommand();
    m_ui.retranslateUi(this);
    m_ui.m_pAdvice->setText(
        command.isEmpty()
            ? tr("Close the program, right-click its icon and choose \"Run as administrator\".")
            : tr("Close the program and start it as root. This command does it in a terminal:"));
    m_ui.m_pCommand->setText(command);
    m_ui.m_pCommand->setHidden(command.isEmpty());
    for (QLabel *label : {m_ui.m_pHeading, m_ui.m_pReason, m_ui.m_pAdvice, m_ui.m_pCommand}) {
        label->ensurePolished();
        if (!label->text().isEmpty())
            label->setFixedHeight(label->heightForWidth(label->width()));
    }
}
