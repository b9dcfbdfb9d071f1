#include "app/state/DriveTexts.h"

#include <QCoreApplication>

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
    if (record)
        text = record->szModel.text() + QLatin1Char(' ') + record->szSmartSerial.text();
    if (text.trimmed().isEmpty())
        text = numberedName(node);
    return {text, text};
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

QString displayName(const DiskNode &node)
{
    if (node.nKind == RemovableDisk)
        return QStringLiteral("Removable Drive");
    if (!node.pDetails || !node.pDetails->pIdentity)
        return QString();
    const DiskIdentity &identity = *node.pDetails->pIdentity;
    return identity.szModel.text() + QStringLiteral(" (") + identity.szSerial.text() + QLatin1Char(')');
}

void fillDisplayFields(DiskNode &node)
{
    node.szDisplay = displayName(node);
    node.nDisplayBytes = static_cast<std::uint32_t>(node.szDisplay.size()) * 2;
    if (node.pDetails)
        node.szSize.assign(node.pDetails->szCapacity);
}

} // namespace drivetexts
