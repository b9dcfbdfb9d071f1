// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"
#include "platform/tools/CommandInterpreter.h"
#include "platform/tools/Diskpart.h"

/// A PC that is known as plain records and has no command interpreter of its own: what Linux and a described
/// PC have in common. Volumes, device answers and the system's tools follow from the records.
class InventoryPlatform : public Platform
{
public:
    QStringList GetLogicalDriveStringsW() override;
    bool GetVolumeInformationW(const QString &root, QString *label, QString *fileSystem) override;
    quint32 GetDriveTypeW(const QString &root) override;
    bool GetDiskFreeSpaceExW(const QString &root, quint64 *totalBytes, quint64 *freeBytes) override;

    inventory::Machine Machine() override { return machine(); }
    bool CreateProcessAndWait(const std::wstring &line, bool hidden) override;
    QString GetSystemDirectoryW() override;
    std::optional<DeviceChange> decodeDeviceMessage(const QByteArray &eventType, void *message) override;
    void InitializeCom() override {}

protected:
    InventoryPlatform();

    /// Disks, volumes and partitions as they are now. Any thread.
    virtual inventory::Machine machine() = 0;
    /// The image names of the running programs. Any thread.
    virtual QStringList processes() = 0;
    /// The disks that a partition script works on.
    virtual std::unique_ptr<tools::ScriptedDisks> scriptedDisks() = 0;

    /// Adds a tool that takes no input.
    void addTool(const char *name, const std::function<QByteArray(const QStringList &)> &tool,
                 int milliseconds = 0);
    /// The same under both names of the report tool.
    void addSmartctl(const std::function<QByteArray(const QStringList &)> &tool, int milliseconds = 0);

    /// The answer to a question for the geometry or, of a volume, for its extents; empty for another code.
    static QByteArray geometryAnswer(quint32 code, qint64 bytes, const inventory::Disk &disk);
    static QByteArray extentsAnswer(quint32 code, const QVector<inventory::Extent> &extents);
    /// Copies an answer out. False where there is none, or where it does not fit.
    static bool answer(const QByteArray &bytes, void *out, quint32 outSize, quint32 *returned);

private:
    std::optional<inventory::Volume> volumeOf(const QString &root);

    tools::CommandInterpreter m_interpreter;
};
