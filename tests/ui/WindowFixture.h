// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/DeviceLoad.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Files.h"
#include "tests/ui/Named.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/widgets/MyButton.h"
#include "ui/widgets/QGridView.h"
#include "ui/widgets/StartLook.h"
#include "ui/window/MainWindow.h"

#include <QAction>
#include <QFileDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QToolTip>
#include <QtTest>

/// This window is the one in front for as long as this lives; null: none of the program's is. Windows of
/// other programs come and go meanwhile.
class InFront
{
public:
    explicit InFront(QWidget *window)
    {
        const auto keep = [window] { QApplication::setActiveWindow(window); };
        QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &m_context, keep);
        keep();
    }

private:
    QObject m_context;
};

/// A file of tests/data/ui: its sections by their heads, less its remarks.
using Sections = QMap<QString, QStringList>;

inline Sections sectionsOf(const QString &file)
{
    Sections found;
    QString head;
    for (const QString &line :
         QString::fromUtf8(contentOf(QStringLiteral(HALVANE_TEST_DATA "/ui/") + file)).split('\n')) {
        if (line.startsWith(QLatin1String("== ")))
            found[head = line.mid(3)];
        else if (!line.startsWith(QLatin1String("//")) && !head.isEmpty())
            found[head] << line;
    }
    return found;
}

