// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Makes texts of drives, file systems and described PCs harmless: they are shown, and cannot do anything
/// else. Any thread.
namespace plaintext
{

/// A text of one line. Control characters, line ends and marks that turn the direction of letters become
/// U+FFFD: they can be seen, and do not change the text beside them.
QString line(QString text);

/// The same for the text of a tool, in which line ends and tabs have their meaning.
QString lines(QString text);

/// A name within a sentence: if its letters run from right to left, the rest of the sentence keeps its
/// order.
QString isolated(const QString &name);

} // namespace plaintext
