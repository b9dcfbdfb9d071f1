// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxDisks.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/platform/LoopDevice.h"
#include "tests/platform/RawDisk.h"
#include "tests/support/LinuxPlaces.h"

#include <QStorageInfo>

/// The partition tool on loop devices of the test's own. Skipped if there are none.
class tst_LinuxDiskpart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_ownMounts = keepMountsToOurselves(); }

    void init()
    {
        m_pc.reset();
        m_loops.clear();
        m_folder.reset(new QTemporaryDir);
        QStringList nodes;
        for (int number = 0; number < 3; ++number) {
            QVERIFY(writeFile(path(number), QByteArray(ImageBytes, 'o')));
            m_loops.push_back(std::make_unique<LoopDevice>(path(number)));
            nodes << m_loops.back()->node();
        }
        if (nodes.contains(QString()))
            return;
        qputenv("HALVANE_DISKS", nodes.join(QLatin1Char(':')).toUtf8());
        m_pc = linuxPcIn(m_home.path());
    }

    void systemPlaces()
    {
        const auto bearsSystem = [](const QByteArray &places) {
            return linuxdisks::bearsSystem(linuxdisks::mountPoints(
                R"({"blockdevices":[{"path":"/dev/x","mountpoints":[null],"children":[{"path":"/dev/x1",)"
                R"("mountpoints":[null],"children":[{"path":"/dev/mapper/y","mountpoints":[)" +
                places + "]}]}]}]}"));
        };
        for (const char *places : {R"("/")", R"(null,"[SWAP]")", R"("/boot/efi")", R"("/media/a","/usr")"})
            QVERIFY2(bearsSystem(places), places);
        for (const char *places : {R"("/media/stick")", R"("/variety")", "null"})
            QVERIFY2(!bearsSystem(places), places);
    }

    void machineIsProtected()
    {
        const QString root = QString::fromLocal8Bit(QStorageInfo::root().device());
        if (!root.startsWith(QLatin1String("/dev/")) || !QFile::exists(root))
            QSKIP("the root of this machine is on no disk of its own");
        QVERIFY(linuxdisks::isProtected(root));
        QVERIFY(linuxdisks::isProtected("/dev/no-such-disk"));
    }

    void partitionsOneDiskOnly()
    {
        if (!m_pc)
            QSKIP("no loop devices here");
        const QString node = m_loops[1]->node();
        QVERIFY(runs("sfdisk", {"-q", node}, nullptr, "label: gpt\nsize=2MiB\nsize=2MiB\n"));
        QVERIFY(m_loops[1]->showPartitions());
        const QByteArray before = image(1);

        QVERIFY(run("SELECT DISK 1\nonline disk\nEXIT").contains("This disk is already online."));
        QVERIFY(run("SELECT DISK 1\nconvert MBR\nEXIT").contains("The disk is not empty."));
        QVERIFY(run("SELECT DISK 3\nclean\nEXIT").contains("There is no disk selected."));
        QVERIFY(run("SELECT DISK 1\nclean\n").contains("Reached the end of the file."));
        QVERIFY(image(1) == before);

        const QByteArray cleaned = run("SELECT DISK 1\nclean\nEXIT");
        QVERIFY2(cleaned.contains("DiskPart succeeded in cleaning the disk."), cleaned.constData());
        QByteArray signatures;
        QVERIFY(runs("wipefs", {node}, &signatures));
        QCOMPARE(signatures, QByteArray());
        QVERIFY(!QFile::exists(m_loops[1]->partition(1)));

        const QByteArray made = run("SELECT DISK 1\nconvert MBR\ncreate partition primary\nEXIT");
        QVERIFY2(made.contains("succeeded in creating the specified partition."), made.constData());
        QByteArray table;
        QVERIFY(runs("sfdisk", {"--dump", node}, &table));
        QCOMPARE(table.count("start="), 1);
        QVERIFY2(table.contains("start=        2048, size=       14336, type=7"), table.constData());
        QVERIFY(run("SELECT DISK 1\nRESCAN\nEXIT").contains("DiskPart has finished scanning"));
        QVERIFY(QFile::exists(m_loops[1]->partition(1)));
        QVERIFY(image(0) == QByteArray(ImageBytes, 'o'));
        QVERIFY(image(2) == QByteArray(ImageBytes, 'o'));
    }

    void cleansADiskInUse()
    {
        QVERIFY(QDir(m_folder->path()).mkdir("mount"));
        const auto mount = mounted(m_folder->filePath("mount"));
        if (!mount)
            QSKIP("no loop devices or mounts here");
        QFile busy(m_folder->filePath("mount/busy"));
        QVERIFY(busy.open(QIODevice::WriteOnly));
        QVERIFY(run("SELECT DISK 1\nclean\nEXIT").contains("The device is in use."));
        busy.close();
        const QByteArray cleaned = run("SELECT DISK 1\nclean\nEXIT");
        QVERIFY2(cleaned.contains("DiskPart succeeded in cleaning the disk."), cleaned.constData());
        QVERIFY(!mount->unmount()); // it is unmounted already
    }

    void sparesTheRunningSystem()
    {
        // In this process's own mount table only.
        const auto mount = mounted("/boot");
        if (!mount)
            QSKIP("no loop devices or mounts here");
        for (const char *script : {"SELECT DISK 1\nclean\nEXIT", "SELECT DISK 1\nconvert MBR\nEXIT",
                                   "SELECT DISK 1\ncreate partition primary\nEXIT"})
            QVERIFY(run(script).contains("Clean is not allowed on the disk containing the current boot,"));
        const auto handle = rawdisk::open(*m_pc, "\\\\.\\PHYSICALDRIVE1");
        QVERIFY(handle != Platform::InvalidHandle);
        QByteArray sector(512, 'x');
        QVERIFY(!m_pc->WriteFile(handle, sector.constData(), 512, nullptr));
        QVERIFY(m_pc->ReadFile(handle, sector.data(), 512, nullptr));
        m_pc->CloseHandle(handle);
        QVERIFY(mount->unmount());
        QByteArray signatures;
        QVERIFY(runs("wipefs", {m_loops[1]->node()}, &signatures));
        QVERIFY(signatures.contains("ext2"));
    }

private:
    /// Makes a file system on disk 1 and mounts it; null where that cannot be done here.
    std::unique_ptr<Mount> mounted(const QString &folder) const
    {
        if (!m_pc || !m_ownMounts)
            return nullptr;
        if (!runs("mke2fs", {"-q", "-F", m_loops[1]->node()}))
            qFatal("no file system can be made");
        auto mount = std::make_unique<Mount>(m_loops[1]->node(), folder);
        return mount->isMounted() ? std::move(mount) : nullptr;
    }

    QByteArray run(const QByteArray &script)
    {
        const QString file = m_pc->GetTempPathW() + "script.txt";
        if (!writeFile(file, script))
            qFatal("a script cannot be written");
        return outputOf(*m_pc, "C:\\Windows\\system32\\diskpart.exe /s " + file);
    }

    QByteArray image(int number) const { return contentOf(path(number)); }
    QString path(int number) const { return m_folder->filePath(QString("%1.img").arg(number)); }

    static constexpr int ImageBytes = 8 * 1024 * 1024;
    QTemporaryDir m_home;
    bool m_ownMounts = false;
    QScopedPointer<QTemporaryDir> m_folder;
    std::vector<std::unique_ptr<LoopDevice>> m_loops; ///< three; disk 1 is the second
    std::unique_ptr<Platform> m_pc;
};

QTEST_GUILESS_MAIN(tst_LinuxDiskpart)
#include "tst_LinuxDiskpart.moc"
