// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPushButton>

/// Finds the widgets of a window by name.
inline QPushButton *buttonOf(const QObject *window, const char *name)
{
    return window->findChild<QPushButton *>(QLatin1String(name));
}

inline QLabel *labelOf(const QObject *window, const char *name)
{
    return window->findChild<QLabel *>(QLatin1String(name));
}
