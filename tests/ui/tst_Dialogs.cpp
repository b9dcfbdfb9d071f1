// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"
#include "state/SettingsStore.h"
#include "tests/support/FakePlatform.h"
#include "tests/ui/Named.h"
#include "ui/dialogs/AboutDlg.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/dialogs/QShowUpdate.h"
#include "ui/dialogs/SmallMessageDlg.h"
#include "update/HelpLinks.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QtTest>

#include <functional>

namespace
{

using Maker = std::function<QWidget *()>;

template<typename Dialog>
Maker maker()
{
    return [] { return new Dialog; };
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

Q_DECLARE_METATYPE(Maker)

/// What all dialogs have from their frame, and what each adds.
class DialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pc = FakePlatform::install();
        g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Test");
        g_App.m_fScale = 1.0F;
    }

    void everyDialog_data()
    {
        QTest::addColumn<Maker>("make");
        QTest::addColumn<QString>("dismiss");
        QTest::newRow("CloseWgt") << maker<CloseWgt>() << "NoButton";
        QTest::newRow("SmartWarning") << maker<SmartWarning>() << "OkButton";
        QTest::newRow("ShutDownWarning") << maker<ShutDownWarning>() << "OkButton";
        QTest::newRow("CloneWarning") << maker<CloneWarning>() << "CancelButton";
        QTest::newRow("ConfarmetionClass") << maker<ConfarmetionClass>() << "NoButton";
        QTest::newRow("ScanSwitchClass") << maker<ScanSwitchClass>() << "NoButton";
        QTest::newRow("InfoDialogClass") << maker<InfoDialogClass>() << "OkButton";
        QTest::newRow("DestinitionWarning") << maker<DestinitionWarning>() << "CloseButton";
        QTest::newRow("SelfTestNotSupported") << maker<SelfTestNotSupported>() << "CloseButton";
        QTest::newRow("QShowUpdate") << maker<QShowUpdate>() << "CancelButton";
        QTest::newRow("AboutDlg") << maker<AboutDlg>() << "OkButton";
    }

    /// Texts of twice the length are not cut. To leave the dialog presses its dismissing button.
    void everyDialog()
    {
        QFETCH(Maker, make);
        QFETCH(QString, dismiss);
        for (const float scale : {1.0F, 1.5F, 2.0F}) {
            g_App.m_fScale = scale;
            const std::unique_ptr<QWidget> dialog(make());
            dialog->show();
            {
                // The texts change after the window got its size, so it has to adapt.
                const OtherLanguage language("$ $");
                QTRY_COMPARE(dialog->windowTitle().count(QLatin1String("Velmora Halvane")), 2);
                QTRY_COMPARE(cutText(*dialog), QString());
                for (const QLabel *label : dialog->findChildren<QLabel *>())
                    QVERIFY2(label->textFormat() != Qt::AutoText, qPrintable(label->objectName()));
            }
            auto *button = dialog->findChild<QPushButton *>(dismiss);
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
    }

    void outcomeTitleSurvivesALanguage()
    {
        InfoDialogClass fresh;
        InfoDialogClass filled;
        filled.SetTexts(QStringLiteral("Scan Failed"), QStringLiteral("Scan Failed."), QString());
        const OtherLanguage language("$ $");
        QCOMPARE(labelOf(&fresh, "HeaderLabel")->text(), QStringLiteral("Information Information"));
        QCOMPARE(labelOf(&filled, "HeaderLabel")->text(), QStringLiteral("Scan Failed"));
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
        dialog.SetText(QStringLiteral("Old"), 2);
        dialog.SetText(QStringLiteral("No update available."), 1);
        QCOMPARE(text->toPlainText(), QStringLiteral("\n\nNo update available."));
        const QTextBlock last = text->document()->lastBlock();
        QCOMPARE(text->document()->firstBlock().charFormat().fontWeight(), 75);
        QCOMPARE(last.begin().fragment().charFormat().fontWeight(), 50);
        QCOMPARE(last.blockFormat().alignment() & Qt::AlignHCenter, Qt::AlignHCenter);
        dialog.show();
        QVERIFY(text->verticalScrollBar()->maximum() == 0);
        dialog.SetText(QStringLiteral("No update available."), 2);
        QCOMPARE(text->toPlainText(), QStringLiteral("\nNo update available."));
    }

private:
    FakePlatform *m_pc = nullptr;
};

QTEST_MAIN(DialogsTest)
#include "tst_Dialogs.moc"
