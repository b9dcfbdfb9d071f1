// SPDX-License-Identifier: GPL-3.0-or-later
#include <QStringList>

#include "platform/PlainText.h"
#include "platform/tools/DiskWords.h"
#include "platform/tools/SystemTools.h"

#include <QVector>

#include <algorithm>

namespace tools
{

namespace
{

using inventory::Machine;

constexpr int ColumnGap = 2;

/// A column of a table: its name as the tool spells it, and the cell of one row.
struct Column {
    const char *name;
    QString (*cell)(const Machine &machine, int row);
};

struct Table {
    const char *alias;
    int (*rows)(const Machine &machine);
    QVector<Column> columns; ///< in the order of their names
};

QString deviceName(const Machine &machine, int row)
{
    return QStringLiteral("\\\\.\\PHYSICALDRIVE%1").arg(machine.disks.at(row).number);
}

QString diskSize(const Machine &machine, int row)
{
    const inventory::Disk &disk = machine.disks.at(row);
    // The tool counts whole cylinders of 255 heads and 63 sectors.
    const quint64 cylinder = quint64{255} * 63 * disk.bytesPerSector;
    const quint64 bytes = cylinder == 0 ? 0 : disk.sectors * 512 / cylinder * cylinder;
    return bytes == 0 ? QString() : QString::number(bytes);
}

QString diskMedia(const Machine &machine, int row)
{
    const QString &media = machine.disks.at(row).media;
    if (media == QLatin1String("fixed"))
        return QStringLiteral("Fixed hard disk media");
    return media == QLatin1String("removable") ? QStringLiteral("Removable Media") : QString();
}

QString partitionCount(const Machine &machine, int row)
{
    const int number = machine.disks.at(row).number;
    return QString::number(
        std::count_if(machine.partitions.cbegin(), machine.partitions.cend(),
                      [number](const auto &partition) { return partition.disk == number; }));
}

QString driveName(const Machine &machine, int row)
{
    return QString(machine.volumes.at(row).letter) + QLatin1Char(':');
}

QString driveTypeNumber(const Machine &machine, int row)
{
    return QString::number(std::max(0, volumeTypes().indexOf(machine.volumes.at(row).type)));
}

/// Sizes come from the file system: a drive without a medium has neither.
QString volumeBytes(const inventory::Volume &volume, quint64 bytes)
{
    return volume.size == 0 || volume.fileSystem.isEmpty() ? QString() : QString::number(bytes);
}

/// The place of a partition among those of its disk.
QString partitionIndex(const Machine &machine, int row)
{
    const int disk = machine.partitions.at(row).disk;
    const auto begin = machine.partitions.cbegin();
    return QString::number(std::count_if(begin, begin + row, [disk](const inventory::Partition &partition) {
        return partition.disk == disk;
    }));
}

QString partitionName(const Machine &machine, int row)
{
    return machine.partitions.at(row).name;
}

const QVector<Table> &tables()
{
    static const QVector<Table> all{
        {"diskdrive",
         [](const Machine &m) { return static_cast<int>(m.disks.size()); },
         {{"BytesPerSector",
           [](const Machine &m, int i) { return QString::number(m.disks.at(i).bytesPerSector); }},
          {"Caption", [](const Machine &m, int i) { return m.disks.at(i).model; }},
          {"DeviceID", deviceName},
          {"Index", [](const Machine &m, int i) { return QString::number(m.disks.at(i).number); }},
          {"InterfaceType", [](const Machine &m, int i) { return m.disks.at(i).interfaceType; }},
          {"MediaType", diskMedia},
          {"Model", [](const Machine &m, int i) { return m.disks.at(i).model; }},
          {"Name", deviceName},
          {"Partitions", partitionCount},
          {"SerialNumber", [](const Machine &m, int i) { return m.disks.at(i).serial; }},
          {"Size", diskSize},
          {"Status", [](const Machine &m, int i) { return m.disks.at(i).status; }}}},
        {"logicaldisk",
         [](const Machine &m) { return static_cast<int>(m.volumes.size()); },
         {{"Caption", driveName},
          {"DeviceID", driveName},
          {"DriveType", driveTypeNumber},
          {"FileSystem", [](const Machine &m, int i) { return m.volumes.at(i).fileSystem; }},
          {"FreeSpace",
           [](const Machine &m, int i) { return volumeBytes(m.volumes.at(i), m.volumes.at(i).free); }},
          {"Name", driveName},
          {"Size",
           [](const Machine &m, int i) { return volumeBytes(m.volumes.at(i), m.volumes.at(i).size); }},
          {"VolumeName", [](const Machine &m, int i) { return m.volumes.at(i).label; }}}},
        {"partition",
         [](const Machine &m) { return static_cast<int>(m.partitions.size()); },
         {{"Caption", partitionName},
          {"DeviceID", partitionName},
          {"DiskIndex", [](const Machine &m, int i) { return QString::number(m.partitions.at(i).disk); }},
          {"Index", partitionIndex},
          {"Name", partitionName},
          {"Size", [](const Machine &m, int i) { return QString::number(m.partitions.at(i).size); }},
          {"Type", [](const Machine &m, int i) { return m.partitions.at(i).type; }}}},
    };
    return all;
}

/// The columns asked for, in the order of the table; all of them where none is named, none where one is
/// unknown.
QVector<Column> selectColumns(const Table &table, const QString &question)
{
    if (question.isEmpty())
        return table.columns;

    QVector<bool> wanted(table.columns.size(), false);
    for (const QString &part : question.split(QLatin1Char(','))) {
        const QString name = part.trimmed();
        const auto found =
            std::find_if(table.columns.cbegin(), table.columns.cend(), [&name](const Column &column) {
                return name.compare(QLatin1String(column.name), Qt::CaseInsensitive) == 0;
            });
        if (found == table.columns.cend())
            return {};
        wanted[static_cast<int>(found - table.columns.cbegin())] = true;
    }

    QVector<Column> columns;
    for (int i = 0; i < wanted.size(); ++i) {
        if (wanted.at(i))
            columns.append(table.columns.at(i));
    }
    return columns;
}

QString layOut(const Table &table, const QVector<Column> &columns, const Machine &machine)
{
    const int rows = table.rows(machine);
    QVector<QString> lines(rows + 1);
    for (const Column &column : columns) {
        QStringList cells{QLatin1String(column.name)};
        for (int row = 0; row < rows; ++row)
            cells.append(plaintext::line(column.cell(machine, row)));
        int width = 0;
        for (const QString &cell : cells)
            width = std::max(width, cell.size());
        for (int i = 0; i < cells.size(); ++i)
            lines[i] += cells.at(i).leftJustified(width + ColumnGap);
    }

    QString text;
    for (const QString &line : lines)
        text += line + QLatin1String("\r\n");
    return text + QLatin1String("\r\n");
}

QByteArray toUtf16(const QString &text)
{
    QByteArray bytes("\xFF\xFE", 2);
    bytes.reserve(bytes.size() + 2 * text.size());
    for (const QChar unit : text) {
        bytes.append(static_cast<char>(unit.cell()));
        bytes.append(static_cast<char>(unit.row()));
    }
    return bytes;
}

} // namespace

QByteArray wmic(const Machine &machine, const QStringList &arguments)
{
    if (arguments.size() < 2 || arguments.at(1).compare(QLatin1String("get"), Qt::CaseInsensitive) != 0)
        return {};

    for (const Table &table : tables()) {
        if (arguments.first().compare(QLatin1String(table.alias), Qt::CaseInsensitive) != 0)
            continue;
        const QVector<Column> columns = selectColumns(table, arguments.mid(2).join(QLatin1Char(' ')));
        // Without a row the tool prints its remark on standard error and no table.
        if (columns.isEmpty() || table.rows(machine) == 0)
            return {};
        return toUtf16(layOut(table, columns, machine));
    }
    return {};
}

} // namespace tools
