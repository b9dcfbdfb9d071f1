// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tools/CommandInterpreter.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("<missing>");
}

/// Widens as the program does: each byte becomes one character.
std::wstring widened(const QByteArray &line)
{
    std::wstring wide;
    for (const char byte : line)
        wide += static_cast<wchar_t>(static_cast<unsigned char>(byte));
    return wide;
}

QString slashes(const QString &path)
{
    return QString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

} // namespace

class tst_CommandInterpreter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void run_data();
    void run();
    void namesTheFolder();
    void keepsWhatTheTargetHeld();
    void cutsTheTargetAtABlank();
    void slowToolWritesInPieces();
    void takesBytesBeyondAsciiOneByOne();
    void runsNothingWithoutATarget();
    void refusesALineWithoutSwitch();
    void knowsPathsThatBreakLines();

private:
    bool runLine(const QByteArray &command);

    tools::CommandInterpreter m_interpreter;
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_target;
    int m_runs = 0;
};

void tst_CommandInterpreter::init()
{
    m_runs = 0;
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
    m_target = m_folder->filePath(QStringLiteral("out.txt"));
    const auto echo = [this](const QStringList &arguments, const QByteArray &) {
        ++m_runs;
        return arguments.join(QLatin1Char('+')).toUtf8() + '\n';
    };
    const auto upper = [](const QStringList &arguments, const QByteArray &input) {
        return input.toUpper() + arguments.join(QLatin1Char('+')).toUtf8();
    };
    m_interpreter = {};
    m_interpreter.addTool(QStringLiteral("Echo64"), echo);
    m_interpreter.addTool(QStringLiteral("upper"), upper);
}

bool tst_CommandInterpreter::runLine(const QByteArray &command)
{
    return m_interpreter.run(widened("C:\\Windows\\system32\\cmd.exe /c " + command), slashes);
}

void tst_CommandInterpreter::run_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("bare name") << QByteArray("echo64 a b >> %1 ") << QByteArray("a+b\n");
    QTest::newRow("several blanks") << QByteArray("echo64  -a  -d sat,12 /dev/sdb >> %1 ")
                                    << QByteArray("-a+-d+sat,12+/dev/sdb\n");
    QTest::newRow("other letter case and suffix") << QByteArray("ECHO64.EXE a >> %1 ") << QByteArray("a\n");
    QTest::newRow("folder with backslashes")
        << QByteArray("C:\\Windows\\system32\\wbem\\Echo64.exe a >> %1 ") << QByteArray("a\n");
    QTest::newRow("folder with slashes") << QByteArray("/tmp/x.d/echo64.exe a >> %1 ") << QByteArray("a\n");
    QTest::newRow("name within another") << QByteArray("myecho64.exe a >> %1 ") << QByteArray();
    QTest::newRow("pipe") << QByteArray("S\\echo64.exe abc | S\\upper.exe x >> %1 ") << QByteArray("ABC\nx");
    QTest::newRow("unknown tool") << QByteArray("nothing.exe a >> %1 ") << QByteArray();
    QTest::newRow("unknown tool before a pipe") << QByteArray("nothing | upper x >> %1 ") << QByteArray("x");
    QTest::newRow("unknown tool behind a pipe") << QByteArray("echo64 a | nothing >> %1 ") << QByteArray();
    QTest::newRow("doubled separator in the target")
        << QByteArray("echo64 a >> %2\\\\out.txt ") << QByteArray("a\n");
    QTest::newRow("no blank behind the sign") << QByteArray("echo64 a >>%1") << QByteArray("a\n");
    QTest::newRow("no redirection") << QByteArray("echo64 a ") << QByteArray("<missing>");
}

void tst_CommandInterpreter::run()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, expected);
    command.replace("%1", m_target.toUtf8());
    command.replace("%2", m_folder->path().toUtf8());
    QVERIFY(runLine(command));
    QCOMPARE(contentOf(m_target), expected);
}

void tst_CommandInterpreter::namesTheFolder()
{
    const std::wstring line = L"S\\cmd.exe /d /c tool.exe -a >> T\\out.txt ";
    QVERIFY(tools::CommandInterpreter::withFolder(line, QStringLiteral("C:\\Halvane")) ==
            L"S\\cmd.exe /d /c C:\\Halvane\\tool.exe -a >> T\\out.txt ");
    QVERIFY(tools::CommandInterpreter::withFolder(line, QStringLiteral("C:\\A (x86) & B")) ==
            L"S\\cmd.exe /d /s /c \"\"C:\\A (x86) & B\\tool.exe\" -a >> T\\out.txt \"");
}

