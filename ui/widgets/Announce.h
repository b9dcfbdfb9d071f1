// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// Has a screen reader say the text of a label that the user has not asked for, such as the end of a job.
/// Does nothing where none listens. Main thread only.
void announce(QWidget *label);
