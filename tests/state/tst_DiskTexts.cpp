// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/DiskIdentityTexts.h"
#include "state/DriveTexts.h"
#include "state/FixedText.h"
#include "state/StartArgument.h"

#include <QtTest>

/// The texts of a disk in the combos and the identity fields.
class tst_DiskTexts : public QObject
{
    Q_OBJECT

private slots:
    void comboTexts_data();
    void comboTexts();
    void identityAfterRead_data();
    void identityAfterRead();
    void identityAfterLanguageChange();
    void nothingSelected();
    void fieldsAreCutAtCharacters();
    void cloneArgument_data();
    void cloneArgument();

private:
    static DiskNode makeNode(bool removable);
    static WmicDiskRecord makeRecord();
};

DiskNode tst_DiskTexts::makeNode(bool removable)
{
    DiskNode node;
    node.nId = 130;
    node.nKind = removable ? RemovableDisk : FixedDisk;
    node.pDetails = std::make_unique<DiskDetails>();
    node.pDetails->nTotalSectors = 7814037168ULL;
    node.pDetails->szCapacity = QStringLiteral("3726.02 GB");
    return node;
}

WmicDiskRecord tst_DiskTexts::makeRecord()
{
    WmicDiskRecord record;
    record.szModel.assign(QStringLiteral("Table Model "));
    record.szInterface.assign(QStringLiteral("IDE"));
    record.szSmartModel.assign(QStringLiteral("Report Model"));
    record.szSmartSerial.assign(QStringLiteral("SER1"));
    record.szSmartFirmware.assign(QStringLiteral("FW1"));
    return record;
}

void tst_DiskTexts::comboTexts_data()
{
    QTest::addColumn<bool>("removable");
    QTest::addColumn<bool>("hasRecord");
    QTest::addColumn<QString>("tableModel");
    QTest::addColumn<QString>("reportModel");
    QTest::addColumn<QString>("reportSerial");
    QTest::addColumn<QString>("identityModel");
    QTest::addColumn<QString>("identitySerial");
    QTest::addColumn<QString>("drive");
    QTest::addColumn<QString>("source");

    QTest::newRow("fixed") << false << true << "T "
                           << "M 1"
                           << "S1"
                           << "Id"
                           << "IdS"
                           << "M 1 | S1 | 3726.02 GB"
                           << "M 1";
    QTest::newRow("fixed without serial") << false << true << "T "
                                          << "M"
                                          << ""
                                          << ""
                                          << ""
                                          << "M |  | 3726.02 GB"
                                          << "M";
    QTest::newRow("fixed without report model") << false << true << "T "
                                                << ""
                                                << "S1"
                                                << "Id"
                                                << "IdS"
                                                << "Id"
                                                << "Id";
    QTest::newRow("fixed with identity serial only") << false << true << "T"
                                                     << ""
                                                     << ""
                                                     << ""
                                                     << "IdS"
                                                     << "IdS"
                                                     << "IdS";
    QTest::newRow("fixed with nothing") << false << true << "T"
                                        << ""
                                        << ""
                                        << ""
                                        << ""
                                        << "Disk Drive 2"
                                        << "Disk Drive 2";
    QTest::newRow("fixed without record") << false << false << ""
                                          << ""
                                          << ""
                                          << ""
                                          << ""
                                          << "Disk Drive 2"
                                          << "Disk Drive 2";
    QTest::newRow("removable") << true << true << "Stick "
                               << "M"
                               << "S9"
                               << ""
                               << ""
                               << "Stick  S9"
                               << "Stick  S9";
    QTest::newRow("removable with blanks only") << true << true << ""
                                                << ""
                                                << ""
                                                << ""
                                                << ""
                                                << "Disk Drive 2"
                                                << "Disk Drive 2";
    QTest::newRow("removable without record") << true << false << ""
                                              << ""
                                              << ""
                                              << ""
                                              << ""
                                              << "Disk Drive 2"
                                              << "Disk Drive 2";
}

void tst_DiskTexts::comboTexts()
{
    QFETCH(bool, removable);
    QFETCH(bool, hasRecord);
    QFETCH(QString, tableModel);
    QFETCH(QString, reportModel);
    QFETCH(QString, reportSerial);
    QFETCH(QString, identityModel);
    QFETCH(QString, identitySerial);
    DiskNode node = makeNode(removable);
    if (!removable) {
        node.pDetails->pIdentity = std::make_unique<DiskIdentity>();
        node.pDetails->pIdentity->szModel.assign(identityModel);
        node.pDetails->pIdentity->szSerial.assign(identitySerial);
    }
    WmicDiskRecord record;
    record.szModel.assign(tableModel);
    record.szSmartModel.assign(reportModel);
    record.szSmartSerial.assign(reportSerial);
    drivetexts::fillDisplayFields(node);
    const auto texts = drivetexts::comboTexts(node, hasRecord ? &record : nullptr, node.szSize.text());
    QTEST(texts.drive, "drive");
    QTEST(texts.source, "source");
    QCOMPARE(node.szDisplay, removable
                                 ? QStringLiteral("Removable Drive")
                                 : identityModel + QLatin1String(" (") + identitySerial + QLatin1Char(')'));
}

