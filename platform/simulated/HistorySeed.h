// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

namespace simulated
{

/// Makes the folder `to` with a copy of the history in `from`, whole or not at all. With a valid `newest`,
/// all days in it move together so that the newest one becomes that day. An empty `from` makes an empty
/// folder.
void seedHistory(const QString &from, const QString &to, const QDate &newest);

} // namespace simulated
