// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/CloneTexts.h"
#include "state/DiskIdentityTexts.h"
#include "state/DriveTexts.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/JobNotices.h"
#include "state/Languages.h"
#include "state/PartitionTexts.h"
#include "state/Product.h"
#include "state/SettingsRules.h"
#include "state/SettingsStore.h"
#include "state/StartArgument.h"
#include "state/Startup.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

using Job = JobState::Job;
using namespace partitiontexts;

namespace
{

/// Disk 2; an identity that is empty is none.
DiskNode makeNode(DiskKind kind, const QString &identityModel = {}, const QString &identitySerial = {})
{
    DiskNode node;
    node.nId = 130;
    node.nKind = kind;
    node.pDetails = std::make_unique<DiskDetails>();
    node.pDetails->nTotalSectors = 7814037168ULL;
    node.pDetails->szCapacity = "3726.02 GB";
    node.pDetails->pIdentity = std::make_unique<DiskIdentity>();
    node.pDetails->pIdentity->szModel.assign(identityModel);
    node.pDetails->pIdentity->szSerial.assign(identitySerial);
    return node;
}

WmicDiskRecord makeRecord(const QString &model, const QString &smartModel, const QString &smartSerial)
{
    WmicDiskRecord record;
    record.szModel.assign(model);
    record.szInterface.assign("IDE");
    record.szSmartModel.assign(smartModel);
    record.szSmartSerial.assign(smartSerial);
    record.szSmartFirmware.assign("FW1");
    return record;
}

/// The fields, one behind the other; "-" for one that stays as it was.
QString joined(const DiskIdentityTexts &texts)
{
    QStringList fields{texts.diskNumber};
    for (const auto &field : {texts.model, texts.serial, texts.firmware, texts.sectors, texts.summary})
        fields << field.value_or("-");
    return fields.join('|');
}

} // namespace

/// What may be done in each state, the choice of a language, rules of the settings, and what is built in. The
/// texts of a disk in the combos, in the identity fields and on Clone Disk; those of volumes as far as the
/// test of their screen does not have them.
class tst_State : public QObject
{
    Q_OBJECT

private slots:
    void init() { FakePlatform::install(); }

    void cleanup()
    {
        g_bJobRunning = g_bSelfTestRunning = g_bListsLoading = g_bScanStarted = g_bAbortJob = false;
        JobState().closeResults();
        g_App.m_diskList.clear();
        g_wmicDisks.clear();
    }

    void answers()
    {
        const auto allowed = [this](const std::function<void(JobState &)> &make) {
            JobState jobs;
            make(jobs);
            const QString words = QString(jobs.mayStart() ? "start " : "") +
                                  (jobs.mayClose() ? "close " : "") + (jobs.mayQuit() ? "quit " : "") +
                                  (jobs.isIdle() ? "idle " : "") + (jobs.mayLeave() ? "leave" : "");
            cleanup();
            return words.trimmed();
        };
        using Jobs = JobState;
        QCOMPARE(allowed([](Jobs &) {}), QString("start close quit idle leave"));
        QCOMPARE(allowed([](Jobs &) { g_bListsLoading = true; }), QString("close quit idle leave"));
        QCOMPARE(allowed([](Jobs &jobs) { jobs.planScan(); }), QString("start close quit leave"));
        QCOMPARE(allowed([](Jobs &jobs) { jobs.begin(Job::Scan); }), QString("leave"));
        QCOMPARE(allowed([](Jobs &jobs) { jobs.begin(Job::Clone); }), QString());
        QCOMPARE(allowed([](Jobs &jobs) { jobs.begin(Job::SelfTest); }), QString("start quit leave"));
        QCOMPARE(allowed([](Jobs &) { g_bJobRunning = true; }), QString("start leave"));
        for (const Job job : {Job::Scan, Job::SelfTest})
            QCOMPARE(allowed([job](Jobs &jobs) { jobs.openResult(job); }), QString("start close quit idle"));
    }

    /// The user is told once: by the window, or by the desktop.
    void notices()
    {
        QCOMPARE(jobnotices::windowTitle("V", 42), QString("42 % - V"));
        QCOMPARE(jobnotices::windowTitle("V", std::nullopt), QString("V"));
        // What is said of scan, clone and self-test.
        const QStringList results{"well", "with faults", "failed", "stopped"};
        compareRows("State/notices", [&results](const QString &row) {
            const auto result = JobEnd::Result(results.indexOf(row.section(", ", 0, 0)));
            QStringList texts;
            for (const Job job : {Job::Scan, Job::Clone, Job::SelfTest}) {
                const auto notice = jobnotices::notice({job, result, "why"}, row.endsWith("in front"));
                texts << (notice ? notice->title + '|' + notice->text : "-");
            }
            return texts.join(", ");
        });
    }

