// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "tests/platform/DescribedFolder.h"

#include <QtTest>

namespace
{

const QByteArray Described = R"({
  "disks": [{"number": 0, "sectors": 4096, "report": "r.txt"}, {"number": 4, "sectors": 4096, "report": "r.txt"},
            {"number": 5, "sectors": 4096, "present": false}],
  "volumes": [
    {"letter": "C", "label": "c", "size": 512, "extents": [{"disk": 0, "length": 512}]},
    {"letter": "L", "label": "l", "size": 512, "extents": [{"disk": 4, "length": 512}]},
    {"letter": "N", "label": "n", "size": 512, "extents": [{"disk": 4, "offset": 512, "length": 512}],
     "present": false},
    {"letter": "P", "label": "p", "size": 512, "extents": [{"disk": 5, "length": 512}]},
    {"letter": "S", "label": "s", "size": 512, "extents": [{"disk": 0, "offset": 512, "length": 512},
                                                            {"disk": 4, "offset": 1024, "length": 512}]}],
  "partitions": [{"name": "Disk #0, Partition #0", "disk": 0}, {"name": "Disk #4, Partition #0", "disk": 4}]})";

} // namespace

/// Volumes and disks that files in the state folder plug in and pull out.
class TestPlugging : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void touches_data();
    void touches();
    void absentVolumeIsNowhere();
    void absentDiskIsNowhere();
    void openHandlesFail_data();
    void openHandlesFail();

private:
    /// Makes the files and waits until the PC has removed them.
    void touch(const QStringList &names);
    QString letters() const;
    bool opens(const QString &name) const;

    std::unique_ptr<DescribedFolder> m_folder;
    std::unique_ptr<SimulatedPlatform> m_pc;
};

void TestPlugging::init()
{
    m_pc.reset();
    m_folder = std::make_unique<DescribedFolder>();
    m_folder->add(QStringLiteral("r.txt"), "a report\n");
    m_pc = m_folder->open(Described);
    m_pc->deviceNotifier();
}

void TestPlugging::touch(const QStringList &names)
{
    const QString place = m_folder->state() + QStringLiteral("/volumes-changed/");
    for (const QString &name : names) {
        QFile file(place + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    for (const QString &name : names)
        QTRY_VERIFY(!QFileInfo::exists(place + name));
}

QString TestPlugging::letters() const
{
    QString found;
    for (const QString &root : m_pc->GetLogicalDriveStringsW())
        found += root.at(0);
    return found;
}

bool TestPlugging::opens(const QString &name) const
{
    const auto handle = m_pc->CreateFileW(name, io::GenericRead, 7, io::OpenExisting);
    m_pc->CloseHandle(handle);
    return handle != Platform::InvalidHandle;
}

void TestPlugging::touches_data()
{
    QTest::addColumn<QStringList>("steps"); // the files of one step have blanks between them
    QTest::addColumn<QString>("notices");   // + arrival, - removal
    QTest::addColumn<QString>("letters");
    const auto row = [](const char *steps, const char *notices, const char *letters) {
        const QString text = QLatin1String(steps);
        QTest::newRow(steps) << (text.isEmpty() ? QStringList() : text.split(QLatin1Char(';')))
                             << QString::fromLatin1(notices) << QString::fromLatin1(letters);
    };
    row("", "", "CLS");
    row("remove", "-", "CLS");
    row("arrive", "+", "CLS");
    row("remove-L", "-", "CS");
    row("remove-l;remove-L", "-", "CS");
    row("remove-L;arrive-l", "-+", "CLS");
    row("arrive-N", "+", "CLNS");
    row("arrive-C", "", "CLS");
    row("remove-X", "", "CLS");
    row("remove-disk4", "--", "C");
    row("remove-disk4;arrive-disk4", "--++", "CLS");
    row("remove-L;remove-disk4;arrive-disk4", "--+", "CS");
    row("remove-disk4;arrive-L", "--", "C");
    row("remove-disk4;arrive-N;arrive-disk4", "--+++", "CLNS");
    row("arrive-disk5", "+", "CLPS");
    row("remove-disk99", "", "CLS");
    row("arrive-disk4 remove-disk4", "--++", "CLS");
}

void TestPlugging::touches()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, notices);
    QFETCH(QString, letters);
    QString heard;
    connect(m_pc->deviceNotifier(), &DeviceNotifier::deviceChange, this, [&](quint32 event, quint32 type) {
        QCOMPARE(type, 2u);
        heard += QLatin1Char(event == 0x8000 ? '+' : event == 0x8004 ? '-' : '?');
    });
    for (const QString &step : steps)
        touch(step.split(QLatin1Char(' ')));
    QCoreApplication::processEvents();
    QCOMPARE(heard, notices);
    QCOMPARE(this->letters(), letters);
}

