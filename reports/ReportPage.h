// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

class QPainter;
class QPixmap;
struct SmartReport;

/// The printed report: A4 pages at fixed coordinates, in units of 1/1200 inch from the top-left of the
/// margins. Main thread only.

/// Paints the report of either layout. Rows that the page has no room for go on to another one with the same
/// head and foot, which `newPage` begins on the painter's device.
void paintReport(QPainter &painter, const SmartReport &report, const std::function<void()> &newPage);

/// Writes the report as a PDF file. False where the file cannot be written; nothing is told besides.
bool writeReport(const QString &path, const SmartReport &report);

/// Writes the picture in the format of the file's ending; the same on error.
bool writePicture(const QString &path, const QPixmap &picture);
