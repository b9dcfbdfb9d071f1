// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/DescribedFolder.h"

#include <QtTest>

/// The system's tools and smartctl on a described PC.
class TestSimulatedTools : public QObject
{
    Q_OBJECT

private slots:
    /// In tests/data/platform/tools.txt "$ " begins a command, and what it prints stands below. "$@" lets so
    /// many milliseconds pass, "$=" starts the program anew, "$#" is a remark.
    void session()
    {
        const QString data = HALVANE_TEST_DATA "/platform/";
        const DescribedFolder folder;
        folder.add("caps.txt", m_capabilities);
        folder.add("caps-crlf.txt", QByteArray(m_capabilities).replace("\n", "\r\n"));
        folder.add("caps-none.txt",
                   QByteArray(m_capabilities).replace("Self-test supp", "No Self-test supp"));
        folder.add("report.txt",
                   "  9 Power_On_Hours  0x0032   100   100   050    Old_age   Always  -  65600\n");
        folder.add("second.txt", "second \xa0\r\n");
        folder.add("log.txt",
                   "Num  Test_Description    Status                  Remaining  LifeTime(hours)\n"
                   "# 1  Extended offline    Completed without error       00%     17092         -\n");
        const QByteArray description = contentOf(data + "tools.json");
        qint64 now = 1700000000000;
        const auto clock = [&now] { return now; };
        auto pc = folder.open(description, clock);
        const QRegularExpression end("will complete after .*");
        const QStringList expected = QString::fromUtf8(contentOf(data + "tools.txt")).split('\n');
        QStringList told;
        for (const QString &line : expected) {
            if (!line.startsWith('$'))
                continue;
            told << line;
            if (line.startsWith("$@"))
                now += line.mid(2).toLongLong();
            else if (line.startsWith("$="))
                pc = folder.open(description, clock);
            else if (line.startsWith("$ "))
                told += said(*pc, line.mid(2)).replace(end, "will complete after ...").split('\n');
        }
        QCOMPARE(told, expected);
    }

    void capabilitiesKeepTheirBytes()
    {
        const DescribedFolder folder;
        folder.add("caps.txt", QByteArray(m_capabilities).replace("\n", "\r\n"));
        auto pc = folder.open(R"({"disks": [{"number": 0, "capabilities": "caps.txt"}]})");
        QCOMPARE(outputOf(*pc, "smartctl -c /dev/sda"), folder.contents(folder.path() + "/caps.txt"));
        outputOf(*pc, "smartctl -t long /dev/sda");
        const QByteArray running = outputOf(*pc, "smartctl -c /dev/sda");
        QVERIFY(running.contains("...\r\n\t\t\t\t\t90% of test remaining.\r\nTotal"));
        QCOMPARE(running.count('\n'), running.count("\r\n"));
        pc = folder.open(R"({"smartctl": false, "disks": [{"number": 0, "capabilities": "caps.txt"}]})");
        QCOMPARE(outputOf(*pc, "smartctl -c /dev/sda"), QByteArray());
    }

private:
    /// Without the last line's end. A line that ends with "\r\n" is told as such.
    static QString said(Platform &pc, const QString &command)
    {
        const QByteArray bytes = outputOf(pc, command);
        QString text = bytes.startsWith("\xFF\xFE")
                           ? QString::fromUtf16(reinterpret_cast<const char16_t *>(bytes.constData() + 2),
                                                (bytes.size() - 2) / 2)
                           : QString::fromLatin1(bytes);
        return text.replace('\r', "\\r");
    }

    const QByteArray m_capabilities = contentOf(HALVANE_TEST_DATA "/selftest/caps-idle-72.txt");
};

QTEST_GUILESS_MAIN(TestSimulatedTools)
#include "tst_SimulatedTools.moc"
