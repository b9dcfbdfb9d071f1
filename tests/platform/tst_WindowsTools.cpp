// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "inventory/Companion.h"
#include "inventory/WmicInventory.h"
#include "platform/NativePlatform.h"
#include "platform/tools/CommandInterpreter.h"
#include "platform/windows/Com.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "tests/support/Files.h"

#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <taskschd.h>

namespace
{

QString ownProgram()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
}

/// The root folder of the task scheduler, without the platform. COM has to be initialised.
class TaskFolder
{
public:
    TaskFolder()
    {
        if (SUCCEEDED(::CoCreateInstance(CLSID_TaskScheduler, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskService,
                                         m_service.untyped())) &&
            SUCCEEDED(m_service->Connect(m_none, m_none, m_none, m_none)))
            m_service->GetFolder(windows::Text("\\"), m_folder.put());
    }

    bool isOpen() const { return m_folder.get(); }

    /// The definition of a task; empty if there is none.
    QString xmlOf(const QString &name) const
    {
        windows::Held<IRegisteredTask> task;
        BSTR text = nullptr;
        if (!isOpen() || FAILED(m_folder->GetTask(windows::Text(name), task.put())) ||
            FAILED(task->get_Xml(&text)))
            return QString();
        const QString xml = QString::fromWCharArray(text);
        ::SysFreeString(text);
        return xml;
    }

    bool registerXml(const QString &name, const QString &xml) const
    {
        windows::Held<IRegisteredTask> task;
        return isOpen() && SUCCEEDED(m_folder->RegisterTask(
                               windows::Text(name), windows::Text(xml), TASK_CREATE_OR_UPDATE, m_none, m_none,
                               TASK_LOGON_INTERACTIVE_TOKEN, m_none, task.put()));
    }

private:
    const VARIANT m_none{};
    windows::Held<ITaskService> m_service;
    windows::Held<ITaskFolder> m_folder;
};

/// The record of the system's volume, after a check of its file system; null if there is none.
const LogicalDiskRecord *systemVolume()
{
    const QString system = g_App.m_strSystemFolder.left(2);
    QString fileSystem;
    Platform::current().GetVolumeInformationW(system + '\\', nullptr, &fileSystem);
    const LogicalDiskRecord *record = g_logicalDisks.find(
        [&system](const LogicalDiskRecord &each) { return each.szCaption.text() == system; });
    return record && record->szFileSystem.text() == fileSystem ? record : nullptr;
}

qint64 systemBytes()
{
    quint64 total = 0;
    Platform::current().GetDiskFreeSpaceExW(g_App.m_strSystemFolder.left(3), &total, nullptr);
    return qint64(total);
}

/// What a command prints; "failed" if that cannot be read.
QString printedBy(const QString &command)
{
    QString text;
    const auto read = [&text](QTextStream &stream) { text = stream.readAll(); };
    return runner::runAndRead(command, "HalvaneRun.txt", read) ? text : "failed";
}

/// What copies of this program do for the cases; -1 if the arguments are not for a copy.
int actAsTool(int argc, char **argv)
{
    const QByteArray what = argc > 1 ? argv[1] : "";
    if (what == "--wait") {
        ::Sleep(30000);
        return 0;
    }
    if (what == "--console") {
        ::Sleep(400);
        const HWND console = ::GetConsoleWindow();
        std::printf("console %s\n", console && ::IsWindowVisible(console) ? "seen" : "hidden");
        return 7;
    }
    if (what == "--touch" && argc == 3)
        return writeFile(QString::fromLocal8Bit(argv[2]), "touched") ? 0 : 1;
    return -1;
}

} // namespace