/// The real window on a described PC of its own for each test.
class WindowFixture
{
protected:
    WindowFixture()
    {
        startlook::install();
        // A test cannot use a file dialog of the system.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    /// A text of m_sections; one "from" another one is that with replacements.
    QByteArray described(const QString &name) const
    {
        for (auto section = m_sections.begin(); section != m_sections.end(); ++section) {
            const QStringList words = section.key().split(' ');
            if (words.first() != "text" || words.value(1) != name)
                continue;
            if (words.size() == 2)
                return section->join('\n').toUtf8() + '\n';
            QByteArray text = described(words.last());
            for (const QString &line : *section) {
                const QStringList change = line.split(" => ");
                if (change.size() == 2)
                    text.replace(change[0].toUtf8(), change[1].toUtf8());
            }
            return text;
        }
        return contentOf(QStringLiteral(HALVANE_TEST_DATA "/") + name);
    }

    /// Installs the PC of that name of m_sections, with further keys behind the name, and loads its disks.
    void install(const QString &name, simulated::Clock clock = {})
    {
        m_pWindow.reset();
        m_pFolder = std::make_unique<DescribedFolder>();
        for (const QString &head : m_sections.keys()) {
            if (!head.startsWith(QLatin1String("text ")))
                continue;
            const QString report = head.section(' ', 1, 1);
            const QByteArray contents = described(report);
            if (contents.isEmpty())
                qFatal("no report: %s", qPrintable(report));
            m_pFolder->add(report, contents);
        }
        const QJsonObject own = QJsonDocument::fromJson(described(name.section(' ', 0, 0))).object();
        const QJsonObject more = QJsonDocument::fromJson(name.section(' ', 1).toUtf8()).object();
        if (own.isEmpty() || more.isEmpty() != name.section(' ', 1).isEmpty())
            qFatal("no PC: %s", qPrintable(name));
        const auto with = [](QJsonObject keys, const QJsonObject &further) {
            for (auto key = further.begin(); key != further.end(); ++key)
                keys[key.key()] = key.value();
            return keys;
        };
        QJsonObject keys = with(with({{"toolMilliseconds", 8}}, own), more);
        keys["settings"] = with({{"TempValue", "C"}, {"FirstTimeLaunch", 1}}, keys["settings"].toObject());
        keys["pauses"] = false;
        auto pc = m_pFolder->open(QJsonDocument(keys).toJson(), std::move(clock));
        m_strState = pc->stateFolder();
        g_App.m_strSystemFolder = pc->GetSystemDirectoryW();
        g_App.m_bUse64BitTool = true;
        g_App.m_fScale = 1.0F;
        languages::setFlag(0);
        Platform::install(std::move(pc));
        g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Velmora Halvane for Windows");
        g_strStartArgument.clear();
        deviceload::loadLists();
    }

    /// The window on that PC, after its first read.
    void openPc(const QString &pc, simulated::Clock clock = {})
    {
        install(pc, std::move(clock));
        makeWindow();
        waitForRest();
    }

    void makeWindow()
    {
        m_pWindow = std::make_unique<MainWindow>();
        m_pWindow->show();
    }

    void tearDown()
    {
        g_bJobRunning = false;
        g_bSelfTestRunning = false;
        g_bScanResultOpen = false;
        g_bSelfTestResultOpen = false;
        m_pWindow.reset();
        g_Jobs = JobState(); // the job ended with its page
        // The refresh ended with the window, so its signal did not clear this flag.
        g_bListsLoading = false;
        g_bListsStale = false;
        m_pFolder = std::make_unique<DescribedFolder>();
    }

    /// Waits for the end of a read or a refresh.
    void waitForRest() const { QTRY_VERIFY_WITH_TIMEOUT(!shown("GifFrame") && !g_bListsLoading, 10000); }

    void choose(int index, const QString &name = QString()) const
    {
        auto *combo =
            m_pWindow->findChild<QComboBox *>(name.isEmpty() ? QStringLiteral("DriveCombobox") : name);
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }
    /// Chooses a disk and waits until it was read.
    void select(int index) const
    {
        choose(index);
        waitForRest();
    }

    void press(const char *button) const
    {
        QTest::mousePress(child<MyButton>(button), Qt::LeftButton);
        QTest::mouseRelease(child<MyButton>(button), Qt::LeftButton);
    }
    /// Goes to a screen and waits until the disk was read for it.
    void goTo(const char *button) const
    {
        press(button);
        waitForRest();
    }
    void click(const char *button) const { child<QAbstractButton>(button)->click(); }
    /// Answers the visible dialog of this class.
    template<typename Dialog>
    void answer(const char *button) const
    {
        buttonOf(dialog<Dialog>(), button)->click();
    }

    /// Lets `act` open a file dialog and saves there as `path`, as that kind of file; cancels it if the path
    /// is empty. What the dialog asked: its title, name, filters and the window that it belongs to.
    QString asked(const std::function<void()> &act, const QString &path, int kind = 0) const
    {
        QString told;
        QTimer answers;
        QObject::connect(&answers, &QTimer::timeout, [&] {
            auto *question = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!question)
                return;
            auto *name = question->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            const QWidget *owner = question->parentWidget();
            if (told.isEmpty())
                told = QStringList{question->windowTitle(), name->text(), question->nameFilters().join(';'),
                                   owner ? owner->metaObject()->className() : ""}
                           .join('|');
            question->selectNameFilter(question->nameFilters().at(kind));
            name->setText(path);
            // The dialog is gone before the key comes up.
            QTest::keyPress(name, path.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        answers.start(20);
        act();
        return told;
    }

    /// What the mouse is told at a place of the map.
    QString tipAt(const QPoint &place) const
    {
        auto *map = child<QGridView>();
        QMouseEvent move(QEvent::MouseMove, place, map->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(map, &move);
        return QToolTip::text();
    }

    /// Pulls a disk out without a notice of its volumes.
    void pullOut(int disk) const
    {
        QVERIFY(Platform::current().deviceNotifier()); // watches what is pulled out
        touch(QStringLiteral("remove-disk%1").arg(disk));
    }
    /// Makes a file that plugs something in or pulls it out, and waits until the PC has acted on it.
    void touch(const QString &name) const
    {
        m_pFolder->touch({name});
        QCoreApplication::processEvents();
    }

    /// How often a repeating test runs; HALVANE_ROUNDS changes the number.
    static int rounds()
    {
        const int asked = qEnvironmentVariableIntValue("HALVANE_ROUNDS");
        return asked > 0 ? asked : 24;
    }

    template<typename Widget>
    Widget *child(const char *name = nullptr) const
    {
        return m_pWindow->findChild<Widget *>(QLatin1String(name));
    }
    QString text(const char *label) const { return child<QLabel>(label)->text(); }
    bool shown(const char *name) const { return child<QWidget>(name)->isVisible(); }
    /// Whether all of these are visible, or none of them.
    bool areShown(bool expected, std::initializer_list<const char *> names) const
    {
        return std::all_of(names.begin(), names.end(),
                           [=](const char *name) { return shown(name) == expected; });
    }
    bool enabled(const char *name) const { return child<QWidget>(name)->isEnabled(); }
    bool isDown(const char *button) const { return child<MyButton>(button)->isDown(); }

    /// Whether everything that leads away from a job is enabled, or all of it disabled.
    bool shellIs(bool free) const
    {
        for (const MyButton *entry : m_pWindow->findChildren<MyButton *>()) {
            if (entry->isEnabled() != free)
                return false;
        }
        return enabled("DriveCombobox") == free &&
               m_pWindow->findChild<QAction *>(QStringLiteral("m_pSettingsAction"))->isEnabled() == free;
    }

    /// Title and texts of the box that tells how a job ended; empty if none shows.
    static QString outcome()
    {
        const auto *box = dialog<InfoDialogClass>();
        return box ? labelOf(box, "HeaderLabel")->text() + QLatin1Char('|') + labelOf(box, "label")->text() +
                         QLatin1Char('|') + labelOf(box, "label_2")->text()
                   : QString();
    }

    /// What the panel says that refuses something.
    static QString refusal()
    {
        const auto *panel = dialog<DestinitionWarning>();
        return panel ? labelOf(panel, "WarningTxtLbl")->text() : QString();
    }

    /// The lines of a log of the PC, without the last, empty one.
    QList<QByteArray> logLines(const char *file) const
    {
        QList<QByteArray> lines = contentOf(m_strState + QLatin1Char('/') + QLatin1String(file)).split('\n');
        lines.removeLast();
        return lines;
    }
    /// How many commands had the part, without the first ones.
    int commands(const QByteArray &part, int first = 0) const
    {
        int count = 0;
        for (const QByteArray &line : logLines("commands.log").mid(first))
            count += line.contains(part) ? 1 : 0;
        return count;
    }

    Sections m_sections; ///< those of the test's file
    std::unique_ptr<DescribedFolder> m_pFolder = std::make_unique<DescribedFolder>();
    std::unique_ptr<MainWindow> m_pWindow;
    QString m_strState;
};
