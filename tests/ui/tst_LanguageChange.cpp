// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/WindowFixture.h"
#include "ui/screens/Settings.h"

#include <QDir>
#include <QFileDialog>
#include <QTreeWidget>

namespace
{

/// What stays different between a start in a language and a change to it.
const QSet<QString> Differs{
    QStringLiteral("PowerOnTimeValue text"),      // has another separator
    QStringLiteral("performanceTitleLbl height"), // gets its fixed height at the first change
};

/// The folder of the translations: beside the program, or beside the folder of the tests.
QString programFolder()
{
    const QDir own(QCoreApplication::applicationDirPath());
    for (const char *folder : {"../bin", ".."}) {
        if (own.exists(QLatin1String(folder) + QStringLiteral("/QRXTranslation")))
            return QDir::cleanPath(own.filePath(QLatin1String(folder)));
    }
    return QString();
}

using Look = QMap<QString, QString>;

void describe(const QWidget *widget, const QString &place, Look *look)
{
    const auto put = [look, &place](const char *what, const QString &value) {
        if (!Differs.contains(place.section(QLatin1Char('/'), -1) + QLatin1Char(' ') + QLatin1String(what)))
            look->insert(place + QLatin1Char(' ') + QLatin1String(what), value);
    };
    put("toolTip", widget->toolTip());
    put("font", widget->font().toString());
    put("width", QString::number(widget->width()));
    put("height", QString::number(widget->height()));
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        put("text", label->text());
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        put("text", button->text());
    if (const auto *tree = qobject_cast<const QTreeWidget *>(widget)) {
        for (int column = 0; column < tree->columnCount(); ++column)
            put(qPrintable(QStringLiteral("header %1").arg(column)), tree->headerItem()->text(column));
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        for (int index = 0; index < combo->count(); ++index)
            put(qPrintable(QStringLiteral("item %1").arg(index)), combo->itemText(index));
    }
}

Look lookOf(const QWidget *window)
{
    Look look;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->objectName().isEmpty() ||
            widget->objectName().startsWith(QLatin1String("qt_")) ||
            widget->objectName() == QLatin1String("m_pFocusRing"))
            continue;
        QString place;
        for (const QWidget *part = widget; part && part != window; part = part->parentWidget())
            place.prepend(QLatin1Char('/') + part->objectName());
        describe(widget, place, &look);
    }
    for (const QAction *action : window->findChildren<QAction *>()) {
        if (!action->objectName().isEmpty())
            look.insert(action->objectName() + QStringLiteral(" action"), action->text());
    }
    return look;
}

} // namespace

/// A window after many changes of the language looks like one that was started in it.
class tst_LanguageChange : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(!programFolder().isEmpty()); }
    void cleanup()
    {
        for (QTranslator &translator : g_App.m_aTranslators)
            QCoreApplication::removeTranslator(&translator);
        tearDown();
    }

    void looksLikeAStartInIt_data()
    {
        QTest::addColumn<int>("type");
        for (const languages::Language &language : languages::table)
            QTest::newRow(language.text) << static_cast<int>(language.type);
    }

    void looksLikeAStartInIt()
    {
        QFETCH(int, type);
        start(type);
        // The toolkit's own texts, too.
        QCOMPARE(QFileDialog::tr("Look in:") == "Look in:", type == static_cast<int>(LanguageType::English));
        const Look started = walk();
        QVERIFY(started.size() > 300 && child<QLabel>("m_apVolumeName"));
        cleanup();

        start((type + 3) % LanguageCount);
        walk();
        for (int change = 1; change <= 20; ++change)
            languages::change(LanguageType((type + change * 7 + 3) % LanguageCount));
        languages::change(LanguageType(type));
        const Look changed = walk();
        QStringList differences;
        for (const QString &place : (QSet<QString>(started.keyBegin(), started.keyEnd()) +
                                     QSet<QString>(changed.keyBegin(), changed.keyEnd()))) {
            if (started[place] != changed[place])
                differences << place + QStringLiteral(": ") + started[place] + QStringLiteral(" | ") +
                                   changed[place];
        }
        differences.sort();
        QVERIFY2(differences.isEmpty(), qPrintable(QLatin1Char('\n') + differences.join(QLatin1Char('\n'))));
    }

private:
    void start(int type)
    {
        m_sections = sectionsOf(QStringLiteral("LanguageChange.txt"));
        install(QStringLiteral("one"));
        g_strApplicationFolder = programFolder();
        languages::setFlag(type);
        languages::loadAtStart();
        makeWindow();
        waitForRest();
    }

    /// The look of a window when its layout does not change any more.
    static Look settledLook(const QWidget *window)
    {
        constexpr int RestingRounds = 3;
        Look look;
        int resting = 0;
        const auto rests = [&] {
            const Look before = std::exchange(look, lookOf(window));
            resting = look == before ? resting + 1 : 0;
            return resting == RestingRounds;
        };
        if (!QTest::qWaitFor(rests))
            QTest::qFail("the layout does not come to rest", __FILE__, __LINE__);
        return look;
    }

    /// The looks of the five screens and of Settings.
    Look walk() const
    {
        Look all;
        const auto add = [&all](const QString &screen, const Look &look) {
            for (auto entry = look.cbegin(); entry != look.cend(); ++entry)
                all.insert(screen + entry.key(), entry.value());
        };
        add(QStringLiteral("as it stands"), settledLook(m_pWindow.get()));
        for (const char *button : {"SmartStatusButton", "DiskPartitionButton", "ScanDiskButton",
                                   "CloneDiskButton", "DiskStatusButton"}) {
            goTo(button);
            add(QLatin1String(button), settledLook(m_pWindow.get()));
        }
        m_pWindow->OnShowSettings();
        auto *settings = dialog<Settings>();
        add(QStringLiteral("Settings"), settledLook(settings));
        settings->hide();
        return all;
    }
};

QTEST_MAIN(tst_LanguageChange)
#include "tst_LanguageChange.moc"
