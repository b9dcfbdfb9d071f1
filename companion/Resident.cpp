// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/Resident.h"

#include "companion/Flyout.h"
#include "companion/Tray.h"
#include "inventory/Companion.h"
#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/Scale.h"
#include "state/Startup.h"
#include "ui/widgets/StartLook.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QPalette>

#include <cstdio>

namespace
{

const QString InstanceKey = QStringLiteral("b2f60c1e-58d4-4c0b-9a37-6e1d7c90f4a5");

/// Volumes that come and go, on a system that tells of them by window message.
class DeviceFilter : public QAbstractNativeEventFilter
{
public:
    explicit DeviceFilter(Watch *watch) : m_watch(*watch) {}

    bool nativeEventFilter(const QByteArray &eventType, void *message, long *) override
    {
        if (const auto change = Platform::current().decodeDeviceMessage(eventType, message))
            m_watch.deviceChanged(change->event, change->deviceType);
        return false;
    }

private:
    Watch &m_watch;
};

/// Each part tells the others what it is about.
void connectAll(Watch *watch, Tray *tray, Flyout *flyout)
{
    QObject::connect(tray, &Tray::flyoutWanted, flyout, &Flyout::showAt);
    QObject::connect(tray, &Tray::paused, flyout, &Flyout::setPaused);
    QObject::connect(flyout, &Flyout::pauseWanted, tray, &Tray::pauseOrGoOn);
    QObject::connect(flyout, &Flyout::seen, watch, &Watch::markSeen);
    QObject::connect(flyout, &Flyout::refreshWanted, watch, &Watch::refresh);
    QObject::connect(watch, &Watch::looked, flyout, &Flyout::take);
    QObject::connect(watch, &Watch::looked, tray, &Tray::retranslate);
}

} // namespace

bool hasTempFolder()
{
    const bool has = !Platform::current().GetTempPathW().isEmpty();
    if (!has)
        std::fprintf(stderr, "No disk can be read: there is no folder for temporary files that other users "
                             "cannot change.\n");
    return has;
}

int runResident(int argc, char **argv)
{
    Platform &platform = Platform::current();
    QApplication application(argc, argv);
    // Before the program's own colours take their place.
    const bool areWindowsDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    startlook::install();
    QApplication::setQuitOnLastWindowClosed(false);
    startup::readSettings();
    if (!platform.TakeInstance(InstanceKey))
        return 0;
    if (!hasTempFolder())
        return 1;
    companion::takeQuitBack();
    startlook::speak();
    startup::readMachine();
    g_App.m_fScale = static_cast<float>(scale::percentForDpi(platform.LogPixelsX())) / 100.0F;
    Watch watch;
    // Before tray and flyout take their texts.
    QObject::connect(&watch, &Watch::looked, &watch, &languages::follow);
    Tray tray(&watch, areWindowsDark);
    Flyout flyout;
    connectAll(&watch, &tray, &flyout);
    // Device messages reach only a process that has a window.
    flyout.winId();
    DeviceFilter filter(&watch);
    QApplication::instance()->installNativeEventFilter(&filter);
    if (DeviceNotifier *notifier = platform.deviceNotifier())
        QObject::connect(notifier, &DeviceNotifier::deviceChange, &watch, &Watch::deviceChanged);
    tray.show();
    watch.start();
    return QApplication::exec();
}
