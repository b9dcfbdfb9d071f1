// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "platform/OwnFiles.h"
#include "smart/AttributeHistory.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Files.h"

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

/// Described PCs of strangers: what they could make the program read, write or ask.
class DescribedPcsTest : public QObject
{
    Q_OBJECT

private slots:
    void strangeNames_data();
    void strangeNames();
    void strangeDescription();
    void strangeStates();
    void foldersOfOthers();
    void drivesHaveNoParent();
    void slowDisk();
    void typesInTheHistory();

private:
    static QString openingError(const DescribedFolder &folder, const QString &state = QString())
    {
        QString error;
        const auto pc =
            SimulatedPlatform::open(folder.path(), state.isEmpty() ? folder.state() : state, &error);
        return pc ? QStringLiteral("it opens") : error.replace(folder.path(), QStringLiteral("<pc>"));
    }
};

void DescribedPcsTest::strangeNames_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &json, const char *error) {
        QTest::newRow(name) << json << QStringLiteral("<pc>/pc.json: ") + QLatin1String(error);
    };
    const auto disk = [&row](const char *name, const QByteArray &json, const char *error) {
        row(name, R"({"disks": [{"number": 0, )" + json + "}]}", error);
    };
    row("root as history", R"({"history": "/"})", "history: /: lies outside the folder");
    row("link in the history", R"({"history": "leaky"})",
        "history: <pc>/leaky/out: no regular file that can be read");
    row("setting", R"({"settings": {"EN/SupportLink": "a\\..\\..\\b"}})",
        R"(settings["EN/SupportLink"]: a text without ".." is wanted)");
    row("log beside the PC", R"({"settings": {"LogSavePath": "/tmp/x/y.log"}})",
        R"(settings["LogSavePath"]: a path on a drive is wanted)");
    row("many disks", R"({"processes": [)" + QByteArray(R"("",)").repeated(70000) + R"(""]})",
        "processes: at most 65536 entries are wanted");
    disk("image above", R"("image": "../x.img")", "disks[0].image: <above>/x.img: lies outside the folder");
    disk("pipe as image", R"("image": "pipe")",
         "disks[0].image: <pc>/pipe: no regular file that can be read");
    disk("link out", R"("report": "out")", "disks[0].report: <pc>/out: lies outside the folder");
    disk("full path", R"("capabilities": "/etc/passwd")",
         "disks[0].capabilities: /etc/passwd: lies outside the folder");
    disk("name with an end", R"("report": "a\u0000b")",
         "disks[0].report: a text without control characters is wanted");
    disk("pipe", R"("selfTestLog": "pipe")",
         "disks[0].selfTestLog: <pc>/pipe: no regular file that can be read");
    disk("long report", R"("report": "long")", "disks[0].report: <pc>/long: more than 16 MiB");
}

void DescribedPcsTest::strangeNames()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    const DescribedFolder folder;
    folder.add(QStringLiteral("pc.json"), json);
    folder.add(QStringLiteral("leaky/a"), "");
    const QDir here(folder.path());
    for (const char *name : {"out", "leaky/out"})
        QVERIFY(QFile::link(QStringLiteral("/etc/passwd"), here.filePath(QLatin1String(name))));
    QCOMPARE(mkfifo(QFile::encodeName(here.filePath(QStringLiteral("pipe"))).constData(), 0600), 0);
    folder.add(QStringLiteral("long"), "");
    QVERIFY(QFile::resize(here.filePath(QStringLiteral("long")), ownfiles::MostBytes + 1));
    QCOMPARE(openingError(folder), error.replace(QStringLiteral("<above>"), QDir::tempPath()));
}

void DescribedPcsTest::strangeDescription()
{
    const QString irregular = QStringLiteral("<pc>/pc.json: no regular file that can be read");
    const QMap<QByteArray, QString> errors{
        {"mkfifo", irregular},
        {"ln -s /etc/passwd", irregular},
        {"truncate -s 1G", QStringLiteral("<pc>/pc.json: more than 16 MiB")}};
    for (auto it = errors.cbegin(); it != errors.cend(); ++it) {
        const DescribedFolder folder;
        QCOMPARE(std::system((it.key() + ' ' + folder.path().toUtf8() + "/pc.json").constData()), 0);
        QCOMPARE(openingError(folder), it.value());
    }
}

void DescribedPcsTest::strangeStates()
{
    // Links to a file of the user, in the place of a log, a drive's folder and an image.
    for (const char *link : {"commands.log", "drives/C", "images/disk0.img"}) {
        const DescribedFolder folder;
        folder.add(QStringLiteral("pc.json"), R"({"disks": [{"number": 0, "sectors": 16}]})");
        folder.add(QStringLiteral("own"), "mine");
        const QString path = folder.state() + QLatin1Char('/') + QLatin1String(link);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QVERIFY(QFile::link(folder.path() + QStringLiteral("/own"), path));
        QCOMPARE(openingError(folder), QLatin1String("the state of the PC cannot be kept: ") + path +
                                           QLatin1String(": no regular file"));
        QVERIFY(QFile::remove(path));
    }
    // A link that replaces an image later is not followed either.
    const DescribedFolder folder;
    folder.add(QStringLiteral("own"), "mine");
    const auto pc = folder.open(R"({"disks": [{"number": 0, "sectors": 16}]})");
    QVERIFY(QFile::link(folder.path() + QStringLiteral("/own"), pc->imageFile(0)));
    QCOMPARE(pc->CreateFileW(QStringLiteral("\\\\.\\PHYSICALDRIVE0"), io::GenericRead | io::GenericWrite, 3,
                             io::OpenExisting),
             Platform::InvalidHandle);
    QCOMPARE(contentOf(folder.path() + QStringLiteral("/own")), QByteArray("mine"));
}

