// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/window/QRefThreadDevicesLoad.h"

/// The first load of the disk lists, behind the splash. Before it, the SMART tool is copied to the temp
/// folder for runs that have no useful current directory.
class QThreadDevicesLoad : public QRefThreadDevicesLoad
{
    Q_OBJECT

public:
    using QRefThreadDevicesLoad::QRefThreadDevicesLoad;
    ~QThreadDevicesLoad() override { wait(); }

protected:
    void prepare() override;
};
