// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Log.h"

namespace logs
{

Q_LOGGING_CATEGORY(platform, "halvane.platform", QtWarningMsg)
Q_LOGGING_CATEGORY(inventory, "halvane.inventory", QtWarningMsg)
Q_LOGGING_CATEGORY(smart, "halvane.smart", QtWarningMsg)

} // namespace logs
