// SPDX-License-Identifier: GPL-3.0-or-later
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
#include "ui/widgets/StartLook.h"
#include "ui/widgets/Style.h"
#include "update/HelpLinks.h"

#include <QAccessible>
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

    /// Also those of the toolkit, and also under a dark theme.
    void allWindowsAreLight()
    {
        QApplication::setPalette(QPalette(QColor(0x20, 0x20, 0x20)));
        startlook::install();
        const Settings settings;
        const QMessageBox box;
        const QFileDialog files;
        for (const QWidget *window : std::initializer_list<const QWidget *>{&settings, &box, &files}) {
            for (const auto ground : {QPalette::Window, QPalette::Base})
                QVERIFY(window->palette().color(ground).lightness() > 240);
            for (const auto text : {QPalette::WindowText, QPalette::Text})
                QVERIFY(window->palette().color(text).lightness() < 110);
        }
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
                    // A screen reader calls each control by a name.
                    for (QWidget *part : dialog->findChildren<QWidget *>()) {
                        const bool control = (part->focusPolicy() & Qt::TabFocus) != 0 && !part->isHidden();
                        const QString name =
                            QAccessible::queryAccessibleInterface(part)->text(QAccessible::Name);
                        QVERIFY2(!control || !name.trimmed().isEmpty(), qPrintable(part->objectName()));
                    }
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
        Settings window;
        const auto values = [&window] {
            QList<int> found{window.findChild<QComboBox *>("degreeComboBox")->currentIndex()};
            for (const char *name : {"WarningSpinBox", "ShutDownSpinBox", "LogLImitSpinBox"})
                found << window.findChild<QSpinBox *>(name)->value();
            for (const char *name : {"TrayChkBox", "WarningTemp", "LogChkBox", "SizeLimitChkBox"})
                found << window.findChild<QCheckBox *>(name)->isChecked();
            return found;
        };
        window.ApplyFirstRunDefaults();
        // 45 and 50 are below the minimum in Fahrenheit.
        QCOMPARE(values(), (QList<int>{1, 104, 122, 99, 1, 1, 1, 1}));
        window.LoadFromStore();
        QCOMPARE(values(), (QList<int>{0, 45, 50, 99, 1, 1, 1, 1}));
        QCOMPARE(SettingsStore().number(key::FirstTimeLaunch), 1);
    }

    void captionsHaveOneGrey()
    {
        Settings window;
        window.show();
        for (const char *caption : {"TrayChkBox", "LogChkBox", "logSizeLbl", "logSizeLbl_2", "WarningTemp"}) {
            const auto *shown = window.findChild<QWidget *>(caption);
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
