// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "platform/OwnFiles.h"
#include "tests/support/FakePlatform.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTest>
#include <QTextCodec>
#include <QTextStream>

class CommandRunnerTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { fake = FakePlatform::install(); }

    void runsThroughTheInterpreter();
    void leavesOutLinesThatDoNotFit();
    void removesLeftover();
    void decodesBothKindsOfTool_data();
    void decodesBothKindsOfTool();
    void readsNoBreakBlanks();
    void takesTextsAsData();
    void keepsFileIfAsked();
    void reportsMissingFile_data();
    void reportsMissingFile();
    void opensNameWithBackslash();

private:
    FakePlatform *fake = nullptr;
};

namespace
{

QStringList linesOf(QTextStream &stream)
{
    QStringList lines;
    while (!stream.atEnd())
        lines << stream.readLine();
    return lines;
}

QByteArray utf16(const QString &text)
{
    return QByteArray("\xFF\xFE", 2) +
           QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
}

QByteArray inLocale(const QString &text)
{
    return QTextCodec::codecForLocale()->fromUnicode(text);
}

} // namespace

void CommandRunnerTest::runsThroughTheInterpreter()
{
    qputenv("COMSPEC", "x /c diskpart /s evil.txt |");
    RunSilent("tool.exe", "-x");
    qunsetenv("COMSPEC");
    RunSilent(QStringLiteral("tool \u00FC"));
    QCOMPARE(fake->commands(),
             QStringList({QStringLiteral("C:\\Windows\\system32\\cmd.exe /c tool.exe -x"),
                          QStringLiteral("C:\\Windows\\system32\\cmd.exe /c tool \u00C3\u00BC ")}));
    QCOMPARE(fake->hiddenFlags, QVector<bool>({true, true}));
}

void CommandRunnerTest::leavesOutLinesThatDoNotFit()
{
    const int frame = (fake->CommandInterpreter() + " /c  ").size();
    const QString longest(runner::WideBuffer - 1 - frame, QLatin1Char('x'));
    RunSilent(longest);
    QCOMPARE(fake->commands().size(), 1);
    QCOMPARE(fake->commands().first().size(), runner::WideBuffer - 1);
    QLoggingCategory::setFilterRules(QStringLiteral("halvane.inventory=true"));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^too long to be run")));
    RunSilent(longest + QLatin1Char('x'));
    QLoggingCategory::setFilterRules(QString());
    RunSilent(QString(8192, QLatin1Char('x')));
    QCOMPARE(fake->commands().size(), 1);
}

void CommandRunnerTest::removesLeftover()
{
    const QString path = nativePath(tempFile(QStringLiteral("Left.txt")));
    QFile old(path);
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old\n");
    old.close();

    fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "new\n"); };
    QStringList lines;
    QVERIFY(runner::runAndRead(QStringLiteral("tool"), QStringLiteral("Left.txt"),
                               [&lines](QTextStream &stream) { lines = linesOf(stream); }));
    QCOMPARE(lines, QStringList(QStringLiteral("new")));
    QVERIFY(!QFile::exists(path));
    QCOMPARE(fake->commands().first(), QStringLiteral("C:\\Windows\\system32\\cmd.exe /c tool >> ") +
                                           tempFile(QStringLiteral("Left.txt")) + QLatin1Char(' '));
}

void CommandRunnerTest::decodesBothKindsOfTool_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("UTF-16, CRLF") << utf16(QStringLiteral("Name  n\u00B0\r\nC:    7\r\n\r\n"));
    QTest::newRow("UTF-16, CR CR LF") << utf16(QStringLiteral("Name  n\u00B0\r\r\nC:    7\r\r\n\r\r\n"));
    QTest::newRow("no mark, CRLF") << inLocale(QStringLiteral("Name  n\u00B0\r\nC:    7\r\n\r\n"));
    QTest::newRow("no mark, LF") << inLocale(QStringLiteral("Name  n\u00B0\nC:    7\n\n"));
}