void DescribedPcsTest::foldersOfOthers()
{
    if (geteuid() != 0)
        QSKIP("only root can make a folder of somebody else");
    const DescribedFolder folder;
    folder.add(QStringLiteral("pc.json"), "{}");
    const DescribedFolder others;
    const QString other = others.path();
    const auto give = [&other](const char *file, uid_t owner, mode_t mode) {
        const QByteArray name = QFile::encodeName(other + QLatin1String(file));
        return chown(name.constData(), owner, owner) == 0 && chmod(name.constData(), mode) == 0;
    };
    /// What is wrong is said when the folder is to keep the state of a PC, and when it describes one.
    const auto refuses = [&](const QString &state, const QString &wrong) {
        QString error;
        QVERIFY(!SimulatedPlatform::open(other, folder.state(), &error));
        QCOMPARE(error, wrong + QStringLiteral(", and this program runs as an administrator"));
        QCOMPARE(openingError(folder, state), QStringLiteral("the state of the PC cannot be kept: ") + wrong);
    };
    const QString belongs = QStringLiteral(": belongs to another user");
    const QString open = QStringLiteral(": others may write to it");
    others.add(QStringLiteral("pc.json"), "{}");
    QVERIFY(give("", 65534, 0700));
    refuses(other + QStringLiteral("/state"), other + belongs);
    // Root does not take a folder behind a link of another user either, nor one that all may write to.
    const QString link = other + QStringLiteral("/root's");
    QVERIFY(QFile::link(folder.path(), link));
    QCOMPARE(ownfiles::strangerOn(link), other + belongs);
    QVERIFY(QFile::remove(link) && give("", 0, 0757));
    QCOMPARE(ownfiles::strangerOn(other + QStringLiteral("/state")), other + open);
    // Nor one that all may add to, or with a file of another user, or one that all may write to.
    QVERIFY(give("", 0, 01777));
    refuses(other, other + open);
    QVERIFY(give("", 0, 0755) && give("/pc.json", 0, 0666));
    refuses(other, other + QStringLiteral("/pc.json") + open);
    QVERIFY(give("/pc.json", 65534, 0644));
    refuses(other, other + QStringLiteral("/pc.json") + belongs);
    QVERIFY(give("/pc.json", 0, 0644) && QDir(other).mkdir(QStringLiteral("temp")) &&
            give("/temp", 65534, 0700));
    refuses(other, other + QStringLiteral("/temp") + belongs);
}

void DescribedPcsTest::drivesHaveNoParent()
{
    const DescribedFolder folder;
    const auto pc = folder.open("{}");
    QCOMPARE(pc->NativePath(QStringLiteral("C:\\..\\a\\..\\..\\..\\etc\\..\\x")),
             folder.state() + QStringLiteral("/drives/C/x"));
    QCOMPARE(pc->NativePath(QStringLiteral("d:/..")), folder.state() + QStringLiteral("/drives/D/"));
}

void DescribedPcsTest::slowDisk()
{
    const DescribedFolder folder;
    const auto pc = folder.open(R"({"disks": [{"number": 0, "sectors": 32768, "bytesPerSecond": 1}]})");
    const auto disk =
        pc->CreateFileW(QStringLiteral("\\\\.\\PHYSICALDRIVE0"), io::GenericRead, 3, io::OpenExisting);
    QByteArray block(32768 * 512, 'x');
    QElapsedTimer clock;
    clock.start();
    QVERIFY(pc->ReadFile(disk, block.data(), 512, nullptr));
    QVERIFY(clock.restart() < 900);
    QVERIFY(pc->SetFilePointer(disk, 0) && pc->ReadFile(disk, block.data(), quint32(block.size()), nullptr));
    QVERIFY(clock.elapsed() < 8000);
}

/// QSettings builds the type that a value names, however deep its lists are nested.
void DescribedPcsTest::typesInTheHistory()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("history/values-SN"), "[21-11-2026]\nHours = 5\nEvil=x,\"\\x40Variant(" +
                                                        QByteArray(R"(\0\0\0\t\0\0\0\x1)").repeated(150000) +
                                                        ")\"\n");
    Platform::install(folder.open("{}"));
    const HistoryPaths paths = historyPaths(QStringLiteral("SN"));
    const QString day = QStringLiteral("21-11-2026");
    const QString hours = QStringLiteral("Hours");
    QCOMPARE(readHistoryValues(paths.values, {day}, hours), std::vector<qint64>{5});
    recordHistory(QStringLiteral("SN"), QDateTime(QDate(2026, 11, 22), QTime(8, 0)), {{hours, "@7, =.@@"}});
    recordHistory(QStringLiteral("SN"), QDateTime(QDate(2026, 11, 23), QTime(8, 0)), {});
    const QSettings stored(paths.values, QSettings::IniFormat);
    QVERIFY(stored.value(day + QStringLiteral("/Evil")).toString().startsWith(QLatin1String("x,@Variant(")));
    QCOMPARE(stored.value(QStringLiteral("22-11-2026/Hours")).toString(), QStringLiteral("@7, =.@@"));
}

QTEST_GUILESS_MAIN(DescribedPcsTest)
#include "tst_DescribedPcs.moc"
