// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QWaitClass.h"
#include "state/SettingsStore.h"
#include "tests/ui/SessionWords.h"
#include "ui/screens/Settings.h"

#include <QClipboard>
#include <QDir>

using namespace sessionwords;

/// Plays the sessions of tests/data/ui with the real window, on the described PCs that they name. The README
/// there tells the words.
class tst_Sessions : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        m_front.reset();
        m_language.reset();
        m_reader.reset();
        g_bAbortJob = true;
        QTRY_VERIFY_WITH_TIMEOUT(g_Jobs.mayStart(), 20000);
        delete dialog<Settings>(); // it has no parent
        tearDown();
        m_pSplash.reset();
        m_bMainWindowCreated = false;
        g_App.m_bAccessDenied = false;
    }

    void sessions_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("story");
        for (const QString &file : QDir(QStringLiteral(HALVANE_TEST_DATA "/ui")).entryList({"*.txt"})) {
            for (const QString &head : sectionsOf(file).keys()) {
                if (head.startsWith(QLatin1String("story ")))
                    QTest::newRow(qPrintable(file + ": " + head.mid(6))) << file << head;
            }
        }
    }

    void sessions()
    {
        QFETCH(QString, file);
        QFETCH(QString, story);
        m_sections = sectionsOf(file);
        const QString wrong = play(m_sections[story]);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }

    /// A session that is written wrongly fails, as does one that sees something else.
    void noticesMistakes()
    {
        m_sections = {{"text one", {R"({"disks": [{"number": 0, "model": "A", "sectors": 2048}]})"}}};
        QCOMPARE(play({"pc one", "hidden CloneWarning Settings"}), QString());
        const std::pair<const char *, const char *> rows[] = {
            {"", "no expectation"},
            {"jump high", "jump high: unknown word"},
            {"press Nothing", "press Nothing: there is no such widget"},
            {"hidden Nothing", "hidden Nothing: saw \"Nothing\", not \"\""},
            {"shown ScanButton DriveCombobox CloneButton", "saw \"ScanButton CloneButton\", not \"\""},
            {"Nothing.text ~ .", "saw"},
            {"DriveCombobox.nothing = ", "saw \"no such property\", not \"\""},
            {"call MainWindow.OnNothing", "OnNothing: there is no such slot"},
            {"off Nothing", "saw \"Nothing\", not \"\""},
            {"do nothing", "do nothing: there are no such steps"},
            {"DriveCombobox.count = 2", "saw \"1\", not \"2\""},
            {"DriveCombobox.count ~ [2-9]", "saw \"1\", not \"[2-9]\""}};
        for (const auto &[step, wrong] : rows) {
            const QString told = play({"pc one", QLatin1String(step)});
            QVERIFY2(told.contains(QLatin1String(wrong)), qPrintable(told));
        }
    }

