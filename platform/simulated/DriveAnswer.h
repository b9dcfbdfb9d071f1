// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/simulated/PcDescription.h"

namespace simulated
{

/// What a described drive itself answers to a control code of platform/IoControl.h; empty where it refuses.
QByteArray driveAnswer(const Disk &disk, quint32 code, const QByteArray &request);

} // namespace simulated
