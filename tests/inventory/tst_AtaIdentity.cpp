// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/AtaIdentity.h"
#include "inventory/RawAccess.h"
#include "tests/support/FakePlatform.h"

#include <QTest>

namespace
{

QByteArray swapped(QByteArray text)
{
    for (int i = 0; i + 1 < text.size(); i += 2) {
        const char first = text.at(i);
        text[i] = text.at(i + 1);
        text[i + 1] = first;
    }
    return text;
}

void put(QByteArray *data, int word, const QByteArray &bytes)
{
    data->replace(2 * word, bytes.size(), bytes);
}

QByteArray identifyData()
{
    QByteArray data(512, '\0');
    put(&data, 1, QByteArray("\xFF\x3F", 2));
    put(&data, 3, QByteArray("\x10\x00", 2));
    put(&data, 6, QByteArray("\x3F\x00", 2));
    put(&data, 10, swapped(QByteArray("SN-0042").rightJustified(20)));
    put(&data, 23, swapped(QByteArray("FW1.7").leftJustified(8)));
    put(&data, 27, swapped(QByteArray("NORDWIND NW500").leftJustified(40)));
    put(&data, 60, QByteArray("\x78\x56\x34\x12", 4));
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

/// "features count number low high head command reserved buffer drive", the registers in hexadecimal.
QString textOf(const io::SendCmdInParams &params)
{
    const io::IdeRegs &regs = params.regs;
    QStringList parts;
    for (const quint8 value : {regs.features, regs.sectorCount, regs.sectorNumber, regs.cylinderLow,
                               regs.cylinderHigh, regs.driveHead, regs.command, regs.reserved})
        parts << QString::number(value, 16).toUpper();
    parts << QString::number(params.bufferSize) << QString::number(params.driveNumber);
    return parts.join(QLatin1Char(' '));
}

/// The drive interface of a disk. `map` tells which devices it has; `asked` keeps the questions.
struct Drive {
    quint8 map = 1;
    bool refusesEnable = false;
    QVector<io::SendCmdInParams> asked;

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
        asked << params;
        *out = QByteArray(16, '\0');
        if (code == io::SmartSendDriveCommand)
            return !refusesEnable;
        out->append(params.regs.command == 0xB0 ? smartData() : identifyData());
        return true;
    }
};

} // namespace

class AtaIdentityTest : public QObject
{
    Q_OBJECT

private slots:
    void cutsText_data();
    void cutsText();
    void namesAttributes_data();
    void namesAttributes();
    void ratesAttributes();
    void takesShortData();
    void readsDisk();
    void readsSlaveDevice();
    void readsPacketDevice();
    void leavesRecordEmpty_data();
    void leavesRecordEmpty();
};

void AtaIdentityTest::cutsText_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char *name, const QByteArray &shown, const char *text) {
        QTest::newRow(name) << swapped(shown) << QByteArray(text);
    };
    row("first word only", "NORDWIND NW500  ", "NORDWIND");
    row("no blank at all", "NW500ABC", "NW500ABC");
    row("leading blanks removed", "      SN42", "SN42");
    row("leading blanks, only the last word stays", "    SN 42X", "42X");
    row("leading and trailing blanks leave nothing", "    SN42  ", "");
    // With one leading blank, the first byte of the data is the second character.
    row("one leading blank", " SN4", "");
    row("second character blank, no trailing one", "A BC", "BC");
    row("blanks", "        ", "");
    row("ends at a zero byte", QByteArray("NW50\0\0XX", 8), "NW50");
    QTest::newRow("empty") << QByteArray() << QByteArray();
}

void AtaIdentityTest::cutsText()
{
    QFETCH(QByteArray, stored);
    QTEST(ata::identifyText(stored), "text");
}

void AtaIdentityTest::namesAttributes_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("index");
    const int rows[][2] = {{1, 156},   {12, 167},  {13, 187},  {190, 187},
                           {191, 168}, {209, 186}, {210, 187}, {255, 187}};
    for (const auto &row : rows)
        QTest::newRow(qPrintable(QString::number(row[0]))) << row[0] << row[1];
}

void AtaIdentityTest::namesAttributes()
{
    QFETCH(int, id);
    QTEST(ata::nameIndex(id), "index");
}

void AtaIdentityTest::ratesAttributes()
{
    DiskIdentity fine;
    ata::decodeAttributes(smartData().replace(2 + 29 * 12 + 3, 1, "\x05"), &fine);
    QCOMPARE(int(fine.nThresholdState), 1);
    DiskIdentity equal;
    ata::decodeAttributes(smartData(), &equal);
    QCOMPARE(int(equal.nThresholdState), 2);
    QCOMPARE(int(equal.attributes.tail->nState), 2);
}

