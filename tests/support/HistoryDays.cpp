// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/HistoryDays.h"

#include <QCoreApplication>

/// HistoryDays <history folder> <serial> <first day, ISO> <count>: records that many days of a disk.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Platform::install(std::make_unique<HistoryMachine>(arguments.at(1)));
    days::record(arguments.at(2), QDate::fromString(arguments.at(3), Qt::ISODate), arguments.at(4).toInt());
    return 0;
}
