// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/TaskBar.h"

#include "platform/windows/Com.h"

#include <shellapi.h>
#include <shobjidl.h>

namespace windows
{

namespace
{

/// Fills a field of the system, which ends with a zero.
template<std::size_t N>
void put(const QString &text, wchar_t (&field)[N])
{
    field[text.left(static_cast<int>(N) - 1).toWCharArray(field)] = L'\0';
}

} // namespace

void showProgress(HWND window, std::optional<int> percent)
{
    constexpr ULONGLONG Whole = 100;
    Held<ITaskbarList3> bar;
    if (::CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                           bar.untyped()) != S_OK ||
        bar->HrInit() != S_OK)
        return;
    bar->SetProgressState(window, percent ? TBPF_NORMAL : TBPF_NOPROGRESS);
    if (percent)
        bar->SetProgressValue(window, static_cast<ULONGLONG>(*percent), Whole);
}

void notify(HWND window, const QString &title, const QString &text)
{
    NOTIFYICONDATAW icon{};
    icon.cbSize = sizeof icon;
    icon.hWnd = window;
    icon.uID = 1;
    if (title.isEmpty()) {
        ::Shell_NotifyIconW(NIM_DELETE, &icon);
        return;
    }
    icon.uFlags = NIF_ICON | NIF_TIP | NIF_INFO;
    icon.dwInfoFlags = NIIF_INFO;
    icon.hIcon = ::LoadIconW(::GetModuleHandleW(nullptr), L"IDI_ICON1");
    put(title, icon.szTip);
    put(text.isEmpty() ? QString() : title, icon.szInfoTitle);
    put(text.isEmpty() ? title : text, icon.szInfo); // without a text there is no balloon
    if (!::Shell_NotifyIconW(NIM_ADD, &icon))
        ::Shell_NotifyIconW(NIM_MODIFY, &icon);
}

} // namespace windows
