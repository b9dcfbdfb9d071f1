// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QDateTime;
class QString;

/// A moment as files for people have it, with what its clock was ahead of UTC: "2026-11-22 14:05:00 +01:00".
QString timeText(const QDateTime &time);
