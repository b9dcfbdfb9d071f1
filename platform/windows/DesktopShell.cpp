// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/DesktopShell.h"

#include <windows.h>

#include <exdisp.h>
#include <oleauto.h>
#include <servprov.h>
#include <shldisp.h>
#include <shlobj.h>

namespace windows
{

namespace
{

/// A reference to an interface of the system, given back at the end.
template<typename Interface>
class Reference
{
public:
    Reference() = default;
    Reference(const Reference &) = delete;
    Reference &operator=(const Reference &) = delete;
    ~Reference()
    {
        if (m_interface)
            m_interface->Release();
    }
    Interface *operator->() const { return m_interface; }
    explicit operator bool() const { return m_interface != nullptr; }
    Interface **address() { return &m_interface; }
    void **untyped() { return reinterpret_cast<void **>(&m_interface); }

private:
    Interface *m_interface = nullptr;
};

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
        m_value.bstrVal = ::SysAllocString(reinterpret_cast<const wchar_t *>(text.utf16()));
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
bool findDesktop(Reference<IShellDispatch2> *desktop)
{
    Reference<IShellWindows> all;
    if (::CoCreateInstance(CLSID_ShellWindows, nullptr, CLSCTX_LOCAL_SERVER, IID_IShellWindows,
                           all.untyped()) != S_OK)
        return false;
    VARIANT here{};
    here.vt = VT_I4;
    here.lVal = CSIDL_DESKTOP;
    VARIANT none{};
    long window = 0;
    Reference<IDispatch> found;
    if (all->FindWindowSW(&here, &none, SWC_DESKTOP, &window, SWFO_NEEDDISPATCH, found.address()) != S_OK ||
        !found)
        return false;
    Reference<IServiceProvider> provider;
    Reference<IShellBrowser> browser;
    Reference<IShellView> view;
    Reference<IDispatch> background;
    Reference<IShellFolderViewDual> folder;
    Reference<IDispatch> application;
    return found->QueryInterface(IID_IServiceProvider, provider.untyped()) == S_OK &&
           provider->QueryService(SID_STopLevelBrowser, IID_IShellBrowser, browser.untyped()) == S_OK &&
           browser->QueryActiveShellView(view.address()) == S_OK &&
           view->GetItemObject(SVGIO_BACKGROUND, IID_IDispatch, background.untyped()) == S_OK &&
           background->QueryInterface(IID_IShellFolderViewDual, folder.untyped()) == S_OK &&
           folder->get_Application(application.address()) == S_OK &&
           application->QueryInterface(IID_IShellDispatch2, desktop->untyped()) == S_OK;
}

} // namespace

bool openByShell(const QString &file, const QString &parameters, const QString &verb, int show)
{
    const ComOnThread com;
    Reference<IShellDispatch2> desktop;
    if (!findDesktop(&desktop))
        return false;
    const BSTR target = ::SysAllocString(reinterpret_cast<const wchar_t *>(file.utf16()));
    const Value none{QString()};
    const bool opened =
        desktop->ShellExecute(target, *Value(parameters), *none, *Value(verb), *Value(show)) == S_OK;
    ::SysFreeString(target);
    return opened;
}

} // namespace windows
