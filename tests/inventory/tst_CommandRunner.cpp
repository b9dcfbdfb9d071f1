// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "platform/OwnFiles.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Files.h"

#include <QTest>
#include <QTextCodec>
#include <QTextStream>

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

    void decodesBothKindsOfTool()
    {
        const auto decoded = [this](const QByteArray &output) {
            fake->onCommand = [output](const QString &line) { return FakePlatform::answer(line, output); };
            return run() ? text : QStringLiteral("no file");
        };
        const auto inLocale = [](const char *utf8) {
            return QTextCodec::codecForLocale()->fromUnicode(QString::fromUtf8(utf8));
        };
        const char *const shown = "Name  n\u00B0\r\nC:    7\r\n\r\n";
        const QString plain = QStringLiteral("Name  n\u00B0\nC:    7\n\n");
        QCOMPARE(decoded(utf16(QString::fromUtf8(shown))), plain);
        QCOMPARE(decoded(inLocale(shown)), plain);
        // A no-break blank; after a byte beyond ASCII, 0xA0 is a part of a letter.
        QCOMPARE(decoded("18\xA0" + QByteArray("250\xA0") + "344\n" + inLocale("\u00E0")),
                 QStringLiteral("18\u00A0250\u00A0344\n\u00E0"));
        QCOMPARE(decoded(utf16(QStringLiteral("a\u001B[2Jb\u202Ec\u2028d\u0085\re\tf\r\n"))),
                 QStringLiteral("a\uFFFD[2Jb\uFFFDc\uFFFDd\uFFFD\uFFFDe\tf\n"));
        QCOMPARE(decoded(QByteArray(static_cast<int>(ownfiles::MostBytes) + 9, 'x')).size(),
                 16 * 1024 * 1024);
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
        QVERIFY(!run()); // the tool writes none
        // The interpreter takes a name up to its first blank, and no name beyond ASCII.
        fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "text\n"); };
        fake->useTempFolder("my temp");
        QVERIFY(!run());
        fake->useTempFolder(QStringLiteral("t\u00E9mp"));
        QVERIFY(!run());
        QVERIFY(text.isNull());
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
