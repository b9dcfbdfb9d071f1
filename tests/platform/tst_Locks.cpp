// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/Presence.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/AtOnce.h"

/// What any thread may ask of a PC, by two at once. Not all of it fails without the thread sanitizer.
class tst_Locks : public QObject
{
    Q_OBJECT

private slots:
    void comesAndGoes()
    {
        const simulated::PcDescription pc;
        simulated::Presence presence(pc);
        atOnce([&] { presence.touch("arrive-disk1") && presence.touch("remove-disk1"); },
               [&] { presence.hasDisk(1); });
        QVERIFY(!presence.hasDisk(1));
    }

    void programsEnd()
    {
        QByteArray names;
        for (int i = 0; i < 400; ++i)
            names += "\"p" + QByteArray::number(i) + ".exe\",";
        const auto pc = m_folder.open(R"({"processes": [)" + names + R"("last.exe"]})");
        int ended = 0;
        atOnce([&] { outputOf(*pc, QString("taskkill /F /IM p%1.exe").arg(ended++), "ends.txt"); },
               [&] { outputOf(*pc, "tasklist", "list.txt"); });
        const QByteArray left = outputOf(*pc, "tasklist | findstr .exe");
        QVERIFY(left.startsWith("last.exe") && left.count('\n') == 1);
    }

    /// Of the list of reports each run gets its own.
    void toolRuns()
    {
        m_folder.add("a.txt", "a");
        m_folder.add("b.txt", "b");
        const QByteArray reports = QByteArray("\"a.txt\",").repeated(800) + "\"b.txt\"";
        const auto pc = m_folder.open(R"({"disks": [{"number": 0, "report": [)" + reports + "]}]}");
        const QString tool = "smartctl.exe -a /dev/sda";
        QByteArray told;
        QByteArray besides;
        atOnce([&] { told += outputOf(*pc, tool, "one.txt"); },
               [&] { besides += outputOf(*pc, tool, "other.txt"); });
        QCOMPARE(told, QByteArray("a").repeated(400));
        QCOMPARE(besides, told);
        QCOMPARE(outputOf(*pc, tool), QByteArray("b"));
    }

    void isChosenOnce()
    {
        m_folder.open("{}").reset();
        const auto restore = qScopeGuard([] {
            Platform::install(nullptr);
            qunsetenv("HALVANE_PC");
            qunsetenv("HALVANE_PC_STATE");
        });
        qputenv("HALVANE_PC", QFile::encodeName(m_folder.path()));
        qputenv("HALVANE_PC_STATE", QFile::encodeName(m_folder.state()));
        for (int round = 0; round < 20; ++round) {
            Platform::install(nullptr);
            const Platform *one = nullptr;
            const Platform *other = nullptr;
            atOnce([&] { one = &Platform::current(); }, [&] { other = &Platform::current(); }, 1);
            QVERIFY(one && one == other);
        }
    }

private:
    DescribedFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_Locks)
#include "tst_Locks.moc"