    void stopEndsWhenTheThreadDoes()
    {
        JobState jobs;
        jobs.begin(Job::Scan);
        g_bJobRunning = true;
        jobs.stop();
        QVERIFY(g_bAbortJob && !g_bJobRunning);
        QVERIFY(jobs.runs(Job::Scan) && !jobs.mayStart() && !jobs.mayQuit());
        jobs.end(Job::Scan);
        QVERIFY(jobs.mayStart() && jobs.mayClose());
        jobs.begin(Job::Clone);
        QVERIFY(!g_bAbortJob && jobs.runs(Job::Clone) && !jobs.runs(Job::Scan));
    }

    void folders()
    {
        g_strApplicationFolder = "C:/app";
        const languages::Language &dutch = languages::table[8];
        g_App.m_bKorvaneBrand = true;
        QCOMPARE(languages::translationFolder(dutch), QString("C:/app\\QRXTranslation\\Korvane\\DU"));
        g_App.m_bKorvaneBrand = false;
        QCOMPARE(languages::translationFolder(dutch), QString("C:/app\\QRXTranslation\\DU"));
        // Missing files leave English.
        languages::setFlag(1);
        languages::loadAtStart();
        QVERIFY(g_strTranslationFolder.endsWith("DE")); // the selected one is loaded last
        QCOMPARE(QCoreApplication::translate("MainWindow", "Passed"), QString("Passed"));
    }

    void changeIsKept()
    {
        g_App.m_strSettingsPath = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Own";
        g_App.m_strSiblingKey2 = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Sibling";
        const auto stored = [](const QString &path) {
            return Platform::current().OpenSettings(path)->value(QLatin1String(key::LanguageType.name));
        };
        g_App.m_bWriteSiblingLanguage = true;
        for (const int type : {7, 7, 10}) {
            languages::change(LanguageType(type));
            QCOMPARE(languages::current().type, LanguageType(type));
            for (const QString &path : {g_App.m_strSettingsPath, g_App.m_strSiblingKey2})
                QCOMPARE(stored(path), QVariant(QString::number(type)));
        }
        g_App.m_bWriteSiblingLanguage = false;
        languages::change(LanguageType::German);
        QCOMPARE(stored(g_App.m_strSiblingKey2), QVariant("10"));
        // Another program has changed it; what makes no sense changes nothing.
        for (const char *type : {"5", "77"}) {
            SettingsStore().write(key::LanguageType, QLatin1String(type));
            languages::follow();
            QCOMPARE(languages::current().type, LanguageType::Japanese);
        }
        g_App.m_strSiblingKey2.clear();
        languages::setFlag(11);
        QCOMPARE(languages::current().type, LanguageType::English);
    }

    void settings()
    {
        using namespace settings;
        // The thresholds that become of those shown before, and their lowest values.
        compareRows("State/limits", [](const QString &row) {
            const QVector<qint64> shown = numbersOf(row);
            const int unit = row.startsWith('F') ? Fahrenheit : Celsius;
            const AlarmLimits found = limitsForUnit(unit, int(shown[1]), int(shown[2]));
            return joined(found.warning, found.shutDown, found.lowestWarning, found.lowestShutDown);
        });
        compareRows("State/logPaths", defaultLogPath);
        compareRows("State/logFolders", logFolderOf);
    }

    /// The program knows what the installer writes, and looks for it where the installer does.
    void programAndInstallerAgree()
    {
        const QByteArray content = contentOf(HALVANE_SOURCE_DIR "/packaging/product/velmora.json");
        const QJsonObject brand = QJsonDocument::fromJson(content).object();
        const QJsonObject settings = brand["settings"].toObject();
        QVERIFY(settings.size() > 40);
        for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
            QString text = setting->toVariant().toString();
            QCOMPARE(product::text(setting.key()),
                     text.replace("@VERSION@", QLatin1String(product::Version)));
        }
        QCOMPARE(product::number("AverageUpdateSize"), settings["AverageUpdateSize"].toInt());
        QCOMPARE(product::text("LanguageType"), QString());