void AtaIdentityTest::takesShortData()
{
    DiskIdentity identity;
    ata::decodeIdentify(identifyData().left(30), false, &identity);
    QCOMPARE(int(identity.nHeads), 16);
    QCOMPARE(identity.nTotalLba, 0u);
    QVERIFY(identity.szModel.isEmpty());
    ata::decodeAttributes(smartData().left(7), &identity);
    QCOMPARE(int(identity.nAttributeCount), 1);
    QCOMPARE(identity.attributes.head->nCurrent, 100u);
}

void AtaIdentityTest::readsDisk()
{
    FakePlatform *fake = FakePlatform::install();
    Drive drive;
    fake->disks[3].smart = [&drive](quint32 code, const QByteArray &in, QByteArray *out) {
        return drive.answer(code, in, out);
    };
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
    attribute = attribute->pNext->pNext->pNext;
    QCOMPARE(int(attribute->nAttrId), 199);
    QCOMPARE(int(attribute->nState), 2);
    QVERIFY(!attribute->pNext);

    QStringList asked;
    for (const io::SendCmdInParams &params : qAsConst(drive.asked))
        asked << textOf(params);
    QCOMPARE(asked, QStringList({"D8 1 1 4F C2 A0 B0 0 0 0", "0 1 1 0 0 A0 EC 0 512 0",
                                 "D0 1 1 4F C2 A0 B0 0 512 0"}));
    QCOMPARE(fake->openings,
             QVector<FakePlatform::Opening>({{QStringLiteral("\\\\.\\PHYSICALDRIVE3"), 0xC0000000u, 3, 3}}));
    QCOMPARE(fake->openHandles(), 0);
}

void AtaIdentityTest::readsSlaveDevice()
{
    FakePlatform *fake = FakePlatform::install();
    Drive drive;
    drive.map = 0x02;
    fake->disks[0].smart = [&drive](quint32 code, const QByteArray &in, QByteArray *out) {
        return drive.answer(code, in, out);
    };
    DiskIdentity identity;
    QVERIFY(ReadAtaIdentity(128, &identity));
    QCOMPARE(drive.asked.size(), 3);
    QCOMPARE(int(drive.asked.at(0).regs.driveHead), 0xB0);
    QCOMPARE(int(drive.asked.at(0).driveNumber), 1);
}

void AtaIdentityTest::readsPacketDevice()
{
    FakePlatform *fake = FakePlatform::install();
    Drive drive;
    drive.map = 0x11;
    fake->disks[0].smart = [&drive](quint32 code, const QByteArray &in, QByteArray *out) {
        return drive.answer(code, in, out);
    };
    DiskIdentity identity;
    QVERIFY(ReadAtaIdentity(128, &identity));
    QCOMPARE(drive.asked.size(), 1);
    QCOMPARE(int(drive.asked.at(0).regs.command), 0xA1);
    QCOMPARE(identity.szModel.text(), QStringLiteral("NORDWIND"));
    QCOMPARE(identity.nTotalLba, 0x12345678u);
    QCOMPARE(int(identity.nCylinders), 0);
    QCOMPARE(int(identity.bSmartEnabled), 0);
    QVERIFY(identity.attributes.isEmpty());
}

void AtaIdentityTest::leavesRecordEmpty_data()
{
    QTest::addColumn<bool>("opens");
    QTest::addColumn<bool>("empties");
    QTest::newRow("does not open") << false << false;
    QTest::newRow("refuses the codes") << true << false;
    QTest::newRow("answers with an empty map") << true << true;
}

void AtaIdentityTest::leavesRecordEmpty()
{
    QFETCH(bool, opens);
    QFETCH(bool, empties);
    FakePlatform *fake = FakePlatform::install();
    fake->disks[0].opens = opens;
    Drive drive;
    drive.map = 0;
    if (empties) {
        fake->disks[0].smart = [&drive](quint32 code, const QByteArray &in, QByteArray *out) {
            return drive.answer(code, in, out);
        };
    }
    DiskIdentity identity;
    QCOMPARE(ReadAtaIdentity(128, &identity), opens);
    QVERIFY(identity.szModel.isEmpty());
    QCOMPARE(int(identity.bSmartEnabled), 0);
    QVERIFY(identity.attributes.isEmpty());
    QCOMPARE(drive.asked.size(), 0);
    QCOMPARE(fake->openHandles(), 0);
}

QTEST_GUILESS_MAIN(AtaIdentityTest)
#include "tst_AtaIdentity.moc"
