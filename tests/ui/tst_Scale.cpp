// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"
#include "state/Scale.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

#include <QtTest>

Q_DECLARE_METATYPE(images::Family)

/// How the display's dots per inch become sizes and image sets.
class tst_Scale : public QObject
{
    Q_OBJECT

private slots:
    void sizes()
    {
        const QMap<int, int> percents{{72, 75},   {96, 100},  {97, 125},  {120, 125},
                                      {121, 150}, {144, 150}, {168, 175}, {192, 200}};
        for (auto dpi = percents.cbegin(); dpi != percents.cend(); ++dpi)
            QCOMPARE(scale::percentForDpi(dpi.key()), dpi.value());
        QCOMPARE(scale::scaled(55, 125), 68); // cut off
        QCOMPARE(scale::scaled(-15, 150), -22);
    }

    void imagePath_data()
    {
        QTest::addColumn<float>("factor");
        QTest::addColumn<images::Family>("family");
        QTest::addColumn<QString>("expected");
        constexpr auto Plain = images::Family::Plain;
        constexpr auto Folder = images::Family::Folder;
        constexpr auto MoreTools = images::Family::MoreTools;
        QTest::newRow("plain at 1") << 1.0F << Plain << ":/images/a.png";
        QTest::newRow("folder at 1") << 1.0F << Folder << ":/images/Resources/96-DPI/a.png";
        QTest::newRow("second family at 1") << 1.0F << MoreTools << ":/images/Resources/Others/96-DPI/a.png";
        QTest::newRow("a hair off 1.25") << 1.2500001F << Plain << ":/images/Resources/120-DPI/a.png";
        QTest::newRow("1.5") << 1.5F << Plain << ":/images/Resources/144-DPI/a.png";
        QTest::newRow("just below 1.75") << 1.74F << Plain << ":/images/Resources/144-DPI/a.png";
        QTest::newRow("1.75") << 1.75F << Plain << ":/images/Resources/168-DPI/a.png";
        QTest::newRow("second family at 2") << 2.0F << MoreTools << ":/images/Resources/Others/192-DPI/a.png";
        QTest::newRow("between the sets") << 1.3F << Plain << QString();
        QTest::newRow("below one") << 0.75F << Folder << QString();
    }

    void imagePath()
    {
        QFETCH(float, factor);
        QFETCH(images::Family, family);
        QFETCH(QString, expected);
        g_App.m_fScale = factor;
        QCOMPARE(images::path(QStringLiteral("a.png"), family), expected);
        // What has to have a picture takes that of 96 DPI.
        if (expected.isEmpty())
            QCOMPARE(images::nearestPath(QStringLiteral("a.png")), QStringLiteral(":/images/a.png"));
    }

    void windowsStayOnTheirScreen_data()
    {
        QTest::addColumn<QRect>("window");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("on it") << QRect(100, 60, 905, 600) << QPoint(100, 60);
        QTest::newRow("past the upper left") << QRect(-227, -180, 905, 600) << QPoint(0, 30);
        QTest::newRow("past the lower right") << QRect(1200, 900, 905, 600) << QPoint(495, 430);
        QTest::newRow("larger than it") << QRect(-10, 200, 1500, 1100) << QPoint(0, 30);
    }

    void windowsStayOnTheirScreen()
    {
        QFETCH(QRect, window);
        QFETCH(QPoint, place);
        const QRect area(0, 30, 1400, 1000); // below a bar at the top
        const QPoint left(-1400, 0);         // another screen
        QCOMPARE(style::placeWithin(window, area), place);
        QCOMPARE(style::placeWithin(window.translated(left), area.translated(left)), place + left);
    }
};

QTEST_APPLESS_MAIN(tst_Scale)
#include "tst_Scale.moc"
