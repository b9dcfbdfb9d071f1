// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QStringList>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

/// A screen reader for as long as it lives, and what the program announces to it. Only the private headers
/// can tell Qt that there is one.
class ScreenReader
{
public:
    ScreenReader() : m_before(QAccessible::installUpdateHandler(listen))
    {
        told.clear();
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    }
    ~ScreenReader()
    {
        QAccessible::installUpdateHandler(m_before);
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(false);
    }
    static inline QStringList told;

private:
    static void listen(QAccessibleEvent *event)
    {
        if (event->type() == QAccessible::Alert)
            told << event->accessibleInterface()->text(QAccessible::Name);
    }
    QAccessible::UpdateHandler m_before;
};
