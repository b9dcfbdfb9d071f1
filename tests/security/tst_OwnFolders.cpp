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
#include <QtTest>

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
    void initTestCase();
    void init();
    void instanceWithoutATempFolder();
    void variablesOfAUser();
    void folderWithAnAccessList();
    void swappedFolder();
    void swappedScript();
    void quickerInAnOpenFolder();
    void linkForSettings();
    void savedThroughLinks();
    void openedForTheUser();
    void startedBesideAPipe();

private:
    QString text(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QByteArray path(const char *name) const { return QFile::encodeName(text(name)); }
    bool make(const char *name, mode_t mode, uid_t owner = 0) const
    {
        const QByteArray folder = path(name);
        return mkdir(folder.constData(), mode) == 0 && chmod(folder.constData(), mode) == 0 &&
               chown(folder.constData(), owner, owner) == 0;
    }
    bool link(const char *target, const char *name) const
    {
        return symlink(path(target).constData(), path(name).constData()) == 0 &&
               lchown(path(name).constData(), Nobody, Nobody) == 0;
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

void OwnFoldersTest::initTestCase()
{
    if (geteuid() != 0)
        QSKIP("only root can become another user");
}

/// Only root may use "secret". "foreign" belongs to another user. "open" is for all, like /tmp.
void OwnFoldersTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(chmod(path("").constData(), 0755) == 0 && make("secret", 0700) && make("foreign", 0755, Nobody) &&
            make("open", 01777));
}

/// Another user has taken the usual name in /tmp. The first case, as this process must not have chosen its
/// folders yet.
void OwnFoldersTest::instanceWithoutATempFolder()
{
    constexpr uid_t User = 64321;
    const QByteArray usual = "/tmp/velmora-halvane-" + QByteArray::number(User);
    rmdir(usual.constData()); // left by a run that was ended
    QVERIFY2(mkdir(usual.constData(), 0700) == 0 && chown(usual.constData(), Nobody, Nobody) == 0, usual);
    const auto clean = qScopeGuard([&] { rmdir(usual.constData()); });
    QVERIFY(make("home", 0700, User));
    int answers[2];
    QCOMPARE(pipe(answers), 0);
    const auto start = [&] {
        for (const char *name : {"XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            qunsetenv(name);
        qputenv("HOME", path("home"));
        (void)!write(answers[1], takeNativeInstance(QStringLiteral("Probe")) ? "y" : "n", 1);
        pause();
    };
    char taken[2] = {};
    const Attacker first(start, User);
    QCOMPARE(read(answers[0], taken, 1), ssize_t(1));
    const Attacker second(start, User);
    QCOMPARE(read(answers[0], taken + 1, 1), ssize_t(1));
    QCOMPARE(QByteArray(taken, 2), QByteArray("yn"));
    for (const QString &left : QDir(QStringLiteral("/tmp")).entryList({QStringLiteral("velmora-halvane-*")}))
        if (QFileInfo(QStringLiteral("/tmp/") + left).ownerId() == User)
            QDir().rmdir(QStringLiteral("/tmp/") + left);
}

void OwnFoldersTest::variablesOfAUser()
{
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, path("foreign"));
    // The address of a bus that is a command; folders of libraries, tools and translations.
    const QByteArray command = "unixexec:path=/usr/bin/touch,argv1=" + path("secret/ran");
    const QVector<QPair<const char *, QByteArray>> variables{
        {"DBUS_SYSTEM_BUS_ADDRESS", command},      {"DBUS_SESSION_BUS_ADDRESS", command},
        {"OPENSSL_CONF", path("foreign/ssl.cnf")}, {"QT_PLUGIN_PATH", path("open")},
        {"PATH", path("open") + ":/usr/bin"},      {"LANGUAGE", ".." + path("foreign")}};
    for (const auto &variable : variables)
        qputenv(variable.first, variable.second);
    qputenv("QT_FONT_DPI", "120");
    prepareNativeProcess();
    for (const auto &variable : variables)
        QVERIFY2(!qgetenv(variable.first).contains(variable.second), variable.first);
    QCOMPARE(qgetenv("QT_FONT_DPI"), QByteArray("120"));
    // Nor a library that a program on the display names for the desktop's theme, or the display for drawing.
    QVERIFY(!QGuiApplication::desktopSettingsAware());
    QCOMPARE(qgetenv("QT_XCB_GL_INTEGRATION"), QByteArray("none"));
    QProcess::execute(linuxtools::find(QStringLiteral("systemd-inhibit")), {QStringLiteral("true")});
    QCOMPARE(inSecret(), QStringList());
    const QString home = QDir::homePath();
    QVERIFY(!qgetenv("HOME").contains("foreign"));
    QCOMPARE(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
             home + QStringLiteral("/.config"));
    const folders::Places &places = folders::places();
    QCOMPARE(places.temp, QStringLiteral("/run/velmora-halvane"));
    QCOMPARE(places.configuration, QStringLiteral("/etc/velmora-halvane"));
    QCOMPARE(places.data, QStringLiteral("/var/lib/velmora-halvane"));
    QCOMPARE(places.autostart, home + QStringLiteral("/.config/autostart"));
    QVERIFY(QDir(text("foreign")).isEmpty());
}

/// The list lets user 65534 write; the mode of the folder does not show that.
void OwnFoldersTest::folderWithAnAccessList()
{
    struct Entry {
        quint16 tag, rights;
        quint32 id;
    };
    struct {
        quint32 version = 2;
        Entry entries[5] = {{1, 7, ~0U}, {2, 7, Nobody}, {4, 5, ~0U}, {16, 7, ~0U}, {32, 5, ~0U}};
    } list;
    QCOMPARE(setxattr(path("secret").constData(), "system.posix_acl_access", &list, sizeof(list), 0), 0);
    QCOMPARE(ownfiles::strangerOn(text("secret")),
             text("secret") + QStringLiteral(": others may write to it"));
}

void OwnFoldersTest::swappedFolder()
{
    const QByteArray folder = path("foreign/velmora-halvane");
    const QByteArray aside = path("foreign/aside");
    const QByteArray secret = path("secret");
    const Attacker attacker([&] {
        rename(folder.constData(), aside.constData());
        (void)!symlink(secret.constData(), folder.constData());
        unlink(folder.constData());
        rename(aside.constData(), folder.constData());
    });
    QCOMPARE(mkdir(folder.constData(), 0700), 0);
    const QDeadlineTimer end(AttackMilliseconds);
    while (!end.hasExpired()) {
        QFile file;
        QVERIFY(!folders::ensurePrivate(QString::fromUtf8(folder)).isEmpty());
        QVERIFY(!ownfiles::makeFile(&file, QString::fromUtf8(folder + "/TempFile.txt")));
    }
    QCOMPARE(inSecret(), QStringList());
}

void OwnFoldersTest::swappedScript()
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

void OwnFoldersTest::quickerInAnOpenFolder()
{
    const QByteArray folder = path("open/program");
    const QByteArray secret = path("secret");
    const Attacker attacker([&] {
        (void)!symlink(secret.constData(), folder.constData());
        unlink(folder.constData());
        mkdir(folder.constData(), 0777);
        rmdir(folder.constData());
    });
    int made = 0;
    const QDeadlineTimer end(AttackMilliseconds);
    while (!end.hasExpired()) {
        const QString below = text("open/program/below");
        if (!ownfiles::makeFolder(below).isEmpty())
            continue;
        ++made;
        struct stat status = {};
        QCOMPARE(lstat(folder.constData(), &status), 0);
        QVERIFY(S_ISDIR(status.st_mode) && status.st_uid == 0);
        QVERIFY(QDir().rmdir(below) && rmdir(folder.constData()) == 0);
    }
    QVERIFY(made > 0);
    QCOMPARE(inSecret(), QStringList());
}

void OwnFoldersTest::linkForSettings()
{
    QVERIFY(writeFile(text("secret/own"), "{}"));
    QVERIFY(make("foreign/config", 0755) && link("secret/own", "foreign/config/Probe.json"));
    const QString wrong = QStringLiteral("VelmoraHalvane: %1: %2/foreign: belongs to another user");
    const auto said = [&](const char *what) {
        QTest::ignoreMessage(QtWarningMsg, qPrintable(wrong.arg(QLatin1String(what), m_folder->path())));
    };
    LinuxPlatform pc(foreignPlaces());
    said("settings are not kept");
    pc.OpenSettings(QStringLiteral("Probe"))->setValue(QStringLiteral("a"), 1);
    said("nothing is started at logon");
    pc.CreateLogonTask({QStringLiteral("Probe"), QStringLiteral("a"), QStringLiteral("/a.exe"), QString()});
    said("no history is kept");
    QCOMPARE(pc.HistoryFolder(QStringLiteral("/usr/bin")), QString());
    QVERIFY(pc.MakePrivateFolder(QStringLiteral("updatetmp")).isEmpty());
    QCOMPARE(contentOf(text("secret/own")), QByteArray("{}"));
    QCOMPARE(QDir(text("foreign")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
             QStringList{QStringLiteral("config")});
}

/// A file that root saves in a folder of another user replaces his links.
void OwnFoldersTest::savedThroughLinks()
{
    const auto saved = [](const QString &place) {
        QPixmap picture(8, 8);
        picture.fill(Qt::white);
        return QVector<bool>{rescuemap::save(place + QStringLiteral("/clone.map"), {}, 8),
                             writeReport(place + QStringLiteral("/report.pdf"), SmartReport()),
                             writePicture(place + QStringLiteral("/page.jpg"), picture)};
    };
    const QStringList names{QStringLiteral("clone.map"), QStringLiteral("page.jpg"),
                            QStringLiteral("report.pdf")};
    for (const QString &name : names)
        QVERIFY(link("secret/own", qPrintable(QStringLiteral("foreign/") + name)));
    QCOMPARE(saved(text("foreign")), QVector<bool>(3, true));
    QCOMPARE(QDir(text("foreign")).entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden), names);
    QVERIFY(link("secret", "foreign/way"));
    QCOMPARE(saved(text("foreign/way")), QVector<bool>(3, false));
    QCOMPARE(inSecret(), QStringList());
}

void OwnFoldersTest::openedForTheUser()
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
    QVERIFY(desktopuser::start(*user, QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script.arg(out)}));
    QTRY_VERIFY(QFile::exists(out));
    const QString wanted =
        QStringLiteral("65534 65534 %1 /run/user/65534 /dev/null /dev/null\n").arg(user->home);
    QCOMPARE(QString::fromLocal8Bit(ownfiles::contents(out)), wanted);
}

/// A pipe that bears the tool's name, in the folder where the program is started, does not stop the start.
void OwnFoldersTest::startedBesideAPipe()
{
    DescribedFolder folder;
    folder.add(QStringLiteral("pc.json"), R"({"pauses": false})");
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HALVANE_PC"), folder.path());
    environment.insert(QStringLiteral("HALVANE_PC_STATE"), folder.state());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    program.setProcessEnvironment(environment);
    QCOMPARE(mkfifo(path("foreign/smartctl64Bit.exe").constData(), 0666), 0);
    program.setWorkingDirectory(text("foreign"));
    program.start(QStringLiteral(HALVANE_BIN "/VelmoraHalvane"), QStringList());
    // Only the main window writes settings.
    const QString settings = folder.state() + QStringLiteral("/registry");
    QTRY_VERIFY_WITH_TIMEOUT(!QDir(settings).isEmpty(), 20000);
    program.kill();
    program.waitForFinished();
}

QTEST_MAIN(OwnFoldersTest)
#include "tst_OwnFolders.moc"