        startup::readSettings();
        QCOMPARE(g_App.m_strSettingsPath,
                 "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\" + brand["settingsKey"].toString());
        QCOMPARE(g_App.m_bKorvaneBrand, brand["secondBrand"].toBool());
    }

    /// Of the kind, the two texts of the drive's identity, and the record: its model and those of its report.
    void comboTexts()
    {
        compareRows("State/combos", [](const QString &row) {
            const QStringList known = row.split(',') + QStringList{"", "", ""};
            const DiskNode node =
                makeNode(known[0] == "fixed" ? FixedDisk : RemovableDisk, known[1], known[2]);
            const WmicDiskRecord record = makeRecord(known[3], known[4], known[5]);
            const bool isListed = row.count(',') == 5;
            const auto texts = drivetexts::comboTexts(node, isListed ? &record : nullptr, "1.82 TB");
            return texts.drive + " / " + texts.source;
        });
    }

    /// Of the kind, whether the table knows the disk, whether the report told, or after a change of language.
    void identity()
    {
        const WmicDiskRecord record = makeRecord("Table Model ", "Report Model", "SER1");
        const ReportIdentity told{" Live ", "LS ", " LF", true};
        compareRows("State/identity", [&](const QString &row) {
            DiskNode node = makeNode(row.startsWith("fixed") ? FixedDisk : RemovableDisk, "Id", "IdS");
            drivetexts::fillDisplayFields(node);
            const WmicDiskRecord *known = row.contains("known") ? &record : nullptr;
            const ReportIdentity report = row.contains("told") ? told : ReportIdentity();
            return node.szDisplay + ' ' +
                   joined(row.contains("translated") ? identityTextsAfterLanguageChange(&node, known, 2)
                                                     : identityTextsAfterRead(&node, known, 2, report));
        });
        QCOMPARE(joined(identityTextsAfterRead(nullptr, &record, -128, {})), QString("-128|-|-|-|-|-"));
    }

    void cloneDetails()
    {
        const auto shown = [](const DiskNode &node, const WmicDiskRecord *record) {
            const clonetexts::Details t = clonetexts::details(node, record);
            return QString(t.diskNumber + '|' + t.model + '|' + t.serial + '|' + t.firmware + '|' +
                           t.interfaceType + '|' + t.capacity + '|' + t.sectors);
        };
        DiskNode node = makeNode(FixedDisk);
        drivetexts::fillDisplayFields(node);
        const WmicDiskRecord record = makeRecord("bus name", "Norvik NX500", "  NK2041X773");
        QCOMPARE(shown(node, &record),
                 QString("Disk Number \t: 2|Model Number\t: Norvik NX500|Serial: NK2041X773|"
                         "Firmware Revision : FW1|Interface Type\t   : IDE|Capacity\t: 3726.02 GB|"
                         "Total Sector\t   : 7814037168"));
        QCOMPARE(shown(DiskNode(), nullptr).count(": Not Available"), 5);
        QVERIFY(shown(DiskNode(), nullptr).contains("|Interface Type\t   : ATA Disk|"));
    }

    void cloneNeverOffersTheSource()
    {
        addNode(128, FixedDisk);
        addNode(131, FixedDisk);
        addNode(129, RemovableDisk);
        addNode(2, VolumeNode);
        addNode(300, LinuxPartition);
        const auto offered = [](int source) {
            QList<int> found;
            for (const clonetexts::Destination &disk : clonetexts::destinations(g_App.m_diskList, source))
                found.append(disk.diskId);
            return found;
        };
        QCOMPARE(offered(128), (QList<int>{131, 129}));
        QCOMPARE(offered(129), (QList<int>{128, 131}));
        QCOMPARE(offered(0), (QList<int>{128, 131, 129}));
    }

    void tellsTwinsApart()
    {
        for (int id : {128, 129, 130, 131})
            addNode(id, FixedDisk);
        for (quint32 id : {129, 130, 131})
            g_wmicDisks.append(makeRecord("", "Twin", id == 130 ? "S2" : "S1")).nDiskId = id;
        const auto disks = clonetexts::destinations(g_App.m_diskList, 131);
        QCOMPARE(disks.size(), std::size_t{3});
        // The number stays even if the other disk of that model is the source and not in the list.
        QCOMPARE(disks[1].text, QString("Twin | S1 | 1.82 TB | Disk Drive 1"));
        QCOMPARE(disks[2].text, QString("Twin | S2 | 1.82 TB"));
        const auto entries = drivetexts::entries(g_App.m_diskList);
        QCOMPARE(entries[2].texts.source, disks[2].text);
        QCOMPARE(entries[0].texts.source, QString("Disk Drive 0"));
    }

