// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/AtaIdentity.h"
#include "tests/support/FakePlatform.h"

#include <QTest>
#include <QTextStream>

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

/// Names, geometry, sectors, SMART, temperature and its copy, and each attribute with its name, values and
/// state.
QString told(const DiskIdentity &identity)
{
    QString text;
    QTextStream out(&text);
    out << identity.szModel.text() << '|' << identity.szSerial.text() << '|' << identity.szFirmware.text()
        << ' ' << int(identity.nCylinders) << ' ' << int(identity.nHeads) << ' ' << int(identity.nSectors)
        << ' ' << identity.nTotalLba << ' ' << int(identity.bSmartEnabled) << ' ' << identity.nTemperature
        << ' ' << int(identity.nTemperatureCopy) << ' ' << int(identity.nAttributeCount) << ' '
        << int(identity.nThresholdState);
    for (const IdentityAttribute &attribute : identity.attributes)
        out << ", " << int(attribute.nAttrId) << ' ' << attribute.szNameIndex << ' ' << attribute.nCurrent
            << '/' << attribute.nWorst << ' ' << int(attribute.nState);
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
        QCOMPARE(ata::identifyText({}), QByteArray());
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
        QCOMPARE(told(identity), QStringLiteral("|| 16383 16 63 0 0 0 0 1 1, 5 160 100/99 1"));
    }

    void readsDisk()
    {
        const QString names = QStringLiteral("NORDWIND|SN-0042|FW1.7 ");
        QCOMPARE(read(0x01), names + "16383 16 63 305419896 1 34 34 4 2, 5 160 100/99 1, 194 171 66/50 1, "
                                     "194 171 60/50 1, 199 176 0/0 2");
        QCOMPARE(asked, QStringList({"d8 01 01 4f c2 a0 b0 00, 0 bytes from 0",
                                     "00 01 01 00 00 a0 ec 00, 512 bytes from 0",
                                     "d0 01 01 4f c2 a0 b0 00, 512 bytes from 0"}));
        QCOMPARE(fake->openings, QStringList(R"(\\.\PHYSICALDRIVE3 c0000000 3 3)"));
        read(0x08);
        QCOMPARE(asked.size(), 3);
        QCOMPARE(asked.first(), QStringLiteral("d8 01 01 4f c2 b0 b0 00, 0 bytes from 3"));
        // A packet device.
        QCOMPARE(read(0x11), names + "0 0 0 305419896 0 0 0 0 0");
        QCOMPARE(asked, QStringList("00 01 01 00 00 a0 a1 00, 512 bytes from 0"));
        refusesEnable = true;
        QCOMPARE(read(0x01), names + "16383 16 63 305419896 0 0 0 0 0");
        QCOMPARE(asked.size(), 2);
    }

    void leavesRecordEmpty()
    {
        const QString empty = QStringLiteral("|| 0 0 0 0 0 0 0 0 0");
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

    quint8 map = 0; ///< of the devices that the interface has
    bool refusesEnable = false;
    QStringList asked;
    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(AtaIdentityTest)
#include "tst_AtaIdentity.moc"
