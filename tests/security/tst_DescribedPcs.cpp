// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OwnFiles.h"
#include "smart/AttributeHistory.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/platform/RawDisk.h"
#include "tests/support/ArrowRows.h"

#include <sys/stat.h>
#include <unistd.h>

/// Described PCs of strangers: what they could make the program read, write or ask.
class DescribedPcsTest : public QObject
{
    Q_OBJECT

private slots:
    void strangeNames()
    {
        const DescribedFolder folder;
        folder.add("leaky/a", "");
        const QDir here(folder.path());
        for (const char *name : {"out", "leaky/out"})
            QVERIFY(QFile::link("/etc/passwd", here.filePath(name)));
        QCOMPARE(mkfifo(QFile::encodeName(here.filePath("pipe")).constData(), 0600), 0);
        folder.add("long", "");
        QVERIFY(QFile::resize(here.filePath("long"), ownfiles::MostBytes + 1));
        compareRows("DescribedPcs/names", [&folder](const QString &json) {
            folder.add("pc.json", json.toUtf8());
            return openingError(folder).replace(QDir::tempPath(), "<above>");
        });
        folder.add("pc.json", R"({"processes": [)" + QByteArray(R"("",)").repeated(70000) + R"(""]})");
        QCOMPARE(openingError(folder), "<pc>/pc.json: processes: at most 65536 entries are wanted");
    }

    void strangeDescription()
    {
        const QString irregular = "<pc>/pc.json: no regular file that can be read";
        for (const auto &[command, error] :
             {std::pair("mkfifo ", irregular), std::pair("ln -s /etc/passwd ", irregular),
              std::pair("truncate -s 1G ", QString("<pc>/pc.json: more than 16 MiB"))}) {
            const DescribedFolder folder;
            QCOMPARE(std::system(command + folder.path().toUtf8() + "/pc.json"), 0);
            QCOMPARE(openingError(folder), error);
        }
    }

    void strangeStates()
    {
        // Links to a file of the user, in the place of a log, a drive's folder and an image.
        for (const char *link : {"commands.log", "drives/C", "images/disk0.img"}) {
            const DescribedFolder folder;
            folder.add("pc.json", R"({"disks": [{"number": 0, "sectors": 16}]})");
            folder.add("own", "mine");
            const QString path = folder.state() + '/' + link;
            QVERIFY(QDir().mkpath(QFileInfo(path).path()));
            QVERIFY(QFile::link(folder.path() + "/own", path));
            QCOMPARE(openingError(folder),
                     "the state of the PC cannot be kept: " + path + ": no regular file");
            QVERIFY(QFile::remove(path));
        }
        // A link that replaces an image later is not followed either.
        const DescribedFolder folder;
        folder.add("own", "mine");
        const auto pc = folder.open(R"({"disks": [{"number": 0, "sectors": 16}]})");
        QVERIFY(QFile::link(folder.path() + "/own", pc->imageFile(0)));
        QCOMPARE(rawdisk::open(*pc, rawdisk::First), Platform::InvalidHandle);
        QCOMPARE(contentOf(folder.path() + "/own"), QByteArray("mine"));
    }

