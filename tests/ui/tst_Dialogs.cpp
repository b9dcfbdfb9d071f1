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
#include <QTranslator>
#include <QtTest>

#include <functional>

namespace
{

using Maker = std::function<QWidget *()>;

/// A language in which every text is twice as long.
class LongLanguage : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        return text + QLatin1Char(' ') + text;
    }
};

template<typename Dialog>
Maker maker()
{
    return [] { return new Dialog; };
}

/// The name of a widget whose text has too little room; empty if all have enough.
QString cutText(const QWidget &dialog)
{
    const auto labels = dialog.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (!label->isVisible() || label->text().isEmpty())
            continue;
        const QSize needed =
            label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
        if (needed.width() > label->width() || needed.height() > label->height())
            return label->objectName();
    }
    const auto buttons = dialog.findChildren<QPushButton *>();
    for (const QPushButton *button : buttons) {
        const QRect place(button->mapTo(&dialog, QPoint()), button->size());
        if (button->fontMetrics().horizontalAdvance(button->text()) >= button->width() ||
            !dialog.rect().contains(place))
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
    void init();
    void longTextsAreNotCut_data();
    void longTextsAreNotCut();
    void leavingPressesTheDismissingButton_data();
    void leavingPressesTheDismissingButton();
    void enterStartsNoDestruction();
    void growsAboutItsCentre();
    void outcomeTitleSurvivesALanguage();
    void temperatureWarningsRemember();
    void dragMovesTheWindow();
    void updateMessageBlocks_data();
    void updateMessageBlocks();
    void aboutOpensSupportAndLicence();
};

void DialogsTest::init()
{
    FakePlatform::install();
    g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Test");
    g_App.m_fScale = 1.0F;
}

void DialogsTest::longTextsAreNotCut_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<float>("scale");
    for (const float scale : {1.0F, 1.5F, 2.0F}) {
        const auto row = [scale](const char *name, const Maker &make) {
            QTest::addRow("%s at %.1f", name, static_cast<double>(scale)) << make << scale;
        };
        row("CloseWgt", maker<CloseWgt>());
        row("SmartWarning", maker<SmartWarning>());
        row("ShutDownWarning", maker<ShutDownWarning>());
        row("CloneWarning", maker<CloneWarning>());
        row("ScanSwitchClass", maker<ScanSwitchClass>());
        row("DestinitionWarning", maker<DestinitionWarning>());
        row("SelfTestNotSupported", maker<SelfTestNotSupported>());
        row("QShowUpdate", maker<QShowUpdate>());
        row("AboutDlg", maker<AboutDlg>());
    }
}

void DialogsTest::longTextsAreNotCut()
{
    QFETCH(Maker, make);
    QFETCH(float, scale);
    g_App.m_fScale = scale;
    const std::unique_ptr<QWidget> dialog(make());
    LongLanguage language;
    QCoreApplication::installTranslator(&language);
    dialog->show();
    // The texts change after the window got its size, so it has to adapt.
    QTRY_COMPARE(dialog->windowTitle().count(QLatin1String("Velmora Halvane")), 2);
    QTRY_COMPARE(cutText(*dialog), QString());
    for (const QLabel *label : dialog->findChildren<QLabel *>())
        QVERIFY2(label->textFormat() != Qt::AutoText, qPrintable(label->objectName()));
}

void DialogsTest::leavingPressesTheDismissingButton_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QString>("button");
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

void DialogsTest::leavingPressesTheDismissingButton()
{
    QFETCH(Maker, make);
    QFETCH(QString, button);
    const std::unique_ptr<QWidget> dialog(make());
    auto *dismiss = dialog->findChild<QPushButton *>(button);
    QVERIFY(dismiss);
    QSignalSpy pressed(dismiss, &QPushButton::clicked);
    connect(dismiss, &QPushButton::clicked, dialog.get(), &QWidget::hide);
    dialog->show();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    QCOMPARE(pressed.count(), 1);
    dialog->show();
    dialog->close();
    QCOMPARE(pressed.count(), 2);
    QVERIFY(!dialog->isVisible());
}

void DialogsTest::enterStartsNoDestruction()
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

