// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/DestinationScripts.h"
#include "clone/RescueMap.h"
#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/linux/DesktopUser.h"
#include "platform/linux/LinuxTools.h"
#include "reports/ReportPage.h"
#include "reports/SmartReport.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Files.h"
#include "tests/support/WatchedPlatform.h"

#include <QProcess>

#include <csignal>
#include <functional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{

constexpr uid_t Nobody = 65534;
constexpr int AttackMilliseconds = 2000;

/// Another user who repeats an attack while this lives.
class Attacker
{
public:
    explicit Attacker(const std::function<void()> &attack, uid_t user = Nobody) : m_id(fork())
    {
        if (m_id != 0)
            return;
        if (setresgid(user, user, user) != 0 || setresuid(user, user, user) != 0)
            _exit(1);
        for (;;)
            attack();
    }
    Attacker(const Attacker &) = delete;
    Attacker &operator=(const Attacker &) = delete;
    ~Attacker()
    {
        kill(m_id, SIGKILL);
        waitpid(m_id, nullptr, 0);
    }

private:
    const pid_t m_id;
};

} // namespace

/// Attacks of other users, who prepare folders and links for a program that root runs.
class OwnFoldersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (geteuid() != 0)
            QSKIP("only root can become another user");
    }

    /// Only root may use "secret". "foreign" belongs to another user. "open" is for all, like /tmp.
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(chmod(path(""), 0755) == 0 && make("secret", 0700) && make("foreign", 0755, Nobody) &&
                make("open", 01777));
    }

    /// Another user has taken the usual name in /tmp. The first case, as this process must not have chosen
    /// its folders yet.
    void instanceWithoutATempFolder()
    {
        constexpr uid_t User = 64321;
        const QByteArray usual = "/tmp/velmora-halvane-" + QByteArray::number(User);
        rmdir(usual); // left by a run that was ended
        QVERIFY2(mkdir(usual, 0700) == 0 && chown(usual, Nobody, Nobody) == 0, usual);
        const auto clean = qScopeGuard([&] { rmdir(usual); });
        QVERIFY(make("home", 0700, User));
        int answers[2];
        QCOMPARE(pipe(answers), 0);
        const auto start = [&] {
            for (const char *name : {"XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
                qunsetenv(name);
            qputenv("HOME", path("home"));
            (void)!write(answers[1], takeNativeInstance("Probe") ? "y" : "n", 1);
            pause();
        };
        char taken[2] = {};
        const Attacker first(start, User);
        QCOMPARE(read(answers[0], taken, 1), ssize_t(1));
        const Attacker second(start, User);
        QCOMPARE(read(answers[0], taken + 1, 1), ssize_t(1));
        QCOMPARE(QByteArray(taken, 2), QByteArray("yn"));
        for (const QString &left : QDir("/tmp").entryList({"velmora-halvane-*"}))
            if (QFileInfo("/tmp/" + left).ownerId() == User)
                QDir().rmdir("/tmp/" + left);
    }

    void variablesOfAUser()
    {
        for (const char *name :
             {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            qputenv(name, path("foreign"));
        // The address of a bus that is a command; folders of libraries, tools and translations.
        const QByteArray command = "unixexec:path=/usr/bin/touch,argv1=" + path("secret/ran");
        const std::pair<const char *, QByteArray> variables[]{
            {"DBUS_SYSTEM_BUS_ADDRESS", command},      {"DBUS_SESSION_BUS_ADDRESS", command},
            {"OPENSSL_CONF", path("foreign/ssl.cnf")}, {"QT_PLUGIN_PATH", path("open")},
            {"PATH", path("open") + ":/usr/bin"},      {"LANGUAGE", ".." + path("foreign")}};
        for (const auto &[name, value] : variables)
            qputenv(name, value);
        qputenv("QT_FONT_DPI", "120");
        prepareNativeProcess();
        for (const auto &[name, value] : variables)
            QVERIFY2(!qgetenv(name).contains(value), name);
        QCOMPARE(qgetenv("QT_FONT_DPI"), QByteArray("120"));
        // Nor a library that a program on the display names for the theme, or the display for drawing.
        QVERIFY(!QGuiApplication::desktopSettingsAware());
        QCOMPARE(qgetenv("QT_XCB_GL_INTEGRATION"), QByteArray("none"));
        QProcess::execute(linuxtools::find("systemd-inhibit"), {"true"});
        QCOMPARE(inSecret(), QStringList());
        const QString home = QDir::homePath();
        QVERIFY(!qgetenv("HOME").contains("foreign"));
        QCOMPARE(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), home + "/.config");
        const folders::Places &places = folders::places();
        QCOMPARE(places.temp + ' ' + places.configuration + ' ' + places.data + ' ' + places.autostart,
                 "/run/velmora-halvane /etc/velmora-halvane /var/lib/velmora-halvane /etc/xdg/autostart");
        QVERIFY(QDir(text("foreign")).isEmpty());
    }

    /// The list lets user 65534 write; the mode of the folder does not show that.
    void folderWithAnAccessList()
    {
        struct Entry {
            quint16 tag, rights;
            quint32 id;
        };
        struct {
            quint32 version = 2;
            Entry entries[5] = {{1, 7, ~0U}, {2, 7, Nobody}, {4, 5, ~0U}, {16, 7, ~0U}, {32, 5, ~0U}};
        } list;
        QCOMPARE(setxattr(path("secret"), "system.posix_acl_access", &list, sizeof(list), 0), 0);
        QCOMPARE(ownfiles::strangerOn(text("secret")), text("secret") + ": others may write to it");
    }

    void swappedFolder()
    {
        const QByteArray folder = path("foreign/velmora-halvane");
        const QByteArray aside = path("foreign/aside");
        const QByteArray secret = path("secret");
        const Attacker attacker([&] {
            rename(folder, aside);
            (void)!symlink(secret, folder);
            unlink(folder);
            rename(aside, folder);
        });
        QCOMPARE(mkdir(folder, 0700), 0);
        const QDeadlineTimer end(AttackMilliseconds);
        while (!end.hasExpired()) {
            QFile file;
            QVERIFY(!folders::ensurePrivate(QString::fromUtf8(folder)).isEmpty());
            QVERIFY(!ownfiles::makeFile(&file, QString::fromUtf8(folder + "/TempFile.txt")));
        }
        QCOMPARE(inSecret(), QStringList());
    }

    void swappedScript()
    {
        QVERIFY(make("foreign/velmora-halvane", 0777));
        auto watched = std::make_unique<WatchedPlatform>(foreignPlaces());
        int commands = 0;
        watched->onCommand = [&commands] { ++commands; };
        Platform::install(std::move(watched));
        destination::runScripts(destination::prepareScripts(1));
        QCOMPARE(commands, 0);
        QVERIFY(QDir(text("foreign/velmora-halvane")).isEmpty());
    }

    void quickerInAnOpenFolder()
    {
        const QByteArray folder = path("open/program");
        const QByteArray secret = path("secret");
        const Attacker attacker([&] {
            (void)!symlink(secret, folder);
            unlink(folder);
            mkdir(folder, 0777);
            rmdir(folder);
        });
        int made = 0;
        const QDeadlineTimer end(AttackMilliseconds);
        while (!end.hasExpired()) {
            const QString below = text("open/program/below");
            if (!ownfiles::makeFolder(below).isEmpty())
                continue;
            ++made;
            struct stat status = {};
            QCOMPARE(lstat(folder, &status), 0);
            QVERIFY(S_ISDIR(status.st_mode) && status.st_uid == 0);
            QVERIFY(QDir().rmdir(below) && rmdir(folder) == 0);
        }
        QVERIFY(made > 0);
        QCOMPARE(inSecret(), QStringList());
    }

    void linkForSettings()
    {
        QVERIFY(writeFile(text("secret/own"), "{}"));
        QVERIFY(make("foreign/config", 0755) && link("secret/own", "foreign/config/Probe.json"));
        const QString wrong = "VelmoraHalvane: %1: %2/foreign: belongs to another user";
        const auto said = [&](const char *what) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable(wrong.arg(QLatin1String(what), m_folder->path())));
        };
        LinuxPlatform pc(foreignPlaces());
        said("settings are not kept");
        pc.OpenSettings("Probe")->setValue("a", 1);
        said("nothing is started at logon");
        const QString starter = text("secret/start");
        QVERIFY(writeFile(starter, {}) && QFile::setPermissions(starter, QFile::ReadOwner | QFile::ExeOwner));
        pc.CreateLogonTask({"Probe", "a", text("secret/a.exe"), QString()});
        said("no history is kept");
        QCOMPARE(pc.HistoryFolder("/usr/bin"), QString());
        QVERIFY(pc.MakePrivateFolder("updatetmp").isEmpty());
        QCOMPARE(contentOf(text("secret/own")), QByteArray("{}"));
        QCOMPARE(QDir(text("foreign")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                 QStringList{"config"});
    }

    /// A file that root saves in a folder of another user replaces his links.
    void savedThroughLinks()
    {
        const auto saved = [](const QString &place) {
            QPixmap picture(8, 8);
            picture.fill(Qt::white);
            return QVector<bool>{rescuemap::save(place + "/clone.map", {}, 8),
                                 writeReport(place + "/report.pdf", SmartReport()),
                                 writePicture(place + "/page.jpg", picture)};
        };
        const QStringList names{"clone.map", "page.jpg", "report.pdf"};
        for (const QString &name : names)
            QVERIFY(link("secret/own", qPrintable("foreign/" + name)));
        QCOMPARE(saved(text("foreign")), QVector<bool>(3, true));
        QCOMPARE(QDir(text("foreign")).entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden), names);
        QVERIFY(link("secret", "foreign/way"));
        QCOMPARE(saved(text("foreign/way")), QVector<bool>(3, false));
        QCOMPARE(inSecret(), QStringList());
    }

    void openedForTheUser()
    {
        QVERIFY(!desktopuser::loggedOn());
        qputenv("PKEXEC_UID", QByteArray::number(Nobody));
        const auto clean = qScopeGuard([] { qunsetenv("PKEXEC_UID"); });
        const auto user = desktopuser::loggedOn();
        QVERIFY(user);
        qputenv("HALVANE_PROBE", "root's");
        const QString out = text("foreign/out");
        const QString script = QStringLiteral(
            "echo $(id -u) $(id -g) $HOME $XDG_RUNTIME_DIR $HALVANE_PROBE $(readlink /proc/$$/fd/1 "
            "/proc/$$/fd/2) >%1.new; mv %1.new %1");
        QVERIFY(desktopuser::start(*user, "/bin/sh", {"-c", script.arg(out)}));
        QTRY_VERIFY(QFile::exists(out));
        QCOMPARE(QString::fromLocal8Bit(ownfiles::contents(out)),
                 "65534 65534 " + user->home + " /run/user/65534 /dev/null /dev/null\n");
    }

    /// A pipe with the tool's name, in the folder where the program is started, does not stop the start.
    void startedBesideAPipe()
    {
        DescribedFolder folder;
        folder.add("pc.json", R"({"pauses": false})");
        QProcess program;
        program.setProcessEnvironment(folder.environment());
        QCOMPARE(mkfifo(path("foreign/smartctl64Bit.exe"), 0666), 0);
        program.setWorkingDirectory(text("foreign"));
        program.start(HALVANE_BIN "/VelmoraHalvane", QStringList());
        // Only the main window writes settings.
        QTRY_VERIFY_WITH_TIMEOUT(!QDir(folder.state() + "/registry").isEmpty(), 20000);
        program.kill();
        program.waitForFinished();
    }

private:
    QString text(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QByteArray path(const char *name) const { return QFile::encodeName(text(name)); }
    bool make(const char *name, mode_t mode, uid_t owner = 0) const
    {
        const QByteArray folder = path(name);
        return mkdir(folder, mode) == 0 && chmod(folder, mode) == 0 && chown(folder, owner, owner) == 0;
    }
    bool link(const char *target, const char *name) const
    {
        return symlink(path(target), path(name)) == 0 && lchown(path(name), Nobody, Nobody) == 0;
    }
    /// What is in the folder that only root may enter.
    QStringList inSecret() const
    {
        return QDir(text("secret")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    }
    folders::Places foreignPlaces() const
    {
        return {text("foreign/velmora-halvane"), text("foreign/config"), text("foreign/autostart"),
                text("foreign/data")};
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(OwnFoldersTest)
#include "tst_OwnFolders.moc"
