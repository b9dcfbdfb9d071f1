// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/EventLog.h"
#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/windows/Native.h"
#include "tests/platform/RawDisk.h"

#include <dbt.h>
#include <sddl.h>

using rawdisk::Sectors;
using rawdisk::SectorSize;
using windows::wide;

namespace
{

const QString RegistryPath =
    "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Velmora Data Rescue\\Velmora Halvane Test";

bool isWine()
{
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

/// While it lives, the machine asks before it gives an administrator's rights. Only this process is told so.
class AskingMachine
{
public:
    AskingMachine()
    {
        const DWORD asks = 1;
        ::RegCreateKeyW(HKEY_CURRENT_USER, Name, &m_key);
        ::RegSetKeyValueW(m_key, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\System",
                          L"EnableLUA", REG_DWORD, &asks, sizeof(asks));
        ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, m_key);
    }
    ~AskingMachine()
    {
        ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        ::RegCloseKey(m_key);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, Name);
    }

private:
    static constexpr const wchar_t *Name = L"Software\\HalvaneTestMachine";
    HKEY m_key = nullptr;
};

/// The type of a value of the test's key; REG_NONE if there is none.
DWORD registryType(const QString &subKey, const QString &name)
{
    DWORD type = REG_NONE;
    const QString key = RegistryPath.section('\\', 1) + subKey;
    ::RegGetValueW(HKEY_LOCAL_MACHINE, wide(key), wide(name), RRF_RT_ANY, &type, nullptr, nullptr);
    return type;
}

} // namespace

