// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/WindowFixture.h"
#include "ui/screens/Settings.h"

#include <QAccessible>
#include <QClipboard>
#include <QMenu>
#include <QRadioButton>
#include <QTreeWidget>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

/// The whole program by real keys alone, and what a screen reader gets of its controls.
class tst_Keyboard : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        addReport("ata.txt", sample("ata-seagate-st31500341as.txt"));
        addReport("caps.txt", capabilities("caps-idle-72.txt"));
        openWindow(pcOf(R"(
            {"number": 0, "model": "A", "sectors": 163940, "report": "ata.txt", "capabilities": "caps.txt",
             "selfTest": {"secondsPerMinute": 0}},
            {"number": 1, "model": "B", "sectors": 163940})"));
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get()));
    }
    void cleanup()
    {
        g_bAbortJob = true;
        QTRY_VERIFY_WITH_TIMEOUT(g_Jobs.mayStart(), 20000);
        tearDown();
    }

    void screens()
    {
        const char *const buttons[] = {"DiskStatusButton", "SmartStatusButton", "DiskPartitionButton",
                                       "ScanDiskButton", "CloneDiskButton"};
        for (int i = 0; i < 5; ++i) {
            keys(Qt::Key_1 + i, Qt::ControlModifier);
            waitForRest();
            QVERIFY(isDown(buttons[i]));
            tabReachesAll();
            // The focus that goes on leaves the look of the screen on show.
            QVERIFY(isDown(buttons[i]) && child<MyButton>(buttons[i])->isChecked());
        }
        tabTo("CloneDiskButton");
        keys(Qt::Key_Up);
        QVERIFY(child<MyButton>("ScanDiskButton")->hasFocus());
        QVERIFY(shown("m_pFocusRing"));
        keys(Qt::Key_Space);
        QVERIFY(isDown("ScanDiskButton"));
        // A screen reader presses it otherwise.
        auto *reader = QAccessible::queryAccessibleInterface(child<QWidget>("CloneDiskButton"));
        reader->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(isDown("CloneDiskButton") && child<MyButton>("CloneDiskButton")->isChecked());
        QTest::mouseClick(child<QWidget>("HeaderLabel"), Qt::LeftButton);
        QVERIFY(!child<QWidget>("m_pFocusRing"));
    }

    void scanAndSelfTest()
    {
        QPlatformAccessibility *reader = QGuiApplicationPrivate::platformIntegration()->accessibility();
        reader->setActive(true);
        static QStringList announced;
        const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
            if (event->type() == QAccessible::Alert)
                announced << event->accessibleInterface()->text(QAccessible::Name);
        });
        keys(Qt::Key_4, Qt::ControlModifier);
        tabTo("ScanButton");
        keys(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(outcome(), QStringLiteral("Scan Completed|Scan Completed.|"), 20000);
        inDialog<InfoDialogClass>(Qt::Key_Return);
        QVERIFY(outcome().isEmpty());
        // The result would be lost; Escape is No.
        keys(Qt::Key_1, Qt::ControlModifier);
        inDialog<ScanSwitchClass>(Qt::Key_Escape);
        QVERIFY(isDown("ScanDiskButton"));
        tabTo("BackTestButton");
        keys(Qt::Key_Space);
        QTest::keyClick(dialog<ScanSwitchClass>(), Qt::Key_Tab, Qt::ShiftModifier);
        inDialog<ScanSwitchClass>(Qt::Key_Space);
        tabTo("radioButton");
        keys(Qt::Key_Down);
        QVERIFY(child<QRadioButton>("radioButton_2")->isChecked());
        tabTo("ScanButton");
        keys(Qt::Key_Space);
        QTRY_COMPARE(text("TestStatusValLbl"), QStringLiteral("Successfully Completed"));
        QCOMPARE(commands(" -t short "), 1);
        QAccessible::installUpdateHandler(before);
        reader->setActive(false);
        QCOMPARE(announced, (QStringList{"Scan Completed.", "Successfully Completed"}));
    }

    void clone()
    {
        keys(Qt::Key_5, Qt::ControlModifier);
        tabTo("DestinationComboBox");
        keys(Qt::Key_Down);
        tabTo("CloneButton");
        keys(Qt::Key_Return);
        inDialog<CloneWarning>(Qt::Key_Return); // the focus is on Cancel
        QVERIFY(!dialog<CloneWarning>() && commands("diskpart") == 0);
        keys(Qt::Key_Return);
        QTest::keyClick(dialog<CloneWarning>(), Qt::Key_Tab, Qt::ShiftModifier);
        inDialog<CloneWarning>(Qt::Key_Space);
        QVERIFY(child<QWidget>("StopButton")->hasFocus());
        keys(Qt::Key_Space);
        QTest::keyClick(dialog<ConfarmetionClass>(), Qt::Key_Tab, Qt::ShiftModifier);
        inDialog<ConfarmetionClass>(Qt::Key_Space);
        QTRY_VERIFY_WITH_TIMEOUT(outcome().startsWith(QStringLiteral("Clone Disk|Cloning aborted.|")), 20000);
        inDialog<InfoDialogClass>(Qt::Key_Return);
    }

    void settings()
    {
        tabTo("m_pMenuButton");
        QTimer choose;
        connect(&choose, &QTimer::timeout, this, [] {
            if (QWidget *menu = QApplication::activePopupWidget()) {
                QTest::keyClick(menu, Qt::Key_Down);
                QTest::keyClick(menu, Qt::Key_Return);
            }
        });
        choose.start(20);
        const QString first = QLatin1String(key::LogSavePath.first);
        for (const bool ok : {false, true}) {
            keys(Qt::Key_Return);
            const auto *window = dialog<Settings>();
            QVERIFY(window);
            auto *path = window->findChild<QLineEdit *>(QStringLiteral("PathlineEdit"));
            QCOMPARE(path->text(), first);
            path->setFocus(Qt::TabFocusReason);
            QTest::keyClick(path, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(path, QStringLiteral("C:\\logs"));
            QTest::keyClick(path, ok ? Qt::Key_Return : Qt::Key_Escape);
            QVERIFY(!window->isVisible());
            QCOMPARE(SettingsStore().text(key::LogSavePath) == QLatin1String("C:\\logs"), ok);
        }
    }

    void rowsAndReport()
    {
        keys(Qt::Key_2, Qt::ControlModifier);
        waitForRest();
        tabTo("m_pAttributeTree");
        const QString first = text("GraphLabel");
        keys(Qt::Key_Down);
        QVERIFY(text("GraphLabel") != first);
        keys(Qt::Key_Up, Qt::ShiftModifier);
        keys(Qt::Key_C, Qt::ControlModifier);
        const QStringList rows = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(rows.size(), 2);
        QVERIFY(rows.first().startsWith(QStringLiteral("1\tRaw Read Error Rate\t")));

        // The report and the screenshot ask for their files.
        for (const auto &[key, kind] : {std::pair(Qt::Key_S, "|*.pdf|"), {Qt::Key_P, "|JPEG (*.jpg);|"}})
            QVERIFY(asked([this, key = key] { keys(key, Qt::ControlModifier); }, QString()).contains(kind));
        const int reads = commands(" -a ");
        keys(Qt::Key_F5);
        waitForRest();
        QVERIFY(commands(" -a ") > reads);
        keys(Qt::Key_F1);
        QCOMPARE(logLines("opened.log").size(), 1);
    }

    /// No control says nothing to a screen reader, and none says blanks or marks of keys.
    void names()
    {
        QStringList nameless;
        for (const QWidget *widget : QApplication::allWidgets()) {
            const bool control = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->isWindow() &&
                                 widget->objectName() != QLatin1String("qt_scrollarea_viewport") &&
                                 !widget->objectName().isEmpty() && !widget->focusProxy();
            if (!control || widget->isHidden())
                continue;
            const QString name =
                QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget))->text(QAccessible::Name);
            if (name.isEmpty() || name != name.trimmed())
                nameless << widget->window()->objectName() + '/' + widget->objectName();
        }
        QCOMPARE(nameless.join(QLatin1Char(' ')), QString());
    }

