// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/SelfTestPanel.h"

#include "ui/screens/PageLook.h"
#include "ui/widgets/Style.h"

#include <QCoreApplication>

namespace
{

QString sheetOf(selftest::Told status)
{
    const char *colour = status == selftest::Told::InProgress  ? "Black"
                         : status == selftest::Told::Completed ? "Green"
                                                               : "Red";
    return QStringLiteral("QLabel {color : %1;}").arg(QLatin1String(colour));
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
    setupUi(this);
    style::scaleForm(this);
    pagelook::styleHeadings({TestNameLbl});
    pagelook::styleNames({TestModelLbl, TestSerialLbl, TestBarLbl, TestStatusLbl, PollingTimeLbl,
                          TestRemainingLbl, TestElapsedLbl});
    pagelook::styleValues({TestModelValLbl, TestSerialValLbl, TestPercentValLbl, TestStatusValLbl,
                           PollingTimeValLbl, TestRemainingValLbl, TestElapsedValLbl});
    for (QLabel *identity : {TestModelValLbl, TestSerialValLbl})
        identity->setStyleSheet(style::BlackLabel);
    for (QFrame *card : {DiskCard, TestCard, PollingCard, RemainingCard, ElapsedCard})
        pagelook::styleCard(card);
    for (QLabel *time : {PollingTimeValLbl, TestRemainingValLbl, TestElapsedValLbl})
        time->setFont(style::font(13));
    TestProgressBar->setStyleSheet(
        QStringLiteral("QProgressBar{background: #e9eef3; border: none; border-radius: %1px;}"
                       "QProgressBar::chunk{background: #2a81e5; border-radius: %1px;}")
            .arg(style::px(4)));
    SetProgress(0);
    showTexts();
}

void SelfTestPanel::showTexts()
{
    // The names of the two cards share a column.
    pagelook::alignNames({TestModelLbl, TestSerialLbl, TestStatusLbl});
    TestNameLbl->setText(nameOf(m_kind));
    TestBarLbl->setText(nameOf(m_kind));
    TestStatusValLbl->setStyleSheet(sheetOf(m_status.value_or(selftest::Told::InProgress)));
    TestStatusValLbl->setText(
        m_status ? QCoreApplication::translate("MainWindow", selftest::shownWords(*m_status)) : QString());
    TestStatusLbl->setVisible(m_status.has_value());
    PollingTimeValLbl->setText(minutesText(m_pollingMinutes));
    TestRemainingValLbl->setText(minutesText(m_remainingMinutes));
}

void SelfTestPanel::SetTestName(std::optional<SelfTestKind> kind)
{
    m_kind = kind;
    showTexts();
}

void SelfTestPanel::SetDisk(const QString &model, const QString &serial)
{
    TestModelValLbl->setText(model);
    TestSerialValLbl->setText(serial);
}

void SelfTestPanel::ShowProgress(bool shown)
{
    TestProgressBar->setVisible(shown);
    TestPercentValLbl->setVisible(shown);
}

void SelfTestPanel::ShowTimes(bool shown)
{
    for (QFrame *card : {PollingCard, RemainingCard, ElapsedCard})
        card->setVisible(shown);
}

void SelfTestPanel::SetProgress(int percent)
{
    if (percent < 0 || percent > 100)
        return;
    TestProgressBar->setValue(percent);
    TestPercentValLbl->setText(QString::number(percent) + QLatin1Char('%'));
}

void SelfTestPanel::SetStatus(std::optional<selftest::Told> status)
{
    m_status = status;
    showTexts();
}

void SelfTestPanel::SetPollingMinutes(std::optional<int> minutes)
{
    m_pollingMinutes = minutes;
    showTexts();
}

void SelfTestPanel::SetRemainingMinutes(std::optional<int> minutes)
{
    m_remainingMinutes = minutes;
    showTexts();
}

void SelfTestPanel::SetElapsed(const QString &text)
{
    TestElapsedValLbl->setText(text);
}

void SelfTestPanel::retranslate()
{
    retranslateUi(this);
    showTexts();
}
