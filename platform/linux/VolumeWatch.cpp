// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/VolumeWatch.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <algorithm>
#include <fcntl.h>
#include <libudev.h>
#include <unistd.h>

namespace
{

const char *const MountInfo = "/proc/self/mountinfo";
const QString BlockFolder = QStringLiteral("/sys/class/block/");
constexpr int DeepestStack = 16; ///< devices that lie upon each other

/// Names of devices that no disk of a PC bears.
constexpr const char *UnrealDisks[] = {"loop", "ram", "zram"};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The devices that a device lies on: the disk of a partition, the parts of a mapped or joined device.
QStringList devicesBelow(const QString &kernelName)
{
    const QDir folder(QFileInfo(BlockFolder + kernelName).canonicalFilePath());
    if (folder.exists(QStringLiteral("partition")))
        return {QFileInfo(folder.path()).dir().dirName()};
    return QDir(folder.filePath(QStringLiteral("slaves"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

/// The device that a line of the mount table names; empty where the volume lies on none.
QString mountedDevice(const QByteArray &line)
{
    const QList<QByteArray> fields = line.split(' ');
    const int separator = fields.indexOf("-");
    if (fields.size() < 5 || separator < 0 || separator + 2 >= fields.size())
        return {};
    const QString byNumber =
        QFileInfo(QStringLiteral("/sys/dev/block/") + QString::fromLatin1(fields.at(2))).canonicalFilePath();
    if (!byNumber.isEmpty())
        return QFileInfo(byNumber).fileName();
    // Some file systems have a number of their own and name the device only.
    const QString source = QString::fromLocal8Bit(fields.at(separator + 2));
    return source.startsWith(QLatin1String("/dev/"))
               ? QFileInfo(QFileInfo(source).canonicalFilePath()).fileName()
               : QString();
}

} // namespace

void VolumeWatch::UdevDeleter::operator()(udev *library) const
{
    udev_unref(library);
}

void VolumeWatch::UdevDeleter::operator()(udev_monitor *monitor) const
{
    udev_monitor_unref(monitor);
}

VolumeWatch::VolumeWatch(const QStringList &onlyNodes) : m_onlyNodes(onlyNodes)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(Settling);
    connect(&m_settling, &QTimer::timeout, this, &VolumeWatch::look);
}

VolumeWatch::~VolumeWatch()
{
    stop();
}

void VolumeWatch::start()
{
    if (m_started || !QCoreApplication::instance() || !QAbstractEventDispatcher::instance())
        return;
    m_started = true;
    // The sources come first: what changes while the first look is taken is seen by the next one.
    watchUdev();
    watchMounts();
    m_state = readState();
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &VolumeWatch::stop);
}

void VolumeWatch::stop()
{
    m_settling.stop();
    m_udevNotifier.reset();
    m_mountNotifier.reset();
    m_monitor.reset();
    m_udev.reset();
    if (m_mountInfo >= 0)
        ::close(m_mountInfo);
    m_mountInfo = -1;
}

void VolumeWatch::watchUdev()
{
    m_udev.reset(udev_new());
    if (!m_udev)
        return;
    // Without udev, which passes events on once the nodes are there, the kernel's own events are used.
    const bool hasDaemon = access("/run/udev/control", F_OK) == 0;
    m_monitor.reset(udev_monitor_new_from_netlink(m_udev.get(), hasDaemon ? "udev" : "kernel"));
    if (!m_monitor ||
        udev_monitor_filter_add_match_subsystem_devtype(m_monitor.get(), "block", nullptr) < 0 ||
        udev_monitor_enable_receiving(m_monitor.get()) < 0) {
        m_monitor.reset();
        return;
    }
    m_udevNotifier =
        std::make_unique<QSocketNotifier>(udev_monitor_get_fd(m_monitor.get()), QSocketNotifier::Read);
    connect(m_udevNotifier.get(), &QSocketNotifier::activated, this, &VolumeWatch::drainUdev);
}

void VolumeWatch::watchMounts()
{
    m_mountInfo = ::open(MountInfo, O_RDONLY | O_CLOEXEC);
    if (m_mountInfo < 0)
        return;
    // The kernel tells of a new table by an exceptional condition, once for each reader.
    m_mountNotifier = std::make_unique<QSocketNotifier>(m_mountInfo, QSocketNotifier::Exception);
    connect(m_mountNotifier.get(), &QSocketNotifier::activated, &m_settling, [this] {
        if (!m_settling.isActive())
            m_settling.start();
    });
}

void VolumeWatch::drainUdev()
{
    bool any = false;
    while (udev_device *device = udev_monitor_receive_device(m_monitor.get())) {
        udev_device_unref(device);
        any = true;
    }
    // Further events do not prolong the pause, or a device that sends all the time would hold back the
    // look.
    if (any && !m_settling.isActive())
        m_settling.start();
}

void VolumeWatch::look()
{
    const State before = m_state;
    m_state = readState();
    const auto lost = [](const State &from, const State &to) {
        return !(from.devices - to.devices).isEmpty() || !(from.mounted - to.mounted).isEmpty();
    };
    const bool removed = lost(before, m_state);
    const bool arrived = lost(m_state, before);
    if (removed)
        emit deviceChange(DeviceChange::RemoveComplete, DeviceChange::Volume);
    if (arrived)
        emit deviceChange(DeviceChange::Arrival, DeviceChange::Volume);
}

VolumeWatch::State VolumeWatch::readState() const
{
    State state;
    for (const QString &name : QDir(BlockFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const bool hasMedium =
            contentOf(BlockFolder + name + QLatin1String("/size")).trimmed().toULongLong() > 0;
        // A medium may take another one's place between two looks.
        if (hasMedium && belongs(name))
            state.devices.insert(
                name + QLatin1Char(' ') +
                QString::fromLatin1(contentOf(BlockFolder + name + QLatin1String("/diskseq"))));
    }
    for (const QByteArray &line : contentOf(QLatin1String(MountInfo)).split('\n')) {
        const QString name = mountedDevice(line);
        if (!name.isEmpty() && belongs(name))
            state.mounted.insert(name);
    }
    return state;
}

bool VolumeWatch::belongs(const QString &kernelName) const
{
    QStringList names{kernelName};
    for (int depth = 0; depth < DeepestStack && !names.isEmpty(); ++depth) {
        QStringList below;
        for (const QString &name : names) {
            if (m_onlyNodes.contains(QLatin1String("/dev/") + name))
                return true;
            const QStringList under = devicesBelow(name);
            const bool isUnreal =
                std::any_of(std::begin(UnrealDisks), std::end(UnrealDisks),
                            [&name](const char *unreal) { return name.startsWith(QLatin1String(unreal)); });
            if (m_onlyNodes.isEmpty() && under.isEmpty() && !isUnreal)
                return true;
            below += under;
        }
        names = below;
    }
    return false;
}
