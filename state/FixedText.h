// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <array>
#include <cstddef>

/// A NUL-terminated text of at most N - 1 bytes, UTF-8. A longer text is cut to the field, at a character's
/// border.
template<std::size_t N>
class FixedText
{
public:
    void assign(const QString &text)
    {
        QByteArray bytes = text.toUtf8();
        if (bytes.size() >= static_cast<int>(N)) {
            int end = static_cast<int>(N) - 1;
            // A byte 10xxxxxx continues a character, so the border lies before its first byte.
            while (end > 0 && (static_cast<unsigned char>(bytes.at(end)) & 0xC0u) == 0x80u)
                --end;
            bytes.truncate(end);
        }
        m_bytes.fill('\0');
        std::copy(bytes.cbegin(), bytes.cend(), m_bytes.begin());
    }

    QString text() const { return QString::fromUtf8(m_bytes.data()); }
    bool isEmpty() const { return m_bytes[0] == '\0'; }
    void clear() { m_bytes.fill('\0'); }

    static constexpr std::size_t width() { return N; }

private:
    std::array<char, N> m_bytes{};
};
