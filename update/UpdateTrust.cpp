// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/UpdateTrust.h"

#include <QCryptographicHash>
#include <QList>

namespace update
{

namespace
{

constexpr int HexDigits = 64;

} // namespace

QByteArray g_publisherKey = QByteArray::fromHex(HALVANE_UPDATE_KEY);

std::optional<Checksum> checksumOf(const QByteArray &list, const QString &name)
{
    Checksum found;
    const QByteArray ending = name.toUtf8();
    for (const QByteArray &line : list.split('\n')) {
        if (line.startsWith("# ") && line.endsWith(" bytes: " + ending))
            found.bytes = line.mid(2, line.indexOf(" bytes: ") - 2).toLongLong();
        else if (line.size() == HexDigits + 2 + ending.size() && line.mid(HexDigits) == "  " + ending)
            found.sha256 = line.left(HexDigits);
    }
    return found.bytes > 0 && !found.sha256.isEmpty() ? std::make_optional(found) : std::nullopt;
}

bool fits(QIODevice *file, const Checksum &checksum)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return file->size() == checksum.bytes && file->seek(0) && hash.addData(file) &&
           hash.result().toHex() == checksum.sha256;
}

} // namespace update
