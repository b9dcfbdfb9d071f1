// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/WindowFixture.h"
#include "ui/screens/Settings.h"

#include <QAccessible>
#include <QRadioButton>
#include <QTreeWidget>

/// The whole program by real keys alone, and what a screen reader gets of its controls.
class tst_Keyboard : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        m_sections = sectionsOf(QStringLiteral("Keyboard.txt"));
        openPc(QStringLiteral("two"));
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get()));
    }
    void cleanup() { tearDown(); }

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
        // A screen reader presses it otherwise.
        auto *reader = QAccessible::queryAccessibleInterface(child<QWidget>("ScanDiskButton"));
        reader->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(isDown("ScanDiskButton") && child<MyButton>("ScanDiskButton")->isChecked());
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
            for (int i = 0; i < 60 && window->focusWidget() != path; ++i)
                QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
            QTest::keyClick(window->focusWidget(), Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(path, QStringLiteral("C:\\logs"));
            QTest::keyClick(path, ok ? Qt::Key_Return : Qt::Key_Escape);
            QVERIFY(!window->isVisible());
            QCOMPARE(SettingsStore().text(key::LogSavePath) == QLatin1String("C:\\logs"), ok);
        }
    }

    /// What each control says to a screen reader is a text of the language, without blanks around it.
    void names()
    {
        QStringList nameless;
        const OtherLanguage language("$~");
        for (QWidget *widget : QApplication::allWidgets()) {
            const bool control = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->isWindow() &&
                                 widget->window()->windowType() != Qt::Popup &&
                                 !widget->objectName().startsWith(QLatin1String("qt_")) &&
                                 !widget->focusProxy() && !widget->isHidden();
            QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
            if (qobject_cast<QComboBox *>(widget)) { // Linux is told the value, and which label names it
                name = widget->accessibleName();
                for (const QLabel *label : widget->window()->findChildren<QLabel *>())
                    name += label->buddy() == widget ? label->text() : QString();
            }
            if (control && !QRegularExpression("^\\S.*~$").match(name).hasMatch())
                nameless << widget->window()->objectName() + '/' + widget->metaObject()->className() + '/' +
                                widget->objectName() + ' ' + name;
        }
        QCOMPARE(nameless.join(QLatin1Char('\n')), QString());
    }

private:
    void keys(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QApplication::setActiveWindow(m_pWindow.get()); // a dialog may have been in front of it
        QWidget *at = m_pWindow->focusWidget() ? m_pWindow->focusWidget() : m_pWindow.get();
        QTest::keyClick(at, Qt::Key(key), modifiers);
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
