// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/DeviceLoad.h"

#include "inventory/CCreateDiskDriveList.h"
#include "inventory/WmicInventory.h"
#include "smart/ToolInvocation.h"

namespace deviceload
{

void loadLists()
{
    CCreateDiskDriveList list;
    list.BuildDriveList();
    LoadDiskDrives(ProbeDiskIdentity);
    LoadLogicalDisks();
}

} // namespace deviceload
