// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// Signatures by Ed25519 (RFC 8032), checked as strictly as the standard allows. Any thread.
namespace ed25519
{

constexpr int KeyBytes = 32;
constexpr int SignatureBytes = 64;

/// Whether these 32 bytes are a public key to be trusted: a number below the field's prime, and no point of
/// small order, for which anybody can make signatures.
bool isSoundKey(const QByteArray &key);

/// Whether the signature of `message` was made with the private key of the sound `key`. False for a wrong
/// length, and for a second form of a good signature.
bool isSigned(const QByteArray &message, const QByteArray &signature, const QByteArray &key);

} // namespace ed25519