void tst_CommandInterpreter::keepsWhatTheTargetHeld()
{
    QVERIFY(runLine("echo64 a >> " + m_target.toUtf8() + ' '));
    QVERIFY(runLine("echo64 b >> " + m_target.toUtf8() + ' '));
    QCOMPARE(contentOf(m_target), QByteArray("a\nb\n"));
}

void tst_CommandInterpreter::cutsTheTargetAtABlank()
{
    const QString folder = m_folder->filePath(QStringLiteral("John Doe"));
    QVERIFY(QDir().mkpath(folder));
    const QString wanted = folder + QStringLiteral("/out.txt");
    QVERIFY(runLine("echo64 a >> " + wanted.toUtf8() + ' '));
    QVERIFY(!QFile::exists(wanted));
    // What stands behind the blank is one more argument of the tool.
    QCOMPARE(contentOf(m_folder->filePath(QStringLiteral("John"))), QByteArray("a+Doe/out.txt\n"));
}

void tst_CommandInterpreter::slowToolWritesInPieces()
{
    const auto slow = [](const QStringList &, const QByteArray &) { return QByteArray(1000, 'x'); };
    m_interpreter.addTool(QStringLiteral("slow"), slow, 400);
    const std::unique_ptr<QThread> process(
        QThread::create([this] { runLine("slow >> " + m_target.toUtf8() + ' '); }));
    QElapsedTimer clock;
    clock.start();
    process->start();
    QTRY_VERIFY(QFileInfo(m_target).size() > 0);
    QFile first(m_target);
    QVERIFY(first.open(QIODevice::ReadOnly));
    QVERIFY(first.size() < 1000);
#ifdef Q_OS_WIN
    constexpr bool keeps = true; // Windows does not remove a file that a process writes to
#else
    constexpr bool keeps = false;
#endif
    const bool removed = QFile::remove(m_target);
    QVERIFY(process->wait(10000));
    QVERIFY(clock.elapsed() >= 400);
    QCOMPARE(removed, !keeps);
    // The tool wrote the rest to the file that it had opened, not to a new one of that name.
    QCOMPARE(QFileInfo::exists(m_target), keeps);
    QCOMPARE(first.size(), 1000);
}

void tst_CommandInterpreter::takesBytesBeyondAsciiOneByOne()
{
    const QString wanted = m_folder->filePath(QString::fromUtf8("J\xc3\xb6rg.txt"));
    QVERIFY(runLine("echo64 a >> " + wanted.toUtf8() + ' '));
    QVERIFY(!QFile::exists(wanted));
    QCOMPARE(contentOf(m_folder->filePath(QString::fromUtf8("J\xc3\x83\xc2\xb6rg.txt"))), QByteArray("a\n"));
}

void tst_CommandInterpreter::runsNothingWithoutATarget()
{
    QVERIFY(runLine("echo64 a >> " + m_folder->path().toUtf8() + "/missing/out.txt "));
    QCOMPARE(m_runs, 0);
    QVERIFY(runLine("echo64 a >> " + m_target.toUtf8()));
    QCOMPARE(m_runs, 1);
}

void tst_CommandInterpreter::refusesALineWithoutSwitch()
{
    QVERIFY(!m_interpreter.run(widened("cmd.exe echo64 a >> " + m_target.toUtf8()), slashes));
    QCOMPARE(m_runs, 0);
    QVERIFY(!QFile::exists(m_target));
}

void tst_CommandInterpreter::knowsPathsThatBreakLines()
{
    QVERIFY(!tools::CommandInterpreter::breaksCommands(QStringLiteral("C:\\Users\\ANNA-M~1.X_Y\\Temp\\")));
    for (const QChar letter : QStringLiteral(" &%^(),;=\u00fc\u6c34"))
        QVERIFY2(tools::CommandInterpreter::breaksCommands(QStringLiteral("C:\\a%1b\\").arg(letter)),
                 qPrintable(QString(letter)));
}

QTEST_GUILESS_MAIN(tst_CommandInterpreter)
#include "tst_CommandInterpreter.moc"