void DialogsTest::growsAboutItsCentre()
{
    InfoDialogClass box;
    box.SetTexts(QStringLiteral("Scan Completed"), QStringLiteral("Scan Completed."), QString());
    QVERIFY(labelOf(&box, "label_2")->isHidden());
    box.move(300, 300);
    box.show();
    const QPoint centre = box.geometry().center();
    const int height = box.height();
    box.SetTexts(QStringLiteral("Clone Disk"),
                 QString(600, QLatin1Char('x')).replace(QLatin1String("xxxxx"), "word "),
                 QStringLiteral("Second"));
    QVERIFY(box.height() > height);
    QVERIFY(!labelOf(&box, "label_2")->isHidden());
    QVERIFY((box.geometry().center() - centre).manhattanLength() <= 2);
    // The frame also notices a text that is set on the label itself.
    labelOf(&box, "label")->setText(QStringLiteral("Short."));
    QTRY_VERIFY(box.height() < height + 60);
}

void DialogsTest::outcomeTitleSurvivesALanguage()
{
    InfoDialogClass fresh;
    InfoDialogClass filled;
    QCOMPARE(labelOf(&fresh, "HeaderLabel")->text(), QStringLiteral("Information"));
    filled.SetTexts(QStringLiteral("Scan Failed"), QStringLiteral("Scan Failed."), QString());
    LongLanguage language;
    QCoreApplication::installTranslator(&language);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(labelOf(&fresh, "HeaderLabel")->text(), QStringLiteral("Information Information"));
    QCOMPARE(labelOf(&filled, "HeaderLabel")->text(), QStringLiteral("Scan Failed"));
}

void DialogsTest::temperatureWarningsRemember()
{
    SmartWarning warning;
    ShutDownWarning shutDown;
    warning.show();
    shutDown.show();
    buttonOf(&warning, "OkButton")->click();
    QVERIFY(!warning.isVisible());
    QVERIFY(!SettingsStore().flag(key::DontShow));
    warning.show();
    buttonOf(&warning, "DontShowButton")->click();
    QVERIFY(!warning.isVisible());
    QVERIFY(SettingsStore().flag(key::DontShow));
    QVERIFY(!SettingsStore().flag(key::ShutDownDontShow));
    buttonOf(&shutDown, "ShutDownButton")->click();
    QVERIFY(shutDown.isVisible());
    shutDown.OnDontShowClicked();
    QVERIFY(!shutDown.isVisible());
    QVERIFY(SettingsStore().flag(key::ShutDownDontShow));
}

void DialogsTest::dragMovesTheWindow()
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

void DialogsTest::aboutOpensSupportAndLicence()
{
    auto *pc = new FakePlatform;
    Platform::install(std::unique_ptr<Platform>(pc));
    g_App.m_strAppFolderCopy = QDir::tempPath();
    SettingsStore().write(key::rxVersion, QStringLiteral("11.0.0.8"));
    AboutDlg about;
    QCOMPARE(labelOf(&about, "VersionLabel")->text(), QStringLiteral("Version 11.0.0.8"));
    QCOMPARE(labelOf(&about, "SystemLabel")->text(), QStringLiteral("Test system"));
    about.OpenSupport();
    QVERIFY(pc->executed.isEmpty());
    SettingsStore().write(TextSetting{"EN/SupportLink"}, QStringLiteral("help@velmora.example"));
    about.OpenSupport();
    buttonOf(&about, "LicenseButton")->click();
    QCOMPARE(pc->executed, QStringList({"Open mailto:help@velmora.example ",
                                        QUrl::fromLocalFile(links::agreement()).toString()}));
}

void DialogsTest::updateMessageBlocks_data()
{
    QTest::addColumn<int>("blankLines");
    QTest::addColumn<QString>("text");
    QTest::newRow("one line") << 1 << "\n\nNo update available.";
    QTest::newRow("two lines") << 2 << "\nNo update available.";
}

void DialogsTest::updateMessageBlocks()
{
    QFETCH(int, blankLines);
    SmallMessageDlg dialog;
    const auto *text = dialog.findChild<QTextEdit *>();
    dialog.SetText(QStringLiteral("Old"), 1);
    dialog.SetText(QStringLiteral("No update available."), blankLines);
    QTEST(text->toPlainText(), "text");
    const QTextBlock first = text->document()->firstBlock();
    const QTextBlock last = text->document()->lastBlock();
    QCOMPARE(first.charFormat().fontPointSize(), 11.0);
    QCOMPARE(first.charFormat().fontWeight(), 75);
    QCOMPARE(last.begin().fragment().charFormat().fontPointSize(), 10.0);
    QCOMPARE(last.begin().fragment().charFormat().fontWeight(), 50);
    QCOMPARE(last.blockFormat().alignment() & Qt::AlignHCenter, Qt::AlignHCenter);
    dialog.show();
    QVERIFY(text->verticalScrollBar()->maximum() == 0);
}

QTEST_MAIN(DialogsTest)

#include "tst_Dialogs.moc"
