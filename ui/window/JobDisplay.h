// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/JobNotices.h"

class QWidget;

/// Shows a running job outside its window: in the title, on the button in the task bar, and its end as a
/// message of the desktop. Main thread only.
class JobDisplay
{
public:
    explicit JobDisplay(QWidget *window) : m_pWindow(window) {}

    /// The job has done so many percent; none: no job is to be shown.
    void show(std::optional<int> percent);
    /// The job has ended. To be called before the window shows its result.
    void tellEnd(const JobEnd &end);
    /// The user has come back to the window.
    void seen();

private:
    QWidget *m_pWindow;
    QString m_strPlain; ///< the title without a job
    QString m_strShown; ///< the title with one
    std::optional<int> m_percent;
    bool m_bTold = false; ///< the desktop shows the message
};
