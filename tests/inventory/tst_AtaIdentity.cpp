// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/AtaIdentity.h"
#include "tests/support/FakePlatform.h"

#include <QTest>

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
    QByteArray data(512, '\0');
    const auto put = [&data](int word, const QByteArray &bytes) {
        data.replace(2 * word, bytes.size(), bytes);
    };
    put(1, QByteArray("\xFF\x3F", 2));
    put(3, QByteArray("\x10\x00", 2));
    put(6, QByteArray("\x3F\x00", 2));
    put(10, swapped(QByteArray("SN-0042").rightJustified(20)));
    put(23, swapped(QByteArray("FW1.7").leftJustified(8)));
    put(27, swapped(QByteArray("NORDWIND NW500").leftJustified(40)));
    put(60, QByteArray("\x78\x56\x34\x12", 4));
    return data;
}

QByteArray smartData()
{
    QByteArray data(512, '\0');
    const auto entry = [&data](int slot, quint8 id, quint8 current, quint8 worst, quint8 raw) {
        const char bytes[] = {char(id), 0, 0, char(current), char(worst), char(raw)};
        data.replace(2 + slot * 12, sizeof bytes, bytes, sizeof bytes);
    };
    entry(0, 5, 100, 99, 0);
    entry(2, 194, 66, 50, 34); // slot 1 stays empty
    entry(3, 194, 60, 50, 77);
    entry(29, 199, 0, 0, 1);
    return data;
}

} // namespace

class AtaIdentityTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        map = 1;
        refusesEnable = false;
        asked.clear();
        fake = FakePlatform::install();
        fake->disks[3].smart = [this](quint32 code, const QByteArray &in, QByteArray *out) {
            return answer(code, in, out);
        };
    }

    void cutsText()
    {
        const auto cut = [](const char *shown) { return ata::identifyText(swapped(shown)); };
        QCOMPARE(cut("NORDWIND NW500  "), QByteArray("NORDWIND"));
        QCOMPARE(cut("      SN42"), QByteArray("SN42"));
        QCOMPARE(cut("    SN 42X"), QByteArray("42X"));
        QCOMPARE(cut("    SN42  "), QByteArray());
        // With one leading blank, the first byte of the data is the second character.
        QCOMPARE(cut(" SN4"), QByteArray());
        QCOMPARE(cut("A BC"), QByteArray("BC"));
        QCOMPARE(ata::identifyText(QByteArray("WN05\0\0XX", 8)), QByteArray("NW50"));
        QCOMPARE(ata::identifyText({}), QByteArray());
    }

    void namesAttributes()
    {
        QCOMPARE(ata::nameIndex(12), 167);
        QCOMPARE(ata::nameIndex(13), 187);
        QCOMPARE(ata::nameIndex(190), 187);
        QCOMPARE(ata::nameIndex(191), 168);
        QCOMPARE(ata::nameIndex(209), 186);
        QCOMPARE(ata::nameIndex(210), 187);
    }

    void takesShortData()
    {
        DiskIdentity identity;
        ata::decodeIdentify(identifyData().left(30), false, &identity);
        QCOMPARE(int(identity.nHeads), 16);
        QVERIFY(identity.szModel.isEmpty());
        ata::decodeAttributes(smartData().left(7), &identity);
        QCOMPARE(int(identity.nAttributeCount), 1);
        QCOMPARE(identity.attributes.head->nCurrent, 100u);
        QCOMPARE(int(identity.nThresholdState), 1);
    }

    void readsDisk()
    {
        DiskIdentity identity;
        QVERIFY(ReadAtaIdentity(131, &identity));
        QCOMPARE(identity.szModel.text(), QStringLiteral("NORDWIND"));
        QCOMPARE(identity.szSerial.text(), QStringLiteral("SN-0042"));
        QCOMPARE(identity.szFirmware.text(), QStringLiteral("FW1.7"));
        QCOMPARE(int(identity.nCylinders), 16383);
        QCOMPARE(int(identity.nHeads), 16);
        QCOMPARE(int(identity.nSectors), 63);
        QCOMPARE(identity.nTotalLba, 0x12345678u);
        QCOMPARE(int(identity.bSmartEnabled), 1);
        QCOMPARE(identity.nTemperature, 34u);
        QCOMPARE(int(identity.nTemperatureCopy), 34);
        QCOMPARE(int(identity.nAttributeCount), 4);
        QCOMPARE(int(identity.nThresholdState), 2);

        const IdentityAttribute *attribute = identity.attributes.head;
        QCOMPARE(int(attribute->nAttrId), 5);
        QCOMPARE(attribute->szNameIndex, QStringLiteral("160"));
        QCOMPARE(attribute->nWorst, 99u);
        QCOMPARE(int(attribute->nState), 1);
        QCOMPARE(int(identity.attributes.tail->nAttrId), 199);
        QCOMPARE(int(identity.attributes.tail->nState), 2);
        QCOMPARE(asked, QStringList({"d8 01 01 4f c2 a0 b0 00, 0 bytes from 0",
                                     "00 01 01 00 00 a0 ec 00, 512 bytes from 0",
                                     "d0 01 01 4f c2 a0 b0 00, 512 bytes from 0"}));
        QCOMPARE(fake->openings, QVector<FakePlatform::Opening>(
                                     {{QStringLiteral("\\\\.\\PHYSICALDRIVE3"), 0xC0000000u, 3, 3}}));
        QCOMPARE(fake->openHandles(), 0);
    }

    void readsLastDevice()
    {
        map = 0x08;
        DiskIdentity identity;
        QVERIFY(ReadAtaIdentity(131, &identity));
        QCOMPARE(asked.size(), 3);
        QCOMPARE(asked.first(), QStringLiteral("d8 01 01 4f c2 b0 b0 00, 0 bytes from 3"));
    }

    void readsPacketDevice()
    {
        map = 0x11;
        DiskIdentity identity;
        QVERIFY(ReadAtaIdentity(131, &identity));
        QCOMPARE(asked, QStringList("00 01 01 00 00 a0 a1 00, 512 bytes from 0"));
        QCOMPARE(identity.szModel.text(), QStringLiteral("NORDWIND"));
        QCOMPARE(int(identity.nCylinders), 0);
        QCOMPARE(int(identity.bSmartEnabled), 0);
        QVERIFY(identity.attributes.isEmpty());
    }

    void readsNoAttributesIfSmartIsRefused()
    {
        refusesEnable = true;
        DiskIdentity identity;
        QVERIFY(ReadAtaIdentity(131, &identity));
        QCOMPARE(asked.size(), 2);
        QCOMPARE(int(identity.nCylinders), 16383);
        QCOMPARE(int(identity.bSmartEnabled), 0);
    }

    void leavesRecordEmpty()
    {
        DiskIdentity identity;
        map = 0;
        QVERIFY(ReadAtaIdentity(131, &identity));
        fake->disks[3].smart = {}; // as USB disks refuse
        QVERIFY(ReadAtaIdentity(131, &identity));
        fake->disks[3].opens = false;
        QVERIFY(!ReadAtaIdentity(131, &identity));
        QVERIFY(identity.szModel.isEmpty());
        QCOMPARE(asked.size(), 0);
        QCOMPARE(fake->openHandles(), 0);
    }

private:
    /// The drive interface of the disk.
    bool answer(quint32 code, const QByteArray &in, QByteArray *out)
    {
        if (code == io::SmartGetVersion) {
            io::GetVersionInParams version{};
            version.ideDeviceMap = map;
            *out = QByteArray(reinterpret_cast<const char *>(&version), sizeof version);
            return true;
        }
        io::SendCmdInParams params{};
        std::memcpy(&params, in.constData(), qMin(sizeof params, size_t(in.size())));
        const QByteArray registers(reinterpret_cast<const char *>(&params.regs), sizeof params.regs);
        asked << QStringLiteral("%1, %2 bytes from %3")
                     .arg(QString::fromLatin1(registers.toHex(' ')))
                     .arg(params.bufferSize)
                     .arg(params.driveNumber);
        *out = QByteArray(16, '\0');
        if (code == io::SmartSendDriveCommand)
            return !refusesEnable;
        out->append(params.regs.command == 0xB0 ? smartData() : identifyData());
        return true;
    }

    quint8 map = 1; ///< of the devices that the interface has
    bool refusesEnable = false;
    QStringList asked;
    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(AtaIdentityTest)
#include "tst_AtaIdentity.moc"
