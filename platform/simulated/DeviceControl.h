// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/simulated/PcDescription.h"

#include <QByteArray>

#include <optional>

/// The answers of described devices to the control codes of platform/IoControl.h: the record that comes out,
/// or nothing where the device refuses.
namespace simulated
{

std::optional<QByteArray> controlDisk(const Disk &disk, quint32 code, const QByteArray &request);
std::optional<QByteArray> controlVolume(const inventory::Volume &volume, const Disk &firstDisk, quint32 code);

} // namespace simulated
