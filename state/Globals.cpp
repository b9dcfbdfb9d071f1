#include "state/Globals.h"

#include "state/GlobalApp.h"

const WmicDiskRecord *findWmicDisk(std::uint32_t diskId)
{
    if (g_bListsLoading)
        return nullptr;
    for (const WmicDiskRecord *record = g_pWmicDiskListHead; record; record = record->pNext) {
        if (record->nDiskId == diskId)
            return record;
    }
    return nullptr;
}

DiskNode *findPhysicalDisk(int diskId)
{
    if (g_bListsLoading)
        return nullptr;
    for (DiskNode *node = g_App.m_pDiskListHead; node; node = node->pNext) {
        if (node->nId == diskId && isPhysicalKind(node->nKind))
            return node;
    }
    return nullptr;
}
