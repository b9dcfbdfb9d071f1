// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/DesktopShell.h"

#include "platform/windows/Com.h"
#include "platform/windows/Native.h"

#include <exdisp.h>
#include <servprov.h>
#include <shldisp.h>
#include <shlobj.h>

#include <iterator>

namespace windows
{

namespace
{

/// COM on this thread for as long as it lives.
class ComOnThread
{
public:
    ComOnThread() : m_isOurs(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ComOnThread(const ComOnThread &) = delete;
    ComOnThread &operator=(const ComOnThread &) = delete;
    ~ComOnThread()
    {
        if (m_isOurs)
            ::CoUninitialize();
    }

private:
    const bool m_isOurs;
};

/// A value for an automation call.
class Value
{
public:
    explicit Value(const QString &text)
    {
        ::VariantInit(&m_value);
        if (text.isEmpty())
            return;
        m_value.vt = VT_BSTR;
        m_value.bstrVal = ::SysAllocString(wide(text));
    }
    explicit Value(int number)
    {
        ::VariantInit(&m_value);
        m_value.vt = VT_I4;
        m_value.lVal = number;
    }
    Value(const Value &) = delete;
    Value &operator=(const Value &) = delete;
    ~Value() { ::VariantClear(&m_value); }
    const VARIANT &operator*() const { return m_value; }

private:
    VARIANT m_value{};
};

/// The automation object that lives in the process of the desktop.
bool findDesktop(Held<IShellDispatch2> *desktop)
{
    Held<IShellWindows> all;
    if (::CoCreateInstance(CLSID_ShellWindows, nullptr, CLSCTX_LOCAL_SERVER, IID_IShellWindows,
                           all.untyped()) != S_OK)
        return false;
    VARIANT here{};
    here.vt = VT_I4;
    here.lVal = CSIDL_DESKTOP;
    VARIANT none{};
    long window = 0;
    Held<IDispatch> found;
    if (all->FindWindowSW(&here, &none, SWC_DESKTOP, &window, SWFO_NEEDDISPATCH, found.put()) != S_OK ||
        !found.get())
        return false;
    Held<IServiceProvider> provider;
    Held<IShellBrowser> browser;
    Held<IShellView> view;
    Held<IDispatch> background;
    Held<IShellFolderViewDual> folder;
    Held<IDispatch> application;
    return found->QueryInterface(IID_IServiceProvider, provider.untyped()) == S_OK &&
           provider->QueryService(SID_STopLevelBrowser, IID_IShellBrowser, browser.untyped()) == S_OK &&
           browser->QueryActiveShellView(view.put()) == S_OK &&
           view->GetItemObject(SVGIO_BACKGROUND, IID_IDispatch, background.untyped()) == S_OK &&
           background->QueryInterface(IID_IShellFolderViewDual, folder.untyped()) == S_OK &&
           folder->get_Application(application.put()) == S_OK &&
           application->QueryInterface(IID_IShellDispatch2, desktop->untyped()) == S_OK;
}

} // namespace

bool openByShell(const QString &file, const QString &parameters, const QString &verb, int show)
{
    const ComOnThread com;
    Held<IShellDispatch2> desktop;
    if (!findDesktop(&desktop))
        return false;
    return desktop->ShellExecute(Text(file), *Value(parameters), *Value(QString()), *Value(verb),
                                 *Value(show)) == S_OK;
}

namespace
{

struct WantedWindow {
    QString file;
    HWND window = nullptr;
};

/// The file name of a window's program; empty where this process may not ask.
QString programOf(HWND window)
{
    DWORD id = 0;
    ::GetWindowThreadProcessId(window, &id);
    const HANDLE process = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id);
    if (!process)
        return QString();
    wchar_t path[MAX_PATH * 4] = {};
    DWORD length = static_cast<DWORD>(std::size(path));
    const bool known = ::QueryFullProcessImageNameW(process, 0, path, &length) != FALSE;
    ::CloseHandle(process);
    return known ? QString::fromWCharArray(path).section(QLatin1Char('\\'), -1) : QString();
}

BOOL CALLBACK takeWindow(HWND window, LPARAM wanted)
{
    auto *const search = reinterpret_cast<WantedWindow *>(wanted);
    // A dialog has an owner.
    if (!::IsWindowVisible(window) || ::GetWindow(window, GW_OWNER) ||
        programOf(window).compare(search->file, Qt::CaseInsensitive) != 0)
        return TRUE;
    search->window = window;
    return FALSE;
}

} // namespace

bool bringToFront(const QString &file)
{
    WantedWindow wanted{file};
    ::EnumWindows(&takeWindow, reinterpret_cast<LPARAM>(&wanted));
    if (!wanted.window)
        return false;
    if (::IsIconic(wanted.window))
        ::ShowWindow(wanted.window, SW_RESTORE);
    ::SetForegroundWindow(wanted.window);
    return true;
}

} // namespace windows
