// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Announce.h"

#include <QAccessible>
#include <QWidget>

void announce(QWidget *label)
{
    // Not every system passes both on to the readers.
    for (const QAccessible::Event kind : {QAccessible::NameChanged, QAccessible::Alert}) {
        QAccessibleEvent event(label, kind);
        QAccessible::updateAccessibility(&event);
    }
}