void TestPlugging::absentVolumeIsNowhere()
{
    const QString root = QStringLiteral("L:\\");
    QVERIFY(opens(QStringLiteral("\\\\.\\L:")));
    touch({QStringLiteral("remove-L")});
    QString label;
    quint64 size = 0;
    QVERIFY(!m_pc->GetVolumeInformationW(root, &label, nullptr));
    QVERIFY(!m_pc->GetDiskFreeSpaceExW(root, &size, nullptr));
    QCOMPARE(m_pc->GetDriveTypeW(root), quint32(io::DriveNoRootDir));
    QVERIFY(!opens(QStringLiteral("\\\\.\\L:")));
    QVERIFY(opens(QStringLiteral("\\\\.\\PHYSICALDRIVE4")));
    touch({QStringLiteral("arrive-L")});
    QVERIFY(m_pc->GetVolumeInformationW(root, &label, nullptr));
    QCOMPARE(label, QStringLiteral("l"));
    QVERIFY(opens(QStringLiteral("\\\\.\\L:")));
}

void TestPlugging::absentDiskIsNowhere()
{
    const auto table = [this](const char *what) {
        const QString text = QString::fromUtf16(reinterpret_cast<const char16_t *>(
            outputOf(*m_pc, QLatin1String(what)).append(2, '\0').constData()));
        return text.count(QLatin1Char('\n'));
    };
    const auto report = [this] { return outputOf(*m_pc, QStringLiteral("smartctl -a /dev/sde")); };
    const int disks = table("WMIC diskdrive get Index");
    const int volumes = table("WMIC logicaldisk get Caption");
    const int partitions = table("WMIC partition get DiskIndex");
    QCOMPARE(report(), QByteArray("a report\n"));
    touch({QStringLiteral("remove-disk4")});
    QVERIFY(!opens(QStringLiteral("\\\\.\\PHYSICALDRIVE4")));
    QVERIFY(!opens(QStringLiteral("\\\\.\\L:")));
    QVERIFY(!opens(QStringLiteral("\\\\.\\S:")));
    QVERIFY(opens(QStringLiteral("\\\\.\\PHYSICALDRIVE0")));
    QCOMPARE(table("WMIC diskdrive get Index"), disks - 1);
    QCOMPARE(table("WMIC logicaldisk get Caption"), volumes - 2);
    QCOMPARE(table("WMIC partition get DiskIndex"), partitions - 1);
    QVERIFY(report().contains("/dev/sde failed: No such file or directory"));
    touch({QStringLiteral("arrive-disk4")});
    QVERIFY(opens(QStringLiteral("\\\\.\\PHYSICALDRIVE4")));
    QCOMPARE(table("WMIC diskdrive get Index"), disks);
    QCOMPARE(report(), QByteArray("a report\n"));
}

void TestPlugging::openHandlesFail_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("touched");
    QTest::addColumn<bool>("fails");
    const QString disk = QStringLiteral("\\\\.\\PHYSICALDRIVE4");
    const QString volume = QStringLiteral("\\\\.\\L:");
    QTest::newRow("disk") << disk << "remove-disk4" << true;
    QTest::newRow("volume of the disk") << volume << "remove-disk4" << true;
    QTest::newRow("volume") << volume << "remove-L" << true;
    QTest::newRow("disk of the volume") << disk << "remove-L" << false;
}

void TestPlugging::openHandlesFail()
{
    QFETCH(QString, device);
    QFETCH(QString, touched);
    QFETCH(bool, fails);
    const auto handle = m_pc->CreateFileW(device, io::GenericRead | io::GenericWrite, 7, io::OpenExisting);
    QByteArray sector(512, 'x');
    quint32 moved = 0;
    const auto transfers = [&] {
        QByteArray geometry(64, '\0');
        return QVector<bool>{
            m_pc->SetFilePointer(handle, 0) && m_pc->WriteFile(handle, sector.data(), 512, &moved),
            m_pc->SetFilePointer(handle, 0) && m_pc->ReadFile(handle, sector.data(), 512, &moved),
            m_pc->DeviceIoControl(handle, io::DiskGetDriveGeometryEx, nullptr, 0, geometry.data(), 64,
                                  &moved)};
    };
    QCOMPARE(transfers(), QVector<bool>(3, true));
    touch({touched});
    QCOMPARE(transfers(), QVector<bool>(3, !fails));
    QCOMPARE(m_pc->IsGone(handle), fails);
    m_pc->CloseHandle(handle);
}

QTEST_GUILESS_MAIN(TestPlugging)
#include "tst_Plugging.moc"