    void cloneArgument()
    {
        using namespace startargument;
        QVERIFY(!asksForClone("Schedular") && asksForClone("CloneDisk"));
        QVERIFY(!cloneDiskText("CloneDisk") && !cloneDiskText("x####y"));
        // Empty parts are skipped.
        QCOMPARE(cloneDiskText("####CloneDisk########M1|S1|3726.02GB"), QStringLiteral("M1|S1|3726.02GB"));
        QVERIFY(matchesDisk("M1 | S1 | 3726.02 GB", "m1|s1|3726.02gb"));
    }

    void sizesGoByLetter()
    {
        RecordList<LogicalDiskRecord> list;
        for (const auto &[caption, size] : {std::pair("", 7), {"D:", 20}, {"C:", 10}, {"D:", 21}}) {
            LogicalDiskRecord &volume = list.append();
            volume.szCaption.assign(caption);
            volume.nSizeBytes = size;
        }
        QCOMPARE(driveLetters("Drive: "), QStringList());
        QCOMPARE(volumeSizes(driveLetters("Drive: C: X: D: "), list), (QList<qint64>{10, 20}));
    }

    void disksOfVolumes()
    {
        RecordList<DiskNode> nodes;
        DiskNode &disk = nodes.append();
        disk.nId = 131;
        disk.pDetails = std::make_unique<DiskDetails>();
        disk.pDetails->szDrives = "Drive: C: D: ";
        DiskNode &d = nodes.append();
        d.nKind = RawVolume;
        d.pLogical = std::make_unique<LogicalDetails>();
        d.pLogical->nLetter = 3;
        QCOMPARE(disksOfVolume("D:", nodes), QVector<int>{3});
        d.pLogical->disks = {1, 2};
        QCOMPARE(disksOfVolume("D:", nodes), (QVector<int>{1, 2}));
        QCOMPARE(disksOfVolume("C:", nodes), QVector<int>{3});
        QCOMPARE(disksOfVolume("E:", nodes), QVector<int>());
    }

    void healthOfVolumes()
    {
        RecordList<WmicDiskRecord> list;
        for (const auto &[index, status] :
             {std::pair(0u, "OK"), {1u, "Error"}, {1u, "OK"}, {4u, "OK"}, {0u, ""}}) {
            WmicDiskRecord &record = list.append();
            record.nIndex = index;
            record.szStatus.assign(status);
        }
        QCOMPARE(healthWord({1, 4}, list), QString("Healthy"));
        QCOMPARE(healthWord({1, 0}, list), QString("Not Healthy")); // the last line counts
        for (const QVector<int> &unknown : {QVector<int>{3}, QVector<int>{}})
            QCOMPARE(healthWord(unknown, list), QString("Not Healthy"));
    }

    void spaceOfVolumes()
    {
        // Of free bytes and size.
        compareRows("State/percents", [](const QString &row) {
            LogicalDiskRecord volume;
            volume.nFreeBytes = numbersOf(row)[0];
            volume.nSizeBytes = numbersOf(row)[1];
            return percentText(volume);
        });
        // A tie goes to the even digit, each unit rounds what the last one left, and the last unit stays.
        compareRows("State/sizes", [](const QString &bytes) {
            return sizeText(bytes.toLongLong(), UnitsOfFree) + " of " +
                   sizeText(bytes.toLongLong(), UnitsOfTotal);
        });
        constexpr qint64 Giga = 1 << 30;
        QCOMPARE(ringText({6 * Giga, 2 * Giga}), QString("2 volumes: 6 GB (75 %), 2 GB (25 %)"));
        QCOMPARE(ringText({}), QString("No Partition Found"));
    }

private:
    static void addNode(int id, DiskKind kind)
    {
        DiskNode &node = g_App.m_diskList.append();
        node.nId = static_cast<quint16>(id);
        node.nKind = kind;
        node.szSize.assign("1.82 TB");
    }
};

QTEST_GUILESS_MAIN(tst_State)
#include "tst_State.moc"