/// The Windows platform on the machine itself. Some cases need variables that packaging/windows/wine-test
/// sets: HALVANE_TEST_IMAGE is the file behind \\.\PHYSICALDRIVE0, HALVANE_TEST_URL a web folder with
/// "page.txt".
class tst_WindowsPlatform : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_strImage = qEnvironmentVariable("HALVANE_TEST_IMAGE");
        Platform::install(makeNativePlatform());
    }

    void init() { m_folder.reset(new QTemporaryDir); }

    void rawDisk()
    {
        if (m_strImage.isEmpty())
            QSKIP("no image stands behind the first disk");
        QVERIFY(writeFile(m_strImage, pattern(Sectors)));
        Platform &pc = Platform::current();
        auto handle = openImage(io::GenericRead);
        QVERIFY(handle != Platform::InvalidHandle);
        rawdisk::checkReads(pc, handle);
        pc.CloseHandle(handle);
        QVERIFY(contentOf(m_strImage) == pattern(Sectors));

        // So large that the offset does not fit 32 bits.
        constexpr qint64 Far = (qint64{1} << 23) + 5;
        QVERIFY(QFile::resize(m_strImage, (Far + 1) * SectorSize));
        handle = openImage(rawdisk::ReadWrite);
        QVERIFY(handle != Platform::InvalidHandle);
        rawdisk::checkWrites(pc, handle, Far);
        pc.CloseHandle(handle);
        QFile image(m_strImage);
        QVERIFY(image.open(QIODevice::ReadWrite));
        QCOMPARE(image.size(), (Far + 1) * SectorSize);
        QVERIFY(image.read(Sectors * SectorSize) == rawdisk::written(Far));
        QVERIFY(image.seek(Far * SectorSize));
        QCOMPARE(image.readAll(), QByteArray(SectorSize, 'w'));
        QVERIFY(image.resize(0));
    }

    void logThatAnotherProgramHolds()
    {
        const EventLog log(path("log.txt"), 1000);
        const HANDLE held = ::CreateFileW(wide(QDir::toNativeSeparators(path("log.txt"))), GENERIC_READ, 0,
                                          nullptr, CREATE_NEW, 0, nullptr);
        QVERIFY(held != INVALID_HANDLE_VALUE);
        QCOMPARE(log.append("x"), EventLog::Outcome::Busy);
        ::CloseHandle(held);
        QCOMPARE(log.append("x"), EventLog::Outcome::Written);
    }

    void handlesThatAreNone()
    {
        QVERIFY(writeFile(path("file"), "text"));
        Platform &pc = Platform::current();
        rawdisk::checkNoHandles(pc, rawdisk::open(pc, path("file"), io::GenericRead));
    }

    void tellsOfVolumes()
    {
        Platform &pc = Platform::current();
        const QString system = pc.GetSystemDirectoryW().left(3);
        QVERIFY(pc.GetLogicalDriveStringsW().contains(system));
        QVERIFY(!pc.GetLogicalDriveStringsW().contains(QString()));
        QCOMPARE(pc.GetDriveTypeW(system), quint32(io::DriveFixed));
        QString label;
        QString fileSystem;
        QVERIFY(pc.GetVolumeInformationW(system, &label, &fileSystem));
        QVERIFY(!fileSystem.isEmpty());
        quint64 total = 0;
        quint64 free = 0;
        QVERIFY(pc.GetDiskFreeSpaceExW(system, &total, &free));
        QVERIFY(free > 0 && free < total);

        const QString none = "Q:\\";
        QCOMPARE(pc.GetDriveTypeW(none), quint32(io::DriveNoRootDir));
        QVERIFY(!pc.GetVolumeInformationW(none, &label, &fileSystem));
        QVERIFY(label.isEmpty() && fileSystem.isEmpty());
        QVERIFY(!pc.GetDiskFreeSpaceExW(none, &total, &free));
        QVERIFY(total == 0 && free == 0);
    }

    void foldersAndNames()
    {
        Platform &pc = Platform::current();
        QVERIFY(pc.GetTempPathW().endsWith(QLatin1Char('\\')));
        QVERIFY(QDir(pc.GetTempPathW()).exists());
        QVERIFY(QFile::exists(pc.GetSystemDirectoryW() + "\\cmd.exe"));
        QCOMPARE(pc.GetUserNameW(), qEnvironmentVariable("USERNAME"));
        QCOMPARE(pc.NativePath("C:/a b\\c/d.txt"), "C:\\a b\\c\\d.txt");
        QVERIFY(pc.CommandInterpreter().endsWith("system32\\cmd.exe /d"));
        const QRegularExpression system("^Microsoft Windows .+ \\([1-9]\\d*\\.\\d+\\.\\d+\\) x64$");
        QVERIFY2(system.match(pc.OperatingSystemName()).hasMatch(), qPrintable(pc.OperatingSystemName()));
        QVERIFY(pc.LogPixelsX() >= 96);
        QVERIFY(!pc.deviceNotifier());

        QCOMPARE(pc.HistoryFolder(m_folder->path()), path("history"));
        const QString other = pc.HistoryFolder(path("missing"));
        QVERIFY(QDir(other).exists() && !other.startsWith(m_folder->path()));
        // Where the system asks before it gives an administrator's rights, the user's other programs have
        // none of these, but his name. Wine gives them without a question.
        if (isWine()) {
            const AskingMachine machine;
            QVERIFY(pc.HistoryFolder(m_folder->path()) != path("history"));
        }
        // A folder that all may write to is not used either.
        PSECURITY_DESCRIPTOR everybody = nullptr;
        QVERIFY(::ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:(A;OICI;FA;;;WD)", SDDL_REVISION_1,
                                                                       &everybody, nullptr));
        const std::wstring name = QDir::toNativeSeparators(m_folder->path()).toStdWString();
        const BOOL opened = ::SetFileSecurityW(name.c_str(), DACL_SECURITY_INFORMATION, everybody);
        ::LocalFree(everybody);
        QVERIFY(opened);
        // Not compared with `other`: Wine does not keep the owner of that folder, so it is not used again.
        QVERIFY(pc.HistoryFolder(m_folder->path()) != path("history"));
    }

    void settingsByKind()
    {
        Platform &pc = Platform::current();
        const auto clear = qScopeGuard([&pc] { pc.OpenSettings(RegistryPath)->clear(); });
        for (const auto &[folder, name, value, kind] :
             {std::tuple("", "LanguageType", QVariant("7"), REG_SZ),
              std::tuple("", "WarningValue", QVariant(45), REG_DWORD),
              std::tuple("EN", "rxUpdateLink", QVariant("http://127.0.0.1/"), REG_SZ)}) {
            const QString key = *folder ? QString(folder) + '/' + name : QString(name);
            pc.OpenSettings(RegistryPath)->setValue(key, value);
            QCOMPARE(registryType(*folder ? QString("\\") + folder : QString(), name), DWORD(kind));
            QCOMPARE(pc.OpenSettings(RegistryPath)->value(key).toString(), value.toString());
        }
        QVERIFY(!pc.OpenSettings(RegistryPath)->contains("TempValue"));
        pc.OpenSettings({})->setValue("LanguageType", 1);
        QVERIFY(!pc.OpenSettings({})->value("LanguageType").isValid());
    }

    void downloads()
    {
        const QString folder = qEnvironmentVariable("HALVANE_TEST_URL");
        if (folder.isEmpty())
            QSKIP("no web folder is served");
        Platform &pc = Platform::current();
        const QString target = path("got.txt");
        QCOMPARE(pc.URLDownloadToFileW(folder + "page.txt", target, {15000, 65536}), 0);
        QCOMPARE(contentOf(target), QByteArray("11.0.0.9\r\nvelmora-halvane.exe\r\n"));
        QVERIFY(pc.URLDownloadToFileW("http://127.0.0.1:9/none.txt", path("none.txt"), {15000, 65536}) != 0);
        QVERIFY(!QFile::exists(path("none.txt")));
    }

    void decodesMessages()
    {
        DEV_BROADCAST_VOLUME volume{};
        volume.dbcv_size = sizeof(volume);
        volume.dbcv_devicetype = DBT_DEVTYP_VOLUME;
        const char *const kind = "windows_generic_MSG";
        for (const auto &[eventType, message, event, record, deviceType] : {
                 std::tuple(kind, WM_DEVICECHANGE, 0x8000u, true, 2),
                 std::tuple(kind, WM_DEVICECHANGE, 0x8004u, true, 2),
                 std::tuple(kind, WM_DEVICECHANGE, 0x8000u, false, 0),
                 std::tuple(kind, WM_DEVICECHANGE, 0x8006u, true, 0), // the record is not looked at
                 std::tuple(kind, WM_PAINT, 0x8000u, true, -1),       // no device message
                 std::tuple("xcb_generic_event_t", WM_DEVICECHANGE, 0x8000u, true, -1),
             }) {
            MSG msg{};
            msg.message = message;
            msg.wParam = event;
            msg.lParam = record ? reinterpret_cast<LPARAM>(&volume) : 0;
            const auto change = Platform::current().decodeDeviceMessage(eventType, &msg);
            QCOMPARE(change ? int(change->deviceType) : -1, deviceType);
            QVERIFY(!change || change->event == event);
            QVERIFY(!Platform::current().decodeDeviceMessage(eventType, nullptr));
        }
    }

    /// A user's own programs set them, and they go along with what he starts as an administrator.
    void variablesOfTheUser()
    {
        if (!ownfiles::isElevated())
            QSKIP("the variables of a user without more rights are his own");
        const QByteArrayList names{"QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH", "QT_OPENGL_DLL",
                                   "OPENSSL_CONF"};
        for (const QByteArray &name : names)
            qputenv(name.toLower(), "C:\\evil");
        qputenv("QT_FONT_DPI", "120");
        prepareNativeProcess();
        for (const QByteArray &name : names)
            QVERIFY2(!qEnvironmentVariableIsSet(name), name);
        QCOMPARE(qgetenv("QT_FONT_DPI"), QByteArray("120"));
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    /// A handle of the first disk, after a check that it is the image and nothing else.
    Platform::RawHandle openImage(quint32 access)
    {
        Platform &pc = Platform::current();
        const auto handle = rawdisk::open(pc, rawdisk::First, access);
        // No real disk has this content.
        QByteArray start(SectorSize, '\0');
        if (pc.ReadFile(handle, start.data(), SectorSize, nullptr) &&
            start == pattern(Sectors).left(SectorSize) && pc.SetFilePointer(handle, 0))
            return handle;
        pc.CloseHandle(handle);
        return Platform::InvalidHandle;
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_strImage;
};

QTEST_GUILESS_MAIN(tst_WindowsPlatform)
#include "tst_WindowsPlatform.moc"
