// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/DiskIdentityTexts.h"

#include <QCoreApplication>

namespace
{

/// What both have in common.
DiskIdentityTexts textsOf(const DiskNode *node, const WmicDiskRecord *record, int diskNumber)
{
    DiskIdentityTexts texts;
    texts.diskNumber = QString::number(diskNumber);
    if (node && node->pDetails)
        texts.sectors = QString::number(node->pDetails->nTotalSectors);
    if (node && record) {
        texts.model = record->szSmartModel.text();
        texts.interfaceText = record->szInterface.text();
    }
    return texts;
}

/// What the report tells, else what the system knows.
template<std::size_t Size>
QString toldOrKnown(const QString &told, const WmicDiskRecord *record, FixedText<Size> WmicDiskRecord::*known)
{
    const QString text = told.trimmed();
    return text.isEmpty() && record ? (record->*known).text() : text;
}

} // namespace

DiskIdentityTexts identityTextsAfterRead(const DiskNode *node, const WmicDiskRecord *record, int diskNumber,
                                         const ReportIdentity &report)
{
    DiskIdentityTexts texts = textsOf(node, record, diskNumber);
    if (!node)
        return texts;
    const bool removable = node->nKind == RemovableDisk;
    if (record) {
        // On a removable disk this stays: its serial field shows the system's model text.
        texts.serial = record->szModel.text();
        texts.summary = record->szSmartSerial.text() + QStringLiteral(" ( ") + record->szInterface.text() +
                        QStringLiteral("  ") + node->szSize.text() + QStringLiteral(" )");
    }
    if (!removable) {
        texts.model = toldOrKnown(report.model, record, &WmicDiskRecord::szSmartModel);
        texts.firmware = report.firmware.trimmed();
        texts.serial = toldOrKnown(report.serial, record, &WmicDiskRecord::szSmartSerial);
    } else if (!report.smartAvailable) {
        texts.firmware = QCoreApplication::translate("MainWindow", "Not Available");
        if (texts.model.value_or(QString()).isEmpty())
            texts.model = texts.firmware;
    }
    return texts;
}

DiskIdentityTexts identityTextsAfterLanguageChange(const DiskNode *node, const WmicDiskRecord *record,
                                                   int diskNumber)
{
    DiskIdentityTexts texts = textsOf(node, record, diskNumber);
    if (!node || !record)
        return texts;
    const bool removable = node->nKind == RemovableDisk;
    texts.serial = removable ? record->szModel.text() : record->szSmartSerial.text();
    texts.firmware = removable ? QString() : record->szSmartFirmware.text();
    return texts;
}
