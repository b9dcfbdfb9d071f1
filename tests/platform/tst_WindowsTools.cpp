// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "inventory/Companion.h"
#include "inventory/WmicInventory.h"
#include "platform/NativePlatform.h"
#include "platform/tools/CommandInterpreter.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "tests/support/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtTest>

#include <cstdio>

#include <windows.h>

#include <taskschd.h>

/// The tools of Windows as the program runs and reads them, the companion, and the task at logon. What Wine
/// cannot do is expected to fail under Wine, and only there.
class tst_WindowsTools : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_folder.reset(new QTemporaryDir); }
    void runsToolsHidden();
    void endsToolsAtTheirLimits();
    void runsToolsOfTheWorkingFolder();
    void programWorksInItsOwnFolder();
    void toolsComeFromOurFolders();
    void interpreterThatIsMissing();
    void volumeTable();
    void diskTable();
    void tablesWithoutTheTool();
    void seesTheCompanion();
    void killsTheCompanion();
    void opensPrograms();
    void registersTheLogonTask();
    void countsTheUsesOfCom();
    void deletesTheLogonTask();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    /// Starts a copy of this program under another name; it runs until it is ended.
    bool startAs(const QString &name, QProcess *process) const;

    QScopedPointer<QTemporaryDir> m_folder;
    bool m_bWine = false;
};

namespace
{

const QString Companion = "VelmoraSMART.exe";

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

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
        const BSTR root = ::SysAllocString(L"\\");
        if (SUCCEEDED(::CoCreateInstance(CLSID_TaskScheduler, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskService,
                                         reinterpret_cast<void **>(&m_service))) &&
            SUCCEEDED(m_service->Connect(m_none, m_none, m_none, m_none)))
            m_service->GetFolder(root, &m_folder);
        ::SysFreeString(root);
    }
    TaskFolder(const TaskFolder &) = delete;
    TaskFolder &operator=(const TaskFolder &) = delete;
    ~TaskFolder()
    {
        if (m_folder)
            m_folder->Release();
        if (m_service)
            m_service->Release();
    }

    bool isOpen() const { return m_folder; }

    /// The definition of a task; empty if there is none.
    QString xmlOf(const QString &name) const
    {
        const BSTR wanted = ::SysAllocString(wide(name));
        IRegisteredTask *task = nullptr;
        BSTR text = nullptr;
        QString xml;
        if (m_folder && SUCCEEDED(m_folder->GetTask(wanted, &task))) {
            if (SUCCEEDED(task->get_Xml(&text)))
                xml = QString::fromWCharArray(text);
            task->Release();
        }
        ::SysFreeString(text);
        ::SysFreeString(wanted);
        return xml;
    }

    bool registerXml(const QString &name, const QString &xml) const
    {
        const BSTR wanted = ::SysAllocString(wide(name));
        const BSTR text = ::SysAllocString(wide(xml));
        IRegisteredTask *task = nullptr;
        const bool done =
            m_folder && SUCCEEDED(m_folder->RegisterTask(wanted, text, TASK_CREATE_OR_UPDATE, m_none, m_none,
                                                         TASK_LOGON_INTERACTIVE_TOKEN, m_none, &task));
        if (task)
            task->Release();
        ::SysFreeString(text);
        ::SysFreeString(wanted);
        return done;
    }

private:
    const VARIANT m_none{};
    ITaskService *m_service = nullptr;
    ITaskFolder *m_folder = nullptr;
};

/// The record of the system's volume, after a check of its file system; null if there is none.
const LogicalDiskRecord *systemVolume()
{
    const QString system = Platform::current().GetSystemDirectoryW().left(2);
    QString fileSystem;
    Platform::current().GetVolumeInformationW(system + QLatin1Char('\\'), nullptr, &fileSystem);
    const LogicalDiskRecord *record = g_logicalDisks.find(
        [&system](const LogicalDiskRecord &each) { return each.szCaption.text() == system; });
    return record && record->szFileSystem.text() == fileSystem ? record : nullptr;
}

qint64 systemBytes()
{
    quint64 total = 0;
    Platform::current().GetDiskFreeSpaceExW(Platform::current().GetSystemDirectoryW().left(3), &total,
                                            nullptr);
    return qint64(total);
}

