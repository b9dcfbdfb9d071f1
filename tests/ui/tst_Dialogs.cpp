// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"
#include "state/Languages.h"
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
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
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
    QCheckBox *const alarm = field<QCheckBox>("WarningTemp");
    QLineEdit *const logPath = field<QLineEdit>("PathlineEdit");

    template<typename Widget>
    Widget *field(const char *name) const
    {
        return findChild<Widget *>(QLatin1String(name));
    }

    /// Unit, warning, shutdown, limit of the log, tray and alarm.
    QVector<int> values() const
    {
        return {unit->currentIndex(),
                warning->value(),
                shutDown->value(),
                field<QSpinBox>("LogLImitSpinBox")->value(),
                field<QCheckBox>("TrayChkBox")->isChecked(),
                alarm->isChecked()};
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
                QVERIFY(button);
                QSignalSpy pressed(button, &QPushButton::clicked);
                connect(button, &QPushButton::clicked, dialog.get(), &QWidget::hide);
                dialog->show();
                QTest::keyClick(dialog.get(), Qt::Key_Escape);
                QCOMPARE(pressed.count(), 1);
                dialog->show();
                dialog->close();
                QCOMPARE(pressed.count(), 2);
                QVERIFY(!dialog->isVisible());
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
        box.SetTexts(QStringLiteral("Clone Disk"), QStringLiteral("word ").repeated(120),
                     QStringLiteral("Second"));
        QVERIFY(box.height() > height);
        QVERIFY(!labelOf(&box, "label_2")->isHidden());
        QVERIFY((box.geometry().center() - centre).manhattanLength() <= 2);
        // The frame also notices a text that is set on the label itself.
        labelOf(&box, "label")->setText(QStringLiteral("Short."));
        QTRY_VERIFY(box.height() < height + 60);
        // The title that tells an outcome survives a language.
        InfoDialogClass fresh;
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

    void aboutOpensSupportAndLicence()
    {
        g_App.m_strAppFolderCopy = QDir::tempPath();
        SettingsStore().write(key::rxVersion, QStringLiteral("11.0.0.8"));
        AboutDlg about;
        QCOMPARE(labelOf(&about, "VersionLabel")->text(), QStringLiteral("Version 11.0.0.8"));
        QCOMPARE(labelOf(&about, "SystemLabel")->text(), QStringLiteral("Test system"));
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

    void whatTheStoreHasIsShown()
    {
        {
            OpenSettings window;
            window.ApplyFirstRunDefaults();
            // 45 and 50 are below the minimum in Fahrenheit.
            QCOMPARE(window.values(), (QVector<int>{1, 104, 122, 99, 1, 1}));
            window.LoadFromStore();
            QCOMPARE(window.values(), (QVector<int>{0, 45, 50, 99, 1, 1}));
            QCOMPARE(SettingsStore().number(key::FirstTimeLaunch), 1);
        }
        init();
        // A later run only changes the unit.
        SettingsStore().write(key::FirstTimeLaunch, 1);
        OpenSettings window;
        window.ApplyFirstRunDefaults();
        QCOMPARE(window.values(), (QVector<int>{1, 113, 122, 100, 0, 0}));
        window.LoadFromStore();
        // What the store does not have counts as 0, and is raised.
        QCOMPARE(window.values(), (QVector<int>{0, 40, 50, 100, 0, 0}));
        SettingsStore store;
        store.write(key::TempValue, QStringLiteral("F"));
        store.write(key::ShowTrayIcon, 1);
        store.write(key::ShowWarning, 0);
        store.write(key::WarningValue, 131);
        store.write(key::ShutDownValue, 140);
        window.LoadFromStore();
        QCOMPARE(window.values(), (QVector<int>{1, 131, 140, 100, 1, 0}));
        QVERIFY(!window.warning->isEnabled() && !window.shutDown->isEnabled());
        QVERIFY(!window.field<QComboBox>("degreeComboBox_2")->isEnabled());
    }

    void savingStoresAllTogether()
    {
        OpenSettings window;
        window.unit->setCurrentIndex(1);
        window.alarm->setChecked(true);
        window.warning->setValue(150);
        window.shutDown->setValue(130); // a shutdown below the warning is accepted
        window.logPath->setText(QStringLiteral("D:\\logs\\disk.txt"));
        window.SaveToStore();
        const SettingsStore store;
        for (const TextSetting &unit : {key::TempValue, key::WarningtemValue, key::ShutDowntemValue})
            QCOMPARE(store.text(unit), QStringLiteral("F"));
        QVERIFY(store.flag(key::ShowWarning) && !store.flag(key::DontShow));
        QCOMPARE(store.number(key::WarningValue), 150);
        QCOMPARE(store.number(key::ShutDownValue), 130);
        QCOMPARE(store.text(key::LogSavePath), QStringLiteral("D:\\logs\\disk.txt"));

        window.alarm->setChecked(false);
        window.logPath->clear();
        window.SaveToStore();
        QVERIFY(!store.flag(key::ShowWarning) && store.flag(key::DontShow));
        QCOMPARE(store.text(key::LogSavePath), QString());
    }

    void checkBoxesEnableTheirFields()
    {
        OpenSettings window;
        for (const bool on : {true, false, true}) {
            for (const char *box : {"LogChkBox", "SizeLimitChkBox", "WarningTemp"})
                window.field<QCheckBox>(box)->setChecked(on);
            for (const char *field :
                 {"PathlineEdit", "BrowsButton_2", "LogLImitSpinBox", "WarningSpinBox", "ShutDownSpinBox"})
                QCOMPARE(window.field<QWidget>(field)->isEnabled(), on);
        }
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

    /// A dark system shows in none of our windows, nor in those of the toolkit.
    void allWindowsAreLight()
    {
        QApplication::setPalette(QPalette(QColor(0x20, 0x20, 0x20)));
        QApplication::setPalette(style::lightPalette());
        const OpenSettings settings;
        const QMessageBox box;
        const QFileDialog files;
        for (const QWidget *window : std::initializer_list<const QWidget *>{&settings, &box, &files}) {
            QVERIFY(window->palette().color(QPalette::Window).lightness() > 240);
            QVERIFY(window->palette().color(QPalette::Base).lightness() > 240);
            QVERIFY(window->palette().color(QPalette::WindowText).lightness() < 110);
            QVERIFY(window->palette().color(QPalette::Text).lightness() < 110);
        }
    }

    void menuOffersLanguages()
    {
        const QStringList all{"English",  "German", "French", "Italian", "Spanish",
                              "Japanese", "Dutch",  "Brazil", "Hindi",   "Korean"};
        const auto check = [](int current, bool secondBrand, const QStringList &offered, const QString &now) {
            languages::setFlag(current);
            g_App.m_bKorvaneBrand = secondBrand;
            const Settings window;
            QStringList texts;
            for (const QAction *action : buttonOf(&window, "m_pLanguageButton")->menu()->actions())
                texts << action->text();
            QCOMPARE(texts, offered);
            for (const QAction *action : window.findChildren<QAction *>()) {
                if (action->isCheckable())
                    QCOMPARE(action->isChecked(), action->objectName() == now);
            }
        };
        check(7, false, all, "Korean");
        check(-1, false, all, "English");
        check(6, false, all, "Chinese"); // runs unoffered
        check(2, true, all.mid(0, 8), "French");
    }

private:
    FakePlatform *m_pc = nullptr;
};

QTEST_MAIN(DialogsTest)
#include "tst_Dialogs.moc"
