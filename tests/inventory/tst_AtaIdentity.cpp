// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/AtaIdentity.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/HandMadeDisk.h"

namespace
{

QByteArray swapped(QByteArray text)
{
    for (int i = 0; i + 1 < text.size(); i += 2)
        std::swap(text.data()[i], text.data()[i + 1]);
    return text;
}

QByteArray identifyData()
{
    HandMadeDisk data(1);
    data.put(2, quint16(16383)).put(6, quint16(16)).put(12, quint16(63)).put(120, 0x12345678);
    data.text(20, swapped(QByteArray("SN-0042").rightJustified(20)));
    data.text(46, swapped(QByteArray("FW1.7").leftJustified(8)));
    return data.text(54, swapped(QByteArray("NORDWIND NW500").leftJustified(40))).bytes;
}

/// Each entry is the id, flags of two bytes, value, worst and raw value. Slot 1 stays empty.
QByteArray smartData()
{
    return HandMadeDisk(1)
        .text(2, {"\x05\0\0\x64\x63\0", 6})
        .text(2 + 2 * 12, {"\xC2\0\0\x42\x32\x22", 6})
        .text(2 + 3 * 12, {"\xC2\0\0\x3C\x32\x4D", 6})
        .text(2 + 29 * 12, {"\xC7\0\0\0\0\1", 6})
        .bytes;
}

/// Names, geometry, sectors, SMART, temperature and its copy, and each attribute with its name, values and
/// state.
QString told(const DiskIdentity &identity)
{
    QString text = joined(identity.szModel.text(), identity.szSerial.text(), identity.szFirmware.text(),
                          identity.nCylinders, identity.nHeads, identity.nSectors, identity.nTotalLba,
                          identity.bSmartEnabled, identity.nTemperature, identity.nTemperatureCopy,
                          identity.nAttributeCount, identity.nThresholdState);
    for (const IdentityAttribute &attribute : identity.attributes)
        text += ", " + joined(attribute.nAttrId, attribute.szNameIndex, attribute.nCurrent, attribute.nWorst,
                              attribute.nState);
    return text;
}

} // namespace

class AtaIdentityTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        fake = FakePlatform::install();
        fake->disks[3].smart = [this](quint32 code, const QByteArray &in, QByteArray *out) {
            return answer(code, in, out);
        };
    }

    void cutsText()
    {
        const auto cut = [](const char *shown) { return ata::identifyText(swapped(shown)); };
        QCOMPARE(cut("NORDWIND NW500  "), QByteArray("NORDWIND"));
        QCOMPARE(cut("    SN 42X"), QByteArray("42X"));
        // With one leading blank, the first byte of the data is the second character.
        QCOMPARE(cut(" SN4"), QByteArray());
        QCOMPARE(ata::identifyText(QByteArray("WN05\0\0XX", 8)), QByteArray("NW50"));
    }

    void namesAttributes()
    {
        QVector<int> names;
        for (const int id : {12, 13, 190, 191, 209, 210})
            names << ata::nameIndex(id);
        QCOMPARE(names, QVector<int>({167, 187, 187, 168, 186, 187}));
    }

    void takesShortData()
    {
        DiskIdentity identity;
        ata::decodeIdentify(identifyData().left(30), false, &identity);
        ata::decodeAttributes(smartData().left(7), &identity);
        QCOMPARE(told(identity), "|||16383|16|63|0|0|0|0|1|1, 5|160|100|99|1");
    }

    void readsDisk()
    {
        const QString names = "NORDWIND|SN-0042|FW1.7|";
        QCOMPARE(read(0x01), names + "16383|16|63|305419896|1|34|34|4|2, 5|160|100|99|1, 194|171|66|50|1, "
                                     "194|171|60|50|1, 199|176|0|0|2");
        QCOMPARE(asked, QStringList({"00000000|d801014fc2a0b000|00", "00020000|0001010000a0ec00|00",
                                     "00020000|d001014fc2a0b000|00"}));
        QCOMPARE(fake->openings, QStringList(R"(\\.\PHYSICALDRIVE3 c0000000 3 3)"));
        read(0x08);
        QCOMPARE(asked.size(), 3);
        QCOMPARE(asked.first(), "00000000|d801014fc2b0b000|03");
        // A packet device.
        QCOMPARE(read(0x11), names + "0|0|0|305419896|0|0|0|0|0");
        QCOMPARE(asked, QStringList("00020000|0001010000a0a100|00"));
        refusesEnable = true;
        QCOMPARE(read(0x01), names + "16383|16|63|305419896|0|0|0|0|0");
        QCOMPARE(asked.size(), 2);
    }

    void leavesRecordEmpty()
    {
        const QString empty = "|||0|0|0|0|0|0|0|0|0";
        QCOMPARE(read(0), empty);
        fake->disks[3].smart = {}; // as USB disks refuse
        QCOMPARE(read(0x01), empty);
        fake->disks[3].opens = false;
        QCOMPARE(read(0x01), "closed" + empty);
        QCOMPARE(asked.size(), 0);
    }

private:
    /// Reads the disk, whose drive interface has such devices.
    QString read(quint8 devices)
    {
        map = devices;
        asked.clear();
        DiskIdentity identity;
        const QString opened = ReadAtaIdentity(131, &identity) ? "" : "closed";
        return fake->openHandles() == 0 ? opened + told(identity) : "handle left";
    }

    /// The drive interface of the disk.
    bool answer(quint32 code, const QByteArray &in, QByteArray *out)
    {
        if (code == io::SmartGetVersion) {
            io::GetVersionInParams version{};
            version.ideDeviceMap = map;
            *out = QByteArray(reinterpret_cast<const char *>(&version), sizeof version);
            return true;
        }
        asked << joined(in.left(4).toHex(), in.mid(4, 8).toHex(), in.mid(12, 1).toHex());
        *out = QByteArray(16, '\0');
        if (code == io::SmartSendDriveCommand)
            return !refusesEnable;
        out->append(in.at(10) == '\xB0' ? smartData() : identifyData());
        return true;
    }

    quint8 map = 0; ///< of the devices that the interface has
    bool refusesEnable = false;
    QStringList asked; ///< bytes wanted, registers and device of each command
    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(AtaIdentityTest)
#include "tst_AtaIdentity.moc"
