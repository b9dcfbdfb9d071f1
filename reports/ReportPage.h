#pragma once

#include <QString>

class QPainter;
struct SmartReport;

/// The printed report: one A4 page at fixed coordinates, in units of 1/1200 inch from the top-left of the
/// margins. Main thread only.

/// Paints the report of either layout. Rows run on down the page, past its end if there are so many.
void paintReport(QPainter &painter, const SmartReport &report);

/// Writes the report as a PDF file. False where the file cannot be written; nothing is told besides.
bool writeReport(const QString &path, const SmartReport &report);
