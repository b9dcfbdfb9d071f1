// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPushButton>

/// The widgets of a window by their names.
inline QPushButton *buttonOf(const QObject *window, const char *name)
{
    return window->findChild<QPushButton *>(QLatin1String(name));
}

inline QLabel *labelOf(const QObject *window, const char *name)
{
    return window->findChild<QLabel *>(QLatin1String(name));
}
