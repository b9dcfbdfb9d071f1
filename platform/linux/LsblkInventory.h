// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include "platform/Inventory.h"

/// The PC as lsblk tells of it.
namespace lsblk
{

struct Inventory {
    inventory::Machine machine;
    QHash<QChar, QString> volumeNodes; ///< letter to device node
};

/// The arguments that make lsblk print what parse() reads.
QStringList arguments();

/// Reads the JSON text of lsblk. Without `onlyNodes` the disks are those of the machine, sorted by kernel
/// name; with it they are those nodes, in that order; a node that lsblk does not list has no sectors. "/"
/// is C:, the other mounted volumes follow from D: by mount point; volumes behind Z: have no letter and are
/// left out. A disk of `previous` keeps its number, and a volume its letter, so that they still mean the
/// same in a list that shows them; new ones take the first that is free. Sizes and free space of volumes
/// are not told by lsblk and stay 0. A broken text gives an empty PC.
Inventory parse(const QByteArray &json, const QStringList &onlyNodes = {}, const Inventory &previous = {});

/// A file system of the kernel or of lsblk by the name that the program knows it by.
QString fileSystemName(const QString &kernelName, const QString &version = {});

} // namespace lsblk