/// The first line that a command prints.
QString firstLine(const QString &command)
{
    QString line;
    runner::runAndRead(command, "HalvaneRun.txt",
                       [&line](QTextStream &stream) { line = stream.readLine().trimmed(); });
    return line;
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

void tst_WindowsTools::initTestCase()
{
    m_bWine = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    Platform::install(makeNativePlatform());
    // The copies need the libraries in the folder above. Tools get no PATH that names it.
    Platform::current().SetCurrentDirectoryW(QCoreApplication::applicationDirPath() + "/..");
    g_App.m_strSystemFolder = Platform::current().GetSystemDirectoryW();
}

void tst_WindowsTools::runsToolsHidden()
{
    // The tool is slow, has no visible console, and its exit code is not used.
    QStringList lines;
    QVERIFY(runner::runAndRead(ownProgram() + " --console", "HalvaneRun.txt", [&lines](QTextStream &stream) {
        lines = stream.readAll().split(QLatin1Char('\n'));
    }));
    QCOMPARE(lines, QStringList({"console hidden", QString()}));
    QVERIFY(!QFile::exists(tempFile("HalvaneRun.txt")));

    // A missing tool leaves an empty file.
    bool read = false;
    QVERIFY(runner::runAndRead("no-such-tool.exe -a", "HalvaneRun.txt",
                               [&read](QTextStream &stream) { read = stream.atEnd(); }));
    QVERIFY(read);
}

void tst_WindowsTools::endsToolsAtTheirLimits()
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

void tst_WindowsTools::runsToolsOfTheWorkingFolder()
{
    // A tool named without a folder is the one in the program's folder, even if a file dialog has changed the
    // working folder.
    Platform &pc = Platform::current();
    for (const char *folder : {"own", "planted"}) {
        QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String(folder)));
        QVERIFY(writeFile(path(QLatin1String(folder) + "/bare.bat"), QByteArray("@echo ") + folder + "\r\n"));
    }
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([&] { pc.SetCurrentDirectoryW(before); });
    pc.SetCurrentDirectoryW(path("own"));
    QVERIFY(QFile::exists("bare.bat"));
    QVERIFY(QDir::setCurrent(path("planted")));
    QCOMPARE(firstLine("bare.bat"), "own");
}

void tst_WindowsTools::programWorksInItsOwnFolder()
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
    const auto end = qScopeGuard([&program] {
        program.kill();
        program.waitForFinished();
    });
    QVERIFY(program.waitForStarted());
    const qint64 size = QFileInfo(installed.filePath(tool)).size();
    QTRY_VERIFY_WITH_TIMEOUT(copies().contains(size), 60000);
}

void tst_WindowsTools::toolsComeFromOurFolders()
{
    // A tool that only the user's search path has is not found.
    QVERIFY(QDir(m_folder->path()).mkdir("planted"));
    QVERIFY(QFile::copy(QString::fromWCharArray(::_wgetenv(L"COMSPEC")), path("planted/hvtool.exe")));
    const QByteArray before = qgetenv("PATH");
    const auto restore = qScopeGuard([&before] { qputenv("PATH", before); });
    qputenv("PATH", QFile::encodeName(path("planted")) + ';' + before);
    QCOMPARE(firstLine("hvtool.exe /c echo found"), QString());
    // The temp folder has no letters that mean something in a line, whatever the user's name is.
    QVERIFY(!tools::CommandInterpreter::breaksCommands(Platform::current().GetTempPathW()));
}

void tst_WindowsTools::interpreterThatIsMissing()
{
    QVERIFY(!Platform::current().CreateProcessAndWait(L"C:\\no-such-folder\\cmd.exe /c echo ", true));
    const QByteArray before = qgetenv("COMSPEC");
    const auto restore = qScopeGuard([&before] { qputenv("COMSPEC", before); });
    qputenv("COMSPEC", "C:\\no-such-folder\\cmd.exe");
    QCOMPARE(firstLine("echo found"), "found");
    // Nor does the interpreter ask that variable for a second one.
    QVERIFY(!firstLine("echo %COMSPEC%").contains(QLatin1String("no-such")));
}

void tst_WindowsTools::volumeTable()
{
    LoadLogicalDisks();
    const LogicalDiskRecord *record = systemVolume();
    QVERIFY(record);
    QVERIFY(record->nFreeBytes > 0 && record->nFreeBytes < record->nSizeBytes);
    if (m_bWine)
        QEXPECT_FAIL("", "Wine's table of volumes gives every volume the size of a disk that it makes up",
                     Abort);
    QCOMPARE(record->nSizeBytes, systemBytes());
}

