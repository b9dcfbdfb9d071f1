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
    Show({});
}

void SelfTestPanel::Show(const Shown &shown)
{
    m_shown = shown;
    // The names of the two cards share a column.
    pagelook::alignNames({TestModelLbl, TestSerialLbl, TestStatusLbl});
    TestModelValLbl->setText(shown.model);
    TestSerialValLbl->setText(shown.serial);
    for (QLabel *name : {TestNameLbl, TestBarLbl})
        name->setText(nameOf(shown.kind));
    if (shown.percent >= 0 && shown.percent <= 100) {
        TestProgressBar->setValue(shown.percent);
        TestPercentValLbl->setText(QString::number(shown.percent) + QLatin1Char('%'));
    }
    TestProgressBar->setVisible(shown.progress);
    TestPercentValLbl->setVisible(shown.progress);
    for (QFrame *card : {PollingCard, RemainingCard, ElapsedCard})
        card->setVisible(shown.times);
    TestStatusValLbl->setStyleSheet(sheetOf(shown.status.value_or(selftest::Told::InProgress)));
    TestStatusValLbl->setText(
        shown.status ? QCoreApplication::translate("MainWindow", selftest::shownWords(*shown.status))
                     : QString());
    TestStatusLbl->setVisible(shown.status.has_value());
    PollingTimeValLbl->setText(minutesText(shown.pollingMinutes));
    TestRemainingValLbl->setText(minutesText(shown.remainingMinutes));
    TestElapsedValLbl->setText(shown.elapsed);
}

void SelfTestPanel::retranslate()
{
    retranslateUi(this);
    Show(m_shown);
}
