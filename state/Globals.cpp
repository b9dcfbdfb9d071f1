// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Globals.h"

#include "state/GlobalApp.h"

const WmicDiskRecord *findWmicDisk(quint32 diskId)
{
    if (g_bListsLoading)
        return nullptr;
    return g_wmicDisks.find([diskId](const WmicDiskRecord &record) { return record.nDiskId == diskId; });
}

DiskNode *findPhysicalDisk(int diskId)
{
    if (g_bListsLoading)
        return nullptr;
    for (DiskNode &node : g_App.m_diskList) {
        if (node.nId == diskId && isPhysicalKind(node.nKind))
            return &node;
    }
    return nullptr;
}