void tst_WindowsTools::diskTable()
{
    int probed = 0;
    LoadDiskDrives([&probed](int, const QString &) {
        ++probed;
        return ProbedIdentity();
    });
    if (m_bWine)
        QEXPECT_FAIL("", "Wine's table of disks has no column Status, and the whole question is refused",
                     Abort);
    QVERIFY(g_pWmicDiskListHead);
    QVERIFY(probed > 0);
    QVERIFY(!g_pWmicDiskListHead->szModel.text().isEmpty());
    QCOMPARE(g_pWmicDiskListHead->szStatus.text(), "OK");
}

void tst_WindowsTools::tablesWithoutTheTool()
{
    // Wine's tool is renamed meanwhile. Current systems have none.
    const QString tool = g_App.m_strSystemFolder + "\\wbem\\WMIC.exe";
    const QString hidden = tool + ".hidden";
    if (!m_bWine && QFile::exists(tool))
        QSKIP("this system has the tool");
    QVERIFY(!m_bWine || QFile::rename(tool, hidden));
    const auto restore = qScopeGuard([&] { QFile::rename(hidden, tool); });

    QStringList probed;
    LoadDiskDrives([&probed](int disk, const QString &bus) {
        probed << QString::number(disk) + bus;
        return ProbedIdentity();
    });
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

bool tst_WindowsTools::startAs(const QString &name, QProcess *process) const
{
    const QString copy = path(name);
    // The libraries are beside the program itself or on the path.
    process->setWorkingDirectory(QCoreApplication::applicationDirPath());
    process->start(QFile::copy(ownProgram(), copy) ? copy : QString(), {"--wait"});
    return process->waitForStarted();
}

void tst_WindowsTools::seesTheCompanion()
{
    QProcess process;
    QVERIFY(companion::check() == companion::State::NotRunning);
    QVERIFY(startAs(Companion, &process));
    const auto end = qScopeGuard([&process] {
        process.kill();
        process.waitForFinished();
    });
    if (m_bWine)
        QEXPECT_FAIL("", "Wine's tasklist and findstr print nothing", Abort);
    QVERIFY(companion::check() == companion::State::Running);
}

void tst_WindowsTools::killsTheCompanion()
{
    for (const auto kill : {companion::kill, companion::killAfterRead}) {
        QProcess process;
        QFile::remove(path(Companion));
        QVERIFY(startAs(Companion, &process));
        kill();
        QVERIFY(process.waitForFinished(5000));
    }
}

void tst_WindowsTools::opensPrograms()
{
    Platform &pc = Platform::current();
    const QString touched = path("touched");
    QVERIFY(pc.ShellExecuteW(ownProgram(), "--touch " + QDir::toNativeSeparators(touched), QString()));
    QTRY_COMPARE(contentOf(touched), QByteArray("touched"));
    QVERIFY(!pc.ShellExecuteW(path("missing.exe"), QString(), "open"));
}

void tst_WindowsTools::registersTheLogonTask()
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
          "<Arguments>Schedular<", "HighestAvailable", "InteractiveToken", "<StartWhenAvailable>true<"})
        QVERIFY2(xml.contains(QLatin1String(part)), part);
}

void tst_WindowsTools::countsTheUsesOfCom()
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

void tst_WindowsTools::deletesTheLogonTask()
{
    const QString name = "HalvaneTest";
    const QString xml =
        QStringLiteral("<Task version=\"1.2\" xmlns=\"http://schemas.microsoft.com/windows/2004/02/"
                       "mit/task\"><Actions><Exec><Command>cmd.exe</Command></Exec></Actions></Task>");
    QVERIFY(SUCCEEDED(::CoInitialize(nullptr)));
    const auto leave = qScopeGuard([] { ::CoUninitialize(); });
    QVERIFY(TaskFolder().registerXml(name, xml));
    const QString found = TaskFolder().xmlOf(name);
    QVERIFY2(found.contains(QLatin1String("<Exec")), qPrintable(found));
    Platform::current().DeleteLogonTask(name);
    QVERIFY(TaskFolder().xmlOf(name).isEmpty());
    // A missing task is no error.
    Platform::current().DeleteLogonTask(name);
    QVERIFY(TaskFolder().xmlOf(name).isEmpty());
}

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
