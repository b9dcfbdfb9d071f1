// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/AtaIdentity.h"

#include "inventory/RawAccess.h"
#include "platform/IoControl.h"
#include "platform/PlainText.h"

#include <algorithm>
#include <cstring>

namespace
{

constexpr int AttributeSlots = 30;
constexpr int AttributeBytes = 12;
constexpr int TemperatureAttribute = 194;
constexpr int DeviceCount = 4; ///< devices that the map of the drive interface tells of

constexpr quint8 IdentifyCommand = 0xEC;
constexpr quint8 IdentifyPacketCommand = 0xA1;
constexpr quint8 SmartCommand = 0xB0;
constexpr quint8 SmartEnable = 0xD8;
constexpr quint8 SmartReadData = 0xD0;

/// The data behind the head of an answer.
struct CommandOutput {
    io::SendCmdOutHeader head;
    char data[SectorSize];
};
static_assert(sizeof(CommandOutput) == 528, "layout of SENDCMDOUTPARAMS with one sector");

quint8 byteAt(const QByteArray &data, int offset)
{
    return offset < data.size() ? static_cast<quint8>(data.at(offset)) : quint8(0);
}

/// Little-endian word of the identify data.
quint16 wordAt(const QByteArray &data, int word)
{
    return static_cast<quint16>(byteAt(data, 2 * word) | byteAt(data, 2 * word + 1) << 8);
}

template<std::size_t Width>
void takeText(const QByteArray &data, int firstWord, int lastWord, FixedText<Width> *text)
{
    const QByteArray field = data.mid(2 * firstWord, 2 * (lastWord - firstWord + 1));
    const QByteArray told = ata::identifyText(field).left(static_cast<int>(Width) - 1);
    text->assign(plaintext::line(QString::fromLatin1(told)));
}

io::SendCmdInParams makeCommand(int device, quint8 command, quint8 features, quint32 bytes)
{
    io::SendCmdInParams in{};
    in.bufferSize = bytes;
    in.regs.features = features;
    in.regs.sectorCount = 1;
    in.regs.sectorNumber = 1;
    if (command == SmartCommand) {
        in.regs.cylinderLow = 0x4F;
        in.regs.cylinderHigh = 0xC2;
    }
    in.regs.driveHead = (device & 1) != 0 ? 0xB0 : 0xA0;
    in.regs.command = command;
    in.driveNumber = static_cast<quint8>(device);
    return in;
}

bool send(Platform::RawHandle handle, quint32 code, const io::SendCmdInParams &in, QByteArray *data)
{
    CommandOutput out{};
    quint32 returned = 0;
    if (!Platform::current().DeviceIoControl(handle, code, &in, sizeof in, &out, sizeof out, &returned))
        return false;
    *data = QByteArray(out.data, SectorSize);
    return true;
}

/// Asks one device of the map; true if it takes SMART commands.
bool readDevice(Platform::RawHandle handle, int device, bool atapi, DiskIdentity *identity)
{
    QByteArray data;
    const bool enabled = !atapi && send(handle, io::SmartSendDriveCommand,
                                        makeCommand(device, SmartCommand, SmartEnable, 0), &data);
    if (enabled)
        identity->bSmartEnabled = 1;
    const quint8 command = atapi ? IdentifyPacketCommand : IdentifyCommand;
    if (send(handle, io::SmartRcvDriveData, makeCommand(device, command, 0, SectorSize), &data))
        ata::decodeIdentify(data, atapi, identity);
    return enabled;
}

} // namespace

namespace ata
{

QByteArray identifyText(const QByteArray &field)
{
    if (field.isEmpty())
        return {};
    const bool trimFront = field.at(0) == ' ';
    QByteArray text = field;
    char *bytes = text.data();
    for (int i = 0; i + 1 < text.size(); i += 2)
        std::swap(bytes[i], bytes[i + 1]);
    text.truncate(static_cast<int>(qstrnlen(text.constData(), static_cast<uint>(text.size()))));
    if (trimFront)
        std::reverse(text.begin(), text.end());
    const int blank = text.indexOf(' ');
    if (blank >= 0)
        text.truncate(blank);
    if (trimFront)
        std::reverse(text.begin(), text.end());
    return text;
}

void decodeIdentify(const QByteArray &data, bool atapi, DiskIdentity *identity)
{
    identity->nTotalLba = static_cast<quint32>(wordAt(data, 61)) << 16 | wordAt(data, 60);
    if (!atapi) {
        identity->nCylinders = wordAt(data, 1);
        identity->nHeads = wordAt(data, 3);
        identity->nSectors = wordAt(data, 6);
    }
    takeText(data, 27, 46, &identity->szModel);
    takeText(data, 10, 19, &identity->szSerial);
    takeText(data, 23, 26, &identity->szFirmware);
}

int nameIndex(int attributeId)
{
    if (attributeId <= 12)
        return attributeId + 155;
    if (attributeId >= 191 && attributeId <= 209)
        return attributeId - 23;
    return 187;
}

void decodeAttributes(const QByteArray &data, DiskIdentity *identity)
{
    bool temperatureSeen = false;
    for (int slot = 0; slot < AttributeSlots; ++slot) {
        const int entry = 2 + slot * AttributeBytes;
        const quint8 id = byteAt(data, entry);
        if (id == 0)
            continue;
        if (id == TemperatureAttribute && !temperatureSeen) {
            temperatureSeen = true;
            identity->nTemperature = byteAt(data, entry + 5);
            identity->nTemperatureCopy = static_cast<quint16>(identity->nTemperature);
        }
        IdentityAttribute &attribute = identity->attributes.append();
        attribute.nAttrId = id;
        attribute.szNameIndex = QString::number(nameIndex(id));
        attribute.nCurrent = byteAt(data, entry + 3);
        attribute.nWorst = byteAt(data, entry + 4);
        attribute.nState = attribute.nCurrent > attribute.nThreshold ? 1 : 2;
        ++identity->nAttributeCount;
        identity->nThresholdState = std::max(identity->nThresholdState, attribute.nState);
    }
}

} // namespace ata

bool ReadAtaIdentity(int driveCode, DiskIdentity *identity)
{
    Platform &platform = Platform::current();
    const Platform::RawHandle handle =
        platform.CreateFileW(diskName(driveCode), io::GenericRead | io::GenericWrite,
                             io::ShareRead | io::ShareWrite, io::OpenExisting);
    if (handle == Platform::InvalidHandle)
        return false;
    io::GetVersionInParams version{};
    // A disk that refuses leaves the map empty, and that alone decides.
    askTarget(handle, io::SmartGetVersion, &version);
    QVector<int> enabled;
    for (int device = 0; device < DeviceCount; ++device) {
        const bool atapi = (version.ideDeviceMap >> (device + 4) & 1) != 0;
        if ((version.ideDeviceMap >> device & 1) != 0 && readDevice(handle, device, atapi, identity))
            enabled << device;
    }
    for (const int device : qAsConst(enabled)) {
        QByteArray data;
        if (send(handle, io::SmartRcvDriveData, makeCommand(device, SmartCommand, SmartReadData, SectorSize),
                 &data))
            ata::decodeAttributes(data, identity);
    }
    platform.CloseHandle(handle);
    return true;
}
