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
/// name; with it they are those nodes and nothing else, in that order, a node that lsblk does not tell of
/// having no sectors. "/" is C:, the other mounted volumes follow from D: by mount point; volumes behind Z:
/// have no letter and are left out. Sizes and free space of volumes are not told by lsblk and stay 0. A
/// broken text gives an empty PC.
Inventory parse(const QByteArray &json, const QStringList &onlyNodes = {});

} // namespace lsblk
