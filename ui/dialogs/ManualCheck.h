// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QCheckUpdate;
class QWidget;

/// The user asks for an update: checks at once, blocking, with `owner` as parent of the dialogs, and tells
/// the outcome. Null where nothing was checked: while a job runs, which an update would end, and where the
/// brand opens a page instead. What is not null stays for as long as its offer does.
QCheckUpdate *checkForUpdates(QWidget *owner);
