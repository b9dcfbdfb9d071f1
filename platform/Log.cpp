// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Log.h"

namespace logs
{

Q_LOGGING_CATEGORY(platform, "halvane.platform", QtWarningMsg)
Q_LOGGING_CATEGORY(state, "halvane.state", QtWarningMsg)
Q_LOGGING_CATEGORY(inventory, "halvane.inventory", QtWarningMsg)
Q_LOGGING_CATEGORY(smart, "halvane.smart", QtWarningMsg)
Q_LOGGING_CATEGORY(scan, "halvane.scan", QtWarningMsg)
Q_LOGGING_CATEGORY(clone, "halvane.clone", QtWarningMsg)
Q_LOGGING_CATEGORY(update, "halvane.update", QtWarningMsg)
Q_LOGGING_CATEGORY(monitor, "halvane.monitor", QtWarningMsg)

} // namespace logs