/// The tools of Windows as the program runs and reads them, the companion, and the task at logon. What Wine
/// cannot do is expected to fail under Wine, and only there.
class tst_WindowsTools : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_bWine = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
        Platform::install(makeNativePlatform());
        // The copies need the libraries in the folder above. Tools get no PATH that names it.
        Platform::current().SetCurrentDirectoryW(QCoreApplication::applicationDirPath() + "/..");
        g_App.m_strSystemFolder = Platform::current().GetSystemDirectoryW();
    }

    void init() { m_folder.reset(new QTemporaryDir); }

    void runsToolsHidden()
    {
        // The tool is slow, has no visible console, and its exit code is not used.
        QCOMPARE(printedBy(ownProgram() + " --console"), "console hidden\n");
        QVERIFY(!QFile::exists(tempFile("HalvaneRun.txt")));
        // A missing tool leaves an empty file.
        QCOMPARE(printedBy("no-such-tool.exe -a"), QString());
    }

    void endsToolsAtTheirLimits()
    {
        Platform &pc = Platform::current();
        const std::wstring slow = QStringLiteral("%1 /c %2 --wait")
                                      .arg(QString::fromUtf8(pc.CommandInterpreter()), ownProgram())
                                      .toStdWString();
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!pc.CreateProcessAndWaitFor(slow, 300, [] { return true; }));
        QVERIFY(!pc.CreateProcessAndWaitFor(slow, 300000, [] { return false; }));
        QVERIFY(clock.elapsed() < 30000); // so long it waits
    }

    void runsToolsOfTheWorkingFolder()
    {
        // A tool named without a folder is the one in the program's folder, even if a file dialog has changed
        // the working folder.
        Platform &pc = Platform::current();
        for (const char *folder : {"own", "planted"}) {
            QVERIFY(QDir(m_folder->path()).mkdir(folder));
            QVERIFY(writeFile(path(folder) + "/bare.bat", QByteArray("@echo ") + folder + "\r\n"));
        }
        const QString before = QDir::currentPath();
        const auto restore = qScopeGuard([&] { pc.SetCurrentDirectoryW(before); });
        pc.SetCurrentDirectoryW(path("own"));
        QVERIFY(QFile::exists("bare.bat"));
        QVERIFY(QDir::setCurrent(path("planted")));
        QCOMPARE(printedBy("bare.bat").trimmed(), "own");
    }

    void programWorksInItsOwnFolder()
    {
        const QDir installed(QCoreApplication::applicationDirPath() + "/..");
        const QString tool = "smartctl64Bit.exe";
        if (!installed.exists(tool) || !installed.exists("VelmoraHalvane.exe"))
            QSKIP("no installation lies around the tests");
        // Started in another folder, it copies its own tool, not the one of that folder.
        QVERIFY(writeFile(path(tool), "planted"));
        const auto copies = [&tool] {
            QVector<qint64> sizes;
            const QDir data(qEnvironmentVariable("ProgramData"));
            for (const QFileInfo &folder : data.entryInfoList({"velmora-halvane-temp-*"}, QDir::Dirs))
                sizes << QFileInfo(folder.filePath() + QLatin1Char('/') + tool).size();
            return sizes;
        };
        QProcess program;
        program.setWorkingDirectory(m_folder->path());
        program.start(installed.filePath("VelmoraHalvane.exe"), QStringList());
        QVERIFY(program.waitForStarted());
        const qint64 size = QFileInfo(installed.filePath(tool)).size();
        QTRY_VERIFY_WITH_TIMEOUT(copies().contains(size), 60000);
    }

    void toolsComeFromOurFolders()
    {
        // A tool that only the user's search path has is not found.
        QVERIFY(QDir(m_folder->path()).mkdir("planted"));
        QVERIFY(QFile::copy(QString::fromWCharArray(::_wgetenv(L"COMSPEC")), path("planted/hvtool.exe")));
        const QByteArray before = qgetenv("PATH");
        const auto restore = qScopeGuard([&before] { qputenv("PATH", before); });
        qputenv("PATH", QFile::encodeName(path("planted")) + ';' + before);
        QCOMPARE(printedBy("hvtool.exe /c echo found"), QString());
        // The temp folder has no letters that mean something in a line, whatever the user's name is.
        QVERIFY(!tools::CommandInterpreter::breaksCommands(Platform::current().GetTempPathW()));
    }

    void interpreterThatIsMissing()
    {
        QVERIFY(!Platform::current().CreateProcessAndWait(L"C:\\no-such-folder\\cmd.exe /c echo ", true));
        const QByteArray before = qgetenv("COMSPEC");
        const auto restore = qScopeGuard([&before] { qputenv("COMSPEC", before); });
        qputenv("COMSPEC", "C:\\no-such-folder\\cmd.exe");
        QCOMPARE(printedBy("echo found").trimmed(), "found");
        // Nor does the interpreter ask that variable for a second one.
        QVERIFY(!printedBy("echo %COMSPEC%").contains(QLatin1String("no-such")));
    }

    void tablesOfTheTool()
    {
        LoadLogicalDisks();
        const LogicalDiskRecord *record = systemVolume();
        QVERIFY(record);
        QVERIFY(record->nFreeBytes > 0 && record->nFreeBytes < record->nSizeBytes);
        if (m_bWine)
            QEXPECT_FAIL("", "Wine gives every volume the size of a disk that it makes up", Continue);
        QCOMPARE(record->nSizeBytes, systemBytes());
        LoadDiskDrives([](int, const QString &) { return ProbedIdentity(); });
        if (m_bWine)
            QEXPECT_FAIL("", "Wine's table has no column Status, and the whole question is refused", Abort);
        QVERIFY(g_pWmicDiskListHead);
        QVERIFY(!g_pWmicDiskListHead->szModel.text().isEmpty());
        QCOMPARE(g_pWmicDiskListHead->szStatus.text(), "OK");
    }

    void tablesWithoutTheTool()
    {
        // Wine's tool is renamed meanwhile. Current systems have none.
        const QString tool = g_App.m_strSystemFolder + "\\wbem\\WMIC.exe";
        const QString hidden = tool + ".hidden";
        if (!m_bWine && QFile::exists(tool))
            QSKIP("this system has the tool");
        QVERIFY(!m_bWine || QFile::rename(tool, hidden));
        const auto restore = qScopeGuard([&] { QFile::rename(hidden, tool); });

        QStringList probed;
        auto limits = std::make_unique<runner::Limits>(60000, [] { return true; });
        LoadDiskDrives([&probed](int disk, const QString &bus) {
            probed << QString::number(disk) + bus;
            return ProbedIdentity();
        });
        QVERIFY(!limits->wereReached());
        limits.reset();
        const WmicDiskRecord *disk = g_pWmicDiskListHead;
        QVERIFY(disk && disk->pNext); // the last line of the table is blank
        QCOMPARE(disk->szStatus.text(), "OK");
        QCOMPARE(disk->nDiskId, 128u + disk->nIndex);
        QVERIFY(!disk->szModel.text().isEmpty());
        QCOMPARE(probed.value(0), QString::number(disk->nIndex) + disk->szInterface.text());

        LoadLogicalDisks();
        QVERIFY(systemVolume());
        QCOMPARE(systemVolume()->nSizeBytes, systemBytes());
        QVERIFY(!GetSystemDiskIndex().isNull());
    }

    void seesAndKillsTheCompanion()
    {
        const QString copy = path("VelmoraSMART.exe");
        QVERIFY(QFile::copy(ownProgram(), copy));
        for (const auto kill : {companion::kill, companion::killAfterRead}) {
            QVERIFY(companion::check() == companion::State::NotRunning);
            QProcess process;
            // The libraries are beside the program itself or on the path.
            process.setWorkingDirectory(QCoreApplication::applicationDirPath());
            process.start(copy, {"--wait"});
            QVERIFY(process.waitForStarted());
            if (m_bWine)
                QEXPECT_FAIL("", "Wine's tasklist and findstr print nothing", Continue);
            QVERIFY(companion::check() == companion::State::Running);
            kill();
            QVERIFY(process.waitForFinished(5000));
        }
    }

    void opensPrograms()
    {
        Platform &pc = Platform::current();
        const QString touched = path("touched");
        QVERIFY(pc.ShellExecuteW(ownProgram(), "--touch " + QDir::toNativeSeparators(touched), QString()));
        QTRY_COMPARE(contentOf(touched), QByteArray("touched"));
        QVERIFY(!pc.ShellExecuteW(path("missing.exe"), QString(), "open"));
    }

    void registersTheLogonTask()
    {
        Platform &pc = Platform::current();
        pc.InitializeCom();
        const LogonTask task{"HalvaneTest", pc.GetUserNameW(), "C:/Program Files/Halvane/VelmoraSMART.exe",
                             "Schedular"};
        const auto clear = qScopeGuard([&] { pc.DeleteLogonTask(task.name); });
        pc.CreateLogonTask(task);
        const QString xml = TaskFolder().xmlOf(task.name);
        if (m_bWine)
            QEXPECT_FAIL("", "Wine's task scheduler takes no kind of logon for a task", Abort);
        QVERIFY(!xml.isEmpty());
        for (const char *part :
             {"<LogonTrigger id=\"Trigger1\">", "<Command>C:\\Program Files\\Halvane\\VelmoraSMART.exe<",
              "<Arguments>Schedular<", "HighestAvailable", "InteractiveToken", "<StartWhenAvailable>true<",
              "<ExecutionTimeLimit>PT0S<", "<DisallowStartIfOnBatteries>false<",
              "<StopIfGoingOnBatteries>false<", "<Delay>PT30S<"})
            QVERIFY2(xml.contains(QLatin1String(part)), part);
    }

    void countsTheUsesOfCom()
    {
        Platform &pc = Platform::current();
        pc.InitializeCom();
        // A failed step, as under Wine, does not release COM once too often.
        for (int i = 0; i < 3; ++i)
            pc.CreateLogonTask({"HalvaneTest", QString(), QString(), QString()});
        pc.DeleteLogonTask("HalvaneTest");
        QVERIFY(TaskFolder().isOpen());
        pc.Leave();
        QVERIFY(!TaskFolder().isOpen());
    }

    void deletesTheLogonTask()
    {
        const QString name = "HalvaneTest";
        const QString xml =
            QStringLiteral("<Task version=\"1.2\" xmlns=\"http://schemas.microsoft.com/windows/2004/02/"
                           "mit/task\"><Actions><Exec><Command>cmd.exe</Command></Exec></Actions></Task>");
        QVERIFY(SUCCEEDED(::CoInitialize(nullptr)));
        const auto leave = qScopeGuard([] { ::CoUninitialize(); });
        QVERIFY(TaskFolder().registerXml(name, xml));
        QVERIFY(TaskFolder().xmlOf(name).contains("<Exec"));
        for (int i = 0; i < 2; ++i) { // a missing task is no error
            Platform::current().DeleteLogonTask(name);
            QVERIFY(TaskFolder().xmlOf(name).isEmpty());
        }
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QScopedPointer<QTemporaryDir> m_folder;
    bool m_bWine = false;
};

int main(int argc, char **argv)
{
    const int status = actAsTool(argc, argv);
    if (status >= 0)
        return status;
    QCoreApplication application(argc, argv);
    tst_WindowsTools test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_WindowsTools.moc"
