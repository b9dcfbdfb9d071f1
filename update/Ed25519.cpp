// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/Ed25519.h"

#include <algorithm>

#include <gcrypt.h>

namespace ed25519
{

namespace
{

/// The field's prime, 2^255 - 19.
const QByteArray Prime =
    QByteArray::fromHex("7fffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffed");
/// The order of the base point.
const QByteArray Order =
    QByteArray::fromHex("1000000000000000000000000000000014def9dea2f79cd65812631a5cf5d3ed");
/// The second coordinates of the points of the orders 1, 2, 4 and, twice, 8.
const QByteArray SmallOrder[] = {
    QByteArray::fromHex("0000000000000000000000000000000000000000000000000000000000000001"),
    QByteArray::fromHex("7fffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffec"),
    QByteArray::fromHex("0000000000000000000000000000000000000000000000000000000000000000"),
    QByteArray::fromHex("05fc536d880238b13933c6d305acdfd5f098eff289f4c345b027b2c28f95e826"),
    QByteArray::fromHex("7a03ac9277fdc74ec6cc392cfa53202a0f67100d760b3cba4fd84d3d706a17c7")};

/// The last byte first, as in the numbers above.
QByteArray turned(QByteArray number)
{
    std::reverse(number.begin(), number.end());
    return number;
}

class Expression
{
public:
    template<typename... Args>
    explicit Expression(const char *form, Args... args)
    {
        if (gcry_sexp_build(&m_value, nullptr, form, args...) != 0)
            m_value = nullptr;
    }
    ~Expression() { gcry_sexp_release(m_value); }
    Expression(const Expression &) = delete;
    Expression &operator=(const Expression &) = delete;

    gcry_sexp_t value() const { return m_value; }

private:
    gcry_sexp_t m_value = nullptr;
};

bool makeReady()
{
    if (gcry_control(GCRYCTL_INITIALIZATION_FINISHED_P) != 0)
        return true;
    const bool fits = gcry_check_version(GCRYPT_VERSION) != nullptr;
    // There are no secrets here, so no memory is locked for them.
    gcry_control(GCRYCTL_DISABLE_SECMEM, 0);
    gcry_control(GCRYCTL_INITIALIZATION_FINISHED, 0);
    return fits;
}

} // namespace

bool isSoundKey(const QByteArray &key)
{
    if (key.size() != KeyBytes)
        return false;
    QByteArray number = turned(key);
    number[0] = static_cast<char>(number.at(0) & 0x7f); // the highest bit is the sign of the other one
    return number < Prime &&
           std::find(std::begin(SmallOrder), std::end(SmallOrder), number) == std::end(SmallOrder);
}

bool isSigned(const QByteArray &message, const QByteArray &signature, const QByteArray &key)
{
    static const bool ready = makeReady();
    if (!ready || signature.size() != SignatureBytes || !isSoundKey(key))
        return false;
    // The library takes a greater number, too, and ends the program for some keys that are not sound.
    const QByteArray scalar = signature.mid(KeyBytes);
    if (turned(scalar) >= Order)
        return false;
    const Expression publicKey("(public-key (ecc (curve Ed25519) (flags eddsa) (q %b)))", KeyBytes,
                               key.constData());
    const Expression made("(sig-val (eddsa (r %b) (s %b)))", KeyBytes, signature.constData(), KeyBytes,
                          scalar.constData());
    const Expression data("(data (flags eddsa) (hash-algo sha512) (value %b))", message.size(),
                          message.constData());
    return publicKey.value() && made.value() && data.value() &&
           gcry_pk_verify(made.value(), data.value(), publicKey.value()) == 0;
}

} // namespace ed25519
