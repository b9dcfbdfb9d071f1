// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/Alarms.h"
#include "companion/CommandLine.h"
#include "companion/Flyout.h"
#include "companion/FlyoutRow.h"
#include "companion/LimitsDialog.h"
#include "companion/Tray.h"
#include "companion/TrayPicture.h"
#include "monitor/WatchSettings.h"
#include "state/GlobalApp.h"
#include "state/SettingsStore.h"
#include "state/StartArgument.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Contrast.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/ScreenReader.h"
#include "tests/ui/Named.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/widgets/StartLook.h"
#include "ui/widgets/Style.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

using traystate::Sign;

namespace
{

DiskSummary disk(DiskState state, std::optional<int> celsius, std::optional<int> health,
                 Heat heat = Heat::InOrder)
{
    DiskSummary summary;
    summary.number = 1;
    summary.model = "Tarnwell TX2 500GB";
    summary.serial = "TW19C4403187";
    summary.state = state;
    summary.heat = heat;
    summary.answer =
        QMap<DiskState, DiskReading::Answer>{{DiskState::Asleep, DiskReading::Answer::Asleep},
                                             {DiskState::NoAnswer, DiskReading::Answer::NoAnswer},
                                             {DiskState::NotSupported, DiskReading::Answer::NotSupported}}
            .value(state, DiskReading::Answer::Report);
    summary.reading.celsius = celsius;
    summary.reading.health = health;
    return summary;
}

WatchView viewOf(std::vector<DiskSummary> disks, bool fahrenheit = false)
{
    return {std::move(disks), fahrenheit, QDateTime::currentDateTime()};
}

/// The names that a screen reader tells as Tab goes once round the window, each time with the ring about the
/// control; behind them how many controls Tab does not reach.
QString namesByTab(QWidget *window)
{
    QStringList names;
    QWidget *first = nullptr;
    for (;;) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        QWidget *at = window->focusWidget();
        if (at == first)
            break;
        first = first ? first : at;
        const auto *ring = window->findChild<QWidget *>("m_pFocusRing");
        const bool isRinged = ring && ring->isVisible() &&
                              ring->geometry().contains(at->mapTo(window, at->rect().center())) &&
                              ring->height() < at->height() + 10;
        names << QAccessible::queryAccessibleInterface(at)->text(QAccessible::Name) +
                     QLatin1String(isRinged ? "" : " (no ring)");
    }
    int controls = 0;
    for (const QWidget *each : window->findChildren<QWidget *>())
        controls += int(each->isVisible() && each->isEnabled() &&
                        (each->inherits("QAbstractButton") || each->inherits("QAbstractSpinBox")));
    return (names << QString::number(controls - names.size())).join('|');
}

} // namespace