    void foldersOfOthers()
    {
        if (geteuid() != 0)
            QSKIP("only root can make a folder of somebody else");
        const DescribedFolder folder;
        folder.add("pc.json", "{}");
        const DescribedFolder others;
        const QString other = others.path();
        const auto give = [&other](const char *file, uid_t owner, mode_t mode) {
            const QByteArray name = QFile::encodeName(other + file);
            return chown(name.constData(), owner, owner) == 0 && chmod(name.constData(), mode) == 0;
        };
        /// What is wrong is said when the folder is to keep the state of a PC, and when it describes one.
        const auto refuses = [&](const QString &state, const QString &wrong) {
            QString error;
            QVERIFY(!SimulatedPlatform::open(other, folder.state(), &error));
            QCOMPARE(error, wrong + ", and this program runs as an administrator");
            QCOMPARE(openingError(folder, state), "the state of the PC cannot be kept: " + wrong);
        };
        const QString belongs = ": belongs to another user";
        const QString open = ": others may write to it";
        others.add("pc.json", "{}");
        QVERIFY(give("", 65534, 0700));
        refuses(other + "/state", other + belongs);
        // Root does not take a folder behind a link of another user either, nor one that all may write to.
        const QString link = other + "/root's";
        QVERIFY(QFile::link(folder.path(), link));
        QCOMPARE(ownfiles::strangerOn(link), other + belongs);
        QVERIFY(QFile::remove(link) && give("", 0, 0757));
        QCOMPARE(ownfiles::strangerOn(other + "/state"), other + open);
        // Nor one that all may add to, or with a file of another user, or one that all may write to.
        QVERIFY(give("", 0, 01777));
        refuses(other, other + open);
        QVERIFY(give("", 0, 0755) && give("/pc.json", 0, 0666));
        refuses(other, other + "/pc.json" + open);
        QVERIFY(give("/pc.json", 65534, 0644));
        refuses(other, other + "/pc.json" + belongs);
        QVERIFY(give("/pc.json", 0, 0644) && QDir(other).mkdir("temp") && give("/temp", 65534, 0700));
        refuses(other, other + "/temp" + belongs);
    }

    void drivesHaveNoParent()
    {
        const DescribedFolder folder;
        const auto pc = folder.open("{}");
        QCOMPARE(pc->NativePath("C:\\..\\a\\..\\..\\..\\etc\\..\\x"), folder.state() + "/drives/C/x");
        QCOMPARE(pc->NativePath("d:/.."), folder.state() + "/drives/D/");
    }

    void slowDisk()
    {
        const DescribedFolder folder;
        const auto pc = folder.open(R"({"disks": [{"number": 0, "sectors": 32768, "bytesPerSecond": 1}]})");
        const auto disk = rawdisk::open(*pc, rawdisk::First);
        QByteArray block(32768 * 512, 'x');
        QElapsedTimer clock;
        clock.start();
        QVERIFY(pc->ReadFile(disk, block.data(), 512, nullptr));
        QVERIFY(clock.restart() < 5000);
        QVERIFY(pc->SetFilePointer(disk, 0) &&
                pc->ReadFile(disk, block.data(), quint32(block.size()), nullptr));
        QVERIFY(clock.elapsed() < 8000);
    }

    /// QSettings builds the type that a value names, however deep its lists are nested.
    void typesInTheHistory()
    {
        const DescribedFolder folder;
        folder.add("history/values-SN", "[21-11-2026]\nHours = 5\nEvil=x,\"\\x40Variant(" +
                                            QByteArray(R"(\0\0\0\t\0\0\0\x1)").repeated(150000) + ")\"\n");
        Platform::install(folder.open("{}"));
        const HistoryPaths paths = historyPaths("SN");
        QCOMPARE(readHistoryValues(paths.values, {"21-11-2026"}, "Hours"), std::vector<qint64>{5});
        recordHistory("SN", QDateTime(QDate(2026, 11, 22), QTime(8, 0)), {{"Hours", "@7, =.@@"}});
        recordHistory("SN", QDateTime(QDate(2026, 11, 23), QTime(8, 0)), {});
        const QSettings stored(paths.values, QSettings::IniFormat);
        QVERIFY(stored.value("21-11-2026/Evil").toString().startsWith("x,@Variant("));
        QCOMPARE(stored.value("22-11-2026/Hours").toString(), "@7, =.@@");
    }

private:
    static QString openingError(const DescribedFolder &folder, const QString &state = QString())
    {
        QString error;
        const auto pc =
            SimulatedPlatform::open(folder.path(), state.isEmpty() ? folder.state() : state, &error);
        return pc ? "it opens" : error.replace(folder.path(), "<pc>");
    }
};

QTEST_GUILESS_MAIN(DescribedPcsTest)
#include "tst_DescribedPcs.moc"
