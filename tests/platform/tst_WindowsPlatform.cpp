// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QScopeGuard>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <windows.h>

#include <dbt.h>
#include <sddl.h>

/// The Windows platform on the machine itself. Some cases need variables that packaging/windows/wine-test
/// sets: HALVANE_TEST_IMAGE is the file behind \\.\PHYSICALDRIVE0, HALVANE_TEST_URL a web folder with
/// "page.txt".
class tst_WindowsPlatform : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_folder.reset(new QTemporaryDir); }
    void readsRawDisk();
    void writesRawDisk();
    void opensOnlyWhatIsThere();
    void handlesThatAreNone();
    void tellsOfVolumes();
    void foldersAndNames();
    void settingsByKind();
    void downloads();
    void decodesMessages_data();
    void decodesMessages();
    void variablesOfTheUser();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    /// A handle of the first disk, after a check that it is the image and nothing else.
    Platform::RawHandle openImage(quint32 access);

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_strImage;
};

namespace
{

constexpr int Sectors = 2049;
constexpr int SectorSize = 512;
const QString FirstDisk = "\\\\.\\PHYSICALDRIVE0";
const QString RegistryPath =
    "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Velmora Data Rescue\\Velmora Halvane Test";

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

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

void tst_WindowsPlatform::initTestCase()
{
    m_strImage = qEnvironmentVariable("HALVANE_TEST_IMAGE");
    Platform::install(makeNativePlatform());
}

Platform::RawHandle tst_WindowsPlatform::openImage(quint32 access)
{
    Platform &pc = Platform::current();
    const auto handle =
        pc.CreateFileW(FirstDisk, access, io::ShareRead | io::ShareWrite | io::ShareDelete, io::OpenExisting);
    // No real disk has this content.
    QByteArray start(SectorSize, '\0');
    if (pc.ReadFile(handle, start.data(), SectorSize, nullptr) &&
        start == pattern(Sectors).left(SectorSize) && pc.SetFilePointer(handle, 0))
        return handle;
    pc.CloseHandle(handle);
    return Platform::InvalidHandle;
}

void tst_WindowsPlatform::readsRawDisk()
{
    if (m_strImage.isEmpty())
        QSKIP("no image stands behind the first disk");
    QVERIFY(writeFile(m_strImage, pattern(Sectors)));
    Platform &pc = Platform::current();
    const auto handle = openImage(io::GenericRead);
    QVERIFY(handle != Platform::InvalidHandle);
    const auto close = qScopeGuard([&] { pc.CloseHandle(handle); });
    const QByteArray content = pattern(Sectors);
    QByteArray buffer(content.size() + SectorSize, 'x');
    quint32 got = 0;

    // The whole disk and more; then behind its end.
    QVERIFY(pc.ReadFile(handle, buffer.data(), quint32(buffer.size()), &got));
    QCOMPARE(got, quint32(content.size()));
    QCOMPARE(buffer.left(content.size()), content);
    QVERIFY(!pc.ReadFile(handle, buffer.data(), SectorSize, &got));
    QCOMPARE(got, 0u);

    // Two sectors one after the other.
    QVERIFY(pc.SetFilePointer(handle, 7 * SectorSize));
    QVERIFY(pc.ReadFile(handle, buffer.data(), SectorSize, nullptr));
    QVERIFY(pc.ReadFile(handle, buffer.data() + SectorSize, SectorSize, &got));
    QCOMPARE(buffer.left(2 * SectorSize), content.mid(7 * SectorSize, 2 * SectorSize));

    QVERIFY(!pc.SetFilePointer(handle, -1));
    QVERIFY(pc.SetFilePointer(handle, qint64(Sectors + 9) * SectorSize));
    QVERIFY(!pc.ReadFile(handle, buffer.data(), SectorSize, &got));
    QVERIFY(pc.SetFilePointer(handle, 0));
    QVERIFY(!pc.WriteFile(handle, content.constData(), SectorSize, &got));
    QCOMPARE(got, 0u);
    QCOMPARE(contentOf(m_strImage), content);
}

void tst_WindowsPlatform::writesRawDisk()
{
    if (m_strImage.isEmpty())
        QSKIP("no image stands behind the first disk");
    // So large that the offset does not fit 32 bits.
    constexpr qint64 Far = (qint64{1} << 32) + 5 * SectorSize;
    QVERIFY(writeFile(m_strImage, pattern(Sectors)));
    QVERIFY(QFile::resize(m_strImage, Far + SectorSize));
    Platform &pc = Platform::current();
    const auto handle = openImage(io::GenericRead | io::GenericWrite);
    QVERIFY(handle != Platform::InvalidHandle);
    const QByteArray data(4 * SectorSize, 'w');
    quint32 put = 0;
    QVERIFY(pc.SetFilePointer(handle, 3 * SectorSize));
    QVERIFY(pc.WriteFile(handle, data.constData(), 2 * SectorSize, &put));
    QCOMPARE(put, quint32(2 * SectorSize));
    QVERIFY(pc.SetFilePointer(handle, Far));
    QVERIFY(pc.WriteFile(handle, data.constData(), 4 * SectorSize, &put));
    QCOMPARE(put, quint32(SectorSize));
    QVERIFY(!pc.WriteFile(handle, data.constData(), SectorSize, &put));
    QCOMPARE(put, 0u);
    pc.CloseHandle(handle);

    QByteArray expected = pattern(Sectors);
    expected.replace(3 * SectorSize, 2 * SectorSize, data.left(2 * SectorSize));
    QFile image(m_strImage);
    QVERIFY(image.open(QIODevice::ReadWrite));
    QCOMPARE(image.size(), Far + SectorSize);
    QCOMPARE(image.read(expected.size()), expected);
    QVERIFY(image.seek(Far));
    QCOMPARE(image.readAll(), data.left(SectorSize));
    QVERIFY(image.resize(0));
}

void tst_WindowsPlatform::opensOnlyWhatIsThere()
{
    Platform &pc = Platform::current();
    for (const char *name : {"\\\\.\\PHYSICALDRIVE77", "\\\\.\\PHYSICALDRIVE", "\\\\.\\Q:", ""})
        QCOMPARE(pc.CreateFileW(QLatin1String(name), io::GenericRead, io::ShareRead | io::ShareWrite,
                                io::OpenExisting),
                 Platform::InvalidHandle);
}

void tst_WindowsPlatform::handlesThatAreNone()
{
    QVERIFY(writeFile(path("file"), "text"));
    Platform &pc = Platform::current();
    const auto handle = pc.CreateFileW(path("file"), io::GenericRead, io::ShareRead, io::OpenExisting);
    QVERIFY(handle != Platform::InvalidHandle);
    pc.CloseHandle(handle);
    pc.CloseHandle(handle);
    char octet = 0;
    quint32 moved = 9;
    for (const Platform::RawHandle none : {handle, Platform::RawHandle(0), Platform::InvalidHandle}) {
        QVERIFY(!pc.SetFilePointer(none, 0));
        QVERIFY(!pc.ReadFile(none, &octet, 1, &moved));
        QCOMPARE(moved, 0u);
        QVERIFY(!pc.WriteFile(none, &octet, 1, nullptr));
        QVERIFY(!pc.DeviceIoControl(none, io::DiskGetDriveGeometry, nullptr, 0, &octet, 1, nullptr));
        pc.CloseHandle(none);
    }
}

void tst_WindowsPlatform::tellsOfVolumes()
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

void tst_WindowsPlatform::foldersAndNames()
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
    // Where the system asks before it gives an administrator's rights, the user's other programs have none of
    // these, but his name. Wine gives them without a question.
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

void tst_WindowsPlatform::settingsByKind()
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

void tst_WindowsPlatform::downloads()
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

void tst_WindowsPlatform::decodesMessages_data()
{
    QTest::addColumn<QByteArray>("eventType");
    QTest::addColumn<uint>("message");
    QTest::addColumn<quint32>("event");
    QTest::addColumn<bool>("record");
    QTest::addColumn<int>("deviceType"); // -1: no device message
    const auto row = [](const char *name, uint message, quint32 event, bool record, int deviceType,
                        const char *eventType = "windows_generic_MSG") {
        QTest::newRow(name) << QByteArray(eventType) << message << event << record << deviceType;
    };
    row("arrival", WM_DEVICECHANGE, 0x8000, true, 2);
    row("removal", WM_DEVICECHANGE, 0x8004, true, 2);
    row("arrival without record", WM_DEVICECHANGE, 0x8000, false, 0);
    row("another event's record is not looked at", WM_DEVICECHANGE, 0x8006, true, 0);
    row("another message", WM_PAINT, 0x8000, false, -1);
    row("another kind", WM_DEVICECHANGE, 0x8000, true, -1, "xcb_generic_event_t");
}

void tst_WindowsPlatform::decodesMessages()
{
    QFETCH(QByteArray, eventType);
    QFETCH(uint, message);
    QFETCH(quint32, event);
    QFETCH(bool, record);
    QFETCH(int, deviceType);
    DEV_BROADCAST_VOLUME volume{};
    volume.dbcv_size = sizeof(volume);
    volume.dbcv_devicetype = DBT_DEVTYP_VOLUME;
    MSG msg{};
    msg.message = message;
    msg.wParam = event;
    msg.lParam = record ? reinterpret_cast<LPARAM>(&volume) : 0;
    const auto change = Platform::current().decodeDeviceMessage(eventType, &msg);
    QCOMPARE(change.has_value(), deviceType >= 0);
    QVERIFY(!change || (change->event == event && change->deviceType == quint32(deviceType)));
    QVERIFY(!Platform::current().decodeDeviceMessage(eventType, nullptr));
}

/// A user's own programs set them, and they go along with what he starts as an administrator.
void tst_WindowsPlatform::variablesOfTheUser()
{
    if (!ownfiles::isElevated())
        QSKIP("the variables of a user without more rights are his own");
    for (const char *name :
         {"QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH", "qt_opengl_dll", "OPENSSL_CONF"})
        qputenv(name, "C:\\evil");
    qputenv("QT_FONT_DPI", "120");
    prepareNativeProcess();
    for (const char *name :
         {"QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH", "QT_OPENGL_DLL", "OPENSSL_CONF"})
        QVERIFY2(!qEnvironmentVariableIsSet(name), name);
    QCOMPARE(qgetenv("QT_FONT_DPI"), QByteArray("120"));
}

QTEST_GUILESS_MAIN(tst_WindowsPlatform)
#include "tst_WindowsPlatform.moc"
