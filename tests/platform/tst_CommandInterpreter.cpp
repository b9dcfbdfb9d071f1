// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tools/CommandInterpreter.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class tst_CommandInterpreter : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_runs = 0;
        m_folder.reset(new QTemporaryDir);
        m_interpreter = {};
        m_interpreter.addTool("Echo64", [this](const QStringList &arguments, const QByteArray &) {
            ++m_runs;
            return arguments.join('+').toUtf8() + '\n';
        });
        m_interpreter.addTool("upper", [](const QStringList &arguments, const QByteArray &input) {
            return input.toUpper() + arguments.join('+').toUtf8();
        });
    }

    void run_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("content");
        const auto row = [](const char *name, const char *command, const char *content,
                            const char *file = "/out.txt") {
            QTest::newRow(name) << QByteArray(command) << QByteArray(file) << QByteArray(content);
        };
        row("several blanks", "echo64  -a  -d sat,12 /dev/sdb >> %1/out.txt ", "old -a+-d+sat,12+/dev/sdb\n");
        row("folder, other letters and suffix", "C:\\W\\wbem\\ECHO64.exe a >> %1\\\\out.txt ", "old a\n");
        row("name within another", "myecho64.exe a >> %1/out.txt ", "old ");
        row("folder with slashes", "/tmp/x.d/echo64 a >> %1/out.txt ", "old a\n");
        row("pipe", "S\\echo64.exe abc | S\\upper.exe x >> %1/out.txt ", "old ABC\nx");
        row("unknown tool before a pipe", "nothing | upper x >> %1/out.txt ", "old x");
        row("unknown tool behind a pipe", "echo64 a | nothing >> %1/out.txt ", "old ");
        row("no blank behind the sign", "echo64 a >>%1/out.txt", "old a\n");
        row("no redirection", "echo64 a ", "old ");
        // What stands behind the blank is one more argument of the tool.
        row("blank in the target", "echo64 a >> %1/John Doe/out.txt ", "a+Doe/out.txt\n", "/John");
        row("not ASCII", "echo64 a >> %1/J\xc3\xb6rg.txt ", "a\n", "/J\xc3\x83\xc2\xb6rg.txt");
    }

    void run()
    {
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, file);
        QVERIFY(QDir(m_folder->path()).mkdir("John Doe"));
        QVERIFY(writeFile(m_folder->filePath("out.txt"), "old "));
        QVERIFY(runLine("C:\\Windows\\system32\\cmd.exe /c " + command));
        QTEST(contentOf(m_folder->path() + file), "content");
    }

    void namesTheFolder()
    {
        const std::wstring line = L"S\\cmd.exe /d /c tool.exe -a >> T\\out.txt ";
        QVERIFY(tools::CommandInterpreter::withFolder(line, "C:\\Halvane") ==
                L"S\\cmd.exe /d /c C:\\Halvane\\tool.exe -a >> T\\out.txt ");
        QVERIFY(tools::CommandInterpreter::withFolder(line, "C:\\A (x86) & B") ==
                L"S\\cmd.exe /d /s /c \"\"C:\\A (x86) & B\\tool.exe\" -a >> T\\out.txt \"");
    }

    void slowToolWritesInPieces()
    {
        const auto slow = [](const QStringList &, const QByteArray &) { return QByteArray(1000, 'x'); };
        m_interpreter.addTool("slow", slow, 400);
        QFile first(m_folder->filePath("out.txt"));
        const std::unique_ptr<QThread> process(
            QThread::create([this] { runLine("cmd.exe /c slow >> %1/out.txt "); }));
        process->start();
        QTRY_VERIFY(first.size() > 0);
        QVERIFY(first.open(QIODevice::ReadOnly));
        QVERIFY(first.size() < 1000);
        // Windows does not remove a file that a process writes to.
        const bool removed = QFile::remove(first.fileName());
        QVERIFY(process->wait(10000));
        // The tool wrote the rest to the file that it had opened, not to a new one of that name.
        QCOMPARE(QFileInfo::exists(first.fileName()), !removed);
        QCOMPARE(first.size(), 1000);
    }

    void runsNothingOfAWrongLine()
    {
        QVERIFY(!runLine("cmd.exe echo64 a >> %1/out.txt"));
        // Nor does a tool run whose output has nowhere to go.
        QVERIFY(runLine("cmd.exe /c echo64 a >> %1/missing/out.txt "));
        QCOMPARE(m_runs, 0);
    }

    void knowsPathsThatBreakLines()
    {
        QVERIFY(!tools::CommandInterpreter::breaksCommands("C:\\Users\\ANNA-M~1.X_Y\\Temp\\"));
        for (const QChar letter : QString(" &%^(),;=\u007f\u6c34"))
            QVERIFY2(tools::CommandInterpreter::breaksCommands(QString("C:\\a%1b\\").arg(letter)),
                     qPrintable(QString(letter)));
    }

private:
    /// Runs a line that the program widened: each byte became one character. "%1" is the test's folder.
    bool runLine(QByteArray line)
    {
        line.replace("%1", m_folder->path().toUtf8());
        return m_interpreter.run(QString::fromLatin1(line).toStdWString(),
                                 [](QString path) { return path.replace('\\', '/'); });
    }

    tools::CommandInterpreter m_interpreter;
    QScopedPointer<QTemporaryDir> m_folder;
    int m_runs = 0;
};

QTEST_GUILESS_MAIN(tst_CommandInterpreter)
#include "tst_CommandInterpreter.moc"
