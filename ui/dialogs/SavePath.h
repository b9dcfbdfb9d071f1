// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

class QWidget;

/// A kind of file that may be saved.
struct SaveFormat {
    QString filter; ///< of the file dialog, such as "*.pdf"
    QString ending; ///< such as ".pdf"
};

/// Asks for the path of a file to write; empty where nobody wants one. A name that was taken as it was
/// offered gets the ending of the format that was chosen; where there are several formats, so does each name
/// that has none of their endings. Asks once more where that makes the name of another file.
QString askForPath(QWidget *parent, const QString &title, const QString &name,
                   const std::vector<SaveFormat> &formats);
