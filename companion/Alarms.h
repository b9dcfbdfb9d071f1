// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/MessageDialog.h"

#include "monitor/WatchMemory.h"

#include <QObject>

/// The two warnings of temperatures. They stand above all windows and leave the keyboard where it is. Disks
/// that come while a warning is open get a line in it.
class Alarms : public QObject
{
    Q_OBJECT

public:
    Alarms();

    /// Shows the dialog of a temperature event. The shutdown warning takes the disk out of the other one.
    void show(const WatchEvent &event, bool fahrenheit);

signals:
    /// The user has closed the warning of that event.
    void seen(quint64 event);

private:
    struct Line {
        quint64 event;
        QString model;
        QString serial;
        QString text;
    };
    struct Warning {
        TemperatureWarning *dialog = nullptr;
        std::vector<Line> lines;
    };

    void add(Warning *warning, const Line &line);
    void remove(Warning *warning, const Line &line);
    /// A warning hides by itself.
    void closed(Warning *warning);

    SmartWarning m_smart;
    ShutDownWarning m_shutDown;
    Warning m_warning;
    Warning m_shutDownWarning;
};
