// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <windows.h>

#include <oleauto.h>

/// What COM hands out and takes.
namespace windows
{

/// An interface of the system, given back when it goes out of use.
template<typename Interface>
class Held
{
public:
    Held() = default;
    Held(const Held &) = delete;
    Held &operator=(const Held &) = delete;
    ~Held()
    {
        if (m_interface)
            m_interface->Release();
    }
    Interface **put() { return &m_interface; }
    void **untyped() { return reinterpret_cast<void **>(&m_interface); }
    Interface *operator->() const { return m_interface; }
    Interface *get() const { return m_interface; }

private:
    Interface *m_interface = nullptr;
};

/// A text as COM takes it.
class Text
{
public:
    explicit Text(const QString &text)
        : m_text(::SysAllocString(reinterpret_cast<const wchar_t *>(text.utf16())))
    {
    }
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;
    ~Text() { ::SysFreeString(m_text); }
    operator BSTR() const { return m_text; }

private:
    BSTR m_text;
};

} // namespace windows
