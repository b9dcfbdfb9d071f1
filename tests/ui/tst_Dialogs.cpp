// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/WatchSettings.h"
#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/Product.h"
#include "state/SettingsStore.h"
#include "tests/support/FakePlatform.h"
#include "tests/ui/Named.h"
#include "ui/dialogs/AboutDlg.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/dialogs/QShowUpdate.h"
#include "ui/screens/Settings.h"
#include "ui/widgets/Style.h"
#include "update/HelpLinks.h"

#include <QAction>
#include <QMenu>
#include <QScrollBar>
#include <QTextEdit>
#include <QtTest>

#include <functional>

namespace
{

template<typename Dialog>
QWidget *make()
{
    return new Dialog;
}

/// The name of a widget whose text has too little room; empty if all have enough.
QString cutText(const QWidget &dialog)
{
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        if (!label->isVisible() || label->text().isEmpty())
            continue;
        const QSize needed =
            label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
        if (needed.width() > label->width() || needed.height() > label->height())
            return label->objectName();
    }
    for (const QPushButton *button : dialog.findChildren<QPushButton *>()) {
        const QRect place(button->mapTo(&dialog, QPoint()), button->size());
        if (button->isVisible() &&
            (button->fontMetrics().horizontalAdvance(button->text()) >= button->width() ||
             !dialog.rect().contains(place)))
            return button->objectName();
    }
    return QString();
}

} // namespace

/// The settings window with access to its fields.
class OpenSettings : public Settings
{
public:
    QComboBox *const unit = field<QComboBox>("degreeComboBox");
    QSpinBox *const warning = field<QSpinBox>("WarningSpinBox");
    QSpinBox *const shutDown = field<QSpinBox>("ShutDownSpinBox");
    QSpinBox *const logLimit = field<QSpinBox>("LogLImitSpinBox");
    QLineEdit *const logPath = field<QLineEdit>("PathlineEdit");

    template<typename Widget>
    Widget *field(const char *name) const
    {
        return findChild<Widget *>(QLatin1String(name));
    }

    /// Unit, warning, shutdown and limit of the log; the boxes that are checked; the fields that are enabled.
    QString values() const
    {
        QString told;
        for (const int value : {unit->currentIndex(), warning->value(), shutDown->value(), logLimit->value()})
            told += QString::number(value) + ' ';
        for (const char *box : {"TrayChkBox", "WarningTemp", "LogChkBox", "SizeLimitChkBox"})
            told += field<QCheckBox>(box)->isChecked() ? *box : '-';
        told += ' ';
        for (const char *name : {"WarningSpinBox", "ShutDownSpinBox", "degreeComboBox_2", "PathlineEdit",
                                 "BrowsButton_2", "LogLImitSpinBox"})
            told += field<QWidget>(name)->isEnabled() ? *name : '-';
        return told;
    }
};

