// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/HistoryDays.h"

#include <QCoreApplication>

#include <cstdio>

/// HistoryDays <history folder> <serial> <first day, ISO> <count>: records that many days of a disk.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QDate first = QDate::fromString(arguments.value(3), Qt::ISODate);
    const int count = arguments.value(4).toInt();
    if (!first.isValid() || count < 1) {
        std::fputs("HistoryDays <history folder> <serial> <first day> <count>\n", stderr);
        return 2;
    }
    Platform::install(std::make_unique<HistoryMachine>(arguments.at(1)));
    days::record(arguments.at(2), first, count);
    return 0;
}
