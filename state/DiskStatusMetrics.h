// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Widths in design pixels of the eight lower labels of Disk Status, which depend on the language.
struct DiskStatusMetrics {
    int lifeName;
    int lifeValue;
    int powerOnName;
    int powerOnValue;
    int startStopName;
    int startStopValue;
    int verdictName;
    int verdictValue;
    int performanceTitleHeight;
};