/// The watch, the tray and the program together, on a described PC whose disk has three things to tell. What
/// the tray, the flyout and the dialogs of the companion show.
class tst_Tray : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { startlook::install(); }
    void init()
    {
        g_App.m_strApplicationFolder = "C:\\Halvane";
        g_App.m_strSettingsPath = "HKEY_LOCAL_MACHINE\\Velmora Halvane for Windows";
        g_App.m_bUse64BitTool = true;
        g_App.m_fScale = 1.0F;
        m_folder = std::make_unique<DescribedFolder>();
        m_folder->add("a.txt", contentOf(HALVANE_TEST_DATA "/smart/ata-wdc-wd10ezex-readfail.txt"));
        Platform::install(m_folder->open(R"({"disks": [{"number": 2, "report": "a.txt"}]})"));
        m_watch = std::make_unique<Watch>();
        m_tray = std::make_unique<Tray>(m_watch.get(), true);
    }

    void messages()
    {
        if (QSystemTrayIcon::isSystemTrayAvailable())
            QSKIP("a desktop with a tray shows the messages itself");
        QSignalSpy looked(m_watch.get(), &Watch::looked);
        auto *icon = m_tray->findChild<QSystemTrayIcon *>();
        m_watch->start();
        QTRY_COMPARE(looked.count(), 1); // counted on the watch's thread
        QCoreApplication::processEvents();
        const auto shown = [this] { return contentOf(m_folder->state() + "/notices.log").count('\t'); };
        QCOMPARE(shown(), 1); // the others wait
        emit icon->messageClicked();
        const QString start = "\tC:\\Halvane\\VelmoraHalvane.exe\t" + startargument::forDisk(2) + '\n';
        QCOMPARE(opened(), start.toUtf8());
        QCOMPARE(shown(), 2);
        const auto passes = [this] {
            for (QTimer *timer : m_tray->findChildren<QTimer *>())
                QMetaObject::invokeMethod(timer, timer->isActive() ? "timeout" : "stop");
        };
        passes();
        QCOMPARE(shown(), 3);
        passes();
        // It is off the screen, but the system may still list it.
        for (int click = 0; click < 2; ++click)
            emit icon->messageClicked();
        QCOMPARE(opened(), (start + start).toUtf8());
        m_watch->refresh();
        QTRY_COMPARE(looked.count(), 2);
        QCoreApplication::processEvents();
        const auto view = looked.last().at(0).value<WatchView>();
        QCOMPARE(view.disks.at(0).unseen.size(), size_t(1));
        QCOMPARE(view.disks.at(0).unseen.at(0).kind, EventKind::Pending);
        QCOMPARE(icon->icon().pixmap(32).toImage(),
                 traypicture::icon(traystate::iconOf(view, false), true).pixmap(32).toImage());
    }

    void menu()
    {
        QSignalSpy paused(m_tray.get(), &Tray::paused);
        m_watch->start();
        for (const char *text :
             {"Open", "Settings", "Show lowest health", "Pause alarms for an hour", "Quit"}) {
            for (const QWidget *menu : QApplication::topLevelWidgets()) {
                for (QAction *action : menu->actions()) {
                    if (action->text() == QLatin1String(text))
                        action->trigger();
                }
            }
        }
        const QString program = "\tC:\\Halvane\\VelmoraHalvane.exe\t";
        QCOMPARE(opened(), (program + '\n' + program + startargument::ForSettings + '\n').toUtf8());
        QVERIFY(SettingsStore().flag(key::TrayHealth));
        QVERIFY(Platform::current().OpenSettings(g_App.m_strSettingsPath)->contains("TrayQuit"));
        QVERIFY(paused.last().at(0).toBool());
        cleanup();
        m_watch = std::make_unique<Watch>(); // the next run goes on with the pause
        QVERIFY(m_watch->pausedUntil() > Platform::current().Now());
    }

    void withoutTheTray()
    {
        const auto *icon = m_tray->findChild<QSystemTrayIcon *>();
        m_tray->show();
        QVERIFY(icon->isVisible());
        SettingsStore().write(key::MetricsPath, "C:\\halvane.prom");
        for (const int wanted : {0, 1}) {
            SettingsStore().write(key::ShowTrayIcon, wanted);
            m_tray->show();
            QCOMPARE(icon->isVisible(), wanted == 1);
        }
    }

    void cleanup()
    {
        m_tray.reset();
        m_watch.reset();
    }

    void iconTellsTheWorst()
    {
        std::vector<DiskSummary> disks{disk(DiskState::Asleep, 70, 50)};
        const auto icon = [&disks](bool fahrenheit, bool showsHealth) {
            const traystate::Icon told = traystate::iconOf(viewOf(disks, fahrenheit), showsHealth);
            return QString("%1 %2").arg(told.number).arg(int(told.sign));
        };
        const auto with = [](const char *number, Sign sign) {
            return QString("%1 %2").arg(number).arg(int(sign));
        };
        QCOMPARE(icon(false, false), with("", Sign::Unknown));
        disks.push_back(disk(DiskState::Ok, 36, 97));
        QCOMPARE(icon(false, false), with("36", Sign::InOrder));
        QCOMPARE(icon(true, false), with("96", Sign::InOrder));
        QCOMPARE(icon(false, true), with("50", Sign::InOrder));
        // The number is the hottest disk's, the sign that of another.
        disks.push_back(disk(DiskState::Failing, 30, 13));
        QCOMPARE(icon(false, false), with("36", Sign::Hot));
        // A row that tells of bad sectors has no tick.
        for (const auto &[kind, sign] :
             {std::pair(EventKind::Back, Sign::InOrder), {EventKind::Reallocated, Sign::Warm}}) {
            disks[1].unseen.emplace_back();
            disks[1].unseen.back().kind = kind;
            QCOMPARE(int(traystate::signOf(disks[1])), int(sign));
        }
    }

    void wordsOfARow()
    {
        const QDateTime begin(QDate(2026, 11, 21), QTime(13, 0));
        for (const auto &[state, heat, missing, words] :
             {std::tuple(DiskState::Ok, Heat::InOrder, false, "In order · health 87 %"),
              {DiskState::Warning, Heat::Warm, false, "Warm since 13:20 · health 87 %"},
              {DiskState::Warning, Heat::Hot, false, "Hot · health 87 %"},
              {DiskState::Failing, Heat::Hot, false, "Failing: back up this disk now"},
              {DiskState::Asleep, Heat::InOrder, false, "Asleep · last 53 °C at 13:30"},
              {DiskState::NoAnswer, Heat::InOrder, true, "Missing: check its cable"}}) {
            DiskSummary summary = disk(state, 53, 87, heat);
            summary.missing = missing;
            summary.limits.warning = 45;
            // 44 °C at 13:10 is below the limit: it has been warm since 13:20 only.
            for (const auto &[minutes, celsius] : {std::pair(0, 50), {10, 44}, {20, 45}, {30, 53}})
                summary.day.push_back({begin.addSecs(minutes * 60).toMSecsSinceEpoch(), celsius});
            QCOMPARE(traystate::stateOf(summary, false), QString(words));
        }
    }

    void tipHasALineForEachDisk()
    {
        QCOMPARE(traystate::toolTip(viewOf({disk(DiskState::Ok, 36, 97)}), 127),
                 "Tarnwell TX2 500GB  36 °C  97 %");
        std::vector<DiskSummary> disks(5, disk(DiskState::Ok, 36, 97));
        QCOMPARE(traystate::toolTip(viewOf(disks), 127).count("36 °C  97 %"), 5);
        // More have no room: the worst come first, then the hottest.
        disks.insert(disks.end(), {disk(DiskState::Asleep, 70, 50), disk(DiskState::Ok, 41, 90),
                                   disk(DiskState::Failing, 30, 13)});
        disks.resize(11, disks.front());
        const QString tip = traystate::toolTip(viewOf(disks), 127);
        const QStringList lines = tip.split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 5);
        QVERIFY(lines[0].endsWith("30 °C  13 %") && lines[1].endsWith("41 °C  90 %"));
        QCOMPARE(lines[4], "and 7 more");
        QVERIFY2(tip.size() <= 127, qPrintable(tip));
        // Where nothing cuts a tip, each disk has a whole line.
        disks.resize(30, disks.front());
        const QStringList all = traystate::toolTip(viewOf(disks), 0).split(QLatin1Char('\n'));
        QCOMPARE(all.size(), 24);
        QCOMPARE(all.at(22), "Tarnwell TX2 500GB  36 °C  97 %");
        QCOMPARE(all.at(23), "and 7 more");
    }

    void signsDifferInEachSize()
    {
        for (const int size : {16, 20, 24, 32}) {
            QVector<QImage> pictures;
            for (const bool dark : {false, true}) {
                for (const Sign sign : {Sign::Unknown, Sign::InOrder, Sign::Warm, Sign::Hot})
                    pictures << traypicture::pixmap({"53", sign}, size, dark).toImage();
            }
            // Without colours warm and hot still differ: the line below the number has gaps, or none.
            const auto shadesOfLine = [size](const QImage &picture) {
                QSet<QRgb> shades;
                for (int x = size / 4; x < size * 3 / 4; ++x)
                    shades << picture.pixel(x, size - 1 - 2 * std::max(1, size / 14));
                return shades.size();
            };
            QCOMPARE(shadesOfLine(pictures[2]), 2);
            QCOMPARE(shadesOfLine(pictures[3]), 1);
            for (int i = 0; i < 4; ++i) {
                QCOMPARE(pictures[i].size(), QSize(size, size));
                for (int j = 0; j < i; ++j)
                    QVERIFY(pictures[i] != pictures[j]);
            }
            QVERIFY(pictures[1] != pictures[5]);
        }
    }

    void signsStandOut()
    {
        const QColor ground(style::colour::Pale);
        for (const auto &[state, heat] : {std::pair(DiskState::Asleep, Heat::InOrder),
                                          {DiskState::NotSupported, Heat::InOrder},
                                          {DiskState::Ok, Heat::InOrder},
                                          {DiskState::Warning, Heat::Warm},
                                          {DiskState::Failing, Heat::Hot}}) {
            DiskSummary summary = disk(state, 50, 87, heat);
            summary.day = {{1, 40}, {3000000, 40}};
            for (const bool isDay : {false, true}) {
                QImage picture(48, 48, QImage::Format_RGB32);
                picture.fill(ground);
                QPainter painter(&picture);
                if (isDay)
                    traypicture::drawDay(&painter, picture.rect(), summary, 3000000);
                else
                    traypicture::drawSign(&painter, picture.rect(), summary);
                // The dash has a circle around it, the moon has not.
                const bool isEdgeFree = picture.pixel(45, 24) == ground.rgb();
                QVERIFY(isDay || state < DiskState::Asleep || isEdgeFree == (state == DiskState::Asleep));
                double most = 0;
                for (int pixel = 0; pixel < 48 * 48; ++pixel)
                    most = std::max(most, contrast(picture.pixelColor(pixel % 48, pixel / 48), ground));
                QVERIFY2(most >= 3, qPrintable(QString("%1 %2 %3").arg(int(state)).arg(isDay).arg(most)));
            }
        }
    }

    void rowsFollowTheDisks()
    {
        Flyout flyout;
        DiskSummary summary = disk(DiskState::Ok, 36, 97);
        summary.unseen.push_back(WatchEvent());
        summary.unseen.back().id = 7;
        flyout.take(viewOf({summary, disk(DiskState::Failing, 68, 13)}));
        const auto rows = flyout.findChildren<FlyoutRow *>();
        QCOMPARE(rows.size(), 2);
        QVERIFY(rows[1]->accessibleName().contains("68 °C"));
        flyout.showAt(QRect());
        rows[0]->setFocus();
        QTest::keyClick(rows[0], Qt::Key_Down);
        QCOMPARE(flyout.focusWidget(), rows[1]);
        QSignalSpy wanted(rows[1], &FlyoutRow::openWanted);
        QTest::mouseClick(rows[1]->findChild<QLabel *>("DiskName"), Qt::LeftButton);
        for (const int key : {Qt::Key_Return, Qt::Key_Space})
            QTest::keyClick(rows[1], Qt::Key(key));
        auto *reader = QAccessible::queryAccessibleInterface(rows[1])->actionInterface();
        reader->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(wanted.count(), 4);
        const int high = flyout.height();
        flyout.take(viewOf({summary}));
        QVERIFY(flyout.height() < high);
        QSignalSpy paused(&flyout, &Flyout::pauseWanted);
        const auto buttons = flyout.findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text() == QLatin1String("Pause alarms"))
                button->click();
        }
        QCOMPARE(paused.count(), 1);
        QTest::keyClick(&flyout, Qt::Key_Escape);
        QVERIFY(!flyout.isVisible());
    }

    void limitsAreKeptInCelsius()
    {
        const DiskSummary summary = disk(DiskState::Ok, 36, 97);
        LimitsDialog dialog(summary, true);
        dialog.findChild<QCheckBox *>()->setChecked(true);
        const auto boxes = dialog.findChildren<QSpinBox *>();
        QCOMPARE(boxes.size(), 2);
        boxes[0]->setValue(131);
        boxes[1]->setValue(140);
        dialog.accept();
        const auto own = ownlimits::load(summary.serial);
        QVERIFY(own);
        QCOMPARE(own->warning, 55);
        QCOMPARE(own->shutDown, 60);
        LimitsDialog again(summary, true);
        QCOMPARE(again.findChildren<QSpinBox *>().at(0)->value(), 131);
        again.findChild<QCheckBox *>()->setChecked(false);
        again.accept();
        QVERIFY(!ownlimits::load(summary.serial));
    }

    void allByKeys()
    {
        Flyout flyout;
        flyout.take(viewOf({disk(DiskState::Ok, 36, 97), disk(DiskState::Failing, 68, 13)}));
        flyout.showAt(QRect());
        QCOMPARE(namesByTab(&flyout), "Tarnwell TX2 500GB, In order · health 97 %, 36 °C|Tarnwell TX2 500GB, "
                                      "Failing: back up this disk now, 68 °C|Pause alarms|Settings|Open|0");
        flyout.hide();
        const DiskSummary summary = disk(DiskState::Ok, 36, 97);
        for (const int last : {Qt::Key_Escape, Qt::Key_Return}) {
            LimitsDialog dialog(summary, false);
            dialog.show();
            QApplication::setActiveWindow(&dialog);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Backtab);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
            QCOMPARE(namesByTab(&dialog),
                     "Warning Temperature|Shutdown Temperature|OK|Cancel|Limits of its own|0");
            const OtherLanguage language("<$>");
            QCOMPARE(namesByTab(&dialog),
                     "<Shutdown Temperature>|<OK>|<Cancel>|<Limits of its own>|<Warning Temperature>|0");
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Up);
            QTest::keyClick(dialog.focusWidget(), Qt::Key(last));
            QVERIFY(!dialog.isVisible());
            QCOMPARE(ownlimits::load(summary.serial).has_value(), last == Qt::Key_Return);
        }
        ownlimits::save(summary.serial, {});
    }

    void shutDownReplacesTheWarning()
    {
        FakePlatform *machine = FakePlatform::install();
        Alarms alarms;
        QSignalSpy seen(&alarms, &Alarms::seen);
        WatchEvent event;
        event.id = 3;
        event.kind = EventKind::TemperatureWarning;
        event.model = "Tarnwell TX2 500GB";
        event.value = 47;
        const auto shown = [] {
            QStringList names;
            for (const QWidget *window : QApplication::topLevelWidgets()) {
                if (window->isVisible() && window->findChild<QLabel *>("MediaNameLbl"))
                    names << window->objectName() + QLatin1Char('|') +
                                 window->findChild<QLabel *>("MediaNameLbl")->text();
            }
            return names;
        };
        const ScreenReader reader;
        alarms.show(event, false);
        QCOMPARE(shown(), QStringList("SmartWarningDialog|Tarnwell TX2 500GB: 47 °C"));
        QCOMPARE(reader.told.join('|'),
                 "Hard Disk's temperature exceed the threshold value.|Tarnwell TX2 500GB: 47 °C");
        event.id = 4;
        event.kind = EventKind::TemperatureShutDown;
        event.value = 52;
        alarms.show(event, false);
        QCOMPARE(shown(), QStringList("SmartShutdownDialog|Tarnwell TX2 500GB: 52 °C"));
        QTest::keyClick(dialog<ShutDownWarning>(), Qt::Key_Escape);
        QCOMPARE(shown(), QStringList());
        QCOMPARE(seen.count(), 1);
        QCOMPARE(seen.at(0).at(0).toULongLong(), quint64(4));
        // Typing goes on elsewhere. The press runs the command, and leaves the dialog as it is.
        QWidget other;
        QPushButton typing(&other);
        other.show();
        typing.setFocus();
        QVERIFY(machine->commands().isEmpty());
        alarms.show(event, false);
        buttonOf(dialog<ShutDownWarning>(), "ShutDownButton")->click();
        QVERIFY(machine->commands().size() == 1 && machine->commands().at(0).contains("shutdown /s"));
        QCOMPARE(shown().size(), 1);
        QCOMPARE(seen.count(), 1);
        QCOMPARE(other.focusWidget(), &typing);
        event.kind = EventKind::TemperatureWarning;
        alarms.show(event, false);
        buttonOf(dialog<SmartWarning>(), "DontShowButton")->click();
        QCOMPARE(shown().size(), 1);
        QVERIFY(SettingsStore().flag(key::DontShow));
    }

    void argumentsAreRead()
    {
        using commandline::Wish;
        const auto rows = {std::pair("--json --once", Wish::OnceJson),
                           {"--once --metrics", Wish::OnceMetrics},
                           {"--collect d", Wish::Collect},
                           {"--collect d --anonymous", Wish::Collect},
                           {"--collect --anonymous", Wish::Unknown},
                           {"--json", Wish::Unknown},
                           {"--once x", Wish::Unknown}};
        for (const auto &[arguments, wish] : rows)
            QCOMPARE(int(commandline::wishOf(QString(arguments).split(' '))), int(wish));
        QCOMPARE(startargument::diskNumber(startargument::forDisk(3)).value_or(-1), 3);
        QVERIFY(!startargument::diskNumber("CloneDisk####3"));
        QVERIFY(!startargument::asksForClone(startargument::forDisk(3)));
    }

private:
    QByteArray opened() const { return contentOf(m_folder->state() + "/opened.log"); }

    std::unique_ptr<DescribedFolder> m_folder;
    std::unique_ptr<Watch> m_watch;
    std::unique_ptr<Tray> m_tray;
};

QTEST_MAIN(tst_Tray)
#include "tst_Tray.moc"
