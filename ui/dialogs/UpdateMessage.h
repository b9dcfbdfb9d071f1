// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

/// Shows a message of the update in a modal SmallMessageDlg and returns when it was closed. With fewer than
/// two leading blank lines the text begins one line lower. Main thread only.
void ShowUpdateMessage(const QString &text, int leadingBlankLines);