/// What all dialogs have from their frame, and what each adds. The settings on a store of their own.
class DialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pc = FakePlatform::install();
        g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Test");
        g_App.m_fScale = 1.0F;
        g_App.m_bShowLanguageMenu = true;
        g_App.m_bKorvaneBrand = false;
        languages::setOffered();
        languages::setFlag(0);
    }

    /// Texts of twice the length are not cut. To leave the dialog presses its dismissing button.
    void everyDialog()
    {
        const std::pair<std::function<QWidget *()>, const char *> dialogs[] = {
            {make<CloseWgt>, "NoButton"},
            {make<SmartWarning>, "OkButton"},
            {make<ShutDownWarning>, "OkButton"},
            {make<CloneWarning>, "CancelButton"},
            {make<ConfarmetionClass>, "NoButton"},
            {make<ScanSwitchClass>, "NoButton"},
            {make<InfoDialogClass>, "OkButton"},
            {make<DestinitionWarning>, "CloseButton"},
            {make<SelfTestNotSupported>, "CloseButton"},
            {make<QShowUpdate>, "CancelButton"},
            {make<AboutDlg>, "OkButton"}};
        for (const auto &[made, dismiss] : dialogs) {
            for (const float scale : {1.0F, 2.0F}) {
                g_App.m_fScale = scale;
                const std::unique_ptr<QWidget> dialog(made());
                dialog->show();
                {
                    // The texts change after the window got its size, so it has to adapt.
                    const OtherLanguage language("$ $");
                    QTRY_COMPARE(dialog->windowTitle().count(QLatin1String("Velmora Halvane")), 2);
                    QTRY_COMPARE(cutText(*dialog), QString());
                    for (const QLabel *label : dialog->findChildren<QLabel *>())
                        QVERIFY2(label->textFormat() != Qt::AutoText, qPrintable(label->objectName()));
                }
                QPushButton *button = buttonOf(dialog.get(), dismiss);
                QSignalSpy pressed(button, &QPushButton::clicked);
                connect(button, &QPushButton::clicked, dialog.get(), &QWidget::hide);
                dialog->show();
                QTest::keyClick(dialog.get(), Qt::Key_Escape);
                QCOMPARE(pressed.count(), 1);
                dialog->show();
                dialog->close();
                QVERIFY(pressed.count() == 2 && !dialog->isVisible());
            }
        }
    }

    void enterStartsNoDestruction()
    {
        CloneWarning clone;
        ShutDownWarning shutDown;
        QSignalSpy started(buttonOf(&clone, "StartButton"), &QPushButton::clicked);
        QSignalSpy cancelled(buttonOf(&clone, "CancelButton"), &QPushButton::clicked);
        QSignalSpy off(buttonOf(&shutDown, "ShutDownButton"), &QPushButton::clicked);
        for (QWidget *dialog : {static_cast<QWidget *>(&clone), static_cast<QWidget *>(&shutDown)}) {
            dialog->show();
            dialog->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(dialog));
            QTest::keyClick(dialog, Qt::Key_Return);
        }
        ConfarmetionClass stop;
        ScanSwitchClass leave;
        const std::tuple<QWidget *, const char *, const char *> questions[] = {
            {&clone, "StartButton", "CancelButton"},
            {&shutDown, "ShutDownButton", "OkButton"},
            {&stop, "YesButton", "NoButton"},
            {&leave, "YesButton", "NoButton"}};
        const QString blue = QLatin1String("background: ") + style::colour::Main;
        for (const auto &[question, loses, harmless] : questions) {
            QVERIFY(!buttonOf(question, loses)->styleSheet().contains(blue));
            QVERIFY(buttonOf(question, harmless)->styleSheet().contains(blue));
            question->show();
            QCOMPARE(question->focusWidget(), buttonOf(question, harmless));
            question->hide();
        }
        QCOMPARE(started.count(), 0);
        QCOMPARE(cancelled.count(), 1);
        QCOMPARE(off.count(), 0);
        QVERIFY(!shutDown.isVisible());
    }

    void growsAboutItsCentre()
    {
        InfoDialogClass box;
        box.SetTexts(QStringLiteral("Scan Completed"), QStringLiteral("Scan Completed."), QString());
        QVERIFY(labelOf(&box, "label_2")->isHidden());
        box.move(300, 300);
        box.show();
        const QPoint centre = box.geometry().center();
        const int height = box.height();
        box.SetTexts(QStringLiteral("Clone Disk"), QString("word ").repeated(120), QStringLiteral("Second"));
        QVERIFY(box.height() > height && !labelOf(&box, "label_2")->isHidden());
        QVERIFY((box.geometry().center() - centre).manhattanLength() <= 2);
        // The frame also notices a text that is set on the label itself.
        labelOf(&box, "label")->setText(QStringLiteral("Short."));
        QTRY_VERIFY(box.height() < height + 60);
        // The title that tells an outcome survives a language.
        const InfoDialogClass fresh;
        const OtherLanguage language("$ $");
        QCOMPARE(labelOf(&fresh, "HeaderLabel")->text(), QStringLiteral("Information Information"));
        QCOMPARE(labelOf(&box, "HeaderLabel")->text(), QStringLiteral("Clone Disk"));
    }

    void temperatureWarningsRemember()
    {
        SmartWarning warning;
        ShutDownWarning shutDown;
        warning.show();
        shutDown.show();
        buttonOf(&warning, "OkButton")->click();
        QVERIFY(!warning.isVisible() && !SettingsStore().flag(key::DontShow));
        warning.show();
        buttonOf(&warning, "DontShowButton")->click();
        QVERIFY(!warning.isVisible() && SettingsStore().flag(key::DontShow));
        QVERIFY(!SettingsStore().flag(key::ShutDownDontShow));
        buttonOf(&shutDown, "ShutDownButton")->click();
        QVERIFY(shutDown.isVisible());
        shutDown.OnDontShowClicked();
        QVERIFY(!shutDown.isVisible() && SettingsStore().flag(key::ShutDownDontShow));
    }

    void dragMovesTheWindow()
    {
        CloseWgt dialog;
        QLabel *label = labelOf(&dialog, "label");
        dialog.move(100, 100);
        dialog.show();
        QTest::mousePress(label, Qt::LeftButton, {}, QPoint(3, 3));
        const QPoint to(13, 8);
        QMouseEvent move(QEvent::MouseMove, to, label->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(label, &move);
        QCOMPARE(dialog.pos(), QPoint(110, 105));
        QTest::mouseRelease(label, Qt::LeftButton);
        QCoreApplication::sendEvent(label, &move);
        QCOMPARE(dialog.pos(), QPoint(110, 105));
    }

    /// Where nobody has installed, it tells what the publisher has chosen.
    void aboutOpensSupportAndLicence()
    {
        g_App.m_strAppFolderCopy = QDir::tempPath();
        const auto told = [](const AboutDlg &about) {
            return labelOf(&about, "VersionLabel")->text() + '|' + labelOf(&about, "LegalLabel")->text() +
                   '|' + labelOf(&about, "SupportNameLabel")->text() + '|' +
                   labelOf(&about, "SystemLabel")->text();
        };
        const QString rest =
            '|' + product::text("CopyrightText") + '|' + product::text("EN/SupportName") + "|Test system";
        QCOMPARE(told(AboutDlg()), QLatin1String("Version ") + product::Version + rest);
        SettingsStore().write(key::rxVersion, QStringLiteral("11.0.0.7"));
        SettingsStore().write(TextSetting{"EN/SupportLink"}, QString());
        AboutDlg about;
        QCOMPARE(told(about), "Version 11.0.0.7" + rest);
        about.OpenSupport();
        QVERIFY(m_pc->executed.isEmpty());
        SettingsStore().write(TextSetting{"EN/SupportLink"}, QStringLiteral("help@velmora.example"));
        about.OpenSupport();
        buttonOf(&about, "LicenseButton")->click();
        QCOMPARE(m_pc->executed, QStringList({"Open mailto:help@velmora.example ",
                                              QUrl::fromLocalFile(links::agreement()).toString()}));
    }

    void updateMessageBlocks()
    {
        SmallMessageDlg dialog;
        const auto *text = dialog.findChild<QTextEdit *>();
        dialog.show();
        for (const int lines : {2, 1}) {
            dialog.SetText(QStringLiteral("No update available."), lines);
            QCOMPARE(text->toPlainText(), QString(3 - lines, '\n') + "No update available.");
            QCOMPARE(text->verticalScrollBar()->maximum(), 0);
        }
    }

    void firstRun()
    {
        OpenSettings window;
        window.ApplyFirstRunDefaults();
        // 45 and 50 are below the minimum in Fahrenheit.
        QCOMPARE(window.values(), QString("1 104 122 99 TWLS WSdPBL"));
        window.LoadFromStore();
        QCOMPARE(window.values(), QString("0 45 50 99 TWLS WSdPBL"));
        QCOMPARE(SettingsStore().number(key::FirstTimeLaunch), 1);
    }

    void savingStoresAllTogether()
    {
        SettingsStore().write(key::FirstTimeLaunch, 1);
        OpenSettings window;
        window.ApplyFirstRunDefaults(); // a later run only changes the unit
        QCOMPARE(window.values(), QString("1 113 122 100 --LS WSdPBL"));
        window.LoadFromStore();
        // Nobody has touched the limits, and Ok leaves it so.
        QCOMPARE(window.values(), QString("0 45 50 99 -WLS WSdPBL"));
        window.SaveToStore();
        QVERIFY(WatchSettings::load().firstRunLimits && WatchSettings::load().warns);
        const auto stored = [&window] {
            window.SaveToStore();
            const SettingsStore store;
            QStringList found;
            for (const TextSetting &text :
                 {key::TempValue, key::WarningtemValue, key::ShutDowntemValue, key::LogSavePath})
                found << store.text(text);
            for (const NumberSetting &number :
                 {key::ShowWarning, key::DontShow, key::WarningValue, key::ShutDownValue, key::MaxLogSize})
                found << QString::number(store.number(number));
            return found.join(' ');
        };
        window.unit->setCurrentIndex(1);
        window.field<QCheckBox>("WarningTemp")->setChecked(false);
        for (const char *box : {"WarningTemp", "LogChkBox"})
            window.field<QCheckBox>(box)->setChecked(true);
        QCOMPARE(window.values(), QString("1 113 122 99 -WLS WSdPBL"));
        window.warning->setValue(150);
        window.shutDown->setValue(130); // a shutdown below the warning is accepted
        window.logPath->setText(QStringLiteral("D:\\logs\\disk.txt"));
        QCOMPARE(stored(), QString("F F F D:\\logs\\disk.txt 1 0 150 130 99"));
        for (const char *box : {"WarningTemp", "LogChkBox"})
            window.field<QCheckBox>(box)->setChecked(false);
        window.logPath->clear();
        window.field<QCheckBox>("SizeLimitChkBox")->setChecked(false);
        QCOMPARE(window.values(), QString("1 150 130 99 ---- --d---"));
        window.field<QCheckBox>("SizeLimitChkBox")->setChecked(true);
        window.logLimit->setValue(250);
        QCOMPARE(stored(), QString("F F F  0 1 150 130 250"));
        // The next start shows it.
        SettingsStore().write(key::ShowTrayIcon, 1);
        OpenSettings next;
        next.LoadFromStore();
        QCOMPARE(next.values(), QString("1 150 130 250 T--S -----L"));
        next.field<QCheckBox>("SizeLimitChkBox")->setChecked(false);
        next.SaveToStore();
        window.LoadFromStore();
        QCOMPARE(window.values(), QString("1 150 130 250 T--- ------"));
    }

    void captionsHaveOneGrey()
    {
        OpenSettings window;
        window.show();
        for (const char *caption : {"TrayChkBox", "LogChkBox", "logSizeLbl", "logSizeLbl_2", "WarningTemp"}) {
            const auto *shown = window.field<QWidget>(caption);
            QCOMPARE(shown->palette().color(shown->foregroundRole()), QColor(style::colour::Grey));
        }
    }

    void menuOffersLanguages()
    {
        const QString all = "English German French Italian Spanish Japanese Dutch Brazil Hindi Korean";
        const auto menu = [](int current, bool secondBrand) {
            languages::setFlag(current);
            g_App.m_bKorvaneBrand = secondBrand;
            const Settings window;
            QStringList texts;
            for (const QAction *action : buttonOf(&window, "m_pLanguageButton")->menu()->actions())
                texts << action->text();
            for (const QAction *action : window.findChildren<QAction *>())
                texts << (action->isChecked() ? ": " + action->objectName() : QString());
            return texts.join(' ').simplified();
        };
        QCOMPARE(menu(7, false), all + " : Korean");
        QCOMPARE(menu(-1, false), all + " : English");
        QCOMPARE(menu(6, false), all + " : Chinese"); // runs unoffered
        QCOMPARE(menu(2, true), all.section(' ', 0, 7) + " : French");
    }

private:
    FakePlatform *m_pc = nullptr;
};

QTEST_MAIN(DialogsTest)
#include "tst_Dialogs.moc"
