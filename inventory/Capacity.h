// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A capacity with two decimals in GB, or in MB where it is below 1 GiB. Below 1 MiB the number of kilobytes
/// with `smallUnit` behind it: a physical disk says "KB" there, a volume "MB".
QString capacityText(quint64 bytes, const QString &smallUnit);