private:
    void keys(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QApplication::setActiveWindow(m_pWindow.get()); // a dialog may have been in front of it
        QWidget *at = m_pWindow->focusWidget() ? m_pWindow->focusWidget() : m_pWindow.get();
        QTest::keyClick(at, Qt::Key(key), modifiers);
    }
    template<typename Dialog>
    static void inDialog(Qt::Key key)
    {
        auto *question = dialog<Dialog>();
        QVERIFY(question && question->focusWidget());
        QTest::keyClick(question->focusWidget(), key);
        QVERIFY(!question->isVisible());
    }
    void tabTo(const char *name) const
    {
        auto *wanted = child<QWidget>(name);
        for (int i = 0; i < 60 && !wanted->hasFocus(); ++i)
            keys(Qt::Key_Tab);
        QVERIFY2(wanted->hasFocus(), name);
    }
    /// The key Tab comes to each control that a press of the mouse could use.
    void tabReachesAll() const
    {
        QSet<QWidget *> reached;
        for (int i = 0; i < 60; ++i) {
            keys(Qt::Key_Tab);
            reached.insert(m_pWindow->focusWidget());
        }
        for (QWidget *control : m_pWindow->findChildren<QWidget *>()) {
            const bool usable = qobject_cast<QAbstractButton *>(control) ||
                                qobject_cast<QComboBox *>(control) || qobject_cast<QTreeWidget *>(control);
            // Of a group of radio buttons it reaches the chosen one.
            const auto *radio = qobject_cast<QRadioButton *>(control);
            if (usable && control->window() == m_pWindow.get() && control->isVisible() &&
                control->isEnabled() && (!radio || radio->isChecked()))
                QVERIFY2(reached.contains(control), qPrintable(control->objectName()));
        }
    }
};

QTEST_MAIN(tst_Keyboard)
#include "tst_Keyboard.moc"
