// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/DriveAnswer.h"

#include "platform/IoControl.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace simulated
{
namespace
{

constexpr int smartBytes = 512;

constexpr quint8 commandIdentify = 0xEC;
constexpr quint8 commandSmart = 0xB0;
constexpr quint8 smartReadData = 0xD0;
constexpr quint8 smartEnable = 0xD8;

template<typename Record>
QByteArray bytesOf(const Record &record)
{
    return QByteArray(reinterpret_cast<const char *>(&record), static_cast<int>(sizeof(record)));
}

void putWord(QByteArray &data, int word, quint32 value)
{
    data[word * 2] = static_cast<char>(value & 0xFF);
    data[word * 2 + 1] = static_cast<char>(value >> 8 & 0xFF);
}

/// Drives keep their texts padded with blanks and with the two bytes of each word swapped.
void putText(QByteArray &data, int word, int bytes, const QString &text)
{
    const QByteArray padded = text.toLatin1().leftJustified(bytes, ' ', true);
    for (int i = 0; i < bytes; i += 2) {
        data[word * 2 + i] = padded.at(i + 1);
        data[word * 2 + i + 1] = padded.at(i);
    }
}

QByteArray identifyData(const Disk &disk)
{
    const quint64 sectors = disk.record.sectors;
    QByteArray data(smartBytes, '\0');
    putWord(data, 0, 0x0040);
    putWord(data, 1, static_cast<quint32>(std::min<quint64>(16383, sectors / (16 * 63))));
    putWord(data, 3, 16);
    putWord(data, 6, 63);
    putText(data, 10, 20, disk.identity->serial);
    putText(data, 23, 8, disk.identity->firmware);
    putText(data, 27, 40, disk.identity->model);
    putWord(data, 49, 0x0300); // LBA and DMA
    // The old count has 28 bits; larger drives fill it up and tell the rest in words 100 to 103.
    const quint32 lba28 = static_cast<quint32>(std::min<quint64>(0x0FFFFFFF, sectors));
    putWord(data, 60, lba28 & 0xFFFF);
    putWord(data, 61, lba28 >> 16);
    putWord(data, 82, 0x0001); // SMART supported
    putWord(data, 85, 0x0001); // SMART enabled
    for (int i = 0; i < 4; ++i)
        putWord(data, 100 + i, static_cast<quint32>((sectors >> (16 * i)) & 0xFFFF));
    return data;
}

QByteArray withHead(const QByteArray &data)
{
    io::SendCmdOutHeader head{};
    head.bufferSize = static_cast<quint32>(data.size());
    return bytesOf(head) + data;
}

QByteArray smartCommand(const Disk &disk, quint32 code, const QByteArray &request)
{
    // The one byte of data at the record's end may be left out.
    io::SendCmdInParams in{};
    if (static_cast<std::size_t>(request.size()) < offsetof(io::SendCmdInParams, buffer))
        return {};
    std::memcpy(&in, request.constData(), std::min(sizeof(in), static_cast<std::size_t>(request.size())));
    if (in.driveNumber != 0)
        return {};
    const bool smart = in.regs.command == commandSmart;
    if (code == io::SmartSendDriveCommand)
        return smart && in.regs.features == smartEnable ? withHead(QByteArray()) : QByteArray();
    if (in.regs.command == commandIdentify)
        return withHead(identifyData(disk));
    if (smart && in.regs.features == smartReadData)
        return withHead(disk.identity->smart.leftJustified(smartBytes, '\0', true));
    return {};
}

} // namespace

QByteArray driveAnswer(const Disk &disk, quint32 code, const QByteArray &request)
{
    if (!disk.identity)
        return {};
    switch (code) {
    case io::StorageQueryProperty:
        return QByteArray::fromStdString(io::storageDescriptor(disk.identity->serial.toStdString()));
    case io::SmartGetVersion:
        return bytesOf(io::GetVersionInParams{1, 1, 0, 1, 7, {}});
    case io::SmartSendDriveCommand:
    case io::SmartRcvDriveData:
        return smartCommand(disk, code, request);
    default:
        return {};
    }
}

} // namespace simulated
