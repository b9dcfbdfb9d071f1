// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <optional>

/// What makes an update one of the publisher's own. Any thread.
namespace update
{

/// The publisher's public key, as the build's option HALVANE_UPDATE_KEY names it. Empty: updates are taken
/// without a signature. Not to be changed while an update is under way.
extern QByteArray g_publisherKey;

/// \name Files of the web folder: the list of checksums, and its signature
/// @{
inline const QString ChecksumsName = QStringLiteral("SHA256SUMS");
inline const QString SignatureName = QStringLiteral("SHA256SUMS.sig");
/// @}

/// What the publisher says of a file.
struct Checksum {
    QByteArray sha256; ///< in hex, lower case
    qint64 bytes = 0;
};

/// What a list says of the file `name`; nothing where its checksum or its length is missing. The list is that
/// of sha256sum, with the lengths as comments: "# 1234 bytes: name".
std::optional<Checksum> checksumOf(const QByteArray &list, const QString &name);

/// Whether the open file, read from its begin to its end, is the one of the checksum.
bool fits(QIODevice *file, const Checksum &checksum);

} // namespace update
