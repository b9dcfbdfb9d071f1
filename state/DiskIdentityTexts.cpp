// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/DiskIdentityTexts.h"

#include <QCoreApplication>

namespace
{

std::optional<QString> sectorsOf(const DiskNode &node)
{
    if (!node.pDetails)
        return std::nullopt;
    return QString::number(node.pDetails->nTotalSectors);
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
    DiskIdentityTexts texts;
    texts.diskNumber = QString::number(diskNumber);
    if (!node)
        return texts;
    const bool removable = node->nKind == RemovableDisk;
    if (record) {
        texts.model = record->szSmartModel.text();
        // On a removable disk this stays: its serial field shows the system's model text.
        texts.serial = record->szModel.text();
        texts.summary = record->szSmartSerial.text() + QStringLiteral(" ( ") + record->szInterface.text() +
                        QStringLiteral("  ") + node->szSize.text() + QStringLiteral(" )");
        texts.interfaceText = record->szInterface.text();
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
    texts.sectors = sectorsOf(*node);
    return texts;
}

DiskIdentityTexts identityTextsAfterLanguageChange(const DiskNode *node, const WmicDiskRecord *record,
                                                   int diskNumber)
{
    DiskIdentityTexts texts;
    texts.diskNumber = QString::number(diskNumber);
    if (!node)
        return texts;
    const bool removable = node->nKind == RemovableDisk;
    if (record) {
        texts.serial = removable ? record->szModel.text() : record->szSmartSerial.text();
        texts.interfaceText = record->szInterface.text();
        texts.model = record->szSmartModel.text();
        texts.firmware = removable ? QString() : record->szSmartFirmware.text();
    }
    texts.sectors = sectorsOf(*node);
    return texts;
}
