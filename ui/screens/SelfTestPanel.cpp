// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/SelfTestPanel.h"

#include "ui/widgets/Announce.h"
#include "ui/widgets/Style.h"

#include <QCoreApplication>

namespace
{

QString sheetOf(selftest::Told status)
{
    return status == selftest::Told::InProgress  ? style::GreyLabel
           : status == selftest::Told::Completed ? style::PassedLabel
                                                 : style::FailedLabel;
}

QString minutesText(std::optional<int> minutes)
{
    return minutes ? QString::number(*minutes) + QCoreApplication::translate("MainWindow", " minutes")
                   : QString();
}

QString nameOf(std::optional<SelfTestKind> kind)
{
    if (!kind)
        return QString();
    return *kind == SelfTestKind::Extended ? QCoreApplication::translate("MainWindow", "Extended Self-test")
                                           : QCoreApplication::translate("MainWindow", "Short Self-test");
}

} // namespace

SelfTestPanel::SelfTestPanel(QWidget *parent) : Page(parent)
{
    m_ui.setupUi(this);
    style::scaleForm(this);
    pagelook::styleHeadings({m_ui.TestNameLbl});
    pagelook::styleNames({m_ui.TestModelLbl, m_ui.TestSerialLbl, m_ui.TestBarLbl, m_ui.TestStatusLbl,
                          m_ui.PollingTimeLbl, m_ui.TestRemainingLbl, m_ui.TestElapsedLbl});
    pagelook::styleValues({m_ui.TestModelValLbl, m_ui.TestSerialValLbl, m_ui.TestPercentValLbl,
                           m_ui.TestStatusValLbl, m_ui.PollingTimeValLbl, m_ui.TestRemainingValLbl,
                           m_ui.TestElapsedValLbl});
    for (QFrame *card :
         {m_ui.DiskCard, m_ui.TestCard, m_ui.PollingCard, m_ui.RemainingCard, m_ui.ElapsedCard})
        pagelook::styleCard(card);
    for (QLabel *time : {m_ui.PollingTimeValLbl, m_ui.TestRemainingValLbl, m_ui.TestElapsedValLbl})
        time->setFont(style::font(13));
    m_ui.TestProgressBar->setStyleSheet(
        style::sheet(QStringLiteral("QProgressBar{background: #e9eef3; border: none; border-radius: %1px;}"
                                    "QProgressBar::chunk{background: @sign; border-radius: %1px;}"))
            .arg(style::px(4)));
    Show({});
}

void SelfTestPanel::Show(const SelfTest::Shown &shown)
{
    const bool ends =
        shown.status && shown.status != m_shown.status && *shown.status != selftest::Told::InProgress;
    m_shown = shown;
    // The names of the two cards share a column.
    pagelook::alignNames({m_ui.TestModelLbl, m_ui.TestSerialLbl, m_ui.TestStatusLbl});
    m_ui.TestModelValLbl->setText(shown.model);
    m_ui.TestSerialValLbl->setText(shown.serial);
    for (QLabel *name : {m_ui.TestNameLbl, m_ui.TestBarLbl})
        name->setText(nameOf(shown.kind));
    if (shown.percent >= 0 && shown.percent <= 100) {
        m_ui.TestProgressBar->setValue(shown.percent);
        m_ui.TestPercentValLbl->setText(QString::number(shown.percent) + QLatin1Char('%'));
    }
    style::setVisible({m_ui.TestProgressBar, m_ui.TestPercentValLbl}, shown.progress);
    m_ui.PollingCard->setVisible(shown.times && shown.pollingMinutes);
    m_ui.RemainingCard->setVisible(shown.times && shown.remainingMinutes);
    m_ui.ElapsedCard->setVisible(shown.times && !shown.elapsed.isEmpty());
    m_ui.TestStatusValLbl->setStyleSheet(sheetOf(shown.status.value_or(selftest::Told::InProgress)));
    m_ui.TestStatusValLbl->setText(
        shown.status ? QCoreApplication::translate("MainWindow", selftest::shownWords(*shown.status))
                     : QString());
    m_ui.TestStatusLbl->setVisible(shown.status.has_value());
    m_ui.PollingTimeValLbl->setText(minutesText(shown.pollingMinutes));
    m_ui.TestRemainingValLbl->setText(minutesText(shown.remainingMinutes));
    m_ui.TestElapsedValLbl->setText(shown.elapsed);
    if (ends)
        announce(m_ui.TestStatusValLbl);
}

void SelfTestPanel::retranslate()
{
    m_ui.retranslateUi(this);
    Show(m_shown);
}
