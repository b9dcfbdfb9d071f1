// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DesktopNotes.h"

#include <QDBusConnection>
#include <QProcess>
#include <QtTest>

#include <unistd.h>

/// What the desktop of a user hears on the bus of his session.
class tst_LinuxDesktop : public QObject
{
    Q_OBJECT

public slots:
    void take(const QString &application, const QVariantMap &values)
    {
        m_heard << QStringLiteral("%1 %2 %3")
                       .arg(application)
                       .arg(values["progress"].toDouble())
                       .arg(values["progress-visible"].toBool());
    }

private slots:
    /// Root tells the desktop of a user nothing.
    void initTestCase()
    {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qunsetenv("XDG_RUNTIME_DIR");
        constexpr uid_t Nobody = 65534;
        QVERIFY(geteuid() != 0 || (setgid(Nobody) == 0 && setuid(Nobody) == 0));
    }

    void launcher()
    {
        QProcess bus;
        bus.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
        if (!bus.waitForStarted())
            QSKIP("there is no dbus-daemon");
        QTRY_VERIFY(bus.canReadLine());
        const QByteArray address = bus.readLine().trimmed();
        QDBusConnection desktop = QDBusConnection::connectToBus(address, "desktop");
        QVERIFY(desktop.connect({}, "/com/velmora/halvane", "com.canonical.Unity.LauncherEntry", "Update",
                                this, SLOT(take(QString, QVariantMap))));
        const auto tell = [] {
            for (const std::optional<int> percent : {std::optional(0), std::optional(42), {}})
                desktopnotes::showProgress(percent);
        };
        tell(); // no bus is known yet
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        tell();
        const QString name = QStringLiteral("application://velmora-halvane.desktop ");
        QTRY_COMPARE(m_heard, QStringList({name + "0 1", name + "0.42 1", name + "0 0"}));
        bus.kill();
        bus.waitForFinished();
    }

private:
    QStringList m_heard;
};

QTEST_GUILESS_MAIN(tst_LinuxDesktop)
#include "tst_LinuxDesktop.moc"
