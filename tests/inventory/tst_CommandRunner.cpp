// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "platform/OwnFiles.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Files.h"

#include <QTest>
#include <QTextCodec>
#include <QTextStream>

namespace
{

QByteArray inLocale(const QString &text)
{
    return QTextCodec::codecForLocale()->fromUnicode(text);
}

} // namespace

class CommandRunnerTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { fake = FakePlatform::install(); }

    void runsThroughTheInterpreter()
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

    void leavesOutLinesThatDoNotFit()
    {
        const int frame = (fake->CommandInterpreter() + " /c  ").size();
        RunSilent(QString(511 - frame, QLatin1Char('x')));
        RunSilent(QString(512 - frame, QLatin1Char('x')));
        QCOMPARE(fake->commands().size(), 1);
        QCOMPARE(fake->commands().first().size(), 511);
    }

    void decodesBothKindsOfTool_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("text");
        const QString plain = QStringLiteral("Name  n\u00B0\nC:    7\n\n");
        QTest::newRow("UTF-16") << utf16(QStringLiteral("Name  n\u00B0\r\nC:    7\r\n\r\n")) << plain;
        QTest::newRow("no mark") << inLocale(QStringLiteral("Name  n\u00B0\r\nC:    7\r\n\r\n")) << plain;
        // After a byte beyond ASCII, 0xA0 is a part of a letter.
        QTest::newRow("no-break blanks")
            << QByteArray("18\xA0") + QByteArray("250\xA0") + "344\n" + inLocale(QStringLiteral("\u00E0"))
            << QStringLiteral("18\u00A0250\u00A0344\n\u00E0");
        QTest::newRow("texts are data") << utf16(QStringLiteral("a\u001B[2Jb\u202Ec\u2028d\u0085\re\tf\r\n"))
                                        << QStringLiteral("a\uFFFD[2Jb\uFFFDc\uFFFDd\uFFFD\uFFFDe\tf\n");
    }

    void decodesBothKindsOfTool()
    {
        QFETCH(QByteArray, output);
        fake->onCommand = [output](const QString &line) { return FakePlatform::answer(line, output); };
        QVERIFY(run());
        QTEST(text, "text");
    }

    void readsNoEndlessOutput()
    {
        const QByteArray output(static_cast<int>(ownfiles::MostBytes) + 9, 'x');
        fake->onCommand = [&output](const QString &line) { return FakePlatform::answer(line, output); };
        QVERIFY(run());
        QCOMPARE(text.size(), 16 * 1024 * 1024);
    }

    void leavesNoFileUnlessAsked()
    {
        const QString path = nativePath(tempFile(QStringLiteral("F.txt")));
        QVERIFY(writeFile(path, "old\n"));
        fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "new\n"); };
        QVERIFY(run(runner::After::Keep));
        QCOMPARE(contentOf(path), QByteArray("new\n"));
        QVERIFY(run());
        QCOMPARE(text, QStringLiteral("new\n"));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(fake->commands().first(), QStringLiteral("C:\\Windows\\system32\\cmd.exe /c tool >> ") +
                                               tempFile(QStringLiteral("F.txt")) + QLatin1Char(' '));
    }

    void reportsMissingFile()
    {
        fake->onCommand = [](const QString &) { return false; };
        QVERIFY(!run());
        // The interpreter takes a name up to its first blank, and no name beyond ASCII.
        fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "text\n"); };
        fake->useTempFolder("my temp");
        QVERIFY(!run());
        fake->useTempFolder(QStringLiteral("t\u00E9mp"));
        QVERIFY(!run());
        QVERIFY(text.isNull());
    }

    void opensNameWithBackslash()
    {
        fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "task\n"); };
        QVERIFY(
            runner::runAndRead(QStringLiteral("tool"), QStringLiteral("\\tmpFile"), [](QTextStream &) {}));
        QVERIFY(fake->commands().first().contains(QLatin1String("/\\tmpFile ")));
    }

private:
    bool run(runner::After after = runner::After::Remove)
    {
        text.clear();
        const auto read = [this](QTextStream &stream) { text = stream.readAll(); };
        return runner::runAndRead(QStringLiteral("tool"), QStringLiteral("F.txt"), read, after);
    }

    FakePlatform *fake = nullptr;
    QString text; ///< of the last run
};

QTEST_GUILESS_MAIN(CommandRunnerTest)
#include "tst_CommandRunner.moc"