void CommandRunnerTest::decodesBothKindsOfTool()
{
    QFETCH(QByteArray, output);
    fake->onCommand = [output](const QString &line) { return FakePlatform::answer(line, output); };
    QStringList lines;
    QVERIFY(runner::runAndRead(QStringLiteral("tool"), QStringLiteral("F.txt"),
                               [&lines](QTextStream &stream) { lines = linesOf(stream); }));
    QCOMPARE(lines, QStringList({QStringLiteral("Name  n\u00B0"), QStringLiteral("C:    7"), QString()}));
}

void CommandRunnerTest::readsNoBreakBlanks()
{
    // After a byte beyond ASCII, 0xA0 is a part of a letter.
    const QByteArray output = "18\xA0"
                              "250\xA0"
                              "344\r\n" +
                              inLocale(QStringLiteral("\u00E0\n"));
    fake->onCommand = [&output](const QString &line) { return FakePlatform::answer(line, output); };
    QStringList lines;
    QVERIFY(runner::runAndRead(QStringLiteral("tool"), QStringLiteral("F.txt"),
                               [&lines](QTextStream &stream) { lines = linesOf(stream); }));
    QCOMPARE(lines, QStringList({QStringLiteral("18\u00A0250\u00A0344"), QStringLiteral("\u00E0")}));
}

void CommandRunnerTest::takesTextsAsData()
{
    QByteArray output = utf16(QStringLiteral("a\u001B[2Jb\u202Ec\u2028d\u0085\re\tf\r\n"));
    fake->onCommand = [&output](const QString &line) { return FakePlatform::answer(line, output); };
    QString text;
    const auto read = [&text](QTextStream &stream) { text = stream.readAll(); };
    QVERIFY(runner::runAndRead(QStringLiteral("tool"), QStringLiteral("F.txt"), read));
    QCOMPARE(text, QStringLiteral("a\uFFFD[2Jb\uFFFDc\uFFFDd\uFFFD\uFFFDe\tf\n"));
    output = QByteArray(static_cast<int>(ownfiles::MostBytes) + 9, 'x');
    QVERIFY(runner::runAndRead(QStringLiteral("tool"), QStringLiteral("F.txt"), read));
    QCOMPARE(text.size(), 16 * 1024 * 1024);
}

void CommandRunnerTest::keepsFileIfAsked()
{
    fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "kept\n"); };
    QVERIFY(runner::runAndRead(
        QStringLiteral("tool"), QStringLiteral("F.txt"), [](QTextStream &) {}, runner::After::Keep));
    const QString path = tempFile(QStringLiteral("F.txt"));
    QVERIFY(QFile::exists(path));
    QStringList lines;
    QVERIFY(runner::readOutput(path, [&lines](QTextStream &stream) { lines = linesOf(stream); }));
    QCOMPARE(lines, QStringList(QStringLiteral("kept")));
    QVERIFY(!QFile::exists(path));
}

void CommandRunnerTest::reportsMissingFile_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("starts");
    QTest::addColumn<bool>("opened");
    QTest::newRow("all well") << QStringLiteral("temp") << true << true;
    QTest::newRow("interpreter does not start") << QStringLiteral("temp") << false << false;
    QTest::newRow("blank in the folder") << QStringLiteral("my temp") << true << false;
    QTest::newRow("folder beyond ASCII") << QStringLiteral("t\u00E9mp") << true << false;
}

void CommandRunnerTest::reportsMissingFile()
{
    QFETCH(QString, folder);
    QFETCH(bool, starts);
    fake->useTempFolder(folder);
    fake->onCommand = [starts](const QString &line) {
        if (starts)
            FakePlatform::answer(line, "text\n");
        return starts;
    };
    bool read = false;
    const bool opened = runner::runAndRead(QStringLiteral("tool"), QStringLiteral("F.txt"),
                                           [&read](QTextStream &) { read = true; });
    QTEST(opened, "opened");
    QCOMPARE(read, opened);
}

void CommandRunnerTest::opensNameWithBackslash()
{
    fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "task\n"); };
    QVERIFY(runner::runAndRead(QStringLiteral("tool"), QStringLiteral("\\tmpFile"), [](QTextStream &) {}));
    QVERIFY(fake->commands().first().contains(QLatin1String("/\\tmpFile ")));
}

QTEST_GUILESS_MAIN(CommandRunnerTest)
#include "tst_CommandRunner.moc"
