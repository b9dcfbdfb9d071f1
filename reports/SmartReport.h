// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/SmartRecords.h"

#include <QCoreApplication>
#include <QString>

#include <vector>

/// All that the printed report says of a disk, as plain values: a list that is read anew does not change it.
struct SmartReport {
    struct Cell {
        QString text;
        bool red = false;
    };
    using Row = std::vector<Cell>; ///< by column of the layout

    bool nvme = false; ///< which of the two layouts
    bool secondBrand = false;
    /// Files of the pictures; none is painted where the name is empty.
    QString logo;
    QString watermark;
    QString icon;

    SmartIdentity ata; ///< of the kind that the report is of; the other one is empty
    NvmeIdentity log;
    QString smartStatus; ///< "Passed", "Failed" or the drive's own words
    bool smartFailed = false;
    QString temperature;
    QString performanceText;
    int performance = 0; ///< percent
    int health = 0;      ///< percent
    bool healthKnown = true;
    QString lastTestType;
    QString lastTestResult;
    QString device;        ///< as the tool takes it
    std::vector<Row> rows; ///< none: only the watermark is painted
};

/// The report's texts are translated in the context of the window that it is saved from.
struct ReportTexts {
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

/// What is known of the disk whose report was read last. Translated; main thread only.
SmartReport gatherSmartReport();

/// The name offered for the file, without an ending.
QString suggestedReportName(const SmartReport &report);

/// The path that a file is written to: a name that was taken as it was offered gets the ending, such as
/// ".pdf".
QString savedPath(const QString &chosen, const QString &offered, const QString &ending);

/// A text as part of a file name: what a file system refuses becomes "-".
QString fileNamePart(QString text);