private:
    /// What went wrong; empty if all steps went well.
    QString play(const QStringList &steps)
    {
        m_nExpectations = 0;
        m_asked.clear();
        const QString wrong = playSteps(steps);
        return wrong.isEmpty() && m_nExpectations == 0 ? QStringLiteral("no expectation") : wrong;
    }

    QString playSteps(const QStringList &steps)
    {
        for (const QString &step : steps) {
            const QString wrong = step.isEmpty() ? QString() : playStep(step);
            if (!wrong.isEmpty() || QTest::currentTestFailed())
                return step + QStringLiteral(": ") + (wrong.isEmpty() ? "failed" : wrong);
        }
        return QString();
    }

    QString playStep(const QString &step)
    {
        const bool waits = step.startsWith(QLatin1String("until "));
        const QRegularExpression form("^(?:until )?(\\S+)(?:| (.*?))(?: ([=~])(?: (.*))?)?$");
        const auto parts = form.match(step);
        const QString word = parts.captured(1);
        if (m_acts.contains(word))
            return m_acts[word].run(step.section(' ', 1));
        if (!m_readings.contains(word) && !word.contains('.'))
            return QStringLiteral("unknown word");
        ++m_nExpectations;
        const QString wanted = parts.captured(4);
        QString seen;
        const auto fits = [&] {
            seen = m_readings.contains(word) ? m_readings[word].run(parts.captured(2)) : propertyOf(word);
            if (parts.captured(3) != "~")
                return seen == wanted;
            return !seen.startsWith("no such") && QRegularExpression(wanted).match(seen).hasMatch();
        };
        const bool seenSo = waits ? QTest::qWaitFor(fits, 20000) : fits();
        return seenSo ? QString() : QStringLiteral("saw \"%1\", not \"%2\"").arg(seen, wanted);
    }

    void begin(const QString &pc)
    {
        m_front.reset();
        m_mark = 0;
        install(pc);
    }

    /// PATH|KIND|STEP: the step opens a file dialog, which saves below the state folder; without a path it is
    /// cancelled.
    QString save(const QString &rest)
    {
        m_front.reset(); // else dialog and window take the front from each other for ever
        const QString path = rest.section('|', 0, 0);
        QString wrong;
        m_asked = asked([&] { wrong = playStep(rest.section('|', 2)); },
                        path.isEmpty() ? path : m_strState + '/' + path, rest.section('|', 1, 1).toInt());
        return wrong;
    }

    /// Whether the window reads the status of a self-test each second.
    bool ticks() const
    {
        const QList<QTimer *> timers = m_pWindow->findChildren<QTimer *>();
        return std::any_of(timers.begin(), timers.end(), [](const QTimer *timer) {
            return timer->isActive() && timer->interval() == 1000;
        });
    }

    const Words m_acts{
        {"pc", [this](const QString &pc) { begin(pc), makeWindow(), waitForRest(); }},
        // The disks are loaded, and no window shows yet.
        {"load", [this](const QString &pc) { begin(pc); }},
        {"open", [this](const QString &) { m_pWindow.reset(), makeWindow(); }},
        {"splash",
         [this](const QString &pc) {
             begin(pc);
             m_pSplash = std::make_unique<QWaitClass>();
             m_pSplash->show();
             QTRY_VERIFY_WITH_TIMEOUT(m_bMainWindowCreated, 20000);
             m_pWindow.reset(::m_pMainWindow);
             waitForRest();
         }},
        {"do",
         [this](const QString &name) {
             const auto steps = m_sections.find("steps " + name);
             return steps == m_sections.end() ? QStringLiteral("there are no such steps") : playSteps(*steps);
         }},
        {"times",
         [this](const QString &rest) {
             const int times = rest.section(' ', 0, 0).toInt();
             return times > 0 ? playSteps(QVector<QString>(times, rest.section(' ', 1)).toList())
                              : QStringLiteral("no number");
         }},
        {"rest", [this](const QString &) { waitForRest(); }},
        {"choose",
         [this](const QString &rest) { choose(rest.section(' ', 0, 0).toInt(), rest.section(' ', 1)); }},
        {"select", [this](const QString &row) { select(row.toInt()); }},
        {"plug", [this](const QString &file) { touch(file), waitForRest(); }},
        {"notice", [this](const QString &file) { touch(file); }},
        {"pull", [this](const QString &disk) { pullOut(disk.toInt()); }},
        {"press", with([](QWidget *button) {
             QTest::mousePress(button, Qt::LeftButton);
             QTest::mouseRelease(button, Qt::LeftButton);
         })},
        {"click", with<QAbstractButton>([](QAbstractButton *button) { button->click(); })},
        {"close", with([](QWidget *window) { window->close(); })},
        {"translate", with([](QWidget *part) { changeLanguage(part); })},
        {"call", call},
        {"set", change},
        {"let",
         [](const QString &rest) {
             QString *text = variables.value(rest.section(' ', 0, 0));
             if (text)
                 *text = rest.section(' ', 1);
             return text ? "" : "there is no such text";
         }},
        {"raise", flagsAre(true, true)},
        {"lower", flagsAre(false, true)},
        {"key", pressKey},
        {"tab", tabTo},
        {"store",
         [](const QString &rest) {
             const QByteArray name = rest.section(' ', 0, 0).toLatin1();
             SettingsStore().write(TextSetting{name}, rest.section(' ', 1));
         }},
        {"yesterday",
         [](const QString &serial) {
             AppendHistoryDate(historyPaths(serial).dates,
                               historyDate(QDateTime::currentDateTime().addDays(-1)));
         }},
        {"unreadable", [](const QString &serial) { QVERIFY(QDir().mkpath(historyPaths(serial).dates)); }},
        {"listen", [this](const QString &) { m_reader = std::make_unique<ScreenReader>(); }},
        {"folder", [this](const QString &path) { QVERIFY(QDir(m_strState).mkpath(path)); }},
        {"front", [this](const QString &) { m_front = std::make_unique<InFront>(m_pWindow.get()); }},
        {"behind", [this](const QString &) { m_front = std::make_unique<InFront>(nullptr); }},
        {"language",
         [this](const QString &form) {
             m_language.reset();
             if (!form.isEmpty())
                 m_language = std::make_unique<OtherLanguage>(form.toLatin1());
         }},
        {"speak", [](const QString &number) { languages::setFlag(number.toInt()); }},
        {"mark", [this](const QString &) { m_mark = logLines("commands.log").size(); }},
        {"saving", [this](const QString &rest) { return save(rest); }}};

    const Words m_readings{
        {"shown", are(&QWidget::isVisible, true)},
        {"hidden", are(&QWidget::isVisible, false)},
        {"enabled", are(&QWidget::isEnabled, true)},
        {"disabled", are(&QWidget::isEnabled, false)},
        {"on", flagsAre(true, false)},
        {"off", flagsAre(false, false)},
        {"free", [this](const QString &) { return shellIs(true) ? "" : "not all can be used"; }},
        {"busy", [this](const QString &) { return shellIs(false) ? "" : "not all is disabled"; }},
        {"ticks", [this](const QString &) { return ticks() ? "yes" : "no"; }},
        {"texts", shownTexts},
        {"data", data},
        {"row", row},
        {"tip",
         [this](const QString &at) {
             return tipAt({at.section(',', 0, 0).toInt(), at.section(',', 1).toInt()});
         }},
        {"points", points},
        {"history", history},
        {"letters", letters},
        {"disk", [](const QString &) { return QString::number(g_nCurrentDiskIndex); }},
        {"global",
         [](const QString &name) { return variables.contains(name) ? *variables[name] : "no such text"; }},
        {"outcome", [](const QString &) { return outcome(); }},
        {"refusal", [](const QString &) { return refusal(); }},
        {"announced", [](const QString &) { return ScreenReader::told.join('|'); }},
        {"asked", [this](const QString &) { return m_asked; }},
        {"clipboard", [](const QString &) { return QGuiApplication::clipboard()->text(); }},
        {"commands",
         [this](const QString &part) { return QString::number(commands(part.toUtf8(), m_mark)); }},
        {"log",
         [this](const QString &file) { return logLines(file.toLatin1()).join(" / ").replace('\t', ' '); }},
        {"setting", [](const QString &name) { return SettingsStore().text(TextSetting{name.toLatin1()}); }},
        {"file",
         [this](const QString &name) { return QString::fromUtf8(contentOf(m_strState + '/' + name)); }}};

    int m_nExpectations = 0;
    int m_mark = 0; ///< the commands before it do not count
    QString m_asked;
    std::unique_ptr<ScreenReader> m_reader;
    std::unique_ptr<InFront> m_front;
    std::unique_ptr<OtherLanguage> m_language;
    std::unique_ptr<QWaitClass> m_pSplash;
};

QTEST_MAIN(tst_Sessions)
#include "tst_Sessions.moc"
