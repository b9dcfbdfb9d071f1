// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Scale.h"
#include "ui/widgets/Style.h"

#include <QtTest>

/// How the display's dots per inch become sizes and image sets.
class tst_Scale : public QObject
{
    Q_OBJECT

private slots:
    void factor_data();
    void factor();
    void imagePath_data();
    void imagePath();
    void sizesAreTruncated();
    void windowsStayOnTheirScreen_data();
    void windowsStayOnTheirScreen();
};

void tst_Scale::factor_data()
{
    QTest::addColumn<int>("dpi");
    QTest::addColumn<float>("expected");
    QTest::newRow("96") << 96 << 1.0F;
    QTest::newRow("just above 96 goes up to 1.25") << 97 << 1.25F;
    QTest::newRow("110 percent") << 110 << 1.25F;
    QTest::newRow("120") << 120 << 1.25F;
    QTest::newRow("just above 120 goes up to 1.5") << 121 << 1.5F;
    QTest::newRow("144") << 144 << 1.5F;
    QTest::newRow("168 stays 1.75") << 168 << 1.75F;
    QTest::newRow("192") << 192 << 2.0F;
    QTest::newRow("72 stays below one") << 72 << 0.75F;
}

void tst_Scale::factor()
{
    QFETCH(int, dpi);
    QFETCH(float, expected);
    QCOMPARE(scale::factorForDpi(dpi), expected);
}

void tst_Scale::imagePath_data()
{
    QTest::addColumn<float>("factor");
    QTest::addColumn<int>("family");
    QTest::addColumn<QString>("expected");
    const int plain = static_cast<int>(scale::Family::Plain);
    const int folder = static_cast<int>(scale::Family::Folder);
    const int others = static_cast<int>(scale::Family::Others);
    QTest::newRow("plain at 1") << 1.0F << plain << ":/images/a.png";
    QTest::newRow("folder at 1") << 1.0F << folder << ":/images/Resources/96-DPI/a.png";
    QTest::newRow("second family at 1") << 1.0F << others << ":/images/Resources/Others/96-DPI/a.png";
    QTest::newRow("plain at 1.25") << 1.25F << plain << ":/images/Resources/120-DPI/a.png";
    QTest::newRow("a hair off 1.25") << 1.2500001F << plain << ":/images/Resources/120-DPI/a.png";
    QTest::newRow("1.5") << 1.5F << plain << ":/images/Resources/144-DPI/a.png";
    QTest::newRow("1.75") << 1.75F << plain << ":/images/Resources/144-DPI/a.png";
    QTest::newRow("second family at 2") << 2.0F << others << ":/images/Resources/Others/144-DPI/a.png";
    QTest::newRow("between the sets") << 1.3F << plain << QString();
    QTest::newRow("below one") << 0.75F << folder << QString();
}

void tst_Scale::imagePath()
{
    QFETCH(float, factor);
    QFETCH(int, family);
    QFETCH(QString, expected);
    QCOMPARE(scale::imagePath(QStringLiteral("a.png"), factor, static_cast<scale::Family>(family)), expected);
}

void tst_Scale::sizesAreTruncated()
{
    QCOMPARE(scale::scaled(55, 1.25F), 68);
    QCOMPARE(scale::scaled(905, 1.25F), 1131);
    QCOMPARE(scale::scaled(-15, 1.5F), -22);
}

void tst_Scale::windowsStayOnTheirScreen_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("on it") << QRect(100, 60, 905, 600) << QPoint(100, 60);
    QTest::newRow("past the upper left") << QRect(-227, -180, 905, 600) << QPoint(0, 30);
    QTest::newRow("past the lower right") << QRect(1200, 900, 905, 600) << QPoint(495, 430);
    QTest::newRow("larger than it") << QRect(-10, 200, 1500, 1100) << QPoint(0, 30);
}

void tst_Scale::windowsStayOnTheirScreen()
{
    QFETCH(QRect, window);
    const QRect area(0, 30, 1400, 1000); // below a bar at the top
    QTEST(style::placeWithin(window, area), "place");
    QTEST(style::placeWithin(window.translated(-1400, 0), area.translated(-1400, 0)) + QPoint(1400, 0),
          "place");
}

QTEST_APPLESS_MAIN(tst_Scale)
#include "tst_Scale.moc"
