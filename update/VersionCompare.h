// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Versions of the form M.m.r.b, with one or two digits in the first field and one in each other. The form is
/// read by positions: of a longer field the first digit counts, and what is no number counts as 0.
namespace version
{

enum class Newer { No, Minor, Major };

/// What of a text is taken for its version: the first field, of one or two characters, and the six behind it.
/// Empty where the first field has another length.
QString taken(const QString &text);

/// Major where the first field of `offered` is the greater one, else Minor where any later digit is greater
/// than the one in its place. A smaller one before it does not count against it. No where either text is no
/// version.
Newer compare(const QString &installed, const QString &offered);

/// Whether the newest of the versions is newer than `installed` field by field, the first one first.
bool isNewer(const QString &installed, const QStringList &lines);

/// The same, and newer than this program, too: the setting may be of an older one.
bool isUpgrade(const QString &installed, const QStringList &lines);

/// What the two lines of the update's file offer.
struct Offer {
    bool major = false;
    bool minor = false;
    QString latestMajor; ///< version of the first line, if it is newer in either way
    QString latestMinor; ///< the same of the second line
};

/// Lines behind the second one count for nothing.
Offer offerOf(const QString &installed, const QStringList &lines);

} // namespace version
