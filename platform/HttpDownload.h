// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <QString>
#include <QUrl>

/// How far a download may reach.
enum class Reach { Anywhere, ThisPc };

/// Whether the host is this very PC, by its loopback address.
bool isThisPc(const QUrl &url);

/// Loads the page at `url` into the file `path`, replacing it, and waits for the end without handling
/// events of the calling thread. Only https is allowed, and http if `url` is on this PC; the same holds for
/// each redirection. If the limits say "only https", http is left to those who reach nothing but this PC.
/// Zero on success, else the negative result code of the system's own download call,
/// Platform::DownloadRefused if a rule or a limit forbade it; then no file is made and an old one stays. An
/// answer that ends before its announced length is a failure, one that announces or brings more than the
/// limit is broken off. Until the end the bytes stand in `path` with ".part" behind it. A
/// download that resumes leaves this part, unless it was refused.
qint32 httpDownload(const QString &url, const QString &path, const DownloadLimits &limits,
                    Reach reach = Reach::Anywhere);
