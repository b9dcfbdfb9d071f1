// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

/// How one program of a user asks another one to bring its window to the front, where the system lets no
/// program do that for another one. The socket says nothing but that somebody has come.
namespace frontdoor
{

/// Calls `come` on this thread at each knock from here on. `socket` is a path that only this user can reach.
/// Where no socket can be made there, nothing happens.
void open(const QString &socket, const std::function<void()> &come);

/// False where nobody opens.
bool knock(const QString &socket);

} // namespace frontdoor
