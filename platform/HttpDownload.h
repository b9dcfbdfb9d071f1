#pragma once

#include <QString>

/// Loads the page at `url` into the file `path`, replacing it, and waits for the end without handling events
/// of the calling thread. Ends after `limitMs` milliseconds without a connection or without new data. Zero on
/// success, else the negative result code of the system's own download call; then no file is made and an old
/// one stays. An answer that ends before its announced length is a failure. Until the end the bytes stand in
/// `path` with ".part" behind it.
qint32 httpDownload(const QString &url, const QString &path, int limitMs = 15000);
