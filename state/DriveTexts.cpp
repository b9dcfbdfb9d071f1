// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/DriveTexts.h"

#include "state/Globals.h"

#include <QCoreApplication>

#include <algorithm>

namespace drivetexts
{

namespace
{

QString numberedName(const DiskNode &node)
{
    return QCoreApplication::translate("MainWindow", "Disk Drive ") +
           QString::number(node.nId - PhysicalDriveBase);
}

QString identityText(const DiskNode &node)
{
    if (!node.pDetails || !node.pDetails->pIdentity)
        return QString();
    const DiskIdentity &identity = *node.pDetails->pIdentity;
    return identity.szModel.isEmpty() ? identity.szSerial.text() : identity.szModel.text();
}

ComboTexts removableTexts(const DiskNode &node, const WmicDiskRecord *record)
{
    QString text;
    if (record) {
        const QString model =
            record->szModel.isEmpty() ? record->szSmartModel.text() : record->szModel.text();
        text = model + QLatin1Char(' ') + record->szSmartSerial.text();
    }
    if (text.trimmed().isEmpty())
        text = numberedName(node);
    return {text, text};
}

/// Whether several entries have this text.
bool isShared(const std::vector<Entry> &list, QString ComboTexts::*text, const Entry &entry)
{
    return std::count_if(list.cbegin(), list.cend(),
                         [&](const Entry &other) { return other.texts.*text == entry.texts.*text; }) > 1;
}

} // namespace

ComboTexts comboTexts(const DiskNode &node, const WmicDiskRecord *record, const QString &size)
{
    if (node.nKind == RemovableDisk)
        return removableTexts(node, record);

    const QString model = record ? record->szSmartModel.text() : QString();
    if (!model.isEmpty())
        return {model + QStringLiteral(" | ") + record->szSmartSerial.text() + QStringLiteral(" | ") + size,
                model};
    QString text = identityText(node);
    if (text.isEmpty())
        text = numberedName(node);
    return {text, text};
}

std::vector<Entry> entries(const RecordList<DiskNode> &disks)
{
    std::vector<Entry> list;
    for (const DiskNode &node : disks) {
        if (isPhysicalKind(node.nKind))
            list.push_back({&node, comboTexts(node, findWmicDisk(node.nId), node.szSize.text())});
    }
    const std::vector<Entry> alike = list;
    for (Entry &entry : list) {
        const bool sameSource = isShared(alike, &ComboTexts::source, entry);
        if (isShared(alike, &ComboTexts::drive, entry))
            entry.texts.drive += QStringLiteral(" | ") + numberedName(*entry.node);
        if (sameSource)
            entry.texts.source = entry.texts.drive;
    }
    return list;
}

void fillDisplayFields(DiskNode &node)
{
    const DiskIdentity *identity = node.pDetails ? node.pDetails->pIdentity.get() : nullptr;
    if (node.nKind == RemovableDisk)
        node.szDisplay = QStringLiteral("Removable Drive");
    else if (identity)
        node.szDisplay = QStringLiteral("%1 (%2)").arg(identity->szModel.text(), identity->szSerial.text());
    node.nDisplayBytes = static_cast<quint32>(node.szDisplay.size()) * 2;
    if (node.pDetails)
        node.szSize.assign(node.pDetails->szCapacity);
}

void fillDisplayFields(RecordList<DiskNode> &disks)
{
    for (DiskNode &node : disks) {
        if (!isPhysicalKind(node.nKind))
            continue;
        fillDisplayFields(node);
        g_strSelectedSize = node.szSize.text();
    }
}

} // namespace drivetexts