void tst_DiskTexts::identityAfterRead_data()
{
    QTest::addColumn<bool>("removable");
    QTest::addColumn<bool>("hasRecord");
    QTest::addColumn<bool>("available");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("serial");
    QTest::addColumn<QString>("firmware"); // "-": stays as it was
    QTest::newRow("fixed") << false << true << true << "Live"
                           << "LS"
                           << "LF";
    QTest::newRow("fixed without a report") << false << true << false << "Live"
                                            << "LS"
                                            << "LF";
    QTest::newRow("fixed without record") << false << false << true << "Live"
                                          << "LS"
                                          << "LF";
    QTest::newRow("removable with SMART") << true << true << true << "Report Model"
                                          << "Table Model "
                                          << "-";
    QTest::newRow("removable without SMART") << true << true << false << "Report Model"
                                             << "Table Model "
                                             << "Not Available";
    QTest::newRow("removable without record") << true << false << false << "Not Available"
                                              << "-"
                                              << "Not Available";
}

void tst_DiskTexts::identityAfterRead()
{
    QFETCH(bool, removable);
    QFETCH(bool, hasRecord);
    QFETCH(bool, available);
    DiskNode node = makeNode(removable);
    drivetexts::fillDisplayFields(node);
    const WmicDiskRecord record = makeRecord();
    const auto texts = identityTextsAfterRead(
        &node, hasRecord ? &record : nullptr, 2,
        {QStringLiteral(" Live "), QStringLiteral("LS "), QStringLiteral(" LF"), available});
    const QString stays = QStringLiteral("-");
    QTEST(texts.model.value_or(stays), "model");
    QTEST(texts.serial.value_or(stays), "serial");
    QTEST(texts.firmware.value_or(stays), "firmware");
    if (hasRecord && !removable) {
        const auto silent = identityTextsAfterRead(&node, &record, 2, {});
        QCOMPARE(silent.model.value(), QStringLiteral("Report Model"));
        QCOMPARE(silent.serial.value(), QStringLiteral("SER1"));
    }
    QCOMPARE(texts.diskNumber, QStringLiteral("2"));
    QCOMPARE(texts.sectors.value_or(stays), QStringLiteral("7814037168"));
    QCOMPARE(texts.summary.value_or(stays), hasRecord ? QStringLiteral("SER1 ( IDE  3726.02 GB )") : stays);
}

void tst_DiskTexts::identityAfterLanguageChange()
{
    const WmicDiskRecord record = makeRecord();
    const DiskNode fixed = makeNode(false);
    const auto texts = identityTextsAfterLanguageChange(&fixed, &record, 2);
    QCOMPARE(texts.serial.value(), QStringLiteral("SER1"));
    QCOMPARE(texts.firmware.value(), QStringLiteral("FW1"));
    QCOMPARE(texts.model.value(), QStringLiteral("Report Model"));

    const DiskNode removable = makeNode(true);
    const auto removableTexts = identityTextsAfterLanguageChange(&removable, &record, 2);
    QCOMPARE(removableTexts.serial.value(), QStringLiteral("Table Model "));
    QCOMPARE(removableTexts.firmware.value(), QString());
}

void tst_DiskTexts::nothingSelected()
{
    const auto texts = identityTextsAfterRead(nullptr, nullptr, -128, {});
    QVERIFY(!texts.model && !texts.serial && !texts.firmware && !texts.sectors && !texts.summary);
}

void tst_DiskTexts::fieldsAreCutAtCharacters()
{
    FixedText<5> field;
    field.assign(QStringLiteral("abcdef"));
    QCOMPARE(field.text(), QStringLiteral("abcd"));
    field.assign(QStringLiteral("abc\u2019d")); // the apostrophe takes three bytes and does not fit
    QCOMPARE(field.text(), QStringLiteral("abc"));
    field.assign(QString());
    QVERIFY(field.isEmpty());
}

void tst_DiskTexts::cloneArgument_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<bool>("asks");
    QTest::addColumn<QString>("disk"); // "-": none
    QTest::newRow("none") << "" << false << "-";
    QTest::newRow("another word") << "Schedular" << false << "-";
    QTest::newRow("without disk") << "CloneDisk" << true << "-";
    QTest::newRow("with disk") << "CloneDisk####M1|S1|3726.02GB" << true << "M1|S1|3726.02GB";
    QTest::newRow("empty parts are skipped") << "####CloneDisk########m1" << true << "m1";
    QTest::newRow("disk without the word") << "x####y" << false << "-";
}

void tst_DiskTexts::cloneArgument()
{
    QFETCH(QString, argument);
    QFETCH(bool, asks);
    QFETCH(QString, disk);
    QCOMPARE(startargument::asksForClone(argument), asks);
    QCOMPARE(startargument::cloneDiskText(argument).value_or(QStringLiteral("-")), disk);
    QVERIFY(startargument::matchesDisk(QStringLiteral("M1 | S1 | 3726.02 GB"),
                                       QStringLiteral("m1|s1|3726.02gb")));
}

QTEST_APPLESS_MAIN(tst_DiskTexts)
#include "tst_DiskTexts.moc"
